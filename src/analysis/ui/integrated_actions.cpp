#include "analysis/ui/integrated_actions.h"

#include "analysis/ui/frmgeradorret.h"
#include "shell/principal_api.h"

namespace analysis {

void register_integrated_actions() {
    shell::register_action(QStringLiteral("mnuretint"), [] { frmgeradorret::instance()->mostrar(); });
}

} // namespace analysis
