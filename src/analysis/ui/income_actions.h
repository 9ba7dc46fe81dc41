#pragma once

namespace analysis {

// The window of income against expenses, on its main-menu item.
void register_income_actions();

} // namespace analysis
