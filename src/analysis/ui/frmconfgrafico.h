#pragma once
// "Configurar gráfico": four panels in one place (expenses, income, bank movements, expenses
// against income), each a set of criteria that a tick enables, drawing its chart in frmgrafico.

#include "analysis/chart_filter.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class date_field;

class frmconfgrafico : public QWidget {
    Q_OBJECT
public:
    static frmconfgrafico* instance();
    static frmconfgrafico* aberto();

    // Makes one panel visible (the others hidden) and shows the window.
    void mostrar_painel(analysis::painel_grafico p);
    analysis::painel_grafico painel_visivel() const;
    // What the visible boxes of a panel hold.
    analysis::criterios_grafico criterios(analysis::painel_grafico p) const;

    // cmdnatelap, cmdnatelar, cmdnatelab: the counts of a ledger panel; cmdgradr: the two sums.
    void grafico_lancamentos(analysis::painel_grafico p);
    void cmdgradr_click();

    QWidget* picpagar;
    QWidget* picreceber;
    QWidget* picmovimento;
    QWidget* picdesprec;

    QCheckBox *chkdatap, *chkestatusp, *chkfornecedorp, *chkorigemp, *chkdescricaop;
    date_field *cbodata1p, *cbodata2p;
    QGroupBox* frameestatusp;
    QRadioButton *optpendentep, *optconcluidop;
    QComboBox *cbofornecedorp, *cboorigemp, *cbodescricaop;
    QPushButton *cmdnatelap, *cmdcancelarp;

    QCheckBox *chkdatar, *chkestatusr, *chkclir, *chkorigemr, *chkdescricaor;
    date_field *cbodata1r, *cbodata2r;
    QGroupBox* frameestatusr;
    QRadioButton *optpendenter, *optconcluidor;
    QComboBox *cboclir, *cboorigemr, *cbodescricaor;
    QPushButton *cmdnatelar, *cmdcancelarr;

    QCheckBox *chkdatab, *chkestatusb, *chkorigemb, *chkdestinob;
    date_field *cbodata1b, *cbodata2b;
    QGroupBox* frameestatusb;
    QRadioButton *optpendenteb, *optconcluidob;
    QComboBox *cboorigemb, *cbodestinob;
    QPushButton *cmdnatelab, *cmdcancelarb;

    QCheckBox *chkdatadr, *chkestatusdr, *chkcontadr;
    date_field *cbodata1dr, *cbodata2dr;
    QGroupBox* Frame1;
    QRadioButton *optpendentedr, *optconcluidodr;
    QComboBox* cbocontadr;
    QPushButton *cmdgradr, *cmdcancelardr;

private:
    frmconfgrafico();
    void carregar_listas();
};
