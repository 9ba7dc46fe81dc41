#include "store/program_dir.h"

#include <QCoreApplication>

namespace store {

namespace {
QString override_dir;
}

QString program_dir() {
    if (!override_dir.isEmpty()) return override_dir;
    return QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QStringLiteral(".");
}

void set_program_dir(const QString& dir) {
    override_dir = dir;
}

QString program_path(const QString& name) {
    QString n = name;
    n.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!n.startsWith(QLatin1Char('/'))) n.prepend(QLatin1Char('/'));
    return program_dir() + n;
}

} // namespace store
