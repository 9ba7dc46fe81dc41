#pragma once

namespace shell {

// The shell's own windows behind main-menu items: the lock and the user manager.
void register_actions();

} // namespace shell
