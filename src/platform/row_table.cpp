#include "platform/row_table.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::size_t block_size = std::size_t(1) << 20;

void put_length(std::string& out, std::size_t n) {
    while (n >= 0x80) {
        out.push_back(char(std::uint8_t(n) | 0x80));
        n >>= 7;
    }
    out.push_back(char(n));
}

std::size_t get_length(const char*& p) {
    std::size_t n = 0;
    for (int shift = 0;; shift += 7) {
        const auto b = std::uint8_t(*p++);
        n |= std::size_t(b & 0x7f) << shift;
        if (!(b & 0x80)) return n;
    }
}

} // namespace

void row_table::add_cell(QByteArrayView utf8) {
    put_length(pending_, std::size_t(utf8.size()));
    pending_.append(utf8.data(), std::size_t(utf8.size()));
    ++pending_cells_;
}

void row_table::add_cell(QStringView text) {
    add_cell(QByteArrayView(text.toUtf8()));
}

void row_table::end_row() {
    std::string head;
    put_length(head, pending_cells_);
    const std::size_t bytes = head.size() + pending_.size();
    if (blocks_.empty() || used_ + bytes > capacity_) {
        capacity_ = std::max(block_size, bytes);
        blocks_.push_back(std::unique_ptr<char[]>(new char[capacity_]));
        used_ = 0;
    }
    char* to = blocks_.back().get() + used_;
    to = std::copy(head.begin(), head.end(), to);
    std::copy(pending_.begin(), pending_.end(), to);
    order_.push_back(std::uint32_t(refs_.size()));
    refs_.push_back({std::uint32_t(blocks_.size() - 1), std::uint32_t(used_)});
    used_ += bytes;
    pending_.clear();
    pending_cells_ = 0;
}

void row_table::add_row(const QStringList& cells) {
    for (const QString& c : cells)
        add_cell(QStringView(c));
    end_row();
}

const char* row_table::at(std::size_t row) const {
    const ref r = refs_[order_[row]];
    return blocks_[r.block].get() + r.offset;
}

int row_table::cell_count(std::size_t row) const {
    if (row >= order_.size()) return 0;
    const char* p = at(row);
    return int(get_length(p));
}

QString row_table::text(std::size_t row, int col) const {
    if (row >= order_.size() || col < 0) return {};
    const char* p = at(row);
    const std::size_t n = get_length(p);
    if (std::size_t(col) >= n) return {};
    for (int c = 0;; ++c) {
        const std::size_t len = get_length(p);
        if (c == col) return QString::fromUtf8(p, qsizetype(len));
        p += len;
    }
}

QStringList row_table::row(std::size_t row) const {
    QStringList out;
    if (row >= order_.size()) return out;
    const char* p = at(row);
    const std::size_t n = get_length(p);
    out.reserve(qsizetype(n));
    for (std::size_t c = 0; c < n; ++c) {
        const std::size_t len = get_length(p);
        out.append(QString::fromUtf8(p, qsizetype(len)));
        p += len;
    }
    return out;
}

std::vector<QStringList> row_table::to_lists() const {
    std::vector<QStringList> out;
    out.reserve(order_.size());
    for (std::size_t r = 0; r < order_.size(); ++r)
        out.push_back(row(r));
    return out;
}

void row_table::set_order(std::vector<std::uint32_t> order) {
    // a walk stopped by an error may have keyed a row it did not write
    std::erase_if(order, [this](std::uint32_t i) { return i >= refs_.size(); });
    order_ = std::move(order);
}

void row_table::set_text(std::size_t row, int col, const QString& text) {
    if (row >= order_.size() || col < 0) return;
    QStringList cells = this->row(row);
    while (cells.size() <= col)
        cells.append(QString());
    cells[col] = text;
    // the row is written again at the end and the order points at it
    add_row(cells);
    order_[row] = order_.back();
    order_.pop_back();
}

void row_table::remove(std::size_t row) {
    if (row < order_.size()) order_.erase(order_.begin() + std::ptrdiff_t(row));
}

void row_table::clear() {
    *this = row_table();
}

bool operator==(const row_table& a, const row_table& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t r = 0; r < a.size(); ++r)
        if (a.row(r) != b.row(r)) return false;
    return true;
}

} // namespace platform
