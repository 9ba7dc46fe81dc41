#pragma once
// The printed receipt: its lines one under the other, the common foot, the end of the document.

#include "entries/recibo.h"

namespace entries {

enum class impressao { impressa, cancelada, falhou };
// On the print destination. A failure leaves the job as it stands; the window tells the user.
impressao imprimir_recibo(const recibo_texto& r);

} // namespace entries
