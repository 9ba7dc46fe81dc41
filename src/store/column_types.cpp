#include "store/column_types.h"

#include "platform/sql/error.h"
#include "platform/text/vb_text.h"
#include "store/names.h"

namespace store {

void check_column(const QString& /*table*/, const QString& column, const QVariant& value) {
    if (column.compare(coluna::valor, Qt::CaseInsensitive) != 0 &&
        column.compare(coluna::saldo, Qt::CaseInsensitive) != 0)
        return;
    if (value.isNull() || !value.isValid()) return;
    const QString text = value.toString();
    try {
        if (vb::ccur(text)) return;
    } catch (const vb::overflow_error&) {
        throw sql::error(
            QStringLiteral("Estouro: o valor '%1' é grande demais para o campo %2.").arg(text, column));
    }
    throw sql::error(
        QStringLiteral("Tipo incompatível: '%1' não é um valor válido para o campo %2.").arg(text, column));
}

} // namespace store
