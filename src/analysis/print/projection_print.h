#pragma once

#include "analysis/projection.h"

namespace analysis {

// The one page of a projection: title, product line, the result between rules, the common foot.
// A failure shows the "Erro" box. True when the page went out.
bool imprimir_projecao(const lado_projecao& l, const QString& texto);

} // namespace analysis
