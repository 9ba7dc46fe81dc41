#pragma once
// The statements of the program are written in the old desktop database's dialect; this turns
// them into what SQLite reads the same way.

#include <QString>

namespace sql {

// The one way a value enters a statement. The value is placed between the statement's own
// quotes; a value holding an apostrophe is marked so that the statement fails when run
// instead of taking another shape.
QString value(const QString& v);
QString value(double v);
QString value(long long v);

// True when the statement carries a value that must make it fail.
bool has_poisoned_value(const QString& statement);
// The statement without the marks, as the user would have written it (for error texts).
QString without_marks(const QString& statement);

// Delete * from -> DELETE FROM; BETWEEN with its literal bounds in reverse order -> in order.
QString jet_dialect(const QString& statement);

} // namespace sql
