#include "analysis/consolidated_report.h"

#include "analysis/custom_report.h"
#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"
#include "store/names.h"

namespace analysis {

using shell::ledger;

ledger tabela_de(const pedido_consolidado& p) {
    switch (p.tipo) {
    case consolidado::centro_custo:
    case consolidado::fornecedor:
        return ledger::pagar;
    case consolidado::centro_lucro:
    case consolidado::cliente:
        return ledger::receber;
    case consolidado::pagamento:
        break;
    }
    return p.despesas ? ledger::pagar : ledger::receber;
}

QString consulta_consolidado(const pedido_consolidado& p) {
    const bool pagar = tabela_de(p) == ledger::pagar;
    QString prefixo;
    QString casa;
    switch (p.tipo) {
    case consolidado::centro_custo:
    case consolidado::centro_lucro:
        casa = QStringLiteral("' AND descricao like '");
        break;
    case consolidado::fornecedor:
        casa = QStringLiteral("' AND fornecedor like '");
        break;
    case consolidado::cliente:
        casa = QStringLiteral("' AND cliente like '");
        break;
    case consolidado::pagamento:
        casa = QStringLiteral("' AND pagamento like '");
        break;
    }
    prefixo = p.tipo == consolidado::pagamento
                  ? QStringLiteral("select * from ") +
                        (pagar ? QStringLiteral("pagar") : QStringLiteral("receber")) +
                        QStringLiteral(" WHERE ")
                  : (pagar ? QStringLiteral("Select * from pagar WHERE ")
                           : QStringLiteral("Select * from receber WHERE "));
    return prefixo + (p.data_cadastro ? QStringLiteral("data") : QStringLiteral("vencimento")) +
           QStringLiteral(" BETWEEN '") + vb::ymd(p.data1) + QStringLiteral("' AND '") + vb::ymd(p.data2) +
           casa + sql::value(p.valor) + QLatin1Char('\'');
}

QString tipo_consolidado(consolidado c) {
    switch (c) {
    case consolidado::centro_custo:
        return QStringLiteral("CENTRO DE CUSTO");
    case consolidado::centro_lucro:
        return QStringLiteral("CENTRO DE LUCRO");
    case consolidado::fornecedor:
        return QStringLiteral("FORNECEDOR - DESPESAS");
    case consolidado::cliente:
        return QStringLiteral("CLIENTE - RECEITAS");
    case consolidado::pagamento:
        break;
    }
    return QStringLiteral("FORMAS DE PAGAMENTO");
}

QString msg_selecao(consolidado c) {
    switch (c) {
    case consolidado::centro_custo:
        return QStringLiteral("O centro de custo deve ser selecionado!");
    case consolidado::centro_lucro:
        return QStringLiteral("O centro de lucro deve ser selecionado!");
    case consolidado::fornecedor:
        return QStringLiteral("O fornecedor deve ser selecionado!");
    case consolidado::cliente:
        return QStringLiteral("O cliente deve ser selecionado!");
    case consolidado::pagamento:
        break;
    }
    return QStringLiteral("A forma de pagamento deve ser selecionada!");
}

lista_lida ler_consolidado(const pedido_consolidado& p, const QString& consulta,
                           const std::function<void(long)>& antes, const std::function<void(long)>& a_cada) {
    const ledger t = tabela_de(p);
    if (p.tipo == consolidado::centro_custo || p.tipo == consolidado::centro_lucro)
        return ler_relatorio(t, consulta, antes, a_cada);
    lista_lida out;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        const long n = rs.record_count();
        if (n == 0) return;
        out.vazio = false;
        if (antes) antes(n);
        using namespace store;
        const int i_data = rs.index_of(coluna::data);
        const int i_desc = rs.index_of(coluna::descricao);
        const int i_pag = rs.index_of(store::coluna::pagamento);
        const int i_parte = rs.index_of(t == ledger::pagar ? coluna::fornecedor : coluna::cliente);
        const int i_venc = rs.index_of(coluna::vencimento);
        const int i_valor = rs.index_of(coluna::valor);
        const int i_estatus = rs.index_of(coluna::estatus);
        const int i_info = rs.index_of(coluna::informacoes);
        const auto campo = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
        const auto b = [](const QString& s) { return s + QLatin1Char(' '); };
        long i = 0;
        for (rs.move_first(); !rs.eof(); rs.move_next()) {
            if (a_cada) a_cada(++i);
            const QString valor = campo(i_valor);
            const auto v = valor_formatado(valor);
            const QString estatus = campo(i_estatus);
            out.linhas.push_back({b(shell::display_date(campo(i_data))), b(campo(i_desc)), b(campo(i_pag)),
                                  b(campo(i_parte)), b(shell::display_date(campo(i_venc))),
                                  b(QStringLiteral("R$ ") + (v ? vb::format_money(*v) : valor)), b(estatus),
                                  b(campo(i_info))});
            out.tally.add(estatus, v, valor);
        }
    });
    return out;
}

QString geral_consolidado(const pedido_consolidado& p, const status_tally& t, const QString& d1,
                          const QString& d2) {
    const bool pagar = tabela_de(p) == ledger::pagar;
    return QStringLiteral("Total de cadastros no período: ") + QString::number(t.n()) +
           QStringLiteral(" (entre ") + d1 + QStringLiteral(" e ") + d2 + QStringLiteral(")\r\n") +
           (pagar ? QStringLiteral("Total de despesas: R$ ") : QStringLiteral("Total de receitas: R$ ")) +
           t.texto_total() + QStringLiteral(" - Total pago: R$ ") + t.texto(classe::concluido) +
           QStringLiteral(" - Total pendente: R$ ") + t.texto(classe::pendente);
}

} // namespace analysis
