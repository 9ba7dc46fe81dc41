#pragma once
// The hourglass while a long write runs. The logic marks the span; the toolkit, when there is
// a screen, shows the cursor (set_busy_hook).

#include <functional>

namespace platform {

class busy_span {
public:
    busy_span();
    ~busy_span();
    busy_span(const busy_span&) = delete;
    busy_span& operator=(const busy_span&) = delete;
};

// on(true) at the start of a span, on(false) at its end; empty: nothing shown.
void set_busy_hook(std::function<void(bool)> on);

} // namespace platform
