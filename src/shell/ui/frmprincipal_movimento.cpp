// The main window's actions on the bank movement list.
#include "banks/movimento_bancario.h"
#include "banks/ui/frmeditarbancario.h"
#include "banks/ui/frmmovimentobanc.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"
#include "shell/ui/ledger_list.h"

void frmprincipal::adicionarmovimento() {
    frmmovimentobanc::instance()->mostrar();
}

void frmprincipal::alterarmovimento() {
    const int row = shell::linha_selecionada(lstmovimento);
    if (row < 0) return;
    codigoselecionado = vb::val(lstmovimento->text(row, 0));
    frmeditarbancario* w = frmeditarbancario::instance();
    // Errors ignored: a row that cannot be read leaves the fields as they are.
    if (const auto m = banks::read_movement(codigoselecionado)) w->preencher(*m);
    w->mostrar();
}
