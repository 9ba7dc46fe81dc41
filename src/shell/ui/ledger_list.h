#pragma once
// What the shell's windows do alike with a ledger list: its columns, and the row an action works on.

#include "shell/ledger.h"

class list_view;

namespace shell {

// The ledger's columns with their headings, default widths, sort tags and alignments.
void definir_colunas(list_view* l, ledger which);

// The row an action works on: -1 for an empty list or when nothing is selected.
int linha_selecionada(const list_view* l);

} // namespace shell
