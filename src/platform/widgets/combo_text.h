#pragma once
// Puts a text into an editable box the way a choice would: when one of its entries reads exactly
// so, that entry becomes the current one (the arrow keys then move from it); any other text
// stands alone, with no entry current.

class QComboBox;
class QString;

void set_box_text(QComboBox* box, const QString& text);
