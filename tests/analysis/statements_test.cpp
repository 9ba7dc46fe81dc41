// The statements of the period summaries and of the filtered charts, as the program runs them on
// 23/11/2026 with the order clause and direction at their defaults.

#include "analysis/chart_filter.h"
#include "analysis/period_summary.h"
#include "analysis/register_summary.h"
#include "shell/list_actions.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"

using namespace Qt::Literals::StringLiterals;
using namespace analysis;

namespace {

class statements : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        set_ordem_entradas(QString());
        shell::set_ordem_bancario(QString());
    }
    const QDate hoje{2026, 11, 23};
};

} // namespace

// One line per member: its menu item and the statement it runs.
TEST_F(statements, every_member_joins_its_own_prefix_period_suffix_and_order) {
    QString out;
    for (const membro& m : membros())
        out += m.nome + u": "_s + consulta(m, hoje) + u"\n"_s;
    EXPECT_TRUE(support::matches_golden(u"analysis/period_statements.txt"_s, out));
}

TEST_F(statements, the_order_clause_is_shared_by_the_entries_and_kept_apart_for_the_bank) {
    store::save_setting(store::secao_config, u"Ordem"_s, u"DESC"_s);
    shell::set_ordem_bancario(u" Order by valor"_s);
    EXPECT_EQ(consulta(*achar_membro(u"mnudibancario"_s), hoje),
              u"SELECT * FROM bancario where (data like '2026/11/23') Order by valor DESC"_s);
    EXPECT_EQ(consulta(*achar_membro(u"mnudiapagar"_s), hoje),
              u"SELECT * FROM pagar where (data like '2026/11/23') order by Data DESC"_s);
    set_ordem_entradas(u" order by valor"_s);
    EXPECT_EQ(consulta(*achar_membro(u"mnuretdialucros"_s), hoje),
              u"SELECT * FROM receber where data like '2026/11/23' order by valor DESC"_s);
    // the month income chart item runs the month income statistics
    EXPECT_EQ(membro_do_menu(u"mnugralucrosmes"_s)->nome, u"mnuestmeslucros"_s);
    EXPECT_EQ(membro_do_menu(u"mnugradespmes"_s)->nome, u"mnugradespmes"_s);
}

TEST_F(statements, chart_panels_wrap_every_word_and_check_both_dates) {
    criterios_grafico nada;
    EXPECT_EQ(
        *consulta_grafico(painel_grafico::pagar, nada),
        u"Select * from pagar  WHERE estatus like ('%%') AND fornecedor like('%%') AND origem like('%%') AND "
        "descricao like('%%')  "_s);
    EXPECT_EQ(
        *consulta_grafico(painel_grafico::bancario, nada),
        u"Select * from bancario  WHERE estatus like ('%%') AND origem like('%%') AND destino like('%%') "_s);
    EXPECT_EQ(*consulta_grafico(painel_grafico::despesas_receitas, nada),
              u"Select * from pagar  WHERE estatus like ('%%') AND origem like('%%')"_s);

    criterios_grafico tudo;
    tudo.data = true;
    tudo.data1 = QDate(2026, 1, 1);
    tudo.data2 = QDate(2026, 11, 30);
    tudo.estatus = true;
    tudo.pendente = false;
    tudo.contato = tudo.origem = tudo.descricao = true;
    tudo.contato_texto = u"Maria"_s;
    tudo.origem_texto = u"Caixa"_s;
    tudo.descricao_texto = u"Aluguel"_s;
    EXPECT_EQ(*consulta_grafico(painel_grafico::receber, tudo),
              u"Select * from receber WHERE Data BETWEEN '2026/01/01' AND '2026/11/30'  AND estatus like "
              "('%Concluído%') AND cliente like('%Maria%') AND origem like('%Caixa%') AND descricao "
              "like('%Aluguel%')  "_s);
    EXPECT_EQ(*consulta_receitas(tudo),
              u"Select * from receber WHERE Data BETWEEN '2026/01/01' AND "
              "'2026/11/30'  AND estatus like ('%Concluído%') AND origem like('%Caixa%')"_s);
    // a text only counts while its box is ticked
    tudo.origem = false;
    EXPECT_TRUE(consulta_grafico(painel_grafico::pagar, tudo)->contains(u"origem like('%%')"_s));

    criterios_grafico meia_data;
    meia_data.data = true;
    meia_data.data1 = QDate(2026, 1, 1);
    EXPECT_FALSE(consulta_grafico(painel_grafico::pagar, meia_data));
    EXPECT_FALSE(consulta_receitas(meia_data));
}

TEST_F(statements, expenses_against_income_drops_the_cents_in_the_columns_only) {
    const figuras_dr f = figuras_de(despesas_receitas{40.75, 100.5});
    EXPECT_EQ(f.lbltotalcad, u"R$ 141,25"_s);
    EXPECT_EQ(f.lbltotal, u"R$ 100,50"_s);
    EXPECT_EQ(f.lbltotalpg, u"R$ 40,75"_s);
    EXPECT_EQ(f.lblqtdpg, u"R$ 59,75"_s);
    EXPECT_EQ(f.colunas, (std::array<double, 3>{141, 40, 100}));
    EXPECT_EQ(figuras_de(despesas_receitas{100, 40}).lblqtdpg, u"-R$ 60,00"_s);
}

TEST_F(statements, register_details_name_their_row_through_the_value_helper) {
    const estatistica_cadastro* e = achar_estatistica_cadastro(u"mnuestforn"_s);
    ASSERT_TRUE(e);
    EXPECT_EQ(consulta_detalhe(*e, u"Papelaria Central"_s),
              u"select * from pagar where (fornecedor like 'Papelaria Central')"_s);
    EXPECT_EQ(consulta_detalhe(*achar_estatistica_cadastro(u"mnuestplanoreceber"_s), u"Vendas"_s),
              u"select * from receber where (descricao like 'Vendas')"_s);
    // an apostrophe is marked so the statement fails instead of changing shape
    EXPECT_NE(consulta_detalhe(*e, u"D'Ávila"_s), u"select * from pagar where (fornecedor like 'D'Ávila')"_s);
}
