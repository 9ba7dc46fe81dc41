#include "platform/widgets/money_field.h"

#include "support/golden.h"
#include "support/key_input.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct value_window {
    QWidget window;
    money_field* txtvalor = new money_field;
    QLineEdit* next = new QLineEdit;

    value_window() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(txtvalor);
        layout->addWidget(next);
        keys::show_active(&window);
        txtvalor->setFocus();
    }
    void leave() { next->setFocus(); }
};

// "typed [keys]" (what the field holds, then what it shows after leaving), "entered [text]" (the text
// on entering, then after leaving again), "pasted [before] [clipboard]", against
// tests/data/platform/money_field.txt.
TEST(money_field, typing_entering_and_pasting_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"platform/money_field.txt"_s, [](const QString& line) {
        const QStringList b = support::bracketed(line);
        value_window w;
        if (line.startsWith(u"typed"_s)) {
            keys::type(w.txtvalor, b[0]);
        } else if (line.startsWith(u"entered"_s)) {
            w.leave();
            w.txtvalor->setText(b[0]);
            w.txtvalor->setFocus();
        } else {
            keys::type(w.txtvalor, b[0]);
            QGuiApplication::clipboard()->setText(b[1]);
            keys::press(w.txtvalor, Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
        }
        QStringList out{w.txtvalor->text()};
        // Enter goes on as Tab, and leaving formats
        keys::enter(w.txtvalor);
        out << (w.next->hasFocus() ? w.txtvalor->text() : u"(still in the field)"_s);
        return out;
    }));
}

TEST(money_field, backspace_and_a_comma_over_the_selected_comma) {
    value_window w;
    keys::type(w.txtvalor, u"12,5"_s);
    keys::press(w.txtvalor, Qt::Key_Backspace, Qt::NoModifier, u"\b"_s);
    keys::press(w.txtvalor, Qt::Key_Backspace, Qt::NoModifier, u"\b"_s);
    EXPECT_EQ(w.txtvalor->text(), u"12"_s);
    keys::type(w.txtvalor, u",7"_s);
    EXPECT_EQ(w.txtvalor->text(), u"12,7"_s);
    // Typing over a selection that holds the comma may put a comma back.
    w.txtvalor->setSelection(2, 2);
    keys::type(w.txtvalor, u","_s);
    EXPECT_EQ(w.txtvalor->text(), u"12,"_s);
}

TEST(money_field, the_prefixed_forms_of_the_receipt_and_the_service_order) {
    struct row {
        const char* typed;
        bool empty_to_zero;
        const char* on_leaving;
    };
    const row rows[] = {
        {"1234,5", true, "R$ 1.234,50"},
        {"", true, "R$ 00,00"},
        {"", false, ""},
        {",5", false, "R$ 00,00"}, // the leading separator wins over the amount
        {"abc", true, "abc"},
        {"99999999999999999999", true, "99999999999999999999"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.typed);
        value_window w;
        w.txtvalor->set_leaving_prefix(u"R$ "_s, r.empty_to_zero);
        w.txtvalor->setText(QString::fromUtf8(r.typed));
        w.leave();
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.on_leaving));
    }
    // coming back shows the plain number: the prefix is read, never doubled
    value_window w;
    w.txtvalor->set_leaving_prefix(u"R$ "_s, true);
    w.txtvalor->setText(u"R$ 1.234,50"_s);
    w.leave();
    w.txtvalor->setFocus();
    EXPECT_EQ(w.txtvalor->text(), u"1.234,50"_s);
}

TEST(money_field, alt_keys_type_nothing) {
    value_window w;
    keys::alt(w.txtvalor, 'c');
    keys::press(w.txtvalor, Qt::Key_1, Qt::AltModifier, u"1"_s);
    EXPECT_EQ(w.txtvalor->text(), QString());
}

} // namespace
