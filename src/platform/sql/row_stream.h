#pragma once
// A statement's rows read one at a time as the engine hands them over, none of them held: for
// long read-only walks that turn each row into something else. A statement plan_sorted_read
// accepts is read in table order; order() then tells where each row goes.

#include "platform/sql/connection.h"
#include "platform/sql/sorted_read.h"

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace sql {

class row_stream {
public:
    // Throws sql::error, also for a null connection.
    row_stream(const connection_ptr& conn, const QString& statement);
    // The next row; false after the last. Throws sql::error when the engine fails mid-way.
    bool next();
    // Index of a field by name, any case; -1 when absent.
    int index_of(const QString& name) const;
    // The current row's field as stored UTF-8 (empty for null), valid until next().
    QByteArrayView raw(int index) const;
    // Whether the rows come in another order than the statement's.
    bool reordered() const { return sorted_.has_value(); }
    // The rows read so far, by their index in reading order, in the statement's order.
    std::vector<std::uint32_t> order() const;

private:
    connection_ptr conn_;
    statement_ptr st_;
    std::vector<QString> names_;
    int first_ = 0; // 1 when column 0 holds the rowid
    std::optional<sorted_read> sorted_;
    int key_ = -1;
    std::vector<sort_key> keys_;
    std::uint32_t rows_ = 0;
};

} // namespace sql
