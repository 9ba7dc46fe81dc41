#pragma once
// The screen shared by frmadicionar and frmeditar: the ten fields of an entry, the quick-add
// buttons, the required-field check and the error handler. What differs (insert or update, the
// continuing mode, what happens after saving and on closing) is left to the two windows.

#include "entries/ui/frmentry_fields.h"

class QCheckBox;
class QLabel;
class QPushButton;
class atalhos;
class date_field;

class entry_form : public entry_fields_form {
    Q_OBJECT
public:
    ~entry_form() override;

    // The event routines of the buttons.
    void cmdinserir_click();
    void cmdcancelar_click();
    void cmdbancoinc_click();
    void cmddescinc_click();
    void cmdforncliinc_click();

    // What the fields show.
    entries::entry_fields campos() const;

    // Unloaded (closed or about to be deleted): the next reference makes a new window.
    bool descarregado() const { return descarregado_; }

    date_field* txtvencimento;
    QPushButton* cmdbancoinc;
    QPushButton* cmddescinc;
    QPushButton* cmdforncliinc;

protected:
    // name: the window's name; bank_list: its statement of accounts; expense_caption: the
    // lower-case caption of the action button that writes an expense.
    entry_form(const QString& name, entries::list_source bank_list, QString expense_caption);

    // Builds the layout; `extra` (the continuing check box, the code label) goes under the fields.
    void montar(QWidget* extra);
    // The Alt letter of the action button besides I (the caption's own letter).
    void atalho_extra(QChar letra);

    // Writes the row (a new one or the one being edited). Throws.
    virtual void gravar(shell::ledger k, const entries::entry_fields& f) = 0;
    // After a successful write. Throws (the same handler as the write).
    virtual void depois_de_gravar(shell::ledger k) = 0;
    // When the window is unloaded, by the code or by the user.
    virtual void ao_descarregar() {}

    // Unloads the window: ao_descarregar once, hidden at once, deleted later.
    void descarregar();

    void closeEvent(QCloseEvent* e) override;

private:
    void marcar_descarregado();
    // A centre added or renamed (a name), or the centre window closed (no name).
    void centro_cadastrado(bool custo, const QString& nome);

    QString expense_caption_;
    atalhos* atalhos_ = nullptr;
    bool descarregado_ = false;
};
