#include "platform/widgets/money_field.h"

#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace {

bool is_ascii_digit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace

money_field::money_field(QWidget* parent) : QLineEdit(parent) {
    install_field_conduct(this);
    // Typing is filtered key by key; this catches what arrives otherwise (paste, drop, input method).
    connect(this, &QLineEdit::textEdited, this, &money_field::drop_untypable);
}

QString money_field::text_on_entering(const QString& text) {
    return vb::reformat_money_text(text);
}

QString money_field::text_on_leaving(const QString& text) {
    if (text.isEmpty()) return text;
    if (text.front() == QLatin1Char('.') || text.front() == QLatin1Char(','))
        return text_on_entering(QStringLiteral("00,00"));
    return text_on_entering(text);
}

void money_field::set_leaving_prefix(const QString& prefix, bool empty_to_zero) {
    prefix_ = prefix.isNull() ? QStringLiteral("") : prefix;
    empty_to_zero_ = empty_to_zero;
}

QString money_field::text_on_leaving(const QString& text, const QString& prefix, bool empty_to_zero) {
    const QString zero = prefix + QStringLiteral("00,00");
    if (text.isEmpty()) return empty_to_zero ? zero : text;
    if (text.front() == QLatin1Char('.') || text.front() == QLatin1Char(',')) return zero;
    try {
        const auto v = vb::ccur(text);
        return v ? vb::format_money_prefixed(*v, prefix) : text;
    } catch (const vb::overflow_error&) {
        return text;
    }
}

QString money_field::typable_part(const QString& text) {
    QString out;
    out.reserve(text.size());
    bool comma = false;
    for (QChar c : text) {
        if (c == QLatin1Char(',')) {
            if (comma) continue;
            comma = true;
            out += c;
        } else if (is_ascii_digit(c) || c == QLatin1Char('.')) {
            out += c;
        }
    }
    return out;
}

void money_field::drop_untypable(const QString& edited) {
    const QString kept = typable_part(edited);
    if (kept == edited) return;
    const QString before_cursor = typable_part(edited.left(cursorPosition()));
    setText(kept);
    setCursorPosition(int(before_cursor.size()));
}

void money_field::keyPressEvent(QKeyEvent* e) {
    if (is_enter_key(*e)) {
        send_tab(this);
        return;
    }
    if ((e->modifiers() & Qt::AltModifier) && !(e->modifiers() & Qt::ControlModifier)) {
        // Alt keys belong to the window (its shortcuts), never to the text.
        e->ignore();
        return;
    }
    const QString typed = e->text();
    // Moving keys, Backspace and Delete, and shortcuts (copy, paste, undo) go on as usual.
    if (typed.size() != 1 || typed.front().unicode() < 0x20 || typed.front().unicode() == 0x7F ||
        (e->modifiers() & (Qt::ControlModifier | Qt::MetaModifier))) {
        QLineEdit::keyPressEvent(e);
        return;
    }
    const QChar c = typed.front();
    if (c == QLatin1Char(',')) {
        // The comma about to be replaced by this key does not count.
        QString kept = text();
        if (hasSelectedText()) kept.remove(selectionStart(), selectedText().size());
        if (kept.contains(QLatin1Char(','))) return;
    } else if (!is_ascii_digit(c) && c != QLatin1Char('.')) {
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void money_field::focusInEvent(QFocusEvent* e) {
    if (!inside_) {
        inside_ = true;
        const QString shown = text_on_entering(text());
        if (shown != text()) setText(shown);
    }
    // After the new text, so that tabbing in still selects all of it.
    QLineEdit::focusInEvent(e);
}

void money_field::focusOutEvent(QFocusEvent* e) {
    if (is_leaving_field(*e)) {
        inside_ = false;
        const QString shown =
            prefix_.isNull() ? text_on_leaving(text()) : text_on_leaving(text(), prefix_, empty_to_zero_);
        if (shown != text()) setText(shown);
    }
    QLineEdit::focusOutEvent(e);
}
