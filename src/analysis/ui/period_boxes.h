#pragma once
// The month and year selectors of the analysis windows: pick-only boxes (keys swallowed) with the
// twelve month captions (July in lower case where a window has it so) or a range of years, and
// the reset that shows today's month ("mmmm", lower case, as the old reset wrote it) and year.

#include <QDate>
#include <QString>

class QComboBox;

namespace analysis {

QComboBox* caixa_meses(const char* nome, bool julho_minusculo = false);
// 2000..2150 in most windows, 2000..2500 in some.
QComboBox* caixa_anos(const char* nome, int primeiro = 2000, int ultimo = 2150);
void mostrar_mes(QComboBox* mes, const QDate& d);
void mostrar_ano(QComboBox* ano, const QDate& d);
// The date of the boxes' month word and year text (invalid when not understood).
QDate data_das_caixas(const QComboBox* mes, const QComboBox* ano);

} // namespace analysis
