#pragma once
// Changing a bank or cash account: its notes, and its opening balance when the amount shown is
// changed. The name is the account's identity and stays as it is.

#include "banks/ui/frmaccount_form.h"

#include <QPointer>

class frmeditarbanco : public account_form {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmeditarbanco* instance();
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
