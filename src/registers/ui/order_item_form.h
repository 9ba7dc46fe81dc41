#pragma once
// What the two entry windows of the service order share: labelled rows, the value field with its
// prefix, the Alt letters A and C, and the message of a blank field.

#include <QString>
#include <QWidget>

#include <initializer_list>
#include <utility>

class QLineEdit;
class QPushButton;
class money_field;

namespace registers {

// The window's layout: a label and a field per row, the two buttons below; field conduct and the
// shortcuts installed.
void montar_item_ordem(QWidget* janela, std::initializer_list<std::pair<const char*, QWidget*>> linhas,
                       QPushButton* adicionar, QPushButton* cancelar);
// The value field: the plain number while typed in, "R$ #,##0.00" once left.
money_field* campo_valor_ordem();
// "Erro", exclamation; the focus stays in the window.
void falta_campo(QWidget* janela, const QString& texto);

} // namespace registers
