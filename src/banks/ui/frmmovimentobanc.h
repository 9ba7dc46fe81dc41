#pragma once
// "Adicionar Movimento Bancário": a deposit, a withdrawal or a transfer between two accounts.

#include "banks/ui/frmmovimento_window.h"

class frmmovimentobanc : public movimento_window {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmmovimentobanc* instance();
    // The window while it is loaded, or nullptr.
    static frmmovimentobanc* aberto();

    QPushButton* cmdadicionar = nullptr;

private:
    frmmovimentobanc();
};
