// frmconfrelatorio2: the checks in their order, the centre matched whole, the report it fills and
// the pages of its own menu.

#include "analysis/ui/frmconfrelatorio2.h"
#include "analysis_fixture.h"
#include "output/ui/frmrelatorio.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;
using analysis::consolidado;

namespace {

class consolidated_report : public testing_analysis::analysis_fixture {
protected:
    void SetUp() override {
        analysis_fixture::SetUp();
        exec(u"INSERT INTO pcontapagar (descricao) VALUES ('Aluguel'), ('Luz')"_s);
        pagar("2026/11/23", "Pendente", "1.000,00");
        pagar("2026/11/10", "Concluído", "10,005");
        pagar("2026/11/11", "Concluído", "4,00", "Fornecedor A", "Aluguel extra");
        pagar("2026/11/12", "Pendente", "9,00", "Fornecedor B", "Luz");
    }
    frmconfrelatorio2* abrir(const char* item) {
        shell::run_action(QString::fromLatin1(item));
        return janela<frmconfrelatorio2>("frmconfrelatorio2");
    }
    template <class W> W* filho(QWidget* w, const char* nome) {
        return w->findChild<W*>(QString::fromLatin1(nome));
    }
};

} // namespace

TEST(consolidated_statement, each_report_matches_its_column_whole) {
    analysis::pedido_consolidado p;
    p.data1 = QDate(2026, 11, 1);
    p.data2 = QDate(2026, 11, 30);
    p.valor = u"Luz"_s;
    EXPECT_EQ(
        analysis::consulta_consolidado(p),
        u"Select * from pagar WHERE data BETWEEN '2026/11/01' AND '2026/11/30' AND descricao like 'Luz'"_s);
    p.tipo = consolidado::cliente;
    p.data_cadastro = false;
    EXPECT_EQ(analysis::consulta_consolidado(p),
              u"Select * from receber WHERE vencimento BETWEEN '2026/11/01' AND "
              "'2026/11/30' AND cliente like 'Luz'"_s);
    p.tipo = consolidado::pagamento;
    p.despesas = false;
    EXPECT_EQ(analysis::consulta_consolidado(p),
              u"select * from receber WHERE vencimento BETWEEN '2026/11/01' AND "
              "'2026/11/30' AND pagamento like 'Luz'"_s);
}

TEST_F(consolidated_report, dates_first_then_the_centre_then_the_report) {
    frmconfrelatorio2* w = abrir("mnuretcentrocusto");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Relatório de centro de custo"_s);
    EXPECT_TRUE(w->piccentrocusto->isVisible());
    EXPECT_EQ(w->cbocentrocusto->currentText(), u"Luz"_s); // the last centre read
    w->cbocentrocusto->setEditText(u"  "_s);
    filho<QPushButton>(w, "cmdcentrocusto")->click();
    filho<date_field>(w, "cbodata1c")->set_text(u"10/11/2026"_s);
    filho<date_field>(w, "cbodata2c")->set_text(u"23/11/2026"_s);
    filho<QPushButton>(w, "cmdcentrocusto")->click();
    w->cbocentrocusto->setEditText(u"Aluguel"_s);
    filho<date_field>(w, "cbodata1c")->set_text(u"11/11/2026"_s);
    filho<date_field>(w, "cbodata2c")->set_text(u"11/11/2026"_s);
    filho<QPushButton>(w, "cmdcentrocusto")->click(); // "Aluguel extra" is not "Aluguel"
    // reversed dates find nothing: the store reads BETWEEN with the earlier day first
    filho<date_field>(w, "cbodata1c")->set_text(u"23/11/2026"_s);
    filho<date_field>(w, "cbodata2c")->set_text(u"10/11/2026"_s);
    filho<QPushButton>(w, "cmdcentrocusto")->click();
    ASSERT_EQ(prompts_.boxes().size(), 4u);
    EXPECT_EQ(prompts_.boxes()[3].text, u"A pesquisa não retornou resultados!"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, u"As datas que deseja filtrar devem ser definidas!"_s);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[1].text, u"O centro de custo deve ser selecionado!"_s);
    EXPECT_EQ(prompts_.boxes()[1].title, u"Quintara"_s);
    EXPECT_EQ(prompts_.boxes()[2].text, u"A pesquisa não retornou resultados!"_s);
    EXPECT_TRUE(janela<frmconfrelatorio2>("frmconfrelatorio2"));

    filho<date_field>(w, "cbodata1c")->set_text(u"10/11/2026"_s);
    filho<date_field>(w, "cbodata2c")->set_text(u"23/11/2026"_s);
    filho<QPushButton>(w, "cmdcentrocusto")->click();
    auto* r = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(r);
    EXPECT_FALSE(janela<frmconfrelatorio2>("frmconfrelatorio2"));
    EXPECT_EQ(r->LBLTIPO->text(), u"CENTRO DE CUSTO"_s);
    EXPECT_EQ(r->lblsubtitulo->text(),
              u"Relatório gerado entre as datas de 10/11/2026 e 23/11/2026 - Período de 13 dias."_s);
    EXPECT_EQ(r->lblgeral->text(), u"Total de cadastros no período: 2 (entre 10/11/2026 e 23/11/2026)\r\n"
                                   "Total de despesas: R$ 1.010,01 - Total pago: R$ 10,01 - Total pendente: "
                                   "R$ 1.000,00"_s);
    EXPECT_EQ(r->lstpagar->row_count(), 2);
}

TEST_F(consolidated_report, the_supplier_page_from_the_window_menu) {
    exec(u"INSERT INTO fornecedor (nome) VALUES ('Fornecedor A'), ('Fornecedor B')"_s);
    exec(u"UPDATE pagar SET pagamento = 'Boleto'"_s);
    frmconfrelatorio2* w = abrir("mnuretcentrolucro");
    EXPECT_EQ(w->windowTitle(), u"Relatório de centro de lucro"_s);
    w->findChild<QAction*>(u"mnurelfornecedor"_s)->trigger();
    EXPECT_TRUE(w->picfornecedor->isVisible());
    EXPECT_EQ(w->cbofornecedor->currentText(), u"Fornecedor B"_s);
    filho<date_field>(w, "cbodata1f")->set_text(u"01/11/2026"_s);
    filho<date_field>(w, "cbodata2f")->set_text(u"30/11/2026"_s);
    filho<QPushButton>(w, "cmdfornecedor")->click();
    auto* r = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(r);
    EXPECT_EQ(r->LBLTIPO->text(), u"FORNECEDOR - DESPESAS"_s);
    ASSERT_EQ(r->lstpagar->row_count(), 1);
    EXPECT_EQ(r->lstpagar->text(0, 2), u"Boleto "_s);
    EXPECT_EQ(r->lstpagar->text(0, 5), u"R$ 9,00 "_s);
}
