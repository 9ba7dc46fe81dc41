#pragma once
// The accounts due today that the alert window lists at start: the two statements and their rows,
// rendered as the ledger lists render them.

#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

namespace shell {

// "SELECT * FROM pagar where vencimento like '2026/11/23'" (receber alike). No status filter: a
// row settled today has its vencimento rewritten as "dd/mm/yyyy" and so falls out by itself.
QString due_statement(ledger which, const QDate& today);

struct due_rows {
    std::vector<QStringList> pagar, receber; // in the column order of lstpagar / lstreceber
    bool any() const { return !pagar.empty() || !receber.empty(); }
};

// The rows of one ledger due today, on the current connection. A statement that fails gives none.
std::vector<QStringList> load_due(ledger which, const QDate& today);

// Both ledgers: conectarbanco, then pagar, then receber.
due_rows load_due_rows(const QDate& today);

} // namespace shell
