// Quintara starts at its login window; the login decides when the main window appears.
#include "app/actions.h"
#include "platform/widgets/desktop_seams.h"
#include "shell/ui/frmlogin.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quintara"));
    QApplication::setOrganizationName(QStringLiteral("Quintara"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/quintara.png")));
    platform::install_desktop_seams();
    app::register_actions();
    frmlogin::instance()->abrir();
    return QApplication::exec();
}
