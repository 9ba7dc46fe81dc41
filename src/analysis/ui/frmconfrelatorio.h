#pragma once
// "Configurar relatório": one of three pages (expenses, income, bank movements), each a set of
// filters that a tick enables, a sort option and its direction; "Visualizar na tela" fills the
// report window.

#include "analysis/custom_report.h"

#include <QWidget>

#include <array>
#include <vector>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QPushButton;
class QRadioButton;
class date_field;

class frmconfrelatorio : public QWidget {
    Q_OBJECT
public:
    static frmconfrelatorio* instance();
    static frmconfrelatorio* aberto();

    // Makes the page of that ledger visible (the others hidden) and shows the window.
    void mostrar_pagina(shell::ledger l);
    shell::ledger pagina_visivel() const;
    // What the boxes of a page hold.
    analysis::criterios_relatorio criterios(shell::ledger l) const;
    // cmdnatelap, cmdnatelar, cmdnatelab.
    void visualizar(shell::ledger l);

    QWidget* picpagar;
    QWidget* picreceber;
    QWidget* picmovimento;

private:
    // The controls of one page (those a page lacks stay null).
    struct pagina {
        QCheckBox *chkdata = nullptr, *chkestatus = nullptr, *chkcontato = nullptr, *chkorigem = nullptr,
                  *chkdestino = nullptr, *chkdescricao = nullptr;
        date_field *data1 = nullptr, *data2 = nullptr;
        QRadioButton *optdatacad = nullptr, *optvenccad = nullptr, *optpendente = nullptr,
                     *optconcluido = nullptr, *optasc = nullptr, *optdesc = nullptr;
        QComboBox *cbocontato = nullptr, *cboorigem = nullptr, *cbodestino = nullptr, *cbodescricao = nullptr;
        std::vector<QRadioButton*> ordens;
        QPushButton *cmdnatela = nullptr, *cmdcancelar = nullptr;
    };

    frmconfrelatorio();
    QWidget* montar(shell::ledger l);
    void carregar_listas();
    const pagina& pag(shell::ledger l) const { return paginas_[std::size_t(l)]; }

    std::array<pagina, 3> paginas_;
};
