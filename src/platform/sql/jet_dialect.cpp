#include "platform/sql/jet_dialect.h"

#include <QRegularExpression>

namespace sql {

namespace {
// A private-use character stands for an apostrophe that came with a value.
constexpr char16_t poison = u'\uE000';
} // namespace

QString value(const QString& v) {
    if (!v.contains(QLatin1Char('\'')) && !v.contains(QChar(poison))) return v;
    QString out = v;
    out.replace(QChar(poison), QString());
    out.replace(QLatin1Char('\''), QString(QChar(poison)) + QLatin1Char('\''));
    return out;
}

QString value(double v) {
    if (v == double(static_cast<long long>(v))) return QString::number(static_cast<long long>(v));
    return QString::number(v, 'g', 15);
}

QString value(long long v) {
    return QString::number(v);
}

bool has_poisoned_value(const QString& statement) {
    return statement.contains(QChar(poison));
}

QString without_marks(const QString& statement) {
    QString s = statement;
    return s.remove(QChar(poison));
}

QString jet_dialect(const QString& statement) {
    static const QRegularExpression delete_star(QStringLiteral("^\\s*delete\\s+\\*\\s+from\\b"),
                                                QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression between(QStringLiteral("\\bBETWEEN\\s+'([^']*)'\\s+AND\\s+'([^']*)'"),
                                            QRegularExpression::CaseInsensitiveOption);
    QString s = statement;
    s.replace(delete_star, QStringLiteral("DELETE FROM"));
    if (!s.contains(between)) return s;
    // The old database took BETWEEN's bounds in either order; SQLite wants the lower first.
    QString out;
    qsizetype last = 0;
    auto it = between.globalMatch(s);
    while (it.hasNext()) {
        const auto m = it.next();
        QString lo = m.captured(1), hi = m.captured(2);
        if (QString::compare(lo, hi, Qt::CaseSensitive) > 0) std::swap(lo, hi);
        out += s.mid(last, m.capturedStart() - last);
        out += QStringLiteral("BETWEEN '") + lo + QStringLiteral("' AND '") + hi + QLatin1Char('\'');
        last = m.capturedEnd();
    }
    out += s.mid(last);
    return out;
}

} // namespace sql
