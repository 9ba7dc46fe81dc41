#pragma once
// The instalment calculator: an amount with fixed or monthly interest spread over instalments,
// each with its due date, in a table. It reads and writes nothing else.

#include <QWidget>

class QLineEdit;
class QPushButton;
class QRadioButton;
class date_field;
class list_view;

class frmjurosparcelado : public QWidget {
    Q_OBJECT
public:
    static frmjurosparcelado* instance();
    ~frmjurosparcelado() override;

    void cmdcalcular_click();

    QLineEdit* txtvalor;
    QLineEdit* txtparcelas;
    QLineEdit* txtdias;
    date_field* txtdata;
    QLineEdit* txtjurosmes;
    QRadioButton* optfixo;
    QRadioButton* optmes;
    QLineEdit* txtvalorjuros;
    QLineEdit* txttotaljuros;
    list_view* lstmeses;
    QPushButton* cmdcalcular;

private:
    frmjurosparcelado();
};
