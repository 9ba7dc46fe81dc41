#pragma once
// The widget half of a filter panel: each criterion is a check box that enables the controls
// beside it while it is ticked (a date pair, an option frame with its options, a pick list), all
// starting unticked and disabled. The statement half (the LIKE words, the date clause and its
// message, lists filled from a statement) is analysis/filter_kit.h.

#include <QString>

#include <initializer_list>
#include <vector>

class QCheckBox;
class QComboBox;
class QWidget;

// Ties the companions to the box: disabled now (the box unticked), and enabled exactly while the
// box is ticked.
void ligar_criterio(QCheckBox* caixa, std::vector<QWidget*> companheiros);
inline void ligar_criterio(QCheckBox* caixa, std::initializer_list<QWidget*> companheiros) {
    ligar_criterio(caixa, std::vector<QWidget*>(companheiros));
}

// A criterion check box with its caption and name.
QCheckBox* caixa_criterio(const char* nome, const QString& texto);

// The text a box holds while its criterion is ticked, empty otherwise.
QString texto_criterio(const QCheckBox* caixa, const QComboBox* valor);
