#pragma once
// Adding a bank or cash account. Opened by the main window and by the quick-add buttons of the
// entry windows, which it refills with the new name.

#include "banks/ui/frmaccount_form.h"

class frmbanco : public account_form {
    Q_OBJECT
public:
    // The one window, made at its first reference and again after it was unloaded.
    static frmbanco* instance();
    // The window while it is loaded, or nullptr.
    static frmbanco* aberto();

protected:
    void gravar() override;
    void depois_de_gravar() override;

private:
    frmbanco();
};
