#include "platform/sql/jet_dialect.h"

#include "platform/sql/unicode_like.h"

#include <QChar>
#include <QRegularExpression>
#include <QStringView>

#include <cmath>
#include <vector>

namespace sql {

namespace {
// The mark put before an apostrophe that came with a value: a lone surrogate, which is no
// character at all. No keyboard, paste, file or data file read (all decoded from UTF-8) can bring
// one in, so marking never takes a character away from what the user typed.
constexpr char16_t poison = 0xDC00;

bool is_name_char(QChar c) {
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('.') || c == QLatin1Char('[') ||
           c == QLatin1Char(']');
}

bool is_blank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r') ||
           c == QLatin1Char('\n');
}

// The word (or single character) before position `end`, skipping blanks; empty at the start.
QStringView word_before(const QString& s, qsizetype end) {
    while (end > 0 && is_blank(s[end - 1]))
        --end;
    qsizetype b = end;
    while (b > 0 && is_name_char(s[b - 1]))
        --b;
    if (b == end && end > 0) --b;
    return QStringView(s).mid(b, end - b);
}

QStringView word_after(const QString& s, qsizetype from) {
    while (from < s.size() && is_blank(s[from]))
        ++from;
    qsizetype e = from;
    while (e < s.size() && is_name_char(s[e]))
        ++e;
    if (e == from && e < s.size()) ++e;
    return QStringView(s).mid(from, e - from);
}

bool one_of(QStringView w, std::initializer_list<const char*> words) {
    for (const char* x : words)
        if (w.compare(QLatin1String(x), Qt::CaseInsensitive) == 0) return true;
    return false;
}

// What may stand before and after `name like 'text'` so that nothing binds tighter than LIKE to
// either side.
bool opens_term(QStringView w) {
    return w.isEmpty() || w == u"(" || w == u"," ||
           one_of(w, {"where", "and", "or", "not", "on", "when", "then", "else", "having"});
}

bool closes_term(QStringView w) {
    return w.isEmpty() || w == u")" || w == u"," || w == u";" ||
           one_of(w,
                  {"and", "or", "order", "group", "limit", "having", "then", "else", "end", "when", "union"});
}

bool is_column_name(QStringView w) {
    if (w.isEmpty() || w.front().isDigit()) return false;
    for (QChar c : w)
        if (!is_name_char(c)) return false;
    return !one_of(w, {"not", "and", "or", "where", "on", "when", "then", "else", "having", "select", "from",
                       "case", "is", "in", "like", "escape", "collate", "between"});
}

bool starts_word(const QString& s, qsizetype i, QLatin1String word) {
    if (i + word.size() > s.size()) return false;
    if (QStringView(s).mid(i, word.size()).compare(word, Qt::CaseInsensitive) != 0) return false;
    const bool before = i == 0 || !is_name_char(s[i - 1]);
    const bool after = i + word.size() == s.size() || !is_name_char(s[i + word.size()]);
    return before && after;
}

} // namespace

QString fold_like_literals(const QString& s) {
    // reads only: a removal or a change by name runs once, not in a loop
    qsizetype first = 0;
    while (first < s.size() && is_blank(s[first]))
        ++first;
    if (!starts_word(s, first, QLatin1String("select"))) return s;
    // The engine turns "f(a) = x OR f(b) = y" into one IN list over whichever of the two expression
    // indexes it picks, and so loses the rows of the other. A term that is an AND of its own is
    // never merged so: beside an OR each equality carries "AND 1", which changes no row.
    bool has_or = false;
    for (qsizetype i = 0, quote = 0; i < s.size() && !has_or; ++i) {
        if (s[i] == QLatin1Char('\'')) ++quote;
        has_or = quote % 2 == 0 && starts_word(s, i, QLatin1String("or"));
    }
    QString out;
    qsizetype copied = 0;
    bool in_text = false;
    // The AND of `x BETWEEN a AND b` is no opener: `x BETWEEN a AND name like 't'` compares
    // (x BETWEEN a AND name) with 't', LIKE and BETWEEN binding alike from the left.
    std::vector<int> open_betweens(1, 0); // per bracket depth
    std::vector<qsizetype> between_ands;
    for (qsizetype i = 0; i < s.size(); ++i) {
        if (s[i] == QLatin1Char('\'')) {
            in_text = !in_text;
            continue;
        }
        if (in_text) continue;
        if (s[i] == QLatin1Char('(')) {
            open_betweens.push_back(0);
            continue;
        }
        if (s[i] == QLatin1Char(')')) {
            if (open_betweens.size() > 1) open_betweens.pop_back();
            continue;
        }
        if (starts_word(s, i, QLatin1String("between"))) {
            ++open_betweens.back();
            continue;
        }
        if (starts_word(s, i, QLatin1String("and")) && open_betweens.back() > 0) {
            --open_betweens.back();
            between_ands.push_back(i);
            continue;
        }
        if (!starts_word(s, i, QLatin1String("like"))) continue;
        // the column before LIKE, and what stands before it
        const QStringView name = word_before(s, i);
        if (!is_column_name(name)) continue;
        const qsizetype name_start = name.data() - s.constData();
        const QStringView opener = word_before(s, name_start);
        if (!opens_term(opener)) continue;
        if (!opener.isEmpty() && !between_ands.empty() &&
            between_ands.back() == opener.data() - s.constData())
            continue;
        // the text after it, bare or in brackets
        qsizetype j = i + 4;
        while (j < s.size() && is_blank(s[j]))
            ++j;
        const bool bracket = j < s.size() && s[j] == QLatin1Char('(');
        if (bracket) {
            ++j;
            while (j < s.size() && is_blank(s[j]))
                ++j;
        }
        if (j >= s.size() || s[j] != QLatin1Char('\'')) continue;
        const qsizetype close = s.indexOf(QLatin1Char('\''), j + 1);
        if (close < 0 || (close + 1 < s.size() && s[close + 1] == QLatin1Char('\''))) continue;
        const QStringView text = QStringView(s).mid(j + 1, close - j - 1);
        if (text.contains(QLatin1Char('%')) || text.contains(QLatin1Char('_'))) continue;
        qsizetype k = close + 1;
        if (bracket) {
            while (k < s.size() && is_blank(s[k]))
                ++k;
            if (k >= s.size() || s[k] != QLatin1Char(')')) continue;
            ++k;
        }
        if (!closes_term(word_after(s, k))) continue;
        out += QStringView(s).mid(copied, name_start - copied);
        out += QStringLiteral("(quintara_fold(");
        out += name;
        out += QStringLiteral(") = quintara_fold('");
        out += text;
        out += has_or ? QStringLiteral("') AND 1)") : QStringLiteral("'))");
        copied = k;
        i = k - 1;
    }
    if (copied == 0) return s;
    out += QStringView(s).mid(copied);
    return out;
}

QString value(const QString& v) {
    if (!v.contains(QLatin1Char('\''))) return v;
    QString out = v;
    out.replace(QLatin1Char('\''), QString(QChar(poison)) + QLatin1Char('\''));
    return out;
}

QString value(double v) {
    // the range test first: converting a double the integer cannot hold is undefined
    if (std::fabs(v) < 9.2e18 && v == std::trunc(v)) return QString::number(static_cast<long long>(v));
    return QString::number(v, 'g', 15);
}

QString value(long long v) {
    return QString::number(v);
}

bool has_poisoned_value(const QString& statement) {
    // a lone surrogate that is no mark fails too: UTF-8 cannot hold it, so the store would get
    // another text than the one given
    for (qsizetype i = 0; i < statement.size(); ++i) {
        const QChar c = statement[i];
        if (c.isHighSurrogate() && i + 1 < statement.size() && statement[i + 1].isLowSurrogate())
            ++i;
        else if (c.isSurrogate())
            return true;
    }
    return false;
}

QString without_marks(const QString& statement) {
    // the mark's code unit is also the second half of real characters (U+100000): those stay
    QString s;
    s.reserve(statement.size());
    for (qsizetype i = 0; i < statement.size(); ++i)
        if (statement[i] != QChar(poison) || (i > 0 && statement[i - 1].isHighSurrogate())) s += statement[i];
    return s;
}

QString jet_dialect(const QString& statement) {
    static const QRegularExpression delete_star(QStringLiteral("^\\s*delete\\s+\\*\\s+from\\b"),
                                                QRegularExpression::CaseInsensitiveOption);
    QString s = fold_like_literals(statement);
    s.replace(delete_star, QStringLiteral("DELETE FROM"));
    return s;
}

} // namespace sql
