#pragma once
// The printed summary of the cost or profit centres, line by line.

#include "platform/table_source.h"
#include "registers/centres.h"

#include <QString>

namespace registers {

// The heading, a rule of 87 underscores, each centre's four lines and a rule of hyphens, the totals
// and the common foot. Failures show the "Erro" box. True when the job went out.
bool imprimir_resumo(centro c, const platform::table_source& lista, const QString& geral);

} // namespace registers
