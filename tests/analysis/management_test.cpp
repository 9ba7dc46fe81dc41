// frmgerenciamento: the first option decides, the sort word breaks the filtered statements, the
// messages and the total.

#include "analysis/ui/frmgerenciamento.h"
#include "analysis_fixture.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;
using analysis::filtro_gerencia;
using analysis::pedido_gerencia;

namespace {

class management : public testing_analysis::analysis_fixture {
protected:
    void SetUp() override {
        analysis_fixture::SetUp();
        exec(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', '', '0,00')"_s);
        exec(u"INSERT INTO fornecedor (nome) VALUES ('Fornecedor A'), ('Fornecedor B')"_s);
        pagar("2026/11/23", "Pendente", "1.000,00");
        pagar("2026/10/02", "Concluído", "10,005");
        pagar("2026/11/01", "Concluído", "2,00", "Fornecedor B");
    }
    frmgerenciamento* abrir(const char* item) {
        shell::run_action(QString::fromLatin1(item));
        return janela<frmgerenciamento>("frmgerenciamento");
    }
};

} // namespace

TEST(management_statement, each_filter_has_its_statement_and_message) {
    const struct {
        shell::ledger tabela;
        filtro_gerencia f;
        const char* ordem;
        QString sql, sem_dados;
    } casos[] = {
        {shell::ledger::pagar, filtro_gerencia::todas, "DESC", u"select * from pagar order by data DESC"_s,
         u"Não há nenhuma conta cadastrada em contas a pagar!"_s},
        {shell::ledger::receber, filtro_gerencia::contato, "",
         u"select * from receber where cliente like ('X') "_s,
         u"Não há nenhuma receita cadastrada com o cliente X"_s},
        {shell::ledger::pagar, filtro_gerencia::estatus, "ASC",
         u"select * from pagar where estatus like ('%Concluído%') ASC"_s,
         u"Não há nenhuma despesa cadastrada com o estatus Concluído"_s},
        {shell::ledger::receber, filtro_gerencia::origem, "",
         u"select * from receber where origem like ('X') "_s,
         u"Não há nenhum despesa cadastrada na conta X"_s},
        {shell::ledger::receber, filtro_gerencia::data, "",
         u"select * from receber WHERE Data BETWEEN '2026/11/01' AND '2026/11/30'"_s,
         u"Não há nenhum despesa cadastrada entre a data 01/11/2026 e 30/11/2026"_s},
    };
    for (const auto& k : casos) {
        pedido_gerencia p;
        p.tabela = k.tabela;
        p.filtro = k.f;
        p.texto = u"X"_s;
        p.concluido = true;
        p.data1 = QDate(2026, 11, 1);
        p.data2 = QDate(2026, 11, 30);
        p.data1_texto = u"01/11/2026"_s;
        p.data2_texto = u"30/11/2026"_s;
        p.ordem = QString::fromLatin1(k.ordem);
        const auto c = analysis::consulta_de(p);
        ASSERT_TRUE(c);
        EXPECT_EQ(c->sql, k.sql);
        EXPECT_EQ(c->sem_dados, k.sem_dados);
    }
    EXPECT_FALSE(analysis::consulta_de(pedido_gerencia{}));
}

TEST_F(management, all_rows_in_either_direction_and_the_total) {
    frmgerenciamento* w = abrir("mnugerendesp");
    ASSERT_TRUE(w);
    EXPECT_TRUE(w->picdespesas->isVisible());
    EXPECT_EQ(w->lbltotaldesp->text(), u"Valor Total: R$ 0,00"_s);
    EXPECT_EQ(w->cbofornecedordesp->currentText(), u"Fornecedor A"_s);
    // the boxes take no keys
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(w->cbofornecedordesp, &down);
    EXPECT_EQ(w->cbofornecedordesp->currentText(), u"Fornecedor A"_s);

    w->cmdconsultardesp->click(); // no option: nothing
    EXPECT_EQ(w->lstdespesas->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());

    w->opttodasdesp->click();
    w->optdescr->click();
    w->cmdconsultardesp->click();
    ASSERT_EQ(w->lstdespesas->row_count(), 3);
    EXPECT_EQ(w->lstdespesas->text(0, 0), u"23/11/2026"_s);
    EXPECT_EQ(w->lstdespesas->text(2, 2), u"R$ 10,01"_s);
    // each amount rounded to the cent before it sums
    EXPECT_EQ(w->lbltotaldesp->text(), u"Valor total R$ 1.012,01"_s);
    w->optascr->click();
    w->cmdconsultardesp->click();
    EXPECT_EQ(w->lstdespesas->text(0, 0), u"02/10/2026"_s);

    // after a direction the filtered statements fail without a word
    w->optfornecedordesp->click();
    w->cmdconsultardesp->click();
    EXPECT_EQ(w->lstdespesas->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(w->lbltotaldesp->text(), u"Valor total R$ 1.012,01"_s);
}

TEST_F(management, filters_without_a_direction_and_their_messages) {
    frmgerenciamento* w = abrir("mnugerendesp");
    w->optfornecedordesp->click();
    w->cbofornecedordesp->setCurrentIndex(1);
    w->cmdconsultardesp->click();
    ASSERT_EQ(w->lstdespesas->row_count(), 1);
    EXPECT_EQ(w->lbltotaldesp->text(), u"Valor total R$ 2,00"_s);

    w->optdatadesp->click();
    w->cbodata1p->set_text(u"01/12/2026"_s);
    w->cmdconsultardesp->click();
    w->cbodata2p->set_text(u"31/12/2026"_s);
    w->cmdconsultardesp->click();
    abrir("mnugerenlucros");
    EXPECT_TRUE(w->piclucros->isVisible());
    w->optestatuslucros->click();
    w->cmdconsultarlucros->click();
    ASSERT_EQ(prompts_.boxes().size(), 3u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"As datas devem ser preenchidas!"_s);
    EXPECT_EQ(prompts_.boxes()[0].title, u"info"_s);
    EXPECT_EQ(prompts_.boxes()[1].text,
              u"Não há nenhum despesa cadastrada entre a data 01/12/2026 e 31/12/2026"_s);
    EXPECT_EQ(prompts_.boxes()[1].title, u"Gerenciamento"_s);
    EXPECT_EQ(prompts_.boxes()[1].style, platform::exclamation);
    EXPECT_EQ(prompts_.boxes()[2].text, u"Não há nenhuma receita cadastrada com o estatus Pendente"_s);
    EXPECT_EQ(w->lstdespesas->row_count(), 0);
}
