#include "shell/ui/frmalerta.h"
#include "platform/widgets/form_builders.h"

#include "platform/clock.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/list_view.h"
#include "shell/column_layout.h"
#include "shell/due_alerts.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <exception>

using shell::ledger;

QPointer<frmalerta> frmalerta::carregada_;

namespace {

void definir_colunas(list_view* l, ledger which) {
    l->clear_columns();
    for (const auto& c : shell::ledger_columns(which))
        l->add_column(c.heading, shell::read_single(c.default_width).value_or(0), c.tag, c.align);
}

} // namespace

frmalerta::frmalerta(QWidget* parent)
    : QDialog(parent), XTab1(named(new QTabWidget, "XTab1")), lstpagar(named(new list_view, "lstpagar")),
      lstreceber(named(new list_view, "lstreceber")), lblaviso(named(new QLabel, "lblaviso")) {
    setObjectName(QStringLiteral("frmalerta"));
    setWindowTitle(QStringLiteral("Alerta sobre vencimento de contas"));
    setAttribute(Qt::WA_DeleteOnClose);

    lblaviso->setText(QStringLiteral(
        "Existem contas que estão vencendo hoje, verifique abaixo para saber quais contas, para desativar "
        "este aviso va ate o menu exibir e desmarque a opção alertas de vencimentos de contas"));
    lblaviso->setWordWrap(true);

    definir_colunas(lstpagar, ledger::pagar);
    definir_colunas(lstreceber, ledger::receber);
    XTab1->addTab(lstpagar, QStringLiteral("Contas a pagar"));
    XTab1->addTab(lstreceber, QStringLiteral("Contas a receber"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblaviso);
    layout->addWidget(XTab1, 1);
    resize(820, 360);

    carregada_ = this;
    sempretopo(QStringLiteral("ativo"), this);
}

frmalerta::~frmalerta() {
    if (carregada_ == this) carregada_ = nullptr;
}

frmalerta* frmalerta::carregada() {
    return carregada_.data();
}

frmalerta* frmalerta::VerificarVencimentos_ao_iniciar(QWidget* parent) {
    // a window already loaded looks again instead of a second one opening
    frmalerta* w = carregada_ ? carregada_.data() : new frmalerta(parent);
    if (!w->VerificarVencimentos()) return nullptr;
    w->show();
    w->raise();
    return w;
}

bool frmalerta::VerificarVencimentos() {
    lstpagar->clear_rows();
    lstreceber->clear_rows();
    shell::due_rows d;
    try {
        d = shell::load_due_rows(platform::today());
    } catch (const std::exception&) {
        // errors are ignored: nothing found
    }
    const bool any = d.any();
    lstpagar->add_rows(std::move(d.pagar));
    lstreceber->add_rows(std::move(d.receber));
    if (!any) {
        descarregar();
        return false;
    }
    return true;
}

void frmalerta::descarregar() {
    if (carregada_ == this) carregada_ = nullptr;
    hide();
    deleteLater();
}
