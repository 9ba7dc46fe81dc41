#include "mail/ui/actions.h"

#include "mail/ui/frmviaemail.h"
#include "shell/principal_api.h"

namespace mail {

void register_actions() {
    shell::register_action(QStringLiteral("mnuretviaemail"),
                           [] { frmviaemail::mostrar(frmviaemail::pagina::relatorio); });
    shell::register_action(QStringLiteral("mnuestviaemail"),
                           [] { frmviaemail::mostrar(frmviaemail::pagina::estatisticas); });
}

} // namespace mail
