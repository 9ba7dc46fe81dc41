#pragma once
// Rows of texts held compactly: each row's cells lie end to end as UTF-8 in large blocks, so a
// million rows hold no allocation of their own. Rows are shown through an order of indexes: a
// sort, a removal or a changed cell moves indexes, never texts. The lists of every window keep
// their rows here, and the loaders of long lists write straight into one.

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

class row_table {
public:
    row_table() = default;
    row_table(row_table&&) noexcept = default;
    row_table& operator=(row_table&&) noexcept = default;

    // Appending: the cells of a row one by one, then end_row(). A row stands last in the order.
    void add_cell(QByteArrayView utf8);
    void add_cell(QStringView text);
    void end_row();
    void add_row(const QStringList& cells);

    // The rows as shown.
    std::size_t size() const { return order_.size(); }
    bool empty() const { return order_.empty(); }
    int cell_count(std::size_t row) const;
    // Empty text for a cell the row does not have.
    QString text(std::size_t row, int col) const;
    QStringList row(std::size_t row) const;
    QStringList operator[](std::size_t r) const { return row(r); }
    std::vector<QStringList> to_lists() const;

    // The rows written so far, in the order they were written.
    std::size_t stored() const { return refs_.size(); }
    // Shows the stored rows in the given order; indexes past the stored rows are left out.
    void set_order(std::vector<std::uint32_t> order);
    // The order itself, for a sort that permutes it.
    std::vector<std::uint32_t>& order() { return order_; }
    void set_text(std::size_t row, int col, const QString& text);
    void remove(std::size_t row);
    void clear();

    friend bool operator==(const row_table& a, const row_table& b);

private:
    struct ref {
        std::uint32_t block;
        std::uint32_t offset;
    };
    const char* at(std::size_t row) const;
    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t used_ = 0, capacity_ = 0;
    std::vector<ref> refs_;
    std::vector<std::uint32_t> order_;
    // the row being written: the count of cells, then each cell's length and bytes
    std::string pending_;
    std::uint32_t pending_cells_ = 0;
};

} // namespace platform
