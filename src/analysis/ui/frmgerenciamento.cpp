#include "analysis/ui/frmgerenciamento.h"

#include "analysis/filter_kit.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/names.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QVBoxLayout>

using shell::ledger;

namespace {

QPointer<frmgerenciamento> the_window;

QRadioButton* opcao(const QString& texto, const char* nome) {
    return named(new QRadioButton(texto), nome);
}

// The controls one panel is built from, named by the caller.
struct painel {
    QRadioButton *todas, *contato, *estatus, *origem, *data, *pendente, *concluido, *asc, *desc;
    QComboBox *cbocontato, *cboorigem;
    date_field *d1, *d2;
    QPushButton* consultar;
    list_view* lista;
    QLabel* total;
};

QWidget* montar(const QString& titulo, painel& p) {
    auto* w = new QWidget;
    auto* v = new QVBoxLayout(w);
    auto* t = new QLabel(titulo);
    QFont f = t->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.2);
    t->setFont(f);
    v->addWidget(t);
    auto* filtros = new QWidget; // the five options exclude each other
    auto* g = new QGridLayout(filtros);
    g->setColumnStretch(1, 1);
    g->addWidget(p.todas, 0, 0, 1, 2);
    g->addWidget(p.contato, 1, 0);
    g->addWidget(p.cbocontato, 1, 1);
    auto* estatus = new QWidget;
    auto* he = new QHBoxLayout(estatus);
    he->setContentsMargins(0, 0, 0, 0);
    he->addWidget(p.pendente);
    he->addWidget(p.concluido);
    he->addStretch(1);
    g->addWidget(p.estatus, 2, 0);
    g->addWidget(estatus, 2, 1);
    g->addWidget(p.origem, 3, 0);
    g->addWidget(p.cboorigem, 3, 1);
    auto* datas = new QWidget;
    auto* hd = new QHBoxLayout(datas);
    hd->setContentsMargins(0, 0, 0, 0);
    hd->addWidget(new QLabel(QStringLiteral("Mostrar apenas dados entre:")));
    hd->addWidget(p.d1);
    hd->addWidget(new QLabel(QStringLiteral("e")));
    hd->addWidget(p.d2);
    hd->addStretch(1);
    g->addWidget(p.data, 4, 0);
    g->addWidget(datas, 4, 1);
    v->addWidget(filtros);
    auto* linha = new QHBoxLayout;
    auto* na = new QGroupBox(QStringLiteral("Na ordem"));
    auto* hn = new QHBoxLayout(na);
    hn->addWidget(p.asc);
    hn->addWidget(p.desc);
    linha->addWidget(na);
    linha->addStretch(1);
    linha->addWidget(p.consultar);
    v->addLayout(linha);
    v->addWidget(p.lista, 1);
    v->addWidget(p.total);
    return w;
}

list_view* lista(const char* nome, const QString& descricao) {
    auto* l = named(new list_view, nome);
    l->add_column(QStringLiteral("Data"), 1300, list_view::tag_date);
    l->add_column(descricao, 4000);
    l->add_column(QStringLiteral("Valor"), 1800, list_view::tag_number);
    return l;
}

} // namespace

frmgerenciamento* frmgerenciamento::instance() {
    return single_window(the_window, [] {
        auto* w = new frmgerenciamento();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmgerenciamento::frmgerenciamento() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmgerenciamento"));
    setWindowTitle(QStringLiteral("Gerenciamento"));
    ordem = named(new QLineEdit, "ordem");
    ordem->hide();
    const QString por_data = QStringLiteral("Filtrar dados por data");
    const QString por_estatus = QStringLiteral("Filtrar dados por estatus");
    const QString por_origem = QStringLiteral("Filtrar dados por Conta origem");
    const QString total_inicial = QStringLiteral("Valor Total: R$ 0,00");

    painel d{opttodasdesp = opcao(QStringLiteral("Mostrar todas as despesas cadastradas"), "opttodasdesp"),
             optfornecedordesp = opcao(QStringLiteral("Filtrar dados por fornecedor"), "optfornecedordesp"),
             optestatusdesp = opcao(por_estatus, "optestatusdesp"),
             optorigemdesp = opcao(por_origem, "optorigemdesp"),
             optdatadesp = opcao(por_data, "optdatadesp"),
             optpendentedesp = opcao(QStringLiteral("Apenas Pendente"), "optpendentedesp"),
             optconcluidodesp = opcao(QStringLiteral("Apenas Concluído"), "optconcluidodesp"),
             optascr = opcao(QStringLiteral("Crescente"), "optascr"),
             optdescr = opcao(QStringLiteral("Decrescente"), "optdescr"),
             cbofornecedordesp = chosen_box("cbofornecedordesp"),
             cboorigemdesp = chosen_box("cboorigemdesp"),
             cbodata1p = named(new date_field, "cbodata1p"),
             cbodata2p = named(new date_field, "cbodata2p"),
             cmdconsultardesp =
                 named(new QPushButton(QStringLiteral("Consultar despesas")), "cmdconsultardesp"),
             lstdespesas = lista("lstdespesas", QStringLiteral("Descrição / Planos de contas")),
             lbltotaldesp = named(new QLabel(total_inicial), "lbltotaldesp")};
    picdespesas = named(montar(QStringLiteral("Gerenciamento de despesas"), d), "picdespesas");

    painel r{
        opttodoslucros = opcao(QStringLiteral("Mostrar todas as receitas cadastradas"), "opttodoslucros"),
        optclienteslucros = opcao(QStringLiteral("Filtrar dados por clientes"), "optclienteslucros"),
        optestatuslucros = opcao(por_estatus, "optestatuslucros"),
        optorigemlucros = opcao(por_origem, "optorigemlucros"),
        optdatalucros = opcao(por_data, "optdatalucros"),
        optpendenteslucros = opcao(QStringLiteral("Apenas Pendente"), "optpendenteslucros"),
        optconcluidolucros = opcao(QStringLiteral("Apenas Concluído"), "optconcluidolucros"),
        optasclucros = opcao(QStringLiteral("Crescente"), "optasclucros"),
        optdesclucros = opcao(QStringLiteral("Decrescente"), "optdesclucros"),
        cboclienteslucros = chosen_box("cboclienteslucros"),
        cboorigemlucros = chosen_box("cboorigemlucros"),
        cbodata1r = named(new date_field, "cbodata1r"),
        cbodata2r = named(new date_field, "cbodata2r"),
        cmdconsultarlucros = named(new QPushButton(QStringLiteral("Consultar lucros")), "cmdconsultarlucros"),
        lstlucros = lista("lstlucros", QStringLiteral("Descrição / Plano de contas")),
        lbltotallucro = named(new QLabel(total_inicial), "lbltotallucro")};
    piclucros = named(montar(QStringLiteral("Gerenciamento de receitas"), r), "piclucros");

    auto* pilha = new QStackedLayout(this);
    pilha->addWidget(picdespesas);
    pilha->addWidget(piclucros);

    for (QComboBox* c : {cbofornecedordesp, cboorigemdesp, cboclienteslucros, cboorigemlucros})
        c->installEventFilter(this);
    for (QRadioButton* b : {optascr, optasclucros})
        connect(b, &QRadioButton::clicked, this, [this] { ordem->setText(QStringLiteral("ASC")); });
    for (QRadioButton* b : {optdescr, optdesclucros})
        connect(b, &QRadioButton::clicked, this, [this] { ordem->setText(QStringLiteral("DESC")); });
    connect(cmdconsultardesp, &QPushButton::clicked, this, [this] { consultar(ledger::pagar); });
    connect(cmdconsultarlucros, &QPushButton::clicked, this, [this] { consultar(ledger::receber); });
    resize(620, 560);
    carregar_listas();
}

bool frmgerenciamento::eventFilter(QObject* o, QEvent* e) {
    // the boxes are chosen from, never typed in
    if (e->type() == QEvent::KeyPress || e->type() == QEvent::KeyRelease) return true;
    return QWidget::eventFilter(o, e);
}

void frmgerenciamento::carregar_listas() {
    using analysis::valores_da_consulta;
    platform::ignore_errors([this] {
        const QStringList bancos =
            valores_da_consulta(QStringLiteral("select * from banco"), store::coluna::banco);
        fill_names(cboorigemdesp, bancos);
        fill_names(cboorigemlucros, bancos);
    });
    platform::ignore_errors([this] {
        fill_names(cbofornecedordesp,
                   valores_da_consulta(QStringLiteral("select * from fornecedor"), store::coluna::nome));
    });
    platform::ignore_errors([this] {
        fill_names(cboclienteslucros,
                   valores_da_consulta(QStringLiteral("select * from cliente"), store::coluna::nome));
    });
}

void frmgerenciamento::mostrar_painel(ledger l) {
    static_cast<QStackedLayout*>(layout())->setCurrentWidget(l == ledger::receber ? piclucros : picdespesas);
    show_form(this);
}

analysis::pedido_gerencia frmgerenciamento::pedido(ledger l) const {
    using analysis::filtro_gerencia;
    const bool pagar = l == ledger::pagar;
    analysis::pedido_gerencia p;
    p.tabela = pagar ? ledger::pagar : ledger::receber;
    const QRadioButton* const opcoes[] = {
        pagar ? opttodasdesp : opttodoslucros, pagar ? optfornecedordesp : optclienteslucros,
        pagar ? optestatusdesp : optestatuslucros, pagar ? optorigemdesp : optorigemlucros,
        pagar ? optdatadesp : optdatalucros};
    const filtro_gerencia filtros[] = {filtro_gerencia::todas, filtro_gerencia::contato,
                                       filtro_gerencia::estatus, filtro_gerencia::origem,
                                       filtro_gerencia::data};
    // the first option that is on decides
    for (int i = 0; i < 5; ++i)
        if (opcoes[i]->isChecked()) {
            p.filtro = filtros[i];
            break;
        }
    if (p.filtro == filtro_gerencia::contato)
        p.texto = (pagar ? cbofornecedordesp : cboclienteslucros)->currentText();
    else if (p.filtro == filtro_gerencia::origem)
        p.texto = (pagar ? cboorigemdesp : cboorigemlucros)->currentText();
    p.concluido = (pagar ? optconcluidodesp : optconcluidolucros)->isChecked();
    const date_field* d1 = pagar ? cbodata1p : cbodata1r;
    const date_field* d2 = pagar ? cbodata2p : cbodata2r;
    p.data1 = d1->date();
    p.data2 = d2->date();
    p.data1_texto = d1->text();
    p.data2_texto = d2->text();
    p.ordem = ordem->text();
    return p;
}

void frmgerenciamento::consultar(ledger l) {
    platform::ignore_errors([&] {
        const bool pagar = l == ledger::pagar;
        list_view* lista = pagar ? lstdespesas : lstlucros;
        lista->clear_rows();
        const analysis::pedido_gerencia p = pedido(l);
        if (analysis::datas_faltando(p)) {
            platform::msgbox(analysis::msg_datas_gerencia, platform::exclamation, QStringLiteral("info"));
            return;
        }
        const auto c = analysis::consulta_de(p);
        if (!c) return;
        analysis::resultado_gerencia r = analysis::consultar_gerencia(c->sql);
        if (r.falhou) return;
        if (r.linhas.empty()) {
            platform::msgbox(c->sem_dados, platform::exclamation, QStringLiteral("Gerenciamento"));
            return;
        }
        lista->add_rows(std::move(r.linhas));
        (pagar ? lbltotaldesp : lbltotallucro)->setText(analysis::total_gerencia(r.tally));
    });
}
