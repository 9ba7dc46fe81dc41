#pragma once
// The statements behind the three ledger lists of the main window (lstpagar, lstreceber,
// lstmovimento), built from the filter boxes' texts as they stand. No widget, no data file:
// the window gathers the texts, calls these, keeps sqlatual and opens the result.

#include "shell/ledger.h"

#include <QDate>
#include <QString>

#include <array>
#include <optional>

namespace shell {

// The boxes above lstpagar (cbotipop, cbofiltrop, cbobaseadoP, cbobancop, cbocentrocusto,
// cbofornecedor) or lstreceber (cbotipor, cbofiltror, cbobaseadoR, cbobancor, cbocentrolucro,
// cbocliente).
struct entry_filters {
    QString tipo;
    QString filtro;
    QString baseado;
    QString banco;
    QString centro;
    QString contato;
    bool operator==(const entry_filters&) const = default;
};

// The boxes above lstmovimento: cbotipom, cbofiltrom, cboorgm, and optascm (else optdescm).
struct movement_filters {
    QString tipo;
    QString filtro;
    QString organizar;
    bool ascendente = true;
    bool operator==(const movement_filters&) const = default;
};

struct built_statement {
    QString sqlatual; // the shared sqlatual after this build
    QString consulta; // the text the loader opens
};

// carregarpagar / carregarreceber (which = pagar or receber). A filter text that no rule knows
// keeps the previous sqlatual, and the load then opens it with the current date column's order.
built_statement entry_statement(ledger which, const entry_filters& f, const QDate& hoje,
                                const QString& sqlatual_anterior);

// carregarbancario. The opened text is sqlatual itself.
built_statement movement_statement(const movement_filters& f, const QDate& hoje,
                                   const QString& sqlatual_anterior);

// The text the list opens: the lists' "próximos" and "mês" filters write the later day first,
// which the old store read as the same range; SQLite wants the earlier day first. Only these
// statements are turned: elsewhere reversed dates find no rows.
QString bounds_in_order(const QString& statement);

// DateSerial: month and day outside their range carry into the year and the next month
// (month 0 is December of the year before; the 31st of February is early March).
QDate date_serial(int year, int month, int day);

// One box that dadospagar / dadosreceber fill: its DISTINCT statement, the column it reads and
// the entry that heads the box.
struct distinct_box {
    QString statement;
    QString column;
    QString first;
};
// In the order the routine fills them: centre box, contact box, bank box.
std::array<distinct_box, 3> distinct_boxes(ledger which);

// The text a header click saves in OrdemP / OrdemR: column 1 to 9 of lstpagar / lstreceber with
// the arrow's direction. Other columns save nothing.
std::optional<QString> header_order(ledger which, int column, bool ascending);

} // namespace shell
