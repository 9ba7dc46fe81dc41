// Accounts and entries typed in through their windows, a payment settled by editing its status,
// transfers put straight into the file: the balances and the summary against figures by hand.
#include "entries/window_fixture.h"
#include "platform/widgets/key_input.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

class balance_flow : public support::window_fixture {
protected:
    void nova_conta(const QString& nome, const QString& saldo) {
        p->adicionarbanco();
        frmbanco* b = frmbanco::aberto();
        ASSERT_TRUE(b);
        keys::type(edit(b, "txtnome"), nome);
        keys::type(edit(b, "txtvalor"), saldo);
        click(b, "cmdinserir");
        settle();
    }
    void nova_entrada(bool despesa, const QString& conta, const QString& valor, int estatus) {
        despesa ? p->adicionarpagar() : p->adicionarreceber();
        frmadicionar* a = frmadicionar::aberto();
        ASSERT_TRUE(a);
        combo(a, "cboorigem")->setCurrentIndex(combo(a, "cboorigem")->findText(conta));
        combo(a, "cbotipo")->setEditText(u"Fulano"_s);
        combo(a, "txtdescricao")->setEditText(u"Diversos"_s);
        keys::type(edit(a, "txtvalor"), valor);
        date(a, "txtvencimento")->set_text(u"01/12/2026"_s);
        combo(a, "cboestatus")->setCurrentIndex(estatus);
        click(a, "cmdinserir");
        settle();
    }
    QStringList saldos() {
        p->carregarbancos();
        QStringList out;
        for (const QStringList& r : list_rows(p->lstcaixabanco))
            out << r[0] + u" "_s + r[1];
        return out;
    }
};

TEST_F(balance_flow, balances_follow_settled_rows_and_transfers_keep_the_sum) {
    nova_conta(u"Banco do Brasil"_s, u"1000"_s);
    nova_conta(u"Itaú"_s, u"200"_s);
    // saving an account refreshed the list
    EXPECT_EQ(p->lstcaixabanco->row_count(), 2);
    nova_entrada(true, u"Banco do Brasil"_s, u"150"_s, 0); // pending expense
    nova_entrada(false, u"Itaú"_s, u"80,5"_s, 1);          // settled income
    nova_entrada(true, QString(), u"70"_s, 1);             // settled, no account: "-"
    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join(u'\n').toStdString();
    EXPECT_EQ(saldos(), (QStringList{u"Banco do Brasil R$ 1.000,00"_s, u"Itaú R$ 280,50"_s}));

    // settled by editing its status
    p->carregarpagar();
    p->lstpagar->select_row(0);
    p->alterarpagar();
    frmeditar* e = frmeditar::aberto();
    ASSERT_TRUE(e);
    combo(e, "cboestatus")->setCurrentIndex(1);
    click(e, "cmdinserir");
    settle();
    EXPECT_EQ(saldos(), (QStringList{u"Banco do Brasil R$ 850,00"_s, u"Itaú R$ 280,50"_s}));

    exec(
        u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
        u"('Concluído', 'Banco do Brasil', 'Itaú', '2026/11/20', 'Transferência entre contas', ' ', '300,00')"_s);
    exec(
        u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
        u"('Pendente', 'Itaú', 'Banco do Brasil', '2026/11/21', 'Transferência entre contas', ' ', '999,00')"_s);
    exec(u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
         u"('Concluído', 'Itaú', ' - ', '2026/11/22', 'Retirada', ' ', '0,50')"_s);
    // 850 - 300 and 280,50 + 300 - 0,50: together still 1.200 - 150 + 80,50 - 0,50
    EXPECT_EQ(saldos(), (QStringList{u"Banco do Brasil R$ 550,00"_s, u"Itaú R$ 580,00"_s}));
    EXPECT_EQ(child<QPlainTextEdit>(p, "txtresucaixa")->toPlainText(),
              u"Caixa/Banco: Banco do Brasil( )\n"
              u"O saldo neste banco inicio com R$ 1000\n"
              u"O saldo atual é R$ 550,00\n"
              u"Movimentação de R$ -450,00\n"
              u".\n"
              u"Caixa/Banco: Itaú( )\n"
              u"O saldo neste banco inicio com R$ 200\n"
              u"O saldo atual é R$ 580,00\n"
              u"Movimentação de R$ 380,00\n"
              u".\n"
              u"\n.\n > REFERÊNCIAS RÁPIDAS"
              u"Valor total em caixa/banco\nR$ 1.130,00\n\n"
              u"Valor total de inicio em caixa/banco\nR$ 1.200,00\n\n"
              u"Saldo total de movimentação \nR$ -70,00\n\n"_s);

    // with the option off the list shows the opening balances and no movement
    store::save_setting(store::secao_config, u"AtualizarSaldo"_s, u"0"_s);
    EXPECT_EQ(saldos(), (QStringList{u"Banco do Brasil R$ 1.000,00"_s, u"Itaú R$ 200,00"_s}));
    EXPECT_TRUE(child<QPlainTextEdit>(p, "txtresucaixa")
                    ->toPlainText()
                    .endsWith(u"Saldo total de movimentação \nR$ 0,00\n\n"_s));
}

} // namespace
