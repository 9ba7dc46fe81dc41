#pragma once

namespace registers {

// The register windows behind main-menu items and buttons.
void register_actions();

} // namespace registers
