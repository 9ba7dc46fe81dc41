// The integrated report: the statements and account lines its filters make, the rows and totals
// they find, and the generator and result windows with their files and print.

#include "analysis/integrated_report.h"
#include "analysis/ui/frmgeradorret.h"
#include "analysis/ui/frmrelatorioint.h"
#include "platform/print/printer.h"
#include "registers/ui/frmgeradorad.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using analysis::estatus_filtro;
using analysis::filtros_pagina;

namespace {

const QDate primeiro(2026, 11, 1), ultimo(2026, 11, 30);

TEST(integrated_statements, filters_become_clauses_and_account_lines) {
    filtros_pagina nada;
    filtros_pagina pagar{true, primeiro,    ultimo,         true,  true, {u"A"_s, u"B"_s},
                         true, {u"Itaú"_s}, {u"Aluguel"_s}, false, {},   estatus_filtro::pendente};
    filtros_pagina receber = nada;
    receber.estatus = estatus_filtro::concluido;
    filtros_pagina vazia = nada;
    vazia.por_contato = true; // a ticked box over an empty list
    filtros_pagina banco{true,
                         primeiro,
                         ultimo,
                         false,
                         false,
                         {},
                         true,
                         {u"X"_s, u"Y"_s},
                         {},
                         true,
                         {u"Z"_s, u"W"_s},
                         estatus_filtro::concluido};
    const std::pair<const char*, analysis::clausula> cases[] = {
        {"despesas, no filter", analysis::despesas(nada)},
        // the centres filter by their list alone, the box unticked
        {"despesas, dates, two suppliers, one account, one centre, pending", analysis::despesas(pagar)},
        {"receitas, completed", analysis::receitas(receber)},
        {"despesas, a ticked box over an empty list", analysis::despesas(vazia)},
        {"bancarios, no filter", analysis::bancarios(nada)},
        {"bancarios, dates, two origins, two destinations, completed", analysis::bancarios(banco)},
    };
    QString out;
    for (const auto& [caso, c] : cases)
        out += u"== %1\n%2\n%3\n"_s.arg(QLatin1String(caso), c.consulta, c.relato);
    EXPECT_TRUE(support::matches_golden(u"analysis/integrated_statements.txt"_s, out));
}

class integrated : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
        conta(u"Itaú"_s, u"0,00"_s);
        conta(u"Caixa"_s, u"0,00"_s);
        const char* entradas[] = {
            "pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, vencimento, moeda) "
            "VALUES "
            "('Pendente', 'Itaú', 'Imobiliária Sol', '2026/11/05', 'Aluguel', 'NF 1 ', '1.200,00', "
            "'2026/11/10', "
            "'R$')",
            "pagar (estatus, origem, fornecedor, data, descricao, documento, Valor, vencimento, moeda) "
            "VALUES "
            "('Concluído', 'Caixa', 'Light', '2026/11/02', 'Energia', ' ', '150,5', '23/11/2026', 'R$')",
            "receber (estatus, origem, cliente, data, descricao, documento, Valor, vencimento, moeda) VALUES "
            "('Concluído', 'Itaú', 'Cliente A', '2026/11/03', 'Vendas', 'R1 ', '2.000,00', '2026/11/03', "
            "'R$')",
            "receber (estatus, origem, cliente, data, descricao, documento, Valor, vencimento, moeda) VALUES "
            "('Pendente', 'Caixa', 'Cliente B', '2026/11/20', 'Serviços', ' ', '300', '2026/12/20', 'US$')",
            "bancario (estatus, origem, destino, data, movimento, Valor) VALUES ('Concluído', 'Itaú', "
            "'Caixa', "
            "'2026/11/04', 'Transferência entre contas', '500,00')",
            "bancario (estatus, origem, destino, data, movimento, Valor) VALUES ('Pendente', 'Caixa', ' - ', "
            "'2026/11/06', 'Depósito', '80,00')",
            "bancario (estatus, origem, destino, data, movimento, Valor) VALUES ('Concluído', 'Caixa', "
            "'Itaú', "
            "'2026/11/07', 'transferência entre contas', '20,00')",
        };
        for (const char* e : entradas)
            exec(u"INSERT INTO "_s + QString::fromUtf8(e));
    }
    void TearDown() override {
        delete frmgeradorret::aberto();
        delete frmrelatorioint::aberto();
        delete frmgeradorad::aberto();
        platform::set_print_destination(nullptr);
        window_fixture::TearDown();
    }
    static analysis::filtros_integrados todos() {
        analysis::filtros_integrados f;
        f.pagar = f.receber = f.bancario = true;
        return f;
    }
    platform::pdf_target pdf_{path(u"integrado.pdf"_s)};
};

// The rows, then the totals as they stand (CR LF shown as "<CRLF>").
QString dump(const std::vector<QStringList>& linhas, QString financeiro) {
    return support::table_text(linhas) + u"{%1}\n\n"_s.arg(financeiro.replace(u"\r\n"_s, u"<CRLF>"_s));
}

TEST_F(integrated, rows_and_totals_of_each_ledger_in_order) {
    // all; "Apenas Concluído" (nothing on the two misspelt pages); a ticked box over an empty list
    // and a quote in a name (that ledger's rows and total are missing); only the word written in
    // lower case joins the two accounts
    analysis::relatorio_integrado r = analysis::gerar(todos());
    QString out = dump(r.linhas, r.txtfinanceiro);
    analysis::filtros_integrados f = todos();
    f.p.estatus = f.r.estatus = f.b.estatus = estatus_filtro::concluido;
    r = analysis::gerar(f);
    out += dump(r.linhas, r.txtfinanceiro);
    f = todos();
    f.p.por_contato = true;
    f.r.por_contato = true;
    f.r.contatos = {u"D'Ávila"_s};
    f.b.estatus = estatus_filtro::pendente;
    r = analysis::gerar(f);
    out += dump(r.linhas, r.txtfinanceiro);
    EXPECT_TRUE(support::matches_golden(u"analysis/integrated_rows.txt"_s, out));
    EXPECT_TRUE(r.txtpagar.startsWith(u"Datas incluídas: Todas, não filtrada.\r\n\r\nConta origem"_s));
    EXPECT_TRUE(r.txtreceber.contains(u"\r\nClientes Incluídos: D'Ávila\r\n"_s));

    // nothing included
    r = analysis::gerar({});
    EXPECT_TRUE(r.linhas.empty());
    EXPECT_EQ(r.txtpagar, u"Contas a pagar - débitos, não incluído no relatório!"_s);
    EXPECT_EQ(r.txtreceber, u"Contas a receber - créditos, não incluído no relatório!"_s);
    EXPECT_EQ(r.txtbancario, u"Movimento bancário, não incluído no relatório!"_s);
    EXPECT_TRUE(r.txtfinanceiro.isEmpty());
}

TEST_F(integrated, generator_window_chooser_result_files_and_print) {
    menu("mnuretint");
    frmgeradorret* g = frmgeradorret::aberto();
    ASSERT_TRUE(g && g->isVisible());
    EXPECT_EQ(g->windowTitle(), u"Gerador de relatórios - Integrados"_s);
    EXPECT_FALSE(g->lstfornecedor->isEnabled());
    EXPECT_FALSE(g->cbodata1p->isEnabled());
    g->chkfornecedor->setChecked(true);
    g->chkdatap->setChecked(true);
    EXPECT_TRUE(g->lstfornecedor->isEnabled());
    EXPECT_TRUE(g->cbodata1p->isEnabled() && g->cbodata2p->isEnabled());
    g->cbodata1p->set_date(primeiro);
    g->cbodata2p->set_date(ultimo);
    nomes(u"fornecedor"_s, u"nome"_s, {u"Imobiliária Sol"_s, u"Light"_s});

    g->cmdfornecedor->click();
    frmgeradorad* a = frmgeradorad::aberto();
    ASSERT_TRUE(a && a->isVisible());
    EXPECT_EQ(a->windowTitle(), u"Adicionado fornecedor a lista"_s);
    EXPECT_EQ(a->lbltitulo->text(), u"Adicionando um novo fornecedor a lista"_s);
    EXPECT_EQ(a->cbolista->currentText(), u"Imobiliária Sol"_s);
    a->cmdadicionar->click();
    g->cmdorigemb->click();
    a = frmgeradorad::aberto();
    EXPECT_EQ(a->lbltitulo->text(), u"Adicionando uma nova origem destino a lista"_s);
    a->cbolista->setEditText(u"Caixa"_s);
    a->cmdadicionar->click();
    g->cmdlimparorigemb->click(); // cleared again
    EXPECT_EQ(g->lstorigemb->count(), 0);
    EXPECT_EQ(g->lstfornecedor->count(), 1);
    g->optconcluidor->setChecked(true);
    g->cmdnatela->click();

    frmrelatorioint* r = frmrelatorioint::aberto();
    ASSERT_TRUE(r && r->isVisible());
    EXPECT_EQ(frmgeradorret::aberto(), nullptr);
    EXPECT_EQ(r->windowTitle(), u"Relatório - Integrado"_s);
    EXPECT_TRUE(support::matches_golden(u"analysis/integrated_window.txt"_s,
                                        dump(list_rows(r->lstrelatorio), r->txtfinanceiro->toPlainText())));

    const struct {
        QPushButton* botao;
        const char* titulo;
        const char* filtro;
        const char* arquivo;
    } saidas[] = {
        {r->cmdtxt, "Salvar relatório em txt", "Arquivos de Texto(*.txt)|*.txt", "relatorio_integrado.txt"},
        {r->cmdhtml, "Salvar relatório integrado em html", "Arquivos HTML(*.html)|*.html",
         "relatorio_integrado.html"}};
    for (const auto& s : saidas)
        EXPECT_TRUE(saves([&] { s.botao->click(); }, QString::fromUtf8(s.titulo), QString::fromUtf8(s.filtro),
                          u"analysis/"_s + QString::fromUtf8(s.arquivo)));

    r->cmdimprimir->click();
    QStringList impresso = support::pdf_lines(pdf_.path());
    impresso.removeIf([](const QString& l) { return l.contains(u"_____"_s) || l.contains(u"-----"_s); });
    const QString pagar = r->relatorio().txtpagar.trimmed().replace(u"\r\n"_s, u"\n"_s);
    QStringList esperado_impresso = {
        u"RELATÓRIO INTEGRADO"_s, u"Contas a pagar, receber e movimento bancário"_s,
        u"VENC. DESCRIÇÃO DOC. FORNECEDOR/CLIENTE"_s, u"Estatísticas"_s, u"CONTAS A PAGAR - DESPESA"_s};
    esperado_impresso << pagar.split(u'\n') << u"CONTAS A RECEBER - RECEITAS"_s;
    EXPECT_EQ(impresso.mid(0, esperado_impresso.size()), esperado_impresso);
    EXPECT_TRUE(impresso.contains(u"DADOS FINANCEIROS"_s));
    EXPECT_TRUE(impresso.contains(u"Total bancário: R$ 600,00"_s));
    EXPECT_TRUE(impresso.contains(u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s));
    EXPECT_TRUE(impresso.contains(u"QUINTARA - Página: 1"_s));
}

} // namespace
