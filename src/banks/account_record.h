#pragma once
// One bank or cash account as its two windows write it: the checks, the columns, and on editing
// the choice between the stored opening balance and the amount typed.

#include <QString>

namespace banks {

// The message of the first field left blank, the amount before the name; empty when both hold
// something besides blanks.
QString account_fields_message(const QString& valor, const QString& nome);

// "SELECT * FROM banco where(banco like 'Itaú')"
QString account_statement(const QString& nome);

// informacoes: trimmed, and one blank behind.
QString info_column(const QString& txtinfo);

// The stored opening balance as the edit window shows it ("R$ 1.234,56"); text that is no amount
// is shown as it is.
QString opening_balance_text(const QString& saldo);

// What editing writes to saldo. The amount shown in the list (saldoselecionado) and the amount in
// the field are compared as currency values: unchanged keeps the opening balance (txtvalorini),
// changed makes the typed amount the new opening balance. Both through "##,##0.00". Throws
// vb::type_mismatch when either amount cannot be read.
QString saldo_to_write(const QString& saldoselecionado, const QString& txtvalor, const QString& txtvalorini);

} // namespace banks
