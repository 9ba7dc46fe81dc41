#include "platform/print/printer_qt.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace platform {

print_target::outcome dialog_print_target::prepare(QPrinter& p) {
    QPrintDialog dialog(&p, QApplication::activeWindow());
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    return dialog.exec() == QDialog::Accepted ? ready : cancelled;
}

} // namespace platform
