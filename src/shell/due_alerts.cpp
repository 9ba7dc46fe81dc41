#include "shell/due_alerts.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"

#include <exception>

namespace shell {

QString due_statement(ledger which, const QDate& today) {
    return QStringLiteral("SELECT * FROM ") + traits(which).tabela +
           QStringLiteral(" where vencimento like '") + sql::value(vb::ymd(today)) + QLatin1Char('\'');
}

std::vector<QStringList> load_due(ledger which, const QDate& today) {
    try {
        sql::recordset rs;
        rs.open(due_statement(which, today), store::conexao, sql::keyset, sql::read_only);
        return load_rows(which, rs).rows.to_lists();
    } catch (const std::exception&) {
        // errors are ignored: the list stays empty
        return {};
    }
}

due_rows load_due_rows(const QDate& today) {
    store::conectarbanco();
    due_rows d;
    d.pagar = load_due(ledger::pagar, today);
    d.receber = load_due(ledger::receber, today);
    return d;
}

} // namespace shell
