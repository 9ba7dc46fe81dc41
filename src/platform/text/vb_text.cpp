#include "platform/text/vb_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

namespace vb {

namespace {

constexpr std::int64_t raw_max = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t raw_min = std::numeric_limits<std::int64_t>::min();

// Groups an integer digit string with points: 1234567 -> 1.234.567
QString group_thousands(const QString& digits) {
    QString out;
    out.reserve(digits.size() + digits.size() / 3);
    const int n = int(digits.size());
    for (int i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) out += QLatin1Char('.');
        out += digits[i];
    }
    return out;
}

struct decimal_text {
    bool negative = false;
    std::string int_digits;  // no leading zeros, "0" for zero
    std::string frac_digits; // exactly the requested decimals
};

// Rounds the decimal expansion of v (15 significant digits, as the old runtime shows doubles)
// half away from zero at the given number of decimals.
decimal_text round_decimal(double v, int decimals) {
    decimal_text r;
    if (v == 0.0 || !std::isfinite(v)) {
        r.int_digits = "0";
        r.frac_digits.assign(std::size_t(decimals), '0');
        return r;
    }
    r.negative = v < 0;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.14e", std::fabs(v));
    // buf = d.dddddddddddddde[+-]xx
    std::string mant;
    const char* p = buf;
    for (; *p && *p != 'e'; ++p)
        if (*p != '.') mant += *p;
    const int exp10 = std::atoi(p + 1);
    // value = 0.mant * 10^(exp10+1); digits before the point: exp10+1
    int point = exp10 + 1;
    std::string digits = mant;
    if (point <= 0) {
        digits.insert(0, std::size_t(-point), '0');
        point = 0;
    }
    // point and decimals are not negative here
    const std::size_t cut = std::size_t(point) + std::size_t(decimals);
    if (digits.size() < cut + 1) digits.append(cut + 1 - digits.size(), '0');
    std::string kept = digits.substr(0, cut);
    const bool up = digits[cut] >= '5';
    if (up) {
        int i = int(kept.size()) - 1;
        while (i >= 0) {
            if (kept[std::size_t(i)] == '9') {
                kept[std::size_t(i)] = '0';
                --i;
            } else {
                ++kept[std::size_t(i)];
                break;
            }
        }
        if (i < 0) {
            kept.insert(0, "1");
            ++point;
        }
    }
    r.int_digits = kept.substr(0, std::size_t(point));
    r.frac_digits = kept.substr(std::size_t(point));
    std::size_t nz = r.int_digits.find_first_not_of('0');
    r.int_digits = nz == std::string::npos ? "0" : r.int_digits.substr(nz);
    if (r.int_digits == "0" && r.frac_digits.find_first_not_of('0') == std::string::npos) r.negative = false;
    return r;
}

QString join_decimal(const decimal_text& d, bool grouping) {
    QString ints = QString::fromLatin1(d.int_digits.c_str());
    QString s = grouping ? group_thousands(ints) : ints;
    if (!d.frac_digits.empty()) s += QLatin1Char(',') + QString::fromLatin1(d.frac_digits.c_str());
    return d.negative ? QLatin1Char('-') + s : s;
}

// The whole cents of a currency's magnitude, half away from zero; in unsigned to survive the most
// negative value.
std::uint64_t rounded_cents(currency v) {
    const std::int64_t raw = v.raw();
    const std::uint64_t mag = raw < 0 ? std::uint64_t(0) - std::uint64_t(raw) : std::uint64_t(raw);
    return mag / 100 + ((mag % 100) >= 50 ? 1 : 0);
}

decimal_text round_currency(currency v) {
    decimal_text r;
    r.negative = v.raw() < 0;
    const std::uint64_t cents = rounded_cents(v);
    r.int_digits = std::to_string(cents / 100);
    const unsigned c = unsigned(cents % 100);
    r.frac_digits = {char('0' + c / 10), char('0' + c % 10)};
    if (cents == 0) r.negative = false;
    return r;
}

// Reads the Brazilian form of a number into sign, integer and fraction digits.
struct parsed_number {
    bool negative = false;
    std::string int_digits;
    std::string frac_digits;
    std::int64_t exponent = 0;
};

// An exponent: sign and digits. One far beyond any double is held at a bound that keeps its
// meaning (all digits gone, or overflow) without ever being counted out digit by digit.
std::optional<std::int64_t> read_exponent(QStringView t) {
    constexpr std::int64_t bound = std::int64_t(1) << 40;
    bool negative = false;
    if (!t.isEmpty() && (t.front() == QLatin1Char('-') || t.front() == QLatin1Char('+'))) {
        negative = t.front() == QLatin1Char('-');
        t = t.mid(1);
    }
    if (t.isEmpty()) return std::nullopt;
    std::int64_t e = 0;
    for (QChar c : t) {
        if (c.unicode() < '0' || c.unicode() > '9') return std::nullopt;
        e = std::min(bound, e * 10 + (c.unicode() - '0'));
    }
    return negative ? -e : e;
}

std::optional<parsed_number> parse_locale_number(const QString& text) {
    QString s = text.trimmed();
    if (s.startsWith(QLatin1String("R$"))) s = s.mid(2).trimmed();
    parsed_number n;
    bool paren = false;
    if (s.startsWith(QLatin1Char('(')) && s.endsWith(QLatin1Char(')'))) {
        paren = true;
        s = s.mid(1, s.size() - 2).trimmed();
    }
    if (s.startsWith(QLatin1Char('-')) || s.startsWith(QLatin1Char('+'))) {
        n.negative = s.startsWith(QLatin1Char('-'));
        s = s.mid(1).trimmed();
        if (s.startsWith(QLatin1String("R$"))) s = s.mid(2).trimmed();
    } else if (s.endsWith(QLatin1Char('-'))) {
        n.negative = true;
        s.chop(1);
        s = s.trimmed();
    }
    if (paren) n.negative = true;
    if (s.isEmpty()) return std::nullopt;
    bool in_frac = false, any_digit = false;
    int i = 0;
    for (; i < s.size(); ++i) {
        const QChar c = s[i];
        if (c.isDigit() && c.unicode() < 128) {
            any_digit = true;
            (in_frac ? n.frac_digits : n.int_digits) += char(c.unicode());
        } else if (c == QLatin1Char('.') && !in_frac) {
            continue; // thousands separator, wherever it stands
        } else if (c == QLatin1Char(',') && !in_frac) {
            in_frac = true;
        } else {
            break;
        }
    }
    if (i < s.size()) {
        const QChar c = s[i];
        if ((c == QLatin1Char('e') || c == QLatin1Char('E')) && any_digit) {
            const auto e = read_exponent(QStringView(s).mid(i + 1));
            if (!e) return std::nullopt;
            n.exponent = *e;
        } else {
            return std::nullopt;
        }
    }
    if (!any_digit) return std::nullopt;
    return n;
}

// CCur's reading: the amount, or nothing with overflow telling an amount out of range from text
// that is no amount.
struct parsed_currency {
    std::optional<currency> value;
    bool overflow = false;
};
parsed_currency parse_currency(const QString& text);

} // namespace

currency currency::from_double(double v) {
    if (!std::isfinite(v)) throw overflow_error();
    const double scaled = v * 10000.0;
    if (scaled >= 9.2233720368547758e18 || scaled < -9.2233720368547758e18) throw overflow_error();
    return from_raw(static_cast<std::int64_t>(std::nearbyint(scaled)));
}

currency currency::from_cents(std::int64_t cents) {
    std::int64_t r = 0;
    if (__builtin_mul_overflow(cents, std::int64_t(100), &r)) throw overflow_error();
    return from_raw(r);
}

currency currency::operator+(currency o) const {
    std::int64_t r = 0;
    if (__builtin_add_overflow(raw_, o.raw_, &r)) throw overflow_error();
    return from_raw(r);
}

currency currency::operator-(currency o) const {
    std::int64_t r = 0;
    if (__builtin_sub_overflow(raw_, o.raw_, &r)) throw overflow_error();
    return from_raw(r);
}

currency currency::operator-() const {
    if (raw_ == raw_min) throw overflow_error();
    return from_raw(-raw_);
}

QString format_money(currency v) {
    return join_decimal(round_currency(v), true);
}

QString format_money(double v) {
    return join_decimal(round_decimal(v, 2), true);
}

QString format_money_prefixed(currency v, const QString& prefix) {
    decimal_text d = round_currency(v);
    const bool neg = d.negative;
    d.negative = false;
    return (neg ? QStringLiteral("-") : QString()) + prefix + join_decimal(d, true);
}

QString reformat_money_text(const QString& text) {
    const auto c = ccur(text);
    return c ? format_money(*c) : text;
}

QString reformat_money_checked(const QString& text) {
    const parsed_currency c = parse_currency(text);
    if (c.overflow) throw overflow_error();
    return c.value ? format_money(*c.value) : text;
}

std::optional<currency> ccur(const QString& text) {
    return parse_currency(text).value;
}

currency ccur_or_throw(const QString& text) {
    const parsed_currency c = parse_currency(text);
    if (c.overflow) throw overflow_error();
    if (!c.value) throw type_mismatch();
    return *c.value;
}

namespace {

parsed_currency parse_currency(const QString& text) {
    const auto n = parse_locale_number(text);
    if (!n) return {};
    // the value is 0.<digits> x 10^point; the exponent only moves the point, so the work stays
    // bounded by the length of the text whatever the exponent says
    std::string digits = n->int_digits + n->frac_digits;
    std::int64_t point = std::int64_t(n->int_digits.size()) + n->exponent;
    const std::size_t lead = digits.find_first_not_of('0');
    if (lead == std::string::npos) return {currency(), false};
    digits.erase(0, lead);
    point -= std::int64_t(lead);
    // 10^19 ten-thousandths is past the type's range; below the fifth decimal all rounds to zero
    if (point > 15) return {std::nullopt, true};
    if (point < -4) return {currency(), false};
    // four decimals kept, the fifth rounds half to even
    const std::size_t kept = std::size_t(point + 4);
    std::string whole = digits.substr(0, kept);
    whole.append(kept - whole.size(), '0');
    const char fifth = kept < digits.size() ? digits[kept] : '0';
    const bool rest_nonzero =
        kept + 1 < digits.size() && digits.find_first_not_of('0', kept + 1) != std::string::npos;
    std::uint64_t mag = 0;
    for (char c : whole) {
        if (__builtin_mul_overflow(mag, std::uint64_t(10), &mag) ||
            __builtin_add_overflow(mag, std::uint64_t(c - '0'), &mag))
            return {std::nullopt, true};
    }
    if (fifth > '5' || (fifth == '5' && (rest_nonzero || (mag % 2) == 1))) ++mag;
    const std::uint64_t limit = n->negative ? std::uint64_t(raw_max) + 1 : std::uint64_t(raw_max);
    if (mag > limit) return {std::nullopt, true};
    if (n->negative)
        return {currency::from_raw(mag == std::uint64_t(raw_max) + 1 ? raw_min : -std::int64_t(mag)), false};
    return {currency::from_raw(std::int64_t(mag)), false};
}

} // namespace

std::optional<double> cdbl(const QString& text) {
    const auto n = parse_locale_number(text);
    if (!n) return std::nullopt;
    std::string c = n->int_digits.empty() ? "0" : n->int_digits;
    if (!n->frac_digits.empty()) c += "." + n->frac_digits;
    if (n->exponent) c += "e" + std::to_string(n->exponent);
    double v = std::strtod(c.c_str(), nullptr);
    return n->negative ? -v : v;
}

currency money_of(const QString& text) {
    return ccur(text).value_or(currency());
}

currency round_to_cents(currency v) {
    // the largest magnitude, 2^63, rounds down to a whole cent inside the range
    const std::int64_t r = std::int64_t(rounded_cents(v)) * 100;
    return currency::from_raw(v.raw() < 0 ? -r : r);
}

bool add_or_keep(currency& sum, currency v) {
    std::int64_t r = 0;
    if (__builtin_add_overflow(sum.raw(), v.raw(), &r)) return false;
    sum = currency::from_raw(r);
    return true;
}

bool subtract_or_keep(currency& sum, currency v) {
    std::int64_t r = 0;
    if (__builtin_sub_overflow(sum.raw(), v.raw(), &r)) return false;
    sum = currency::from_raw(r);
    return true;
}

double val(const QString& text) {
    QString s;
    s.reserve(text.size());
    for (QChar c : text)
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n') &&
            c != QLatin1Char('\r'))
            s += c;
    if (s.startsWith(QLatin1String("&H"), Qt::CaseInsensitive) ||
        s.startsWith(QLatin1String("&O"), Qt::CaseInsensitive)) {
        const int base = s[1].toUpper() == QLatin1Char('H') ? 16 : 8;
        double v = 0;
        for (int i = 2; i < s.size(); ++i) {
            const char16_t u = s[i].toUpper().unicode();
            const int d = (u >= '0' && u <= '9')                 ? u - '0'
                          : (base == 16 && u >= 'A' && u <= 'F') ? u - 'A' + 10
                                                                 : -1;
            if (d < 0 || d >= base) break;
            v = v * base + d;
        }
        return v;
    }
    std::string num;
    int i = 0;
    if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+'))) num += char(s[i++].unicode());
    bool point = false, digits = false;
    for (; i < s.size(); ++i) {
        const QChar c = s[i];
        if (c.unicode() >= '0' && c.unicode() <= '9') {
            num += char(c.unicode());
            digits = true;
        } else if (c == QLatin1Char('.') && !point) {
            num += '.';
            point = true;
        } else {
            break;
        }
    }
    if (digits && i < s.size() &&
        (s[i].toLower() == QLatin1Char('e') || s[i].toLower() == QLatin1Char('d'))) {
        std::string e = "e";
        int j = i + 1;
        if (j < s.size() && (s[j] == QLatin1Char('-') || s[j] == QLatin1Char('+')))
            e += char(s[j++].unicode());
        bool ed = false;
        for (; j < s.size() && s[j].unicode() >= '0' && s[j].unicode() <= '9'; ++j) {
            e += char(s[j].unicode());
            ed = true;
        }
        if (ed) num += e;
    }
    if (!digits) return 0.0;
    return std::strtod(num.c_str(), nullptr);
}

QString cstr(double v) {
    if (std::isfinite(v) && v == std::trunc(v) && std::fabs(v) < 1e15) return QString::number(qint64(v));
    QString s = QString::number(v, 'g', 15);
    s.replace(QLatin1Char('.'), QLatin1Char(','));
    return s;
}

QString cstr(currency v) {
    const std::int64_t raw = v.raw();
    const bool negative = raw < 0;
    const std::uint64_t mag = negative ? std::uint64_t(0) - std::uint64_t(raw) : std::uint64_t(raw);
    QString s = QString::number(mag / 10000);
    if (const std::uint64_t frac = mag % 10000) {
        QString digits = QStringLiteral("%1").arg(frac, 4, 10, QLatin1Char('0'));
        while (digits.endsWith(QLatin1Char('0')))
            digits.chop(1);
        s += QLatin1Char(',') + digits;
    }
    return negative ? QLatin1Char('-') + s : s;
}

std::uint32_t colour_number(const QString& text, std::uint32_t fallback) {
    QString s = text.trimmed();
    if (s.endsWith(QLatin1Char('&'))) s.chop(1);
    bool ok = false;
    qint64 v = 0;
    if (s.startsWith(QLatin1String("&H"), Qt::CaseInsensitive))
        v = s.mid(2).toLongLong(&ok, 16);
    else
        v = s.toLongLong(&ok, 10);
    if (!ok || v < 0) return fallback;
    return std::uint32_t(v & 0xFFFFFFFF);
}

namespace {

int expand_year(int y, int ndigits) {
    if (ndigits <= 2) return y < 30 ? 2000 + y : 1900 + y;
    return y;
}

// Splits "a/b/c" on '/', '-' or '.', each part digits only.
bool split_date(const QString& s, int parts[3], int lens[3]) {
    int k = 0;
    QString cur;
    auto flush = [&]() {
        if (k >= 3 || cur.isEmpty() || cur.size() > 4) return false;
        bool ok = false;
        parts[k] = cur.toInt(&ok);
        lens[k] = int(cur.size());
        ++k;
        cur.clear();
        return ok;
    };
    for (QChar c : s) {
        if (c.unicode() >= '0' && c.unicode() <= '9') {
            cur += c;
        } else if (c == QLatin1Char('/') || c == QLatin1Char('-') || c == QLatin1Char('.')) {
            if (!flush()) return false;
        } else {
            return false;
        }
    }
    if (!flush()) return false;
    return k == 3;
}

} // namespace

QDate cdate(const QString& text) {
    QString s = text.trimmed();
    const int blank = int(s.indexOf(QLatin1Char(' ')));
    if (blank > 0) s = s.left(blank);
    int p[3], l[3];
    if (!split_date(s, p, l)) return {};
    if (l[0] >= 3) return QDate(p[0], p[1], p[2]); // yyyy/mm/dd
    return QDate(expand_year(p[2], l[2]), p[1], p[0]);
}

QDateTime cdatetime(const QString& text) {
    const QString s = text.trimmed();
    const QDate d = cdate(s);
    if (!d.isValid()) return {};
    const int blank = int(s.indexOf(QLatin1Char(' ')));
    QTime t(0, 0);
    if (blank > 0) {
        const QString ts = s.mid(blank + 1).trimmed();
        QTime parsed = QTime::fromString(ts, QStringLiteral("H:m:s"));
        if (!parsed.isValid()) parsed = QTime::fromString(ts, QStringLiteral("H:m"));
        if (parsed.isValid()) t = parsed;
    }
    return QDateTime(d, t);
}

namespace {

const char* const month_names[] = {"janeiro", "fevereiro", "março",    "abril",   "maio",     "junho",
                                   "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
const char* const weekday_names[] = {"segunda-feira", "terça-feira", "quarta-feira", "quinta-feira",
                                     "sexta-feira",   "sábado",      "domingo"};
const char* const weekday_abbrev[] = {"seg", "ter", "qua", "qui", "sex", "sáb", "dom"};

QString two(int v) {
    return QStringLiteral("%1").arg(v, 2, 10, QLatin1Char('0'));
}

// A year always has four digits, so that stored dates keep their text order (0100/01/01).
QString four(int year) {
    const QString digits = QStringLiteral("%1").arg(std::abs(year), 4, 10, QLatin1Char('0'));
    return year < 0 ? QLatin1Char('-') + digits : digits;
}

} // namespace

QString month_name(int month, bool abbreviated) {
    if (month < 1 || month > 12) return {};
    const QString full = QString::fromUtf8(month_names[month - 1]);
    return abbreviated ? full.left(3) : full;
}

QString weekday_name(const QDate& d, bool abbreviated) {
    if (!d.isValid()) return {};
    const int i = d.dayOfWeek() - 1;
    return QString::fromUtf8(abbreviated ? weekday_abbrev[i] : weekday_names[i]);
}

QString long_date(const QDate& d) {
    if (!d.isValid()) return {};
    return weekday_name(d) + QStringLiteral(", ") + QString::number(d.day()) + QStringLiteral(" de ") +
           month_name(d.month()) + QStringLiteral(" de ") + QString::number(d.year());
}

QString long_time(const QTime& t) {
    if (!t.isValid()) return {};
    return two(t.hour()) + QLatin1Char(':') + two(t.minute()) + QLatin1Char(':') + two(t.second());
}

QString format_datetime(const QDateTime& dt, const QString& fmt) {
    const QString lower = fmt.toLower();
    const QDate d = dt.date();
    const QTime t = dt.time();
    if (lower == QLatin1String("long date")) return long_date(d);
    if (lower == QLatin1String("short date")) return dmy(d);
    if (lower == QLatin1String("long time")) return long_time(t);
    if (lower == QLatin1String("short time")) return two(t.hour()) + QLatin1Char(':') + two(t.minute());
    QString out;
    bool after_hour = false;
    for (int i = 0; i < fmt.size();) {
        const QChar c = fmt[i].toLower();
        int run = 1;
        while (i + run < fmt.size() && fmt[i + run].toLower() == c)
            ++run;
        if (c == QLatin1Char('d')) {
            if (run == 1)
                out += QString::number(d.day());
            else if (run == 2)
                out += two(d.day());
            else if (run == 3)
                out += weekday_name(d, true);
            else
                out += weekday_name(d);
            after_hour = false;
        } else if (c == QLatin1Char('m')) {
            if (after_hour && run <= 2) {
                out += run == 1 ? QString::number(t.minute()) : two(t.minute());
            } else if (run == 1)
                out += QString::number(d.month());
            else if (run == 2)
                out += two(d.month());
            else if (run == 3)
                out += month_name(d.month(), true);
            else
                out += month_name(d.month());
            after_hour = false;
        } else if (c == QLatin1Char('y')) {
            if (run <= 2)
                out += two(d.year() % 100);
            else
                out += four(d.year());
            after_hour = false;
        } else if (c == QLatin1Char('h')) {
            out += run == 1 ? QString::number(t.hour()) : two(t.hour());
            after_hour = true;
        } else if (c == QLatin1Char('n')) {
            out += run == 1 ? QString::number(t.minute()) : two(t.minute());
            after_hour = false;
        } else if (c == QLatin1Char('s')) {
            out += run == 1 ? QString::number(t.second()) : two(t.second());
            after_hour = false;
        } else {
            out += fmt.mid(i, run);
            if (c != QLatin1Char(':')) after_hour = after_hour && c == QLatin1Char(' ');
        }
        i += run;
    }
    return out;
}

QString format_date(const QDate& d, const QString& fmt) {
    if (!d.isValid()) return {};
    return format_datetime(QDateTime(d, QTime(0, 0)), fmt);
}

QString format_date_text(const QString& text, const QString& fmt) {
    const QDateTime dt = cdatetime(text);
    if (!dt.isValid()) return text;
    return format_datetime(dt, fmt);
}

QString trim_blanks(const QString& text) {
    qsizetype b = 0, e = text.size();
    while (b < e && text[b] == QLatin1Char(' '))
        ++b;
    while (e > b && text[e - 1] == QLatin1Char(' '))
        --e;
    return text.mid(b, e - b);
}

currency ccur_number(double v) {
    if (!std::isfinite(v)) throw overflow_error();
    const double scaled = std::nearbyint(v * 10000.0); // the default rounding mode: half to even
    if (scaled >= 9.2233720368547758e18 || scaled < -9.2233720368547758e18) throw overflow_error();
    return currency::from_raw(static_cast<std::int64_t>(scaled));
}

currency multiply(currency a, currency b) {
    const __int128 p = static_cast<__int128>(a.raw()) * b.raw();
    __int128 q = p / 10000;
    const __int128 r = p % 10000;
    const __int128 twice = (r < 0 ? -r : r) * 2;
    if (twice > 10000 || (twice == 10000 && (q % 2) != 0)) q += p < 0 ? -1 : 1;
    if (q > raw_max || q < raw_min) throw overflow_error();
    return currency::from_raw(static_cast<std::int64_t>(q));
}

double cdbl_of(currency v) {
    return static_cast<double>(v.raw()) / 10000.0;
}

} // namespace vb
