#pragma once
// The generator of the integrated report: a page of filters per ledger, lists of names added one
// at a time through the chooser, and the button that shows the result.

#include "analysis/integrated_report.h"

#include <QWidget>

class QCheckBox;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class date_field;

class frmgeradorret : public QWidget {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmgeradorret* instance();
    static frmgeradorret* aberto();
    void mostrar();
    bool descarregado() const { return descarregado_; }

    // Generates: the result window shows each ticked ledger, then this window closes.
    void cmdnatela_click();
    // The chooser's answer: the name goes to the list of the word ("cliente", "origemp", ...).
    void adicionar_a_lista(const QString& tipo, const QString& texto);
    // The filters as the controls stand.
    analysis::filtros_integrados filtros() const;

    QTabWidget* XTab1;
    QCheckBox *chkpagar, *chkreceber, *chkbancario;
    QCheckBox *chkdatap, *chkdatar, *chkdatab;
    date_field *cbodata1p, *cbodata2p, *cbodata1r, *cbodata2r, *cbodata1b, *cbodata2b;
    QRadioButton *optdatap, *optvencp, *optdatar, *optvencr;
    QCheckBox *chkfornecedor, *chkorigemp, *chkcusto, *chkcliente, *chkorigemr, *chklucros, *chkorigemb,
        *chkdestinob;
    QListWidget *lstfornecedor, *lstorigemp, *lstcusto, *lstcliente, *lstorigemr, *lstlucros, *lstorigemb,
        *lstdestino;
    QPushButton *cmdfornecedor, *cmdorigemp, *cmdcusto, *cmdcliente, *cmdorigemr, *cmdlucros, *cmdorigemb,
        *cmddestino;
    QPushButton *lstlimparforn, *cmdlimpaorigemp, *cmdlimpacusto, *cmdlimpacliente, *cmdlimparorigemr,
        *cmdlimparlucros, *cmdlimparorigemb, *cmdlimpardestino;
    QRadioButton *opttudop, *optpendentep, *optconcluidop, *opttudor, *optpendenter, *optconcluidor,
        *opttudob, *optpendenteb, *optconcluidob;
    QPushButton* cmdnatela;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmgeradorret();
    void montar();
    // Opens the chooser for an add button.
    void escolher(QPushButton* botao);
    void descarregar();

    bool descarregado_ = false;
};
