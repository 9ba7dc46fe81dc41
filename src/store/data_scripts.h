#pragma once
#include <QByteArray>

namespace store {
// data/schema.sql and data/rows.sql, built into the program.
QByteArray schema_sql();
QByteArray rows_sql();
} // namespace store
