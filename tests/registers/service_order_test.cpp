// Service orders: the two entry windows and their checks, the lists in memory, the totals in the
// currency type, the printed page read back, and a printer that fails.

#include "platform/print/printer.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/money_field.h"
#include "registers/service_order.h"
#include "registers/ui/frmcadprodorc.h"
#include "registers/ui/frmcadservord.h"
#include "registers/ui/frmordemserv.h"
#include "shell/principal_api.h"
#include "support/fixture.h"
#include "support/pdf_read.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

class ordem : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        platform::set_print_destination(&pdf_);
        ASSERT_TRUE(shell::run_action(u"mnuordemserv"_s));
        f = frmordemserv::aberto();
        ASSERT_TRUE(f && f->isVisible());
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        delete frmordemserv::aberto();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        support::fixture::TearDown();
    }
    void produto(const QString& nome, const QString& valor, const QString& qtd) {
        f->cmdadpro->click();
        frmcadprodorc* c = frmcadprodorc::aberto();
        ASSERT_TRUE(c);
        c->txtnome->setText(nome);
        c->txtmarca->setText(u"Marca"_s);
        c->txtvalor->setText(valor);
        c->txtquantidade->setText(qtd);
        c->cmdadicionar->click();
    }
    void servico(const QString& tipo, const QString& valor) {
        f->cmdadserv->click();
        frmcadservord* c = frmcadservord::aberto();
        ASSERT_TRUE(c);
        c->txtnome->setText(tipo);
        c->txtdescricao->setText(u"Troca"_s);
        c->txtvalor->setText(valor);
        c->cmdadicionar->click();
    }
    // The first printed line that holds the text, blanks squeezed.
    QString linha_com(const QString& texto) {
        for (const QString& l : support::pdf_pages(pdf_.path()).join(u"\n"_s).split(QLatin1Char('\n')))
            if (l.contains(texto)) return l.simplified();
        return {};
    }
    frmordemserv* f = nullptr;
    platform::pdf_target pdf_{path(u"ordem.pdf"_s)};
};

TEST_F(ordem, the_entry_windows_check_their_fields_and_the_lists_lose_rows) {
    produto(u"   "_s, {}, {});
    frmcadprodorc::aberto()->txtnome->setText(u"Placa"_s);
    frmcadprodorc::aberto()->cmdadicionar->click();
    frmcadprodorc::aberto()->close();
    servico({}, {});
    frmcadservord::aberto()->txtnome->setText(u"Reparo"_s);
    frmcadservord::aberto()->cmdadicionar->click();
    frmcadservord::aberto()->close();
    EXPECT_EQ(boxes(), QStringList({u"Erro: O nome do produto deve ser digitado!"_s,
                                    u"Erro: O valor do produto deve ser digitado!"_s,
                                    u"Erro: O tipo de serviço deve ser digitado!"_s,
                                    u"Erro: O valor do serviço deve ser digitado!"_s}));
    EXPECT_EQ(f->lstprodutos->row_count() + f->lstservicos->row_count(), 0);
    prompts_.clear();

    produto(u"A"_s, u"R$ 1,00"_s, u"1"_s);
    produto(u"B"_s, u"R$ 2,00"_s, u"1"_s);
    servico(u"Reparo"_s, u"R$ 3,00"_s);
    EXPECT_EQ(f->lstprodutos->text(1, 5), u"R$ 2,00"_s);
    f->lstprodutos->setCurrentIndex({});
    f->cmdrempro->click(); // nothing selected: nothing happens
    EXPECT_EQ(f->lstprodutos->row_count(), 2);
    f->lstprodutos->select_row(0);
    f->cmdrempro->click();
    EXPECT_EQ(f->lstprodutos->text(0, 0), u"B"_s);
    f->cmdprodtudo->click();
    EXPECT_EQ(f->lstprodutos->row_count(), 0);
    f->cmd->click();
    EXPECT_EQ(f->lstservicos->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(ordem, totals_count_value_times_quantity_in_the_currency_type) {
    using registers::produto_ordem;
    using registers::servico_ordem;
    const std::vector<produto_ordem> produtos = {
        {u"A"_s, {}, {}, {}, {}, u"R$ 1.234,56"_s, u"3"_s},
        {u"B"_s, {}, {}, {}, {}, u"R$ 10,00"_s, u""_s},      // no quantity counts 0
        {u"C"_s, {}, {}, {}, {}, u"R$ 0,10"_s, u"2,5 un"_s}, // read by its leading number: 2
        {u"D"_s, {}, {}, {}, {}, u"R$ 0,3333"_s, u"3"_s},
    };
    const std::vector<servico_ordem> servicos = {{u"Reparo"_s, {}, u"R$ 99,90"_s},
                                                 {u"Frete"_s, {}, u"0,10"_s}};
    const auto t = registers::totalizar(produtos, servicos);
    EXPECT_EQ(vb::format_money(t.produtos), u"3.704,88"_s); // 3703,68 + 0 + 0,20 + 0,9999
    EXPECT_EQ(t.produtos.raw(), 37048799);
    EXPECT_EQ(vb::format_money(t.servicos), u"100,00"_s);
    EXPECT_EQ(t.total.raw(), t.produtos.raw() + t.servicos.raw());
    EXPECT_THROW(registers::totalizar({{u"X"_s, {}, {}, {}, {}, u"abc"_s, u"1"_s}}, {}), vb::type_mismatch);
    EXPECT_THROW(registers::totalizar({{u"X"_s, {}, {}, {}, {}, u"R$ 900.000.000.000,00"_s, u"99999"_s}}, {}),
                 vb::overflow_error);
}

TEST_F(ordem, the_page_lays_out_the_order_and_its_summary) {
    f->txtempresa->setText(u"Oficina Silva"_s);
    f->txtendereco->setText(u"Rua A, 10"_s);
    f->txttel->setText(u"(11) 5555-0000"_s);
    f->txtcliente->setText(u"Ana Lima"_s);
    produto(u"Placa"_s, u"R$ 150,00"_s, u"2"_s);
    produto(u"Cabo"_s, u"R$ 9,90"_s, u""_s);
    servico(u"Reparo"_s, u"R$ 80,00"_s);
    f->cmdimprimir->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    for (const QString& t : {u"Telefone de contato: (11) 5555-0000"_s, u"Nome do cliente: Ana Lima"_s,
                             u"Data de emissão: segunda-feira, 23 de novembro de 2026"_s, u"RESUMO"_s,
                             u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s})
        EXPECT_FALSE(linha_com(t).isEmpty()) << qPrintable(t);
    EXPECT_EQ(linha_com(u"Total de produtos:"_s), u"Total de produtos: R$ 300,00"_s);
    EXPECT_EQ(linha_com(u"Total de serviços:"_s), u"Total de serviços: R$ 80,00"_s);
    EXPECT_EQ(linha_com(u"Total a pagar:"_s), u"Total a pagar: R$ 380,00"_s);
    EXPECT_TRUE(linha_com(u"PRODUTOS"_s).startsWith(u"PRODUTOS ------"_s));
    EXPECT_TRUE(linha_com(u"SERVIÇOS"_s).startsWith(u"SERVIÇOS ------"_s));

    // the fixed columns: the title at 40, product values at 30, service values and totals at 25
    const auto words = support::pdf_words(pdf_.path());
    const auto x_de = [&](const QString& w) {
        for (const auto& p : words)
            if (p.text == w) return p.x;
        return -1.0;
    };
    const double servicos = x_de(u"Reparo"_s), produtos = x_de(u"Placa"_s);
    // tab n stands n - 1 columns from the printable area's edge (6,35 mm in)
    EXPECT_NEAR((produtos - 6.35) / (servicos - 6.35), 29.0 / 24.0, 0.01);
    double total = -1;
    for (std::size_t i = 0; i + 1 < words.size(); ++i)
        if (words[i].text == u"R$"_s && words[i + 1].text == u"380,00"_s) total = words[i].x;
    EXPECT_NEAR(total, servicos, 0.01);
    EXPECT_GT(x_de(u"ORDEM"_s), produtos);
}

TEST_F(ordem, empty_lists_a_printer_that_fails_and_an_amount_past_the_currency) {
    f->cmdimprimir->click();
    EXPECT_FALSE(linha_com(u"SERVIÇOS"_s).isEmpty());
    EXPECT_EQ(linha_com(u"Total a pagar:"_s), u"Total a pagar: R$ 0,00"_s);

    pdf_.set_path(path(u"sem/pasta/ordem.pdf"_s));
    f->cmdimprimir->click();
    pdf_.set_path(path(u"ordem.pdf"_s));
    produto(u"X"_s, u"R$ 900.000.000.000,00"_s, u"99999"_s);
    f->cmdimprimir->click();
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    for (const auto& b : prompts_.boxes()) // with its leading blank
        EXPECT_EQ(b.title + b.text,
                  u"Erro Ocorreu um erro ao tentar imprimir, verifique se a impressora está "
                  u"ligada e conectada ao computador"_s);
    // closing loses the order
    f->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(shell::run_action(u"mnuordemserv"_s));
    EXPECT_EQ(frmordemserv::aberto()->lstprodutos->row_count(), 0);
}

} // namespace
