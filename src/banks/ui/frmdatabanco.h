#pragma once
// Asks for the period of the accounts' statistics and opens them.

#include <QWidget>

class QPushButton;
class date_field;

class frmdatabanco : public QWidget {
    Q_OBJECT
public:
    static frmdatabanco* instance();
    void mostrar();
    void visualizar();

    date_field* cbodata1;
    date_field* cbodata2;
    QPushButton* cmdvisualizar;

private:
    frmdatabanco();
};
