#include "registers/ui/document_actions.h"

#include "platform/widgets/form_builders.h"
#include "registers/ui/frmConfEtiqueta.h"
#include "registers/ui/frmboleto.h"
#include "registers/ui/frmordemserv.h"
#include "shell/principal_api.h"

namespace registers {

void register_document_actions() {
    shell::register_action(QStringLiteral("mnuordemserv"), [] { show_window(frmordemserv::instance()); });
    shell::register_action(QStringLiteral("mnuboleto"), [] {
        // the clients are read when the window is made, not each time it comes to the front
        const bool nova = !frmboleto::aberto();
        frmboleto* f = frmboleto::instance();
        show_window(f);
        if (nova) f->carregar();
    });
    shell::register_action(QStringLiteral("frmConfEtiqueta"), [] { show_form(frmConfEtiqueta::instance()); });
}

} // namespace registers
