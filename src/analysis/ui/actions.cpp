#include "analysis/ui/actions.h"

#include "analysis/chart_filter.h"
#include "analysis/period_summary.h"
#include "analysis/register_summary.h"
#include "analysis/ui/frmconfgrafico.h"
#include "analysis/ui/frmestsoftware.h"
#include "analysis/ui/frmvencimento.h"
#include "analysis/ui/period_views.h"
#include "platform/widgets/form_builders.h"
#include "shell/principal_api.h"

namespace analysis {

void register_actions() {
    shell::register_action(QStringLiteral("mnuvencpagar"),
                           [] { frmvencimento::instance()->vencimentopagar(); });
    shell::register_action(QStringLiteral("mnuvencreceber"),
                           [] { frmvencimento::instance()->vencimentoreceber(); });
    // the period members by their menu items (mnugralucrosmes runs the month income statistics)
    for (const membro& m : membros()) {
        const QString item = m.nome;
        shell::register_action(item, [item] {
            if (const membro* alvo = membro_do_menu(item)) executar_membro(*alvo);
        });
    }
    for (const estatistica_cadastro& e : estatisticas_cadastro()) {
        const estatistica_cadastro* alvo = &e;
        shell::register_action(e.nome, [alvo] { executar_estatistica_cadastro(*alvo); });
    }
    shell::register_action(QStringLiteral("mnuretcliente"), [] { relatorio_contatos(true); });
    shell::register_action(QStringLiteral("mnuretfornecedor"), [] { relatorio_contatos(false); });

    const struct {
        const char* item;
        painel_grafico painel;
    } paineis[] = {{"mnugrapagar", painel_grafico::pagar},
                   {"mnugrareceber", painel_grafico::receber},
                   {"mnugrabancario", painel_grafico::bancario},
                   {"mnugradesprec", painel_grafico::despesas_receitas}};
    for (const auto& p : paineis) {
        const painel_grafico painel = p.painel;
        shell::register_action(QString::fromLatin1(p.item),
                               [painel] { frmconfgrafico::instance()->mostrar_painel(painel); });
    }
    shell::register_action(QStringLiteral("mnuestsoftware"), [] {
        frmestsoftware* w = frmestsoftware::instance();
        w->carregar();
        show_form(w);
    });
}

} // namespace analysis
