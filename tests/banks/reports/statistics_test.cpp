// The accounts' statistics: balances over a period worked out by hand on a small file, the
// summaries, the text and HTML files, and the windows that ask for the dates.

#include "bank_file.h"
#include "banks/statistics.h"
#include "banks/ui/frmdatabanco.h"
#include "banks/ui/frmestbanco.h"
#include "banks/ui/frmsaldodia.h"
#include "platform/print/printer.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

class statistics : public testing_banks::bank_file {
protected:
    // Three accounts and rows of every kind, in and out of November 2026.
    void livro() {
        conta(u"Banco do Brasil"_s, u"1.000,00"_s, u"Conta corrente"_s);
        conta(u"Itaú"_s, u"500,50"_s, u"Poupança"_s);
        conta(u"Caixa"_s, u"0,00"_s, u"Dinheiro"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"100,00"_s, u"2026/11/10"_s);
        entrada(u"pagar"_s, u"Pendente"_s, u"Banco do Brasil"_s, u"999,00"_s, u"2026/11/10"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"50,00"_s, u"2026/10/31"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"abc"_s, u"2026/11/10"_s);
        entrada(u"pagar"_s, u"Concluído"_s, u"Itaú"_s, u"5,00"_s, u"1999/12/31"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"Banco do Brasil"_s, u"250,25"_s, u"2026/11/15"_s);
        // two amounts under a cent: summed as read they make one
        entrada(u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"0,004"_s, u"2026/11/20"_s);
        entrada(u"receber"_s, u"Concluído"_s, u"Caixa"_s, u"0,004"_s, u"2026/11/21"_s);
        movimento(u"Concluído"_s, u"DEPÓSITO"_s, u"Banco do Brasil"_s, u" - "_s, u"40,00"_s, u"2026/11/05"_s);
        movimento(u"Concluído"_s, u"Retirada"_s, u"Itaú"_s, u" - "_s, u"20,50"_s, u"2026/11/06"_s);
        movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Banco do Brasil"_s, u"Itaú"_s,
                  u"300,00"_s, u"2026/11/07"_s);
        movimento(u"Pendente"_s, u"Transferência entre contas"_s, u"Itaú"_s, u"Caixa"_s, u"40,00"_s,
                  u"2026/11/08"_s);
        movimento(u"Concluído"_s, u"Transferência entre contas"_s, u"Itaú"_s, u"Caixa"_s, u"10,00"_s,
                  u"2026/12/01"_s);
    }
};

TEST_F(statistics, a_period_counts_settled_rows_dated_in_it_by_kind) {
    livro();
    int contas = 0, feitas = 0;
    const banks::estatisticas e = banks::geral(u"2026/11/01"_s, u"2026/11/30"_s,
                                               {[&](int n) { contas = n; }, [&](int i) { feitas = i; }});
    // BB 1000 - 100 + 250,25 + 40 - 300; Itaú 500,50 - 20,50 + 300; Caixa 0,004 + 0,004
    EXPECT_TRUE(support::matches_golden(u"banks/estatisticas_novembro.txt"_s,
                                        support::table_text(e.linhas) + e.resumo + u"=====\n"_s + e.est));
    EXPECT_EQ(contas, 3);
    EXPECT_EQ(feitas, 3);
    EXPECT_DOUBLE_EQ(e.despesas, 100.0);
    EXPECT_DOUBLE_EQ(e.receitas, 250.258);
    EXPECT_DOUBLE_EQ(e.depositos, 40.0);
    EXPECT_DOUBLE_EQ(e.retiradas, 20.5);
}

TEST_F(statistics, up_to_a_day_counts_from_2000_and_reversed_dates_find_nothing) {
    livro();
    const banks::estatisticas dia = banks::nodia(u"2026/11/30"_s);
    // October's expense counts now; the Itaú expense of 1999 never does
    EXPECT_EQ(dia.linhas[0][1], u"R$ 840,25"_s);
    EXPECT_EQ(dia.linhas[1][1], u"R$ 780,00"_s);
    EXPECT_TRUE(
        dia.est.startsWith(u"Saldo em caixa até o dia: 30/11/2026\nTotal de despesas: R$ 150,00\n"_s));
    EXPECT_TRUE(dia.est_html.startsWith(u"<b>Saldo em caixa até o dia:</b> 30/11/2026<br><b>Total"_s));

    const banks::estatisticas r = banks::geral(u"2026/11/30"_s, u"2026/11/01"_s);
    for (const QStringList& l : r.linhas)
        EXPECT_EQ(l[1], l[3]) << l[0].toStdString();
    EXPECT_EQ(r.est, u"Filtrado entre as datas:\n30/11/2026 e 01/11/2026\nPeríodo de -29 dia(s)\n"
                     u"Total de despesas: R$ 0,00\nTotal de receitas: R$ 0,00\nRetiradas: R$ 0,00\n"
                     u"Depósitos: R$ 0,00\nSaldo: R$ 1.500,50\n"_s);
}

TEST_F(statistics, bad_names_amounts_and_an_empty_file_are_skipped_quietly) {
    // no account: the statistics hold their heading only
    const banks::estatisticas vazio = banks::geral(u"2026/01/01"_s, u"2026/12/31"_s);
    EXPECT_TRUE(vazio.linhas.empty());
    EXPECT_TRUE(vazio.resumo.isEmpty());
    EXPECT_EQ(vazio.est, u"Filtrado entre as datas:\n01/01/2026 e 31/12/2026\nPeríodo de 364 dia(s)\n"_s);

    conta(u"D'Ávila"_s, u"75,00"_s);
    conta(u"Sem saldo"_s, u"abc"_s);
    entrada(u"pagar"_s, u"Concluído"_s, u"D'Ávila"_s, u"10,00"_s, u"2026/05/01"_s);
    entrada(u"pagar"_s, u"Concluído"_s, u"Sem saldo"_s, u"10,00"_s, u"2026/05/01"_s);
    store::conectarbanco();
    const banks::period ano{u"2026/01/01"_s, u"2026/12/31"_s};
    const banks::conta_no_periodo c = banks::saldo_no_periodo(store::conexao, u"D'Ávila"_s, u"75,00"_s, ano);
    EXPECT_EQ(c.falhas, 5);
    EXPECT_DOUBLE_EQ(c.saldo, 75.0);
    const banks::estatisticas e = banks::geral(ano.de, ano.ate);
    ASSERT_EQ(e.linhas.size(), 2u);
    EXPECT_EQ(e.linhas[0], (QStringList{u"D'Ávila"_s, u"R$ 75,00"_s, u"Conta"_s, u"R$ 75,00"_s}));
    // an opening balance that is no amount starts from zero and shows as stored
    EXPECT_EQ(e.linhas[1], (QStringList{u"Sem saldo"_s, u"R$ -10,00"_s, u"Conta"_s, u"R$ abc"_s}));
}

TEST_F(statistics, the_files_and_the_print_from_the_window) {
    livro();
    auto* dialogo = frmdatabanco::instance();
    dialogo->cbodata1->set_text(u"01/11/2026"_s);
    dialogo->cmdvisualizar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Data"_s);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Selecione a data inicial e a data final!"_s);
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_EQ(frmestbanco::aberto(), nullptr);
    dialogo->cbodata2->set_text(u"30/11/2026"_s);
    dialogo->cmdvisualizar->click();
    frmestbanco* w = frmestbanco::aberto();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_FALSE(dialogo->isVisible());
    EXPECT_EQ(w->lstcaixabanco->row_count(), 3);
    EXPECT_EQ(w->txtresucaixa->toPlainText(), banks::geral(u"2026/11/01"_s, u"2026/11/30"_s).resumo);

    prompts_.clear();
    prompts_.answer_text(path(u"est.txt"_s));
    prompts_.answer(platform::answer_no);
    w->cmdtxt->click();
    prompts_.answer_text(path(u"est.html"_s));
    prompts_.answer(platform::answer_no);
    w->cmdhtml->click();
    EXPECT_TRUE(support::file_matches_golden(u"banks/estatisticas.txt"_s, path(u"est.txt"_s)));
    EXPECT_TRUE(support::file_matches_golden(u"banks/estatisticas.html"_s, path(u"est.html"_s)));
    const auto& r = prompts_.records();
    ASSERT_EQ(r.size(), 4u);
    EXPECT_EQ(r[0].title, u"Salvar estatística em txt"_s);
    EXPECT_EQ(r[0].filter, u"Arquivos de Texto(*.txt)|*.txt"_s);
    EXPECT_EQ(r[1].title, u"Visualizar"_s);
    EXPECT_EQ(r[2].title, u"Salvar estatísticas em html"_s);
    EXPECT_EQ(r[2].filter, u"Arquivos HTML(*.html)|*.html"_s);

    platform::pdf_target pdf(path(u"est.pdf"_s));
    platform::set_print_destination(&pdf);
    w->cmdimprimir->click();
    platform::set_print_destination(nullptr);
    const QString texto = support::pdf_pages(path(u"est.pdf"_s)).join(u'\f').simplified();
    for (
        const QString& esperado :
        {u"Caixa/Banco: Banco do Brasil Saldo(no período): R$ 890,25 Informações: Conta corrente "
         u"Saldo(inicial): R$ 1.000,00 Caixa/Banco: Itaú"_s,
         u"RESUMO DE CAIXA Caixa/Banco: Banco do Brasil(Conta corrente) O saldo neste banco inicio com R$ 1000"_s,
         u"ESTATÍSTICAS Filtrado entre as datas: 01/11/2026 e 30/11/2026 Período de 29 dia(s)"_s,
         u"Saldo: R$ 1.670,26"_s, u"Gerado segunda-feira, 23 de novembro de 2026 às 10:00:00"_s})
        EXPECT_TRUE(texto.contains(esperado)) << esperado.toStdString() << "\n" << texto.toStdString();
}

TEST_F(statistics, the_day_dialog_and_the_pop_up_actions) {
    livro();
    ASSERT_TRUE(shell::run_action(u"frmsaldodia"_s));
    auto* dialogo = frmsaldodia::instance();
    EXPECT_TRUE(dialogo->isVisible());
    dialogo->cmdvisualizar->click();
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Selecione a data final!"_s);
    dialogo->cbodata1->line_edit()->setText(u"30/11/2026"_s);
    dialogo->cmdvisualizar->click();
    ASSERT_NE(frmestbanco::aberto(), nullptr);
    EXPECT_EQ(frmestbanco::aberto()->lstcaixabanco->text(0, 1), u"R$ 840,25"_s);
    EXPECT_TRUE(shell::run_action(u"frmdatabanco"_s));
    EXPECT_TRUE(frmdatabanco::instance()->isVisible());
}

} // namespace
