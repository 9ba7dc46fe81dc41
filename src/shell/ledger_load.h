#pragma once
// Turns the rows of pagar, receber or bancario into the display texts of the ledger lists, with
// the totals and the text of the label under the list. The window appends the rows in bulk.

#include "platform/row_table.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_statement.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <vector>

namespace shell {

struct ledger_view {
    // The rows in the list's order, their cells in the column order of the list; column 0 is the
    // código.
    platform::row_table rows;
    // pagar / receber: all rows, settled rows ("pago", "recebido"), rows still "Pendente".
    vb::currency total, pago, pendente;
    // bancario: per kind of movement, sum and count.
    vb::currency depositos, retiradas, transferencias;
    long n_depositos = 0, n_retiradas = 0, n_transferencias = 0;
    // lblpagarest, lblreceberest or lblmovimentoest.
    QString label;
};

// Walks the record set from its current row to the end. Missing columns read as empty text.
ledger_view load_rows(ledger which, sql::recordset& rs);

// The whole load: conectarbanco, open the statement read-only, walk it. Errors are ignored as the
// loaders always did: a statement that cannot be opened gives no rows and the zero label.
// before_walk runs once the result is known to hold rows (the window shows frmcarregando there).
ledger_view load_ledger(ledger which, const QString& consulta, const std::function<void()>& before_walk = {});

// dadospagar / dadosreceber: the entries of the centre, contact and bank boxes, each list headed
// by its "Todos ..." entry and followed by the distinct values the ledger holds. A statement that
// fails leaves its box with the heading entry only.
std::array<QStringList, 3> load_boxes(ledger which);

// The label of an empty result.
QString empty_label(ledger which);

// The waiting window's text during a load (its title is the ledger's own).
QString waiting_text();

// A stored date as the lists show it ("dd/mm/yyyy"); both stored forms are read, and text that
// is no date passes unchanged.
QString display_date(const QString& stored);

} // namespace shell
