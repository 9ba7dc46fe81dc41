#pragma once
// Reading a statement "SELECT * FROM t [WHERE ...] ORDER BY col [ASC|DESC]" that the engine would
// answer by walking the whole table through an index led by col. Such a walk reads the table's
// pages in the index's order, and on a table larger than the page cache decrypts most of them many
// times over. Read in the table's order and sorted on (col, rowid), the rows come the same.

#include "platform/sql/connection.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sql {

struct sorted_read {
    QString unordered; // the statement without its ORDER BY
    QString table;
    QString column;
    bool descending = false;
};
// Empty when the statement is of another shape or the engine would not walk such an index.
std::optional<sorted_read> plan_sorted_read(const connection_ptr& conn, const QString& statement);

// A row's place in the order: the column's value as the engine compares it under BINARY, then
// the rowid, which is how an index orders its equal entries.
struct sort_key {
    int rank = 0; // storage classes in the engine's order: null, number, text, blob
    long double number = 0;
    std::string bytes;
    long long rowid = 0;
    // type is the engine's fundamental type of the value, text its bytes as the engine gives them
    static sort_key of(int type, std::string_view text, long long rowid);
};
// The rows' indexes in the order of their keys.
std::vector<std::uint32_t> sorted_order(const std::vector<sort_key>& keys, bool descending);

} // namespace sql
