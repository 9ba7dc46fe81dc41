#include "analysis/ui/frmvencimento.h"

#include "platform/clock.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "shell/column_layout.h"

#include <QLabel>
#include <QPointer>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QPointer<frmvencimento> the_window;

QWidget* pagina(QLabel* legenda, list_view* lista) {
    auto* w = new QWidget;
    auto* v = new QVBoxLayout(w);
    v->addWidget(legenda);
    v->addWidget(lista, 1);
    return w;
}

void colunas(list_view* l, shell::ledger which) {
    l->clear_rows();
    l->clear_columns();
    for (const auto& c : shell::ledger_columns(which))
        l->add_column(c.heading, shell::read_single(c.default_width).value_or(0), c.tag, c.align);
}

} // namespace

frmvencimento* frmvencimento::instance() {
    if (!the_window) the_window = new frmvencimento();
    return the_window;
}

frmvencimento* frmvencimento::carregada() {
    return the_window.data();
}

frmvencimento::frmvencimento()
    : QWidget(nullptr, Qt::Window), XTab1(named(new QTabWidget, "XTab1")),
      lblmes(named(new QLabel, "lblmes")), lbldia(named(new QLabel, "lbldia")),
      lstmes(named(new list_view, "lstmes")), lstdia(named(new list_view, "lstdia")) {
    setObjectName(QStringLiteral("frmvencimento"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Vencimentos do mês"));
    for (QLabel* l : {lblmes, lbldia}) {
        QFont f = l->font();
        f.setBold(true);
        l->setFont(f);
    }
    XTab1->addTab(pagina(lblmes, lstmes), QStringLiteral("Vencimentos do mês"));
    XTab1->addTab(pagina(lbldia, lstdia), QStringLiteral("Vencimentos do dia"));
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1);
    colunas(lstmes, shell::ledger::pagar);
    colunas(lstdia, shell::ledger::pagar);
    resize(900, 460);
}

frmvencimento::~frmvencimento() {
    if (the_window == this) the_window = nullptr;
}

void frmvencimento::vestir(analysis::tipo_vencimento tipo) {
    const analysis::textos_vencimento t = analysis::textos(tipo);
    show_window(this);
    setWindowTitle(t.lblmes);
    lblmes->setText(t.lblmes);
    lbldia->setText(t.lbldia);
}

void frmvencimento::preencher(shell::ledger which) {
    analysis::vencimentos v = analysis::carregar_vencimentos(which, platform::today());
    colunas(lstmes, which);
    colunas(lstdia, which);
    lstmes->add_rows(std::move(v.mes));
    lstdia->add_rows(std::move(v.dia));
}

void frmvencimento::vencimentopagar() {
    vestir(analysis::tipo_vencimento::pagar);
    preencher(shell::ledger::pagar);
}

void frmvencimento::vencimentoreceber() {
    vestir(analysis::tipo_vencimento::receber);
    preencher(shell::ledger::receber);
}

void frmvencimento::vencimentocompromisso() {
    vestir(analysis::tipo_vencimento::compromisso);
}
