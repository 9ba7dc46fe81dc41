#include "shell/ledger_load.h"

#include "shell/filter_state.h"
#include "shell/ledger_statement.h"
#include "store/conexao.h"
#include "support/fixture.h"

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

class ledger_load : public support::fixture {
protected:
    void add_pagar(const QString& estatus, const QString& data, const QString& valor,
                   const QString& vencimento, const QString& documento = u"' '"_s,
                   const QString& informacoes = u"' '"_s, const QString& moeda = u"R$"_s) {
        exec(u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, "
             u"Valor, "
             u"vencimento, moeda) VALUES ('"_s +
             estatus + u"', 'Itaú', 'Papelaria Central', '"_s + data + u"', 'Material de escritório', "_s +
             documento + u", "_s + informacoes + u", '"_s + valor + u"', '"_s + vencimento + u"', '"_s +
             moeda + u"')"_s);
    }
    void add_movimento(const QString& movimento, const QString& data, const QString& valor,
                       const QString& destino = u" - "_s) {
        exec(u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
             u"('Concluído', 'Itaú', '"_s +
             destino + u"', '"_s + data + u"', '"_s + movimento + u"', 'Nota ', '"_s + valor + u"')"_s);
    }
    shell::ledger_view load_pagar(const shell::entry_filters& f, const QDate& hoje) {
        return shell::load_ledger(ledger::pagar, shell::entry_statement(ledger::pagar, f, hoje, {}).consulta);
    }
};

} // namespace

TEST_F(ledger_load, pagar_rows_totals_and_label) {
    add_pagar(u"Pendente"_s, u"2026/11/02"_s, u"1.234,56"_s, u"2026/11/30"_s, u"'NF 123 '"_s);
    // settled rows hold the settling day as dd/mm/yyyy
    add_pagar(u"Concluído"_s, u"2026/11/03"_s, u"10,005"_s, u"16/11/2026"_s, u"' '"_s, u"' '"_s, u"$"_s);
    add_pagar(u"Concluído"_s, u"2026/11/04"_s, u"10,005"_s, u"17/11/2026"_s);
    add_pagar(u"Pendente"_s, u"2026/11/05"_s, u"abc"_s, u"2026/12/01"_s);
    add_pagar(u"Pendente"_s, u"2026/11/06"_s, u"10,005"_s, u"2026/12/02"_s, u"NULL"_s, u"NULL"_s);

    int walks = 0;
    const auto v =
        shell::load_ledger(ledger::pagar,
                           shell::entry_statement(ledger::pagar, shell::default_entry_filters(ledger::pagar),
                                                  clock_.now().date(), {})
                               .consulta,
                           [&] { ++walks; });
    EXPECT_EQ(walks, 1);
    ASSERT_EQ(v.rows.size(), 5u);
    EXPECT_EQ(v.rows[0], (QStringList{u"1"_s, u"02/11/2026"_s, u"Material de escritório"_s, u"NF 123  "_s,
                                      u"Papelaria Central"_s, u"30/11/2026"_s, u"R$ 1.234,56"_s,
                                      u"Pendente"_s, u"Itaú"_s, u"  "_s}));
    EXPECT_EQ(v.rows[1][5], u"16/11/2026"_s);
    EXPECT_EQ(v.rows[1][6], u"$ 10,01"_s);
    // an amount that cannot be read shows as stored and adds nothing
    EXPECT_EQ(v.rows[3][6], u"R$ abc"_s);
    // a null document or note still shows the appended blank
    EXPECT_EQ(v.rows[4][3], u" "_s);
    EXPECT_EQ(v.rows[4][9], u" "_s);

    // each addend is rounded to cents before the sum: 3 x 10,01, not 30,015
    EXPECT_EQ(vb::format_money(v.total), u"1.264,59"_s);
    EXPECT_EQ(vb::format_money(v.pago), u"20,02"_s);
    EXPECT_EQ(vb::format_money(v.pendente), u"1.244,57"_s);
    EXPECT_EQ(v.label, u"5 cadastros  -  Total de despesas: R$ 1.264,59  -  Total pago: R$ 20,02  -  Total "
                       u"pendente: R$ 1.244,57"_s);
}

TEST_F(ledger_load, receber_label_uses_its_own_words) {
    exec(u"INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, informacoes, Valor, "
         u"vencimento, moeda) VALUES ('Concluído', 'Caixa', 'Maria Souza', '2026/11/10', 'Vendas', ' ', ' ', "
         u"'2.500,00', '20/11/2026', 'R$')"_s);
    exec(u"INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, informacoes, Valor, "
         u"vencimento, moeda) VALUES ('Pendente', 'Caixa', 'João Lima', '2026/11/11', 'Vendas', ' ', ' ', "
         u"'99,90', '2026/12/11', 'R$')"_s);
    const auto v = shell::load_ledger(ledger::receber,
                                      shell::entry_statement(ledger::receber,
                                                             shell::default_entry_filters(ledger::receber),
                                                             clock_.now().date(), {})
                                          .consulta);
    ASSERT_EQ(v.rows.size(), 2u);
    EXPECT_EQ(v.rows[0][4], u"Maria Souza"_s);
    EXPECT_EQ(v.rows[0][5], u"20/11/2026"_s);
    EXPECT_EQ(v.label,
              u"2 cadastrados  -  Total de lucros: R$ 2.599,90  -  Total recebido: R$ 2.500,00  -  Total "
              u"pendente: R$ 99,90"_s);
}

TEST_F(ledger_load, movements_count_and_sum_by_kind) {
    add_movimento(u"Depósito"_s, u"2026/11/01"_s, u"100,00"_s);
    add_movimento(u"depósito"_s, u"2026/11/02"_s, u"50,00"_s);
    add_movimento(u"Retirada"_s, u"2026/11/03"_s, u"30,00"_s);
    add_movimento(u"Transferência entre contas"_s, u"2026/11/04"_s, u"1.020,00"_s, u"Caixa"_s);
    add_movimento(u"Estorno"_s, u"2026/11/05"_s, u"5,00"_s);
    const auto v = shell::load_ledger(
        ledger::bancario,
        shell::movement_statement(shell::default_movement_filters(), clock_.now().date(), {}).consulta);
    ASSERT_EQ(v.rows.size(), 5u);
    EXPECT_EQ(v.rows[0], (QStringList{u"1"_s, u"01/11/2026"_s, u"Depósito"_s, u"Itaú"_s, u" - "_s,
                                      u"R$ 100,00"_s, u"Concluído"_s, u"Nota "_s}));
    EXPECT_EQ(v.rows[3][4], u"Caixa"_s);
    EXPECT_EQ(v.label,
              u"Depósitos: R$ 150,00 (2 cad.) - Retiradas: R$ 30,00 (1 cad.) - Transferência: R$ 1.025,00 "
              u"(2 cad.)"_s);
}

TEST_F(ledger_load, empty_results_give_the_zero_labels_without_waiting) {
    int walks = 0;
    const auto count = [&] { ++walks; };
    for (const ledger which : shell::all_ledgers) {
        const auto v = shell::load_ledger(which, u"SELECT * FROM "_s + shell::traits(which).tabela, count);
        EXPECT_TRUE(v.rows.empty());
        EXPECT_EQ(v.label, shell::empty_label(which));
    }
    EXPECT_EQ(walks, 0);
}

TEST_F(ledger_load, an_apostrophe_in_a_box_fails_quietly) {
    add_pagar(u"Pendente"_s, u"2026/11/02"_s, u"10,00"_s, u"2026/11/30"_s);
    shell::entry_filters f = shell::default_entry_filters(ledger::pagar);
    f.banco = u"Banco D'Ávila"_s;
    shell::ledger_view v;
    EXPECT_NO_THROW(v = load_pagar(f, clock_.now().date()));
    EXPECT_TRUE(v.rows.empty());
    EXPECT_EQ(v.label, shell::empty_label(ledger::pagar));
    EXPECT_TRUE(prompts_.records().empty());
    // the same text without the apostrophe is an ordinary filter
    f.banco = u"Itaú"_s;
    EXPECT_EQ(load_pagar(f, clock_.now().date()).rows.size(), 1u);
}

TEST_F(ledger_load, date_filters_on_the_stored_text) {
    // today is 2026/11/23
    add_pagar(u"Pendente"_s, u"2026/10/01"_s, u"1,00"_s, u"2026/11/23"_s);
    add_pagar(u"Concluído"_s, u"2026/10/31"_s, u"2,00"_s, u"23/11/2026"_s); // settled today
    add_pagar(u"Pendente"_s, u"2026/11/03"_s, u"3,00"_s, u"2026/12/03"_s);
    add_pagar(u"Pendente"_s, u"2026/12/01"_s, u"4,00"_s, u"2026/12/31"_s);
    add_pagar(u"Pendente"_s, u"2025/10/15"_s, u"5,00"_s, u"2025/11/15"_s);
    const QDate hoje = clock_.now().date();
    const auto codes = [&](const QString& filtro, const QString& baseado) {
        shell::entry_filters f = shell::default_entry_filters(ledger::pagar);
        f.filtro = filtro;
        f.baseado = baseado;
        QStringList out;
        const auto rows = load_pagar(f, hoje).rows;
        for (std::size_t r = 0; r < rows.size(); ++r)
            out << rows.text(r, 0);
        return out.join(QLatin1Char(','));
    };
    // "Mês anterior" in November runs from 2026/10/01 to the 31st of October
    EXPECT_EQ(codes(u"Mês anterior"_s, u"Data Cadastro"_s), u"1,2"_s);
    // "Próximo mês": its later bound comes first and still selects December
    EXPECT_EQ(codes(u"Próximo mês"_s, u"Data Cadastro"_s), u"4"_s);
    // a row settled today holds dd/mm/yyyy and escapes the day and the year by due date
    EXPECT_EQ(codes(u"Apenas do dia"_s, u"Vencimento"_s), u"1"_s);
    EXPECT_EQ(codes(u"Apenas deste ano"_s, u"Vencimento"_s), u"1,3,4"_s);
    EXPECT_EQ(codes(u"Apenas deste mês"_s, u"Data Cadastro"_s), u"3"_s);
    EXPECT_EQ(codes(u"Próximos 15 dias"_s, u"Data Cadastro"_s), u"4"_s);
    EXPECT_EQ(codes(u"Ultimos 7 dias"_s, u"Data Cadastro"_s), u""_s);
}

TEST(ledger_display_date, agrees_with_the_date_format_on_every_form) {
    const QStringList inputs = {
        u"2026/11/16"_s, u"16/11/2026"_s, u"2028/02/29"_s, u"29/02/2027"_s,       u"2026/02/31"_s,
        u"31/02/2026"_s, u"0999/01/01"_s, u"01/01/0999"_s, u"2026/1/5"_s,         u"5/1/2026"_s,
        u""_s,           u" "_s,          u"abc"_s,        u"2026/11/16 10:00"_s, u"2026-11-16"_s,
        u"99/99/9999"_s, u"2026/13/01"_s, u"20a6/11/16"_s,
    };
    for (const QString& s : inputs)
        EXPECT_EQ(shell::display_date(s), vb::format_date_text(s, u"dd/mm/yyyy"_s)) << qPrintable(s);
    EXPECT_EQ(shell::display_date(u"2026/11/16"_s), u"16/11/2026"_s);
}

TEST_F(ledger_load, boxes_offer_what_the_ledger_holds) {
    exec(
        u"INSERT INTO pagar (descricao, fornecedor, origem) VALUES ('Energia', 'Copel', 'Itaú'), ('Aluguel', "
        u"'Imobiliária D''Ávila', 'Caixa'), ('Energia', 'Copel', NULL)"_s);
    exec(u"INSERT INTO pcontapagar (descricao) VALUES ('Salários')"_s);
    const auto p = shell::load_boxes(ledger::pagar);
    EXPECT_EQ(p[0], (QStringList{u"Todos os centros de custos"_s, u"Aluguel"_s, u"Energia"_s}));
    EXPECT_EQ(p[1], (QStringList{u"Todos os fornecedores"_s, u"Copel"_s, u"Imobiliária D'Ávila"_s}));
    EXPECT_EQ(p[2], (QStringList{u"Todos os bancos"_s, u"Caixa"_s, u"Itaú"_s}));
    const auto r = shell::load_boxes(ledger::receber);
    EXPECT_EQ(r[0], QStringList{u"Todos os centros de lucros"_s});
    EXPECT_EQ(r[1], QStringList{u"Todos os clientes"_s});
    EXPECT_EQ(r[2], QStringList{u"Todos os bancos"_s});
}

TEST_F(ledger_load, totals_skip_what_would_overflow) {
    add_pagar(u"Pendente"_s, u"2026/11/02"_s, u"900.000.000.000.000,00"_s, u"2026/11/30"_s);
    add_pagar(u"Pendente"_s, u"2026/11/03"_s, u"900.000.000.000.000,00"_s, u"2026/11/30"_s);
    add_pagar(u"Concluído"_s, u"2026/11/04"_s, u"922.337.203.685.477,58"_s, u"2026/11/30"_s);
    shell::ledger_view v;
    EXPECT_NO_THROW(v = load_pagar(shell::default_entry_filters(ledger::pagar), clock_.now().date()));
    ASSERT_EQ(v.rows.size(), 3u);
    EXPECT_EQ(v.rows[2][6], u"R$ 922.337.203.685.477,58"_s);
    EXPECT_EQ(v.label,
              u"3 cadastros  -  Total de despesas: R$ 900.000.000.000.000,00  -  Total pago: R$ 0,00  -  "
              u"Total pendente: R$ 900.000.000.000.000,00"_s);
}

// A whole ledger is read in the table's order and put in the statement's; the sums follow the
// final order, which decides what a total at the edge of the range keeps.
TEST_F(ledger_load, rows_read_in_table_order_come_and_add_up_in_the_statements_order) {
    add_pagar(u"Pendente"_s, u"2026/11/03"_s, u"900.000.000.000.000,00"_s, u"2026/11/30"_s);
    add_pagar(u"Pendente"_s, u"2026/11/02"_s, u"800.000.000.000.000,00"_s, u"2026/12/30"_s);
    add_pagar(u"Concluído"_s, u"2026/11/02"_s, u"1,00"_s, u"2026/11/30"_s);
    add_pagar(u"Concluído"_s, u"2026/11/01"_s, u"2,00"_s, u"2026/10/30"_s);
    const struct {
        const char16_t* statement;
        const char16_t* engine_order;
    } cases[] = {
        {u"SELECT * FROM pagar where (estatus like '%%') order by data", u", rowid"},
        {u"SELECT * FROM pagar where (estatus like '%%') order by vencimento desc", u", rowid desc"},
    };
    for (const auto& c : cases) {
        const QString s = QString::fromUtf16(c.statement);
        const shell::ledger_view v = shell::load_ledger(ledger::pagar, s);
        sql::recordset rs;
        rs.open(s + QString::fromUtf16(c.engine_order), store::conexao, sql::keyset, sql::read_only);
        const shell::ledger_view expected = shell::load_rows(ledger::pagar, rs);
        EXPECT_EQ(v.rows, expected.rows) << qPrintable(s);
        EXPECT_EQ(v.label, expected.label) << qPrintable(s);
    }
    EXPECT_EQ(shell::load_ledger(ledger::pagar, QString::fromUtf16(cases[0].statement)).label,
              u"4 cadastros  -  Total de despesas: R$ 800.000.000.000.003,00  -  Total pago: R$ 3,00  -  "
              u"Total pendente: R$ 800.000.000.000.000,00"_s);
}
