// The main window's routines that open the instalment series, dressed as expense or income.
#include "entries/ui/frmmultiplos.h"
#include "shell/ui/frmprincipal.h"

void frmprincipal::multiplospagar() {
    frmmultiplos* f = frmmultiplos::instance();
    f->mostrar();
    f->vestir(entries::dress_for_series(entries::kind::despesa));
    f->carregarfornecedor();
    f->planopagar();
    f->carregarbanco();
}

void frmprincipal::multiplosreceber() {
    frmmultiplos* f = frmmultiplos::instance();
    f->mostrar();
    f->vestir(entries::dress_for_series(entries::kind::receita));
    f->carregarbanco();
    f->carregarcliente();
    f->planoreceber();
}
