#include "entries/window_fixture.h"
#include "platform/widgets/key_input.h"

using namespace Qt::StringLiterals;

namespace {

class editar : public support::window_fixture {
protected:
    void SetUp() override {
        support::window_fixture::SetUp();
        conta(u"Itaú"_s, u"10,00"_s);
        nomes(u"fornecedor"_s, u"nome"_s, {u"Papelaria Central"_s});
        nomes(u"cliente"_s, u"nome"_s, {u"Ana Lima"_s});
        nomes(u"pcontapagar"_s, u"descricao"_s, {u"Aluguel"_s});
        exec(u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, "
             u"Valor, "
             u"vencimento, moeda) VALUES ('Pendente', 'Itaú', 'Papelaria Central', '2026/11/01', 'Aluguel', "
             u"' ', "
             u"' ', '10,00', '2026/11/10', 'R$')"_s);
        // settled: no account, the settling day in dd/mm/yyyy, blanks behind the free texts
        exec(u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, "
             u"Valor, "
             u"vencimento, moeda) VALUES ('Concluído', '-', 'Light', '2026/11/02', 'Energia', 'NF 9 ', 'nota "
             u"', "
             u"'1.234,56', '16/11/2026', '$')"_s);
        exec(
            u"INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, informacoes, Valor, "
            u"vencimento, moeda) VALUES ('Pendente', 'Itaú', 'Ana Lima', '2026/11/03', 'Vendas', ' ', ' ', "
            u"'80,00', '2026/11/20', 'R$')"_s);
        p->carregarpagar();
        p->carregarreceber();
    }
    frmeditar* abrir_linha(int row) {
        p->lstpagar->select_row(row);
        p->alterarpagar();
        frmeditar* e = frmeditar::aberto();
        EXPECT_TRUE(e && e->isVisible());
        return e;
    }
    QStringList pagar() {
        return rows(u"SELECT estatus, origem, fornecedor, data, descricao, documento, informacoes, Valor, "
                    u"vencimento, moeda FROM pagar ORDER BY \"código\""_s);
    }
};

TEST_F(editar, the_row_comes_up_in_the_fields_and_goes_back_whole) {
    frmeditar* e = abrir_linha(1);
    EXPECT_EQ(e->windowTitle(), u"Adicionar Contas a pagar - Despesa"_s);
    EXPECT_EQ(child<QPushButton>(e, "cmdinserir")->text(), u"&Editar despesa"_s);
    EXPECT_TRUE(child<QLabel>(e, "PIC1")->isVisibleTo(e));
    EXPECT_EQ(child<QLabel>(e, "lblcodigo")->text(), u"2"_s);
    EXPECT_EQ(e->findChild<QCheckBox*>(u"chkcontinuar"_s), nullptr);
    EXPECT_EQ(p->codigoselecionado, 2.0);
    EXPECT_EQ(combo(e, "cboestatus")->currentText(), u"Concluído"_s);
    EXPECT_EQ(combo(e, "cboorigem")->currentText(), u"-"_s); // though no entry of its list
    EXPECT_EQ(items(combo(e, "cboorigem")), QStringList{u"Itaú"_s});
    EXPECT_EQ(combo(e, "cbotipo")->currentText(), u"Light"_s);
    EXPECT_EQ(date(e, "txtdata")->text(), u"02/11/2026"_s);
    EXPECT_EQ(combo(e, "txtdescricao")->currentText(), u"Energia"_s);
    EXPECT_EQ(edit(e, "txtdocumento")->text(), u"NF 9 "_s);
    EXPECT_EQ(child<QPlainTextEdit>(e, "txtinfo")->toPlainText(), u"nota "_s);
    EXPECT_EQ(edit(e, "txtvalor")->text(), u"1.234,56"_s);
    EXPECT_EQ(date(e, "txtvencimento")->text(), u"16/11/2026"_s);
    EXPECT_EQ(combo(e, "cbomoeda")->currentText(), u"$"_s);

    edit(e, "txtvalor")->setText(u"99"_s);
    p->xtab->setCurrentIndex(3);
    keys::alt(e, 'E');
    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join(u'\n').toStdString();
    // all ten columns rewritten: the free texts keep one blank, the due date goes back to yyyy/mm/dd
    EXPECT_EQ(pagar(),
              (QStringList{u"Pendente|Itaú|Papelaria Central|2026/11/01|Aluguel| | |10,00|2026/11/10|R$"_s,
                           u"Concluído|-|Light|2026/11/02|Energia|NF 9 |nota |99,00|2026/11/16|$"_s}));
    settle();
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(p->lstpagar->text(1, 6), u"$ 99,00"_s);
}

TEST_F(editar, an_income_is_edited_by_its_own_table) {
    p->lstreceber->select_row(0);
    p->alterarreceber();
    frmeditar* e = frmeditar::aberto();
    ASSERT_TRUE(e);
    EXPECT_EQ(e->windowTitle(), u"Adicionar Contas a receber - Receita"_s);
    EXPECT_EQ(child<QPushButton>(e, "cmdinserir")->text(), u"&Editar receita"_s);
    EXPECT_TRUE(child<QLabel>(e, "PIC2")->isVisibleTo(e));
    EXPECT_EQ(combo(e, "cbotipo")->currentText(), u"Ana Lima"_s);
    EXPECT_EQ(items(combo(e, "txtdescricao")), QStringList());
    combo(e, "cboestatus")->setCurrentIndex(1);
    keys::alt(e, 'I');
    EXPECT_EQ(rows(u"SELECT estatus, cliente, Valor FROM receber"_s),
              QStringList{u"Concluído|Ana Lima|80,00"_s});
    EXPECT_EQ(pagar().size(), 2);
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->text(0, 7), u"Concluído"_s);
}

TEST_F(editar, a_row_removed_meanwhile_fails_into_the_handler) {
    frmeditar* e = abrir_linha(0);
    exec(u"DELETE FROM pagar WHERE \"código\" = 1"_s);
    click(e, "cmdinserir");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith(u"Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s));
    EXPECT_EQ(frmeditar::aberto(), e);
    EXPECT_EQ(pagar().size(), 1);
}

TEST_F(editar, cancelling_or_an_empty_list_changes_nothing) {
    const QStringList antes = pagar();
    frmeditar* e = abrir_linha(0);
    edit(e, "txtvalor")->setText(u"5"_s);
    keys::alt(e, 'C');
    settle();
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_EQ(pagar(), antes);
    p->lstpagar->clear_rows();
    p->alterarpagar();
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_TRUE(prompts_.boxes().empty());
}

} // namespace
