// frmpormes and frmvenpormes: the month patterns of each twin, the year kept apart from the
// combo, the rows and the totals line.

#include "analysis/ui/frmpormes.h"
#include "analysis_fixture.h"
#include "platform/widgets/list_view.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::Literals::StringLiterals;
using shell::ledger;

namespace {

class month_views : public testing_analysis::analysis_fixture {};

} // namespace

TEST(month_views_statement, the_twins_differ_in_field_and_january) {
    const struct {
        const analysis::gemeo_mes& g;
        ledger t;
        int mes;
        QString esperado;
    } casos[] = {
        {analysis::contas_por_mes(), ledger::pagar, 1,
         u"Select * from pagar where(Data like '%2026/01/%')"_s},
        {analysis::contas_por_mes(), ledger::receber, 11,
         u"Select * from receber where(Data like '%2026/11/%')"_s},
        {analysis::vencimentos_por_mes(), ledger::pagar, 1,
         u"Select * from pagar where(Vencimento like '%2026/01%')"_s},
        {analysis::vencimentos_por_mes(), ledger::receber, 2,
         u"Select * from receber where(Vencimento like '%2026/02/%')"_s},
    };
    for (const auto& k : casos)
        EXPECT_EQ(analysis::consulta_mes(k.g, k.t, u"2026"_s, k.mes), k.esperado);
}

TEST_F(month_views, tabs_follow_the_kept_year_until_it_is_checked) {
    pagar("2026/11/23", "Pendente", "1.000,00");
    pagar("2026/11/02", "Cancelado", "10,005"); // any other word counts as paid
    pagar("2026/01/05", "Concluído", "3,00");
    pagar("2025/11/05", "Concluído", "7,00");
    shell::run_action(u"mnuviscontmespagar"_s);
    auto* w = janela<frmpormes>("frmpormes");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Contas separadas por mês"_s);
    EXPECT_EQ(w->cboano->currentText(), u"2026"_s);
    EXPECT_EQ(w->cboano->count(), 151);
    EXPECT_EQ(w->meses->currentIndex(), 0);
    ASSERT_EQ(w->lstlista->row_count(), 1);
    EXPECT_EQ(w->lstlista->text(0, 1), u"05/01/2026"_s);
    EXPECT_EQ(w->lstlista->text(0, 6), u"R$ 3,00"_s);

    w->meses->setCurrentIndex(10);
    EXPECT_EQ(w->lstlista->row_count(), 2);
    EXPECT_EQ(w->lblest->text(),
              u"2 cadastros  -  Total de despesas: R$ 1.010,01  -  Total pago: R$ 10,01  -  "
              "Total pendente: R$ 1.000,00"_s);
    // a new year in the combo waits for the button
    w->cboano->setCurrentText(u"2025"_s);
    w->meses->setCurrentIndex(9);
    w->meses->setCurrentIndex(10);
    EXPECT_EQ(w->lstlista->row_count(), 2);
    w->cmdverificar->click();
    EXPECT_EQ(w->windowTitle(), u"Visualizando contas a pagar separadas por mês - ano de 2025"_s);
    EXPECT_EQ(w->meses->currentIndex(), 0);
    EXPECT_EQ(w->lstlista->row_count(), 0);
    EXPECT_EQ(w->lblest->text(), u"0 cadastros  -  Total de despesas: R$ 0,00  -  Total pago: R$ 0,00  -  "
                                 "Total pendente: R$ 0,00"_s);
    w->meses->setCurrentIndex(10);
    EXPECT_EQ(w->lstlista->row_count(), 1);
}

TEST_F(month_views, the_due_date_twin_reads_receber) {
    receber("2026/03/01", "Pendente", "15,00"); // due 23/11/2026 as stored by the fixture
    exec(u"UPDATE receber SET vencimento = '2026/01/09'"_s);
    shell::run_action(u"mnuvisvencreceber"_s);
    auto* w = janela<frmvenpormes>("frmvenpormes");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Vencimentos por mês"_s);
    ASSERT_EQ(w->lstlista->row_count(), 1);
    EXPECT_EQ(w->lstlista->text(0, 4), u"Cliente A"_s);
    EXPECT_EQ(w->lstlista->text(0, 5), u"2026/01/09"_s);
    EXPECT_EQ(w->lblest->text(),
              u"1 cadastros  -  Total de receitas: R$ 15,00  -  Total recebido: R$ 0,00  -  "
              "Total pendente: R$ 15,00"_s);
}
