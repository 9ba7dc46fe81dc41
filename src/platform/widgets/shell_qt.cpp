#include "platform/widgets/shell_qt.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace platform {

namespace {

bool start_first(const QStringList& programs) {
    for (const QString& p : programs) {
        const QString exe = QStandardPaths::findExecutable(p);
        if (!exe.isEmpty() && QProcess::startDetached(exe, {})) return true;
    }
    return false;
}

} // namespace

bool desktop_shell::open(const QString& p) {
    const bool is_url = p.contains(QStringLiteral("://")) || p.startsWith(QLatin1String("mailto:"));
    const QUrl url = is_url ? QUrl(p) : QUrl::fromLocalFile(QFileInfo(p).absoluteFilePath());
    return QDesktopServices::openUrl(url);
}

bool desktop_shell::start_editor() {
    return start_first({QStringLiteral("gnome-text-editor"), QStringLiteral("gedit"), QStringLiteral("kate"),
                        QStringLiteral("kwrite"), QStringLiteral("mousepad"), QStringLiteral("xed"),
                        QStringLiteral("pluma"), QStringLiteral("featherpad"), QStringLiteral("leafpad")});
}

bool desktop_shell::start_calculator() {
    return start_first({QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"),
                        QStringLiteral("qalculate-gtk"), QStringLiteral("galculator"),
                        QStringLiteral("mate-calc"), QStringLiteral("xcalc")});
}

} // namespace platform
