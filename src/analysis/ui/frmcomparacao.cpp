#include "analysis/ui/frmcomparacao.h"

#include "analysis/period.h"
#include "analysis/print/comparison_print.h"
#include "analysis/ui/period_boxes.h"
#include "output/report_frame.h"
#include "platform/busy.h"
#include "platform/clock.h"
#include "platform/widgets/form_builders.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPointer<frmcomparadesp> a_desp;
QPointer<frmcompararec> a_rec;

QPlainTextEdit* bloco(const char* nome, bool visivel) {
    auto* t = named(new QPlainTextEdit, nome);
    t->setReadOnly(true);
    t->setVisible(visivel);
    return t;
}

QString na_tela(QString s) {
    return s.replace(u"\r\n"_s, u"\n"_s);
}

QString mes_ano(const QComboBox* mes, const QComboBox* ano) {
    return mes->currentText() + u"/"_s + ano->currentText();
}

} // namespace

comparacao_window::comparacao_window(const char* nome, const analysis::lado_comparacao& lado)
    : QWidget(nullptr, Qt::Window), lado_(lado) {
    setObjectName(QString::fromLatin1(nome));
    setWindowTitle(lado.caption);
    setAttribute(Qt::WA_DeleteOnClose);
    XTab1 = named(new QTabWidget, "XTab1");
    cboano1 = analysis::caixa_anos("cboano1");
    cboano2 = analysis::caixa_anos("cboano2");
    cbomes1 = analysis::caixa_meses("cbomes1", true);
    cboanomes1 = analysis::caixa_anos("cboanomes1");
    cbomes2 = analysis::caixa_meses("cbomes2", true);
    cboanomes2 = analysis::caixa_anos("cboanomes2");
    cmdok = named(new QPushButton(u"COMPARAR"_s), "cmdok");
    cmdmes = named(new QPushButton(u"COMPARAR"_s), "cmdmes");
    txtano1 = bloco("txtano1", true), txtano1o = bloco("txtano1o", false);
    txtano2 = bloco("txtano2", true), txtano2o = bloco("txtano2o", false);
    txtresultado = bloco("txtresultado", true), txtresultadoo = bloco("txtresultadoo", false);
    txtmes1 = bloco("txtmes1", true), txtmes1o = bloco("txtmes1o", false);
    txtmes2 = bloco("txtmes2", true), txtmes2o = bloco("txtmes2o", false);
    txtresultado2 = bloco("txtresultado2", true), txtresultado2o = bloco("txtresultado2o", false);
    lblano1 = named(new QLabel, "lblano1"), lblano2 = named(new QLabel, "lblano2");
    lblresultado = named(new QLabel, "lblresultado");
    lblmes1 = named(new QLabel, "lblmes1"), lblmes2 = named(new QLabel, "lblmes2");
    lblresultado2 = named(new QLabel, "lblresultado2");
    const auto botao = [](const char* texto, const char* n) {
        return named(new QPushButton(QString::fromUtf8(texto)), n);
    };
    cmdimprimirano = botao("Imprimir Comparação", "cmdimprimirano");
    cmdtxtano = botao("Salvar em TXT", "cmdtxtano");
    cmdhtmlano = botao("Salvar em HTML", "cmdhtmlano");
    cmdsairano = botao("Sair", "cmdsairano");
    cmdimprimirmes = botao("Imprimir Comparação", "cmdimprimirmes");
    cmdtxtmes = botao("Salvar em TXT", "cmdtxtmes");
    cmdhtmlmes = botao("Salvar em HTML", "cmdhtmlmes");
    cmdsairmes = botao("Sair", "cmdsairmes");

    const auto aba = [](QWidget* sel1, QWidget* sel2, const QString& r1, const QString& r2,
                        QPushButton* comparar, QLabel* l[3], QPlainTextEdit* t[6], QPushButton* b[4]) {
        auto* w = new QWidget;
        auto* v = new QVBoxLayout(w);
        auto* topo = new QHBoxLayout;
        topo->addWidget(new QLabel(r1));
        topo->addWidget(sel1);
        topo->addWidget(new QLabel(r2));
        topo->addWidget(sel2);
        topo->addWidget(comparar);
        topo->addStretch();
        v->addLayout(topo);
        auto* g = new QGridLayout;
        for (int i = 0; i < 3; ++i) {
            g->addWidget(l[i], 0, i);
            g->addWidget(t[2L * i], 1, i);
            g->addWidget(t[2L * i + 1], 2, i);
        }
        v->addLayout(g, 1);
        auto* bs = new QHBoxLayout;
        for (int i = 0; i < 4; ++i)
            bs->addWidget(b[i]);
        bs->addStretch();
        v->addLayout(bs);
        return w;
    };
    const auto par = [](QComboBox* a, QComboBox* b) {
        auto* w = new QWidget;
        auto* h = new QHBoxLayout(w);
        h->setContentsMargins(0, 0, 0, 0);
        h->addWidget(a);
        h->addWidget(b);
        return w;
    };
    QLabel* la[3] = {lblano1, lblano2, lblresultado};
    QPlainTextEdit* ta[6] = {txtano1, txtano1o, txtano2, txtano2o, txtresultado, txtresultadoo};
    QPushButton* ba[4] = {cmdimprimirano, cmdtxtano, cmdhtmlano, cmdsairano};
    XTab1->addTab(aba(cboano1, cboano2, u"Comparar ano de: "_s, u"Com o ano de:"_s, cmdok, la, ta, ba),
                  u"Comparativo entre anos"_s);
    QLabel* lm[3] = {lblmes1, lblmes2, lblresultado2};
    QPlainTextEdit* tm[6] = {txtmes1, txtmes1o, txtmes2, txtmes2o, txtresultado2, txtresultado2o};
    QPushButton* bm[4] = {cmdimprimirmes, cmdtxtmes, cmdhtmlmes, cmdsairmes};
    XTab1->addTab(aba(par(cbomes1, cboanomes1), par(cbomes2, cboanomes2), u"Comparar mês de: "_s,
                      u"Com o mês de:"_s, cmdmes, lm, tm, bm),
                  u"Comparativo entre meses"_s);
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1);

    connect(cmdok, &QPushButton::clicked, this, &comparacao_window::cmdok_click);
    connect(cmdmes, &QPushButton::clicked, this, &comparacao_window::cmdmes_click);
    connect(cmdtxtano, &QPushButton::clicked, this, [this] { salvar(true, false); });
    connect(cmdhtmlano, &QPushButton::clicked, this, [this] { salvar(true, true); });
    connect(cmdtxtmes, &QPushButton::clicked, this, [this] { salvar(false, false); });
    connect(cmdhtmlmes, &QPushButton::clicked, this, [this] { salvar(false, true); });
    connect(cmdimprimirano, &QPushButton::clicked, this, [this] { imprimir(true); });
    connect(cmdimprimirmes, &QPushButton::clicked, this, [this] { imprimir(false); });
    connect(cmdsairano, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdsairmes, &QPushButton::clicked, this, &QWidget::close);
}

void comparacao_window::resetar() {
    const QDate hoje = platform::today();
    for (QComboBox* c : {cboano1, cboano2, cboanomes1, cboanomes2})
        analysis::mostrar_ano(c, hoje);
    analysis::mostrar_mes(cbomes1, hoje);
    analysis::mostrar_mes(cbomes2, hoje);
    const QString ano = cboano1->currentText(), mes = mes_ano(cbomes1, cboanomes1);
    // the reset's labels have no colon; the comparison's have one
    anos_.rotulos = {u"Resumo do ano de "_s + ano, u"Resumo do ano de "_s + ano,
                     u"Comparação entre o ano de "_s + ano + u" e o ano de "_s + ano};
    meses_.rotulos = {u"Resumo do mês de "_s + mes, u"Resumo do mês de "_s + mes,
                      u"Comparação entre o mês de "_s + mes + u" e o mês de "_s + mes};
    mostrar(true);
    mostrar(false);
    show_form(this);
}

void comparacao_window::cmdok_click() {
    const QString a1 = cboano1->currentText(), a2 = cboano2->currentText();
    analysis::status_tally s1, s2;
    {
        platform::busy_span hourglass;
        s1 = analysis::somar_periodo(lado_, a1);
        s2 = analysis::somar_periodo(lado_, a2);
    }
    anos_.rotulos = {u"Resumo do ano de: "_s + a1, u"Resumo do ano de: "_s + a2,
                     u"Comparação entre o ano de "_s + a1 + u" e o ano de "_s + a2};
    anos_.blocos[0] = analysis::bloco_periodo(lado_, s1);
    anos_.blocos[1] = analysis::bloco_periodo(lado_, s2);
    anos_.blocos[2] = analysis::bloco_diferencas(lado_, u"ano"_s, a1, a2, s1, s2);
    mostrar(true);
}

void comparacao_window::cmdmes_click() {
    const QString m1 = mes_ano(cbomes1, cboanomes1), m2 = mes_ano(cbomes2, cboanomes2);
    const auto padrao = [](const QComboBox* mes, const QComboBox* ano) {
        const QDate d = analysis::data_das_caixas(mes, ano);
        // a month that is not understood finds nothing
        return d.isValid() ? vb::format_date(d, u"yyyy/mm"_s) : u"\x01"_s;
    };
    analysis::status_tally s1, s2;
    {
        platform::busy_span hourglass;
        s1 = analysis::somar_periodo(lado_, padrao(cbomes1, cboanomes1));
        s2 = analysis::somar_periodo(lado_, padrao(cbomes2, cboanomes2));
    }
    // the second label says "ano" for a month, as it always has
    meses_.rotulos = {u"Resumo do mês de: "_s + m1, u"Resumo do ano de: "_s + m2,
                      u"Comparação entre o mês de "_s + m1 + u" e o mês de "_s + m2};
    meses_.blocos[0] = analysis::bloco_periodo(lado_, s1);
    meses_.blocos[1] = analysis::bloco_periodo(lado_, s2);
    meses_.blocos[2] = analysis::bloco_diferencas(lado_, u"mês"_s, m1, m2, s1, s2);
    mostrar(false);
}

void comparacao_window::mostrar(bool anos) {
    const analysis::aba_comparacao& a = anos ? anos_ : meses_;
    QLabel* l[3] = {lblano1, lblano2, lblresultado};
    QPlainTextEdit* t[6] = {txtano1, txtano1o, txtano2, txtano2o, txtresultado, txtresultadoo};
    if (!anos) {
        l[0] = lblmes1, l[1] = lblmes2, l[2] = lblresultado2;
        t[0] = txtmes1, t[1] = txtmes1o, t[2] = txtmes2, t[3] = txtmes2o, t[4] = txtresultado2,
        t[5] = txtresultado2o;
    }
    for (int i = 0; i < 3; ++i) {
        l[i]->setText(i < a.rotulos.size() ? a.rotulos[i] : QString());
        t[2L * i]->setPlainText(na_tela(a.blocos[i].texto));
        t[2L * i + 1]->setPlainText(a.blocos[i].html);
    }
}

void comparacao_window::salvar(bool anos, bool html) {
    const QString& p = lado_.palavra;
    const analysis::aba_comparacao& a = anos ? anos_ : meses_;
    if (html)
        output::salvar_arquivo(u"Salvar comparação de "_s + p +
                                   (anos ? u" por ano em html"_s : u" por mês em html"_s),
                               u"Arquivos HTML (*.html)|*.html"_s, nullptr,
                               [&](QIODevice& out) { analysis::escrever_html_comparacao(out, lado_, a); });
    else
        output::salvar_arquivo(u"Salvar comparação de "_s + p +
                                   (anos ? u" entre anos em txt"_s : u" entre meses em txt"_s),
                               u"Arquivos de Texto(*.txt)|*.txt"_s, nullptr,
                               [&](QIODevice& out) { analysis::escrever_txt_comparacao(out, lado_, a); });
}

void comparacao_window::imprimir(bool anos) {
    analysis::imprimir_comparacao(u"Comparação de "_s + lado_.palavra +
                                      (anos ? u" entre anos"_s : u" entre meses"_s),
                                  anos ? anos_ : meses_);
}

void comparacao_window::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}

frmcomparadesp::frmcomparadesp() : comparacao_window("frmcomparadesp", analysis::comparacao_despesas()) {}

frmcomparadesp* frmcomparadesp::instance() {
    if (!a_desp || a_desp->descarregado_) a_desp = new frmcomparadesp();
    return a_desp;
}

frmcomparadesp* frmcomparadesp::aberto() {
    return a_desp && !a_desp->descarregado_ ? a_desp.data() : nullptr;
}

frmcompararec::frmcompararec() : comparacao_window("frmcompararec", analysis::comparacao_receitas()) {}

frmcompararec* frmcompararec::instance() {
    if (!a_rec || a_rec->descarregado_) a_rec = new frmcompararec();
    return a_rec;
}

frmcompararec* frmcompararec::aberto() {
    return a_rec && !a_rec->descarregado_ ? a_rec.data() : nullptr;
}
