// CCur, CDbl and the money formats on any text: no crash, time bounded by the text, and what is
// formatted reads back as the same amount, rounded to cents.
#include "fuzz_check.h"
#include "platform/text/vb_text.h"

#include <cmath>

namespace {

// Format rounds the ten-thousandths half away from zero to cents.
std::int64_t to_cents_raw(std::int64_t raw) {
    const bool negative = raw < 0;
    const std::uint64_t mag = negative ? std::uint64_t(0) - std::uint64_t(raw) : std::uint64_t(raw);
    const std::uint64_t cents = mag / 100 + (mag % 100 >= 50 ? 1 : 0);
    const auto r = std::int64_t(cents * 100);
    return negative ? -r : r;
}

void check_amount(vb::currency c) {
    const QString shown = vb::format_money(c);
    const auto back = vb::ccur(shown);
    fuzz::require(back && back->raw() == to_cents_raw(c.raw()), "format_money does not read back", shown);
    const QString prefixed = vb::format_money_prefixed(c);
    const auto back2 = vb::ccur(prefixed);
    fuzz::require(back2 && back2->raw() == back->raw(), "format_money_prefixed does not read back", prefixed);
    fuzz::require(vb::reformat_money_text(shown) == shown, "a formatted amount formats again otherwise",
                  shown);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = fuzz::text_of(data, size);
    bool overflow = false;
    try {
        if (const auto c = vb::ccur(text)) check_amount(*c);
    } catch (const vb::overflow_error&) {
        overflow = true;
    }
    const vb::currency m = vb::money_of(text);
    if (overflow) fuzz::require(m.raw() == 0, "money_of of an overflow is not zero", text);
    try {
        const QString shown = vb::reformat_money_text(text);
        fuzz::require(overflow == false, "reformat_money_text took an amount past the range", text);
        if (shown != text)
            fuzz::require(vb::ccur(text).has_value(), "unreadable text was changed", text, shown);
    } catch (const vb::overflow_error&) {
        fuzz::require(overflow, "reformat_money_text overflows what ccur reads", text);
    }
    if (const auto d = vb::cdbl(text)) {
        (void)vb::format_money(*d);
        (void)vb::format_fixed(*d, 2, true);
        (void)vb::cstr(*d);
        try {
            check_amount(vb::currency::from_double(*d));
        } catch (const vb::overflow_error&) {
            fuzz::require(!std::isfinite(*d) || std::fabs(*d) >= 9.2e14,
                          "from_double overflows a small value", text);
        }
    }
    (void)vb::colour_number(text, 7);
    return 0;
}
