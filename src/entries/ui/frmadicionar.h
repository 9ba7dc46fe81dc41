#pragma once
// Typing in one expense or one income: the shared entry screen, dressed by the main window, that
// adds a row and, with chkcontinuar, stays open for the next one.

#include "entries/ui/frmentry_form.h"

class frmadicionar : public entry_form {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmadicionar* instance();
    // The window while it is loaded, or nullptr.
    static frmadicionar* aberto();

    QCheckBox* chkcontinuar;
    // A row was written since the window opened: closing reloads the main window's list.
    bool inserido = false;

protected:
    void gravar(shell::ledger k, const entries::entry_fields& f) override;
    void depois_de_gravar(shell::ledger k) override;
    void ao_descarregar() override;

private:
    frmadicionar();
};
