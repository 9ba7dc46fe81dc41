#include "registers/ui/actions.h"

#include "registers/ui/frmcalendario.h"
#include "registers/ui/frmcompromisso.h"
#include "registers/ui/frmretcompromisso.h"
#include "shell/principal_api.h"

namespace registers {

void register_actions() {
    using r = relatorio_compromissos;
    shell::register_action(QStringLiteral("mnucomp"), [] { frmcompromisso::mostrar(); });
    shell::register_action(QStringLiteral("mnucal"), [] { frmcalendario::mostrar(); });
    shell::register_action(QStringLiteral("mnuretcompdia"),
                           [] { frmretcompromisso::instance()->preencher(r::dia); });
    shell::register_action(QStringLiteral("mnuretcompgeral"),
                           [] { frmretcompromisso::instance()->preencher(r::geral); });
    shell::register_action(QStringLiteral("mnuretcompmes"),
                           [] { frmretcompromisso::instance()->preencher(r::mes); });
}

} // namespace registers
