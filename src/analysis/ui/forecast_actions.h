#pragma once

namespace analysis {

// The cash flow and projection windows on their main-menu items.
void register_forecast_actions();

} // namespace analysis
