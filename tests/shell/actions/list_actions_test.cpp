#include "shell/list_actions.h"
#include "store/conexao.h"
#include "support/fixture.h"

#include <gtest/gtest.h>

namespace {

using shell::ledger;

class list_actions : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        store::conectarbanco();
    }
    // The settle write with a scripted answer; counts the questions asked.
    bool settle(ledger which, double codigo, bool yes) {
        return shell::settle_entry(which, codigo, platform::today(), [&] {
            ++asked;
            return yes;
        });
    }
    int asked = 0;
};

TEST(list_action_texts, statements_keep_their_wording) {
    const struct {
        QString got, want;
    } statements[] = {
        {shell::delete_statement(ledger::pagar, 12), "Delete FROM pagar where(código like '12')"},
        {shell::delete_statement(ledger::receber, 7), "Delete FROM receber where(código like '7')"},
        {shell::delete_statement(ledger::bancario, 3), "Delete FROM bancario where(código like '3')"},
        {shell::delete_bank_statement("Itaú"), "Delete FROM banco where (banco like 'Itaú')"},
        {shell::entry_by_code(ledger::receber, 40), "SELECT * FROM receber where(código like '40')"},
    };
    for (const auto& s : statements)
        EXPECT_EQ(s.got, s.want);
}

TEST(list_action_texts, view_notices_name_the_year_and_the_month) {
    const QDate hoje(2026, 11, 23);
    EXPECT_EQ(shell::view_notice_year(hoje),
              "Ao selecionar está opção o software ira mostrar apenas os dados referente ao ano de 2026 para "
              "visulizar todos os dados novamente basta selecionar a opção 'Todos os dados (Padrão)'");
    EXPECT_EQ(
        shell::view_notice_month(QDate(2027, 3, 1)),
        "Ao selecionar está opção o software ira mostrar apenas os dados referente ao mês de março do ano "
        "de 2027 para visulizar todos os dados novamente basta selecionar a opção 'Todos os dados "
        "(Padrão)'");
}

TEST_F(list_actions, a_removal_matches_the_whole_code_and_the_name_without_case) {
    for (int codigo : {12, 112, 120})
        exec(QStringLiteral("INSERT INTO pagar (\"código\", estatus, Valor) VALUES (%1, 'Pendente', '1,00')")
                 .arg(codigo));
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', ' ', '10,00')");
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa 2', ' ', '20,00')");

    shell::run_removal(shell::delete_statement(ledger::pagar, 12));
    EXPECT_EQ(rows("SELECT \"código\" FROM pagar ORDER BY 1"), (QStringList{"112", "120"}));
    // the connection is closed after a removal
    EXPECT_FALSE(store::conexao);

    shell::run_removal(shell::delete_bank_statement("CAIXA"));
    EXPECT_EQ(rows("SELECT banco FROM banco"), QStringList{"Caixa 2"});
}

TEST_F(list_actions, a_name_with_an_apostrophe_makes_the_removal_fail_and_removes_nothing) {
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', ' ', '10,00')");
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('D''Ávila', ' ', '20,00')");
    shell::run_removal(shell::delete_bank_statement("x') or (1=1"));
    shell::run_removal(shell::delete_bank_statement("D'Ávila"));
    EXPECT_EQ(rows("SELECT banco FROM banco ORDER BY banco"), (QStringList{"Caixa", "D'Ávila"}));
}

TEST_F(list_actions, settling_writes_the_status_and_today_in_day_month_year_each_time) {
    exec("INSERT INTO pagar (estatus, data, Valor, vencimento) VALUES ('Pendente', '2026/11/01', '5,00', "
         "'2026/12/10')");
    exec("INSERT INTO receber (estatus, data, Valor, vencimento) VALUES ('Pendente', '2026/11/01', '5,00', "
         "'2026/12/10')");

    EXPECT_FALSE(settle(ledger::pagar, 1, false));
    EXPECT_EQ(rows("SELECT estatus, vencimento FROM pagar"), QStringList{"Pendente|2026/12/10"});

    EXPECT_TRUE(settle(ledger::pagar, 1, true));
    EXPECT_EQ(rows("SELECT estatus, vencimento FROM pagar"), QStringList{"Concluído|23/11/2026"});

    // already settled: asked again, and the date written again
    exec("UPDATE pagar SET vencimento='2026/12/10'");
    clock_.set(QDateTime(QDate(2026, 12, 1), QTime(8, 0)));
    EXPECT_TRUE(settle(ledger::pagar, 1, true));
    EXPECT_EQ(rows("SELECT estatus, vencimento FROM pagar"), QStringList{"Concluído|01/12/2026"});

    EXPECT_TRUE(settle(ledger::receber, 1, true));
    EXPECT_EQ(rows("SELECT estatus, vencimento FROM receber"), QStringList{"Concluído|01/12/2026"});
    EXPECT_EQ(asked, 4);
}

TEST_F(list_actions, settling_a_row_that_is_gone_still_asks_and_writes_nothing) {
    EXPECT_FALSE(settle(ledger::pagar, 99, true));
    EXPECT_EQ(asked, 1);
    store::conexao.reset();
    EXPECT_FALSE(settle(ledger::receber, 1, true));
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(rows("SELECT * FROM receber").isEmpty());
}

} // namespace
