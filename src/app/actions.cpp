#include "app/actions.h"

#include "analysis/ui/actions.h"
#include "banks/ui/actions.h"
#include "mail/ui/actions.h"
#include "registers/ui/actions.h"
#include "shell/ui/actions.h"

namespace app {

void register_actions() {
    banks::register_actions();
    shell::register_actions();
    registers::register_actions();
    analysis::register_actions();
    mail::register_actions();
}

} // namespace app
