#include "registers/ui/frmcalendario.h"

#include "platform/clock.h"
#include "platform/widgets/form_builders.h"

#include <QCalendarWidget>
#include <QLocale>
#include <QPointer>
#include <QVBoxLayout>

namespace {
QPointer<frmcalendario> the_window;
} // namespace

frmcalendario* frmcalendario::mostrar() {
    if (!the_window) the_window = new frmcalendario();
    show_form(the_window);
    return the_window;
}

frmcalendario::frmcalendario()
    : QWidget(nullptr, Qt::Window), calendario(named(new QCalendarWidget, "calendario")) {
    setObjectName(QStringLiteral("frmcalendario"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Calendário"));
    calendario->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    calendario->setGridVisible(true);
    calendario->setSelectedDate(platform::today());
    auto* v = new QVBoxLayout(this);
    v->addWidget(calendario);
}

frmcalendario::~frmcalendario() {
    if (the_window == this) the_window = nullptr;
}
