#pragma once
// Changing one expense or one income: the entry screen filled from a row, which it writes back
// whole by the code in lblcodigo. No continuing mode, and nothing happens on closing.

#include "entries/ui/frmentry_form.h"

class frmeditar : public entry_form {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmeditar* instance();
    // The window while it is loaded, or nullptr.
    static frmeditar* aberto();

    // Fills the window from the row of that code: the code into lblcodigo, the row read, the boxes
    // loaded, the fields filled, the dress put on. Each step runs with errors ignored.
    void abrir_entrada(shell::ledger k, const QString& codigo);

    QLabel* lblcodigo;

protected:
    void gravar(shell::ledger k, const entries::entry_fields& f) override;
    void depois_de_gravar(shell::ledger k) override;

private:
    frmeditar();
};
