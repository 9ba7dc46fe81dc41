#pragma once
// A list as reports read it: columns with their heading, width and visibility, and rows of texts.
// The on-screen list offers this, so exports and printing never touch a widget.

#include <QString>

namespace platform {

class table_source {
public:
    virtual ~table_source() = default;
    virtual int column_count() const = 0;
    virtual QString column_text(int col) const = 0;
    // Width in twips (1440 to the inch); 0 for a hidden column.
    virtual double column_width(int col) const = 0;
    virtual int row_count() const = 0;
    // Column 0 is the item's own text, the others its sub-items.
    virtual QString text(int row, int col) const = 0;
};

} // namespace platform
