#include "analysis/ui/report_actions.h"

#include "analysis/ui/frmconfrelatorio.h"
#include "analysis/ui/frmconfrelatorio2.h"
#include "analysis/ui/frmgerenciamento.h"
#include "analysis/ui/frmpormes.h"
#include "shell/principal_api.h"

namespace analysis {

void register_report_actions() {
    const struct {
        const char* item;
        shell::ledger pagina;
    } paginas[] = {{"mnuretpagar", shell::ledger::pagar},
                   {"mnuretreceber", shell::ledger::receber},
                   {"mnuretbancario", shell::ledger::bancario}};
    for (const auto& p : paginas) {
        const shell::ledger l = p.pagina;
        shell::register_action(QString::fromLatin1(p.item),
                               [l] { frmconfrelatorio::instance()->mostrar_pagina(l); });
    }
    shell::register_action(QStringLiteral("mnuretcentrocusto"),
                           [] { frmconfrelatorio2::instance()->mostrar_pagina(consolidado::centro_custo); });
    shell::register_action(QStringLiteral("mnuretcentrolucro"),
                           [] { frmconfrelatorio2::instance()->mostrar_pagina(consolidado::centro_lucro); });
    shell::register_action(QStringLiteral("mnugerendesp"),
                           [] { frmgerenciamento::instance()->mostrar_painel(shell::ledger::pagar); });
    shell::register_action(QStringLiteral("mnugerenlucros"),
                           [] { frmgerenciamento::instance()->mostrar_painel(shell::ledger::receber); });
    shell::register_action(QStringLiteral("mnuviscontmespagar"),
                           [] { frmpormes::instance()->abrir(shell::ledger::pagar); });
    shell::register_action(QStringLiteral("mnuviscontmesreceber"),
                           [] { frmpormes::instance()->abrir(shell::ledger::receber); });
    shell::register_action(QStringLiteral("mnuvisvencpagar"),
                           [] { frmvenpormes::instance()->abrir(shell::ledger::pagar); });
    shell::register_action(QStringLiteral("mnuvisvencreceber"),
                           [] { frmvenpormes::instance()->abrir(shell::ledger::receber); });
}

} // namespace analysis
