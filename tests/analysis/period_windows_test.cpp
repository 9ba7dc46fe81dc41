// The period members through their actions: the rows, labels and totals they leave in the report,
// movement, chart and statistics windows, their no-data texts, and the main menu's routing.

#include "analysis/ui/frmestatisticas.h"
#include "analysis/ui/frmgrafico.h"
#include "analysis_fixture.h"
#include "output/ui/frmmovimento.h"
#include "output/ui/frmrelatorio.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

class period_windows : public testing_analysis::analysis_fixture {
protected:
    void run(const char* item) { ASSERT_TRUE(shell::run_action(QString::fromLatin1(item))) << item; }
    QString label(QWidget* w, const char* name) {
        return w->findChild<QLabel*>(QString::fromLatin1(name))->text();
    }
};

const QString periodo_dia = u"Dados cadastrados: segunda-feira, 23 de novembro de 2026 até 10:00:00"_s;

} // namespace

TEST_F(period_windows, day_movement_lists_every_field_with_a_blank_and_classes_exactly) {
    despesas_do_periodo();
    run("mnudiapagar");
    auto* w = janela<frmmovimento>("frmmovimento");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Movimento do dia de contas a pagar"_s);
    EXPECT_EQ(w->lista_visivel(), w->lstpagar);
    ASSERT_EQ(w->lstpagar->row_count(), 4);
    QStringList primeira;
    for (int c = 0; c < 9; ++c)
        primeira << w->lstpagar->text(0, c);
    EXPECT_EQ(primeira,
              (QStringList{u"23/11/2026 "_s, u"Aluguel "_s, u"D1 "_s, u"Fornecedor A "_s, u"30/11/2026 "_s,
                           u"R$ 1.000,00 "_s, u"Pendente "_s, u"Caixa "_s, u"obs "_s}));
    EXPECT_EQ(w->lstpagar->text(1, 5), u"R$ 10,01 "_s);
    EXPECT_EQ(w->lblsubtitulo->text(), periodo_dia);
    // "pendente" in lower case and any other word count as paid here
    EXPECT_EQ(w->lblpagarest->text(),
              u"Total de cadastros hoje (23/11/2026) 4 cadastros \r\nTotal de despesas: R$ "
              "1.022,01  -  Total pago: R$ 22,01  -  Total pendente: R$ 1.000,00"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(period_windows, movement_of_an_empty_period_shows_the_zero_line_without_a_message) {
    despesas_do_periodo();
    run("mnudiapagar");
    run("mnudibancario");
    auto* w = janela<frmmovimento>("frmmovimento");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Movimento do dia de movimento bancario"_s);
    EXPECT_EQ(w->lista_visivel(), w->lstmovimento);
    EXPECT_EQ(w->lstmovimento->row_count(), 0);
    EXPECT_EQ(w->lblpagarest->text(),
              u"0 cadastros  -  Total de movimento: 0  -  Total Conluido: 0  -  Total pendente: 0"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(period_windows, the_income_movement_keeps_the_expense_words_and_the_bank_year_has_no_period_line) {
    receber("2026/11/23", "Pendente", "20,00");
    receber("2026/11/05", "Concluído", "30,00");
    bancario("2026/02/01", "Concluído", "40,00");
    run("mnumesreceber");
    auto* w = janela<frmmovimento>("frmmovimento");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->lstreceber->text(1, 5), u"US$ 20,00 "_s);
    EXPECT_EQ(w->lblsubtitulo->text(),
              u"Dados cadastrados neste mês: novembro de 2026 até hoje: 23/11/2026"_s);
    EXPECT_EQ(w->lblpagarest->text(),
              u"Total de cadastros neste mês (novembro) 2 cadastros \r\nTotal de despesas: "
              "R$ 50,00  -  Total pago: R$ 30,00  -  Total pendente: R$ 20,00"_s);
    run("mnuanualbancario");
    EXPECT_EQ(w->windowTitle(), u"Movimento anual - bancário"_s);
    EXPECT_EQ(w->lstmovimento->text(0, 4), u"R$ 40,00 "_s);
    EXPECT_EQ(w->lstmovimento->text(0, 6), u"inf "_s);
    EXPECT_EQ(w->lblsubtitulo->text(), QString());
    EXPECT_EQ(w->lblpagarest->text(),
              u"Total de cadastros neste ano (2026) 1 cadastros \r\nTotal de movimento "
              "bancário: R$ 40,00  -  Total concluído: R$ 40,00  -  Total pendente: R$ 0,00"_s);
}

TEST_F(period_windows, reports_fill_frmrelatorio_or_stay_closed_with_their_message) {
    despesas_do_periodo();
    receber("2026/11/23", "Concluído", "20,00");
    run("mnuretdialucros");
    auto* w = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Relatório de movimento do dia (lucros)"_s);
    EXPECT_EQ(w->LBLTIPO->text(), u"CONTAS A RECEBER"_s);
    EXPECT_EQ(w->lista_visivel(), w->lstreceber);
    EXPECT_EQ(w->lstreceber->text(0, 0), u"23/11/2026"_s);
    EXPECT_EQ(w->lstreceber->text(0, 4), u"23/11/2026"_s);
    EXPECT_EQ(w->lblsubtitulo->text(), periodo_dia);
    EXPECT_EQ(w->lblgeral->text(),
              u"Total de cadastros (23/11/2026): 1\r\nTotal de receitas: R$ 20,00 - Total "
              "recebido: R$ 20,00 - Total pendente: R$ 0,00"_s);
    run("mnuretanualdespesas");
    EXPECT_EQ(w->lstpagar->row_count(), 6);
    EXPECT_EQ(w->lblsubtitulo->text(),
              u"Dados cadastrados no ano de: 2026 até hoje: 23/11/2026 às 10:00:00"_s);
    delete w;

    const struct {
        const char* item;
        const char* texto;
    } vazios[] = {{"mnuretanualbancario", "nenhum dado cadastrado com a data de hoje"},
                  {"mnuretmesbancario", "Não há dados cadastrados este mês!"},
                  {"mnuretdiabancario", "Não há dados cadastrados com a data de hoje!"}};
    for (const auto& v : vazios) {
        prompts_.clear();
        run(v.item);
        ASSERT_EQ(prompts_.boxes().size(), 1u) << v.item;
        EXPECT_EQ(prompts_.boxes()[0].text, QString::fromUtf8(v.texto));
        EXPECT_EQ(prompts_.boxes()[0].title, u"Info"_s);
        EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
        EXPECT_FALSE(janela<frmrelatorio>("frmrelatorio")) << v.item;
    }
}

TEST_F(period_windows, charts_count_case_blind_and_show_counts_in_the_bars) {
    despesas_do_periodo();
    run("mnugradiadesp");
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    EXPECT_EQ(g->windowTitle(), u"Gráfico de movimento do dia (despesas)"_s);
    EXPECT_EQ(g->mgrafico->title(), u"Movimento do dia (despesas)"_s);
    EXPECT_EQ(g->mgrafico->column_label(2), u"Concluído"_s);
    EXPECT_EQ(g->mgrafico->data(0), 4);
    EXPECT_EQ(g->mgrafico->data(1), 2);
    EXPECT_EQ(g->mgrafico->data(2), 1);
    EXPECT_EQ(g->lbl4->text(), u"Qtd de despesas pagas cadastradas:"_s);
    // the other status counts in the total only
    const QStringList valores = {g->lbltotalcad->text(), g->lbltotal->text(),    g->lbltotalpg->text(),
                                 g->lblqtdpg->text(),    g->lbltotalpen->text(), g->lblqtdpen->text()};
    EXPECT_EQ(valores, (QStringList{u"4 cadastros"_s, u"R$ 1.022,01"_s, u"R$ 10,01"_s, u"1 cadastros"_s,
                                    u"R$ 1.005,00"_s, u"2 cadastros"_s}));

    bancario("2026/11/23", "Pendente", "15,00");
    run("mnugrabancdia");
    EXPECT_EQ(g->windowTitle(), u"Gráfico de movimento do dia (bancário)"_s);
    EXPECT_EQ(g->lblestatistica->text(), u"Estatistica de contas a receber"_s);
    EXPECT_EQ(g->lbl1->text(), u"Total de cadastradas:"_s);
    EXPECT_EQ(g->mgrafico->data(1), 1);
}

TEST_F(period_windows, an_empty_chart_says_so_and_stays_open_as_designed) {
    despesas_do_periodo();
    run("mnugradiadesp");
    run("mnugraabuallucros");
    auto* g = janela<frmgrafico>("frmgrafico");
    ASSERT_TRUE(g);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    // the year income members speak of the month
    EXPECT_EQ(prompts_.boxes()[0].text, u"Não há dados cadastrados este mês!"_s);
    EXPECT_EQ(g->windowTitle(), u"Gráfico de movimento do ano (lucros)"_s);
    EXPECT_EQ(g->lbl3->text(), u"Total de receitas recebidas:"_s);
    EXPECT_EQ(g->mgrafico->data(0), 0);
    EXPECT_EQ(g->lbltotal->text(), u"R$ 0,00"_s);
}

TEST_F(period_windows, statistics_write_their_words_except_the_month_bank_member) {
    bancario("2026/11/10", "PENDENTE", "12,50");
    bancario("2026/11/11", "Concluído", "abc");
    run("mnuestmesbancario");
    auto* e = janela<frmestatisticas>("frmestatisticas");
    ASSERT_TRUE(e);
    EXPECT_EQ(e->windowTitle(), u"Estatistica de movimento do mês(bancário)"_s);
    EXPECT_EQ(e->lbl1->text(), u"Total de despesas cadastradas:"_s);
    EXPECT_EQ(e->lbl4->text(), u"Quantidade de despesas pagas cadastradas:"_s);
    EXPECT_EQ(e->lbltotalcad->text(), u"2 cadastros"_s);
    EXPECT_EQ(e->lbltotalpen->text(), u"R$ 12,50"_s);
    EXPECT_EQ(e->lblqtdpg->text(), u"1 cadastros"_s);
    EXPECT_EQ(e->lbltotalpg->text(), u"R$ 0,00"_s);
    EXPECT_TRUE(e->lblbdlocal->text().endsWith(u"dados.qntbd"_s));
    EXPECT_TRUE(e->lblbdtamanho->text().endsWith(u" MegaBytes"_s));

    run("mnuestbancario");
    EXPECT_EQ(e->windowTitle(), u"Estatistica de movimento bancário"_s);
    EXPECT_EQ(e->lbl4->text(), u"Quantidade de concluidos cadastradas:"_s);
    run("mnuestreceber");
    EXPECT_EQ(e->lbl6->text(), u"Quantidade de receitas pendentes cadastradas:"_s);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Não há dados cadastrados!"_s);
}

TEST_F(period_windows, the_main_menu_and_its_popup_twins_reach_the_members) {
    exec(u"UPDATE login_inicia SET exigirlogin='0'"_s);
    frmlogin::instance()->abrir();
    frmprincipal* p = frmprincipal::instance();
    receber("2026/11/23", "Pendente", "20,00");
    for (const char* item : {"mnudiapagar", "mnuretanolucros", "mnugralucrosmes", "mnuestanualbancario",
                             "mnuestplanopagar", "mnuretcliente", "mnugradesprec", "mnuestsoftware"})
        EXPECT_TRUE(p->item(QString::fromLatin1(item))->isEnabled()) << item;
    // the month income chart item runs the month income statistics
    p->item(u"mnugralucrosmes"_s)->trigger();
    auto* e = janela<frmestatisticas>("frmestatisticas");
    ASSERT_TRUE(e);
    EXPECT_EQ(e->windowTitle(), u"Estatistica de movimento do mês(lucros)"_s);
    EXPECT_FALSE(janela<frmgrafico>("frmgrafico"));
    delete e;
    QMenu* pop = p->findChild<QMenu*>(u"popreceber"_s);
    ASSERT_TRUE(pop);
    QAction* twin = nullptr;
    for (QAction* a : pop->findChildren<QAction*>())
        if (a->objectName() == u"popgramesreceber"_s) twin = a;
    ASSERT_TRUE(twin);
    twin->trigger();
    EXPECT_TRUE(janela<frmestatisticas>("frmestatisticas"));
    delete frmprincipal::instance();
    frmlogin::descarregar();
}
