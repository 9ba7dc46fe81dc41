#include "platform/widgets/money_field.h"

#include "key_input.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QVBoxLayout>

#include <gtest/gtest.h>

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

TEST(money_field, typing_then_leaving) {
    struct row {
        const char* keys;
        const char* typed; // what the field holds before leaving
        const char* shown; // after leaving
    };
    const row rows[] = {
        {"1.234,56", "1.234,56", "1.234,56"},
        {"1234,5", "1234,5", "1.234,50"},
        {"12,3,4", "12,34", "12,34"}, // the second comma does nothing
        {"", "", ""},                 // empty stays empty
        {",5", ",5", "0,00"},         // a leading separator gives zero, not 0,50
        {".75", ".75", "0,00"},
        {"12a3b", "123", "123,00"}, // letters are discarded
        {"R$ 7-", "7", "7,00"},
        {"1000000", "1000000", "1.000.000,00"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.keys);
        value_window w;
        keys::type(w.txtvalor, QString::fromUtf8(r.keys));
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.typed));
        w.leave();
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.shown));
    }
}

TEST(money_field, backspace_and_a_comma_over_the_selected_comma) {
    value_window w;
    keys::type(w.txtvalor, QStringLiteral("12,5"));
    keys::press(w.txtvalor, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
    keys::press(w.txtvalor, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
    EXPECT_EQ(w.txtvalor->text(), QStringLiteral("12"));
    keys::type(w.txtvalor, QStringLiteral(",7"));
    EXPECT_EQ(w.txtvalor->text(), QStringLiteral("12,7"));
    // Typing over a selection that holds the comma may put a comma back.
    w.txtvalor->setSelection(2, 2);
    keys::type(w.txtvalor, QStringLiteral(","));
    EXPECT_EQ(w.txtvalor->text(), QStringLiteral("12,"));
}

TEST(money_field, entering_formats_and_unreadable_text_stays) {
    struct row {
        const char* set;
        const char* on_entering;
        const char* on_leaving;
    };
    const row rows[] = {
        {"1234,5", "1.234,50", "1.234,50"},
        {"abc", "abc", "abc"},
        {"1,2.3", "1,2.3", "1,2.3"},
        // beyond the currency range: shown as it is, never an error
        {"99999999999999999999", "99999999999999999999", "99999999999999999999"},
        {",5", "0,50", "0,50"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.set);
        value_window w;
        w.leave();
        w.txtvalor->setText(QString::fromUtf8(r.set));
        w.txtvalor->setFocus();
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.on_entering));
        w.leave();
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.on_leaving));
    }
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
        w.txtvalor->set_leaving_prefix(QStringLiteral("R$ "), r.empty_to_zero);
        w.txtvalor->setText(QString::fromUtf8(r.typed));
        w.leave();
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.on_leaving));
    }
    // coming back shows the plain number: the prefix is read, never doubled
    value_window w;
    w.txtvalor->set_leaving_prefix(QStringLiteral("R$ "), true);
    w.txtvalor->setText(QStringLiteral("R$ 1.234,50"));
    w.leave();
    w.txtvalor->setFocus();
    EXPECT_EQ(w.txtvalor->text(), QStringLiteral("1.234,50"));
}

TEST(money_field, enter_moves_on_and_colours_follow_the_focus) {
    value_window w;
    EXPECT_EQ(w.txtvalor->palette().color(QPalette::Base), QColor(255, 255, 192));
    keys::type(w.txtvalor, QStringLiteral("5"));
    keys::enter(w.txtvalor);
    EXPECT_TRUE(w.next->hasFocus());
    EXPECT_EQ(w.txtvalor->text(), QStringLiteral("5,00"));
    EXPECT_EQ(w.txtvalor->palette().color(QPalette::Base), QColor(Qt::white));
}

TEST(money_field, pasted_text_keeps_only_what_could_be_typed) {
    struct row {
        const char* before;
        const char* clipboard;
        const char* after;
    };
    const row rows[] = {
        {"", "R$ 1.234,56", "1.234,56"},
        {"", "abc", ""},
        {"", "1,2,3", "1,23"},
        {"12,5", ",75", "12,575"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.clipboard);
        value_window w;
        keys::type(w.txtvalor, QString::fromUtf8(r.before));
        QGuiApplication::clipboard()->setText(QString::fromUtf8(r.clipboard));
        keys::press(w.txtvalor, Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"));
        EXPECT_EQ(w.txtvalor->text(), QString::fromUtf8(r.after));
    }
}

TEST(money_field, alt_keys_type_nothing) {
    value_window w;
    keys::alt(w.txtvalor, 'c');
    keys::press(w.txtvalor, Qt::Key_1, Qt::AltModifier, QStringLiteral("1"));
    EXPECT_EQ(w.txtvalor->text(), QString());
}

} // namespace
