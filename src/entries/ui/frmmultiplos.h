#pragma once
// Typing in a series of instalments of one expense or one income: the entry screen with a
// schedule in place of the due date, dressed by the main window, written at one press.

#include "entries/instalments.h"
#include "entries/ui/frmentry_fields.h"
#include "platform/widgets/single_window.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QRadioButton;
class waiting_window;

class frmmultiplos : public entry_fields_form {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmmultiplos* instance();
    // The window while it is loaded, or nullptr.
    static frmmultiplos* aberto();

    void cmdinserir_click();
    void cmdcancelar_click();

    entries::entry_fields campos() const;
    // Unloaded (stored or cancelled): the next reference makes a new window.
    bool descarregado() const { return is_unloaded(this); }

    QLineEdit* txtnparcelas;
    QLineEdit* txtdiasparcelas;
    QRadioButton* optdia;
    QRadioButton* optperiodo;
    QCheckBox* chkDataInicial;

private:
    frmmultiplos();
    void montar();
    // Hidden at once, deleted later.
    void descarregar();
    // The counts, the schedule and the starting date; false after a refusal.
    bool planejar(entries::series_plan& plan);
    void exibir_principal(shell::ledger k);
    void falhou(waiting_window* espera, const QString& texto);
};
