// Typing in one expense or one income: frmadicionar as the main window opens it.
#include "support/window_fixture.h"

#include "platform/widgets/field_helpers.h"

namespace {

const QString columns =
    "SELECT estatus, origem, %1, data, descricao, documento, informacoes, Valor, vencimento, "
    "moeda FROM %2 ORDER BY \"código\"";

class adicionar : public support::window_fixture {
protected:
    frmadicionar* abrir(bool despesa = true) {
        despesa ? p->adicionarpagar() : p->adicionarreceber();
        frmadicionar* a = frmadicionar::aberto();
        EXPECT_TRUE(a && a->isVisible());
        return a;
    }
    // The required fields filled; the boxes keep what their lists gave them.
    void preencher(frmadicionar* a, const QString& valor = "150") {
        keys::type(a->txtvalor, valor);
        a->txtvencimento->set_text("30/11/2026");
        if (a->cbotipo->currentText().isEmpty()) a->cbotipo->setEditText("Fulano");
        if (a->txtdescricao->currentText().isEmpty()) a->txtdescricao->setEditText("Diversos");
    }
    QStringList pagar() { return rows(columns.arg("fornecedor", "pagar")); }
    QStringList receber() { return rows(columns.arg("cliente", "receber")); }
};

TEST_F(adicionar, the_blank_required_fields_are_named_and_nothing_is_written) {
    frmadicionar* a = abrir();
    a->txtdescricao->setEditText("   ");
    a->cbotipo->setEditText(QString());
    a->cmdinserir->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, entries::blank_fields_message(a->campos()));
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith("Os seguintes dados estão em branco: "));
    EXPECT_EQ(prompts_.boxes()[0].title, "Erro");
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_TRUE(a->isVisible());
    EXPECT_TRUE(pagar().isEmpty());
}

TEST_F(adicionar, an_expense_typed_in_is_written_and_the_lists_reload) {
    conta("Itaú", "10,00");
    conta("Banco do Brasil", "10,00");
    nomes("fornecedor", "nome", {"Papelaria Central", "Auto Peças Sul"});
    nomes("pcontapagar", "descricao", {"Energia", "Aluguel"});
    frmadicionar* a = abrir();
    EXPECT_EQ(a->windowTitle(), "Adicionar Contas a pagar - Despesa");
    EXPECT_TRUE(a->PIC1->isVisibleTo(a));
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // each box comes up showing the first of its list
    EXPECT_EQ(a->campos(), (entries::entry_fields{"Pendente", "Banco do Brasil", "Auto Peças Sul",
                                                  "23/11/2026", "Aluguel", "", "", "", "", "R$"}));
    EXPECT_EQ(items(a->cboorigem), (QStringList{"Banco do Brasil", "Itaú"}));
    EXPECT_EQ(items(a->cbomoeda), (QStringList{"R$", "$", "€", "¥", "£"}));
    EXPECT_FALSE(a->chkcontinuar->isChecked());

    // the supplier completed from its first letters; the account chosen, never typed
    a->cbotipo->setEditText(QString());
    keys::type(a->cbotipo, "pap");
    EXPECT_EQ(a->cbotipo->currentText(), "Papelaria Central");
    keys::type(a->cboorigem, "x");
    EXPECT_EQ(a->cboorigem->currentText(), "Banco do Brasil");
    keys::type(a->txtdocumento, "  NF 1  ");
    keys::type(a->txtvalor, "1234,5");
    a->txtvencimento->set_text("2026/11/30");
    a->cboestatus->setCurrentIndex(1);
    exec("INSERT INTO receber (estatus, cliente, data, Valor) VALUES ('Pendente', 'Ana', '2026/11/01', "
         "'5,00')");
    keys::alt(a, 'I');
    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join('\n').toStdString();
    EXPECT_EQ(pagar(), QStringList{"Concluído|Banco do Brasil|Papelaria Central|2026/11/23|Aluguel|NF 1 | "
                                   "|1.234,50|2026/11/30|R$"});
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    // the expense list on its tab; closing then reloads the income list, as the window always did
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(column(p->lstpagar, 2), QStringList{"Aluguel"});
    EXPECT_EQ(p->lstreceber->row_count(), 1);
}

TEST_F(adicionar, an_income_without_any_account_gets_a_hyphen) {
    nomes("cliente", "nome", {"Maria Souza", "Ana Lima"});
    frmadicionar* a = abrir(false);
    EXPECT_EQ(a->windowTitle(), "Adicionar Contas a receber - Receita");
    EXPECT_TRUE(a->PIC2->isVisibleTo(a));
    preencher(a, "80,5");
    a->cmdinserir->click();
    EXPECT_EQ(receber(), QStringList{"Pendente|-|Ana Lima|2026/11/23|Diversos| | |80,50|2026/11/30|R$"});
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->row_count(), 1);
}

TEST_F(adicionar, the_continuing_mode_keeps_the_window_and_the_lists_until_it_closes) {
    conta("Itaú", "10,00");
    frmadicionar* a = abrir();
    a->chkcontinuar->setChecked(true);
    a->cbomoeda->setCurrentIndex(2);
    a->txtdocumento->setText("NF 7");
    a->txtinfo->setPlainText("primeira");
    preencher(a);
    a->cmdinserir->click();
    EXPECT_EQ(boxes(), QStringList{"Cadastrada: Despesa cadastrada com sucesso!"});
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_EQ(frmadicionar::aberto(), a);
    EXPECT_TRUE(a->inserido);
    // the row's own fields emptied, the rest kept
    EXPECT_EQ(a->campos(),
              (entries::entry_fields{"Pendente", "Itaú", "", "23/11/2026", "Diversos", "", "", "", "", "€"}));
    preencher(a, "20");
    a->cmdinserir->click();
    EXPECT_EQ(pagar(),
              (QStringList{"Pendente|Itaú|Fulano|2026/11/23|Diversos|NF 7 |primeira |150,00|2026/11/30|€",
                           "Pendente|Itaú|Fulano|2026/11/23|Diversos| | |20,00|2026/11/30|€"}));
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    // closing reloads the income list, not the expense list
    exec("INSERT INTO receber (estatus, cliente, data, Valor) VALUES ('Pendente', 'Ana', '2026/11/01', "
         "'5,00')");
    keys::alt(a, 'C');
    settle();
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    EXPECT_EQ(p->lstreceber->row_count(), 1);
}

TEST_F(adicionar, with_the_lists_hidden_nothing_reloads) {
    store::save_setting(store::secao_config, "ExibirPrincipal", "0");
    frmadicionar* a = abrir();
    p->xtab->setCurrentIndex(2);
    preencher(a);
    a->cmdinserir->click();
    EXPECT_EQ(pagar().size(), 1);
    EXPECT_EQ(p->xtab->currentIndex(), 2);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
}

TEST_F(adicionar, a_failed_write_leaves_the_window_open_with_everything_typed) {
    conta("D''Ávila", "10,00");
    exec("CREATE TRIGGER recusa BEFORE INSERT ON pagar BEGIN SELECT RAISE(ABORT, 'disco cheio'); END");
    frmadicionar* a = abrir();
    preencher(a, "42");
    a->txtdocumento->setText("NF 3");
    const entries::entry_fields antes = a->campos();
    a->cmdinserir->click();
    EXPECT_EQ(boxes(),
              QStringList{"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: disco cheio"});
    EXPECT_EQ(frmadicionar::aberto(), a);
    EXPECT_FALSE(a->inserido);
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(a->campos(), antes);
    // nothing was lost: once the file takes it, the same press writes the row, apostrophe and all
    exec("DROP TRIGGER recusa");
    prompts_.clear();
    a->cmdinserir->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(pagar(),
              QStringList{"Pendente|D'Ávila|Fulano|2026/11/23|Diversos|NF 3 | |42,00|2026/11/30|R$"});
}

TEST_F(adicionar, alt_c_and_alt_i_only_and_the_date_steps_back_from_the_top) {
    frmadicionar* a = abrir();
    keys::alt(a, 'X');
    keys::alt(a, 'E');
    EXPECT_TRUE(prompts_.boxes().empty());
    keys::alt(a->txtdocumento, 'I');
    EXPECT_EQ(prompts_.boxes().size(), 1u);
    // Enter goes on as Tab, into the date, which lets its calendar come over the window
    keys::show_active(a);
    a->txtdocumento->setFocus(Qt::TabFocusReason);
    keys::enter(a->txtdocumento);
    EXPECT_TRUE(a->txtdata->line_edit()->hasFocus());
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    keys::enter(a->txtdata->line_edit());
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    keys::alt(a->txtdocumento, 'C');
    settle();
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    EXPECT_EQ(prompts_.boxes().size(), 1u);
}

} // namespace
