#pragma once

namespace mail {

// The e-mail windows, reached from the main menu.
void register_actions();

} // namespace mail
