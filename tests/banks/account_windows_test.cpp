#include "entries/window_fixture.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/key_input.h"

using namespace Qt::StringLiterals;

namespace {

class account_windows : public support::window_fixture {
protected:
    frmbanco* abrir_banco() {
        p->adicionarbanco();
        frmbanco* b = frmbanco::aberto();
        EXPECT_TRUE(b && b->isVisible());
        return b;
    }
    frmeditarbanco* editar(int row) {
        p->carregarbancos();
        p->lstcaixabanco->select_row(row);
        p->alterarbanco();
        frmeditarbanco* e = frmeditarbanco::aberto();
        EXPECT_TRUE(e && e->isVisible());
        return e;
    }
    QStringList bancos() { return rows(u"SELECT banco, informacoes, saldo FROM banco ORDER BY rowid"_s); }
};

TEST_F(account_windows, adding_checks_the_amount_then_the_name_and_refreshes_the_list) {
    frmbanco* b = abrir_banco();
    EXPECT_EQ(b->windowTitle(), u"Cadastrar Banco/Caixa"_s);
    EXPECT_TRUE(b->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const struct {
        const char* valor;
        const char* nome;
        const char* message;
    } cases[] = {
        {"", "", "O campo valor deve ser preenchido!"},
        {"   ", "Nubank", "O campo valor deve ser preenchido!"},
        {"10", "   ", "O campo nome deve ser preenchido!"},
    };
    for (const auto& c : cases) {
        prompts_.clear();
        edit(b, "txtvalor")->setText(QString::fromUtf8(c.valor));
        edit(b, "txtnome")->setText(QString::fromUtf8(c.nome));
        click(b, "cmdinserir");
        EXPECT_EQ(boxes(), QStringList{u"Erro: "_s + QString::fromUtf8(c.message)})
            << c.valor << "/" << c.nome;
        EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
        EXPECT_EQ(frmbanco::aberto(), b);
    }
    EXPECT_TRUE(bancos().isEmpty());

    prompts_.clear();
    edit(b, "txtnome")->setText(u" Nubank "_s);
    edit(b, "txtvalor")->setText(QString());
    keys::type(edit(b, "txtvalor"), u"1234,5"_s);
    edit(b, "txtinfo")->setText(u"  conta digital  "_s);
    keys::alt(b, 'I');
    EXPECT_TRUE(prompts_.boxes().empty());
    // the name as typed; no check for a name already stored
    EXPECT_EQ(bancos(), QStringList{u" Nubank |conta digital |1.234,50"_s});
    EXPECT_EQ(frmbanco::aberto(), nullptr);
    EXPECT_EQ(
        list_rows(p->lstcaixabanco),
        (std::vector<QStringList>{{u" Nubank "_s, u"R$ 1.234,50"_s, u"conta digital "_s, u"R$ 1.234,50"_s}}));
    EXPECT_TRUE(
        child<QPlainTextEdit>(p, "txtresucaixa")
            ->toPlainText()
            .startsWith(
                u"Caixa/Banco:  Nubank (conta digital )\nO saldo neste banco inicio com R$ 1234,5\n"_s));

    // with the lists hidden the list is not refreshed
    store::save_setting(store::secao_config, u"ExibirPrincipal"_s, u"0"_s);
    b = abrir_banco();
    edit(b, "txtnome")->setText(u" Nubank "_s);
    edit(b, "txtvalor")->setText(u"5"_s);
    click(b, "cmdinserir");
    EXPECT_EQ(bancos().size(), 2);
    EXPECT_EQ(p->lstcaixabanco->row_count(), 1);
}

TEST_F(account_windows, editing_keeps_the_opening_balance_unless_the_amount_shown_changes) {
    conta(u"Banco do Brasil"_s, u"1.000,00"_s);
    exec(u"INSERT INTO pagar (estatus, origem, Valor) VALUES ('Concluído', 'Banco do Brasil', '100,00')"_s);
    const struct {
        const char* typed; // nullptr: the amount shown is left alone
        char key;          // Alt letter that saves, or 0 for the button
        const char* saldo;
        const char* shown;
    } cases[] = {
        {nullptr, 0, "1.000,00", "R$ 900,00"},
        {"900", 'E', "1.000,00", "R$ 900,00"}, // the same amount, other formatting
        {"R$ 900,00", 'I', "1.000,00", "R$ 900,00"},
        {"950", 0, "950,00", "R$ 850,00"}, // a new opening balance, the rows still count
    };
    for (const auto& c : cases) {
        exec(u"UPDATE banco SET saldo = '1.000,00', informacoes = 'antes '"_s);
        frmeditarbanco* e = editar(0);
        EXPECT_EQ(e->windowTitle(), u"Editar Banco/Caixa"_s);
        EXPECT_EQ(edit(e, "txtnome")->text(), u"Banco do Brasil"_s);
        EXPECT_FALSE(edit(e, "txtnome")->isEnabled());
        EXPECT_EQ(edit(e, "txtvalor")->text(), u"R$ 900,00"_s);
        EXPECT_EQ(edit(e, "txtvalorini")->text(), u"R$ 1.000,00"_s);
        EXPECT_FALSE(edit(e, "txtvalorini")->isEnabled());
        EXPECT_EQ(edit(e, "txtinfo")->text(), u"antes "_s);
        EXPECT_EQ(p->bancoselecionado, u"Banco do Brasil"_s);
        EXPECT_EQ(p->saldoselecionado, u"R$ 900,00"_s);
        if (c.typed) edit(e, "txtvalor")->setText(QString::fromUtf8(c.typed));
        edit(e, "txtinfo")->setText(QString());
        if (c.key)
            keys::alt(e, c.key);
        else
            click(e, "cmdinserir");
        EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join(u'\n').toStdString();
        EXPECT_EQ(bancos(), QStringList{u"Banco do Brasil| |"_s + QString::fromUtf8(c.saldo)}) << c.typed;
        EXPECT_EQ(p->lstcaixabanco->text(0, 1), QString::fromUtf8(c.shown));
        settle();
        EXPECT_EQ(frmeditarbanco::aberto(), nullptr);
    }
}

TEST_F(account_windows, a_name_with_an_apostrophe_is_stored_but_its_statements_fail_where_they_run) {
    conta(u"Itaú"_s, u"50,00"_s);
    exec(u"INSERT INTO receber (estatus, origem, Valor) VALUES ('Concluído', 'Itaú', '5,00')"_s);
    exec(u"INSERT INTO receber (estatus, origem, Valor) VALUES ('Concluído', 'D''Ávila', '5,00')"_s);
    frmbanco* b = abrir_banco();
    edit(b, "txtnome")->setText(u"D'Ávila"_s);
    edit(b, "txtvalor")->setText(u"75"_s);
    click(b, "cmdinserir");
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(bancos(), (QStringList{u"Itaú| |50,00"_s, u"D'Ávila| |75,00"_s}));
    // the balance of the other account is right; this one's statements fail and its opening stands
    EXPECT_EQ(list_rows(p->lstcaixabanco),
              (std::vector<QStringList>{{u"Itaú"_s, u"R$ 55,00"_s, u" "_s, u"R$ 50,00"_s},
                                        {u"D'Ávila"_s, u"R$ 75,00"_s, u" "_s, u"R$ 75,00"_s}}));

    // its row cannot be read for editing: the name stays blank and is what the check finds
    frmeditarbanco* e = editar(1);
    EXPECT_EQ(edit(e, "txtnome")->text(), QString());
    EXPECT_EQ(edit(e, "txtvalor")->text(), u"R$ 75,00"_s);
    EXPECT_EQ(edit(e, "txtvalorini")->text(), QString());
    click(e, "cmdinserir");
    EXPECT_EQ(boxes(), QStringList{u"Erro: O campo nome deve ser preenchido!"_s});
    // past the check, the statement itself fails into the handler; the window stays
    prompts_.clear();
    edit(e, "txtnome")->setText(u"D'Ávila"_s);
    click(e, "cmdinserir");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith(u"Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s));
    EXPECT_EQ(frmeditarbanco::aberto(), e);
    EXPECT_TRUE(e->isVisible());
    EXPECT_EQ(bancos(), (QStringList{u"Itaú| |50,00"_s, u"D'Ávila| |75,00"_s}));
}

TEST_F(account_windows, a_quick_add_refills_the_open_entry_windows) {
    conta(u"Itaú"_s, u"10,00"_s);
    exec(u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, Valor, vencimento, moeda) VALUES "
         u"('Pendente', 'Itaú', 'Light', '2026/11/01', 'Energia', '10,00', '2026/11/10', 'R$')"_s);
    p->carregarpagar();
    p->lstpagar->select_row(0);
    p->alterarpagar();
    frmeditar* e = frmeditar::aberto();
    p->adicionarpagar();
    frmadicionar* a = frmadicionar::aberto();
    ASSERT_TRUE(a && e);
    EXPECT_TRUE(child<QPushButton>(a, "cmdforncliinc")->isEnabled());
    click(a, "cmdbancoinc");
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    sempretopo(u"desativo"_s, e);
    frmbanco* b = frmbanco::aberto();
    ASSERT_TRUE(b && b->isVisible());
    edit(b, "txtnome")->setText(u"Nubank"_s);
    edit(b, "txtvalor")->setText(u"0"_s);
    click(b, "cmdinserir");
    EXPECT_EQ(frmbanco::aberto(), nullptr);
    for (entry_form* f : {static_cast<entry_form*>(a), static_cast<entry_form*>(e)}) {
        EXPECT_EQ(items(combo(f, "cboorigem")), (QStringList{u"Itaú"_s, u"Nubank"_s}));
        EXPECT_EQ(combo(f, "cboorigem")->currentText(), u"Nubank"_s);
    }
    // the edit window goes back on top, the adding one does not
    EXPECT_TRUE(e->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(account_windows, an_empty_list_opens_nothing) {
    p->carregarbancos();
    ASSERT_EQ(p->lstcaixabanco->row_count(), 0);
    EXPECT_EQ(p->lstcaixabanco->column_count(), 4);
    p->alterarbanco();
    EXPECT_EQ(frmeditarbanco::aberto(), nullptr);
    EXPECT_EQ(child<QPlainTextEdit>(p, "txtresucaixa")->toPlainText(),
              u"\n.\n > REFERÊNCIAS RÁPIDAS"
              u"Valor total em caixa/banco\nR$ 0,00\n\n"
              u"Valor total de inicio em caixa/banco\nR$ 0,00\n\n"
              u"Saldo total de movimentação \nR$ 0,00\n\n"_s);
}

} // namespace
