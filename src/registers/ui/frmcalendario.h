#pragma once
// A calendar to look at, nothing more.

#include <QWidget>

class QCalendarWidget;

class frmcalendario : public QWidget {
    Q_OBJECT
public:
    static frmcalendario* mostrar();
    ~frmcalendario() override;

    QCalendarWidget* calendario;

private:
    frmcalendario();
};
