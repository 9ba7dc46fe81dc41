#include "app/actions.h"

#include "banks/ui/actions.h"

namespace app {

void register_actions() {
    banks::register_actions();
}

} // namespace app
