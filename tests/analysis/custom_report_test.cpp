// frmconfrelatorio: the statements of its three pages, the report window it fills, and its
// messages.

#include "analysis/custom_report.h"
#include "analysis/ui/frmconfrelatorio.h"
#include "analysis_fixture.h"
#include "output/ui/frmrelatorio.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;
using analysis::criterios_relatorio;
using shell::ledger;

namespace {

class custom_report : public testing_analysis::analysis_fixture {
protected:
    void SetUp() override {
        analysis_fixture::SetUp();
        exec(
            u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', '', '0,00'), ('Banco', '', '0,00')"_s);
        exec(u"INSERT INTO fornecedor (nome) VALUES ('Fornecedor A'), ('Fornecedor B')"_s);
    }
    frmconfrelatorio* abrir(const char* item) {
        shell::run_action(QString::fromLatin1(item));
        return janela<frmconfrelatorio>("frmconfrelatorio");
    }
    template <class W> W* filho(QWidget* w, const char* nome) {
        return w->findChild<W*>(QString::fromLatin1(nome));
    }
};

} // namespace

TEST(custom_report_statement, each_page_keeps_its_own_shape) {
    criterios_relatorio p;
    criterios_relatorio r;
    r.tabela = ledger::receber;
    criterios_relatorio b;
    b.tabela = ledger::bancario;
    criterios_relatorio filtrado = p;
    filtrado.data = true;
    filtrado.data1 = QDate(2026, 11, 1);
    filtrado.data2 = QDate(2026, 11, 30);
    filtrado.data_cadastro = false;
    filtrado.estatus = true;
    filtrado.pendente = false;
    filtrado.contato = true;
    filtrado.contato_texto = u"Fornecedor A"_s;
    filtrado.ordem = u"order by valor"_s;
    filtrado.crescente = false;
    criterios_relatorio banco_datas = b;
    banco_datas.data = true;
    banco_datas.data_cadastro = false; // the bank page always filters on Data
    banco_datas.data1 = QDate(2026, 1, 2);
    banco_datas.data2 = QDate(2026, 1, 3);
    banco_datas.destino = true;
    banco_datas.destino_texto = u"Banco"_s;
    const struct {
        criterios_relatorio c;
        QString esperado;
    } casos[] = {
        {p, u"Select * from pagar  WHERE estatus like ('%%') AND fornecedor like('%%') AND origem like('%%') "
            "AND descricao like('%%') order by Data ASC"_s},
        {r,
         u"Select * from receber  WHERE (estatus like '%%') AND (cliente like '%%') AND (origem like '%%') "
         "AND (descricao like '%%') order by data ASC"_s},
        {b, u"Select * from bancario  WHERE estatus like ('%%') AND origem like('%%') AND destino like('%%') "
            "order by Data ASC"_s},
        {filtrado,
         u"Select * from pagar WHERE Vencimento BETWEEN '2026/11/01' AND '2026/11/30' AND estatus "
         "like ('Concluído') AND fornecedor like('Fornecedor A') AND origem like('%%') AND descricao "
         "like('%%') order by valor DESC"_s},
        {banco_datas, u"Select * from bancario WHERE Data BETWEEN '2026/01/02' AND '2026/01/03' AND estatus "
                      "like ('%%') AND origem like('%%') AND destino like('Banco') order by Data ASC"_s},
    };
    for (const auto& k : casos)
        EXPECT_EQ(analysis::consulta_relatorio(k.c).value_or(u"<none>"_s), k.esperado);

    criterios_relatorio falta = p;
    falta.data = true;
    falta.data1 = QDate(2026, 1, 1);
    EXPECT_FALSE(analysis::consulta_relatorio(falta));
}

TEST(custom_report_statement, sub_titles_and_totals_name_the_pickers) {
    criterios_relatorio c;
    EXPECT_EQ(analysis::subtitulo_relatorio(c, u"01/11/2026"_s, u"30/11/2026"_s),
              u"                      Obs. Este relatório não foi filtrado por data."_s);
    c.data = true;
    c.data1 = QDate(2026, 11, 1);
    c.data2 = QDate(2026, 11, 30);
    EXPECT_EQ(analysis::subtitulo_relatorio(c, u"01/11/2026"_s, u"30/11/2026"_s),
              u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026 - Período de 29 dias."_s);
    c.data_cadastro = false;
    EXPECT_EQ(analysis::subtitulo_relatorio(c, u"01/11/2026"_s, u"30/11/2026"_s),
              u"Relatório gerado entre os vencimentos de 01/11/2026 e 30/11/2026 - Período de 29 dias."_s);

    analysis::status_tally t;
    t.add(u"Pendente"_s, u"10,00"_s);
    t.add(u"pendente"_s, u"1.000,50"_s); // only the exact word is pending
    EXPECT_EQ(analysis::geral_relatorio(ledger::receber, t, QString(), QString()),
              u"Total de cadastros no período: 2 (entre  e )\r\nTotal de receitas: R$ 1.010,50 - Total "
              "recebido: R$ 1.000,50 - Total pendente: R$ 10,00"_s);
    EXPECT_EQ(analysis::geral_relatorio(ledger::bancario, t, u"a"_s, u"b"_s).section(u"\r\n"_s, 1),
              u"Valor total: R$ 1.010,50 - Total concluído: R$ 1.000,50 - Total pendente: R$ 10,00"_s);
}

TEST_F(custom_report, each_item_shows_its_page_with_its_lists) {
    frmconfrelatorio* w = abrir("mnuretbancario");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Configurar relatório"_s);
    EXPECT_TRUE(w->picmovimento->isVisible());
    EXPECT_FALSE(w->picpagar->isVisible());
    EXPECT_EQ(filho<QComboBox>(w, "cbodestinob")->count(), 2);
    EXPECT_FALSE(filho<QComboBox>(w, "cbodestinob")->isEnabled());
    filho<QCheckBox>(w, "chkdestinob")->setChecked(true);
    EXPECT_TRUE(filho<QComboBox>(w, "cbodestinob")->isEnabled());
    abrir("mnuretpagar");
    EXPECT_TRUE(w->picpagar->isVisible());
    EXPECT_EQ(filho<QComboBox>(w, "cbofornecedorp")->count(), 2);
    EXPECT_FALSE(filho<QRadioButton>(w, "optdatacadb"));
    EXPECT_TRUE(filho<QRadioButton>(w, "optclienter"));
}

TEST_F(custom_report, the_expense_page_fills_the_report_and_closes) {
    pagar("2026/11/23", "Pendente", "1.000,00");
    pagar("2026/11/10", "Concluído", "10,005", "Fornecedor B");
    pagar("2026/10/01", "Pendente", "5,00");
    exec(u"INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, Valor, moeda) VALUES "
         "('Pendente', NULL, 'Fornecedor A', '2026/11/15', 'Luz', '99,00', 'R$')"_s);
    frmconfrelatorio* w = abrir("mnuretpagar");
    filho<QCheckBox>(w, "chkdatap")->setChecked(true);
    filho<date_field>(w, "cbodata1p")->set_text(u"01/11/2026"_s);
    filho<QPushButton>(w, "cmdnatelap")->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_FALSE(janela<frmrelatorio>("frmrelatorio"));

    filho<date_field>(w, "cbodata2p")->set_text(u"30/11/2026"_s);
    filho<QRadioButton>(w, "optvalorp")->setChecked(true);
    filho<QRadioButton>(w, "optdescp")->setChecked(true);
    filho<QPushButton>(w, "cmdnatelap")->click();
    auto* r = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(r);
    EXPECT_FALSE(janela<frmconfrelatorio>("frmconfrelatorio"));
    EXPECT_EQ(r->windowTitle(), u"Relatório"_s);
    EXPECT_EQ(r->LBLTIPO->text(), u"CONTAS A PAGAR"_s);
    EXPECT_EQ(r->lblsubtitulo->text(),
              u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026 - Período de 29 dias."_s);
    // the row without an origin drops out of the LIKE on '%%'
    EXPECT_EQ(r->lblgeral->text(), u"Total de cadastros no período: 2 (entre 01/11/2026 e 30/11/2026)\r\n"
                                   "Total de despesas: R$ 1.010,01 - Total pago: R$ 10,01 - Total pendente: "
                                   "R$ 1.000,00"_s);
    ASSERT_EQ(r->lstpagar->row_count(), 2);
    // amounts sort as text: "10,005" after "1.000,00"
    EXPECT_EQ(r->lstpagar->text(0, 0), u"10/11/2026 "_s);
    EXPECT_EQ(r->lstpagar->text(0, 5), u"R$ 10,01 "_s);
    EXPECT_EQ(r->lstpagar->text(1, 3), u"Fornecedor A "_s);
}

TEST_F(custom_report, no_rows_or_an_apostrophe_keep_the_dialog_open) {
    receber("2026/11/23", "Pendente", "15,00");
    frmconfrelatorio* w = abrir("mnuretreceber");
    filho<QCheckBox>(w, "chkclir")->setChecked(true);
    filho<QComboBox>(w, "cboclir")->setEditText(u"D'Ávila"_s);
    filho<QPushButton>(w, "cmdnatelar")->click();
    filho<QComboBox>(w, "cboclir")->setEditText(u"Cliente B"_s);
    filho<QPushButton>(w, "cmdnatelar")->click();
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    for (const auto& b : prompts_.boxes()) {
        EXPECT_EQ(b.text, u"A pesquisa não retornou resultados"_s);
        EXPECT_EQ(b.title, u"Info"_s);
        EXPECT_EQ(b.style, platform::information);
    }
    EXPECT_TRUE(janela<frmconfrelatorio>("frmconfrelatorio"));
    EXPECT_FALSE(janela<frmrelatorio>("frmrelatorio"));

    filho<QCheckBox>(w, "chkclir")->setChecked(false);
    filho<QPushButton>(w, "cmdnatelar")->click();
    auto* r = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(r);
    EXPECT_EQ(r->LBLTIPO->text(), u"CONTAS A RECEBER"_s);
    EXPECT_EQ(r->lblsubtitulo->text(),
              u"                      Obs. Este relatório não foi filtrado por data."_s);
    EXPECT_EQ(r->lstreceber->text(0, 5), u"US$ 15,00 "_s);
}
