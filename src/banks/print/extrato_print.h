#pragma once
// The printed statement of an account: the expenses, the income and the movements, each under its
// page head at the statement's tab columns, then the totals and the common foot.

#include "platform/table_source.h"

#include <QString>

namespace output {
class progress;
}

namespace banks {

struct extrato_textos;

// The three lists as the statement window shows them (with the ID first). A failure shows the
// print-fault box; false when nothing went out.
bool imprimir_extrato(const extrato_textos& t, const platform::table_source& pagar,
                      const platform::table_source& receber, const platform::table_source& movimento,
                      output::progress* barra = nullptr);

} // namespace banks
