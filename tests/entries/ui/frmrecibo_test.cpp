// Receipts: the openers reached from the main window's buttons, the crosswise names and the two
// amount forms, the printed lines read back from the page, and a printer that fails.

#include "entries/recibo.h"
#include "entries/ui/frmrecibo.h"
#include "platform/print/printer.h"
#include "support/pdf_read.h"
#include "support/window_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class recibo : public support::window_fixture {
protected:
    void SetUp() override {
        support::window_fixture::SetUp();
        exec(u"INSERT INTO pagar (estatus, fornecedor, descricao, Valor, moeda) VALUES ('Pendente', "
             u"'Papelaria Central', 'Material', '1234,5', '$')"_s);
        exec(u"INSERT INTO receber (estatus, cliente, descricao, Valor, moeda) VALUES ('Pendente', 'Ana "
             u"Lima', "
             u"'Consultoria', '80,00', '€')"_s);
        p->carregarpagar();
        p->carregarreceber();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        delete frmrecibo::aberto();
        support::window_fixture::TearDown();
    }
    platform::pdf_target pdf_{path(u"recibo.pdf"_s)};
};

TEST_F(recibo, the_buttons_fill_the_names_crosswise_and_keep_the_twins_formats) {
    ASSERT_TRUE(p->cmdrecibod->isEnabled());
    ASSERT_TRUE(p->cmdrecibor->isEnabled());
    p->lstpagar->select_row(0);
    p->cmdrecibod->click();
    frmrecibo* r = frmrecibo::aberto();
    ASSERT_TRUE(r && r->isVisible());
    const auto campos = [r] {
        return QStringList{r->windowTitle(),        r->txtpagamento->text(), r->txtrecibo->text(),
                           r->txtreferente->text(), r->txtdata->text(),      r->txtvalor->text()};
    };
    EXPECT_EQ(campos(),
              QStringList({u"Recibo de contas a pagar"_s, u"Papelaria Central"_s, u"Seu nome e ou empresa"_s,
                           u"Material"_s, u"23/11/2026"_s, u"1.234,50"_s}));

    p->lstreceber->select_row(0);
    p->cmdrecibor->click();
    // the currency sign of the row plays no part
    EXPECT_EQ(campos(), QStringList({u"Recibo de contas a receber"_s, u"Seu nome e ou empresa"_s,
                                     u"Ana Lima"_s, u"Consultoria"_s, u"23/11/2026"_s, u"R$ 80,00"_s}));
    // nothing is written anywhere
    EXPECT_EQ(rows(u"SELECT estatus FROM receber"_s), QStringList{u"Pendente"_s});
}

TEST_F(recibo, an_empty_list_only_sets_the_caption) {
    frmrecibo* r = frmrecibo::instance();
    r->txtpagamento->setText(u"digitado"_s);
    p->lstreceber->clear_rows();
    p->cmdrecibor->click();
    EXPECT_TRUE(r->isVisible());
    EXPECT_EQ(r->windowTitle(), u"Recibo de contas a receber"_s);
    EXPECT_EQ(r->txtpagamento->text(), u"digitado"_s);
    EXPECT_EQ(p->codigoselecionado, 0.0);
    // a row that is gone leaves the row's fields as they were
    r->abrir(shell::ledger::pagar, 99);
    EXPECT_EQ(r->txtpagamento->text(), u"digitado"_s);
    EXPECT_EQ(r->txtrecibo->text(), u"Seu nome e ou empresa"_s);
}

TEST_F(recibo, the_page_holds_the_lines_and_one_prefix) {
    frmrecibo* r = frmrecibo::instance();
    r->abrir(shell::ledger::receber, 1);
    r->cmdimprimir->click();
    r->cmdimprimir->click(); // twice: still no trace in the data file
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(rows(u"SELECT estatus, Valor FROM receber"_s), QStringList{u"Pendente|80,00"_s});
    const QStringList pages = support::pdf_pages(pdf_.path());
    ASSERT_EQ(pages.size(), 1);
    QStringList lines;
    for (const QString& l : pages[0].split(QLatin1Char('\n')))
        if (!l.trimmed().isEmpty()) lines << l.simplified();
    const QString rule77(77, QLatin1Char('_')), line42(42, QLatin1Char('_')), rule78(78, QLatin1Char('_'));
    EXPECT_EQ(lines.mid(0, 11).join(u"|"_s),
              u"Recibo de contas a receber|"_s + rule77 +
                  u"|Pagamento para: Seu nome e ou empresa|Recibo de: Ana Lima|Referênte a: Consultoria"
                  u"|Valor: R$ 80,00|Data: 23/11/2026|Assinatura|"_s +
                  line42 + u"|"_s + rule78 + u"|Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s);
}

TEST_F(recibo, the_lines_are_blank_exact) {
    const QStringList l = entries::linhas_recibo({u"Recibo de contas a pagar"_s, u"Fulano"_s, u"Eu"_s,
                                                  u"Aluguel"_s, u"R$ 1.234,5"_s, u"01/12/2026"_s});
    ASSERT_EQ(l.size(), 16);
    EXPECT_EQ(l[0], u"Recibo de contas a pagar "_s);
    EXPECT_EQ(l[1], u" "_s + QString(77, QLatin1Char('_')));
    EXPECT_EQ(l[3], u"  Pagamento para:     Fulano"_s);
    EXPECT_EQ(l[7], u"  Referênte a:     Aluguel"_s);
    EXPECT_EQ(l[9], u"  Valor:     R$ 1.234,50"_s);
    EXPECT_EQ(l[13], QString(60, QLatin1Char(' ')) + u"Assinatura        "_s);
    EXPECT_EQ(l[14], QString(37, QLatin1Char(' ')) + QString(42, QLatin1Char('_')));
    EXPECT_EQ(l[15], u" "_s + QString(78, QLatin1Char('_')));
    // an amount that cannot be read goes out as typed
    EXPECT_EQ(entries::linhas_recibo({{}, {}, {}, {}, u"abc"_s, {}})[9], u"  Valor:     R$ abc"_s);
}

TEST_F(recibo, a_printer_that_fails_is_told_and_the_window_stays) {
    pdf_.set_path(path(u"nao/existe/recibo.pdf"_s));
    frmrecibo* r = frmrecibo::instance();
    r->abrir(shell::ledger::pagar, 1);
    r->cmdimprimir->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(
        prompts_.boxes()[0].title + u": "_s + prompts_.boxes()[0].text,
        u"Erro: Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e conectada ao "
        u"computador"_s);
    EXPECT_TRUE(r->isVisible());
}

} // namespace
