#pragma once
// Every subsystem's windows, registered as the actions of the main window's menus, pop-ups and
// buttons. Called once before the main window is made.

namespace app {

void register_actions();

} // namespace app
