// Quintara starts at its login window; the login decides when the main window appears.
#include "platform/printer_qt.h"
#include "platform/prompts_qt.h"
#include "shell/frmlogin.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quintara"));
    QApplication::setOrganizationName(QStringLiteral("Quintara"));
    platform::qt_prompts prompts;
    platform::set_prompts(&prompts);
    platform::dialog_print_target printing;
    platform::set_print_destination(&printing);
    frmlogin::instance()->abrir();
    return QApplication::exec();
}
