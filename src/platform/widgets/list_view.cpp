#include "platform/widgets/list_view.h"

#include "platform/text/vb_text.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <cmath>
#include <cstring>
#include <memory>
#include <numeric>

namespace {

double twips_per_pixel(const QWidget* w) {
    const int dpi = w ? w->logicalDpiX() : 96;
    return 1440.0 / (dpi > 0 ? dpi : 96);
}

// The number in a cell such as "R$ 1.234,56", "$ 12,00" or "-3,5": the currency sign is skipped.
double number_key(QStringView s) {
    qsizetype i = 0;
    while (i < s.size() && !s[i].isDigit() && s[i] != QLatin1Char('-') && s[i] != QLatin1Char(','))
        ++i;
    bool neg = false;
    if (i > 0 && s[i - 1] == QLatin1Char('-')) neg = true;
    const auto v = vb::cdbl(s.mid(i).toString());
    if (!v) return neg ? -0.0 : 0.0;
    return neg ? -*v : *v;
}

// Dates shown as dd/mm/yyyy; unreadable text sorts before every date.
qint64 date_key(QStringView s) {
    const QDate d = vb::cdate(s.toString());
    return d.isValid() ? d.toJulianDay() : std::numeric_limits<qint64>::min();
}

} // namespace

class list_model : public QAbstractTableModel {
public:
    struct column {
        QString text;
        double width_twips;
        int tag;
        Qt::Alignment align;
    };

    std::vector<column> columns;
    QColor text_colour;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return cell(index.row(), index.column());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(
                Qt::Alignment(columns[std::size_t(index.column())].align | Qt::AlignVCenter));
        case Qt::ForegroundRole:
            return text_colour.isValid() ? QVariant(text_colour) : QVariant();
        default:
            return {};
        }
    }

    QVariant headerData(int section, Qt::Orientation o, int role) const override {
        if (o != Qt::Horizontal || section < 0 || section >= int(columns.size())) return {};
        if (role == Qt::DisplayRole) return columns[std::size_t(section)].text;
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::Alignment(columns[std::size_t(section)].align | Qt::AlignVCenter));
        return {};
    }

    QString cell(int row, int col) const { return row < 0 ? QString() : rows_.text(std::size_t(row), col); }

    void clear_rows() {
        beginResetModel();
        rows_.clear();
        endResetModel();
    }

    void add_rows(std::vector<QStringList>&& rows) {
        if (rows.empty()) return;
        const int first = int(rows_.size());
        beginInsertRows({}, first, first + int(rows.size()) - 1);
        for (auto& r : rows) {
            rows_.add_row(r);
            r = QStringList(); // free as we go: the caller's copy and ours never both stay whole
        }
        endInsertRows();
    }

    void add_rows(platform::row_table&& rows) {
        if (rows.empty()) return;
        const int first = int(rows_.size());
        beginInsertRows({}, first, first + int(rows.size()) - 1);
        if (rows_.empty()) {
            rows_ = std::move(rows);
        } else {
            for (std::size_t r = 0; r < rows.size(); ++r)
                rows_.add_row(rows.row(r));
            rows.clear();
        }
        endInsertRows();
    }

    void set_cell(int row, int col, const QString& text) {
        if (row < 0 || row >= rowCount() || col < 0) return;
        rows_.set_text(std::size_t(row), col, text);
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }

    void remove_row(int row) {
        if (row < 0 || row >= rowCount()) return;
        beginRemoveRows({}, row, row);
        rows_.remove(std::size_t(row));
        endRemoveRows();
    }

    void sort(int col, Qt::SortOrder order) override {
        if (col < 0 || col >= int(columns.size())) return;
        const int tag = columns[std::size_t(col)].tag;
        Q_EMIT layoutAboutToBeChanged();
        const QModelIndexList before = persistentIndexList();
        std::vector<std::uint32_t>& shown = rows_.order();
        const std::vector<std::uint32_t> old_order = shown;
        std::vector<int> rows(shown.size());
        std::iota(rows.begin(), rows.end(), 0);
        auto apply = [&](auto less) {
            if (order == Qt::AscendingOrder)
                std::stable_sort(rows.begin(), rows.end(), less);
            else
                std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) { return less(b, a); });
        };
        if (tag == list_view::tag_date) {
            std::vector<qint64> keys(rows.size());
            for (std::size_t i = 0; i < rows.size(); ++i)
                keys[i] = date_key(cell(int(i), col));
            apply([&](int a, int b) { return keys[std::size_t(a)] < keys[std::size_t(b)]; });
        } else if (tag == list_view::tag_number) {
            std::vector<double> keys(rows.size());
            for (std::size_t i = 0; i < rows.size(); ++i)
                keys[i] = number_key(cell(int(i), col));
            apply([&](int a, int b) { return keys[std::size_t(a)] < keys[std::size_t(b)]; });
        } else {
            std::vector<QString> keys(rows.size());
            for (std::size_t i = 0; i < rows.size(); ++i)
                keys[i] = cell(int(i), col);
            apply([&](int a, int b) {
                return keys[std::size_t(a)].compare(keys[std::size_t(b)], Qt::CaseInsensitive) < 0;
            });
        }
        std::vector<int> new_pos(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            shown[i] = old_order[std::size_t(rows[i])];
            new_pos[std::size_t(rows[i])] = int(i);
        }
        QModelIndexList after;
        for (const QModelIndex& i : before)
            after << index(new_pos[std::size_t(i.row())], i.column());
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged();
    }

    void columns_changed() {
        beginResetModel();
        endResetModel();
    }

private:
    platform::row_table rows_;
};

list_view::list_view(QWidget* parent) : QTreeView(parent), model_(new list_model) {
    model_->setParent(this);
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(true);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int col) {
        ordenarlista(col);
        Q_EMIT header_clicked(col);
    });
    connect(header(), &QHeaderView::sectionResized, this, [this](int col, int, int size) {
        if (col >= 0 && col < int(model_->columns.size()) && !header()->isSectionHidden(col)) {
            // keep the exact twips a layout gave unless the user really changed the pixel width
            auto& c = model_->columns[std::size_t(col)];
            if (twips_to_pixels(c.width_twips, this) != size) c.width_twips = pixels_to_twips(size, this);
        }
    });
}

list_view::~list_view() = default;

double list_view::pixels_to_twips(int px, const QWidget* w) {
    return px * twips_per_pixel(w);
}

int list_view::twips_to_pixels(double twips, const QWidget* w) {
    // a layout file may hold any width: held to what a screen can show before it becomes an int
    constexpr double widest = 100000;
    return int(std::lround(std::clamp(twips / twips_per_pixel(w), -widest, widest)));
}

void list_view::add_column(const QString& text, double width_twips, int tag, Qt::Alignment align) {
    model_->columns.push_back({text, width_twips, tag, align});
    model_->columns_changed();
    for (int c = 0; c < int(model_->columns.size()); ++c)
        set_column_width(c, model_->columns[std::size_t(c)].width_twips);
}

void list_view::clear_columns() {
    model_->clear_rows();
    model_->columns.clear();
    model_->columns_changed();
    arrow_col_ = -1;
}

int list_view::column_count() const {
    return int(model_->columns.size());
}

QString list_view::column_text(int col) const {
    return col >= 0 && col < column_count() ? model_->columns[std::size_t(col)].text : QString();
}

double list_view::column_width(int col) const {
    if (col < 0 || col >= column_count()) return 0;
    return header()->isSectionHidden(col) ? 0.0 : model_->columns[std::size_t(col)].width_twips;
}

void list_view::set_column_width(int col, double twips) {
    if (col < 0 || col >= column_count()) return;
    model_->columns[std::size_t(col)].width_twips = twips > 0 ? twips : 0;
    if (twips <= 0) {
        header()->hideSection(col);
        return;
    }
    header()->showSection(col);
    header()->resizeSection(col, twips_to_pixels(twips, this));
}

int list_view::column_tag(int col) const {
    return col >= 0 && col < column_count() ? model_->columns[std::size_t(col)].tag : tag_text;
}

int list_view::column_position(int col) const {
    return header()->visualIndex(col) + 1;
}

void list_view::set_column_position(int col, int position) {
    if (col < 0 || col >= column_count()) return;
    const int to = std::clamp(position - 1, 0, column_count() - 1);
    header()->moveSection(header()->visualIndex(col), to);
}

void list_view::clear_rows() {
    model_->clear_rows();
}

namespace {
void give_back_freed(int rows) {
#ifdef __GLIBC__
    // what a long load freed on the way would otherwise stay with the process for good
    if (rows >= 10000) malloc_trim(0);
#else
    (void)rows;
#endif
}
} // namespace

void list_view::add_rows(std::vector<QStringList>&& rows) {
    const int n = int(rows.size());
    model_->add_rows(std::move(rows));
    give_back_freed(n);
}

void list_view::add_rows(platform::row_table&& rows) {
    const int n = int(rows.size());
    model_->add_rows(std::move(rows));
    give_back_freed(n);
}

int list_view::row_count() const {
    return model_->rowCount();
}

QString list_view::text(int row, int col) const {
    return model_->cell(row, col);
}

void list_view::set_text(int row, int col, const QString& text) {
    model_->set_cell(row, col, text);
}

void list_view::remove_row(int row) {
    model_->remove_row(row);
}

int list_view::selected_row() const {
    const QModelIndexList sel = selectionModel()->selectedRows();
    if (!sel.isEmpty()) return sel.first().row();
    const QModelIndex cur = currentIndex();
    return cur.isValid() ? cur.row() : -1;
}

void list_view::select_row(int row) {
    if (row < 0 || row >= row_count()) {
        clearSelection();
        setCurrentIndex({});
        return;
    }
    const QModelIndex i = model_->index(row, 0);
    setCurrentIndex(i);
    selectionModel()->select(i, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(i);
}

void list_view::ordenarlista(int col) {
    if (col < 0 || col >= column_count()) return;
    if (arrow_col_ != col) {
        arrow_col_ = col;
        arrow_up_ = true;
    } else {
        arrow_up_ = !arrow_up_;
    }
    const Qt::SortOrder order = arrow_up_ ? Qt::AscendingOrder : Qt::DescendingOrder;
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(col, order);
    model_->sort(col, order);
}

int list_view::arrow_column() const {
    return arrow_col_;
}

bool list_view::arrow_ascending() const {
    return arrow_up_;
}

void list_view::set_list_font(const QFont& f) {
    setFont(f);
}

void list_view::set_text_colour(const QColor& c) {
    model_->text_colour = c;
    viewport()->update();
}

void list_view::pintarlinhas(const QColor& band1, const QColor& band2) {
    if (row_count() == 0) return; // an empty list keeps the look it had
    QPalette p = palette();
    p.setColor(QPalette::Base, band1);
    p.setColor(QPalette::AlternateBase, band2);
    setPalette(p);
    setAlternatingRowColors(true);
}

void list_view::mouseDoubleClickEvent(QMouseEvent* e) {
    QTreeView::mouseDoubleClickEvent(e);
    const QModelIndex i = indexAt(e->position().toPoint());
    if (i.isValid()) Q_EMIT row_double_clicked(i.row());
}
