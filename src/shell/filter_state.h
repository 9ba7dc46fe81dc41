#pragma once
// The filter boxes of the ledger lists: the entries they offer and the settings that keep their
// texts between sessions (CarregarDados, salvartudopagar, salvartudoreceber, salvartudobancario).

#include "shell/ledger_statement.h"

#include <QString>
#include <QStringList>

namespace shell {

// The fixed entries of the boxes, in the order they are offered.
QStringList tipo_entries();             // cbotipop, cbotipor
QStringList filtro_entries();           // cbofiltrop, cbofiltror
QStringList baseado_entries();          // cbobaseadoP, cbobaseadoR
QStringList tipo_movimento_entries();   // cbotipom
QStringList filtro_movimento_entries(); // cbofiltrom
QStringList organizar_entries();        // cboorgm

// The texts the boxes take when nothing was saved.
entry_filters default_entry_filters(ledger which);
movement_filters default_movement_filters();

// CarregarDados, one list at a time: each setting read with its default.
entry_filters read_entry_filters(ledger which);
movement_filters read_movement_filters();

// salvartudopagar / salvartudoreceber: OrigemP, MostrarP, "Centro de Custo", "Fornecedor",
// FiltroP, BaseadoP (and the receber twins), in that order.
void save_entry_filters(ledger which, const entry_filters& f);
// salvartudobancario: FiltroM, OrdemM ("True"/"False"), OrganizarM, MostrarM.
void save_movement_filters(const movement_filters& f);

// OrdemP / OrdemR: the order text of the last header click. Saved, and read back by nobody: a
// load always sorts by its date column.
void save_header_order(ledger which, const QString& ordem);

} // namespace shell
