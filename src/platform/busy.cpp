#include "platform/busy.h"

namespace platform {

namespace {
std::function<void(bool)>& hook() {
    static std::function<void(bool)> h;
    return h;
}
} // namespace

busy_span::busy_span() {
    if (hook()) hook()(true);
}

busy_span::~busy_span() {
    if (hook()) hook()(false);
}

void set_busy_hook(std::function<void(bool)> on) {
    hook() = std::move(on);
}

} // namespace platform
