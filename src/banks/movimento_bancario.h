#pragma once
// A bank movement as the two movement windows write it: which columns, in which order, from which
// field; the checks before writing and the texts of their messages. The adding and the editing
// window are twins; what tells them apart is the data of movement_twin, not code.

#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace banks {

// One of the two movement windows, by what differs between them.
struct movement_twin {
    QString window;       // objectName of the window
    QString title;        // caption of the window
    QString store_button; // the button that writes
    QString store_caption;
    QChar store_key; // Alt plus this letter runs the store button (Alt+C cancels on both)
    QString info_tooltip;
    // The blank-field messages: each twin has its own wording.
    QString valor_vazio;
    QString data_vazio;
    // The accounts the two account boxes offer.
    QString accounts_statement;
    // The boxes take each account as their text while filling (so they end on the last one).
    bool accounts_as_text;
    // The date field starts with today.
    bool starts_today;
    // A new row, or the row of codigoselecionado rewritten.
    bool adds_row;
    // An empty origin box shows "-" before the data file is opened; otherwise only once the row
    // to write has been opened.
    bool origem_mark_first;
};

const movement_twin& twin_adicionar(); // frmmovimentobanc
const movement_twin& twin_editar();    // frmeditarbancario

// What the fields hold when the store button is pressed.
struct movement_fields {
    QString movimento;
    QString origem;
    QString destino;
    QString data; // dd/mm/yyyy, or as typed when it is no date
    QString valor;
    QString informacoes;
    QString estatus;
};

using vb::trim_blanks;

// The message for the first blank required field (the amount, then the date), or "".
QString blank_field_message(const movement_twin& twin, const QString& valor, const QString& data);

// The target box is shown while this is true of the chosen movement (compared in lower case).
bool shows_destino(const QString& movimento);
// What the rows hold for no account: "-" in origem, " - " in destino.
QString origem_to_write(const QString& origem);
// The target only for a movement that is exactly a transfer.
QString destino_to_write(const QString& movimento, const QString& destino);

// The seven columns and their texts, in the order they are written. An amount or a date that
// cannot be read throws (vb::type_mismatch, vb::overflow_error).
std::vector<std::pair<QString, QString>> movement_columns(const movement_fields& f);

// Adds one movement on a record set open for writing on bancario, as the adding window adds it;
// an imported line also keeps its bank's id. Throws as movement_columns and the record set do.
void add_movement_row(sql::recordset& rs, const movement_fields& f, const QString& id_extrato = {});

// "SELECT * FROM bancario where(código like '12')"
QString movement_by_code(double codigo);

struct save_outcome {
    bool ok = false;
    // The row to write was opened (the editing twin marks an empty origin only from there on).
    bool row_opened = false;
    QString error; // the failure's description, for store::save_error_message
};

// Connects and writes the movement: a new row, or the row of codigo rewritten. Never throws.
save_outcome save_movement(const movement_twin& twin, double codigo, const movement_fields& f);

// The account names for the two boxes, in the twin's order; errors ignored.
QStringList account_names(const movement_twin& twin);

// A stored movement as the editing window shows it.
struct shown_movement {
    QString data; // dd/mm/yyyy
    QString movimento;
    QString origem;
    QString destino;
    QString valor; // "R$ 1.234,56"
    QString estatus;
    QString informacoes;
};
// Connects and reads the movement of codigo; nothing when it cannot be read.
std::optional<shown_movement> read_movement(double codigo);

} // namespace banks
