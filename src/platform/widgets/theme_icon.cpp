#include "platform/widgets/theme_icon.h"

#include <QFile>

QIcon own_icon(const QString& name) {
    QIcon icon;
    for (int size : {24, 48}) {
        const QString file = QStringLiteral(":/icons/png/%1-%2.png").arg(name).arg(size);
        if (QFile::exists(file)) icon.addFile(file, QSize(size, size));
    }
    return icon;
}

QIcon theme_icon(const QString& name) {
    if (name.isEmpty()) return {};
    return QIcon::fromTheme(name, own_icon(name));
}
