#include "analysis/ui/frmprojecao.h"

#include "analysis/print/projection_print.h"
#include "analysis/ui/period_boxes.h"
#include "output/report_frame.h"
#include "platform/clock.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPointer<frmprojecao> a_janela;

// Types as the money field does; once left it carries the currency mark.
class campo_meta : public money_field {
protected:
    void focusOutEvent(QFocusEvent* e) override {
        setText(analysis::meta_ao_sair(text()));
        // past the money field's own leaving, which would format the marked text again
        QLineEdit::focusOutEvent(e); // NOLINT(bugprone-parent-virtual-call)
    }
};

// The controls' names of each panel, in the order of painel's members.
const char* const nomes_desp[] = {"picdesp", "cbomesdesp",       "cboanodesp", "txtvalordesp",
                                  "cmddesp", "txtresultadodesp", "txto",       "cmdhtml",
                                  "cmdtxt",  "cmdImprimir"};
const char* const nomes_rec[] = {"picrec",    "cbomesrec",       "cboanorec", "txtvalorrec",
                                 "cmdrec",    "txtresultadorec", "Text1",     "cmdhtmlrec",
                                 "cmdtxtrec", "cmdimprimirrec"};

QString na_tela(QString s) {
    return s.replace(u"\r\n"_s, u"\n"_s);
}

} // namespace

frmprojecao* frmprojecao::instance() {
    if (!a_janela || a_janela->descarregado_) a_janela = new frmprojecao();
    return a_janela;
}

frmprojecao* frmprojecao::aberto() {
    return a_janela && !a_janela->descarregado_ ? a_janela.data() : nullptr;
}

frmprojecao::frmprojecao() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmprojecao"_s);
    setWindowTitle(u"Projeção / Meta"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* v = new QVBoxLayout(this);
    auto* titulo = new QLabel(u"Projeção / Meta"_s);
    QFont negrito = titulo->font();
    negrito.setBold(true);
    titulo->setFont(negrito);
    v->addWidget(titulo);
    montar(desp, analysis::projecao_despesas(), nomes_desp);
    montar(rec, analysis::projecao_receitas(), nomes_rec);
    v->addWidget(desp.pic, 1);
    v->addWidget(rec.pic, 1);
    rec.pic->hide();
}

void frmprojecao::montar(painel& p, const analysis::lado_projecao& l, const char* const n[]) {
    p.lado = &l;
    p.pic = named(new QWidget, n[0]);
    p.cbomes = analysis::caixa_meses(n[1], true);
    p.cboano = analysis::caixa_anos(n[2]);
    p.txtvalor = named(new campo_meta, n[3]);
    p.cmdverificar = named(new QPushButton(u"VERIFICAR"_s), n[4]);
    p.txtresultado = named(new QPlainTextEdit, n[5]);
    p.txtresultado->setReadOnly(true);
    p.txthtml = named(new QPlainTextEdit, n[6]);
    p.txthtml->hide();
    p.cmdhtml = named(new QPushButton(u"Salvar em HTML"_s), n[7]);
    p.cmdtxt = named(new QPushButton(u"Salvar em TXT"_s), n[8]);
    p.cmdimprimir = named(new QPushButton(u"Imprimir Projeção"_s), n[9]);
    auto* quadro = new QGroupBox(u"Projeção / metas"_s);
    auto* f = new QFormLayout(quadro);
    f->addRow(u"Mês:"_s, p.cbomes);
    f->addRow(u"Selecione o ano:"_s, p.cboano);
    f->addRow(u"Valor da projeção:"_s, p.txtvalor);
    f->addRow(QString(), p.cmdverificar);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(p.cmdhtml);
    botoes->addWidget(p.cmdtxt);
    botoes->addWidget(p.cmdimprimir);
    botoes->addStretch();
    auto* v = new QVBoxLayout(p.pic);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(quadro);
    v->addWidget(p.txtresultado, 1);
    v->addWidget(p.txthtml);
    v->addLayout(botoes);
    painel* pp = &p;
    connect(p.cmdverificar, &QPushButton::clicked, this, [this, pp] { verificar(*pp); });
    connect(p.cmdtxt, &QPushButton::clicked, this, [pp] {
        output::salvar_arquivo(
            pp->lado->titulo_txt, u"Arquivos de Texto(*.txt)|*.txt"_s, nullptr,
            [pp](QIODevice& out) { analysis::escrever_txt_projecao(out, *pp->lado, pp->resultado); });
    });
    connect(p.cmdhtml, &QPushButton::clicked, this, [pp] {
        output::salvar_arquivo(
            pp->lado->titulo_html, u"Arquivos HTML (*.html)|*.html"_s, nullptr,
            [pp](QIODevice& out) { analysis::escrever_html_projecao(out, *pp->lado, pp->html); });
    });
    connect(p.cmdimprimir, &QPushButton::clicked, this,
            [pp] { analysis::imprimir_projecao(*pp->lado, pp->resultado); });
}

void frmprojecao::resetar(bool despesas) {
    painel& p = despesas ? desp : rec;
    (despesas ? rec : desp).pic->hide();
    p.pic->show();
    const QDate hoje = platform::today();
    analysis::mostrar_mes(p.cbomes, hoje);
    analysis::mostrar_ano(p.cboano, hoje);
    p.txtvalor->setText(u"R$ 00,00"_s);
    setWindowTitle(p.lado->caption);
    show_form(this);
}

void frmprojecao::verificar(painel& p) {
    p.resultado.clear();
    p.html.clear();
    p.txtresultado->clear();
    p.txthtml->clear();
    const analysis::resultado_projecao r = analysis::verificar_projecao(
        *p.lado, p.cbomes->currentText(), p.cboano->currentText(), p.txtvalor->text());
    p.resultado = r.texto;
    p.html = r.html;
    p.txtresultado->setPlainText(na_tela(r.texto));
    p.txthtml->setPlainText(r.html);
}

void frmprojecao::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}
