#include "store/data_file.h"

#include "platform/errors.h"
#include "platform/sql/connection.h"
#include "platform/sql/recordset.h"
#include "store/data_scripts.h"
#include "store/names.h"

#include <QHash>
#include <QRegularExpression>

namespace store {

void create_data_file(const QString& path) {
    auto c = sql::connection::create(path, senha_dados.toUtf8());
    c->execute_script(QByteArray("BEGIN;\n") + schema_sql() + "\n" + rows_sql() + "\nCOMMIT;\n");
}

namespace {

QString simplified(const QString& s) {
    return s.simplified().remove(QLatin1Char(';')).toLower();
}

} // namespace

QStringList update_indexes(const sql::connection_ptr& conn) {
    static const QRegularExpression create_index(
        QStringLiteral("^\\s*CREATE\\s+(?:UNIQUE\\s+)?INDEX\\s+(\\w+)\\s+ON\\b[^;]*;"),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    QHash<QString, QString> present;
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT name, sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL"),
            conn);
    for (; !rs.eof(); rs.move_next())
        present.insert(rs.text(0).toLower(), simplified(rs.text(1)));
    rs.close();
    QStringList made;
    auto it = create_index.globalMatch(QString::fromUtf8(schema_sql()));
    while (it.hasNext()) {
        const auto m = it.next();
        const QString name = m.captured(1);
        const auto old = present.constFind(name.toLower());
        if (old != present.constEnd() && *old == simplified(m.captured(0))) continue;
        try {
            conn->execute_script(QByteArrayLiteral("SAVEPOINT indice;\nDROP INDEX IF EXISTS ") +
                                 name.toUtf8() + ";\n" + m.captured(0).toUtf8() + "\nRELEASE indice;");
            made << name;
        } catch (const sql::error&) {
            platform::ignore_errors([&] { conn->execute_script("ROLLBACK TO indice; RELEASE indice;"); });
        }
    }
    return made;
}

} // namespace store
