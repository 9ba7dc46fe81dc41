#pragma once
// "Editar Movimento bancário": the movement of codigoselecionado, rewritten in place.

#include "banks/ui/frmmovimento_window.h"

class frmeditarbancario : public movimento_window {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmeditarbancario* instance();
    // The window while it is loaded, or nullptr.
    static frmeditarbancario* aberto();

    // The stored movement into the fields; the target box is shown for a transfer.
    void preencher(const banks::shown_movement& m);

    QPushButton* cmdeditar = nullptr;

protected:
    // The main window's codigoselecionado at the moment of writing.
    double chave() const override;

private:
    frmeditarbancario();
};
