#pragma once

namespace analysis {

// The configured reports, the management windows and the per-month views, by their menu items.
void register_report_actions();

} // namespace analysis
