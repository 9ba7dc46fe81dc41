#pragma once
// A product of the service order: its fields checked and added to the order's list.

#include <QWidget>

class QLineEdit;
class QPushButton;
class money_field;

class frmcadprodorc : public QWidget {
    Q_OBJECT
public:
    static frmcadprodorc* instance();
    static frmcadprodorc* aberto();
    ~frmcadprodorc() override;

    // Empty fields, in front.
    void abrir();
    void cmdadicionar_click();

    QLineEdit* txtnome;
    QLineEdit* txtmarca;
    QLineEdit* txtmodelo;
    QLineEdit* txtserie;
    QLineEdit* txtdescricao;
    money_field* txtvalor;
    QLineEdit* txtquantidade;
    QPushButton* cmdadicionar;
    QPushButton* cmdcancelar;

private:
    frmcadprodorc();
};
