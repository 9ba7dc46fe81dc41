#pragma once
#include <QString>

namespace store {

// Builds a new data file with every table, the delivered rows and the password of the program.
// Throws sql::error; an existing file is never overwritten.
void create_data_file(const QString& path);

} // namespace store
