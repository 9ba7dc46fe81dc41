#include "analysis/chart_filter.h"

#include "platform/errors.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace analysis {

namespace {

QString estatus_palavra(const criterios_grafico& c) {
    if (!c.estatus) return {};
    return c.pendente ? store::palavra::pendente : store::palavra::concluido;
}

// The date clause, the joiner and the status fragment every panel begins with.
std::optional<QString> inicio(const QString& tabela, const criterios_grafico& c) {
    const auto datas = clausula_entre_datas(c.data, c.data1, c.data2);
    if (!datas) return std::nullopt;
    return QStringLiteral("Select * from ") + tabela + QLatin1Char(' ') + datas->clausula + datas->juncao +
           like_contem(QStringLiteral("estatus"), estatus_palavra(c), true);
}

// A statement that fails sums nothing.
double somar(const QString& consulta) {
    double total = 0;
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        const int i = rs.index_of(store::coluna::valor);
        for (; !rs.eof(); rs.move_next())
            if (const auto v = valor_formatado(i < 0 ? QString() : rs.text(i))) total += v->to_double();
    });
    return total;
}

std::optional<QString> com_conta(const QString& tabela, const criterios_grafico& c) {
    auto s = inicio(tabela, c);
    if (!s) return s;
    // this panel's statement ends at the bracket
    return *s + QStringLiteral("AND ") +
           like_contem(QStringLiteral("origem"), palavra_criterio(c.origem, c.origem_texto)).chopped(1);
}

} // namespace

std::optional<QString> consulta_grafico(painel_grafico p, const criterios_grafico& c) {
    switch (p) {
    case painel_grafico::pagar:
    case painel_grafico::receber: {
        const bool pagar = p == painel_grafico::pagar;
        auto s = inicio(pagar ? store::tabela::pagar : store::tabela::receber, c);
        if (!s) return s;
        return *s + QStringLiteral("AND ") +
               like_contem(pagar ? store::coluna::fornecedor : store::coluna::cliente,
                           palavra_criterio(c.contato, c.contato_texto)) +
               QStringLiteral("AND ") +
               like_contem(store::coluna::origem, palavra_criterio(c.origem, c.origem_texto)) +
               QStringLiteral("AND ") +
               like_contem(store::coluna::descricao, palavra_criterio(c.descricao, c.descricao_texto)) +
               QLatin1Char(' ');
    }
    case painel_grafico::bancario: {
        auto s = inicio(store::tabela::bancario, c);
        if (!s) return s;
        return *s + QStringLiteral("AND ") +
               like_contem(store::coluna::origem, palavra_criterio(c.origem, c.origem_texto)) +
               QStringLiteral("AND ") +
               like_contem(store::coluna::destino, palavra_criterio(c.destino, c.destino_texto));
    }
    case painel_grafico::despesas_receitas:
        return com_conta(store::tabela::pagar, c);
    }
    return std::nullopt;
}

std::optional<QString> consulta_receitas(const criterios_grafico& c) {
    return com_conta(store::tabela::receber, c);
}

palavras_grafico palavras_de(painel_grafico p) {
    const QString retonou = QStringLiteral("A pesquisa não retonou resultados");
    switch (p) {
    case painel_grafico::pagar:
        return {retonou, QStringLiteral("Gráfico de contas a pagar(personalizado)"), QString(),
                QStringLiteral("Gráfico de contas a pagar - despesas"), rotulos::nenhum};
    case painel_grafico::receber:
        return {retonou, QStringLiteral("Gráfico de contas a receber(personalizado)"), QString(),
                QStringLiteral("Gráfico de contas a receber - receitas"), rotulos::receitas};
    case painel_grafico::bancario:
        // the bank chart then takes the income statistics' caption, as it always did
        return {QStringLiteral("A pesquisa não retornou resultados"),
                QStringLiteral("Gráfico de movimento bancário(personalizado)"), titulo_estatistica_receber,
                QStringLiteral("Gráfico de movimento bancário"), rotulos::bancario};
    case painel_grafico::despesas_receitas:
        break;
    }
    return {QString(), QStringLiteral("Gráfico de despesas x receitas(personalizado)"), QString(),
            QStringLiteral("Gráfico de despesas x receitas"), rotulos::nenhum};
}

despesas_receitas somar_despesas_receitas(const QString& consulta_pagar, const QString& consulta_receber) {
    despesas_receitas d;
    platform::ignore_errors([] { store::conectarbanco(); });
    d.despesas = somar(consulta_pagar);
    d.receitas = somar(consulta_receber);
    return d;
}

figuras_dr figuras_de(const despesas_receitas& d) {
    const auto reais = [](double v) { return vb::format_money_prefixed(vb::currency::from_double(v)); };
    const auto celula = [](double v) { return vb::val(vb::cstr(v)); };
    figuras_dr f;
    f.lbltotalcad = reais(d.geral());
    f.lbltotal = reais(d.receitas);
    f.lbltotalpg = reais(d.despesas);
    f.lblqtdpg = reais(d.receitas - d.despesas);
    f.colunas = {celula(d.geral()), celula(d.despesas), celula(d.receitas)};
    return f;
}

} // namespace analysis
