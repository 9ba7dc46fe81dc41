#include "platform/sql/sorted_read.h"

#include "platform/sql/jet_dialect.h"

#include <QRegularExpression>
#include <QStringList>

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace sql {

namespace {

QString quote_ident(const QString& n) {
    return QLatin1Char('"') + QString(n).replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

// The text of a statement with its quoted texts blanked, to look for words outside them.
QString without_texts(const QString& s) {
    QString out = s;
    bool in_text = false;
    for (QChar& c : out) {
        if (c == QLatin1Char('\''))
            in_text = !in_text;
        else if (in_text)
            c = QLatin1Char(' ');
    }
    return out;
}

// Runs a statement that needs no rewriting and hands each row's texts to f.
template <class F> void each_row(const connection_ptr& conn, const QString& text, F&& f) {
    const statement_ptr st = conn->prepare_native(text);
    if (!st) return;
    while (sqlite3_step(st.get()) == SQLITE_ROW) {
        QStringList row;
        for (int c = 0; c < sqlite3_column_count(st.get()); ++c)
            row << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st.get(), c)));
        f(row);
    }
}

} // namespace

std::optional<sorted_read> plan_sorted_read(const connection_ptr& conn, const QString& statement) {
    static const QRegularExpression shape(
        QStringLiteral(
            "^(\\s*select\\s+\\*\\s+from\\s+\\[?(\\w+)\\]?(\\s.*|\\(.*|))\\border\\s+by\\s+\\[?(\\w+)\\]?"
            "(?:\\s+(asc|desc))?\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression other_clauses(
        QStringLiteral("\\b(order|group|having|limit|offset|union|intersect|except|join|select)\\b|,|;"),
        QRegularExpression::CaseInsensitiveOption);
    // a marked value fails the statement as written, with its own message
    if (has_poisoned_value(statement)) return std::nullopt;
    const auto m = shape.match(statement);
    if (!conn || !m.hasMatch() || without_texts(m.captured(3)).contains(other_clauses)) return std::nullopt;
    sorted_read r;
    r.unordered = m.captured(1);
    r.table = m.captured(2);
    r.column = m.captured(4);
    r.descending = m.captured(5).compare(QLatin1String("desc"), Qt::CaseInsensitive) == 0;
    // only a walk of the whole table through an index led by the column itself
    QStringList plan;
    each_row(conn, QStringLiteral("EXPLAIN QUERY PLAN ") + jet_dialect(statement),
             [&](const QStringList& row) { plan << row.value(3); });
    static const QRegularExpression walk(QStringLiteral("^SCAN TABLE (\\w+) USING INDEX (\\w+)$"));
    const auto w = plan.size() == 1 ? walk.match(plan.first()) : QRegularExpressionMatch();
    if (!w.hasMatch() || w.captured(1).compare(r.table, Qt::CaseInsensitive) != 0) return std::nullopt;
    // index_xinfo: seqno, cid, name, desc, coll, key
    bool leads = false;
    each_row(conn, QStringLiteral("PRAGMA index_xinfo(") + quote_ident(w.captured(2)) + QLatin1Char(')'),
             [&](const QStringList& row) {
                 if (row.value(0) == QLatin1String("0"))
                     leads = row.value(2).compare(r.column, Qt::CaseInsensitive) == 0 &&
                             row.value(3) == QLatin1String("0") &&
                             row.value(4).compare(QLatin1String("BINARY"), Qt::CaseInsensitive) == 0;
             });
    if (!leads) return std::nullopt;
    return r;
}

sort_key sort_key::of(int type, std::string_view text, long long rowid) {
    sort_key k;
    k.rowid = rowid;
    switch (type) {
    case SQLITE_NULL:
        k.rank = 0;
        break;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        k.rank = 1;
        k.number = std::strtold(std::string(text).c_str(), nullptr);
        break;
    case SQLITE_TEXT:
        k.rank = 2;
        k.bytes = text;
        break;
    default:
        k.rank = 3;
        k.bytes = text;
    }
    return k;
}

std::vector<std::uint32_t> sorted_order(const std::vector<sort_key>& keys, bool descending) {
    // sorted by value: the first sixteen bytes of a text as two numbers, and the rowid, settle
    // nearly every comparison without leaving the array
    struct entry {
        std::uint64_t head0, head1;
        long long rowid;
        std::uint32_t index;
        std::uint8_t rank;
        bool whole; // the text fits in the head and holds no zero byte
    };
    const auto big_endian = [](std::string_view s, std::size_t from) {
        std::uint64_t v = 0;
        for (std::size_t i = 0; i < 8; ++i)
            v = (v << 8) | (from + i < s.size() ? std::uint8_t(s[from + i]) : 0u);
        return v;
    };
    std::vector<entry> entries(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const sort_key& k = keys[i];
        entries[i] = {big_endian(k.bytes, 0),
                      big_endian(k.bytes, 8),
                      k.rowid,
                      std::uint32_t(i),
                      std::uint8_t(k.rank),
                      k.bytes.size() <= 16 && k.bytes.find('\0') == std::string::npos};
    }
    const auto compare = [&](const entry& a, const entry& b) {
        if (a.rank != b.rank) return a.rank < b.rank ? -1 : 1;
        if (a.rank == 1) {
            const long double x = keys[a.index].number, y = keys[b.index].number;
            if (x != y) return x < y ? -1 : 1;
        } else if (a.head0 != b.head0) {
            return a.head0 < b.head0 ? -1 : 1;
        } else if (a.head1 != b.head1) {
            return a.head1 < b.head1 ? -1 : 1;
        } else if (!a.whole || !b.whole) {
            if (const int c = keys[a.index].bytes.compare(keys[b.index].bytes); c != 0) return c;
        } else if (keys[a.index].bytes.size() != keys[b.index].bytes.size()) {
            return keys[a.index].bytes.size() < keys[b.index].bytes.size() ? -1 : 1;
        }
        return a.rowid < b.rowid ? -1 : (a.rowid > b.rowid ? 1 : 0);
    };
    std::sort(entries.begin(), entries.end(), [&](const entry& a, const entry& b) {
        const int c = compare(a, b);
        return descending ? c > 0 : c < 0;
    });
    std::vector<std::uint32_t> order(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        order[i] = entries[i].index;
    return order;
}

} // namespace sql
