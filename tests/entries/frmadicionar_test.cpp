#include "entries/window_fixture.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/key_input.h"

using namespace Qt::StringLiterals;

namespace {

const QString columns =
    u"SELECT estatus, origem, %1, data, descricao, documento, informacoes, Valor, vencimento, "
    u"moeda FROM %2 ORDER BY \"código\""_s;

class adicionar : public support::window_fixture {
protected:
    frmadicionar* abrir(bool despesa = true) {
        despesa ? p->adicionarpagar() : p->adicionarreceber();
        frmadicionar* a = frmadicionar::aberto();
        EXPECT_TRUE(a && a->isVisible());
        return a;
    }
    // The required fields filled; the boxes keep what their lists gave them.
    void preencher(QWidget* a, const QString& valor = u"150"_s) {
        keys::type(child<QLineEdit>(a, "txtvalor"), valor);
        date(a, "txtvencimento")->set_text(u"30/11/2026"_s);
        if (combo(a, "cbotipo")->currentText().isEmpty()) combo(a, "cbotipo")->setEditText(u"Fulano"_s);
        if (combo(a, "txtdescricao")->currentText().isEmpty())
            combo(a, "txtdescricao")->setEditText(u"Diversos"_s);
    }
    QStringList pagar() { return rows(columns.arg(u"fornecedor"_s, u"pagar"_s)); }
    QStringList receber() { return rows(columns.arg(u"cliente"_s, u"receber"_s)); }
};

TEST_F(adicionar, the_blank_required_fields_are_named_in_one_message) {
    const struct {
        const char* descricao;
        const char* tipo;
        const char* valor;
        const char* data;
        const char* vencimento;
        const char* message;
    } cases[] = {
        {"", "", "", "", "", "\n\nDescrição\nForcenedor/cliente\nValor\nData\nVencimento"},
        {"   ", "  ", "10", "23/11/2026", "30/11/2026", "\n\nDescrição\nForcenedor/cliente"},
        {"Aluguel", "Fulano", " ", "23/11/2026", "", "\n\nValor\nVencimento"},
    };
    frmadicionar* a = abrir();
    for (const auto& c : cases) {
        prompts_.clear();
        combo(a, "txtdescricao")->setEditText(QString::fromUtf8(c.descricao));
        combo(a, "cbotipo")->setEditText(QString::fromUtf8(c.tipo));
        edit(a, "txtvalor")->setText(QString::fromUtf8(c.valor));
        date(a, "txtdata")->set_text(QString::fromUtf8(c.data));
        date(a, "txtvencimento")->set_text(QString::fromUtf8(c.vencimento));
        click(a, "cmdinserir");
        ASSERT_EQ(prompts_.boxes().size(), 1u) << c.message;
        EXPECT_EQ(prompts_.boxes()[0].text,
                  u"Os seguintes dados estão em branco: "_s + QString::fromUtf8(c.message));
        EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
        EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
        EXPECT_TRUE(a->isVisible());
    }
    EXPECT_TRUE(pagar().isEmpty());
}

TEST_F(adicionar, an_expense_typed_in_is_written_column_by_column) {
    conta(u"Itaú"_s, u"10,00"_s);
    conta(u"Banco do Brasil"_s, u"10,00"_s);
    nomes(u"fornecedor"_s, u"nome"_s, {u"Papelaria Central"_s, u"Auto Peças Sul"_s});
    nomes(u"pcontapagar"_s, u"descricao"_s, {u"Energia"_s, u"Aluguel"_s});
    exec(u"INSERT INTO receber (estatus, origem, cliente, data, descricao, Valor, vencimento, moeda) VALUES "
         u"('Pendente', 'Itaú', 'Ana', '2026/11/01', 'Vendas', '5,00', '2026/11/20', 'R$')"_s);
    p->carregarreceber();
    ASSERT_EQ(p->lstreceber->row_count(), 1);
    exec(u"DELETE FROM receber"_s);

    frmadicionar* a = abrir();
    EXPECT_EQ(a->windowTitle(), u"Adicionar Contas a pagar - Despesa"_s);
    EXPECT_EQ(child<QPushButton>(a, "cmdinserir")->text(), u"&Inserir despesa"_s);
    EXPECT_TRUE(child<QLabel>(a, "PIC1")->isVisibleTo(a));
    EXPECT_FALSE(child<QLabel>(a, "PIC2")->isVisibleTo(a));
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // each box comes up showing the first of its list
    EXPECT_EQ(items(combo(a, "cboorigem")), (QStringList{u"Banco do Brasil"_s, u"Itaú"_s}));
    EXPECT_EQ(combo(a, "cboorigem")->currentText(), u"Banco do Brasil"_s);
    EXPECT_EQ(combo(a, "cbotipo")->currentText(), u"Auto Peças Sul"_s);
    EXPECT_EQ(combo(a, "txtdescricao")->currentText(), u"Aluguel"_s);
    EXPECT_EQ(items(combo(a, "cbomoeda")), (QStringList{u"R$"_s, u"$"_s, u"€"_s, u"¥"_s, u"£"_s}));
    EXPECT_EQ(combo(a, "cbomoeda")->currentText(), u"R$"_s);
    EXPECT_EQ(combo(a, "cboestatus")->currentText(), u"Pendente"_s);
    EXPECT_EQ(date(a, "txtdata")->text(), u"23/11/2026"_s);
    EXPECT_FALSE(child<QCheckBox>(a, "chkcontinuar")->isChecked());

    // typed: the supplier completed from its first letters, an amount, a document with blanks
    QComboBox* tipo = combo(a, "cbotipo");
    tipo->setEditText(QString());
    keys::type(tipo, u"pap"_s);
    EXPECT_EQ(tipo->currentText(), u"Papelaria Central"_s);
    keys::type(combo(a, "cboorigem"), u"x"_s); // chosen, never typed
    EXPECT_EQ(combo(a, "cboorigem")->currentText(), u"Banco do Brasil"_s);
    keys::type(edit(a, "txtdocumento"), u"  NF 1  "_s);
    keys::type(edit(a, "txtvalor"), u"1234,5"_s);
    date(a, "txtvencimento")->set_text(u"2026/11/30"_s);
    combo(a, "cboestatus")->setCurrentIndex(1);
    keys::alt(a, 'I');

    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join(u'\n').toStdString();
    EXPECT_EQ(pagar(), QStringList{u"Concluído|Banco do Brasil|Papelaria Central|2026/11/23|Aluguel|NF 1 | "
                                   u"|1.234,50|2026/11/30|R$"_s});
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    // the expense list on its tab; closing then reloads the income list, as the window always did
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    ASSERT_EQ(p->lstpagar->row_count(), 1);
    EXPECT_EQ(p->lstpagar->text(0, 2), u"Aluguel"_s);
    EXPECT_EQ(p->lstreceber->row_count(), 0);
}

TEST_F(adicionar, an_income_without_any_account_gets_a_hyphen) {
    nomes(u"cliente"_s, u"nome"_s, {u"Maria Souza"_s, u"Ana Lima"_s});
    nomes(u"pcontareceber"_s, u"descricao"_s, {u"Vendas à vista"_s});
    frmadicionar* a = abrir(false);
    EXPECT_EQ(a->windowTitle(), u"Adicionar Contas a receber - Receita"_s);
    EXPECT_EQ(child<QPushButton>(a, "cmdinserir")->text(), u"&Inserir receita"_s);
    EXPECT_FALSE(child<QLabel>(a, "PIC1")->isVisibleTo(a));
    EXPECT_TRUE(child<QLabel>(a, "PIC2")->isVisibleTo(a));
    EXPECT_EQ(combo(a, "cboorigem")->currentText(), QString());
    EXPECT_EQ(combo(a, "cbotipo")->currentText(), u"Ana Lima"_s);
    preencher(a, u"80,5"_s);
    click(a, "cmdinserir");
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(receber(),
              QStringList{u"Pendente|-|Ana Lima|2026/11/23|Vendas à vista| | |80,50|2026/11/30|R$"_s});
    EXPECT_TRUE(pagar().isEmpty());
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->row_count(), 1);
}

TEST_F(adicionar, the_continuing_mode_keeps_the_window_and_the_lists_until_it_closes) {
    conta(u"Itaú"_s, u"10,00"_s);
    frmadicionar* a = abrir();
    child<QCheckBox>(a, "chkcontinuar")->setChecked(true);
    combo(a, "cbomoeda")->setCurrentIndex(2);
    edit(a, "txtdocumento")->setText(u"NF 7"_s);
    child<QPlainTextEdit>(a, "txtinfo")->setPlainText(u"primeira"_s);
    preencher(a);
    click(a, "cmdinserir");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Cadastrada"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Despesa cadastrada com sucesso!"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_EQ(frmadicionar::aberto(), a);
    EXPECT_TRUE(a->inserido);
    // emptied, and kept
    EXPECT_TRUE(date(a, "txtvencimento")->is_empty());
    EXPECT_TRUE(child<QPlainTextEdit>(a, "txtinfo")->toPlainText().isEmpty());
    EXPECT_TRUE(edit(a, "txtvalor")->text().isEmpty());
    EXPECT_TRUE(edit(a, "txtdocumento")->text().isEmpty());
    EXPECT_TRUE(combo(a, "cbotipo")->currentText().isEmpty());
    EXPECT_EQ(date(a, "txtdata")->text(), u"23/11/2026"_s);
    EXPECT_EQ(combo(a, "txtdescricao")->currentText(), u"Diversos"_s);
    EXPECT_EQ(combo(a, "cbomoeda")->currentText(), u"€"_s);
    EXPECT_EQ(combo(a, "cboorigem")->currentText(), u"Itaú"_s);
    EXPECT_EQ(combo(a, "cboestatus")->currentText(), u"Pendente"_s);

    preencher(a, u"20"_s);
    click(a, "cmdinserir");
    EXPECT_EQ(pagar(),
              (QStringList{u"Pendente|Itaú|Fulano|2026/11/23|Diversos|NF 7 |primeira |150,00|2026/11/30|€"_s,
                           u"Pendente|Itaú|Fulano|2026/11/23|Diversos| | |20,00|2026/11/30|€"_s}));
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    // an income already in the file shows once the window closes: the income list is reloaded,
    // the expense list is not
    exec(u"INSERT INTO receber (estatus, origem, cliente, data, Valor) VALUES ('Pendente', 'Itaú', 'Ana', "
         u"'2026/11/01', '5,00')"_s);
    keys::alt(a, 'C');
    settle();
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    EXPECT_EQ(p->lstreceber->row_count(), 1);
}

TEST_F(adicionar, with_the_lists_hidden_nothing_reloads_but_the_income_list_on_closing) {
    store::save_setting(store::secao_config, u"ExibirPrincipal"_s, u"0"_s);
    frmadicionar* a = abrir();
    p->xtab->setCurrentIndex(2);
    preencher(a);
    click(a, "cmdinserir");
    EXPECT_EQ(pagar().size(), 1);
    EXPECT_EQ(p->xtab->currentIndex(), 2);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
}

TEST_F(adicionar, a_value_field_tabbed_through_stays_blank_and_a_typed_zero_is_accepted) {
    frmadicionar* a = abrir();
    keys::show_active(a);
    QLineEdit* valor = edit(a, "txtvalor");
    preencher(a, QString());
    valor->setFocus(Qt::TabFocusReason);
    keys::press(valor, Qt::Key_Tab);
    ASSERT_FALSE(valor->hasFocus());
    EXPECT_TRUE(valor->text().isEmpty());
    click(a, "cmdinserir");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Os seguintes dados estão em branco: \n\nValor"_s);
    // a leading comma gives zero, which is an amount like any other
    valor->setFocus(Qt::TabFocusReason);
    keys::type(valor, u",5"_s);
    keys::press(valor, Qt::Key_Tab);
    EXPECT_EQ(valor->text(), u"0,00"_s);
    click(a, "cmdinserir");
    EXPECT_EQ(pagar(), QStringList{u"Pendente|-|Fulano|2026/11/23|Diversos| | |0,00|2026/11/30|R$"_s});
}

TEST_F(adicionar, a_failed_write_leaves_the_window_open_with_everything_typed) {
    conta(u"D''Ávila"_s, u"10,00"_s);
    exec(u"CREATE TRIGGER recusa BEFORE INSERT ON pagar BEGIN SELECT RAISE(ABORT, 'disco cheio'); END"_s);
    frmadicionar* a = abrir();
    EXPECT_EQ(combo(a, "cboorigem")->currentText(), u"D'Ávila"_s);
    preencher(a, u"42"_s);
    edit(a, "txtdocumento")->setText(u"NF 3"_s);
    const entries::entry_fields antes = a->campos();
    click(a, "cmdinserir");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(prompts_.boxes()[0].text,
              u"Ocorreu o seguinte erro ao tentar cadastrar os dados: disco cheio"_s);
    EXPECT_EQ(frmadicionar::aberto(), a);
    EXPECT_FALSE(a->inserido);
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const entries::entry_fields depois = a->campos();
    EXPECT_EQ(depois.valor, antes.valor);
    EXPECT_EQ(depois.documento, antes.documento);
    EXPECT_EQ(depois.vencimento, antes.vencimento);
    EXPECT_EQ(depois.nome, antes.nome);
    EXPECT_TRUE(pagar().isEmpty());
    // nothing was lost: once the file takes it, the same press writes the row, apostrophe and all
    exec(u"DROP TRIGGER recusa"_s);
    prompts_.clear();
    click(a, "cmdinserir");
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(pagar(),
              QStringList{u"Pendente|D'Ávila|Fulano|2026/11/23|Diversos|NF 3 | |42,00|2026/11/30|R$"_s});
}

TEST_F(adicionar, alt_c_and_alt_i_only) {
    frmadicionar* a = abrir();
    keys::alt(a, 'X');
    keys::alt(a, 'E');
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_TRUE(a->isVisible());
    keys::alt(edit(a, "txtdocumento"), 'I');
    EXPECT_EQ(prompts_.boxes().size(), 1u);
    keys::alt(edit(a, "txtdocumento"), 'C');
    settle();
    EXPECT_EQ(frmadicionar::aberto(), nullptr);
    EXPECT_EQ(prompts_.boxes().size(), 1u);
}

} // namespace

namespace {

TEST_F(adicionar, fields_take_the_focus_colour_and_the_dates_step_back_from_the_top) {
    frmadicionar* a = abrir();
    keys::show_active(a);
    QLineEdit* documento = edit(a, "txtdocumento");
    documento->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(documento->palette().color(QPalette::Base), bgr_colour(cor_foco));
    // Enter goes on as Tab, into the date, which lets its calendar come over the window
    keys::enter(documento);
    EXPECT_EQ(documento->palette().color(QPalette::Base), bgr_colour(cor_normal));
    EXPECT_TRUE(date(a, "txtdata")->line_edit()->hasFocus());
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    keys::enter(date(a, "txtdata")->line_edit());
    EXPECT_TRUE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(combo(a, "txtdescricao")->hasFocus());
}

} // namespace
