#include "banks/balance.h"

#include "platform/sql/recordset.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;

namespace {

class balance : public support::fixture {
protected:
    void conta(const QString& nome, const QString& saldo, const QString& info = u"Conta "_s) {
        exec(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('"_s + nome + u"', '"_s + info +
             u"', '"_s + saldo + u"')"_s);
    }
    void entrada(const QString& tabela, const QString& estatus, const QString& origem, const QString& valor,
                 const QString& data = u"2026/11/10"_s) {
        exec(u"INSERT INTO "_s + tabela +
             u" (estatus, origem, data, descricao, Valor, vencimento) VALUES ('"_s + estatus + u"', '"_s +
             origem + u"', '"_s + data + u"', 'x', '"_s + valor + u"', '2026/12/01')"_s);
    }
    void movimento(const QString& estatus, const QString& movimento, const QString& origem,
                   const QString& destino, const QString& valor, const QString& data = u"2026/11/10"_s) {
        exec(
            u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES ('"_s +
            estatus + u"', '"_s + origem + u"', '"_s + destino + u"', '"_s + data + u"', '"_s + movimento +
            u"', ' ', '"_s + valor + u"')"_s);
    }
    banks::account_balance saldo_de(const QString& nome, const QString& saldo,
                                    const std::optional<banks::period>& p = {}) {
        auto c = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
        return banks::compute_balance(c, nome, saldo, p);
    }
    // Three accounts with every kind of row; the figures below are worked out by hand.
    void livro() {
        conta(u"Banco do Brasil"_s, u"1.000,00"_s);
        conta(u"Itaú"_s, u"500,50"_s);
        conta(u"Caixa"_s, u"0,00"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"100,00"_s);
        entrada(u"pagar"_s, u"Pendente"_s, u"Banco do Brasil"_s, u"999,00"_s); // pending: never counts
        entrada(u"pagar"_s, u"Concluído"_s, u"-"_s, u"70,00"_s);               // no account
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco"_s, u"5,00"_s);            // another name
        entrada(u"receber"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"250,25"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"ITAÚ"_s, u"10,00"_s);  // the name in any case
        entrada(u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"1,005"_s); // enters rounded: 1,01
        entrada(u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"abc"_s);   // no amount: adds nothing
        movimento(u"Concluído"_s, u"Depósito"_s, u"Banco do Brasil"_s, u" - "_s, u"50,00"_s);
        movimento(u"Concluído"_s, u"Retirada"_s, u"Itaú"_s, u" - "_s, u"20,50"_s);
        movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Banco do Brasil"_s, u"Itaú"_s,
                  u"300,00"_s);
        movimento(u"Pendente"_s, u"Transferência entre contas"_s, u"Itaú"_s, u"Caixa"_s, u"40,00"_s);
        movimento(u"Concluído"_s, u"depósito"_s, u"Caixa"_s, u" - "_s, u"9,00"_s); // not the stored word
    }
};

TEST_F(balance, settled_rows_move_the_opening_balance_by_their_kind) {
    livro();
    const struct {
        const char* nome;
        const char* saldo;
        std::int64_t total_cents;
    } cases[] = {
        // 1000 - 100 + 250,25 + 50 - 300
        {"Banco do Brasil", "1.000,00", 90025},
        // 500,50 + 10 - 20,50 + 300 (the pending transfer out does not count)
        {"Itaú", "500,50", 79000},
        // 0 + 1,01; "depósito" is not the stored word, the pending transfer in does not count
        {"Caixa", "0,00", 101},
    };
    for (const auto& c : cases) {
        const auto b = saldo_de(QString::fromUtf8(c.nome), QString::fromUtf8(c.saldo));
        EXPECT_EQ(b.total, vb::currency::from_cents(c.total_cents)) << c.nome;
        EXPECT_EQ(b.falhas, 0) << c.nome;
    }
    const auto bb = saldo_de(u"Banco do Brasil"_s, u"1.000,00"_s);
    EXPECT_EQ(bb.despesas, vb::currency::from_cents(10000));
    EXPECT_EQ(bb.receitas, vb::currency::from_cents(25025));
    EXPECT_EQ(bb.depositos, vb::currency::from_cents(5000));
    EXPECT_EQ(bb.transferido, vb::currency::from_cents(30000));
    const auto itau = saldo_de(u"Itaú"_s, u"500,50"_s);
    EXPECT_EQ(itau.retiradas, vb::currency::from_cents(2050));
    EXPECT_EQ(itau.recebido, vb::currency::from_cents(30000));
    // the settled transfer moved 300 from one account to the other: the sum is what the entries made
    EXPECT_EQ(bb.total + itau.total,
              vb::currency::from_cents(100000 + 50050 - 10000 + 25025 + 1000 + 5000 - 2050));
}

TEST_F(balance, a_period_counts_the_rows_dated_inside_it_only) {
    conta(u"Itaú"_s, u"100,00"_s);
    entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"10,00"_s, u"2026/01/15"_s);
    entrada(u"receber"_s, u"Concluído"_s, u"Itaú"_s, u"30,00"_s, u"2026/03/01"_s);
    movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Caixa"_s, u"Itaú"_s, u"5,00"_s,
              u"2026/02/10"_s);
    EXPECT_EQ(saldo_de(u"Itaú"_s, u"100,00"_s, banks::period{u"2026/01/01"_s, u"2026/02/28"_s}).total,
              vb::currency::from_cents(9500));
    EXPECT_EQ(saldo_de(u"Itaú"_s, u"100,00"_s).total, vb::currency::from_cents(12500));
    // the first day after the last finds no rows
    EXPECT_EQ(saldo_de(u"Itaú"_s, u"100,00"_s, banks::period{u"2026/12/31"_s, u"2026/01/01"_s}).total,
              vb::currency::from_cents(10000));
}

TEST_F(balance, an_apostrophe_in_a_name_fails_its_statements_only) {
    livro();
    conta(u"D''Ávila"_s, u"75,00"_s);
    exec(u"INSERT INTO pagar (estatus, origem, Valor) VALUES ('Concluído', 'D''Ávila', '10,00')"_s);
    const auto b = saldo_de(u"D'Ávila"_s, u"75,00"_s);
    EXPECT_EQ(b.falhas, 5);
    EXPECT_EQ(b.total, vb::currency::from_cents(7500));
    const auto rows = banks::account_rows(true);
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0], (QStringList{u"Banco do Brasil"_s, u"R$ 900,25"_s, u"Conta "_s, u"R$ 1.000,00"_s}));
    EXPECT_EQ(rows[3], (QStringList{u"D'Ávila"_s, u"R$ 75,00"_s, u"Conta "_s, u"R$ 75,00"_s}));
}

TEST_F(balance, the_list_rows_computed_or_stored) {
    livro();
    conta(u"Sem valor"_s, u"abc"_s);
    entrada(u"pagar"_s, u"Concluído"_s, u"Sem valor"_s, u"5,00"_s);
    const std::vector<QStringList> computed = {
        {u"Banco do Brasil"_s, u"R$ 900,25"_s, u"Conta "_s, u"R$ 1.000,00"_s},
        {u"Itaú"_s, u"R$ 790,00"_s, u"Conta "_s, u"R$ 500,50"_s},
        {u"Caixa"_s, u"R$ 1,01"_s, u"Conta "_s, u"R$ 0,00"_s},
        // an opening balance that is no amount shows as stored and starts from zero
        {u"Sem valor"_s, u"R$ -5,00"_s, u"Conta "_s, u"R$ abc"_s},
    };
    int antes = 0, feitas = 0;
    banks::account_rows_hooks hooks{[&](int n) { antes = n; }, [&](int i) { feitas = i; }};
    EXPECT_EQ(banks::account_rows(true, hooks), computed);
    EXPECT_EQ(antes, 4);
    EXPECT_EQ(feitas, 4);
    // with the option off the opening balances stand as the current ones
    const auto stored = banks::account_rows(false);
    ASSERT_EQ(stored.size(), computed.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        EXPECT_EQ(stored[i][1], computed[i][3]);
        EXPECT_EQ(stored[i][3], computed[i][3]);
    }
}

TEST_F(balance, the_option_is_off_only_when_numerically_zero) {
    const struct {
        const char* valor;
        bool atualizar;
    } cases[] = {{nullptr, true}, {"1", true}, {"0", false}, {"00", false}, {"abc", false}, {"2", true}};
    for (const auto& c : cases) {
        if (c.valor)
            store::save_setting(store::secao_config, u"AtualizarSaldo"_s, QString::fromUtf8(c.valor));
        EXPECT_EQ(banks::atualizar_saldo(), c.atualizar) << (c.valor ? c.valor : "(default)");
    }
}

TEST(resumo_caixa, the_summary_text_from_the_rows) {
    const std::vector<QStringList> rows = {
        {u"Banco do Brasil"_s, u"R$ 900,25"_s, u"Conta corrente "_s, u"R$ 1.000,00"_s},
        {u"Itaú"_s, u"R$ -5,50"_s, u" "_s, u"R$ 8.730,45"_s},
    };
    EXPECT_TRUE(support::matches_golden(u"banks/resumo_caixa.txt"_s,
                                        banks::resumo_caixa(rows) + u"\n---\n"_s + banks::resumo_caixa({})));
}

} // namespace
