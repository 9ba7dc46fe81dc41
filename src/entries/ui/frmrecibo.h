#pragma once
// The receipt of one entry: filled from the selected row by recibopagar / reciboreceber, every
// field open to change, printed as plain lines. It writes nothing to the data file.

#include "shell/ledger_statement.h"

#include <QWidget>

class QLineEdit;
class QPushButton;
class date_field;
class money_field;

class frmrecibo : public QWidget {
    Q_OBJECT
public:
    // The one window, made at its first use.
    static frmrecibo* instance();
    static frmrecibo* aberto();
    ~frmrecibo() override;

    // recibopagar / reciboreceber: the caption, the window shown, and with a row (codigo above 0)
    // the fields filled from it.
    void abrir(shell::ledger which, double codigo);
    void cmdimprimir_click();

    QLineEdit* txtpagamento;
    QLineEdit* txtrecibo;
    QLineEdit* txtreferente;
    money_field* txtvalor;
    date_field* txtdata;
    QPushButton* cmdimprimir;

private:
    frmrecibo();
};
