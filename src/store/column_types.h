#pragma once
// What the columns of the data file accept beyond plain text.

#include <QString>
#include <QVariant>

namespace store {

// Valor and saldo hold amounts: a text the locale's conversion reads, inside the range of the
// currency type. Anything else is refused with sql::error, as the old file's currency columns
// refused it, so the window's own save message shows and nothing is written.
void check_column(const QString& table, const QString& column, const QVariant& value);

} // namespace store
