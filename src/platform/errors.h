#pragma once
// The two ways the program meets a failed step: it is ignored (the next step runs), or its
// description is shown. Every "errors ignored" of the program goes through ignore_errors, so the
// places that skip a failure on purpose can be found.

#include <QString>

#include <exception>
#include <utility>

namespace platform {

template <class F> void ignore_errors(F&& f) noexcept {
    try {
        std::forward<F>(f)();
    } catch (...) {
    }
}

// The description an exception carries, for the "Erro" boxes.
inline QString error_text(const std::exception& e) {
    return QString::fromUtf8(e.what());
}

} // namespace platform
