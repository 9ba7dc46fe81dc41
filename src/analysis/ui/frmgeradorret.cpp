#include "analysis/ui/frmgeradorret.h"

#include "analysis/ui/frmrelatorioint.h"
#include "platform/busy.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/sql/error.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "registers/geradorad.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPointer<frmgeradorret> a_janela;

// What each add button asks of the chooser.
struct escolha {
    const char* botao;
    const char* caption;
    const char* titulo;
    const char* consulta;
    const char* campo;
    const char* tipo;
};
// clang-format off
const escolha escolhas[] = {
    {"cmdcliente", "Adicionado cliente a lista", "Adicionando um novo cliente a lista",
     "select [nome] from [cliente]", "nome", "cliente"},
    {"cmdfornecedor", "Adicionado fornecedor a lista", "Adicionando um novo fornecedor a lista",
     "select [nome] from [fornecedor]", "nome", "fornecedor"},
    {"cmdcusto", "Adicionado centro de custo", "Adicionando um novo centro de custo a lista",
     "select [descricao] from [pcontapagar]", "descricao", "custo"},
    {"cmdlucros", "Adicionado centro de lucro a lista", "Adicionando um novo centro de lucro a lista",
     "select [descricao] from [pcontareceber]", "descricao", "lucro"},
    {"cmdorigemp", "Adicionado conta origem a lista", "Adicionando uma nova conta origem a lista",
     "select [banco] from [banco]", "banco", "origemp"},
    {"cmdorigemr", "Adicionado conta origem a lista", "Adicionando uma nova conta origem a lista",
     "select [banco] from [banco]", "banco", "origemr"},
    {"cmdorigemb", "Adicionado conta origem a lista", "Adicionando uma nova origem destino a lista",
     "select [banco] from [banco]", "banco", "origemb"},
    {"cmddestino", "Adicionado conta destino a lista", "Adicionando uma nova conta destino a lista",
     "select [banco] from [banco]", "banco", "destino"},
};
// clang-format on

QString u8(const char* s) {
    return QString::fromUtf8(s);
}

QCheckBox* caixa(const char* name, const QString& caption) {
    return named(new QCheckBox(caption), name);
}
QRadioButton* opcao(const char* name, const QString& caption) {
    return named(new QRadioButton(caption), name);
}
QPushButton* botao(const char* name, const QString& caption) {
    return named(new QPushButton(caption), name);
}
QListWidget* lista(const char* name) {
    auto* l = named(new QListWidget, name);
    l->setEnabled(false);
    l->setMaximumHeight(90);
    return l;
}
date_field* seletor(const char* name) {
    auto* d = named(new date_field, name);
    d->set_date(platform::today());
    d->setEnabled(false);
    return d;
}

QStringList nomes(const QListWidget* l) {
    QStringList out;
    for (int i = 0; i < l->count(); ++i)
        out << l->item(i)->text();
    return out;
}

analysis::estatus_filtro estatus(const QRadioButton* tudo, const QRadioButton* pendente) {
    if (tudo->isChecked()) return analysis::estatus_filtro::tudo;
    return pendente->isChecked() ? analysis::estatus_filtro::pendente : analysis::estatus_filtro::concluido;
}

// A check box with the list it enables, and the list's add and clear buttons.
void linha_lista(QGridLayout* g, int row, QCheckBox* chk, QListWidget* l, QPushButton* add,
                 QPushButton* clear) {
    QObject::connect(chk, &QCheckBox::toggled, l, &QWidget::setEnabled);
    QObject::connect(clear, &QPushButton::clicked, l, &QListWidget::clear);
    g->addWidget(chk, row, 0, Qt::AlignTop);
    g->addWidget(l, row, 1);
    auto* botoes = new QVBoxLayout;
    botoes->addWidget(add);
    botoes->addWidget(clear);
    botoes->addStretch();
    g->addLayout(botoes, row, 2);
}

// The date box with its pickers, and the two bases of the entry pages (none on the bank page).
void linha_datas(QGridLayout* g, QCheckBox* chk, date_field* d1, date_field* d2, QRadioButton* por_data,
                 QRadioButton* por_venc) {
    QObject::connect(chk, &QCheckBox::toggled, d1, &QWidget::setEnabled);
    QObject::connect(chk, &QCheckBox::toggled, d2, &QWidget::setEnabled);
    g->addWidget(chk, 1, 0);
    auto* h = new QHBoxLayout;
    h->addWidget(new QLabel(u"Mostrar apenas dados entre:"_s));
    h->addWidget(d1);
    h->addWidget(new QLabel(u"e"_s));
    h->addWidget(d2);
    h->addStretch();
    g->addLayout(h, 1, 1, 1, 2);
    if (!por_data) return;
    auto* bases = new QWidget;
    auto* b = new QHBoxLayout(bases);
    b->setContentsMargins(0, 0, 0, 0);
    b->addWidget(por_data);
    b->addWidget(por_venc);
    b->addStretch();
    por_data->setChecked(true);
    g->addWidget(bases, 2, 1, 1, 2);
}

QGroupBox* mostrar_dados(QRadioButton* tudo, QRadioButton* pendente, QRadioButton* concluido) {
    auto* box = new QGroupBox(u"Mostrar dados"_s);
    auto* h = new QHBoxLayout(box);
    h->addWidget(tudo);
    h->addWidget(pendente);
    h->addWidget(concluido);
    h->addStretch();
    tudo->setChecked(true);
    return box;
}

} // namespace

frmgeradorret* frmgeradorret::instance() {
    if (!a_janela || a_janela->descarregado_) a_janela = new frmgeradorret();
    return a_janela;
}

frmgeradorret* frmgeradorret::aberto() {
    return a_janela && !a_janela->descarregado_ ? a_janela.data() : nullptr;
}

frmgeradorret::frmgeradorret() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmgeradorret"_s);
    setWindowTitle(u"Gerador de relatórios - Integrados"_s);
    setAttribute(Qt::WA_DeleteOnClose);

    chkpagar = caixa("chkpagar", u"Filtrar dados por contas a pagar - despesas"_s);
    chkpagar->setToolTip(u"Selecione está opção para mostrar apenas dados entre as datas definidas abaixo"_s);
    chkreceber = caixa("chkreceber", u"Filtrar dados por contas a receber - receitas"_s);
    chkbancario = caixa("chkbancario", u"Filtrar dados por movimento bancário"_s);
    for (QCheckBox* c : {chkpagar, chkreceber, chkbancario})
        c->setChecked(true);
    chkdatap = caixa("chkdatap", u"Filtrar dados por data"_s);
    chkdatar = caixa("chkdatar", u"Filtrar dados por data"_s);
    chkdatab = caixa("chkdatab", u"Filtrar dados por data"_s);
    cbodata1p = seletor("cbodata1p"), cbodata2p = seletor("cbodata2p");
    cbodata1r = seletor("cbodata1r"), cbodata2r = seletor("cbodata2r");
    cbodata1b = seletor("cbodata1b"), cbodata2b = seletor("cbodata2b");
    optdatap = opcao("optdatap", u"Baseado em data de cadastro"_s);
    optvencp = opcao("optvencp", u"Baseado em vencimento"_s);
    optdatar = opcao("optdatar", u"Baseado em data de cadastro"_s);
    optvencr = opcao("optvencr", u"Baseado em vencimento"_s);

    chkfornecedor = caixa("chkfornecedor", u"Filtrar dados por fornecedores:"_s);
    chkorigemp = caixa("chkorigemp", u"Filtrar dados por conta origem"_s);
    chkcusto = caixa("chkcusto", u"Filtrar dados pelos centros de custos"_s);
    chkcliente = caixa("chkcliente", u"Filtrar dados por clientes:"_s);
    chkorigemr = caixa("chkorigemr", u"Filtrar dados por conta origem:"_s);
    chklucros = caixa("chklucros", u"Filtrar dados pelos centros de lucros:"_s);
    chkorigemb = caixa("chkorigemb", u"Filtrar dados por conta origem"_s);
    chkdestinob = caixa("chkdestinob", u"Filtrar dados por conta destino"_s);
    lstfornecedor = lista("lstfornecedor"), lstorigemp = lista("lstorigemp"), lstcusto = lista("lstcusto");
    lstcliente = lista("lstcliente"), lstorigemr = lista("lstorigemr"), lstlucros = lista("lstlucros");
    lstorigemb = lista("lstorigemb"), lstdestino = lista("lstdestino");
    const QString adicionar = u"Adicionar"_s, limpar = u"Limpar"_s;
    cmdfornecedor = botao("cmdfornecedor", adicionar), cmdorigemp = botao("cmdorigemp", adicionar);
    cmdcusto = botao("cmdcusto", adicionar), cmdcliente = botao("cmdcliente", adicionar);
    cmdorigemr = botao("cmdorigemr", adicionar), cmdlucros = botao("cmdlucros", adicionar);
    cmdorigemb = botao("cmdorigemb", adicionar), cmddestino = botao("cmddestino", adicionar);
    lstlimparforn = botao("lstlimparforn", limpar), cmdlimpaorigemp = botao("cmdlimpaorigemp", limpar);
    cmdlimpacusto = botao("cmdlimpacusto", limpar), cmdlimpacliente = botao("cmdlimpacliente", limpar);
    cmdlimparorigemr = botao("cmdlimparorigemr", limpar), cmdlimparlucros = botao("cmdlimparlucros", limpar);
    cmdlimparorigemb = botao("cmdlimparorigemb", limpar),
    cmdlimpardestino = botao("cmdlimpardestino", limpar);

    const QString tudo = u"Exibir Pendentes e Concluídos"_s, pendente = u"Apenas Pendente"_s,
                  concluido = u"Apenas Concluído"_s;
    opttudop = opcao("opttudop", tudo), optpendentep = opcao("optpendentep", pendente);
    optconcluidop = opcao("optconcluidop", concluido);
    opttudor = opcao("opttudor", tudo), optpendenter = opcao("optpendenter", pendente);
    optconcluidor = opcao("optconcluidor", concluido);
    opttudob = opcao("opttudob", tudo), optpendenteb = opcao("optpendenteb", pendente);
    optconcluidob = opcao("optconcluidob", concluido);
    cmdnatela = botao("cmdnatela", u"&Gerar relatório"_s);

    montar();
    for (QPushButton* b :
         {cmdfornecedor, cmdorigemp, cmdcusto, cmdcliente, cmdorigemr, cmdlucros, cmdorigemb, cmddestino})
        connect(b, &QPushButton::clicked, this, [this, b] { escolher(b); });
    connect(cmdnatela, &QPushButton::clicked, this, &frmgeradorret::cmdnatela_click);
}

void frmgeradorret::montar() {
    const auto pagina = [this](const QString& titulo, QCheckBox* incluir) {
        auto* w = new QWidget;
        auto* g = new QGridLayout(w);
        g->addWidget(incluir, 0, 0, 1, 3);
        g->setColumnStretch(1, 1);
        XTab1->addTab(w, titulo);
        return g;
    };
    XTab1 = named(new QTabWidget, "XTab1");
    QGridLayout* p = pagina(u"Contas a pagar"_s, chkpagar);
    linha_datas(p, chkdatap, cbodata1p, cbodata2p, optdatap, optvencp);
    linha_lista(p, 3, chkfornecedor, lstfornecedor, cmdfornecedor, lstlimparforn);
    linha_lista(p, 4, chkorigemp, lstorigemp, cmdorigemp, cmdlimpaorigemp);
    linha_lista(p, 5, chkcusto, lstcusto, cmdcusto, cmdlimpacusto);
    p->addWidget(mostrar_dados(opttudop, optpendentep, optconcluidop), 6, 0, 1, 3);

    QGridLayout* r = pagina(u"Contas a receber"_s, chkreceber);
    linha_datas(r, chkdatar, cbodata1r, cbodata2r, optdatar, optvencr);
    linha_lista(r, 3, chkcliente, lstcliente, cmdcliente, cmdlimpacliente);
    linha_lista(r, 4, chkorigemr, lstorigemr, cmdorigemr, cmdlimparorigemr);
    linha_lista(r, 5, chklucros, lstlucros, cmdlucros, cmdlimparlucros);
    r->addWidget(mostrar_dados(opttudor, optpendenter, optconcluidor), 6, 0, 1, 3);

    QGridLayout* b = pagina(u"Movimento bancário"_s, chkbancario);
    linha_datas(b, chkdatab, cbodata1b, cbodata2b, nullptr, nullptr);
    linha_lista(b, 3, chkorigemb, lstorigemb, cmdorigemb, cmdlimparorigemb);
    linha_lista(b, 4, chkdestinob, lstdestino, cmddestino, cmdlimpardestino);
    b->addWidget(mostrar_dados(opttudob, optpendenteb, optconcluidob), 6, 0, 1, 3);
    b->setRowStretch(7, 1);

    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdnatela);
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1);
    v->addLayout(botoes);
    install_field_conduct_all(this);
    resize(640, sizeHint().height());
}

void frmgeradorret::mostrar() {
    show_form(this);
}

void frmgeradorret::escolher(QPushButton* b) {
    for (const escolha& e : escolhas) {
        if (b->objectName() != QLatin1String(e.botao)) continue;
        registers::pedido_lista pedido{
            u8(e.caption),
            u8(e.titulo),
            u8(e.consulta),
            u8(e.campo),
            u8(e.tipo),
            [alvo = QPointer<frmgeradorret>(this)](const QString& t, const QString& x) {
                if (alvo) alvo->adicionar_a_lista(t, x);
            }};
        try {
            registers::abrir_lista(pedido);
        } catch (const sql::error& err) {
            platform::msgbox(err.description(), platform::exclamation, u"Erro"_s);
        } catch (const std::exception& err) {
            platform::msgbox(QString::fromUtf8(err.what()), platform::exclamation, u"Erro"_s);
        }
        return;
    }
}

void frmgeradorret::adicionar_a_lista(const QString& tipo, const QString& texto) {
    const std::pair<const char*, QListWidget*> alvos[] = {
        {"cliente", lstcliente}, {"fornecedor", lstfornecedor}, {"custo", lstcusto},
        {"lucro", lstlucros},    {"origemp", lstorigemp},       {"origemr", lstorigemr},
        {"origemb", lstorigemb}, {"destino", lstdestino}};
    for (const auto& [palavra, l] : alvos)
        if (tipo == QLatin1String(palavra)) l->addItem(texto);
}

analysis::filtros_integrados frmgeradorret::filtros() const {
    analysis::filtros_integrados f;
    f.pagar = chkpagar->isChecked();
    f.receber = chkreceber->isChecked();
    f.bancario = chkbancario->isChecked();
    f.p = {chkdatap->isChecked(),
           cbodata1p->date(),
           cbodata2p->date(),
           optvencp->isChecked(),
           chkfornecedor->isChecked(),
           nomes(lstfornecedor),
           chkorigemp->isChecked(),
           nomes(lstorigemp),
           nomes(lstcusto),
           false,
           {},
           estatus(opttudop, optpendentep)};
    f.r = {chkdatar->isChecked(),
           cbodata1r->date(),
           cbodata2r->date(),
           optvencr->isChecked(),
           chkcliente->isChecked(),
           nomes(lstcliente),
           chkorigemr->isChecked(),
           nomes(lstorigemr),
           nomes(lstlucros),
           false,
           {},
           estatus(opttudor, optpendenter)};
    f.b = {chkdatab->isChecked(),
           cbodata1b->date(),
           cbodata2b->date(),
           false,
           false,
           {},
           chkorigemb->isChecked(),
           nomes(lstorigemb),
           {},
           chkdestinob->isChecked(),
           nomes(lstdestino),
           estatus(opttudob, optpendenteb)};
    return f;
}

void frmgeradorret::cmdnatela_click() {
    frmrelatorioint* r = frmrelatorioint::instance();
    r->mostrar();
    {
        platform::busy_span hourglass;
        r->preencher(analysis::gerar(filtros()));
    }
    descarregar();
}

void frmgeradorret::descarregar() {
    descarregado_ = true;
    hide();
    deleteLater();
}

void frmgeradorret::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}
