#pragma once
// Asks for the last day of the accounts' balances and opens them.

#include <QWidget>

class QPushButton;
class date_field;

class frmsaldodia : public QWidget {
    Q_OBJECT
public:
    static frmsaldodia* instance();
    void mostrar();
    void visualizar();

    date_field* cbodata1;
    QPushButton* cmdvisualizar;

private:
    frmsaldodia();
};
