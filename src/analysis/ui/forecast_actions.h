#pragma once

namespace analysis {

// The cash flow, projection and comparison windows on their main-menu items.
void register_forecast_actions();

} // namespace analysis
