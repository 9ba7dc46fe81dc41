#pragma once
// Asks for the account and the period of a bank statement and opens it.

#include <QWidget>

class QCheckBox;
class QComboBox;
class QPushButton;
class date_field;

class frmconfextrato : public QWidget {
    Q_OBJECT
public:
    static frmconfextrato* instance();
    void mostrar();
    void visualizar();

    QComboBox* cboorigem;
    date_field* cbodata1;
    date_field* cbodata2;
    QCheckBox* chkdestino;
    QPushButton* cmdvisualizar;

private:
    frmconfextrato();
    void carregar_contas();
};
