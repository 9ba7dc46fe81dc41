#pragma once
// What the main window's actions on a row say and write: the questions, the removal and settle
// statements, the settle write itself and the notices of the bank list's view items. No widget: the window
// finds the selected row, asks, and reloads.

#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>

#include <functional>

namespace shell {

// The question before a removal, title "Remover". The movement list's wording differs
// ("item selecionados") and is kept.
inline const QString remove_title = QStringLiteral("Remover");
QString remove_question(ledger which);
// "Tem certeza que deseja remover Caixa (R$ 10,00) do banco de dados?"
QString remove_bank_question(const QString& banco, const QString& saldo);

// "Delete FROM pagar where(código like '12')", the same for receber and bancario.
QString delete_statement(ledger which, double codigo);
// "Delete FROM banco where (banco like 'Caixa')"
QString delete_bank_statement(const QString& banco);
// "SELECT * FROM pagar where(código like '12')", and receber.
QString entry_by_code(ledger which, double codigo);

// Connects, runs the removal and closes the connection. A failure is ignored: the next load
// shows the row as it stands.
void run_removal(const QString& statement);

// Settling: the question (title "Efetuar baixa") and the write.
inline const QString settle_title = QStringLiteral("Efetuar baixa");
QString settle_question(ledger which);
// Opens the entry for writing (optimistic), then asks through confirmar; on Yes writes "Concluído"
// and hoje as dd/mm/yyyy into vencimento. Each step runs with errors ignored, so a row that cannot
// be opened still asks. True when the row was written.
bool settle_entry(ledger which, double codigo, const QDate& hoje, const std::function<bool()>& confirmar);

// The order clause of the bank movements' period reports, set from the movement list's pop-up
// and kept apart from the ledger lists' order. Empty until an item sets it.
QString ordem_bancario();
void set_ordem_bancario(const QString& clause);

// The notices of the view items of the movement list (title "Aviso").
inline const QString view_notice_title = QStringLiteral("Aviso");
QString view_notice_year(const QDate& hoje);
QString view_notice_month(const QDate& hoje);

} // namespace shell
