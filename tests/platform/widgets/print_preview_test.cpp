// The desktop's print preview: the pages a job draws appear in it.

#include "platform/print/printer.h"
#include "platform/widgets/print_preview_dialog.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(print_preview, the_dialog_shows_every_page_the_job_draws) {
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
    platform::page_format f;
    f.size = QPageSize::Letter;
    f.full_page = true;
    platform::print_preview_dialog().show(QStringLiteral("Etiquetas"), f, [&](platform::printer& p) {
        p.print(QStringLiteral("primeira"));
        p.NewPage();
        p.print(QStringLiteral("segunda"));
    });
    espera.stop();
    EXPECT_EQ(paginas, 2);
    EXPECT_EQ(titulo, QStringLiteral("Etiquetas"));
}

} // namespace
