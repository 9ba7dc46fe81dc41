#pragma once
// The columns of the three ledger lists and their layout files ("\pagar.ini", "\receber.ini",
// "\bancario.ini" in the program's folder): widths in TAMANHO, display positions in POSICAO.

#include "shell/ledger_statement.h"

#include <QString>
#include <Qt>

#include <optional>
#include <vector>

namespace shell {

// How a column sorts on a header click: the list's Tag.
enum column_tag { tag_text = 0, tag_date = 1, tag_number = 2 };

struct column_def {
    QString key;           // key in TAMANHO
    QString heading;       // the header's text
    QString default_width; // twips, as the layout file holds it (decimal comma)
    int tag = tag_text;
    Qt::Alignment align = Qt::AlignLeft;
};

// The columns of lstpagar, lstreceber, lstmovimento by position; column 0 is the hidden código.
const std::vector<column_def>& ledger_columns(ledger which);

struct column_layout {
    std::vector<double> widths; // per column, twips, single precision
    std::vector<int> positions; // per column, the 1-based display position
    bool operator==(const column_layout&) const = default;
};

column_layout default_layout(ledger which);

// CarregarColuna: a missing file, key or unreadable value gives the column's default.
column_layout read_layout(ledger which);
// SalvarColuna: every width, then every position, in column order. Missing entries of a short
// layout are written with their defaults.
void write_layout(ledger which, const column_layout& layout);

// A width as the layout file holds it: a single-precision number in the text the locale makes of
// it (seven significant digits, decimal comma: 1319,811).
QString single_text(double v);
// The reverse, under the same locale rule; nullopt when the text is no number.
std::optional<double> read_single(const QString& text);

} // namespace shell
