// Changing one expense or one income: frmeditar filled from the selected row, written back whole.
#include "support/window_fixture.h"

namespace {

class editar : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        conta("Itaú", "10,00");
        nomes("cliente", "nome", {"Ana Lima"});
        entrada("pagar", "2026/11/01", "Pendente", "Itaú", "10,00");
        // settled: no account, the settling day in dd/mm/yyyy, blanks behind the free texts
        exec(
            "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, informacoes, Valor, "
            "vencimento, moeda) VALUES ('Concluído', '-', 'Light', '2026/11/02', 'Energia', 'NF 9 ', 'nota "
            "', "
            "'1.234,56', '16/11/2026', '$')");
        entrada("receber", "2026/11/03", "Pendente", "Itaú", "80,00");
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
        return rows("SELECT estatus, origem, fornecedor, data, descricao, documento, informacoes, Valor, "
                    "vencimento, moeda FROM pagar ORDER BY \"código\"");
    }
};

TEST_F(editar, the_row_comes_up_in_the_fields_and_goes_back_whole) {
    frmeditar* e = abrir_linha(1);
    EXPECT_EQ(e->windowTitle(), "Adicionar Contas a pagar - Despesa");
    EXPECT_EQ(e->cmdinserir->text(), "&Editar despesa");
    EXPECT_EQ(e->lblcodigo->text(), "2");
    EXPECT_EQ(e->findChild<QCheckBox*>("chkcontinuar"), nullptr);
    EXPECT_EQ(p->codigoselecionado, 2.0);
    // the account shows though no entry of its list holds it
    EXPECT_EQ(e->campos(), (entries::entry_fields{"Concluído", "-", "Light", "02/11/2026", "Energia", "NF 9 ",
                                                  "nota ", "1.234,56", "16/11/2026", "$"}));
    EXPECT_EQ(items(e->cboorigem), QStringList{"Itaú"});

    e->txtvalor->setText("99");
    p->xtab->setCurrentIndex(3);
    keys::alt(e, 'E');
    EXPECT_TRUE(prompts_.boxes().empty()) << boxes().join('\n').toStdString();
    // all ten columns rewritten: the free texts keep one blank, the due date goes back to yyyy/mm/dd
    EXPECT_EQ(pagar(), (QStringList{"Pendente|Itaú|Fulano|2026/11/01|Aluguel| | |10,00|2026/12/10|R$",
                                    "Concluído|-|Light|2026/11/02|Energia|NF 9 |nota |99,00|2026/11/16|$"}));
    settle();
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(p->lstpagar->text(1, 6), "$ 99,00");
}

TEST_F(editar, an_income_is_edited_by_its_own_table) {
    p->lstreceber->select_row(0);
    p->alterarreceber();
    frmeditar* e = frmeditar::aberto();
    ASSERT_TRUE(e);
    EXPECT_EQ(e->windowTitle(), "Adicionar Contas a receber - Receita");
    EXPECT_EQ(items(e->cbotipo), QStringList{"Ana Lima"});
    e->cboestatus->setCurrentIndex(1);
    keys::alt(e, 'I');
    EXPECT_EQ(rows("SELECT estatus, cliente, Valor FROM receber"), QStringList{"Concluído|Fulano|80,00"});
    EXPECT_EQ(pagar().size(), 2);
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->text(0, 7), "Concluído");
}

TEST_F(editar, a_row_removed_meanwhile_fails_into_the_handler_and_cancelling_writes_nothing) {
    frmeditar* e = abrir_linha(0);
    exec("DELETE FROM pagar WHERE \"código\" = 1");
    e->cmdinserir->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, "Erro");
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith("Ocorreu o seguinte erro ao tentar cadastrar os dados: "));
    EXPECT_EQ(frmeditar::aberto(), e);
    const QStringList antes = pagar();
    e->txtvalor->setText("5");
    keys::alt(e, 'C');
    settle();
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_EQ(pagar(), antes);
}

} // namespace
