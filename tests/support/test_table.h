#pragma once
// A list for the report tests: headings with widths in twips and rows of texts.

#include "platform/table_source.h"
#include "support/fixture.h"

#include <QStringList>

#include <ostream>
#include <vector>

namespace testing_output {

class test_table : public platform::table_source {
public:
    struct column {
        QString text;
        double width;
    };
    test_table() = default;
    test_table(std::vector<column> c, std::vector<QStringList> r) : cols(std::move(c)), rows(std::move(r)) {}

    int column_count() const override { return int(cols.size()); }
    QString column_text(int c) const override { return cols[std::size_t(c)].text; }
    double column_width(int c) const override { return cols[std::size_t(c)].width; }
    int row_count() const override { return int(rows.size()); }
    QString text(int r, int c) const override {
        const QStringList& row = rows[std::size_t(r)];
        return c < row.size() ? row[c] : QString();
    }

    std::vector<column> cols;
    std::vector<QStringList> rows;
};

// Headings all 1200 twips wide.
inline test_table table_of(const QStringList& headings, std::vector<QStringList> rows) {
    std::vector<test_table::column> cols;
    for (const QString& h : headings)
        cols.push_back({h, 1200});
    return test_table(std::move(cols), std::move(rows));
}

} // namespace testing_output
