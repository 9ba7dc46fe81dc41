// The main window's routines that open the entry and account windows, for adding and for
// changing the selected row.
#include "banks/ui/frmbanco.h"
#include "banks/ui/frmeditarbanco.h"
#include "entries/ui/frmadicionar.h"
#include "entries/ui/frmeditar.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"

namespace {

// The row an action works on: none for an empty list or when nothing is selected.
int linha_selecionada(const list_view* l) {
    if (l->row_count() == 0) return -1;
    const int row = l->selected_row();
    return row < l->row_count() ? row : -1;
}

void adicionar(entries::kind k) {
    frmadicionar* f = frmadicionar::instance();
    f->vestir(entries::dress_for_adding(k));
    f->mostrar();
    if (k == entries::kind::despesa) {
        f->carregarfornecedor();
        f->planopagar();
        f->carregarbanco();
    } else {
        f->carregarbanco();
        f->carregarcliente();
        f->planoreceber();
    }
}

void alterar(frmprincipal* p, list_view* lista, entries::kind k) {
    const int row = linha_selecionada(lista);
    if (row < 0) return;
    const QString codigo = lista->text(row, 0);
    p->codigoselecionado = vb::val(codigo);
    frmeditar* f = frmeditar::instance();
    f->mostrar();
    f->abrir_entrada(k, codigo);
}

} // namespace

void frmprincipal::adicionarpagar() {
    adicionar(entries::kind::despesa);
}

void frmprincipal::adicionarreceber() {
    adicionar(entries::kind::receita);
}

void frmprincipal::adicionarbanco() {
    frmbanco::instance()->mostrar();
}

void frmprincipal::alterarpagar() {
    alterar(this, lstpagar, entries::kind::despesa);
}

void frmprincipal::alterarreceber() {
    alterar(this, lstreceber, entries::kind::receita);
}

void frmprincipal::alterarbanco() {
    const int row = linha_selecionada(lstcaixabanco);
    if (row < 0) return;
    bancoselecionado = lstcaixabanco->text(row, 0);
    saldoselecionado = lstcaixabanco->text(row, 1);
    frmeditarbanco* f = frmeditarbanco::instance();
    f->abrir_conta(bancoselecionado, saldoselecionado);
    f->mostrar();
}
