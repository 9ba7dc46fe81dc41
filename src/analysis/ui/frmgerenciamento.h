#pragma once
// "Gerenciamento": two panels in one place (expenses, income), each a choice of one filter, the
// sort direction, the button that queries, the list of matching entries and their sum.

#include "analysis/management.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class date_field;
class list_view;

class frmgerenciamento : public QWidget {
    Q_OBJECT
public:
    static frmgerenciamento* instance();

    // Makes the panel of that ledger (pagar or receber) visible and shows the window.
    void mostrar_painel(shell::ledger l);
    // What the panel's controls ask for.
    analysis::pedido_gerencia pedido(shell::ledger l) const;
    // cmdconsultardesp, cmdconsultarlucros.
    void consultar(shell::ledger l);

    QWidget* picdespesas;
    QWidget* piclucros;
    QLineEdit* ordem; // the sort word, common to both panels

    QRadioButton *opttodasdesp, *optfornecedordesp, *optestatusdesp, *optorigemdesp, *optdatadesp;
    QRadioButton *optpendentedesp, *optconcluidodesp, *optascr, *optdescr;
    QComboBox *cbofornecedordesp, *cboorigemdesp;
    date_field *cbodata1p, *cbodata2p;
    QPushButton* cmdconsultardesp;
    list_view* lstdespesas;
    QLabel* lbltotaldesp;

    QRadioButton *opttodoslucros, *optclienteslucros, *optestatuslucros, *optorigemlucros, *optdatalucros;
    QRadioButton *optpendenteslucros, *optconcluidolucros, *optasclucros, *optdesclucros;
    QComboBox *cboclienteslucros, *cboorigemlucros;
    date_field *cbodata1r, *cbodata2r;
    QPushButton* cmdconsultarlucros;
    list_view* lstlucros;
    QLabel* lbltotallucro;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    frmgerenciamento();
    void carregar_listas();
};
