#include "shell/ui/frmalerta.h"
#include "platform/widgets/form_builders.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/list_view.h"
#include "shell/due_alerts.h"
#include "shell/ui/ledger_list.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

using shell::ledger;

QPointer<frmalerta> frmalerta::aberto_;

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

    shell::definir_colunas(lstpagar, ledger::pagar);
    shell::definir_colunas(lstreceber, ledger::receber);
    XTab1->addTab(lstpagar, QStringLiteral("Contas a pagar"));
    XTab1->addTab(lstreceber, QStringLiteral("Contas a receber"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblaviso);
    layout->addWidget(XTab1, 1);
    resize(820, 360);

    aberto_ = this;
    sempretopo(QStringLiteral("ativo"), this);
}

frmalerta::~frmalerta() {
    if (aberto_ == this) aberto_ = nullptr;
}

frmalerta* frmalerta::aberto() {
    return aberto_.data();
}

frmalerta* frmalerta::VerificarVencimentos_ao_iniciar(QWidget* parent) {
    // a window already loaded looks again instead of a second one opening
    frmalerta* w = aberto_ ? aberto_.data() : new frmalerta(parent);
    if (!w->VerificarVencimentos()) return nullptr;
    w->show();
    w->raise();
    return w;
}

bool frmalerta::VerificarVencimentos() {
    lstpagar->clear_rows();
    lstreceber->clear_rows();
    shell::due_rows d;
    // errors are ignored: nothing found
    platform::ignore_errors([&] { d = shell::load_due_rows(platform::today()); });
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
    if (aberto_ == this) aberto_ = nullptr;
    hide();
    deleteLater();
}
