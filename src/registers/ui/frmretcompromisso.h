#pragma once
// The appointments report: a read-only list that the main menu's three report items fill, with
// the line of what it shows, the count under it, and its text, HTML and printed outputs.

#include "output/ui/list_window.h"
#include "registers/compromissos.h"

class frmretcompromisso : public list_window {
    Q_OBJECT
public:
    static frmretcompromisso* instance();
    static frmretcompromisso* carregada();
    ~frmretcompromisso() override;

    // The feeders of mnuretcompdia, mnuretcompgeral and mnuretcompmes: connect, fill the list
    // from the item's statement, write both labels and show the window.
    void preencher(registers::relatorio_compromissos r);

    list_view* lstcompromisso;
    QLabel* lblbaixo;

protected:
    saida textos_saida() const override;

private:
    frmretcompromisso();
};
