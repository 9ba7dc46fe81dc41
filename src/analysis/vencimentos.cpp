#include "analysis/vencimentos.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"

namespace analysis {

textos_vencimento textos(tipo_vencimento tipo) {
    switch (tipo) {
    case tipo_vencimento::pagar:
        return {QStringLiteral("Vencimento do mês - Contas a pagar"),
                QStringLiteral("Vencimento do dia - Contas a pagar")};
    case tipo_vencimento::receber:
        return {QStringLiteral("Vencimento do mês - Contas a receber"),
                QStringLiteral("Vencimento do dia - Contas a receber")};
    case tipo_vencimento::compromisso:
        break;
    }
    return {QStringLiteral("Vencimento do mês - Compromissos"),
            QStringLiteral("Vencimento do dia - Compromissos")};
}

QString comando_vencimento(shell::ledger which, const QDate& hoje) {
    const QString tabela = which == shell::ledger::receber ? store::tabela::receber : store::tabela::pagar;
    return QStringLiteral("SELECT * FROM ") + tabela + QStringLiteral(" where(vencimento like '%") +
           sql::value(vb::format_date(hoje, QStringLiteral("yyyy/mm/"))) + QStringLiteral("%')");
}

vencimentos carregar_vencimentos(shell::ledger which, const QDate& hoje) {
    vencimentos v;
    // errors are ignored: the lists keep what was read
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(comando_vencimento(which, hoje), store::conexao, sql::keyset, sql::read_only);
        if (rs.eof()) return;
        rs.move_last();
        rs.move_first();
        v.mes = shell::load_rows(which, rs).rows.to_lists();
    });
    const QString hoje_ymd = vb::ymd(hoje);
    const QString formato = QStringLiteral("yyyy/mm/dd");
    constexpr int vencimento = 5;
    for (const QStringList& linha : v.mes)
        if (linha.size() > vencimento && vb::format_date_text(linha.at(vencimento), formato) == hoje_ymd)
            v.dia.push_back(linha);
    return v;
}

} // namespace analysis
