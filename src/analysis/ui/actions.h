#pragma once

namespace analysis {

// The analysis windows behind main-menu items and the pop-up items that act as them.
void register_actions();

} // namespace analysis
