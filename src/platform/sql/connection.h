#pragma once
#include "platform/sql/error.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace sql {

// A compiled statement, finalized when it goes out of scope.
struct statement_finalizer {
    void operator()(sqlite3_stmt* st) const;
};
using statement_ptr = std::unique_ptr<sqlite3_stmt, statement_finalizer>;

// One open data file. Opening with a pass-phrase derives the key once per process and file salt;
// every later open of the same file uses the raw key, so a connection per action stays cheap.
class connection {
public:
    // Opens an existing encrypted file (never creates one) and checks that the key reads it.
    static std::shared_ptr<connection> open(const QString& path, const QByteArray& passphrase);
    // Creates a new encrypted file keyed with the pass-phrase (the file builder and the tests).
    static std::shared_ptr<connection> create(const QString& path, const QByteArray& passphrase);
    ~connection();
    connection(const connection&) = delete;
    connection& operator=(const connection&) = delete;

    // Runs the first statement of the text, in the old dialect. Throws sql::error.
    void execute(const QString& statement);
    // Runs a script of SQLite statements as they stand (schema building only).
    void execute_script(const QByteArray& script);
    // Compiles the first statement of the text, in the old dialect. Throws sql::error.
    statement_ptr prepare(const QString& statement);
    // Compiles SQLite's own text as it stands (the record set's writes); nullptr on failure.
    statement_ptr prepare_native(const QString& text);
    sqlite3* handle() const { return db_; }
    // Gives back the page cache the connection holds, after a long read.
    void release_memory();
    QString last_error() const;

    // What a column accepts, as the old file's column types decided: called for each value a
    // record set writes (table, column, value); throwing sql::error refuses the whole row.
    using column_check = std::function<void(const QString&, const QString&, const QVariant&)>;
    void set_column_check(column_check c) { check_ = std::move(c); }
    const column_check& check() const { return check_; }

private:
    explicit connection(sqlite3* db) : db_(db) {}
    sqlite3* db_ = nullptr;
    column_check check_;
};

using connection_ptr = std::shared_ptr<connection>;

// How long the process has spent deriving keys, and how often (bench and tests).
int key_derivations();

} // namespace sql
