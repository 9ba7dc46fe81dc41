#pragma once
// Changing one expense or one income: the entry screen filled from a row, which it writes back
// whole by the code in lblcodigo. No continuing mode, and nothing happens on closing.

#include "entries/ui/frmentry_form.h"

#include <QPointer>

class frmeditar : public entry_form {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmeditar* instance();
    // The window when it is loaded, or nullptr.
    static frmeditar* aberto();

    // Fills the window from the row of that code: the code into lblcodigo, the row read, the boxes
    // loaded, the fields filled, the dress put on. Each step runs with errors ignored.
    void abrir_entrada(entries::kind k, const QString& codigo);

    QLabel* lblcodigo;

protected:
    void gravar(entries::kind k, const entries::entry_fields& f) override;
    void depois_de_gravar(entries::kind k) override;

private:
    frmeditar();
};
