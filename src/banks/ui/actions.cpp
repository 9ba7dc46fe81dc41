#include "banks/ui/actions.h"

#include "banks/ui/frmbanco.h"
#include "shell/principal_api.h"

namespace banks {

void register_actions() {
    // the quick add of the entry windows
    shell::register_action(QStringLiteral("frmbanco"), [] { frmbanco::instance()->mostrar(); });
}

} // namespace banks
