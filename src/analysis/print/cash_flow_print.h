#pragma once
// The printed cash flow: one list through the list layout, or both lists drawn line by line under
// the cash-flow page head with the closing statistics block.

#include "platform/table_source.h"

#include <QString>

namespace output {
class progress;
}

namespace analysis {

// Expenses or income alone. True when the pages went out.
bool imprimir_fluxo_lista(const platform::table_source& lista, const QString& caption, const QString& lbldata,
                          const QString& lblest);
// Both lists, expenses first. True when the job went out; a failure shows the "Erro" box.
bool imprimir_fluxo_geral(const platform::table_source& pagar, const platform::table_source& receber,
                          const QString& caption, const QString& lbldata, const QString& lblest,
                          output::progress* barra = nullptr);

} // namespace analysis
