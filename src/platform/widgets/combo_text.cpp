#include "platform/widgets/combo_text.h"

#include <QComboBox>

void set_box_text(QComboBox* box, const QString& text) {
    if (!box) return;
    const int i = box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (i >= 0) {
        box->setCurrentIndex(i);
        // the index may already have been i while another text was typed over it
        if (box->isEditable()) box->setEditText(text);
        return;
    }
    box->setCurrentIndex(-1);
    if (box->isEditable()) box->setEditText(text);
}
