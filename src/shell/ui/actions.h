#pragma once

namespace shell {

// The shell's own windows behind main-menu items and buttons: the lock, the user manager, the
// settings window, backup and restore.
void register_actions();

} // namespace shell
