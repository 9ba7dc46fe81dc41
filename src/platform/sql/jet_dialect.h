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

// Delete * from -> DELETE FROM;
// in a SELECT, `name like ('text')` with no wildcard in the text -> fold_like_literals below.
QString jet_dialect(const QString& statement);

// `name like 'text'` and `name like ('text')` whose text holds neither '%' nor '_' become
// `(quintara_fold(name) = quintara_fold('text'))`: the very same rows, since without wildcards LIKE
// is equality of the case-folded texts, but an index on quintara_fold(name) can find them.
// Only a plain column name standing alone between AND/OR/WHERE/brackets is touched.
QString fold_like_literals(const QString& statement);

} // namespace sql
