#pragma once
// One expense (pagar) or one income (receber) as the entry windows type it in and write it: the
// required fields and their message, the ten columns in their fixed order, the statements that
// fill the boxes, and how the windows are dressed for each kind.

#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "shell/ledger.h"

#include <QString>
#include <QStringList>

namespace entries {

// An entry belongs to the pagar (expense) or the receber (income) ledger.
using shell::ledger;

// What the boxes of an entry window show. Dates are "dd/mm/yyyy", or empty when the field holds
// no date.
struct entry_fields {
    QString estatus;
    QString origem;
    QString nome; // fornecedor or cliente
    QString data;
    QString descricao;
    QString documento;
    QString informacoes;
    QString valor;
    QString vencimento;
    QString moeda;
    bool operator==(const entry_fields&) const = default;
};

using vb::trim_blanks;

// "Os seguintes dados estão em branco: " with one line per required field left blank (a field of
// blanks is blank), in the fixed order; empty when all five are filled.
QString blank_fields_message(const entry_fields& f);

// The kind a window writes, told by its action button: the caption, lower-cased, against the
// expense caption ("&inserir despesa", "&editar despesa"); anything else is an income.
ledger kind_of_caption(const QString& caption, const QString& expense_caption);

// The text stored for a free text column that may be blank: trimmed, and one blank behind.
QString with_trailing_blank(const QString& text);

// Sets the ten columns on the record set's new or current row, in their fixed order: estatus,
// origem, fornecedor/cliente, data, descricao, documento, informacoes, Valor, vencimento, moeda.
// Throws sql::error (and vb::overflow_error for an amount out of range).
void write_columns(sql::recordset& rs, ledger k, const entry_fields& f);
// The same order, with informacoes, Valor and vencimento written as given (an instalment's).
void write_row(sql::recordset& rs, ledger k, const entry_fields& f, const QString& informacoes,
               const QString& valor, const QString& vencimento);

// "SELECT * FROM pagar where(código like '12')", the key compared as text.
QString entry_statement(ledger k, const QString& codigo);

// A row as the edit window shows it: dates in "dd/mm/yyyy", the amount in "##,##0.00". A column
// that cannot be read is not ok: its field keeps what it had.
struct read_field {
    bool ok = false;
    QString text;
};
struct entry_row {
    read_field estatus, origem, nome, data, descricao, documento, informacoes, valor, vencimento, moeda;
};
entry_row read_columns(const sql::recordset& rs, ledger k);

// The statements that fill the boxes, with the column they read.
struct list_source {
    QString statement;
    QString column;
};
list_source banks_for_adding();  // "select * from banco order by [banco]"
list_source banks_for_editing(); // "select * from banco order by banco"
list_source suppliers();
list_source clients();
list_source cost_centres();
list_source profit_centres();

// conectarbanco, the statement read-only, every row's column. Throws sql::error.
QStringList read_names(const list_source& s);

// How the main window dresses an entry window: its caption, the picture shown and the caption of
// the action button.
struct dress {
    QString titulo;
    bool despesa;
    QString botao;
};
dress dress_for_adding(ledger k);
dress dress_for_editing(ledger k);

// The message of the continuing mode.
QString saved_message(ledger k);

} // namespace entries
