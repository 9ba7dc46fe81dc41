// The main window's routines that open the instalment series, dressed as expense or income.
#include "entries/ui/frmmultiplos.h"
#include "shell/ui/frmprincipal.h"

namespace {

void multiplos(shell::ledger k) {
    frmmultiplos* f = frmmultiplos::instance();
    f->mostrar();
    f->vestir(entries::dress_for_series(k));
    f->carregar_caixas(k);
}

} // namespace

void frmprincipal::multiplospagar() {
    multiplos(shell::ledger::pagar);
}

void frmprincipal::multiplosreceber() {
    multiplos(shell::ledger::receber);
}
