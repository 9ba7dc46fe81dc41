// Adding and editing a bank or cash account through its windows.
#include "support/window_fixture.h"

#include "platform/widgets/field_helpers.h"

using namespace Qt::StringLiterals;

namespace {

class account_windows : public support::window_fixture {
protected:
    frmbanco* adicionar() {
        p->adicionarbanco();
        EXPECT_TRUE(frmbanco::aberto() && frmbanco::aberto()->isVisible());
        return frmbanco::aberto();
    }
    frmeditarbanco* editar(int row) {
        p->carregarbancos();
        p->lstcaixabanco->select_row(row);
        p->alterarbanco();
        EXPECT_TRUE(frmeditarbanco::aberto() && frmeditarbanco::aberto()->isVisible());
        return frmeditarbanco::aberto();
    }
    QStringList bancos() { return rows("SELECT banco, informacoes, saldo FROM banco ORDER BY rowid"); }
};

TEST_F(account_windows, adding_checks_writes_and_refreshes_the_list_and_its_summary) {
    frmbanco* b = adicionar();
    EXPECT_EQ(b->windowTitle(), "Cadastrar Banco/Caixa");
    EXPECT_TRUE(b->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    b->txtnome->setText("Nubank");
    b->cmdinserir->click();
    EXPECT_EQ(boxes(), QStringList{"Erro: O campo valor deve ser preenchido!"});
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(frmbanco::aberto(), b);

    prompts_.clear();
    b->txtnome->setText(" Nubank ");
    keys::type(b->txtvalor, "1234,5");
    b->txtinfo->setText("  conta digital  ");
    keys::alt(b, 'I');
    EXPECT_TRUE(prompts_.boxes().empty());
    // the name as typed; no check for a name already stored
    EXPECT_EQ(bancos(), QStringList{" Nubank |conta digital |1.234,50"});
    EXPECT_EQ(frmbanco::aberto(), nullptr);
    EXPECT_EQ(list_rows(p->lstcaixabanco),
              (std::vector<QStringList>{{" Nubank ", "R$ 1.234,50", "conta digital ", "R$ 1.234,50"}}));
    EXPECT_TRUE(
        p->findChild<QPlainTextEdit*>("txtresucaixa")->toPlainText().startsWith("Caixa/Banco:  Nubank "));
}

TEST_F(account_windows, editing_keeps_the_opening_balance_unless_the_amount_shown_changes) {
    conta("Banco do Brasil", "1.000,00");
    exec("INSERT INTO pagar (estatus, origem, Valor) VALUES ('Concluído', 'Banco do Brasil', '100,00')");
    const struct {
        const char* typed; // nullptr: the amount shown is left alone
        char key;          // Alt letter that saves, or 0 for the button
        const char* saldo;
        const char* shown;
    } cases[] = {
        {nullptr, 'E', "1.000,00", "R$ 900,00"},
        {"900", 'I', "1.000,00", "R$ 900,00"}, // the same amount, other formatting
        {"950", 0, "950,00", "R$ 850,00"},     // a new opening balance, the rows still count
    };
    for (const auto& c : cases) {
        exec("UPDATE banco SET saldo = '1.000,00', informacoes = 'antes '");
        frmeditarbanco* e = editar(0);
        EXPECT_EQ(e->windowTitle(), "Editar Banco/Caixa");
        EXPECT_EQ(QStringList(
                      {e->txtnome->text(), e->txtvalorini->text(), e->txtvalor->text(), e->txtinfo->text()}),
                  (QStringList{"Banco do Brasil", "R$ 1.000,00", "R$ 900,00", "antes "}));
        EXPECT_FALSE(e->txtnome->isEnabled());
        EXPECT_FALSE(e->txtvalorini->isEnabled());
        EXPECT_EQ(p->bancoselecionado, "Banco do Brasil");
        EXPECT_EQ(p->saldoselecionado, "R$ 900,00");
        if (c.typed) e->txtvalor->setText(c.typed);
        e->txtinfo->setText(QString());
        c.key ? keys::alt(e, c.key) : e->cmdinserir->click();
        EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join('\n').toStdString();
        EXPECT_EQ(bancos(), QStringList{u"Banco do Brasil| |"_s + c.saldo});
        EXPECT_EQ(p->lstcaixabanco->text(0, 1), c.shown);
        settle();
        EXPECT_EQ(frmeditarbanco::aberto(), nullptr);
    }
}

TEST_F(account_windows, a_name_with_an_apostrophe_is_stored_but_its_statements_fail_where_they_run) {
    conta("Itaú", "50,00");
    exec("INSERT INTO receber (estatus, origem, Valor) VALUES ('Concluído', 'Itaú', '5,00'), "
         "('Concluído', 'D''Ávila', '5,00')");
    frmbanco* b = adicionar();
    b->txtnome->setText("D'Ávila");
    b->txtvalor->setText("75");
    b->cmdinserir->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    // the balance of the other account is right; this one's statements fail and its opening stands
    EXPECT_EQ(column(p->lstcaixabanco, 1), (QStringList{"R$ 55,00", "R$ 75,00"}));

    // its row cannot be read for editing: the name stays blank and is what the check finds
    frmeditarbanco* e = editar(1);
    EXPECT_EQ(QStringList({e->txtnome->text(), e->txtvalor->text(), e->txtvalorini->text()}),
              (QStringList{"", "R$ 75,00", ""}));
    e->cmdinserir->click();
    EXPECT_EQ(boxes(), QStringList{"Erro: O campo nome deve ser preenchido!"});
    // past the check, the statement itself fails into the handler; the window stays
    prompts_.clear();
    e->txtnome->setText("D'Ávila");
    e->cmdinserir->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith("Ocorreu o seguinte erro ao tentar cadastrar os dados: "));
    EXPECT_EQ(frmeditarbanco::aberto(), e);
    EXPECT_EQ(bancos(), (QStringList{"Itaú| |50,00", "D'Ávila| |75,00"}));
}

TEST_F(account_windows, a_quick_add_refills_the_open_entry_windows) {
    conta("Itaú", "10,00");
    entrada("pagar", "2026/11/01");
    p->carregarpagar();
    p->lstpagar->select_row(0);
    p->alterarpagar();
    frmeditar* e = frmeditar::aberto();
    p->adicionarpagar();
    frmadicionar* a = frmadicionar::aberto();
    ASSERT_TRUE(a && e);
    // the other quick adds open the windows of centres and of clients and suppliers
    EXPECT_TRUE(a->cmddescinc->isEnabled());
    EXPECT_TRUE(a->cmdforncliinc->isEnabled());
    a->cmdbancoinc->click();
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    sempretopo("desativo", e);
    frmbanco* b = frmbanco::aberto();
    ASSERT_TRUE(b && b->isVisible());
    b->txtnome->setText("Nubank");
    b->txtvalor->setText("0");
    b->cmdinserir->click();
    EXPECT_EQ(frmbanco::aberto(), nullptr);
    for (entry_form* f : {static_cast<entry_form*>(a), static_cast<entry_form*>(e)}) {
        EXPECT_EQ(items(f->cboorigem), (QStringList{"Itaú", "Nubank"}));
        EXPECT_EQ(f->cboorigem->currentText(), "Nubank");
    }
    // the edit window goes back on top, the adding one does not
    EXPECT_TRUE(e->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace
