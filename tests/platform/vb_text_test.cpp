#include "platform/text/vb_text.h"

#include <gtest/gtest.h>

namespace {

TEST(vb_text, money_formats_round_half_away_and_group) {
    struct {
        double v;
        const char* text;
    } cases[] = {
        {0, "0,00"},
        {0.5, "0,50"},
        {1234.56, "1.234,56"},
        {-1234.56, "-1.234,56"},
        {1234567.891, "1.234.567,89"},
        {0.005, "0,01"},
        {1.005, "1,01"},
        {2.675, "2,68"},
        {999999.995, "1.000.000,00"},
        {-0.001, "0,00"},
        {100, "100,00"},
        {12345678901.5, "12.345.678.901,50"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(vb::format_money(c.v), QString::fromUtf8(c.text)) << c.v;
}

TEST(vb_text, currency_formats_exactly) {
    EXPECT_EQ(vb::format_money(vb::currency::from_raw(12345)), QStringLiteral("1,23")); // 1,2345
    EXPECT_EQ(vb::format_money(vb::currency::from_raw(12350)), QStringLiteral("1,24")); // half away from zero
    EXPECT_EQ(vb::format_money(vb::currency::from_raw(-12350)), QStringLiteral("-1,24"));
    EXPECT_EQ(vb::format_money_prefixed(vb::currency::from_raw(-1200000)), QStringLiteral("-R$ 120,00"));
    EXPECT_EQ(vb::format_money_prefixed(vb::currency::from_raw(12345678900), QStringLiteral("€ ")),
              QStringLiteral("€ 1.234.567,89"));
}

TEST(vb_text, ccur_reads_the_brazilian_form) {
    struct {
        const char* text;
        long long raw; // -1 marks "unreadable"
    } cases[] = {
        {"1.234,56", 12345600},
        {"R$ 1.234,56", 12345600},
        {" 7,5 ", 75000},
        {"-12", -120000},
        {"-R$ 3,00", -30000},
        {"1234.56", 1234560000},
        {"0,00005", 0},
        {"0,00015", 2},
        {"abc", -1},
        {"", -1},
        {"12,3,4", -1},
        {"(5,00)", -50000},
    };
    for (const auto& c : cases) {
        const auto r = vb::ccur(QString::fromUtf8(c.text));
        if (c.raw == -1) {
            EXPECT_FALSE(r.has_value()) << c.text;
        } else {
            ASSERT_TRUE(r.has_value()) << c.text;
            EXPECT_EQ(r->raw(), c.raw) << c.text;
        }
    }
}

TEST(vb_text, currency_overflows_like_the_old_type) {
    const auto big = vb::currency::from_raw(std::numeric_limits<std::int64_t>::max() - 5);
    EXPECT_THROW(big + vb::currency::from_raw(10), vb::overflow_error);
    EXPECT_THROW(vb::ccur(QStringLiteral("99999999999999999999")), vb::overflow_error);
    EXPECT_EQ(vb::money_of(QStringLiteral("99999999999999999999")).raw(), 0);
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
    EXPECT_EQ(vb::cstr(c(4333333)), QStringLiteral("433,3333"));
    EXPECT_EQ(vb::cstr(c(13000000)), QStringLiteral("1300"));
    EXPECT_EQ(vb::cstr(c(-5000)), QStringLiteral("-0,5"));
}

TEST(vb_text, val_takes_the_leading_number) {
    struct {
        const char* text;
        double v;
    } cases[] = {{"12", 12},    {"12,5", 12},   {"3.75abc", 3.75}, {" 1 2 3", 123},
                 {"abc", 0},    {"-4.5", -4.5}, {"&HFF", 255},     {"&O17", 15},
                 {"1e3", 1000}, {"0,5", 0},     {"6 parcelas", 6}, {"", 0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(vb::val(QString::fromUtf8(c.text)), c.v) << c.text;
}

TEST(vb_text, dates_read_both_stored_forms) {
    EXPECT_EQ(vb::cdate(QStringLiteral("2026/11/16")), QDate(2026, 11, 16));
    EXPECT_EQ(vb::cdate(QStringLiteral("16/11/2026")), QDate(2026, 11, 16));
    EXPECT_EQ(vb::cdate(QStringLiteral("1/2/26")), QDate(2026, 2, 1));
    EXPECT_EQ(vb::cdate(QStringLiteral("1/2/45")), QDate(1945, 2, 1));
    EXPECT_FALSE(vb::cdate(QStringLiteral("2026/02/31")).isValid());
    EXPECT_FALSE(vb::cdate(QStringLiteral("abc")).isValid());
    EXPECT_EQ(vb::format_date_text(QStringLiteral("16/11/2026"), QStringLiteral("dd/mm/yyyy")),
              QStringLiteral("16/11/2026"));
    EXPECT_EQ(vb::format_date_text(QStringLiteral("2026/11/16"), QStringLiteral("dd/mm/yyyy")),
              QStringLiteral("16/11/2026"));
    EXPECT_EQ(vb::format_date_text(QStringLiteral("sem data"), QStringLiteral("dd/mm/yyyy")),
              QStringLiteral("sem data"));
}

TEST(vb_text, date_formats_and_names) {
    const QDate d(2026, 11, 23);
    EXPECT_EQ(vb::long_date(d), QStringLiteral("segunda-feira, 23 de novembro de 2026"));
    EXPECT_EQ(vb::long_date(QDate(2026, 3, 7)), QStringLiteral("sábado, 7 de março de 2026"));
    EXPECT_EQ(vb::ymd(d), QStringLiteral("2026/11/23"));
    EXPECT_EQ(vb::format_date(d, QStringLiteral("mmmm")), QStringLiteral("novembro"));
    EXPECT_EQ(vb::format_date(d, QStringLiteral("mmm/yy")), QStringLiteral("nov/26"));
    EXPECT_EQ(vb::format_date(d, QStringLiteral("d/m/yyyy")), QStringLiteral("23/11/2026"));
    EXPECT_EQ(vb::format_datetime(QDateTime(d, QTime(9, 5, 7)), QStringLiteral("hh:mm:ss")),
              QStringLiteral("09:05:07"));
    EXPECT_EQ(vb::long_time(QTime(14, 5, 9)), QStringLiteral("14:05:09"));
}

TEST(vb_text, colour_numbers) {
    EXPECT_EQ(vb::colour_number(QStringLiteral("&HFFFFFF")), 0xFFFFFFu);
    EXPECT_EQ(vb::colour_number(QStringLiteral("&HC0FFFF&")), 0xC0FFFFu);
    EXPECT_EQ(vb::colour_number(QStringLiteral("255")), 255u);
    EXPECT_EQ(vb::colour_number(QStringLiteral("azul"), 7), 7u);
}

} // namespace
