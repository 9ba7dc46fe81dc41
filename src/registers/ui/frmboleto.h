#pragma once
// The bank slip: the slip's data gathered here and sent, in the query of one address, to the page
// that makes the slip, opened in the browser.

#include "registers/boleto.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;

class frmboleto : public QWidget {
    Q_OBJECT
public:
    static frmboleto* instance();
    static frmboleto* aberto();
    ~frmboleto() override;

    // The opening: the clients' names in cbocliente.
    void carregar();
    void cdmgerar_click();
    registers::boleto_campos campos() const;

    QComboBox* cbobanco;
    QComboBox* cbocliente;
    QLineEdit* txtcedente;
    QLineEdit* txtvalor;
    QLineEdit* txtag;
    QLineEdit* txtconta;
    QLineEdit* txtinscricao;
    QLineEdit* txtnossonum;
    QLineEdit* txtvencimento;
    QLineEdit* txtlinha1;
    QLineEdit* txtlinha2;
    QLineEdit* txtlinha3;
    QLineEdit* txtcodcedente;
    QPushButton* cdmgerar;

private:
    frmboleto();
};
