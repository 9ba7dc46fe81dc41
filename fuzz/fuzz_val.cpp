// Val on any text: no crash, no undefined arithmetic, and the leading number is all that counts.
#include "fuzz_check.h"
#include "platform/text/vb_text.h"

#include <cmath>

namespace {
bool same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = fuzz::text_of(data, size);
    const double v = vb::val(text);
    // what follows the number never changes it, and blanks are skipped
    fuzz::require(same(v, vb::val(text + QStringLiteral("x;"))), "a tail changed Val", text);
    fuzz::require(same(v, vb::val(QStringLiteral(" \t") + text)), "leading blanks changed Val", text);
    (void)vb::cstr(v);
    return 0;
}
