#include "analysis/ui/frmrelatorioint.h"

#include "output/print/modimpressao.h"
#include "output/ui/frmreport_window.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPointer<frmrelatorioint> a_janela;

QPlainTextEdit* texto(const char* name) {
    auto* t = named(new QPlainTextEdit, name);
    t->setReadOnly(true);
    return t;
}

// The texts keep their CR LF line ends for the files; the boxes show plain line breaks.
QString na_tela(QString s) {
    return s.replace(u"\r\n"_s, u"\n"_s);
}

} // namespace

frmrelatorioint* frmrelatorioint::instance() {
    if (!a_janela || a_janela->descarregado_) a_janela = new frmrelatorioint();
    return a_janela;
}

frmrelatorioint* frmrelatorioint::aberto() {
    return a_janela && !a_janela->descarregado_ ? a_janela.data() : nullptr;
}

frmrelatorioint::frmrelatorioint() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmrelatorioint"_s);
    setWindowTitle(u"Relatório - Integrado"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    SpitFireXpSB1 = named(new QLabel(u"  Relatório"_s), "SpitFireXpSB1");
    QFont negrito = SpitFireXpSB1->font();
    negrito.setBold(true);
    SpitFireXpSB1->setFont(negrito);
    LBLTIPO = named(new QLabel(u"RELATÓRIO INTEGRADO"_s), "LBLTIPO");
    LBLTIPO->setFont(negrito);
    XTab1 = named(new QTabWidget, "XTab1");
    lstrelatorio = named(new list_view, "lstrelatorio");
    const struct {
        const char* titulo;
        double largura;
        int tag;
    } colunas[] = {
        {"Data", 1320, list_view::tag_date},         {"Descrição", 3000, list_view::tag_text},
        {"Documento", 1400, list_view::tag_text},    {"Fornecedor/Cliente", 2400, list_view::tag_text},
        {"Valor", 1500, list_view::tag_number},      {"Venc.", 1320, list_view::tag_date},
        {"Estatus", 1200, list_view::tag_text},      {"Conta Origem/Destino", 2400, list_view::tag_text},
        {"Tipo de conta", 1800, list_view::tag_text}};
    for (const auto& c : colunas)
        lstrelatorio->add_column(QString::fromUtf8(c.titulo), c.largura, c.tag);
    txtpagar = texto("txtpagar");
    txtreceber = texto("txtreceber");
    txtbancario = texto("txtbancario");
    txtfinanceiro = texto("txtfinanceiro");
    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    cmdimprimir = named(new QPushButton(u"Imprimir Relatório"_s), "cmdimprimir");
    cmdtxt = named(new QPushButton(u"Salvar em TXT"_s), "cmdtxt");
    cmdhtml = named(new QPushButton(u"Salvar em HTML"_s), "cmdhtml");
    connect(cmdimprimir, &QPushButton::clicked, this, &frmrelatorioint::cmdimprimir_click);
    connect(cmdtxt, &QPushButton::clicked, this, &frmrelatorioint::cmdtxt_click);
    connect(cmdhtml, &QPushButton::clicked, this, &frmrelatorioint::cmdhtml_click);
    montar();
    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

frmrelatorioint::~frmrelatorioint() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

void frmrelatorioint::montar() {
    XTab1->addTab(lstrelatorio, u"RELATÓRIO"_s);
    // the list and the four boxes follow the window's size
    auto* est = new QWidget;
    auto* g = new QGridLayout(est);
    const std::pair<const char*, QPlainTextEdit*> caixas[] = {{"CONTAS A PAGAR - DÉBITOS", txtpagar},
                                                              {"CONTAS A RECEBER - CRÉDITOS", txtreceber},
                                                              {"MOVIMENTO BANCARIO", txtbancario},
                                                              {"DADOS FINANCEIROS", txtfinanceiro}};
    for (int i = 0; i < 4; ++i) {
        g->addWidget(new QLabel(QString::fromUtf8(caixas[i].first)), (i / 2) * 2, i % 2);
        g->addWidget(caixas[i].second, (i / 2) * 2 + 1, i % 2);
    }
    XTab1->addTab(est, u"ESTATÍSTICA"_s);
    auto* topo = new QHBoxLayout;
    topo->addWidget(LBLTIPO);
    topo->addStretch();
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdtxt);
    botoes->addWidget(cmdhtml);
    botoes->addStretch();
    auto* v = new QVBoxLayout(this);
    v->addWidget(SpitFireXpSB1);
    v->addLayout(topo);
    v->addWidget(XTab1, 1);
    v->addWidget(barraprogresso);
    v->addLayout(botoes);
}

QSize frmrelatorioint::sizeHint() const {
    return {list_view::twips_to_pixels(12500, this), list_view::twips_to_pixels(8200, this)};
}

void frmrelatorioint::mostrar() {
    show_form(this);
}

void frmrelatorioint::preencher(analysis::relatorio_integrado r) {
    r_ = std::move(r);
    lstrelatorio->clear_rows();
    lstrelatorio->add_rows(std::move(r_.linhas));
    r_.linhas.clear();
    txtpagar->setPlainText(na_tela(r_.txtpagar));
    txtreceber->setPlainText(na_tela(r_.txtreceber));
    txtbancario->setPlainText(na_tela(r_.txtbancario));
    txtfinanceiro->setPlainText(na_tela(r_.txtfinanceiro));
}

void frmrelatorioint::cmdtxt_click() {
    analysis::salvar(analysis::formato::txt, windowTitle(), *lstrelatorio, r_, relatorio_);
}

void frmrelatorioint::cmdhtml_click() {
    analysis::salvar(analysis::formato::html, windowTitle(), *lstrelatorio, r_, relatorio_);
}

void frmrelatorioint::cmdimprimir_click() {
    namespace mod = output::modimpressao;
    mod::imprimir_blocos(mod::cabecalho::integrado, LBLTIPO->text(),
                         u"Contas a pagar, receber e movimento bancário"_s,
                         {{u"CONTAS A PAGAR - DESPESA"_s, r_.txtpagar},
                          {u"CONTAS A RECEBER - RECEITAS"_s, r_.txtreceber},
                          {u"MOVIMENTO BANCÁRIO"_s, r_.txtbancario},
                          {u"DADOS FINANCEIROS"_s, r_.txtfinanceiro}});
}

void frmrelatorioint::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}
