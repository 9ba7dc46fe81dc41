#pragma once
// The value field of every entry form: only digits, points and one comma can be typed, and the
// text is shown as "#,##0.00" when the field is entered and left.

#include <QLineEdit>
#include <QString>

class money_field : public QLineEdit {
    Q_OBJECT
public:
    explicit money_field(QWidget* parent = nullptr);

    // The text once the field has the focus: "#,##0.00", or as it was when it cannot be read.
    static QString text_on_entering(const QString& text);
    // The text once the field is left: empty stays empty, a leading point or comma gives 0,00.
    static QString text_on_leaving(const QString& text);
    // The forms of the windows that show the amount with its currency prefix once left
    // ("R$ 1.234,50"): a text that starts with a point or a comma becomes the prefix and "00,00",
    // and so does an empty one when empty_to_zero; other text that is no amount stays as it is.
    void set_leaving_prefix(const QString& prefix, bool empty_to_zero);
    static QString text_on_leaving(const QString& text, const QString& prefix, bool empty_to_zero);
    // What remains of pasted or dropped text: digits, points and the first comma.
    static QString typable_part(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    void drop_untypable(const QString& edited);

    QString prefix_; // null: the plain form
    bool empty_to_zero_ = false;
    // Between entering and leaving; the window coming back to the front is not entering again.
    bool inside_ = false;
};
