#pragma once
// Bank statements (OFX, CSV) read into movements of one account: the lines of the file, the
// preview of what will be written, the lines already present, and the writing itself, which goes
// through the same row writing as the movement window.

#include "platform/text/vb_text.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace banks {

// One line of a statement. The amount carries the sign of the file: credits above zero.
struct statement_line {
    QDate data;
    vb::currency valor;
    QString memo;
    QString id; // the bank's own id of the transaction (OFX); empty for CSV
};

// What a statement file gave: its lines, the account it names (OFX), or why it cannot be used.
struct statement_file {
    std::vector<statement_line> linhas;
    QString conta; // "bank/account" as the OFX names it; empty for CSV
    QString erro;  // the message for the user; empty when the file was read
};

// ---- CSV ----------------------------------------------------------------------------------

// Which column holds what (0-based; -1 for none), and how the file is written.
struct csv_layout {
    QChar separador = QLatin1Char(';');
    bool virgula_decimal = true;
    bool cabecalho = true; // the first line names the columns
    int data = -1;
    int valor = -1; // a signed amount; or the two columns below
    int credito = -1;
    int debito = -1;
    int descricao = -1;

    // "sep=;|dec=,|cab=1|data=0|valor=-1|cred=3|deb=4|desc=1", kept per account in the settings.
    QString to_setting() const;
    static std::optional<csv_layout> from_setting(const QString& text);
    bool operator==(const csv_layout&) const = default;
};

// The text of a CSV file: UTF-8 when it is valid UTF-8 (a byte-order mark is dropped), Latin-1
// otherwise.
QString decode_text(const QByteArray& bytes);
// The fields of each non-blank line; quotes ("a;b", "say ""hi""") are honoured.
std::vector<QStringList> split_csv(const QString& text, QChar separador);
// The separator (unless given), the decimal mark, the header and the columns guessed from the text.
csv_layout detect_csv(const QString& text, std::optional<QChar> separador = std::nullopt);
// The column names shown in the window: the header's texts, or "Coluna 1", "Coluna 2"...
QStringList csv_column_names(const QString& text, const csv_layout& layout);
// The lines under the layout; the first line that does not fit gives the message and no lines.
// Lines with no amount at all (an opening balance line) are skipped.
statement_file read_csv(const QString& text, const csv_layout& layout);

// An amount as banks write it: "1.234,56", "-1234.56", "R$ 1.234,56", "(50,00)", "50,00 D".
// Nothing for an empty text; throws vb::type_mismatch for text that is no amount and
// vb::overflow_error beyond the currency's range.
std::optional<vb::currency> parse_amount(const QString& text, bool virgula_decimal);
// dd/mm/yyyy, dd/mm/yy, yyyy-mm-dd, yyyy/mm/dd, dd-mm-yyyy, dd.mm.yyyy; invalid when none fits.
QDate parse_date(const QString& text);

// ---- OFX ----------------------------------------------------------------------------------

// OFX 1.x (SGML) and 2.x (XML), read by libofx.
statement_file read_ofx(const QString& path);
// True when the file starts as an OFX statement does (its headers), whatever its extension.
bool looks_like_ofx(const QByteArray& head);

// ---- preview and writing ------------------------------------------------------------------

// A line as it will be written, and whether it is already in the account.
struct preview_row {
    statement_line linha;
    QString data;      // dd/mm/yyyy
    QString movimento; // "Depósito" or "Retirada"
    QString valor;     // "##,##0.00", no sign
    QString informacoes;
    bool repetido = false;
};

// What the account already holds, as the duplicate test compares it.
struct existing_movements {
    QStringList ids;  // the bank ids kept with the rows
    QStringList keys; // date|movement|amount|information, one per row (repeats kept)
};

// The rows of the account (errors are raised: without them every line would look new).
existing_movements read_existing(const QString& conta);

// The preview: each line's texts, and which are present already. A line with a bank id is
// present when that id is; one without, when the account holds more rows of the same date,
// movement, amount and information than the lines before it in the file took.
std::vector<preview_row> build_preview(const std::vector<statement_line>& linhas,
                                       const existing_movements& existentes);

struct import_outcome {
    int gravados = 0;
    int repetidos = 0;
    QString erro; // the failure's description; the rows counted in gravados are written whole
};

// Writes the new rows of the preview to the account, "Concluído", one whole row at a time.
// progress(done, total) is called now and then; returning false stops before the next row.
import_outcome write_import(const QString& conta, const std::vector<preview_row>& rows,
                            const std::function<bool(int, int)>& progress = {});

// "" when the statement may go into the account: the account was never fed an OFX statement
// (lembrada empty) or was fed from the same bank account. Otherwise the message for the user.
QString account_mismatch(const QString& conta, const QString& lembrada, const QString& do_arquivo);

// The settings of one account: its CSV layout and the OFX account last imported into it.
QString csv_setting_key(const QString& conta);
QString ofx_account_key(const QString& conta);

} // namespace banks
