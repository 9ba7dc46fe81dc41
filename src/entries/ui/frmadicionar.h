#pragma once
// Typing in one expense or one income: the shared entry screen, dressed by the main window, that
// adds a row and, with chkcontinuar, stays open for the next one.

#include "entries/ui/frmentry_form.h"

#include <QPointer>

class frmadicionar : public entry_form {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmadicionar* instance();
    // The window when it is loaded, or nullptr.
    static frmadicionar* aberto();

    QCheckBox* chkcontinuar;
    // A row was written since the window opened: closing reloads the main window's list.
    bool inserido = false;

protected:
    void gravar(entries::kind k, const entries::entry_fields& f) override;
    void depois_de_gravar(entries::kind k) override;
    void ao_descarregar() override;

private:
    frmadicionar();
};
