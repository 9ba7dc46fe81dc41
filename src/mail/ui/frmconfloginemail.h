#pragma once
// The login on the mail server, kept in the settings (the password as plain text).

#include <QDialog>

class QLineEdit;
class QPushButton;

class frmconfloginemail : public QDialog {
    Q_OBJECT
public:
    explicit frmconfloginemail(QWidget* parent = nullptr);
    static frmconfloginemail* mostrar(QWidget* parent);

    void cmdsalvar_click();

    QLineEdit* txtnome;
    QLineEdit* txtsenha;
    QPushButton* cmdsalvar;
};
