// Printed reports read back from PDF files: the list report engine and the direct printing.

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "platform/print/printer.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"
#include "support/test_table.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;
using testing_output::table_of;
using testing_output::test_table;

namespace {

using support::pdf_pages;

// Blanks squeezed, so a line reads the same whatever room the layout gave it.
QString squeezed(const QString& s) {
    return s.simplified();
}

class print_test : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        pdf_ =
            qEnvironmentVariableIsSet("KEEP_PDF") ? qEnvironmentVariable("KEEP_PDF") : path(u"saida.pdf"_s);
        target_.set_path(pdf_);
        platform::set_print_destination(&target_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        support::fixture::TearDown();
    }

    QString pdf_;
    platform::pdf_target target_{QString()};
};

test_table ledger(int rows) {
    test_table t({{u"id"_s, 0},
                  {u"Data"_s, 1320},
                  {u"Descrição"_s, 4190},
                  {u"Fornecedor"_s, 2340},
                  {u"Valor"_s, 1240},
                  {u"Estatus"_s, 1320}},
                 {});
    for (int i = 1; i <= rows; ++i)
        t.rows.push_back({u"segredo%1"_s.arg(i), u"01/11/2026"_s,
                          u"Linha %1"_s.arg(i, 4, 10, QLatin1Char('0')), u"Fornecedor"_s, u"R$ 10,00"_s,
                          i % 2 ? u"Pendente"_s : u"Concluído"_s});
    return t;
}

} // namespace

TEST_F(print_test, list_report_pages_carry_heads_rows_in_order_and_page_numbers) {
    test_table probe = ledger(1);
    output::list_report r = output::nova_impressao(output::report_form::rlt_impressao, &probe);
    output::report_pages layout;
    ASSERT_TRUE(output::paginate(
        platform::printable_size({QPageSize::A4, QPageLayout::Landscape, QMarginsF(20, 10, 40, 10)}).height(),
        r, layout));
    ASSERT_GT(layout.rows_per_page, 5);
    // two full pages and a part of the third
    test_table t = ledger(2 * layout.rows_per_page + 3);
    r.Grid = &t;
    r.rpf_Titulo = u"CONTAS A PAGAR"_s;
    r.lblfiltro = u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026"_s;
    r.lblestatus = u"Total de cadastros no período: 3"_s;
    r.lblsumario1 = u"Slogan da empresa"_s;
    EXPECT_TRUE(output::Executar(r));
    EXPECT_TRUE(prompts_.boxes().empty());

    const QStringList pages = pdf_pages(pdf_);
    ASSERT_EQ(pages.size(), 3);
    int next = 1;
    for (int p = 0; p < 3; ++p) {
        const QString page = pages[p];
        SCOPED_TRACE(p + 1);
        EXPECT_TRUE(page.contains(u"CONTAS A PAGAR"_s));
        EXPECT_TRUE(page.contains(u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026"_s));
        EXPECT_TRUE(squeezed(page).contains(u"Data Descrição Fornecedor Valor Estatus"_s));
        EXPECT_TRUE(page.contains(u"Página atual: %1 de 3"_s.arg(p + 1)));
        EXPECT_TRUE(page.contains(u"Emitido em segunda-feira, 23 de novembro de 2026 às 10:00:00"_s));
        // the hidden column takes no room and prints nothing
        EXPECT_FALSE(page.contains(u"segredo"_s));
        EXPECT_FALSE(page.contains(u"id "_s));
        // rows in order, none lost, none twice
        static const QRegularExpression row(u"Linha (\\d{4})"_s);
        for (auto it = row.globalMatch(page); it.hasNext();)
            EXPECT_EQ(it.next().captured(1).toInt(), next++);
    }
    EXPECT_EQ(next, t.row_count() + 1);
    EXPECT_TRUE(pages[2].contains(u"Total de cadastros no período: 3"_s));
    EXPECT_TRUE(pages[2].contains(u"Slogan da empresa"_s));
    EXPECT_FALSE(pages[0].contains(u"Total de cadastros"_s));
}

TEST_F(print_test, report_codes_and_their_messages) {
    // the texts of the codes are in tests/data/output/texts.txt
    const auto texts = [](int code) { return output::report_error_text(code); };

    // an empty list: code 1, and no page at all
    test_table empty = ledger(0);
    output::list_report r = output::nova_impressao(output::report_form::rlt_impressao, &empty);
    EXPECT_FALSE(output::Executar(r));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Impressão"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, texts(1));
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_FALSE(QFile::exists(pdf_));
    EXPECT_EQ(target_.jobs(), 0);

    // a line taller than the page: code 5
    test_table some = ledger(3);
    r.Grid = &some;
    r.Altura = 20000;
    prompts_.clear();
    EXPECT_FALSE(output::Executar(r));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, texts(5));
    EXPECT_FALSE(QFile::exists(pdf_));

    // no printer on the machine: code 0
    struct no_printer_target : platform::print_target {
        outcome prepare(QPrinter&) override { return no_printer; }
    } none;
    platform::set_print_destination(&none);
    r.Altura = 0;
    prompts_.clear();
    EXPECT_FALSE(output::Executar(r));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, texts(0));

    // a print dialog that was cancelled says nothing
    struct cancelled_target : platform::print_target {
        outcome prepare(QPrinter&) override { return cancelled; }
    } cancel;
    platform::set_print_destination(&cancel);
    prompts_.clear();
    EXPECT_FALSE(output::Executar(r));
    EXPECT_TRUE(prompts_.boxes().empty());

    // a file that cannot be written: the unforeseen-error box
    target_.set_path(path(u"nao/existe/saida.pdf"_s));
    platform::set_print_destination(&target_);
    EXPECT_FALSE(output::Executar(r));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith(u"Erro não previsto:482\r\n"_s))
        << prompts_.boxes()[0].text.toStdString();
    EXPECT_EQ(prompts_.boxes()[0].style, platform::critical);
}

TEST_F(print_test, the_forms_differ_in_their_extra_fields) {
    test_table t = ledger(4);
    output::list_report lv = output::nova_impressao(output::report_form::rlt_ListView, &t);
    lv.rpf_Titulo = u"ESTATÍSTICAS DE CLIENTES"_s;
    lv.lblfiltro = u"Filtrado por: Todos os dados"_s;
    lv.lblestatus = u"Total: 4"_s;
    lv.lblsumario1 = u"Primeiro sumário"_s;
    lv.lblsumario2 = u"Segundo sumário"_s;
    ASSERT_TRUE(output::Executar(lv));
    QStringList pages = pdf_pages(pdf_);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains(u"ESTATÍSTICAS DE CLIENTES"_s));
    EXPECT_TRUE(pages[0].contains(u"Primeiro sumário"_s));
    EXPECT_TRUE(pages[0].contains(u"Segundo sumário"_s));
    EXPECT_TRUE(pages[0].contains(u"Página atual: 1 de 1"_s));

    // rlt_impressao has no second summary line
    output::list_report im = lv;
    im.form = output::report_form::rlt_impressao;
    ASSERT_TRUE(output::Executar(im));
    pages = pdf_pages(pdf_);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains(u"Primeiro sumário"_s));
    EXPECT_FALSE(pages[0].contains(u"Segundo sumário"_s));

    // rlt_historico: the contact block, portrait
    output::list_report hi = output::nova_impressao(output::report_form::rlt_historico, &t);
    EXPECT_EQ(hi.orientacao, 1);
    hi.rpf_Titulo = u"HISTÓRICO FINANCEIRO DE CLIENTE"_s;
    hi.contato = {u"Maria da Silva"_s,  u"Pessoa Física"_s, u"123.456.789-00"_s, u"(11) 1234-5678"_s,
                  u"(11) 98765-4321"_s, u"ISENTO"_s,        u"01/02/1980"_s,     QString()};
    ASSERT_TRUE(output::Executar(hi));
    pages = pdf_pages(pdf_);
    ASSERT_EQ(pages.size(), 1);
    const QString p = squeezed(pages[0]);
    for (const QString& s :
         {u"Nome do cliente: Maria da Silva"_s, u"Tipo de cliente: Pessoa Física"_s,
          u"CPF/CNPJ: 123.456.789-00"_s, u"Telefone: (11) 1234-5678"_s, u"Celular/Nextel: (11) 98765-4321"_s,
          u"Inscrição estadual: ISENTO"_s, u"Data de nascimento: 01/02/1980"_s})
        EXPECT_TRUE(p.contains(s)) << s.toStdString();
    EXPECT_EQ(target_.jobs(), 3);
}

namespace {

test_table pagar_movimento(int rows) {
    test_table t = table_of({u"Data"_s, u"Descrição da despesa"_s, u"Documento"_s, u"Fornecedor"_s,
                             u"Vencimento"_s, u"Valor"_s, u"Estatus"_s, u"Conta Origem"_s, u"Informações"_s},
                            {});
    for (int i = 1; i <= rows; ++i)
        t.rows.push_back({u"01/11/2026 "_s, u"Despesa %1 "_s.arg(i, 3, 10, QLatin1Char('0')),
                          u"NF%1 "_s.arg(i), u"Fornecedor X "_s, u"10/11/2026 "_s, u"R$ 12,50 "_s,
                          u"Pendente "_s, u"Caixa "_s, u"obs %1 "_s.arg(i)});
    return t;
}

} // namespace

TEST_F(print_test, direct_print_heads_rows_together_and_closing_block) {
    store::save_setting(store::secao_relatorio, u"nome"_s, u"Oficina do Zé"_s);
    test_table t = pagar_movimento(40);
    ASSERT_TRUE(output::modimpressao::imprimir_lista(
        output::modimpressao::cabecalho::despesas, t, u"Movimento do mês de contas a pagar"_s,
        u"Período: novembro de 2026"_s, u"Total pendente: R$ 500,00"_s));
    const QStringList pages = pdf_pages(pdf_);
    ASSERT_GE(pages.size(), 2);
    int next = 1;
    for (int i = 0; i < pages.size(); ++i) {
        SCOPED_TRACE(i + 1);
        const QString page = pages[i];
        const QString flat = squeezed(page);
        // a row's three lines stay on one page, in order
        static const QRegularExpression row(u"Despesa (\\d{3})"_s);
        int first = next;
        for (auto it = row.globalMatch(page); it.hasNext();)
            EXPECT_EQ(it.next().captured(1).toInt(), next++);
        const int here = next - first;
        if (here == 0) {
            // the closing block alone on a new page has no page head
            EXPECT_EQ(i, pages.size() - 1);
            EXPECT_TRUE(flat.startsWith(u"Estatísticas"_s));
            continue;
        }
        EXPECT_TRUE(flat.contains(u"QUINTARA - Página: %1"_s.arg(i + 1)));
        EXPECT_TRUE(page.contains(u"Movimento do mês de contas a pagar"_s));
        EXPECT_TRUE(page.contains(u"Período: novembro de 2026"_s));
        EXPECT_TRUE(flat.contains(u"DATA DESCRIÇÃO DA DESPESA DOC. FORNECEDOR"_s));
        EXPECT_EQ(page.count(u"Vencimento: 10/11/2026"_s), here);
        EXPECT_EQ(page.count(u"Informações Adicionais: obs"_s), here);
        EXPECT_EQ(flat.count(u"Valor: R$ 12,50 Conta origem: Caixa"_s), here);
    }
    EXPECT_EQ(next, 41);
    const QString last = squeezed(pages.last());
    EXPECT_TRUE(last.contains(u"Estatísticas"_s));
    EXPECT_TRUE(last.contains(u"Total pendente: R$ 500,00"_s));
    EXPECT_TRUE(last.contains(u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s));
    EXPECT_TRUE(last.contains(u"Oficina do Zé"_s));
    EXPECT_LT(last.indexOf(u"Total pendente"_s), last.indexOf(u"Gerado"_s));
}

TEST_F(print_test, direct_print_of_bank_rows_and_failure_box) {
    test_table t = table_of({u"Data"_s, u"Tipo de movimento"_s, u"Conta origem"_s, u"Conta destino"_s,
                             u"Valor"_s, u"Estatus"_s, u"Informações"_s},
                            {{u"03/11/2026"_s, u"Transferência entre contas"_s, u"Caixa"_s,
                              u"Banco do Brasil"_s, u"R$ 1.000,00"_s, u"Concluído"_s, u"reserva"_s}});
    ASSERT_TRUE(output::modimpressao::imprimir_lista(output::modimpressao::cabecalho::bancario, t,
                                                     u"Bancário"_s, QString(), u"Total: R$ 1.000,00"_s));
    const QStringList pages = pdf_pages(pdf_);
    ASSERT_EQ(pages.size(), 1);
    const QString flat = squeezed(pages[0]);
    EXPECT_TRUE(flat.contains(u"DATA TIPO DE MOVIMENTO ORIGEM DESTINO VALOR"_s));
    EXPECT_TRUE(flat.contains(u"03/11/2026 Transferência entre contas Caixa Banco do Brasil R$ 1.000,00"_s));
    EXPECT_TRUE(flat.contains(u"Estatus: Concluído Informações: reserva"_s));

    target_.set_path(path(u"nao/existe/saida.pdf"_s));
    EXPECT_FALSE(output::modimpressao::imprimir_lista(output::modimpressao::cabecalho::bancario, t,
                                                      u"Bancário"_s, QString(), QString()));
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_EQ(
        prompts_.boxes()[0].text,
        u"Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e conectada ao computador"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::critical);
}

TEST(printing_family, the_core_fonts_resolve_to_their_metric_twins) {
    // the set-up installs the Liberation families; a machine with the real faces keeps them
    const QStringList installed = QFontDatabase::families();
    const struct {
        QString asked, twin;
    } cases[] = {{u"Arial"_s, u"Liberation Sans"_s},
                 {u"Times New Roman"_s, u"Liberation Serif"_s},
                 {u"Courier New"_s, u"Liberation Mono"_s},
                 {u"No Such Face"_s, u"Liberation Sans"_s}};
    for (const auto& c : cases) {
        const QString expected = installed.contains(c.asked, Qt::CaseInsensitive) ? c.asked : c.twin;
        EXPECT_EQ(platform::printing_family(c.asked), expected) << c.asked.toStdString();
    }
    // what is drawn is the resolved face, not a substitute the system picked
    EXPECT_EQ(QFontInfo(platform::twips_font(u"Arial"_s, 10)).family(),
              platform::printing_family(u"Arial"_s));
}
