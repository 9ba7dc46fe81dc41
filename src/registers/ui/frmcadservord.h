#pragma once
// A service of the service order: its fields checked and added to the order's list.

#include <QWidget>

class QLineEdit;
class QPushButton;
class money_field;

class frmcadservord : public QWidget {
    Q_OBJECT
public:
    static frmcadservord* instance();
    static frmcadservord* aberto();
    ~frmcadservord() override;

    void abrir();
    void cmdadicionar_click();

    QLineEdit* txtnome;
    QLineEdit* txtdescricao;
    money_field* txtvalor;
    QPushButton* cmdadicionar;
    QPushButton* cmdcancelar;

private:
    frmcadservord();
};
