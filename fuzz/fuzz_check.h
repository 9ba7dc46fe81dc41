#pragma once
// What every fuzz target shares: the input as text, and a check whose failure is a finding.

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

inline QString text_of(const std::uint8_t* data, std::size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
}

// A property that must hold for every input; a break stops the run with the inputs shown.
inline void require(bool ok, const char* what, const QString& a = {}, const QString& b = {}) {
    if (ok) return;
    std::fprintf(stderr, "fuzz: %s\n  [%s]\n  [%s]\n", what, a.toUtf8().constData(), b.toUtf8().constData());
    std::abort();
}

} // namespace fuzz
