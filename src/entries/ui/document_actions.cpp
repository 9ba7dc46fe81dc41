#include "entries/ui/document_actions.h"

#include "entries/ui/frmjurosdesconto.h"
#include "entries/ui/frmjurosparcelado.h"
#include "entries/ui/frmrecibo.h"
#include "platform/widgets/form_builders.h"
#include "shell/principal_api.h"

namespace entries {

namespace {

// The main window puts the selected row's code in codigoselecionado: 0 when its list is empty.
void abrir_recibo(shell::ledger which) {
    const shell::principal_api* p = shell::principal();
    frmrecibo::instance()->abrir(which, p ? p->codigoselecionado : 0);
}

} // namespace

void register_document_actions() {
    shell::register_action(QStringLiteral("recibopagar"), [] { abrir_recibo(shell::ledger::pagar); });
    shell::register_action(QStringLiteral("reciboreceber"), [] { abrir_recibo(shell::ledger::receber); });
    shell::register_action(QStringLiteral("mnujurosdesc"), [] { show_window(frmjurosdesconto::instance()); });
    shell::register_action(QStringLiteral("mnujurosparcelas"),
                           [] { show_window(frmjurosparcelado::instance()); });
}

} // namespace entries
