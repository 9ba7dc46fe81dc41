#pragma once
// The balance of a bank or cash account, worked out from its opening balance and every settled
// row of pagar, receber and bancario that names it; nothing of it is ever stored. Also the rows
// of the accounts list and the summary text written from them.

#include "platform/sql/connection.h"
#include "platform/text/vb_text.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace banks {

// A period over the column `data`, both ends as "yyyy/mm/dd" text. A first day after the last
// finds no rows: the bounds are taken as given.
struct period {
    QString de;
    QString ate;
};

// The five statements of one account, in the order they run: expenses, income, movements,
// transfers out, transfers in. Without a period they are the list's statements; with one, each
// also asks for `data` between the two days.
std::array<QString, 5> balance_statements(const QString& nome, const std::optional<period>& periodo = {});

// Indexes into balance_statements, and the order the accounts list runs them in.
enum statement_index {
    consulta_despesas = 0,
    consulta_receitas = 1,
    consulta_movimentos = 2,
    consulta_saida = 3,   // transfers out
    consulta_entrada = 4, // transfers in
};
inline constexpr std::array<int, 5> ordem_do_saldo = {consulta_despesas, consulta_receitas,
                                                      consulta_movimentos, consulta_saida, consulta_entrada};

// One row an account's statements found: which statement, its `Valor` as stored, and its
// `movimento` (the movements statement only).
struct statement_row {
    int statement = 0;
    QString valor;
    QString movimento;
};

// The walk every per-account figure shares: the statements of the account in the given order,
// each row handed to visit. A statement that fails is skipped and counted (the return value); with
// a period whose first day comes after the last, nothing runs.
int walk_account(const sql::connection_ptr& conn, const QString& nome, const std::optional<period>& periodo,
                 const std::array<int, 5>& ordem, const std::function<void(const statement_row&)>& visit);

// An amount as it enters a sum: the stored text through "##,##0.00" and read back, so every
// addend is rounded to the cent. Empty when the text is no amount.
std::optional<vb::currency> rounded_amount(const QString& stored);

// What the statements found for one account. `total` is the balance: the opening balance, less
// expenses, withdrawals and transfers out, plus income, deposits and transfers in.
struct account_balance {
    vb::currency inicial;
    vb::currency total;
    vb::currency despesas, receitas, depositos, retiradas, transferido, recebido;
    // Statements that could not be run (a name holding an apostrophe fails all five).
    int falhas = 0;
};

// Runs the five statements for the account on the connection. A statement that fails is
// skipped and the others still count; an amount that cannot be read adds nothing.
account_balance compute_balance(const sql::connection_ptr& conn, const QString& nome, const QString& saldo,
                                const std::optional<period>& periodo = {});

// "R$ " and the amount as the accounts list shows it ("R$ -5,00" for a negative one); a stored
// text that is no amount follows the prefix as it is.
QString list_amount(vb::currency v);
QString list_amount_text(const QString& stored);

// The rows of the accounts list (banco, current balance, informacoes, opening balance), in the
// table's order. With `atualizar` false the opening balance stands in for the current one.
// Connects first; a failure to read the accounts gives no rows. before_walk runs once the
// accounts are known and there is at least one, with their number; progress after each one.
struct account_rows_hooks {
    std::function<void(int contas)> before_walk;
    std::function<void(int feitas)> progress;
};
std::vector<QStringList> account_rows(bool atualizar, const account_rows_hooks& hooks = {});

// Whether the balances are worked out: the setting AtualizarSaldo, off only when numerically 0.
bool atualizar_saldo();

// The summary of the accounts beside the list, from the list's rows alone (columns 0 to 3).
QString resumo_caixa(const std::vector<QStringList>& rows);

} // namespace banks
