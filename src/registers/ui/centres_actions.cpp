#include "registers/ui/centres_actions.h"

#include "registers/ui/frmcentro.h"
#include "registers/ui/frmgeradorad.h"
#include "shell/principal_api.h"

namespace registers {

void register_centre_actions() {
    const auto custo = [] { frmcentrocusto::instance()->mostrar(); };
    const auto lucro = [] { frmcentrolucro::instance()->mostrar(); };
    shell::register_action(QStringLiteral("mnucentrocusto"), custo);
    shell::register_action(QStringLiteral("mnucentrolucro"), lucro);
    // the quick adds of the entry windows
    shell::register_action(QStringLiteral("frmcentrocusto"), custo);
    shell::register_action(QStringLiteral("frmcentrolucro"), lucro);
    set_abridor_lista([](const pedido_lista& p) { frmgeradorad::abrir(p); });
}

} // namespace registers
