// The two report windows: their controls, filling, saving and printing through the buttons, and
// the layout rule of frmrelatorio.

#include "output/ui/frmmovimento.h"
#include "output/ui/frmrelatorio.h"
#include "platform/print/printer.h"
#include "platform/widgets/list_view.h"
#include "store/config.h"
#include "support/fixture.h"
#include "test_table.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList headings(const list_view& l) {
    QStringList h;
    for (int c = 0; c < l.column_count(); ++c)
        h << l.column_text(c);
    return h;
}

QString pdf_text(const QString& pdf) {
    QProcess p;
    p.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput()).simplified();
}

QString read_text(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
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
    platform::pdf_target pdf_{path(u"impresso.pdf"_s)};
};

std::vector<QStringList> contas(int n) {
    std::vector<QStringList> rows;
    for (int i = 1; i <= n; ++i)
        rows.push_back({u"0%1/11/2026"_s.arg(i), u"Conta %1"_s.arg(i), u"D%1"_s.arg(i), u"Fornecedor"_s,
                        u"10/11/2026"_s, u"R$ %1,00"_s.arg(i * 10), u"Pendente"_s, u"Caixa"_s, QString()});
    return rows;
}

} // namespace

TEST_F(windows_test, frmrelatorio_controls_and_lists) {
    frmrelatorio w;
    EXPECT_EQ(w.windowTitle(), u"Relatório"_s);
    EXPECT_EQ(w.findChild<QLabel*>(u"SpitFireXpSB1"_s)->text(), u"  Relatório"_s);
    EXPECT_EQ(w.findChild<QPushButton*>(u"cmdimprimir"_s)->text(), u"Imprimir Relatório"_s);
    EXPECT_EQ(w.findChild<QPushButton*>(u"cmdtxt"_s)->text(), u"Salvar em TXT"_s);
    EXPECT_EQ(w.findChild<QPushButton*>(u"cmdhtml"_s)->text(), u"Salvar em HTML"_s);
    for (const char* n : {"LBLTIPO", "lblsubtitulo", "lblgeral"})
        EXPECT_NE(w.findChild<QLabel*>(QString::fromLatin1(n)), nullptr) << n;
    EXPECT_TRUE(w.findChild<QProgressBar*>(u"barraprogresso"_s)->isHidden());
    EXPECT_EQ(headings(*w.findChild<list_view*>(u"lstpagar"_s)),
              (QStringList{u"Data"_s, u"Descrição"_s, u"Doc."_s, u"Fornecedor"_s, u"Venc."_s, u"Valor"_s,
                           u"Estatus"_s, u"Origem"_s, u"Informações adicionais"_s}));
    EXPECT_EQ(headings(*w.lstreceber),
              (QStringList{u"Data"_s, u"Descrição"_s, u"Doc."_s, u"Cliente"_s, u"Vencimento"_s, u"Valor"_s,
                           u"Estatus"_s, u"Origem"_s, u"Informações adicionais"_s}));
    EXPECT_EQ(headings(*w.lstmovimento), (QStringList{u"Data"_s, u"Tipo de movimento"_s, u"Origem"_s,
                                                      u"Destino"_s, u"Valor"_s, u"Estatus"_s}));
    EXPECT_EQ(headings(*w.lstclientes).first(), u"Nome do cliente"_s);
    EXPECT_EQ(headings(*w.lstfornecedores).mid(0, 2),
              (QStringList{u"Nome do fornecedor"_s, u"Tipo de fornecedor"_s}));
    EXPECT_EQ(headings(*w.lstfornecedores).size(), 14);

    // one list visible at a time
    w.preencher(frmrelatorio::lista::clientes, {{u"Ana"_s, u"Pessoa Física"_s}},
                {u"Relatório de clientes"_s, u"CLIENTES"_s, u"........................."_s,
                 u"Total de clientes cadastrados: 1"_s});
    EXPECT_EQ(w.lista_visivel(), w.lstclientes);
    int visible = 0;
    for (list_view* l : {w.lstpagar, w.lstreceber, w.lstmovimento, w.lstclientes, w.lstfornecedores})
        visible += !l->isHidden();
    EXPECT_EQ(visible, 1);
    EXPECT_EQ(w.windowTitle(), u"Relatório de clientes"_s);
    EXPECT_EQ(w.LBLTIPO->text(), u"CLIENTES"_s);
    EXPECT_EQ(w.lstclientes->row_count(), 1);
    EXPECT_EQ(output::relatorio() != nullptr, true);
}

TEST_F(windows_test, frmrelatorio_buttons_save_and_print_the_visible_list) {
    frmrelatorio w;
    w.preencher(frmrelatorio::lista::pagar, contas(3),
                {u"Relatório de movimento mensal (despesas)"_s, u"Contas a pagar"_s, u"Período: novembro"_s,
                 u"Total de despesas: R$ 60,00"_s});
    const QString file = path(u"r.txt"_s);
    prompts_.answer_text(file);
    prompts_.answer(platform::answer_no);
    w.cmdtxt->click();
    const QStringList lines = read_text(file).split(u"\r\n"_s);
    ASSERT_GT(lines.size(), 12);
    EXPECT_EQ(lines[0], u"RELATÓRIO DE MOVIMENTO MENSAL (DESPESAS) - CONTAS A PAGAR"_s);
    EXPECT_EQ(lines[2], u"Período: novembro"_s);
    EXPECT_TRUE(lines[6].startsWith(u"Data        Descrição  Doc.  Fornecedor  "_s))
        << lines[6].toStdString();
    EXPECT_TRUE(lines[8].startsWith(u"01/11/2026  Conta 1    D1    Fornecedor  "_s))
        << lines[8].toStdString();
    EXPECT_EQ(prompts_.records()[0].filter, u"Arquivos de Texto(*.txt)|*.txt"_s);
    EXPECT_TRUE(w.barraprogresso->isHidden());

    prompts_.clear();
    prompts_.answer_text(path(u"r.html"_s));
    w.cmdhtml->click();
    EXPECT_TRUE(read_text(path(u"r.html"_s)).contains(u"<td nowrap>Conta 2&nbsp;</td>"_s));
    EXPECT_EQ(shell_.opened, QStringList{path(u"r.html"_s)}); // the empty queue answers Yes

    store::save_setting(store::secao_relatorio, u"slogan"_s, u"Meu slogan"_s);
    w.cmdimprimir->click();
    const QString printed = pdf_text(pdf_.path());
    EXPECT_TRUE(printed.contains(u"CONTAS A PAGAR"_s));
    EXPECT_TRUE(printed.contains(u"Período: novembro"_s));
    EXPECT_TRUE(printed.contains(u"Total de despesas: R$ 60,00"_s));
    EXPECT_TRUE(printed.contains(u"Meu slogan"_s));
    EXPECT_TRUE(printed.contains(u"Página atual: 1 de 1"_s));
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
    EXPECT_EQ(w.lblgeral->y(), w.barraprogresso->y());
    EXPECT_EQ(w.lblgeral->x(), w.lstpagar->x());
    EXPECT_EQ(w.lblgeral->width(), w.lstpagar->width());

    auto rows = contas(1);
    rows[0][1] = u"Uma descrição bem mais longa que a largura inicial da coluna de descrição da conta"_s;
    w.preencher(frmrelatorio::lista::pagar, std::move(rows), {});
    const double before = w.lstpagar->column_width(1);
    w.ajustarcolunas();
    EXPECT_GT(w.lstpagar->column_width(1), before);
}

TEST_F(windows_test, frmmovimento_controls_save_print_and_close) {
    auto* w = new frmmovimento;
    w->setAttribute(Qt::WA_DeleteOnClose);
    EXPECT_EQ(w->windowTitle(), u"Movimento"_s);
    EXPECT_EQ(w->findChild<QPushButton*>(u"cmdsair"_s)->text(), u"Sair"_s);
    EXPECT_EQ(headings(*w->lstreceber)[1], u"Descrição da despesa"_s); // kept on the income list too
    EXPECT_EQ(headings(*w->lstreceber)[3], u"Cliente"_s);
    EXPECT_EQ(headings(*w->lstmovimento),
              (QStringList{u"Data"_s, u"Tipo de movimento"_s, u"Conta origem"_s, u"Conta destino"_s,
                           u"Valor"_s, u"Estatus"_s, u"Informações"_s}));

    w->preencher(frmmovimento::lista::movimento,
                 {{u"01/11/2026 "_s, u"Depósito "_s, u"Caixa "_s, u" -  "_s, u"R$ 500,00 "_s, u"Concluído "_s,
                   u"troco "_s}},
                 {u"Movimento do mês - bancario"_s, u"Novembro de 2026"_s, u"Total: R$ 500,00"_s});
    EXPECT_EQ(w->lista_visivel(), w->lstmovimento);
    prompts_.answer_text(path(u"m.html"_s));
    prompts_.answer(platform::answer_no);
    w->cmdhtml->click();
    const QString html = read_text(path(u"m.html"_s));
    EXPECT_TRUE(html.contains(u"<title>MOVIMENTO DO MÊS - BANCARIO</title>"_s));
    EXPECT_FALSE(html.contains(u"Novembro de 2026"_s)); // this frame leaves the period out
    EXPECT_TRUE(html.contains(u"<br><b>Estatísticas</b><hr>Total: R$ 500,00<hr><br>"_s));

    w->cmdimprimir->click();
    const QString printed = pdf_text(pdf_.path());
    EXPECT_TRUE(printed.contains(u"DATA TIPO DE MOVIMENTO ORIGEM DESTINO VALOR"_s)) << printed.toStdString();
    EXPECT_TRUE(printed.contains(u"01/11/2026 Depósito Caixa - R$ 500,00"_s));
    EXPECT_TRUE(printed.contains(u"Estatus: Concluído Informações: troco"_s));
    EXPECT_TRUE(printed.contains(u"Movimento do mês - bancario"_s));
    EXPECT_TRUE(printed.contains(u"QUINTARA - Página: 1"_s));

    QPointer<frmmovimento> alive(w);
    w->show();
    w->cmdsair->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(output::relatorio(), nullptr);
}
