// The money, number and date texts against tests/data/platform/vb_text.txt.
#include "platform/text/vb_text.h"
#include "support/golden.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// "<function> [text]" or "<function> [text] | argument": the brackets show the blanks of the text.
QStringList run(const QString& line) {
    const QString what = line.section(u' ', 0, 0);
    const qsizetype open = line.indexOf(u'['), close = line.lastIndexOf(u']');
    const QString text = line.mid(open + 1, close - open - 1);
    const QString arg = line.mid(close + 1).section(u" | "_s, 1);
    const auto day = [](const QString& s) { return QDate::fromString(s, u"yyyy-MM-dd"_s); };
    if (what == u"format_money"_s) return {vb::format_money(text.toDouble())};
    if (what == u"format_currency"_s) return {vb::format_money(vb::currency::from_raw(text.toLongLong()))};
    if (what == u"format_prefixed"_s)
        return {vb::format_money_prefixed(vb::currency::from_raw(text.toLongLong()), arg)};
    if (what == u"ccur"_s) {
        try {
            return {u"raw "_s + QString::number(vb::ccur_or_throw(text).raw())};
        } catch (const vb::overflow_error&) {
            return {u"overflow"_s};
        } catch (const vb::type_mismatch&) {
            return {u"type mismatch"_s};
        }
    }
    if (what == u"reformat_money_text"_s) return {vb::reformat_money_text(text)};
    if (what == u"val"_s) return {QString::number(vb::val(text), 'g', 15)};
    if (what == u"cdate"_s) {
        const QDate d = vb::cdate(text);
        return {d.isValid() ? d.toString(u"yyyy-MM-dd"_s) : u"invalid"_s};
    }
    if (what == u"format_date_text"_s) return {vb::format_date_text(text, arg)};
    if (what == u"format_date"_s) return {vb::format_date(day(text), arg)};
    if (what == u"format_datetime"_s)
        return {vb::format_datetime(QDateTime::fromString(text, u"yyyy-MM-dd hh:mm:ss"_s), arg)};
    if (what == u"long_date"_s) return {vb::long_date(day(text))};
    if (what == u"colour"_s) return {u"0x"_s + QString::number(vb::colour_number(text, 7), 16)};
    if (what == u"trim_blanks"_s) return {u'[' + vb::trim_blanks(text) + u']'};
    if (what == u"cstr"_s) return {vb::cstr(text.toDouble())};
    return {u"(unknown input)"_s};
}

} // namespace

TEST(vb_text, texts_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"platform/vb_text.txt"_s, run));
}

TEST(vb_text, currency_sums_keep_their_value_past_the_range_and_round_inside_it) {
    const auto big = vb::currency::from_raw(std::numeric_limits<std::int64_t>::max() - 5);
    EXPECT_THROW(big + vb::currency::from_raw(10), vb::overflow_error);
    const QString huge = u"99999999999999999999"_s;
    // one channel: no amount; the checked readers tell the overflow from text that is no amount
    EXPECT_EQ(vb::ccur(huge), std::nullopt);
    EXPECT_THROW(vb::reformat_money_checked(huge), vb::overflow_error);
    EXPECT_EQ(vb::reformat_money_checked(u"abc"_s), u"abc"_s);
    EXPECT_EQ(vb::money_of(huge).raw(), 0);
    vb::currency sum = big;
    EXPECT_FALSE(vb::add_or_keep(sum, vb::currency::from_raw(10)));
    EXPECT_EQ(sum, big);
    EXPECT_TRUE(vb::subtract_or_keep(sum, big));
    EXPECT_EQ(sum.raw(), 0);
    EXPECT_EQ(vb::round_to_cents(big).raw(), std::numeric_limits<std::int64_t>::max() - 7);
    EXPECT_EQ(vb::round_to_cents(vb::currency::from_raw(std::numeric_limits<std::int64_t>::min())).raw(),
              std::numeric_limits<std::int64_t>::min() + 8);
    EXPECT_EQ(vb::round_to_cents(vb::currency::from_raw(-12350)).raw(), -12400);
    EXPECT_EQ(vb::round_to_cents(vb::currency::from_raw(12349)).raw(), 12300);
}

TEST(vb_text, currency_products_numbers_and_plain_text) {
    const auto c = [](std::int64_t raw) { return vb::currency::from_raw(raw); };
    // exact product, then half to even at the fourth decimal
    EXPECT_EQ(vb::multiply(c(10000000), c(100000)).raw(), 100000000); // 1000 x 10
    EXPECT_EQ(vb::multiply(c(12345), c(5000)).raw(), 6172);           // 0,61725 -> 0,6172
    EXPECT_EQ(vb::multiply(c(12355), c(5000)).raw(), 6178);           // 0,61775 -> 0,6178
    EXPECT_EQ(vb::multiply(c(-12355), c(5000)).raw(), -6178);
    EXPECT_THROW(vb::multiply(c(9000000000000000000), c(20000)), vb::overflow_error);
    EXPECT_EQ(vb::ccur_number(1300.0 / 3).raw(), 4333333);
    EXPECT_EQ(vb::ccur_number(-2.5).raw(), -25000);
    EXPECT_THROW(vb::ccur_number(1e300), vb::overflow_error);
    EXPECT_THROW(vb::ccur_number(std::numeric_limits<double>::infinity()), vb::overflow_error);
    EXPECT_EQ(vb::cstr(c(4333333)), u"433,3333"_s);
    EXPECT_EQ(vb::cstr(c(13000000)), u"1300"_s);
    EXPECT_EQ(vb::cstr(c(-5000)), u"-0,5"_s);
}
