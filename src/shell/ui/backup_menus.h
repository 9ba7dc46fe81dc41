#pragma once
// The main menu's backup and restore of the data file.

namespace shell {

// mnurealizarbak: the save dialog, then the local data file copied to the chosen name.
void mnurealizarbak_click();
// mnurestbak: the open dialog, then the chosen file put in the local data file's place and the
// four lists of the main window loaded again.
void mnurestbak_click();

} // namespace shell
