#include "platform/shell.h"

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

class desktop_shell : public shell {
public:
    bool open(const QString& p) override {
        const bool is_url = p.contains(QStringLiteral("://")) || p.startsWith(QLatin1String("mailto:"));
        const QUrl url = is_url ? QUrl(p) : QUrl::fromLocalFile(QFileInfo(p).absoluteFilePath());
        return QDesktopServices::openUrl(url);
    }
    bool start_editor() override {
        return start_first({QStringLiteral("gnome-text-editor"), QStringLiteral("gedit"),
                            QStringLiteral("kate"), QStringLiteral("kwrite"), QStringLiteral("mousepad"),
                            QStringLiteral("xed"), QStringLiteral("pluma"), QStringLiteral("featherpad"),
                            QStringLiteral("leafpad")});
    }
    bool start_calculator() override {
        return start_first({QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"),
                            QStringLiteral("qalculate-gtk"), QStringLiteral("galculator"),
                            QStringLiteral("mate-calc"), QStringLiteral("xcalc")});
    }
};

desktop_shell the_desktop;
shell* installed = nullptr;

} // namespace

shell& desktop() {
    return installed ? *installed : the_desktop;
}
void set_shell(shell* s) {
    installed = s;
}

} // namespace platform
