#include "platform/sql/row_stream.h"

#include <sqlite3.h>

#include <numeric>

namespace sql {

row_stream::row_stream(const connection_ptr& conn, const QString& statement) : conn_(conn) {
    if (!conn) throw error(QStringLiteral("A operação não é permitida quando o objeto está fechado."));
    QString text = statement;
    sorted_ = plan_sorted_read(conn, statement);
    if (sorted_) {
        const qsizetype star = sorted_->unordered.indexOf(QLatin1Char('*'));
        text = sorted_->unordered.left(star) + QStringLiteral("rowid, *") + sorted_->unordered.mid(star + 1);
        first_ = 1;
    }
    st_ = conn->prepare(text);
    const int n = sqlite3_column_count(st_.get());
    for (int i = 0; i < n; ++i)
        names_.push_back(QString::fromUtf8(sqlite3_column_name(st_.get(), i)));
    if (sorted_) {
        key_ = index_of(sorted_->column);
        if (key_ < 0) sorted_.reset();
    }
}

bool row_stream::next() {
    const int rc = sqlite3_step(st_.get());
    if (rc == SQLITE_DONE) return false;
    if (rc != SQLITE_ROW) throw error(conn_->last_error());
    if (sorted_) {
        const int c = key_ + first_;
        const int type = sqlite3_column_type(st_.get(), c);
        const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st_.get(), c));
        const std::string_view text(p ? p : "", std::size_t(sqlite3_column_bytes(st_.get(), c)));
        keys_.push_back(sort_key::of(type, text, sqlite3_column_int64(st_.get(), 0)));
    }
    ++rows_;
    return true;
}

int row_stream::index_of(const QString& name) const {
    for (std::size_t i = std::size_t(first_); i < names_.size(); ++i)
        if (names_[i].compare(name, Qt::CaseInsensitive) == 0) return int(i) - first_;
    const QString folded = name.toCaseFolded();
    for (std::size_t i = std::size_t(first_); i < names_.size(); ++i)
        if (names_[i].toCaseFolded() == folded) return int(i) - first_;
    return -1;
}

QByteArrayView row_stream::raw(int index) const {
    const int c = index + first_;
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st_.get(), c));
    return p ? QByteArrayView(p, sqlite3_column_bytes(st_.get(), c)) : QByteArrayView();
}

std::vector<std::uint32_t> row_stream::order() const {
    if (sorted_) return sorted_order(keys_, sorted_->descending);
    std::vector<std::uint32_t> identity(rows_);
    std::iota(identity.begin(), identity.end(), 0u);
    return identity;
}

} // namespace sql
