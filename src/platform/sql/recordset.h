#pragma once
// A record set as the windows use it: open on a statement or a table, walk it, read fields by
// name without regard to case, add or edit the current row and write it back.

#include "platform/sql/connection.h"
#include "platform/sql/sorted_read.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sql {

enum cursor_type { forward_only = 0, keyset = 1, dynamic = 2, static_cursor = 3 };
enum lock_type {
    lock_unspecified = -1,
    read_only = 1,
    pessimistic = 2,
    optimistic = 3,
    batch_optimistic = 4
};

class recordset {
public:
    recordset() = default;
    // Source: a statement, or a table's name. Throws sql::error; a null connection is an error too.
    void open(const QString& source, const connection_ptr& conn, int cursor = keyset, int lock = read_only);
    void close();

    bool eof() const { return pos_ >= rows(); }
    bool is_open() const { return open_; }
    void move_next();
    void move_first() { pos_ = 0; }
    void move_last() { pos_ = rows() > 0 ? rows() - 1 : 0; }
    long record_count() const { return long(rows()); }
    long absolute_position() const { return long(pos_); }

    int field_count() const { return int(names_.size()) - first_visible_; }
    // Index of a field by name, any case; -1 when absent.
    int index_of(const QString& name) const;

    // Current row's field. A missing field throws, as the old record set did.
    QVariant value(const QString& name) const;
    QVariant value(int index) const;
    // The field as text: null reads as empty text.
    QString text(const QString& name) const { return text(checked_index(name)); }
    QString text(int index) const;
    // The field as the stored UTF-8 bytes (empty for null), valid until the record set moves on to
    // another statement. Only for a row that is not being edited.
    QByteArrayView raw(int index) const;
    bool is_null(const QString& name) const;

    // Writing: set() on the current row starts an edit; add_new() starts a new row.
    void add_new();
    void set(const QString& name, const QVariant& v);
    void update();

private:
    struct cell {
        std::uint32_t offset;
        std::uint32_t size;
        std::uint8_t type; // SQLite fundamental type
    };
    std::ptrdiff_t rows() const { return cols_ ? std::ptrdiff_t(cells_.size() / cols_) : 0; }
    int checked_index(const QString& name) const;
    QVariant read_cell(std::size_t row, int col) const;
    void append_row_from(struct sqlite3_stmt* st);
    void sort_rows(const sorted_read& how);
    void ensure_writable() const;
    void reload_row(std::size_t row, long long rowid);

    connection_ptr conn_;
    bool open_ = false;
    int lock_ = read_only;
    QString table_;         // the one table when the source allows writing
    int first_visible_ = 0; // 1 when column 0 holds the rowid
    std::vector<QString> names_;
    std::vector<QString> lower_names_;
    std::size_t cols_ = 0;
    std::vector<cell> cells_;
    std::string arena_;
    std::ptrdiff_t pos_ = 0;

    enum class edit_mode { none, editing, adding };
    edit_mode mode_ = edit_mode::none;
    std::vector<std::pair<int, QVariant>> pending_;
};

} // namespace sql
