// The two report windows: their controls and lists (as one dump), and that their buttons save and
// print the visible list; what the files and pages hold is the exporter's and the printer's tests.
#include "output/ui/frmmovimento.h"
#include "output/ui/frmrelatorio.h"
#include "platform/print/printer.h"
#include "platform/widgets/list_view.h"
#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

using support::read_text;

// The window, its labels and buttons, and each list with its headings (width and sort tag).
QString dump(const QWidget& w) {
    QString out = w.objectName() + " \"" + w.windowTitle() + "\"\n";
    for (const QLabel* l : w.findChildren<QLabel*>())
        out += "  label " + l->objectName() + " \"" + l->text() + "\"\n";
    for (const QPushButton* b : w.findChildren<QPushButton*>())
        out += "  button " + b->objectName() + " \"" + b->text() + "\"\n";
    for (const list_view* l : w.findChildren<list_view*>()) {
        out += "  list " + l->objectName() + (l->isHidden() ? "" : " (shown)") + ":";
        for (int c = 0; c < l->column_count(); ++c)
            out += u" %1 %2/%3;"_s.arg(l->column_text(c)).arg(l->column_width(c)).arg(l->column_tag(c));
        out += '\n';
    }
    return out;
}

class windows_test : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        support::fixture::TearDown();
    }
    QString printed() { return support::pdf_pages(pdf_.path()).join(' ').simplified(); }
    platform::pdf_target pdf_{path("impresso.pdf")};
};

std::vector<QStringList> contas(int n) {
    std::vector<QStringList> rows;
    for (int i = 1; i <= n; ++i)
        rows.push_back({u"0%1/11/2026"_s.arg(i), u"Conta %1"_s.arg(i), "D", "Fornecedor", "10/11/2026",
                        u"R$ %1,00"_s.arg(i * 10), "Pendente", "Caixa", ""});
    return rows;
}

} // namespace

TEST_F(windows_test, the_windows_controls_and_lists) {
    frmrelatorio r;
    frmmovimento m;
    EXPECT_TRUE(support::matches_golden("output/report_windows.txt", dump(r) + dump(m)));
    EXPECT_TRUE(r.barraprogresso->isHidden());
}

TEST_F(windows_test, frmrelatorio_fills_one_list_and_its_buttons_save_and_print_it) {
    frmrelatorio w;
    w.preencher(frmrelatorio::lista::clientes, {{"Ana", "Pessoa Física"}},
                {"Relatório de clientes", "CLIENTES", "...", "Total de clientes cadastrados: 1"});
    w.preencher(frmrelatorio::lista::pagar, contas(3),
                {"Relatório de movimento mensal (despesas)", "Contas a pagar", "Período: novembro",
                 "Total de despesas: R$ 60,00"});
    // one list visible at a time
    EXPECT_EQ(w.lista_visivel(), w.lstpagar);
    EXPECT_TRUE(w.lstclientes->isHidden());
    EXPECT_EQ(w.lista_de(frmrelatorio::lista::clientes)->row_count(), 1);
    EXPECT_EQ(w.LBLTIPO->text(), "Contas a pagar");
    EXPECT_NE(output::relatorio(), nullptr);

    prompts_.answer_text(path("r.txt"));
    prompts_.answer(platform::answer_no);
    w.cmdtxt->click();
    EXPECT_TRUE(
        read_text(path("r.txt")).startsWith("RELATÓRIO DE MOVIMENTO MENSAL (DESPESAS) - CONTAS A PAGAR"));
    EXPECT_TRUE(read_text(path("r.txt")).contains("01/11/2026  Conta 1"));
    EXPECT_EQ(prompts_.records()[0].filter, "Arquivos de Texto(*.txt)|*.txt");
    EXPECT_TRUE(w.barraprogresso->isHidden());
    prompts_.answer_text(path("r.html"));
    w.cmdhtml->click();
    EXPECT_TRUE(read_text(path("r.html")).contains("<td nowrap>Conta 2&nbsp;</td>"));
    EXPECT_EQ(shell_.opened, QStringList{path("r.html")}); // the empty queue answers Yes

    store::save_setting(store::secao_relatorio, "slogan", "Meu slogan");
    w.cmdimprimir->click();
    for (const char* s : {"CONTAS A PAGAR", "Período: novembro", "Total de despesas: R$ 60,00", "Meu slogan"})
        EXPECT_TRUE(printed().contains(s)) << s;
}

TEST_F(windows_test, frmrelatorio_layout_follows_the_window_size_and_columns_fit_their_text) {
    frmrelatorio w;
    w.show();
    w.resize(list_view::twips_to_pixels(14000, &w), list_view::twips_to_pixels(9000, &w));
    const auto tw = [&](int px) { return list_view::pixels_to_twips(px, &w); };
    for (list_view* l : {w.lstpagar, w.lstclientes}) {
        EXPECT_NEAR(tw(l->height()), 9000 - 2105, 20);
        EXPECT_NEAR(tw(l->width()), 14000 - 300, 20);
    }
    EXPECT_NEAR(tw(w.barraprogresso->y()), 9000 - 2105 + 610, 20);
    EXPECT_EQ(w.barraprogresso->width(), w.lstpagar->width());
    EXPECT_EQ(w.lblgeral->geometry().topLeft(), QPoint(w.lstpagar->x(), w.barraprogresso->y()));
    EXPECT_EQ(w.lblgeral->width(), w.lstpagar->width());

    auto rows = contas(1);
    rows[0][1] = "Uma descrição bem mais longa que a largura inicial da coluna de descrição da conta";
    w.preencher(frmrelatorio::lista::pagar, std::move(rows), {});
    const double before = w.lstpagar->column_width(1);
    w.ajustarcolunas();
    EXPECT_GT(w.lstpagar->column_width(1), before);
}

TEST_F(windows_test, frmmovimento_saves_prints_and_closes) {
    auto* w = new frmmovimento;
    w->setAttribute(Qt::WA_DeleteOnClose);
    w->preencher(frmmovimento::lista::movimento,
                 {{"01/11/2026 ", "Depósito ", "Caixa ", " -  ", "R$ 500,00 ", "Concluído ", "troco "}},
                 {"Movimento do mês - bancario", "Novembro de 2026", "Total: R$ 500,00"});
    EXPECT_EQ(w->lista_visivel(), w->lstmovimento);
    prompts_.answer_text(path("m.html"));
    prompts_.answer(platform::answer_no);
    w->cmdhtml->click();
    EXPECT_TRUE(read_text(path("m.html")).contains("<title>MOVIMENTO DO MÊS - BANCARIO</title>"));
    EXPECT_TRUE(read_text(path("m.html")).contains("<br><b>Estatísticas</b><hr>Total: R$ 500,00<hr><br>"));
    w->cmdimprimir->click();
    EXPECT_TRUE(printed().contains("01/11/2026 Depósito Caixa - R$ 500,00")) << printed().toStdString();
    EXPECT_TRUE(printed().contains("QUINTARA - Página: 1"));

    QPointer<frmmovimento> alive(w);
    w->show();
    w->cmdsair->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(output::relatorio(), nullptr);
}
