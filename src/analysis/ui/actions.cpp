#include "analysis/ui/actions.h"

#include "analysis/ui/frmvencimento.h"
#include "shell/principal_api.h"

namespace analysis {

void register_actions() {
    shell::register_action(QStringLiteral("mnuvencpagar"),
                           [] { frmvencimento::instance()->vencimentopagar(); });
    shell::register_action(QStringLiteral("mnuvencreceber"),
                           [] { frmvencimento::instance()->vencimentoreceber(); });
}

} // namespace analysis
