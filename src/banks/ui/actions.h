#pragma once

namespace banks {

// The bank windows that other subsystems open by name.
void register_actions();

} // namespace banks
