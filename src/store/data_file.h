#pragma once
#include "platform/sql/connection.h"

#include <QString>
#include <QStringList>

namespace store {

// Builds a new data file with every table, the delivered rows and the password of the program.
// Throws sql::error; an existing file is never overwritten.
void create_data_file(const QString& path);

// Brings the indexes of a file made by an older version to the ones a new file gets: a missing
// one is made, one defined otherwise is made again. The names of those made; one that cannot be
// made (a file opened read-only, rows a unique index refuses) stays as it was.
QStringList update_indexes(const sql::connection_ptr& conn);

} // namespace store
