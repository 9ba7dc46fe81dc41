#pragma once

namespace analysis {

// The generator of the integrated report, opened by its menu item.
void register_integrated_actions();

} // namespace analysis
