#pragma once
// Changing a bank or cash account: its notes, and its opening balance when the amount shown is
// changed. The name is the account's identity and stays as it is.

#include "banks/ui/frmaccount_form.h"

class frmeditarbanco : public account_form {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmeditarbanco* instance();
    // The window while it is loaded, or nullptr.
    static frmeditarbanco* aberto();

    // Fills the window for the account named in bancoselecionado: the row read by its name, and
    // the balance the list shows for it. Each step runs with errors ignored.
    void abrir_conta(const QString& nome, const QString& saldo_na_lista);

    QLineEdit* txtvalorini;

protected:
    void gravar() override;

private:
    frmeditarbanco();
};
