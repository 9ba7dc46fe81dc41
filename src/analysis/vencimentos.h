#pragma once
// The accounts due this month and today (frmvencimento), without the window: the statement, the
// captions of each kind and the two lists' rows.

#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

namespace analysis {

enum class tipo_vencimento { pagar, receber, compromisso };

// The window's title, which lblmes repeats, and lbldia.
struct textos_vencimento {
    QString lblmes;
    QString lbldia;
};
textos_vencimento textos(tipo_vencimento tipo);

// "SELECT * FROM pagar where(vencimento like '%2026/11/%')" (receber alike): the year and month as
// a stored date holds them, so a row whose date was rewritten by its settling does not match.
QString comando_vencimento(shell::ledger which, const QDate& hoje);

struct vencimentos {
    std::vector<QStringList> mes; // in lstpagar's column order (lstreceber's for income)
    std::vector<QStringList> dia; // the rows of mes due today, again
};

// On the connection as it stands: no new connection is made. Any failure gives what was read.
vencimentos carregar_vencimentos(shell::ledger which, const QDate& hoje);

} // namespace analysis
