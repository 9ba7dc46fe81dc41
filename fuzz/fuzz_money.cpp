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
        check_amount(vb::ccur_or_throw(text));
    } catch (const vb::overflow_error&) {
        overflow = true;
    } catch (const vb::type_mismatch&) {
    }
    if (overflow) fuzz::require(!vb::ccur(text).has_value(), "ccur read an amount past the range", text);
    const vb::currency m = vb::money_of(text);
    if (overflow) fuzz::require(m.raw() == 0, "money_of of an overflow is not zero", text);
    const QString shown = vb::reformat_money_text(text);
    if (shown != text) fuzz::require(vb::ccur(text).has_value(), "unreadable text was changed", text, shown);
    try {
        fuzz::require(vb::reformat_money_checked(text) == shown, "the checked reformat differs", text);
        fuzz::require(!overflow, "reformat_money_checked took an amount past the range", text);
    } catch (const vb::overflow_error&) {
        fuzz::require(overflow, "reformat_money_checked overflows what ccur reads", text);
    }
    if (const auto d = vb::cdbl(text)) {
        (void)vb::format_money(*d);
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
