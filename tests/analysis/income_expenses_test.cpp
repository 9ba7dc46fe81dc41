// Income against expenses per account: the statement heads of each tab, the figures on a small
// file, the totals read back from the rows, and the window.

#include "analysis/income_expenses.h"
#include "analysis/ui/frmrelacaodesluc.h"
#include "platform/sql/jet_dialect.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "support/fixture.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

TEST(relacao_heads, each_tab_asks_for_its_period_and_the_account_exactly) {
    const QString p = u"Select * from pagar where (estatus like 'Concluído') AND "_s;
    const QString r = u"Select * from receber where (estatus like 'Concluído') AND "_s;
    const struct {
        analysis::relacao_cabecas c;
        QString tail;
    } cases[] = {
        {analysis::cabecas_anual(u"2026"_s), u"(data like '%2026/%') AND (origem like 'Itaú')"_s},
        {analysis::cabecas_mensal(u"2026"_s, 3), u"(data like '%2026/03/%') AND (origem like 'Itaú')"_s},
        {analysis::cabecas_diario(QDate(2026, 11, 3)),
         u"(data like '2026/11/03') AND (origem like 'Itaú')"_s},
        // the general heads end in "AND " and the account's test follows with no joiner
        {analysis::cabecas_geral(), u"(origem like 'Itaú')"_s},
        {analysis::cabecas_entre_datas(u"2026/01/01"_s, u"2026/06/30"_s),
         u"Data BETWEEN '2026/01/01' AND '2026/06/30' AND (origem like 'Itaú')"_s},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(analysis::relacao_statement(c.c.despesas, c.c.geral, u"Itaú"_s), p + c.tail);
        EXPECT_EQ(analysis::relacao_statement(c.c.receitas, c.c.geral, u"Itaú"_s), r + c.tail);
        EXPECT_FALSE(c.c.nenhum_dia);
    }
    EXPECT_TRUE(analysis::cabecas_entre_datas(u"2026/06/30"_s, u"2026/01/01"_s).nenhum_dia);
    EXPECT_TRUE(sql::has_poisoned_value(analysis::relacao_statement(p, true, u"D'Ávila"_s)));
}

class relacao : public support::fixture {
protected:
    void TearDown() override {
        QList<QPointer<QWidget>> abertas;
        for (QWidget* w : QApplication::topLevelWidgets())
            abertas << w;
        for (const QPointer<QWidget>& w : abertas)
            delete w.data();
        support::fixture::TearDown();
    }
    void conta(const QString& nome) {
        exec(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('%1', ' ', '0,00')"_s.arg(nome));
    }
    void entrada(const QString& tabela, const QString& estatus, const QString& origem, const QString& valor,
                 const QString& data) {
        exec(u"INSERT INTO %1 (estatus, origem, data, Valor) VALUES ('%2', '%3', '%4', '%5')"_s.arg(
            tabela, estatus, origem, data, valor));
    }
    void livro() {
        conta(u"Itaú"_s);
        conta(u"Caixa"_s);
        conta(u"Vazia"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"1.000,00"_s, u"2026/11/03"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"itaú"_s, u"0,005"_s, u"2026/11/03"_s); // enters as 0,01
        entrada(u"pagar"_s, u"Pendente"_s, u"Itaú"_s, u"500,00"_s, u"2026/11/03"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"abc"_s, u"2026/11/03"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Caixa"_s, u"20,00"_s, u"2026/10/15"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú 2"_s, u"70,00"_s, u"2026/11/03"_s); // no such account
        entrada(u"receber"_s, u"Concluído"_s, u"Itaú"_s, u"250,00"_s, u"2026/11/20"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"80,00"_s, u"2025/11/03"_s);
    }
};

TEST_F(relacao, each_account_gets_a_row_and_the_totals_come_from_the_rows) {
    livro();
    const struct {
        analysis::relacao_cabecas c;
        std::vector<QStringList> linhas;
        QString total;
    } cases[] = {
        {analysis::cabecas_geral(),
         {{u"Itaú"_s, u"R$ 1.000,01"_s, u"R$ 250,00"_s, u"R$ -750,01"_s},
          {u"Caixa"_s, u"R$ 20,00"_s, u"R$ 80,00"_s, u"R$ 60,00"_s},
          {u"Vazia"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s}},
         u"Total de despesas R$ 1.020,01 - Total de lucros R$ 330,00 - Saldo total R$ -690,01"_s},
        {analysis::cabecas_mensal(u"2026"_s, 11),
         {{u"Itaú"_s, u"R$ 1.000,01"_s, u"R$ 250,00"_s, u"R$ -750,01"_s},
          {u"Caixa"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s},
          {u"Vazia"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s}},
         u"Total de despesas R$ 1.000,01 - Total de lucros R$ 250,00 - Saldo total R$ -750,01"_s},
        {analysis::cabecas_anual(u"2025"_s),
         {{u"Itaú"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s},
          {u"Caixa"_s, u"R$ 0,00"_s, u"R$ 80,00"_s, u"R$ 80,00"_s},
          {u"Vazia"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s}},
         u"Total de despesas R$ 0,00 - Total de lucros R$ 80,00 - Saldo total R$ 80,00"_s},
        {analysis::cabecas_diario(QDate(2026, 10, 15)),
         {{u"Itaú"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s},
          {u"Caixa"_s, u"R$ 20,00"_s, u"R$ 0,00"_s, u"R$ -20,00"_s},
          {u"Vazia"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s}},
         u"Total de despesas R$ 20,00 - Total de lucros R$ 0,00 - Saldo total R$ -20,00"_s},
        // reversed dates find nothing
        {analysis::cabecas_entre_datas(u"2026/12/31"_s, u"2026/01/01"_s),
         {{u"Itaú"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s},
          {u"Caixa"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s},
          {u"Vazia"_s, u"R$ 0,00"_s, u"R$ 0,00"_s, u"R$ 0,00"_s}},
         u"Total de despesas R$ 0,00 - Total de lucros R$ 0,00 - Saldo total R$ 0,00"_s},
    };
    for (const auto& c : cases) {
        const auto r = analysis::relacao(c.c);
        EXPECT_EQ(r.linhas, c.linhas) << c.c.despesas.toStdString();
        EXPECT_EQ(analysis::relacao_total(r.linhas), c.total) << c.c.despesas.toStdString();
    }
    // the totals are what the rows show, whatever the data file holds
    EXPECT_EQ(analysis::relacao_total({{u"A"_s, u"R$ 1.000,50"_s, u"R$ 2,25"_s, u"x"_s},
                                       {u"B"_s, u"R$ 0,50"_s, u"texto"_s, u"x"_s}}),
              u"Total de despesas R$ 1.001,00 - Total de lucros R$ 2,25 - Saldo total R$ -998,75"_s);
}

TEST_F(relacao, the_window_its_messages_and_its_menu_item) {
    ASSERT_TRUE(shell::run_action(u"mnulucrosdesp"_s));
    frmrelacaodesluc* w = frmrelacaodesluc::instance();
    EXPECT_EQ(w->windowTitle(), u"Relação de lucros x despesas"_s);
    EXPECT_EQ(w->XTab1->count(), 4);
    for (QComboBox* ano : {w->cboano3, w->cboano4}) {
        EXPECT_EQ(ano->count(), 501);
        EXPECT_EQ(ano->itemText(0), u"2000"_s);
        EXPECT_EQ(ano->itemText(500), u"2500"_s);
        EXPECT_EQ(ano->currentText(), u"2026"_s);
        QKeyEvent tecla(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, u"1"_s);
        QApplication::sendEvent(ano, &tecla);
        EXPECT_EQ(ano->currentText(), u"2026"_s);
    }
    EXPECT_EQ(w->findChildren<QRadioButton*>(u"optmes"_s).size(), 12);
    EXPECT_EQ(w->optmes[2]->text(), u"Março"_s);

    w->cmdveranual->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Não há nenhum banco cadastrado!"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);

    livro();
    w->optentredatas->setChecked(true);
    w->cbodata1->set_text(u"01/11/2026"_s);
    w->cmdvergeral->click();
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[1].text, u"As data inicial e a data final devem ser preenchidas!"_s);
    EXPECT_EQ(w->lstgeral->row_count(), 0);
    w->cbodata2->set_text(u"30/11/2026"_s);
    w->cmdvergeral->click();
    EXPECT_EQ(w->lstgeral->row_count(), 3);
    EXPECT_EQ(w->lblgeral->text(),
              u"Total de despesas R$ 1.000,01 - Total de lucros R$ 250,00 - Saldo total R$ -750,01"_s);

    w->optmes[9]->setChecked(true);
    w->cmdvermensal->click();
    EXPECT_EQ(w->lstmes->text(1, 1), u"R$ 20,00"_s);
    w->caldia->setSelectedDate(QDate(2026, 11, 20));
    w->cmdverdiario->click();
    EXPECT_EQ(w->lbldia->text(),
              u"Total de despesas R$ 0,00 - Total de lucros R$ 250,00 - Saldo total R$ 250,00"_s);
    w->cboano4->setCurrentIndex(25);
    w->cmdveranual->click();
    EXPECT_EQ(w->lstano->text(1, 2), u"R$ 80,00"_s);
}

} // namespace
