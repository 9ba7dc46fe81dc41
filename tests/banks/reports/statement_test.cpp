// The bank statement: its three statements, the rows and totals it finds on a small file, the
// HTML file, the print, and the dialog that asks for it.

#include "bank_file.h"
#include "banks/statement.h"
#include "banks/ui/frmconfextrato.h"
#include "banks/ui/frmextrato.h"
#include "platform/print/printer.h"
#include "platform/sql/jet_dialect.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

class statement : public testing_banks::bank_file {
protected:
    void livro() {
        conta(u"Itaú"_s, u"500,00"_s);
        conta(u"Banco do Brasil"_s, u"0,00"_s);
        conta(u"Vazia"_s, u"0,00"_s);
        // a paid expense shows under the day it was entered, its due day rewritten on settling
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"1234,5"_s, u"2026/11/03"_s, u"Aluguel"_s,
                u"23/12/2026"_s);
        entrada(u"pagar"_s, u"Pendente"_s, u"Itaú"_s, u"10,00"_s, u"2026/11/04"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"10,00"_s, u"2026/10/31"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"10,00"_s, u"2026/11/04"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"ITAÚ"_s, u"99,999"_s, u"2026/11/30"_s, u"Venda"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"Itaú"_s, u"abc"_s, u"2026/11/29"_s, u"Sem valor"_s);
        movimento(u"Concluído"_s, u"Depósito"_s, u"Itaú"_s, u" - "_s, u"100,00"_s, u"2026/11/01"_s);
        movimento(u"Concluído"_s, u"Retirada"_s, u"Itaú"_s, u" - "_s, u"30,00"_s, u"2026/11/02"_s);
        movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Itaú"_s, u"Banco do Brasil"_s,
                  u"50,00"_s, u"2026/11/05"_s);
        movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Banco do Brasil"_s, u"Itaú"_s,
                  u"20,00"_s, u"2026/11/06"_s);
        movimento(u"Pendente"_s, u"Depósito"_s, u"Itaú"_s, u" - "_s, u"7,00"_s, u"2026/11/07"_s);
    }
};

TEST(extrato_statements, the_three_statements_with_and_without_the_target_account) {
    const auto s = banks::extrato_statements(u"Itaú"_s, u"2026/11/01"_s, u"2026/11/30"_s, false);
    EXPECT_EQ(s[0],
              u"select * from [pagar] where [data] BETWEEN '2026/11/01' AND '2026/11/30' AND [origem] like "
              u"'Itaú' AND [estatus] like 'Concluído'"_s);
    EXPECT_EQ(s[1], u"select * from [receber] where [data] BETWEEN '2026/11/01' AND '2026/11/30' AND (origem "
                    u"like 'Itaú') AND (estatus like 'Concluído')"_s);
    EXPECT_EQ(s[2],
              u"select * from [bancario] where [data] BETWEEN '2026/11/01' AND '2026/11/30' AND (origem "
              u"like 'Itaú') AND [estatus] like 'Concluído'"_s);
    EXPECT_EQ(banks::extrato_statements(u"Itaú"_s, u"2026/11/01"_s, u"2026/11/30"_s, true)[2],
              u"select * from [bancario] where [data] BETWEEN '2026/11/01' AND '2026/11/30' AND (origem like "
              u"'Itaú' OR [destino] like 'Itaú') AND [estatus] like 'Concluído'"_s);
    for (const QString& x : banks::extrato_statements(u"D'Ávila"_s, u"2026/11/01"_s, u"2026/11/30"_s, true))
        EXPECT_TRUE(sql::has_poisoned_value(x));
    EXPECT_EQ(banks::filtro_extrato(u"1/11/26"_s, u"30/11/2026"_s, 29),
              u"Entre 1/11/26 e 30/11/2026 - Período de 29 dias"_s);
}

TEST_F(statement, settled_rows_of_the_account_dated_in_the_period) {
    livro();
    const banks::extrato e = banks::carregar_extrato(u"Itaú"_s, u"2026/11/01"_s, u"2026/11/30"_s, false);
    const std::vector<QStringList> pagar = {{u"1"_s, u"03/11/2026"_s, u"Aluguel"_s, u"D1"_s, u"Contato"_s,
                                             u"23/12/2026"_s, u"R$ 1.234,50"_s, u"Concluído"_s, u"Itaú"_s}};
    EXPECT_EQ(e.pagar, pagar);
    ASSERT_EQ(e.receber.size(), 2u);
    EXPECT_EQ(e.receber[1][6], u"R$ 100,00"_s);
    EXPECT_EQ(e.receber[1][8], u"ITAÚ"_s);
    EXPECT_EQ(e.receber[0][6], u"R$ abc"_s);
    // the transfer into the account is left out without the target
    ASSERT_EQ(e.movimento.size(), 3u);
    EXPECT_EQ(e.movimento[2],
              (QStringList{u"3"_s, u"05/11/2026"_s, u"Transferência entre contas"_s, u"Itaú"_s,
                           u"Banco do Brasil"_s, u"R$ 50,00"_s, u"Concluído"_s, u"obs"_s}));
    EXPECT_EQ(banks::total_extrato(e.total_pagar), u"R$ 1.234,50"_s);
    // 99,999 enters rounded to 100,00; a text that is no amount adds nothing
    EXPECT_EQ(banks::total_extrato(e.total_receber), u"R$ 100,00"_s);
    // deposits, withdrawals and transfers are summed alike
    EXPECT_EQ(banks::total_extrato(e.total_movimento), u"R$ 180,00"_s);

    const banks::extrato d = banks::carregar_extrato(u"Itaú"_s, u"2026/11/01"_s, u"2026/11/30"_s, true);
    ASSERT_EQ(d.movimento.size(), 4u);
    EXPECT_EQ(d.movimento[3][4], u"Itaú"_s);
    EXPECT_EQ(banks::total_extrato(d.total_movimento), u"R$ 200,00"_s);

    // reversed dates, an account with no rows, a name with an apostrophe: empty lists, totals of zero
    for (const auto& [conta, d1, d2] : {std::tuple{u"Itaú"_s, u"2026/11/30"_s, u"2026/11/01"_s},
                                        std::tuple{u"Vazia"_s, u"2026/01/01"_s, u"2026/12/31"_s},
                                        std::tuple{u"D'Ávila"_s, u"2026/01/01"_s, u"2026/12/31"_s}}) {
        const banks::extrato v = banks::carregar_extrato(conta, d1, d2, true);
        EXPECT_TRUE(v.pagar.empty() && v.receber.empty() && v.movimento.empty()) << conta.toStdString();
        EXPECT_EQ(banks::total_extrato(v.total_movimento), u"R$ 0,00"_s);
    }
}

TEST_F(statement, the_dialog_fills_the_window_which_saves_and_prints) {
    livro();
    shell::run_action(u"mnuextrato"_s);
    frmconfextrato* c = frmconfextrato::instance();
    ASSERT_TRUE(c->isVisible());
    ASSERT_EQ(c->cboorigem->count(), 3);
    EXPECT_EQ(c->cboorigem->itemText(1), u"Banco do Brasil"_s);
    c->cbodata1->line_edit()->setText(u"1/11/26"_s);
    c->cbodata2->line_edit()->setText(u"30/11/2026"_s);
    c->cmdvisualizar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Extrato"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Preencha todos os dados!"_s);
    c->cboorigem->setCurrentIndex(0);
    c->chkdestino->setChecked(true);
    c->cmdvisualizar->click();
    EXPECT_FALSE(c->isVisible());
    frmextrato* w = frmextrato::instance();
    EXPECT_EQ(w->windowTitle(), u"Extrato bancário: Itaú"_s);
    EXPECT_EQ(w->lblfiltro->text(), u"Entre 1/11/26 e 30/11/2026 - Período de 29 dias"_s);
    EXPECT_EQ(w->lbldespesa->text(), u"R$ 1.234,50"_s);
    EXPECT_EQ(w->lblmovimento->text(), u"R$ 200,00"_s);
    EXPECT_EQ(w->lstmovimento->row_count(), 4);

    EXPECT_TRUE(saves([&] { w->cmdhtml->click(); }, u"Salvar relatório de extrato bancário html"_s,
                      u"Arquivos HTML(*.html)|*.html"_s, u"banks/extrato.html"_s));

    platform::pdf_target pdf(path(u"extrato.pdf"_s));
    platform::set_print_destination(&pdf);
    w->cmdimprimir->click();
    platform::set_print_destination(nullptr);
    const QStringList pages = support::pdf_pages(path(u"extrato.pdf"_s));
    ASSERT_EQ(pages.size(), 3);
    // the lines of a page, blanks squeezed
    const auto lines = [&](int p) {
        QStringList out;
        for (const QString& l : pages[p].split(u'\n'))
            if (!l.trimmed().isEmpty()) out << l.simplified();
        return out;
    };
    const QStringList despesas = lines(0);
    EXPECT_TRUE(despesas.contains(u"Período filtrado: Entre 1/11/26 e 30/11/2026 - Período de 29 dias"_s));
    EXPECT_TRUE(despesas.contains(u"DATA DESCRIÇÃO DA DESPESA DOC. FORNECEDOR"_s));
    EXPECT_TRUE(despesas.contains(u"03/11/2026 Aluguel D1 Contato"_s));
    EXPECT_TRUE(despesas.contains(u"Vencimento: 23/12/2026 Valor: R$ 1.234,50 Conta origem: Itaú"_s));
    EXPECT_TRUE(despesas.contains(u"Estatus: Concluído Informações Adicionais:"_s));
    EXPECT_TRUE(lines(1).contains(u"DATA DESCRIÇÃO DA RECEITA DOC. CLIENTE"_s));
    const QStringList bancario = lines(2);
    EXPECT_TRUE(bancario.contains(u"06/11/2026 Transferência entre contas Banco do Brasil Itaú R$ 20,00"_s));
    EXPECT_TRUE(bancario.contains(u"Estatus: Concluído Informações: obs"_s));
    EXPECT_TRUE(bancario.contains(u"Total de movimento bancário: R$ 200,00"_s));
    // the tab columns of a movement: 0, 13, 42, 70 and 102 average characters of the row's font,
    // and the label under the origin at 42 too
    const auto words = testing_banks::pdf_words(path(u"extrato.pdf"_s));
    std::vector<testing_banks::pdf_word> linha;
    for (const auto& w : words)
        if (w.page == 2 && !linha.empty() && w.y == linha.front().y)
            linha.push_back(w);
        else if (w.page == 2 && w.text == u"06/11/2026"_s)
            linha = {w};
    ASSERT_EQ(linha.size(), 10u);
    const auto x_of = [&](const QString& t) {
        for (const auto& w : linha)
            if (w.text == t) return w.x;
        return -1.0;
    };
    const double x13 = x_of(u"Transferência"_s), coluna = (x_of(u"Banco"_s) - x13) / (42 - 13);
    EXPECT_GT(coluna, 0.0);
    EXPECT_NEAR(x_of(u"Itaú"_s), x13 + (70 - 13) * coluna, 0.5);
    EXPECT_NEAR(x_of(u"R$"_s), x13 + (102 - 13) * coluna, 0.5);
    EXPECT_NEAR(linha[0].x, x13 - 12 * coluna, 0.5); // tabs 0 and 1 are both the left edge
    for (const auto& w : words)
        if (w.page == 2 && w.text == u"Informações:"_s) EXPECT_NEAR(w.x, x_of(u"Banco"_s), 0.5);
}

} // namespace
