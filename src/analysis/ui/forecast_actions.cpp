#include "analysis/ui/forecast_actions.h"

#include "analysis/ui/frmcomparacao.h"
#include "analysis/ui/frmfluxo.h"
#include "analysis/ui/frmprojecao.h"
#include "shell/principal_api.h"

namespace analysis {

void register_forecast_actions() {
    shell::register_action(QStringLiteral("mnuretfxgeral"),
                           [] { frmconfluxo::abrir(QStringLiteral("geral")); });
    shell::register_action(QStringLiteral("mnuretfxpagar"),
                           [] { frmconfluxo::abrir(QStringLiteral("pagar")); });
    shell::register_action(QStringLiteral("mnuretfxreceber"),
                           [] { frmconfluxo::abrir(QStringLiteral("receber")); });
    shell::register_action(QStringLiteral("mnumetadesp"), [] { frmprojecao::instance()->resetar(true); });
    shell::register_action(QStringLiteral("mnumetarec"), [] { frmprojecao::instance()->resetar(false); });
    shell::register_action(QStringLiteral("mnucompdesp"), [] { frmcomparadesp::instance()->resetar(); });
    shell::register_action(QStringLiteral("mnucomprec"), [] { frmcompararec::instance()->resetar(); });
}

} // namespace analysis
