#pragma once

#include "analysis/comparison.h"

namespace analysis {

// One tab's comparison on paper: titulo, the product line, each label and block between rules,
// the common foot. A failure shows the "Erro" box. True when the job went out.
bool imprimir_comparacao(const QString& titulo, const aba_comparacao& a);

} // namespace analysis
