// The desktop's print preview: the pages a job draws appear in it, and closing it prints nothing.

#include "platform/print/printer.h"
#include "platform/widgets/print_preview_dialog.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(print_preview, the_dialog_shows_every_page_the_job_draws) {
    platform::pdf_target never(QStringLiteral("/nonexistent/never.pdf"));
    platform::set_print_destination(&never);
    int paginas = -1;
    QString titulo;
    QTimer espera;
    int voltas = 0;
    QObject::connect(&espera, &QTimer::timeout, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* d = qobject_cast<QPrintPreviewDialog*>(w);
            if (!d || !d->isVisible()) continue;
            auto* previa = d->findChild<QPrintPreviewWidget*>();
            if ((previa && previa->pageCount() > 0) || ++voltas > 200) {
                paginas = previa ? previa->pageCount() : -1;
                titulo = d->windowTitle();
                d->reject();
            }
        }
    });
    espera.start(10);
    int desenhos = 0;
    platform::page_format f;
    f.size = QPageSize::Letter;
    f.full_page = true;
    platform::print_preview_dialog().show(QStringLiteral("Etiquetas"), f, [&](platform::printer& p) {
        ++desenhos;
        p.print(QStringLiteral("primeira"));
        p.NewPage();
        p.print(QStringLiteral("segunda"));
    });
    espera.stop();
    platform::set_print_destination(nullptr);
    EXPECT_EQ(paginas, 2);
    EXPECT_EQ(titulo, QStringLiteral("Etiquetas"));
    EXPECT_GE(desenhos, 1);
    EXPECT_EQ(never.jobs(), 0);
}

} // namespace
