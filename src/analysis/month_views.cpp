#include "analysis/month_views.h"

#include "analysis/period.h"
#include "platform/errors.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"
#include "store/names.h"

namespace analysis {

using shell::ledger;

const gemeo_mes& contas_por_mes() {
    static const gemeo_mes g{"frmpormes", QStringLiteral("Contas separadas por mês"), QStringLiteral("Data"),
                             QStringLiteral("/01/%')")};
    return g;
}

const gemeo_mes& vencimentos_por_mes() {
    static const gemeo_mes g{"frmvenpormes", QStringLiteral("Vencimentos por mês"),
                             QStringLiteral("Vencimento"), QStringLiteral("/01%')")};
    return g;
}

QString consulta_mes(const gemeo_mes& g, ledger tabela, const QString& ano, int mes) {
    const QString fim =
        mes == 1 ? g.padrao_janeiro : QLatin1Char('/') + dois_digitos(mes) + QStringLiteral("/%')");
    return QStringLiteral("Select * from ") +
           (tabela == ledger::pagar ? QStringLiteral("pagar") : QStringLiteral("receber")) +
           QStringLiteral(" where(") + g.campo + QStringLiteral(" like '%") + ano + fim;
}

QString caption_ano(ledger tabela, const QString& ano) {
    return (tabela == ledger::pagar
                ? QStringLiteral("Visualizando contas a pagar separadas por mês - ano de ")
                : QStringLiteral("Visualizando contas a receber separadas por mês - ano de ")) +
           ano;
}

mes_lido ler_mes(ledger tabela, const QString& consulta) {
    mes_lido out;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        using namespace store;
        const int i_cod = rs.index_of(coluna::codigo);
        const int i_data = rs.index_of(coluna::data);
        const int i_desc = rs.index_of(coluna::descricao);
        const int i_doc = rs.index_of(coluna::documento);
        const int i_parte = rs.index_of(tabela == ledger::pagar ? coluna::fornecedor : coluna::cliente);
        const int i_venc = rs.index_of(coluna::vencimento);
        const int i_valor = rs.index_of(coluna::valor);
        const int i_estatus = rs.index_of(coluna::estatus);
        const int i_origem = rs.index_of(coluna::origem);
        const int i_info = rs.index_of(coluna::informacoes);
        const auto campo = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
        out.linhas.reserve(std::size_t(rs.record_count()));
        for (rs.move_first(); !rs.eof(); rs.move_next()) {
            const QString valor = campo(i_valor);
            const auto v = valor_formatado(valor);
            const QString estatus = campo(i_estatus);
            out.linhas.push_back({campo(i_cod), shell::display_date(campo(i_data)), campo(i_desc),
                                  campo(i_doc), campo(i_parte), campo(i_venc),
                                  QStringLiteral("R$ ") + (v ? vb::format_money(*v) : valor), estatus,
                                  campo(i_origem), campo(i_info)});
            out.tally.add(estatus, v, valor);
        }
    });
    return out;
}

QString linha_mes(ledger tabela, const status_tally& t) {
    const bool pagar = tabela == ledger::pagar;
    return QString::number(t.n()) +
           (pagar ? QStringLiteral(" cadastros  -  Total de despesas: R$ ")
                  : QStringLiteral(" cadastros  -  Total de receitas: R$ ")) +
           t.texto_total() +
           (pagar ? QStringLiteral("  -  Total pago: R$ ") : QStringLiteral("  -  Total recebido: R$ ")) +
           t.texto(classe::concluido) + QStringLiteral("  -  Total pendente: R$ ") +
           t.texto(classe::pendente);
}

} // namespace analysis
