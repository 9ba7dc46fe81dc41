#pragma once
// Expected output kept as data under tests/data/. A golden file holds what a dump must be; a
// baseline file holds the inputs too, each followed by what it gives ("  => ..." lines). A missing
// or changed file fails with the command that rewrites it: QUINTARA_UPDATE_GOLDEN=1 and the test.

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

#include <gtest/gtest.h>

namespace support {

// The text (as UTF-8), or the bytes as they stand, against tests/data/<name>.
::testing::AssertionResult matches_golden(const QString& name, const QString& text);
::testing::AssertionResult matches_golden(const QString& name, const QByteArray& bytes);

// Each line of tests/data/<name> that is neither blank, a "#" comment nor a "  => " line is an
// input; the lines after it are "  => " and each line run(input) gives.
::testing::AssertionResult matches_baseline(const QString& name,
                                            const std::function<QStringList(const QString&)>& run);

// The texts in brackets of a baseline input ("blank [ a ] [] [x]" gives " a ", "", "x"), so that
// blanks show.
QStringList bracketed(const QString& line);

// A written file against tests/data/<name>, byte for byte.
::testing::AssertionResult file_matches_golden(const QString& name, const QString& path);

// The bytes of a file; empty when it cannot be read.
QByteArray read_file(const QString& path);
// The same as UTF-8 text.
inline QString read_text(const QString& path) {
    return QString::fromUtf8(read_file(path));
}
// Rows one per line, cells in brackets so their blanks show.
QString table_text(const std::vector<QStringList>& rows);

// The pages of a PDF as pdftotext lays them out.
QStringList pdf_pages(const QString& pdf);
// Its lines that are not blank, blanks run together ("simplified"), every page in turn.
QStringList pdf_lines(const QString& pdf);

} // namespace support
