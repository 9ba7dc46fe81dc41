#include "banks/ui/actions.h"

#include "banks/ui/frmbanco.h"
#include "banks/ui/frmconfextrato.h"
#include "banks/ui/frmdatabanco.h"
#include "banks/ui/frmimportarextrato.h"
#include "banks/ui/frmsaldodia.h"
#include "shell/principal_api.h"

namespace banks {

void register_actions() {
    // the quick add of the entry windows
    shell::register_action(QStringLiteral("frmbanco"), [] { frmbanco::instance()->mostrar(); });
    // the account list's pop-up: statistics over a period and up to a day
    shell::register_action(QStringLiteral("frmdatabanco"), [] { frmdatabanco::instance()->mostrar(); });
    shell::register_action(QStringLiteral("frmsaldodia"), [] { frmsaldodia::instance()->mostrar(); });
    // the main menu and the account list's pop-up
    shell::register_action(QStringLiteral("mnuextrato"), [] { frmconfextrato::instance()->mostrar(); });
    // statements downloaded from the bank
    shell::register_action(QStringLiteral("mnuimportarextrato"),
                           [] { frmimportarextrato::instance()->mostrar(); });
}

} // namespace banks
