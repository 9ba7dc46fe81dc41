#pragma once
// The program's own seams on a desktop: real dialogs, the print dialog, the default programs for
// files and pages, and the hourglass. Tests install scripted ones instead.

namespace platform {

void install_desktop_seams();

} // namespace platform
