#pragma once
// The receipts and the interest calculators, in the action table of the main window.

namespace entries {

void register_document_actions();

} // namespace entries
