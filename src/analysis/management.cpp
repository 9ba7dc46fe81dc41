#include "analysis/management.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"
#include "store/names.h"

namespace analysis {

using shell::ledger;

bool datas_faltando(const pedido_gerencia& p) {
    return p.filtro == filtro_gerencia::data && (!p.data1.isValid() || !p.data2.isValid());
}

std::optional<consulta_gerencia> consulta_de(const pedido_gerencia& p) {
    if (p.filtro == filtro_gerencia::nenhum || datas_faltando(p)) return std::nullopt;
    const bool pagar = p.tabela == ledger::pagar;
    const QString de =
        pagar ? QStringLiteral("select * from pagar ") : QStringLiteral("select * from receber ");
    // the account and date messages of income keep the expense wording
    const QString na_conta = QStringLiteral("Não há nenhum despesa cadastrada na conta ");
    switch (p.filtro) {
    case filtro_gerencia::todas:
        return consulta_gerencia{
            de + QStringLiteral("order by data ") + p.ordem,
            pagar ? QStringLiteral("Não há nenhuma conta cadastrada em contas a pagar!")
                  : QStringLiteral("Não há nenhuma receita cadastrada em contas a receber!")};
    case filtro_gerencia::contato:
        return consulta_gerencia{de +
                                     (pagar ? QStringLiteral("where fornecedor like ('")
                                            : QStringLiteral("where cliente like ('")) +
                                     sql::value(p.texto) + QStringLiteral("') ") + p.ordem,
                                 (pagar
                                      ? QStringLiteral("Não há nenhum despesa cadastrada com o fornecedor ")
                                      : QStringLiteral("Não há nenhuma receita cadastrada com o cliente ")) +
                                     p.texto};
    case filtro_gerencia::estatus: {
        const QString palavra = p.concluido ? store::palavra::concluido : store::palavra::pendente;
        return consulta_gerencia{
            de + QStringLiteral("where estatus like ('%") + palavra + QStringLiteral("%') ") + p.ordem,
            (pagar ? QStringLiteral("Não há nenhuma despesa cadastrada com o estatus ")
                   : QStringLiteral("Não há nenhuma receita cadastrada com o estatus ")) +
                palavra};
    }
    case filtro_gerencia::origem:
        return consulta_gerencia{de + QStringLiteral("where origem like ('") + sql::value(p.texto) +
                                     QStringLiteral("') ") + p.ordem,
                                 na_conta + p.texto};
    case filtro_gerencia::data:
        return consulta_gerencia{de + QStringLiteral("WHERE Data BETWEEN '") + vb::ymd(p.data1) +
                                     QStringLiteral("' AND '") + vb::ymd(p.data2) + QLatin1Char('\'') +
                                     p.ordem,
                                 QStringLiteral("Não há nenhum despesa cadastrada entre a data ") +
                                     p.data1_texto + QStringLiteral(" e ") + p.data2_texto};
    case filtro_gerencia::nenhum:
        break;
    }
    return std::nullopt;
}

resultado_gerencia consultar_gerencia(const QString& sql) {
    resultado_gerencia out;
    sql::recordset rs;
    bool aberta = false;
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(sql, store::conexao);
        aberta = true;
    });
    if (!aberta) {
        out.falhou = true;
        return out;
    }
    using namespace store;
    const int i_data = rs.index_of(coluna::data);
    const int i_desc = rs.index_of(coluna::descricao);
    const int i_moeda = rs.index_of(coluna::moeda);
    const int i_valor = rs.index_of(coluna::valor);
    const auto campo = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
    out.linhas.reserve(std::size_t(rs.record_count()));
    for (rs.move_first(); !rs.eof(); rs.move_next()) {
        const QString valor = campo(i_valor);
        const auto v = valor_formatado(valor);
        out.linhas.push_back({shell::display_date(campo(i_data)), campo(i_desc),
                              campo(i_moeda) + QLatin1Char(' ') + (v ? vb::format_money(*v) : valor)});
        // every row sums, whatever its status
        out.tally.add(QString(), v, valor);
    }
    return out;
}

QString total_gerencia(const status_tally& t) {
    return QStringLiteral("Valor total R$ ") + t.texto_total();
}

} // namespace analysis
