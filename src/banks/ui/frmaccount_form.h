#pragma once
// The screen shared by frmbanco and frmeditarbanco: name, amount and notes of an account, the
// two checks in their order and the error handler. Adding or editing is the windows' own part.

#include "platform/widgets/single_window.h"

#include <QWidget>

class QLineEdit;
class QPushButton;
class atalhos;
class money_field;

class account_form : public QWidget {
    Q_OBJECT
public:
    void cmdinserir_click();
    void cmdcancelar_click();
    // Visible, in front and active.
    void mostrar();
    // Unloaded (closed or about to be deleted): the next reference makes a new window.
    bool descarregado() const { return is_unloaded(this); }

    QLineEdit* txtnome;
    money_field* txtvalor;
    QLineEdit* txtinfo;
    QPushButton* cmdinserir;
    QPushButton* cmdcancelar;

protected:
    account_form(const QString& name, const QString& title);
    // Builds the layout; `amount_before` (the stored opening balance) stands between the name and
    // the amount, in the tab order too. `letters`: the Alt letters of cmdinserir besides C.
    void montar(QWidget* amount_before, const QString& amount_label, const QString& letters);

    // Writes the row. Throws.
    virtual void gravar() = 0;
    // After a successful write, before the window is unloaded.
    virtual void depois_de_gravar() {}

    void descarregar();
    void erro(const QString& texto);
    void closeEvent(QCloseEvent* e) override;

private:
    atalhos* atalhos_ = nullptr;
};
