#include "platform/sql/recordset.h"

#include <QRegularExpression>

#include <sqlite3.h>

namespace sql {

namespace {

const QString rowid_column = QStringLiteral("quintara_rowid");

bool is_plain_name(const QString& s) {
    static const QRegularExpression name(QStringLiteral("^\\s*\\[?([\\w]+)\\]?\\s*$"));
    return name.match(s).hasMatch();
}

QString plain_name(const QString& s) {
    QString n = s.trimmed();
    if (n.startsWith(QLatin1Char('[')) && n.endsWith(QLatin1Char(']'))) n = n.mid(1, n.size() - 2);
    return n;
}

void bind(sqlite3_stmt* st, int i, const QVariant& v) {
    if (v.isNull() || !v.isValid()) {
        sqlite3_bind_null(st, i);
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
        sqlite3_bind_int64(st, i, v.toLongLong());
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        sqlite3_bind_double(st, i, v.toDouble());
        return;
    default: {
        const QByteArray t = v.toString().toUtf8();
        sqlite3_bind_text(st, i, t.constData(), int(t.size()), SQLITE_TRANSIENT);
    }
    }
}

QString quote_ident(const QString& n) {
    return QLatin1Char('"') + QString(n).replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

} // namespace

void recordset::open(const QString& source, const connection_ptr& conn, int /*cursor*/, int lock) {
    close();
    if (!conn) throw error(QStringLiteral("A operação não é permitida quando o objeto está fechado."));
    conn_ = conn;
    lock_ = lock;
    const bool writable = lock == pessimistic || lock == optimistic || lock == batch_optimistic;
    QString statement;
    std::optional<sorted_read> sorted;
    table_.clear();
    first_visible_ = 0;
    if (is_plain_name(source)) {
        table_ = plain_name(source);
        statement = QStringLiteral("SELECT rowid AS %1, * FROM %2").arg(rowid_column, quote_ident(table_));
        first_visible_ = 1;
    } else {
        static const QRegularExpression single(
            QStringLiteral("^\\s*select\\s+\\*\\s+from\\s+\\[?(\\w+)\\]?(\\s|\\(|$)"),
            QRegularExpression::CaseInsensitiveOption);
        const auto m = single.match(source);
        const auto with_rowid = [](const QString& text) {
            const qsizetype star = text.indexOf(QLatin1Char('*'));
            return text.left(star) + QStringLiteral("rowid AS ") + rowid_column + QStringLiteral(", *") +
                   text.mid(star + 1);
        };
        if (writable && m.hasMatch()) {
            table_ = m.captured(1);
            statement = with_rowid(source);
            first_visible_ = 1;
        } else if (auto sr = writable ? std::nullopt : plan_sorted_read(conn, source)) {
            statement = with_rowid(sr->unordered);
            first_visible_ = 1;
            sorted = std::move(sr);
        } else {
            statement = source;
        }
    }
    const statement_ptr st = conn->prepare(statement);
    const int n = sqlite3_column_count(st.get());
    cols_ = std::size_t(n);
    names_.clear();
    lower_names_.clear();
    for (int i = 0; i < n; ++i) {
        names_.push_back(QString::fromUtf8(sqlite3_column_name(st.get(), i)));
        lower_names_.push_back(names_.back().toCaseFolded());
    }
    int rc;
    while ((rc = sqlite3_step(st.get())) == SQLITE_ROW)
        append_row_from(st.get());
    if (rc != SQLITE_DONE) {
        const QString why = conn->last_error();
        close();
        throw error(why);
    }
    if (sorted) sort_rows(*sorted);
    pos_ = 0;
    open_ = true;
}

void recordset::sort_rows(const sorted_read& how) {
    const int key = index_of(how.column);
    if (key < 0) return;
    const std::size_t n = std::size_t(rows());
    std::vector<sort_key> keys(n);
    for (std::size_t r = 0; r < n; ++r) {
        const cell& id = cells_[r * cols_];
        const cell& c = cells_[r * cols_ + std::size_t(key + first_visible_)];
        keys[r] =
            sort_key::of(c.type, std::string_view(arena_.data() + c.offset, c.size),
                         std::strtoll(std::string(arena_.data() + id.offset, id.size).c_str(), nullptr, 10));
    }
    std::vector<cell> sorted_cells;
    sorted_cells.reserve(cells_.size());
    for (const std::uint32_t r : sorted_order(keys, how.descending))
        sorted_cells.insert(sorted_cells.end(), cells_.begin() + std::ptrdiff_t(r * cols_),
                            cells_.begin() + std::ptrdiff_t((r + 1) * cols_));
    cells_ = std::move(sorted_cells);
}

void recordset::append_row_from(sqlite3_stmt* st) {
    for (std::size_t c = 0; c < cols_; ++c) {
        const int type = sqlite3_column_type(st, int(c));
        cell cl{std::uint32_t(arena_.size()), 0, std::uint8_t(type)};
        if (type != SQLITE_NULL) {
            const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(st, int(c)));
            const int len = sqlite3_column_bytes(st, int(c));
            arena_.append(t, std::size_t(len));
            cl.size = std::uint32_t(len);
        }
        cells_.push_back(cl);
    }
}

void recordset::close() {
    open_ = false;
    conn_.reset();
    names_.clear();
    lower_names_.clear();
    cells_.clear();
    cells_.shrink_to_fit();
    arena_.clear();
    arena_.shrink_to_fit();
    cols_ = 0;
    pos_ = 0;
    mode_ = edit_mode::none;
    pending_.clear();
}

void recordset::move_next() {
    if (eof()) throw error(QStringLiteral("BOF ou EOF é True ou o registro atual foi excluído."));
    ++pos_;
}

int recordset::index_of(const QString& name) const {
    for (std::size_t i = std::size_t(first_visible_); i < names_.size(); ++i)
        if (names_[i].compare(name, Qt::CaseInsensitive) == 0) return int(i) - first_visible_;
    const QString folded = name.toCaseFolded();
    for (std::size_t i = std::size_t(first_visible_); i < lower_names_.size(); ++i)
        if (lower_names_[i] == folded) return int(i) - first_visible_;
    return -1;
}

int recordset::checked_index(const QString& name) const {
    const int i = index_of(name);
    if (i < 0)
        throw error(QStringLiteral("O item não pode ser encontrado na coleção correspondente ao nome ou ao "
                                   "ordinal solicitado. (%1)")
                        .arg(name));
    return i;
}

QVariant recordset::read_cell(std::size_t row, int col) const {
    const cell& c = cells_[row * cols_ + std::size_t(col)];
    const char* p = arena_.data() + c.offset;
    switch (c.type) {
    case SQLITE_NULL:
        return QVariant();
    case SQLITE_INTEGER:
        return QVariant(QByteArray::fromRawData(p, qsizetype(c.size)).toLongLong());
    case SQLITE_FLOAT:
        return QVariant(QByteArray::fromRawData(p, qsizetype(c.size)).toDouble());
    default:
        return QVariant(QString::fromUtf8(p, qsizetype(c.size)));
    }
}

QVariant recordset::value(int index) const {
    if (!open_ || eof() || pos_ < 0)
        throw error(QStringLiteral("BOF ou EOF é True ou o registro atual foi excluído."));
    if (index < 0 || index >= field_count()) throw error(QStringLiteral("Índice de campo inválido."));
    const int col = index + first_visible_;
    if (mode_ != edit_mode::none)
        for (const auto& [i, v] : pending_)
            if (i == col) return v;
    if (mode_ == edit_mode::adding) return QVariant();
    return read_cell(std::size_t(pos_), col);
}

QVariant recordset::value(const QString& name) const {
    return value(checked_index(name));
}

QString recordset::text(int index) const {
    if (mode_ == edit_mode::none && open_ && pos_ >= 0 && !eof() && index >= 0 && index < field_count()) {
        const cell& c = cells_[std::size_t(pos_) * cols_ + std::size_t(index + first_visible_)];
        return QString::fromUtf8(arena_.data() + c.offset, qsizetype(c.size));
    }
    const QVariant v = value(index);
    return v.isNull() ? QString() : v.toString();
}

QByteArrayView recordset::raw(int index) const {
    if (mode_ != edit_mode::none || !open_ || pos_ < 0 || eof())
        throw error(QStringLiteral("BOF ou EOF é True ou o registro atual foi excluído."));
    if (index < 0 || index >= field_count()) throw error(QStringLiteral("Índice de campo inválido."));
    const cell& c = cells_[std::size_t(pos_) * cols_ + std::size_t(index + first_visible_)];
    return QByteArrayView(arena_.data() + c.offset, qsizetype(c.size));
}

bool recordset::is_null(const QString& name) const {
    return value(name).isNull();
}

void recordset::ensure_writable() const {
    if (!open_) throw error(QStringLiteral("A operação não é permitida quando o objeto está fechado."));
    if (table_.isEmpty() || lock_ == read_only || lock_ == lock_unspecified)
        throw error(
            QStringLiteral("O recordset atual não dá suporte a atualização. Isso pode ser uma limitação do "
                           "provedor ou do tipo de bloqueio selecionado."));
}

void recordset::add_new() {
    ensure_writable();
    mode_ = edit_mode::adding;
    pending_.clear();
}

void recordset::set(const QString& name, const QVariant& v) {
    ensure_writable();
    const int col = checked_index(name) + first_visible_;
    if (mode_ == edit_mode::none) {
        if (eof() || pos_ < 0)
            throw error(QStringLiteral("BOF ou EOF é True ou o registro atual foi excluído."));
        mode_ = edit_mode::editing;
    }
    for (auto& [i, old] : pending_)
        if (i == col) {
            old = v;
            return;
        }
    pending_.emplace_back(col, v);
}

void recordset::update() {
    if (mode_ == edit_mode::none) return;
    ensure_writable();
    if (conn_->check())
        for (const auto& [i, v] : pending_)
            conn_->check()(table_, names_[std::size_t(i)], v);
    QStringList cols;
    for (const auto& [i, v] : pending_)
        cols << quote_ident(names_[std::size_t(i)]);
    QString text;
    long long rowid = 0;
    if (mode_ == edit_mode::adding) {
        if (cols.isEmpty())
            text = QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(quote_ident(table_));
        else
            text =
                QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                    .arg(
                        quote_ident(table_), cols.join(QLatin1Char(',')),
                        QStringList(QList<QString>(cols.size(), QStringLiteral("?"))).join(QLatin1Char(',')));
    } else {
        rowid = read_cell(std::size_t(pos_), 0).toLongLong();
        QStringList sets;
        for (const QString& c : cols)
            sets << c + QStringLiteral("=?");
        text = QStringLiteral("UPDATE %1 SET %2 WHERE rowid=?")
                   .arg(quote_ident(table_), sets.join(QLatin1Char(',')));
    }
    const statement_ptr st = conn_->prepare_native(text);
    if (!st) throw error(conn_->last_error());
    int k = 1;
    for (const auto& [i, v] : pending_)
        bind(st.get(), k++, v);
    if (mode_ == edit_mode::editing) sqlite3_bind_int64(st.get(), k, rowid);
    const int rc = sqlite3_step(st.get());
    // a failed write keeps the edit pending, as the old record set did
    if (rc != SQLITE_DONE) throw error(conn_->last_error());
    if (mode_ == edit_mode::adding) {
        rowid = sqlite3_last_insert_rowid(conn_->handle());
        cells_.resize(cells_.size() + cols_, cell{0, 0, SQLITE_NULL});
        pos_ = rows() - 1;
    }
    mode_ = edit_mode::none;
    pending_.clear();
    reload_row(std::size_t(pos_), rowid);
}

void recordset::reload_row(std::size_t row, long long rowid) {
    const statement_ptr st = conn_->prepare_native(
        QStringLiteral("SELECT rowid, * FROM %1 WHERE rowid=?").arg(quote_ident(table_)));
    if (!st) return;
    sqlite3_bind_int64(st.get(), 1, rowid);
    if (sqlite3_step(st.get()) == SQLITE_ROW && std::size_t(sqlite3_column_count(st.get())) == cols_) {
        // the fresh copy is appended, then moved over the old cells; the old bytes stay in the arena
        append_row_from(st.get());
        std::copy(cells_.end() - std::ptrdiff_t(cols_), cells_.end(),
                  cells_.begin() + std::ptrdiff_t(row * cols_));
        cells_.resize(cells_.size() - cols_);
    }
}

} // namespace sql
