#include "shell/ui/actions.h"

#include "shell/principal_api.h"
#include "shell/ui/backup_menus.h"
#include "shell/ui/frmconfigsoft.h"
#include "shell/ui/frmgerenciarlogin.h"
#include "shell/ui/frmloginsoft.h"

namespace shell {

void register_actions() {
    register_action(QStringLiteral("mnubloquearsoft"), [] { frmloginsoft::bloquear(); });
    register_action(QStringLiteral("mnuconflogin"), [] { frmgerenciarlogin::mostrar(); });
    register_action(QStringLiteral("mnuconfigsoft"), [] { frmconfigsoft::mostrar(); });
    register_action(QStringLiteral("mnurealizarbak"), &mnurealizarbak_click);
    register_action(QStringLiteral("mnurestbak"), &mnurestbak_click);
}

} // namespace shell
