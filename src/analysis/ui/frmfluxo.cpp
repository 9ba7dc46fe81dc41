#include "analysis/ui/frmfluxo.h"

#include "analysis/print/cash_flow_print.h"
#include "output/report_frame.h"
#include "output/ui/frmreport_window.h"
#include "platform/busy.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/sql/recordset.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using analysis::tipo_fluxo;

namespace {

QPointer<frmfluxo> o_fluxo;
QPointer<frmconfluxo> a_configuracao;

list_view* lista(const char* name, const char* contato) {
    auto* l = named(new list_view, name);
    const struct {
        const char* titulo;
        double largura;
        int tag;
    } colunas[] = {
        {"Data", 1320, list_view::tag_date},       {"Plano de conta / Descrição", 3000, list_view::tag_text},
        {"Documento", 1400, list_view::tag_text},  {contato, 2400, list_view::tag_text},
        {"Venc.", 1320, list_view::tag_date},      {"Valor", 1600, list_view::tag_number},
        {"Estatus", 1200, list_view::tag_text},    {"Conta Origem", 2000, list_view::tag_text},
        {"Informações", 2400, list_view::tag_text}};
    for (const auto& c : colunas)
        l->add_column(QString::fromUtf8(c.titulo), c.largura, c.tag);
    return l;
}

// Widest text of each column, the heading included: the fit the print starts from.
void ajustarlistview(list_view* l, int ultima) {
    const QFontMetrics fm(l->font());
    for (int c = 0; c <= ultima && c < l->column_count(); ++c) {
        int w = fm.horizontalAdvance(l->column_text(c));
        for (int r = 0; r < l->row_count(); ++r)
            w = std::max(w, fm.horizontalAdvance(l->text(r, c)));
        l->set_column_width(c, list_view::pixels_to_twips(w + 12, l));
    }
}

} // namespace

// ---- frmfluxo

frmfluxo* frmfluxo::instance() {
    if (!o_fluxo || o_fluxo->descarregado_) o_fluxo = new frmfluxo();
    return o_fluxo;
}

frmfluxo* frmfluxo::aberto() {
    return o_fluxo && !o_fluxo->descarregado_ ? o_fluxo.data() : nullptr;
}

frmfluxo::frmfluxo() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmfluxo"_s);
    setWindowTitle(u"Fluxo de caixa"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    SpitFireXpSB1 = named(new QLabel(u"  FLUXO/PREVISÃO DE CAIXA"_s), "SpitFireXpSB1");
    QFont negrito = SpitFireXpSB1->font();
    negrito.setBold(true);
    SpitFireXpSB1->setFont(negrito);
    XTab = named(new QTabWidget, "XTab");
    lstpagar = lista("lstpagar", "Fornecedor");
    lstreceber = lista("lstreceber", "Cliente");
    XTab->addTab(lstpagar, u"Contas a pagar"_s);
    XTab->addTab(lstreceber, u"Contas a receber"_s);
    lbldata = named(new QLabel, "lbldata");
    lblest = named(new QLabel, "lblest");
    lblest2 = named(new QLabel, "lblest2");
    txtinfo = named(new QPlainTextEdit, "txtinfo");
    txtinfop2 = named(new QPlainTextEdit, "txtinfop2");
    txtinfo->hide();
    txtinfop2->hide();
    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    cmdimprimir = named(new QPushButton(u"Imprimir Relatório"_s), "cmdimprimir");
    cmdhtml = named(new QPushButton(u"Salvar em HTML"_s), "cmdhtml");
    cmdInfo = named(new QPushButton(u"Informações"_s), "cmdInfo");
    connect(cmdimprimir, &QPushButton::clicked, this, &frmfluxo::cmdimprimir_click);
    connect(cmdhtml, &QPushButton::clicked, this, &frmfluxo::cmdhtml_click);
    connect(cmdInfo, &QPushButton::clicked, this, &frmfluxo::cmdInfo_click);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdhtml);
    botoes->addWidget(cmdInfo);
    botoes->addStretch();
    auto* v = new QVBoxLayout(this);
    v->addWidget(SpitFireXpSB1);
    v->addWidget(lbldata);
    v->addWidget(XTab, 1);
    v->addWidget(barraprogresso);
    v->addWidget(lblest2);
    v->addWidget(lblest);
    v->addLayout(botoes);
    v->addWidget(txtinfo);
    v->addWidget(txtinfop2);
    resize(list_view::twips_to_pixels(12500, this), list_view::twips_to_pixels(7800, this));
    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

frmfluxo::~frmfluxo() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

void frmfluxo::preencher(tipo_fluxo t, const analysis::textos_fluxo& x, analysis::lado_fluxo* pagar,
                         analysis::lado_fluxo* receber) {
    setWindowTitle(x.caption);
    XTab->setTabText(0, x.tab0);
    XTab->setTabText(1, x.tab1);
    XTab->setTabEnabled(0, x.tab0_ativa);
    XTab->setTabEnabled(1, x.tab1_ativa);
    XTab->setCurrentIndex(t == tipo_fluxo::receber ? 1 : 0);
    lbldata->setText(x.lbldata);
    lstpagar->clear_rows();
    lstreceber->clear_rows();
    if (pagar) lstpagar->add_rows(std::move(pagar->linhas));
    if (receber) lstreceber->add_rows(std::move(receber->linhas));
    lblest->setText(x.lblest);
    lblest2->setText(x.lblest2);
    txtinfo->setPlainText(x.txtinfo);
    txtinfop2->setPlainText(x.txtinfop2);
}

void frmfluxo::cmdhtml_click() {
    const tipo_fluxo t = analysis::tipo_pela_legenda(windowTitle());
    const platform::table_source* p = t == tipo_fluxo::receber ? nullptr : lstpagar;
    const platform::table_source* r = t == tipo_fluxo::pagar ? nullptr : lstreceber;
    // the holder shows plain line breaks; the file keeps the text as it was set
    const QString info2 = txtinfop2->toPlainText();
    output::salvar_arquivo(u"Salvar relatório de fluxo de caixa em html"_s, u"Arquivos HTML(*.html)|*.html"_s,
                           relatorio_.Progresbar(), [&](QIODevice& out) {
                               analysis::escrever_html_fluxo(out, windowTitle(), lbldata->text(), info2, p, r,
                                                             relatorio_);
                           });
}

void frmfluxo::cmdimprimir_click() {
    const tipo_fluxo t = analysis::tipo_pela_legenda(windowTitle());
    if (t == tipo_fluxo::geral) {
        analysis::imprimir_fluxo_geral(*lstpagar, *lstreceber, windowTitle(), lbldata->text(), lblest->text(),
                                       barra_.get());
        return;
    }
    list_view* l = t == tipo_fluxo::pagar ? lstpagar : lstreceber;
    ajustarlistview(l, 8);
    analysis::imprimir_fluxo_lista(*l, windowTitle(), lbldata->text(), lblest->text());
}

void frmfluxo::cmdInfo_click() {
    platform::msgbox(txtinfo->toPlainText() + u"\r\n"_s + lblest->text() + u"\r\n"_s + lblest2->text(),
                     platform::information, u"Informações"_s);
}

void frmfluxo::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}

// ---- frmconfluxo

frmconfluxo* frmconfluxo::instance() {
    if (!a_configuracao || a_configuracao->descarregado_) a_configuracao = new frmconfluxo();
    return a_configuracao;
}

frmconfluxo* frmconfluxo::aberto() {
    return a_configuracao && !a_configuracao->descarregado_ ? a_configuracao.data() : nullptr;
}

void frmconfluxo::abrir(const QString& tipo) {
    frmconfluxo* f = instance();
    f->lbltipo->setText(tipo);
    show_form(f);
}

frmconfluxo::frmconfluxo() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmconfluxo"_s);
    setWindowTitle(u"Configuração - Fluxo de caixa"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    cbodata1 = named(new date_field, "cbodata1");
    cbodata2 = named(new date_field, "cbodata2");
    const QDate hoje = platform::today();
    cbodata1->set_date(hoje);
    cbodata2->set_date(hoje.addDays(31));
    // not editable: the boxes are pick-only
    cbobanco = named(new QComboBox, "cbobanco");
    cbobanco->addItem(analysis::todos_os_bancos);
    platform::ignore_errors([this] {
        sql::recordset rs;
        rs.open(u"select * from banco"_s, store::conexao, sql::keyset, sql::read_only);
        const int i = rs.index_of(store::coluna::banco);
        for (; !rs.eof(); rs.move_next())
            cbobanco->addItem(rs.text(i));
    });
    cbobanco->setCurrentIndex(0);
    cboestatus = named(new QComboBox, "cboestatus");
    cboestatus->addItems({u"Pendentes e Concluidas"_s, u"Concluidas"_s, u"Pendentes"_s});
    cmdnatela = named(new QPushButton(u"Visualizar"_s), "cmdnatela");
    lbltipo = named(new QLabel, "lbltipo");
    lbltipo->hide();
    connect(cmdnatela, &QPushButton::clicked, this, &frmconfluxo::cmdnatela_click);
    auto* form = new QFormLayout;
    form->addRow(u"Data inicial:"_s, cbodata1);
    form->addRow(u"Data final:"_s, cbodata2);
    form->addRow(u"Selecione o Banco:"_s, cbobanco);
    form->addRow(u"Exibir contas:"_s, cboestatus);
    auto* v = new QVBoxLayout(this);
    v->addLayout(form);
    v->addWidget(cmdnatela, 0, Qt::AlignRight);
    v->addWidget(lbltipo);
}

analysis::pedido_fluxo frmconfluxo::pedido() const {
    // an unreadable date goes on as typed
    const auto texto = [](date_field* d) { return d->text().isEmpty() ? d->typed_text() : d->text(); };
    return {texto(cbodata1), texto(cbodata2), cbobanco->currentText(), cboestatus->currentText()};
}

void frmconfluxo::cmdnatela_click() {
    if (lbltipo->text() == u"pagar"_s)
        carregarpagar();
    else if (lbltipo->text() == u"receber"_s)
        carregarreceber();
    else
        CarregarGeral();
}

void frmconfluxo::carregarpagar() {
    um_lado(tipo_fluxo::pagar);
}

void frmconfluxo::carregarreceber() {
    um_lado(tipo_fluxo::receber);
}

void frmconfluxo::um_lado(tipo_fluxo t) {
    const bool pagar = t == tipo_fluxo::pagar;
    const analysis::pedido_fluxo p = pedido();
    analysis::lado_fluxo l;
    {
        platform::busy_span hourglass;
        l = analysis::ler_fluxo(pagar, p);
    }
    if (l.linhas.empty()) {
        platform::msgbox(analysis::sem_resultado(t, pagar), platform::information, u"Info"_s);
        return;
    }
    const analysis::textos_fluxo x =
        analysis::textos_do_fluxo(t, p, pagar ? &l : nullptr, pagar ? nullptr : &l);
    frmfluxo* f = frmfluxo::instance();
    f->preencher(t, x, pagar ? &l : nullptr, pagar ? nullptr : &l);
    show_form(f);
    close();
}

void frmconfluxo::CarregarGeral() {
    const analysis::pedido_fluxo p = pedido();
    analysis::lado_fluxo lp, lr;
    {
        platform::busy_span hourglass;
        lp = analysis::ler_fluxo(true, p);
    }
    if (lp.linhas.empty())
        platform::msgbox(analysis::sem_resultado(tipo_fluxo::geral, true), platform::information, u"Info"_s);
    {
        platform::busy_span hourglass;
        lr = analysis::ler_fluxo(false, p);
    }
    if (lr.linhas.empty())
        platform::msgbox(analysis::sem_resultado(tipo_fluxo::geral, false), platform::information, u"Info"_s);
    const analysis::textos_fluxo x = analysis::textos_do_fluxo(tipo_fluxo::geral, p, &lp, &lr);
    frmfluxo* f = frmfluxo::instance();
    f->preencher(tipo_fluxo::geral, x, &lp, &lr);
    show_form(f);
    close();
}

void frmconfluxo::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}
