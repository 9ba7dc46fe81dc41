#pragma once
// The service order, the bank slip and the mailing labels, in the action table of the main window.

namespace registers {

void register_document_actions();

} // namespace registers
