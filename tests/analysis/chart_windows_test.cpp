// frmconfgrafico's panels and criteria, the charts they draw, and the printed chart page read back
// from the PDF.

#include "analysis/ui/frmconfgrafico.h"
#include "analysis/ui/frmgrafico.h"
#include "analysis/ui/period_boxes.h"
#include "analysis_fixture.h"
#include "platform/print/printer.h"
#include "platform/widgets/date_field.h"
#include "support/golden.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

class chart_windows : public testing_analysis::analysis_fixture {
protected:
    void SetUp() override {
        analysis_fixture::SetUp();
        platform::set_print_destination(&pdf_);
        exec(
            u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', '', '0,00'), ('Banco', '', '0,00')"_s);
        exec(u"INSERT INTO fornecedor (nome) VALUES ('Fornecedor A'), ('Fornecedor B')"_s);
        exec(u"INSERT INTO pcontapagar (descricao) VALUES ('Aluguel'), ('Luz')"_s);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        analysis_fixture::TearDown();
    }
    frmconfgrafico* abrir(const char* item) {
        shell::run_action(QString::fromLatin1(item));
        return janela<frmconfgrafico>("frmconfgrafico");
    }
    platform::pdf_target pdf_{path(u"grafico.pdf"_s)};
};

} // namespace

TEST_F(chart_windows, each_item_shows_its_panel_with_every_criterion_off) {
    frmconfgrafico* w = abrir("mnugrareceber");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Configurar gráfico"_s);
    EXPECT_TRUE(w->picreceber->isVisible());
    EXPECT_FALSE(w->picpagar->isVisible());
    abrir("mnugradesprec");
    EXPECT_TRUE(w->picdesprec->isVisible());
    EXPECT_EQ(w->cbocontadr->currentText(), u"Combo1"_s);
    EXPECT_EQ(w->cboorigemp->currentText(), u"Caixa"_s);
    EXPECT_EQ(w->cbofornecedorp->count(), 2);
    EXPECT_EQ(w->cbodescricaop->count(), 2);
    EXPECT_EQ(w->cbodescricaop->currentText(), QString());
    for (QCheckBox* c : w->findChildren<QCheckBox*>())
        EXPECT_FALSE(c->isChecked()) << qPrintable(c->objectName());
    EXPECT_FALSE(w->frameestatusp->isEnabled());
    EXPECT_FALSE(w->optconcluidop->isEnabled());
    w->chkestatusp->setChecked(true);
    EXPECT_TRUE(w->frameestatusp->isEnabled());
    EXPECT_TRUE(w->optconcluidop->isEnabled());
    w->chkdatap->setChecked(true);
    EXPECT_TRUE(w->cbodata1p->isEnabled() && w->cbodata2p->isEnabled());
    w->chkdatap->setChecked(false);
    EXPECT_FALSE(w->cbodata2p->isEnabled());
}

TEST_F(chart_windows, the_expense_panel_counts_its_rows_into_the_chart) {
    despesas_do_periodo();
    frmconfgrafico* w = abrir("mnugrapagar");
    w->chkdatap->setChecked(true);
    w->cbodata1p->set_text(u"01/11/2026"_s);
    w->cmdnatelap->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Selecione as que deseja filtrar(data de inicio e data final)."_s);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_FALSE(janela<frmgrafico>("frmgrafico"));

    w->cbodata2p->set_text(u"30/11/2026"_s);
    w->chkfornecedorp->setChecked(true);
    w->cmdnatelap->click();
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    EXPECT_EQ(g->windowTitle(), u"Gráfico de contas a pagar(personalizado)"_s);
    EXPECT_EQ(g->mgrafico->title(), u"Gráfico de contas a pagar - despesas"_s);
    EXPECT_EQ(g->mgrafico->data(0), 5);
    EXPECT_EQ(g->mgrafico->data(1), 3);
    EXPECT_EQ(g->lbltotal->text(), u"R$ 1.122,01"_s);
    EXPECT_FALSE(janela<frmconfgrafico>("frmconfgrafico"));
}

TEST_F(chart_windows, empty_results_and_broken_filters_give_each_panel_its_spelling) {
    bancario("2026/11/23", "Pendente", "15,00");
    frmconfgrafico* w = abrir("mnugrapagar");
    // an apostrophe makes the statement fail, which reads as no rows
    w->chkdescricaop->setChecked(true);
    w->cbodescricaop->setEditText(u"D'água"_s);
    w->cmdnatelap->click();
    abrir("mnugrabancario");
    w->chkorigemb->setChecked(true);
    w->cboorigemb->setEditText(u"Nenhum"_s);
    w->cmdnatelab->click();
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"A pesquisa não retonou resultados"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_EQ(prompts_.boxes()[1].text, u"A pesquisa não retornou resultados"_s);

    w->chkorigemb->setChecked(false);
    w->cmdnatelab->click();
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    EXPECT_EQ(g->windowTitle(), u"Estatistica de contas a receber"_s);
    EXPECT_EQ(g->lbl2->text(), u"Valor Total:"_s);
    EXPECT_EQ(g->mgrafico->data(1), 1);
}

TEST_F(chart_windows, expenses_against_income_shows_sums_and_hides_the_last_pairs) {
    pagar("2026/11/01", "Pendente", "40,75");
    receber("2026/11/02", "Concluído", "100,50");
    frmconfgrafico* w = abrir("mnugradesprec");
    w->cmdgradr->click();
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    EXPECT_EQ(g->windowTitle(), u"Gráfico de despesas x receitas(personalizado)"_s);
    EXPECT_EQ(g->lbl4->text(), u"Diferença entre despesas x receitas"_s);
    EXPECT_EQ(g->lblqtdpg->text(), u"R$ 59,75"_s);
    EXPECT_TRUE(g->lbl5->isHidden() && g->lblqtdpen->isHidden());
    EXPECT_EQ(g->mgrafico->column_label(1), u"Despesas"_s);
    EXPECT_EQ(g->mgrafico->data(0), 141);
    EXPECT_EQ(g->mgrafico->data(2), 100);
    // ticking the account box without typing filters by the box's first text
    w = abrir("mnugradesprec");
    w->chkcontadr->setChecked(true);
    w->cmdgradr->click();
    EXPECT_EQ(g->lbltotalcad->text(), u"R$ 0,00"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(chart_windows, the_printed_page_holds_the_picture_then_the_figures) {
    despesas_do_periodo();
    shell::run_action(u"mnugradiadesp"_s);
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    g->resize(700, 600);
    const QImage figura = g->mgrafico->picture();
    EXPECT_FALSE(figura.isNull());
    EXPECT_GT(figura.width(), 600);
    g->cmdimprimir->click();
    EXPECT_FALSE(janela<frmgrafico>("frmgrafico"));
    const QString texto = support::pdf_pages(pdf_.path()).join(QString());
    const QString regua(77, u'-');
    EXPECT_TRUE(texto.contains(regua + u"\n Estatísticas\n"_s + regua)) << qPrintable(texto);
    // (the text reader drops the blank that leads each line)
    EXPECT_TRUE(texto.contains(
        u"\nTotal de despesas cadastradas: 4 cadastros\n\nTotal de despesas: R$ 1.022,01\n"_s));
    EXPECT_TRUE(texto.contains(u"\nQtd de despesas pendentes cadastradas: 2 cadastros\n\n"_s + regua));
    EXPECT_TRUE(texto.contains(u"\nGerado segunda-feira, 23 de novembro de 2026 às 10:00:00\n"_s));
    // the chart goes on the page as a picture
    QProcess imagens;
    imagens.start(u"pdfimages"_s, {u"-list"_s, pdf_.path()});
    imagens.waitForFinished(60000);
    EXPECT_EQ(QString::fromUtf8(imagens.readAllStandardOutput()).count(u" image "_s), 1);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(chart_windows, month_and_year_boxes_are_picked_from_and_read_back_as_a_date) {
    std::unique_ptr<QComboBox> mes(analysis::caixa_meses("cbomes1", true));
    std::unique_ptr<QComboBox> ano(analysis::caixa_anos("cboano1"));
    EXPECT_EQ(mes->count(), 12);
    EXPECT_EQ(mes->itemText(6), u"julho"_s);
    EXPECT_EQ(ano->count(), 151);
    EXPECT_EQ(ano->itemText(150), u"2150"_s);
    analysis::mostrar_mes(mes.get(), QDate(2026, 11, 23));
    analysis::mostrar_ano(ano.get(), QDate(2026, 11, 23));
    EXPECT_EQ(mes->currentText(), u"novembro"_s);
    EXPECT_EQ(analysis::data_das_caixas(mes.get(), ano.get()), QDate(2026, 11, 1));
    // typing is swallowed
    QKeyEvent tecla(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    QCoreApplication::sendEvent(mes->lineEdit(), &tecla);
    EXPECT_EQ(mes->currentText(), u"novembro"_s);
    mes->setCurrentIndex(6);
    EXPECT_EQ(analysis::data_das_caixas(mes.get(), ano.get()), QDate(2026, 7, 1));
}
