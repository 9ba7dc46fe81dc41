#pragma once
// Every money, number and date text of the program passes through here, always under the
// Brazilian rules (point for thousands, comma for decimals, dd/mm/yyyy), whatever the machine's
// own locale says.

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

#include <cstdint>
#include <optional>
#include <stdexcept>

namespace vb {

// Raised where the old runtime raised "Overflow" and "Type mismatch".
struct overflow_error : std::runtime_error {
    overflow_error() : std::runtime_error("Estouro") {}
};
struct type_mismatch : std::runtime_error {
    type_mismatch() : std::runtime_error("Tipo incompatível") {}
};

// Fixed point money: ten-thousandths in 64 bits, the range of the old Currency type.
class currency {
public:
    constexpr currency() = default;
    static constexpr currency from_raw(std::int64_t ten_thousandths) {
        currency c;
        c.raw_ = ten_thousandths;
        return c;
    }
    static currency from_double(double v); // rounds half to even at the fourth decimal
    static currency from_cents(std::int64_t cents);

    std::int64_t raw() const { return raw_; }
    double to_double() const { return static_cast<double>(raw_) / 10000.0; }

    currency operator+(currency o) const;
    currency operator-(currency o) const;
    currency operator-() const;
    currency& operator+=(currency o) { return *this = *this + o; }
    currency& operator-=(currency o) { return *this = *this - o; }
    auto operator<=>(const currency&) const = default;

private:
    std::int64_t raw_ = 0;
};

// Format(x, "##,##0.00") and "#,##0.00": 1.234,56 ; -1.234,56
QString format_money(currency v);
QString format_money(double v);
// Format(x, "R$ #,##0.00") with any prefix: the minus goes before the prefix (-R$ 120,00).
QString format_money_prefixed(currency v, const QString& prefix = QStringLiteral("R$ "));
// A stored amount text turned into the display text ("1234,5" -> "1.234,50"); text that
// cannot be read stays as it is. An amount past the currency's range throws overflow_error.
QString reformat_money_text(const QString& text);

// Format(x, "0.00") style with a fixed number of decimals and no grouping (1234,50).
QString format_fixed(double v, int decimals, bool grouping = false);

// CCur / CDbl under the Brazilian locale: "1.234,56", "R$ 1.234,56", "-12", " 7,5 ".
std::optional<currency> ccur(const QString& text);
std::optional<double> cdbl(const QString& text);
currency ccur_or_throw(const QString& text);
double cdbl_or_throw(const QString& text);
// The amount of a stored text, or zero when it cannot be read (the sums of the lists).
currency money_of(const QString& text);

// Val: the leading number of a text, point as the decimal mark, blanks skipped, &H/&O prefixes.
double val(const QString& text);

// CStr of a double: no decimals when whole, comma otherwise.
QString cstr(double v);
// CStr of a currency value: no grouping, a comma only when there are decimals ("8730,45", "12500").
QString cstr(currency v);

// VB colour numbers: "&HFFFFFF", "&HC0FFFF&", "16777215". Unreadable text gives fallback.
std::uint32_t colour_number(const QString& text, std::uint32_t fallback = 0);

// Dates. cdate reads "yyyy/mm/dd", "dd/mm/yyyy", "d/m/yy", with '-' or '.' too, and an
// optional time after a blank; invalid text gives an invalid date.
QDate cdate(const QString& text);
QDateTime cdatetime(const QString& text);
bool is_date(const QString& text);
// Format(date, fmt) with the tokens d dd ddd dddd m mm mmm mmmm yy yyyy, h hh n nn s ss.
QString format_date(const QDate& d, const QString& fmt);
QString format_datetime(const QDateTime& dt, const QString& fmt);
// Format(text, fmt) on a date held as text: unreadable text passes unchanged.
QString format_date_text(const QString& text, const QString& fmt);
inline QString dmy(const QDate& d) {
    return format_date(d, QStringLiteral("dd/mm/yyyy"));
}
inline QString ymd(const QDate& d) {
    return format_date(d, QStringLiteral("yyyy/mm/dd"));
}
// "segunda-feira, 23 de novembro de 2026"
QString long_date(const QDate& d);
// "14:05:09"
QString long_time(const QTime& t);
// "novembro", "nov"
QString month_name(int month, bool abbreviated = false);
// "segunda-feira", "seg"
QString weekday_name(const QDate& d, bool abbreviated = false);

// Trim$: blanks (spaces only) off both ends; other white space stays.
QString trim_blanks(const QString& text);

} // namespace vb
