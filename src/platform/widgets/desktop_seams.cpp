#include "platform/widgets/desktop_seams.h"

#include "platform/busy.h"
#include "platform/print/printer_qt.h"
#include "platform/widgets/button_keys.h"
#include "platform/widgets/print_preview_dialog.h"
#include "platform/widgets/prompts_qt.h"
#include "platform/widgets/shell_qt.h"

#include <QCursor>
#include <QGuiApplication>

namespace platform {

void install_desktop_seams() {
    static qt_prompts prompts;
    static dialog_print_target printing;
    static print_preview_dialog preview;
    static desktop_shell shell;
    set_prompts(&prompts);
    set_print_destination(&printing);
    set_preview_destination(&preview);
    set_shell(&shell);
    button_keys::install();
    set_busy_hook([](bool on) {
        if (on)
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        else
            QGuiApplication::restoreOverrideCursor();
    });
}

} // namespace platform
