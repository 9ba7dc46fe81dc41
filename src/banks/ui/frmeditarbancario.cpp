#include "banks/ui/frmeditarbancario.h"

#include "platform/widgets/date_field.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/names.h"

#include <QComboBox>
#include <QLineEdit>

namespace {
QPointer<frmeditarbancario> the_window;
} // namespace

frmeditarbancario* frmeditarbancario::instance() {
    return single_window(the_window, [] { return new frmeditarbancario; });
}

frmeditarbancario* frmeditarbancario::aberto() {
    return loaded_window(the_window);
}

frmeditarbancario::frmeditarbancario() : movimento_window(banks::twin_editar()) {
    cmdeditar = botao_gravar();
}

void frmeditarbancario::preencher(const banks::shown_movement& m) {
    txtdata->set_text(m.data);
    cbomovimento->setEditText(m.movimento);
    cboorigem->setEditText(m.origem);
    cbodestino->setEditText(m.destino);
    txtvalor->setText(m.valor);
    cboestatus->setEditText(m.estatus);
    txtinfo->setText(m.informacoes);
    // Shown for a transfer; otherwise left as it was.
    if (m.movimento == store::palavra::transferencia) mostrar_destino(true);
}

double frmeditarbancario::chave() const {
    return shell::principal()->codigoselecionado;
}
