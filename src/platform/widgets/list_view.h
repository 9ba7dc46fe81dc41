#pragma once
// The report-view list of every window: a text per row and sub-items, headings with widths in
// twips, display positions, a header click that sorts with an arrow, alternating row colours.
// Rows are kept compactly and appended in bulk, so 100,000 rows load in a fraction of a second.

#include "platform/row_table.h"
#include "platform/table_source.h"

#include <QStringList>
#include <QTreeView>

#include <vector>

class list_model;

class list_view : public QTreeView, public platform::table_source {
    Q_OBJECT
public:
    // How a column compares when its header is clicked: the column's Tag.
    enum tag_kind { tag_text = 0, tag_date = 1, tag_number = 2 };

    explicit list_view(QWidget* parent = nullptr);
    ~list_view() override;

    // Columns
    void add_column(const QString& text, double width_twips, int tag = tag_text,
                    Qt::Alignment align = Qt::AlignLeft);
    void clear_columns();
    int column_count() const override;
    QString column_text(int col) const override;
    double column_width(int col) const override;
    void set_column_width(int col, double twips);
    int column_tag(int col) const;
    // Display position, 1-based as the old lists counted it.
    int column_position(int col) const;
    void set_column_position(int col, int position);

    // Rows
    void clear_rows();
    // Appends rows at once (the loaders append a whole list in one go).
    void add_rows(std::vector<QStringList>&& rows);
    // Takes the rows over as they stand, in their order.
    void add_rows(platform::row_table&& rows);
    int row_count() const override;
    QString text(int row, int col) const override;
    void set_text(int row, int col, const QString& text);
    void remove_row(int row);
    int selected_row() const;
    void select_row(int row);

    // Sorting by header: no arrow -> ascending, ascending -> descending, descending -> ascending.
    void ordenarlista(int col);
    // The column with the arrow, or -1; and whether it points up.
    int arrow_column() const;
    bool arrow_ascending() const;

    // Appearance. pintarlinhas leaves an empty list as it stands.
    void set_list_font(const QFont& f);
    void set_text_colour(const QColor& c);
    void pintarlinhas(const QColor& band1, const QColor& band2);

    static double pixels_to_twips(int px, const QWidget* w = nullptr);
    static int twips_to_pixels(double twips, const QWidget* w = nullptr);

Q_SIGNALS:
    void header_clicked(int col);
    void row_double_clicked(int row);

protected:
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    list_model* model_;
    int arrow_col_ = -1;
    bool arrow_up_ = true;
};
