#pragma once
// The accounts due this month, and beside them those due today. The window has no logic of its
// own: its three routines dress it and fill it.

#include "analysis/vencimentos.h"

#include <QWidget>

class QLabel;
class QTabWidget;
class list_view;

class frmvencimento : public QWidget {
    Q_OBJECT
public:
    // The window, created at its first use.
    static frmvencimento* instance();
    static frmvencimento* carregada();
    ~frmvencimento() override;

    void vencimentopagar();
    void vencimentoreceber();
    // Kept though nothing calls it: shows the window with the appointments' captions, unfilled.
    void vencimentocompromisso();

    QTabWidget* XTab1;
    QLabel* lblmes;
    QLabel* lbldia;
    list_view* lstmes;
    list_view* lstdia;

private:
    frmvencimento();
    void vestir(analysis::tipo_vencimento tipo);
    void preencher(shell::ledger which);
};
