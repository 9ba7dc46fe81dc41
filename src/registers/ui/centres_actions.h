#pragma once

namespace registers {

// The centre windows (menu items and the quick adds of the entry windows) and the chooser of the
// integrated report's filters.
void register_centre_actions();

} // namespace registers
