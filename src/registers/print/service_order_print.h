#pragma once
// The printed service order: the shop, the customer, every product and service at fixed columns,
// the summary and the common foot, in Arial.

#include "registers/service_order.h"

#include <vector>

namespace platform {
class printer;
}

namespace registers {

// Draws the order onto an open job. Throws where a value is no amount or a total overflows.
void desenhar_ordem(platform::printer& p, const cabecalho_ordem& c,
                    const std::vector<produto_ordem>& produtos, const std::vector<servico_ordem>& servicos);

enum class impressao_ordem { impressa, cancelada, falhou };
// One job on the print destination; a failure drops the job.
impressao_ordem imprimir_ordem(const cabecalho_ordem& c, const std::vector<produto_ordem>& produtos,
                               const std::vector<servico_ordem>& servicos);

} // namespace registers
