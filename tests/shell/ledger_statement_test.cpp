#include "shell/ledger_statement.h"

#include "platform/sql/jet_dialect.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

shell::entry_filters pagar_defaults() {
    return {
        u"Pendentes e Concluídos"_s,     u"Todos os dados"_s,       u"Data Cadastro"_s, u"Todos os bancos"_s,
        u"Todos os centros de custos"_s, u"Todos os fornecedores"_s};
}

shell::entry_filters receber_defaults() {
    return {u"Pendentes e Concluídos"_s,     u"Todos os dados"_s,   u"Data Cadastro"_s, u"Todos os bancos"_s,
            u"Todos os centros de lucros"_s, u"Todos os clientes"_s};
}

struct entry_case {
    QDate hoje;
    QString filtro;
    QString tipo;
    QString baseado;
    QString sqlatual;
    QString consulta;
};

} // namespace

TEST(ledger_statement, every_period_filter_of_pagar_builds_its_text) {
    const QDate jan31(2026, 1, 31), mar15(2026, 3, 15), oct31(2026, 10, 31);
    const QString dc = u"Data Cadastro"_s, venc = u"Vencimento"_s;
    const QString ambos = u"Pendentes e Concluídos"_s, pend = u"Pendentes"_s, conc = u"Concluídos"_s;
    const std::vector<entry_case> cases = {
        {mar15, u"Todos os dados"_s, ambos, dc, u"SELECT * FROM pagar where (estatus like '%%')"_s,
         u"SELECT * FROM pagar where (estatus like '%%') order by data"_s},
        {mar15, u"Todos os dados"_s, pend, venc, u"SELECT * FROM pagar where (estatus like 'Pendente') "_s,
         u"SELECT * FROM pagar where (estatus like 'Pendente')  order by vencimento"_s},
        {mar15, u"Todos os dados"_s, conc, dc, u"SELECT * FROM pagar where (estatus like 'Concluído') "_s,
         u"SELECT * FROM pagar where (estatus like 'Concluído')  order by data"_s},
        {jan31, u"Apenas deste ano"_s, conc, venc,
         u"SELECT * FROM pagar where(vencimento like '%2026/%')  and (estatus like 'Concluído') "_s,
         u"SELECT * FROM pagar where(vencimento like '%2026/%')  and (estatus like 'Concluído')  order by vencimento"_s},
        {mar15, u"Apenas deste mês"_s, pend, dc,
         u"SELECT * FROM pagar where(data like '%/03/%' AND data like '%2026/%')  and (estatus like 'Pendente') "_s,
         u"SELECT * FROM pagar where(data like '%/03/%' AND data like '%2026/%')  and (estatus like 'Pendente')  order by data"_s},
        {oct31, u"Apenas do dia"_s, ambos, dc, u"SELECT * FROM pagar where(data like '2026/10/31') "_s,
         u"SELECT * FROM pagar where(data like '2026/10/31')  order by data"_s},
        {jan31, u"Ultimos 7 dias"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/01/24' AND '2026/01/31' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/01/24' AND '2026/01/31'  order by data"_s},
        {mar15, u"Ultimos 15 dias"_s, pend, venc,
         u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/02/28' AND '2026/03/15'  and (estatus like 'Pendente') "_s,
         u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/02/28' AND '2026/03/15'  and (estatus like 'Pendente')  order by vencimento"_s},
        // the later day first in the four forward-looking forms
        {jan31, u"Próximos 7 dias"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/02/07' AND '2026/01/31' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/02/07' AND '2026/01/31'  order by data"_s},
        {oct31, u"Próximos 15 dias"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/11/15' AND '2026/10/31' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/11/15' AND '2026/10/31'  order by data"_s},
        // the 31st of February is the 3rd of March
        {mar15, u"Mês anterior"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01'  order by data"_s},
        {jan31, u"Mês anterior"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2025/12/31' AND '2025/12/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2025/12/31' AND '2025/12/01'  order by data"_s},
        {oct31, u"Mês anterior"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/10/01' AND '2026/09/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/10/01' AND '2026/09/01'  order by data"_s},
        {QDate(2028, 3, 10), u"Mês anterior"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2028/03/02' AND '2028/02/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2028/03/02' AND '2028/02/01'  order by data"_s},
        {jan31, u"Próximo mês"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01'  order by data"_s},
        {oct31, u"Próximo mês"_s, conc, venc,
         u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/12/01' AND '2026/11/01'  and (estatus like 'Concluído') "_s,
         u"SELECT * FROM pagar WHERE vencimento BETWEEN '2026/12/01' AND '2026/11/01'  and (estatus like 'Concluído')  order by vencimento"_s},
        {QDate(2026, 12, 10), u"Próximo mês"_s, ambos, dc,
         u"SELECT * FROM pagar WHERE data BETWEEN '2027/01/31' AND '2027/01/01' "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2027/01/31' AND '2027/01/01'  order by data"_s},
        // boxes compare in lower case
        {mar15, u"MÊS ANTERIOR"_s, u"PENDENTES"_s, u"data cadastro"_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01'  and (estatus like 'Pendente') "_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '2026/03/03' AND '2026/02/01'  and (estatus like 'Pendente')  order by data"_s},
        // a status no rule knows filters the settled rows under a date filter
        {mar15, u"Apenas do dia"_s, u"Atrasados"_s, u"Qualquer"_s,
         u"SELECT * FROM pagar where(vencimento like '2026/03/15')  and (estatus like 'Concluído') "_s,
         u"SELECT * FROM pagar where(vencimento like '2026/03/15')  and (estatus like 'Concluído')  order by vencimento"_s},
    };
    for (const entry_case& c : cases) {
        shell::entry_filters f = pagar_defaults();
        f.filtro = c.filtro;
        f.tipo = c.tipo;
        f.baseado = c.baseado;
        const auto s = shell::entry_statement(ledger::pagar, f, c.hoje, u"anterior"_s);
        EXPECT_EQ(s.sqlatual, c.sqlatual) << qPrintable(c.filtro) << " " << qPrintable(c.hoje.toString());
        EXPECT_EQ(s.consulta, c.consulta) << qPrintable(c.filtro) << " " << qPrintable(c.hoje.toString());
    }
}

TEST(ledger_statement, centre_contact_and_bank_follow_the_base_in_that_order) {
    shell::entry_filters f = pagar_defaults();
    f.tipo = u"Pendentes"_s;
    f.banco = u"Itaú"_s;
    f.centro = u"Aluguel"_s;
    f.contato = u"Imobiliária Central"_s;
    // "Todos os dados" with a status still takes resto
    auto s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.sqlatual,
              u"SELECT * FROM pagar where (estatus like 'Pendente')  and (descricao like 'Aluguel')  and "
              u"(fornecedor like 'Imobiliária Central')  and (origem like 'Itaú') "_s);
    EXPECT_EQ(s.consulta, s.sqlatual + u" order by data"_s);

    f.filtro = u"Apenas deste ano"_s;
    f.tipo = u"Pendentes e Concluídos"_s;
    s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.sqlatual,
              u"SELECT * FROM pagar where(data like '%2026/%')  and (descricao like 'Aluguel')  and "
              u"(fornecedor like 'Imobiliária Central')  and (origem like 'Itaú') "_s);
}

TEST(ledger_statement, receber_is_the_twin_with_its_own_words) {
    shell::entry_filters f = receber_defaults();
    auto s = shell::entry_statement(ledger::receber, f, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.consulta, u"SELECT * FROM receber where (estatus like '%%') order by data"_s);

    f.contato = u"Maria Souza"_s;
    // pagar's "all" words are an ordinary name on the receber side
    f.centro = u"Todos os centros de custos"_s;
    f.banco = u"TODOS OS BANCOS"_s;
    s = shell::entry_statement(ledger::receber, f, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.sqlatual,
              u"SELECT * FROM receber where (estatus like '%%') and (descricao like 'Todos os centros de "
              u"custos')  and (cliente like 'Maria Souza') "_s);

    shell::entry_filters p = pagar_defaults();
    p.contato = u"Todos os clientes"_s;
    s = shell::entry_statement(ledger::pagar, p, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.sqlatual,
              u"SELECT * FROM pagar where (estatus like '%%') and (fornecedor like 'Todos os clientes') "_s);
}

TEST(ledger_statement, a_text_no_rule_knows_keeps_the_previous_statement) {
    const QString antes = u"SELECT * FROM pagar where (estatus like 'Pendente') "_s;
    shell::entry_filters f = pagar_defaults();
    f.filtro = u"Semana que vem"_s;
    auto s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), antes);
    EXPECT_EQ(s.sqlatual, antes);
    EXPECT_EQ(s.consulta, u"SELECT * FROM pagar where (estatus like 'Pendente')  order by data"_s);

    // under "Todos os dados" an unknown status matches no statement either; the order follows the
    // current date column
    f = pagar_defaults();
    f.tipo = u"Atrasados"_s;
    f.baseado = u"Vencimento"_s;
    s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), antes);
    EXPECT_EQ(s.sqlatual, antes);
    EXPECT_EQ(s.consulta, u"SELECT * FROM pagar where (estatus like 'Pendente')  order by vencimento"_s);

    // with nothing before, the text to open is only the order
    s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), {});
    EXPECT_EQ(s.consulta, u"order by vencimento"_s);
}

TEST(ledger_statement, box_values_enter_through_the_value_helper) {
    shell::entry_filters f = pagar_defaults();
    f.banco = u"Banco D'Ávila"_s;
    const auto s = shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), {});
    EXPECT_TRUE(sql::has_poisoned_value(s.consulta));
    EXPECT_EQ(
        sql::without_marks(s.consulta),
        u"SELECT * FROM pagar where (estatus like '%%') and (origem like 'Banco D'Ávila')  order by data"_s);
}

namespace {

struct movement_case {
    QDate hoje;
    QString filtro;
    QString tipo;
    QString organizar;
    bool ascendente;
    QString expected;
};

} // namespace

TEST(ledger_statement, every_filter_of_the_movements_builds_its_text) {
    const QDate mar15(2026, 3, 15);
    const std::vector<movement_case> cases = {
        {mar15, u"Todos os dados"_s, u"Todos os dados"_s, u"Data de cadastro"_s, true,
         u"Select * from bancario order by data ASC"_s},
        // without a date filter the kind boxes show what they say
        {mar15, u"Todos os dados"_s, u"Retiradas"_s, u"Valor"_s, false,
         u"Select * from bancario WHERE (movimento like 'Retirada') order by valor DESC"_s},
        {mar15, u"Todos os dados"_s, u"Depósitos"_s, u"Conta origem"_s, true,
         u"Select * from bancario WHERE (movimento like 'Depósito') order by origem ASC"_s},
        {mar15, u"todos os dados"_s, u"Transferências"_s, u"Conta destino"_s, true,
         u"Select * from bancario WHERE (movimento like 'Transferência entre contas') order by destino ASC"_s},
        // under a date filter "Retiradas" and "Depósitos" are crossed
        {mar15, u"Apenas deste ano"_s, u"Retiradas"_s, u"Estatus"_s, false,
         u"SELECT * FROM bancario where(data like '%2026/%')  AND (movimento like 'Depósito') order by estatus DESC"_s},
        {mar15, u"Apenas deste mês"_s, u"Depósitos"_s, u"Tipo de movimento"_s, true,
         u"SELECT * FROM bancario where(Data like '%/03/%' AND data like '%2026/%')  AND (movimento like "
         u"'Retirada') "
         u"order by movimento ASC"_s},
        {mar15, u"Apenas do dia"_s, u"Todos os dados"_s, u"VALOR"_s, true,
         u"SELECT * FROM bancario where(Data like '2026/03/15') order by valor ASC"_s},
        {mar15, u"Ultimos 7 dias"_s, u"Transferências"_s, u"Data de cadastro"_s, true,
         u"SELECT * FROM bancario WHERE data BETWEEN '2026/03/08' AND '2026/03/15'  AND (movimento like "
         u"'Transferência entre contas') order by data ASC"_s},
        {QDate(2026, 1, 10), u"ULTIMOS 15 DIAS"_s, u"Todos os dados"_s, u"Data de cadastro"_s, false,
         u"SELECT * FROM bancario WHERE data BETWEEN '2025/12/26' AND '2026/01/10' order by data DESC"_s},
        // cbotipom alone is compared as it stands: a lower-case kind adds nothing under a date filter
        {mar15, u"Apenas deste ano"_s, u"retiradas"_s, u"Data de cadastro"_s, true,
         u"SELECT * FROM bancario where(data like '%2026/%') order by data ASC"_s},
        // and matches no statement without one
        {mar15, u"Todos os dados"_s, u"retiradas"_s, u"Data de cadastro"_s, true, u"anterior"_s},
        // the forward-looking filters belong to the entries only
        {mar15, u"Próximos 7 dias"_s, u"Todos os dados"_s, u"Data de cadastro"_s, true, u"anterior"_s},
    };
    for (const movement_case& c : cases) {
        const shell::movement_filters f{c.tipo, c.filtro, c.organizar, c.ascendente};
        const auto s = shell::movement_statement(f, c.hoje, u"anterior"_s);
        EXPECT_EQ(s.sqlatual, c.expected) << qPrintable(c.filtro) << " / " << qPrintable(c.tipo);
        EXPECT_EQ(s.consulta, s.sqlatual);
    }
}

TEST(ledger_statement, date_serial_carries_month_and_day_over) {
    EXPECT_EQ(shell::date_serial(2026, 0, 1), QDate(2025, 12, 1));
    EXPECT_EQ(shell::date_serial(2026, 13, 31), QDate(2027, 1, 31));
    EXPECT_EQ(shell::date_serial(2026, 2, 31), QDate(2026, 3, 3));
    EXPECT_EQ(shell::date_serial(2026, -11, 1), QDate(2025, 1, 1));
    EXPECT_EQ(shell::date_serial(2026, -12, 15), QDate(2024, 12, 15));
    EXPECT_EQ(shell::date_serial(2026, 25, 1), QDate(2028, 1, 1));
}

TEST(ledger_statement, distinct_boxes_and_header_orders) {
    const auto p = shell::distinct_boxes(ledger::pagar);
    EXPECT_EQ(p[0].statement, u"SELECT DISTINCT descricao FROM pagar order by descricao ASC"_s);
    EXPECT_EQ(p[0].first, u"Todos os centros de custos"_s);
    EXPECT_EQ(p[1].statement, u"SELECT DISTINCT fornecedor FROM pagar order by fornecedor ASC"_s);
    EXPECT_EQ(p[1].first, u"Todos os fornecedores"_s);
    EXPECT_EQ(p[2].statement, u"SELECT DISTINCT origem FROM pagar order by origem ASC"_s);
    EXPECT_EQ(p[2].first, u"Todos os bancos"_s);
    const auto r = shell::distinct_boxes(ledger::receber);
    EXPECT_EQ(r[0].statement, u"SELECT DISTINCT descricao FROM receber order by descricao ASC"_s);
    EXPECT_EQ(r[0].first, u"Todos os centros de lucros"_s);
    EXPECT_EQ(r[1].statement, u"SELECT DISTINCT cliente FROM receber order by cliente ASC"_s);
    EXPECT_EQ(r[1].column, u"cliente"_s);
    EXPECT_EQ(r[1].first, u"Todos os clientes"_s);
    EXPECT_EQ(r[2].statement, u"SELECT DISTINCT origem FROM receber order by origem ASC"_s);

    EXPECT_EQ(shell::header_order(ledger::pagar, 1, true), u" order by data asc"_s);
    EXPECT_EQ(shell::header_order(ledger::pagar, 4, false), u" order by fornecedor desc"_s);
    EXPECT_EQ(shell::header_order(ledger::receber, 4, true), u" order by cliente asc"_s);
    EXPECT_EQ(shell::header_order(ledger::receber, 6, false), u" order by valor desc"_s);
    EXPECT_EQ(shell::header_order(ledger::pagar, 9, true), u" order by informacoes asc"_s);
    EXPECT_FALSE(shell::header_order(ledger::pagar, 0, true));
    EXPECT_FALSE(shell::header_order(ledger::pagar, 10, true));
    EXPECT_FALSE(shell::header_order(ledger::pagar, -1, true));
}
