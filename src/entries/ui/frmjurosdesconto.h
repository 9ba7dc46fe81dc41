#pragma once
// The interest and discount calculator: an amount, a rate, the interest or discount and the new
// amount. It reads and writes nothing else.

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class frmjurosdesconto : public QWidget {
    Q_OBJECT
public:
    static frmjurosdesconto* instance();
    ~frmjurosdesconto() override;

    void cboorigem_click();
    void cmdcalcular_click();

    QComboBox* cboorigem;
    QLineEdit* txttotal;
    QLabel* lbltipo;
    QLineEdit* txtporcentagem;
    QLabel* lblporcentagem;
    QLineEdit* txtresultado;
    QLabel* lblnovovalor;
    QLineEdit* txtnovovalor;
    QPushButton* cmdcalcular;

private:
    frmjurosdesconto();
};
