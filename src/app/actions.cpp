#include "app/actions.h"

#include "analysis/ui/actions.h"
#include "analysis/ui/forecast_actions.h"
#include "analysis/ui/income_actions.h"
#include "analysis/ui/integrated_actions.h"
#include "analysis/ui/report_actions.h"
#include "banks/ui/actions.h"
#include "entries/ui/document_actions.h"
#include "mail/ui/actions.h"
#include "registers/ui/actions.h"
#include "registers/ui/centres_actions.h"
#include "registers/ui/document_actions.h"
#include "shell/ui/actions.h"

namespace app {

void register_actions() {
    banks::register_actions();
    shell::register_actions();
    registers::register_actions();
    analysis::register_actions();
    registers::register_centre_actions();
    analysis::register_integrated_actions();
    analysis::register_income_actions();
    analysis::register_forecast_actions();
    mail::register_actions();
    analysis::register_report_actions();
    entries::register_document_actions();
    registers::register_document_actions();
}

} // namespace app
