#include "platform/widgets/print_preview_dialog.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace platform {

void print_preview_dialog::show(const QString& job_name, const page_format& format,
                                const std::function<void(printer&)>& draw) {
    QPrinter device(QPrinter::HighResolution);
    device.setPageLayout(
        QPageLayout(QPageSize(format.size), format.orientation, format.margins_mm, QPageLayout::Millimeter));
    device.setFullPage(format.full_page);
    device.setDocName(job_name);
    QPrintPreviewDialog dialog(&device, QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("visualizar_impressao"));
    dialog.setWindowTitle(job_name);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
        printer p;
        if (p.begin_on(*target) != printer::started) return;
        draw(p);
        p.EndDoc();
    });
    dialog.resize(900, 700);
    dialog.exec();
}

} // namespace platform
