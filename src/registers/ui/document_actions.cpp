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
        frmboleto* f = frmboleto::instance();
        show_window(f);
        f->carregar();
    });
    shell::register_action(QStringLiteral("frmConfEtiqueta"), [] { show_form(frmConfEtiqueta::instance()); });
}

} // namespace registers
