// Accounts and entries typed in through their windows, a payment settled by editing its status,
// transfers put straight into the file: the balances against figures worked out by hand.
#include "support/window_fixture.h"

namespace {

class balance_flow : public support::window_fixture {
protected:
    void nova_conta(const QString& nome, const QString& saldo) {
        p->adicionarbanco();
        frmbanco* b = frmbanco::aberto();
        ASSERT_TRUE(b);
        keys::type(b->txtnome, nome);
        keys::type(b->txtvalor, saldo);
        b->cmdinserir->click();
        settle();
    }
    void nova_entrada(bool despesa, const QString& conta, const QString& valor, int estatus) {
        despesa ? p->adicionarpagar() : p->adicionarreceber();
        frmadicionar* a = frmadicionar::aberto();
        ASSERT_TRUE(a);
        a->cboorigem->setCurrentIndex(a->cboorigem->findText(conta));
        a->cbotipo->setEditText("Fulano");
        a->txtdescricao->setEditText("Diversos");
        keys::type(a->txtvalor, valor);
        a->txtvencimento->set_text("01/12/2026");
        a->cboestatus->setCurrentIndex(estatus);
        a->cmdinserir->click();
        settle();
    }
    QStringList saldos() {
        p->carregarbancos();
        return column(p->lstcaixabanco, 1);
    }
};

TEST_F(balance_flow, balances_follow_settled_rows_and_transfers_keep_the_sum) {
    nova_conta("Banco do Brasil", "1000");
    nova_conta("Itaú", "200");
    // saving an account refreshed the list
    EXPECT_EQ(p->lstcaixabanco->row_count(), 2);
    nova_entrada(true, "Banco do Brasil", "150", 0); // pending expense
    nova_entrada(false, "Itaú", "80,5", 1);          // settled income
    nova_entrada(true, QString(), "70", 1);          // settled, no account: "-"
    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join('\n').toStdString();
    EXPECT_EQ(saldos(), (QStringList{"R$ 1.000,00", "R$ 280,50"}));

    // settled by editing its status
    p->carregarpagar();
    p->lstpagar->select_row(0);
    p->alterarpagar();
    ASSERT_TRUE(frmeditar::aberto());
    frmeditar::aberto()->cboestatus->setCurrentIndex(1);
    frmeditar::aberto()->cmdinserir->click();
    settle();
    EXPECT_EQ(saldos(), (QStringList{"R$ 850,00", "R$ 280,50"}));

    exec(
        "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
        "('Concluído', 'Banco do Brasil', 'Itaú', '2026/11/20', 'Transferência entre contas', ' ', "
        "'300,00'), "
        "('Pendente', 'Itaú', 'Banco do Brasil', '2026/11/21', 'Transferência entre contas', ' ', '999,00'), "
        "('Concluído', 'Itaú', ' - ', '2026/11/22', 'Retirada', ' ', '0,50')");
    // 850 - 300 and 280,50 + 300 - 0,50: together still 1.200 - 150 + 80,50 - 0,50
    EXPECT_EQ(saldos(), (QStringList{"R$ 550,00", "R$ 580,00"}));
    EXPECT_TRUE(
        p->findChild<QPlainTextEdit*>("txtresucaixa")
            ->toPlainText()
            .endsWith("Valor total em caixa/banco\nR$ 1.130,00\n\nValor total de inicio em caixa/banco\n"
                      "R$ 1.200,00\n\nSaldo total de movimentação \nR$ -70,00\n\n"));

    // with the option off the list shows the opening balances
    store::save_setting(store::secao_config, "AtualizarSaldo", "0");
    EXPECT_EQ(saldos(), (QStringList{"R$ 1.000,00", "R$ 200,00"}));
}

} // namespace
