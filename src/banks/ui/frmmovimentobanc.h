#pragma once
// "Adicionar Movimento Bancário": a deposit, a withdrawal or a transfer between two accounts.

#include "banks/ui/frmmovimento_window.h"

class frmmovimentobanc : public movimento_window {
    Q_OBJECT
public:
    // The window while it is loaded; a new one after it was unloaded.
    static frmmovimentobanc* instance();
    // The loaded window, or nullptr.
    static frmmovimentobanc* loaded();

    QPushButton* cmdadicionar = nullptr;

private:
    frmmovimentobanc();
};
