#include "shell/ui/actions.h"

#include "shell/principal_api.h"
#include "shell/ui/frmgerenciarlogin.h"
#include "shell/ui/frmloginsoft.h"

namespace shell {

void register_actions() {
    register_action(QStringLiteral("mnubloquearsoft"), [] { frmloginsoft::bloquear(); });
    register_action(QStringLiteral("mnuconflogin"), [] { frmgerenciarlogin::mostrar(); });
}

} // namespace shell
