// The main window's routines that open the entry and account windows, for adding and for
// changing the selected row.
#include "banks/ui/frmbanco.h"
#include "banks/ui/frmeditarbanco.h"
#include "entries/ui/frmadicionar.h"
#include "entries/ui/frmeditar.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"
#include "shell/ui/ledger_list.h"

namespace {

void adicionar(shell::ledger k) {
    frmadicionar* f = frmadicionar::instance();
    f->vestir(entries::dress_for_adding(k));
    f->mostrar();
    f->carregar_caixas(k);
}

void alterar(frmprincipal* p, list_view* lista, shell::ledger k) {
    const int row = shell::linha_selecionada(lista);
    if (row < 0) return;
    const QString codigo = lista->text(row, 0);
    p->codigoselecionado = vb::val(codigo);
    frmeditar* f = frmeditar::instance();
    f->mostrar();
    f->abrir_entrada(k, codigo);
}

} // namespace

void frmprincipal::adicionarpagar() {
    adicionar(shell::ledger::pagar);
}

void frmprincipal::adicionarreceber() {
    adicionar(shell::ledger::receber);
}

void frmprincipal::adicionarbanco() {
    frmbanco::instance()->mostrar();
}

void frmprincipal::alterarpagar() {
    alterar(this, lstpagar, shell::ledger::pagar);
}

void frmprincipal::alterarreceber() {
    alterar(this, lstreceber, shell::ledger::receber);
}

void frmprincipal::alterarbanco() {
    const int row = shell::linha_selecionada(lstcaixabanco);
    if (row < 0) return;
    bancoselecionado = lstcaixabanco->text(row, 0);
    saldoselecionado = lstcaixabanco->text(row, 1);
    frmeditarbanco* f = frmeditarbanco::instance();
    f->abrir_conta(bancoselecionado, saldoselecionado);
    f->mostrar();
}
