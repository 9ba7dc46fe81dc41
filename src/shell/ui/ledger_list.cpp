#include "shell/ui/ledger_list.h"

#include "platform/widgets/list_view.h"
#include "shell/column_layout.h"

namespace shell {

void definir_colunas(list_view* l, ledger which) {
    l->clear_columns();
    for (const auto& c : ledger_columns(which))
        l->add_column(c.heading, read_single(c.default_width).value_or(0), c.tag, c.align);
}

int linha_selecionada(const list_view* l) {
    if (l->row_count() == 0) return -1;
    const int row = l->selected_row();
    return row < l->row_count() ? row : -1;
}

} // namespace shell
