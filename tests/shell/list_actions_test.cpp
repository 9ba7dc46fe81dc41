#include "shell/list_actions.h"
#include "store/conexao.h"
#include "support/fixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

TEST_F(list_actions, a_removal_matches_the_whole_code_and_the_name_without_case) {
    for (int codigo : {12, 112, 120})
        exec(u"INSERT INTO pagar (\"código\", estatus, Valor) VALUES (%1, 'Pendente', '1,00')"_s.arg(codigo));
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
