#include "analysis/ui/income_actions.h"

#include "analysis/ui/frmrelacaodesluc.h"
#include "platform/widgets/form_builders.h"
#include "shell/principal_api.h"

namespace analysis {

void register_income_actions() {
    shell::register_action(QStringLiteral("mnulucrosdesp"), [] { show_form(frmrelacaodesluc::instance()); });
}

} // namespace analysis
