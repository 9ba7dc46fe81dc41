// The cash flow forecast: its statements, figures and texts on fixed dates, the request and
// result windows with their messages, the HTML file and both prints.

#include "analysis/cash_flow.h"
#include "analysis/ui/frmfluxo.h"
#include "platform/print/printer.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using analysis::pedido_fluxo;
using analysis::tipo_fluxo;

namespace {

TEST(cash_flow_statement, words_dates_and_bank_go_into_one_shape) {
    const struct {
        bool pagar;
        pedido_fluxo p;
        const char* consulta;
    } cases[] = {
        {true,
         {u"01/11/2026"_s, u"30/11/2026"_s, u"TODOS OS BANCOS"_s, u"Pendentes e Concluidas"_s},
         "Select * from pagar WHERE vencimento BETWEEN '2026/11/01' AND '2026/11/30' AND estatus like ('%%') "
         "AND fornecedor like('%%') AND origem like('%%') AND descricao like('%%') "},
        {false,
         {u"30/11/2026"_s, u"01/11/2026"_s, u"Itaú"_s, u"PENDENTES"_s},
         "Select * from receber WHERE vencimento BETWEEN '2026/11/30' AND '2026/11/01' AND estatus like "
         "('%Pendente%') AND cliente like('%%') AND origem like('%Itaú%') AND descricao like('%%') "},
        {true,
         {u"01/11/2026"_s, u"3x/11/2026"_s, u"Caixa"_s, u"Concluidas"_s},
         "Select * from pagar WHERE vencimento BETWEEN '2026/11/01' AND '3x/11/2026' AND estatus like "
         "('%Concluído%') AND fornecedor like('%%') AND origem like('%Caixa%') AND descricao like('%%') "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(analysis::comando_fluxo(c.pagar, c.p), QString::fromUtf8(c.consulta));
    // no day added for the end; reversed dates count backwards; an unreadable one gives 0
    EXPECT_EQ(analysis::periodo_fluxo({u"23/11/2026"_s, u"23/11/2026"_s, {}, {}}), 0);
    EXPECT_EQ(analysis::periodo_fluxo({u"23/11/2026"_s, u"24/12/2026"_s, {}, {}}), 31);
    EXPECT_EQ(analysis::periodo_fluxo({u"24/12/2026"_s, u"23/11/2026"_s, {}, {}}), -31);
    EXPECT_EQ(analysis::periodo_fluxo({u"23/11/2026"_s, u"xx"_s, {}, {}}), 0);
    // the balance drops the cents of both totals through the decimal comma
    EXPECT_EQ(analysis::saldo_fluxo(100.50, 40.75), 60.0);
    EXPECT_EQ(analysis::saldo_fluxo(0.99, 0), 0.0);
    EXPECT_EQ(analysis::saldo_fluxo(40, 100.5), -60.0);
    EXPECT_EQ(analysis::tipo_pela_legenda(u"FLUXO DE CAIXA - CONTAS A PAGAR"_s), tipo_fluxo::pagar);
    EXPECT_EQ(analysis::tipo_pela_legenda(u"Fluxo de caixa - contas a receber"_s), tipo_fluxo::receber);
    EXPECT_EQ(analysis::tipo_pela_legenda(u"Fluxo de caixa"_s), tipo_fluxo::geral);
}

class cash_flow : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
        conta(u"Itaú"_s, u"0,00"_s);
        conta(u"Itaú 2"_s, u"0,00"_s);
        conta(u"Caixa"_s, u"0,00"_s);
        const char* pagar =
            "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, "
            "vencimento, moeda, informacoes) VALUES ";
        const char* receber =
            "INSERT INTO receber (estatus, origem, cliente, data, descricao, documento, Valor, "
            "vencimento, moeda, informacoes) VALUES ";
        const std::pair<const char*, const char*> linhas[] = {
            {pagar, "('Pendente', 'Itaú', 'Luz SA', '2026/11/01', 'Energia', 'NF 7', '10,005', '2026/11/25', "
                    "'R$', 'obs')"},
            {pagar,
             "('Concluído', 'Itaú 2', 'Água', '2026/11/02', 'Água', ' ', '30,70', '2026/12/01', 'R$', ' ')"},
            {pagar,
             "('', 'Caixa', 'Posto', '2026/11/03', 'Gasolina', ' ', '0,125', '2026/11/23', 'R$', ' ')"},
            {pagar,
             "('Pendente', 'Caixa', 'Posto', '2026/11/03', 'Fora', ' ', '99,00', '2027/01/01', 'R$', ' ')"},
            {pagar,
             "('Pendente', 'Caixa', 'X', '2026/11/04', 'Sem valor', ' ', 'abc', '2026/11/30', 'R$', ' ')"},
            {receber,
             "('Pendente', 'Itaú', 'Ana', '2026/11/05', 'Venda', 'R1', '100,50', '2026/12/24', 'R$', "
             "' ')"},
        };
        for (const auto& [a, b] : linhas)
            exec(QString::fromUtf8(a) + QString::fromUtf8(b));
    }
    void TearDown() override {
        delete frmconfluxo::aberto();
        delete frmfluxo::aberto();
        platform::set_print_destination(nullptr);
        window_fixture::TearDown();
    }
    frmconfluxo* abrir(const char* item) {
        menu(item);
        return frmconfluxo::aberto();
    }
    platform::pdf_target pdf_{path(u"fluxo.pdf"_s)};
};

TEST_F(cash_flow, expenses_rows_totals_texts_and_print) {
    frmconfluxo* c = abrir("mnuretfxpagar");
    ASSERT_TRUE(c && c->isVisible());
    EXPECT_EQ(c->windowTitle(), u"Configuração - Fluxo de caixa"_s);
    EXPECT_EQ(c->cbodata1->text(), u"23/11/2026"_s);
    EXPECT_EQ(c->cbodata2->text(), u"24/12/2026"_s);
    EXPECT_EQ(items(c->cbobanco), (QStringList{u"Todos os bancos"_s, u"Itaú"_s, u"Itaú 2"_s, u"Caixa"_s}));
    EXPECT_EQ(items(c->cboestatus),
              (QStringList{u"Pendentes e Concluidas"_s, u"Concluidas"_s, u"Pendentes"_s}));
    EXPECT_FALSE(c->cbobanco->isEditable() || c->cboestatus->isEditable());
    c->cmdnatela->click();
    frmfluxo* f = frmfluxo::aberto();
    ASSERT_TRUE(f && f->isVisible());
    EXPECT_EQ(frmconfluxo::aberto(), nullptr);
    EXPECT_EQ(f->windowTitle(), u"FLUXO DE CAIXA - CONTAS A PAGAR"_s);
    EXPECT_EQ(f->XTab->tabText(0), u"CONTAS A PAGAR"_s);
    EXPECT_EQ(f->XTab->tabText(1), QString());
    EXPECT_FALSE(f->XTab->isTabEnabled(1));
    // in the order the store gives them: by due date, through its index
    EXPECT_TRUE(support::matches_golden(u"analysis/fluxo_pagar_linhas.txt"_s,
                                        support::table_text(list_rows(f->lstpagar))));
    EXPECT_EQ(f->lbldata->text(),
              u"Previsão entre os vencimentos de 23/11/2026 até 24/12/2026 - Período de: 31 dias"_s);
    // each amount rounded before the sum; the empty status counts as paid; "abc" is not summed
    EXPECT_EQ(f->lblest->text(),
              u"Total de despesas: R$ 40,84 - Total pago: R$ 30,83 - Total pendente: R$ 10,01"_s);
    EXPECT_EQ(f->lblest2->text(), u"Total de cadastros: 4"_s);

    prompts_.clear();
    f->cmdInfo->click();
    ASSERT_EQ(prompts_.records().size(), 1u);
    EXPECT_EQ(prompts_.records()[0].title, u"Informações"_s);
    EXPECT_EQ(prompts_.records()[0].text,
              u"Previsão entre os vencimentos de 23/11/2026 até 24/12/2026 - Período de: 31 dias \n"
              u"Exibindo do Banco: Todos os bancos\nExibindo com o estatus: Pendentes e Concluidas\r\n"
              u"Total de despesas: R$ 40,84 - Total pago: R$ 30,83 - Total pendente: R$ 10,01\r\n"
              u"Total de cadastros: 4"_s);

    f->cmdimprimir->click();
    const QStringList impresso = support::pdf_lines(pdf_.path());
    EXPECT_TRUE(impresso.contains(u"FLUXO DE CAIXA - CONTAS A PAGAR"_s))
        << impresso.join(u'\n').toStdString();
    EXPECT_TRUE(impresso.contains(f->lbldata->text()));
    EXPECT_TRUE(impresso.contains(f->lblest->text()));
}

TEST_F(cash_flow, bank_containment_status_and_reversed_dates) {
    frmconfluxo* c = abrir("mnuretfxpagar");
    ASSERT_TRUE(c);
    c->cbodata1->set_date(QDate(2026, 11, 1));
    c->cbodata2->set_date(QDate(2026, 12, 31));
    c->cbobanco->setCurrentText(u"Itaú"_s);
    c->cboestatus->setCurrentText(u"Pendentes"_s);
    c->cmdnatela->click();
    frmfluxo* f = frmfluxo::aberto();
    ASSERT_TRUE(f);
    // "Itaú" also finds "Itaú 2", whose settled row the status then leaves out
    ASSERT_EQ(f->lstpagar->row_count(), 1);
    EXPECT_EQ(f->lblest->text(),
              u"Total de despesas: R$ 10,01 - Total pago: R$ 0,00 - Total pendente: R$ 10,01"_s);
    f->close();

    // reversed dates: the message, nothing opens, the request stays for another try
    for (const char* menu : {"mnuretfxpagar", "mnuretfxreceber"}) {
        c = abrir(menu);
        ASSERT_TRUE(c);
        c->cbodata1->set_date(QDate(2026, 12, 31));
        c->cbodata2->set_date(QDate(2026, 11, 1));
        prompts_.clear();
        c->cmdnatela->click();
        ASSERT_EQ(prompts_.records().size(), 1u);
        EXPECT_EQ(prompts_.records()[0].title, u"Info"_s);
        EXPECT_EQ(prompts_.records()[0].text,
                  analysis::sem_resultado(
                      QByteArray(menu).endsWith("pagar") ? tipo_fluxo::pagar : tipo_fluxo::receber, true));
        EXPECT_EQ(frmfluxo::aberto(), nullptr);
        EXPECT_EQ(frmconfluxo::aberto(), c);
        c->close();
    }
    EXPECT_EQ(
        analysis::sem_resultado(tipo_fluxo::receber, false),
        u"A pesquisa não retornou resultados, verifique se os dados informados estão corretos e se existem "
        u"cadastros entre as datas informadas!"_s);

    // the general view goes on after both messages and opens empty
    c = abrir("mnuretfxgeral");
    c->cbodata1->set_date(QDate(2026, 12, 31));
    c->cbodata2->set_date(QDate(2026, 11, 1));
    prompts_.clear();
    c->cmdnatela->click();
    ASSERT_EQ(prompts_.records().size(), 2u);
    EXPECT_EQ(
        prompts_.records()[1].text,
        u"A pesquisa não retornou resultados em contas a receber, verifique se os dados informados estão "
        u"corretos e se existem cadastros entre as datas informadas!"_s);
    f = frmfluxo::aberto();
    ASSERT_TRUE(f);
    EXPECT_EQ(f->lstpagar->row_count() + f->lstreceber->row_count(), 0);
    EXPECT_EQ(f->lbldata->text(),
              u"Previsão entre os vencimentos de 31/12/2026 até 01/11/2026 - Período de: -60 dias"_s);
    EXPECT_EQ(f->lblest->text(),
              u"Total de receitas: R$ 0,00 - Total de despesas: R$ 0,00 - Saldo: R$ 0,00"_s);
}

TEST_F(cash_flow, general_view_balance_html_and_print) {
    frmconfluxo* c = abrir("mnuretfxgeral");
    ASSERT_TRUE(c);
    c->cbodata2->set_date(QDate(2026, 12, 24));
    c->cbodata1->set_date(QDate(2026, 11, 24));
    prompts_.clear();
    c->cmdnatela->click();
    EXPECT_TRUE(prompts_.records().empty());
    frmfluxo* f = frmfluxo::aberto();
    ASSERT_TRUE(f);
    EXPECT_EQ(f->windowTitle(), u"FLUXO DE CAIXA - GERAL"_s);
    EXPECT_TRUE(f->XTab->isTabEnabled(0) && f->XTab->isTabEnabled(1));
    // 100,50 against 40,75: the balance is 100 less 40
    EXPECT_EQ(f->lblest->text(),
              u"Total de receitas: R$ 100,50 - Total de despesas: R$ 40,71 - Saldo: R$ 60,00"_s);
    EXPECT_EQ(f->lblest2->text(), u"Total de cadastros: 4"_s);

    EXPECT_TRUE(saves([&] { f->cmdhtml->click(); }, u"Salvar relatório de fluxo de caixa em html"_s,
                      u"Arquivos HTML(*.html)|*.html"_s, u"analysis/fluxo_geral.html"_s));

    f->cmdimprimir->click();
    const QStringList impresso = support::pdf_lines(pdf_.path());
    const QStringList inicio = {
        u"FLUXO DE CAIXA - GERAL"_s,
        // the sub-title runs past the edge of the sheet
        u"Previsão entre os vencimentos de 24/11/2026 até 24/12/2026 - Período de: 30 dias (contas"_s,
        u"DATA DESCRIÇÃO DOC. CLI/FORN"_s, u"01/11/2026 Energia NF 7 Luz SA"_s,
        u"Vencimento: 25/11/2026 Valor: R$ 10,01 Conta origem: Itaú"_s,
        u"Estatus: Pendente Informações Adicionais: obs"_s};
    QStringList sem_regua;
    for (const QString& l : impresso)
        if (!l.contains(u"-----"_s) && !l.startsWith(u"_____"_s)) sem_regua << l;
    EXPECT_EQ(sem_regua.mid(0, inicio.size()), inicio) << impresso.join(u'\n').toStdString();
    EXPECT_TRUE(impresso.contains(QString(87, u'_')));
    EXPECT_EQ(sem_regua.count(inicio[1]), 2);
    EXPECT_TRUE(sem_regua.contains(u"05/11/2026 Venda R1 Ana"_s));
    EXPECT_TRUE(sem_regua.contains(f->lblest->text()));
    EXPECT_TRUE(sem_regua.contains(u"QUINTARA - Página: 2"_s));
}

} // namespace
