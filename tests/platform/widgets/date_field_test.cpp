#include "platform/widgets/date_field.h"

#include "platform/clock.h"

#include "key_input.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

struct date_window {
    QWidget window;
    date_field* txtvencimento = new date_field;
    QLineEdit* next = new QLineEdit;

    date_window() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(txtvencimento);
        layout->addWidget(next);
        keys::show_active(&window);
    }
};

TEST(date_field, starts_empty) {
    date_field d;
    EXPECT_TRUE(d.is_empty());
    EXPECT_EQ(d.text(), QString());
    EXPECT_FALSE(d.date().isValid());
}

TEST(date_field, set_text_reads_both_forms_and_keeps_what_it_cannot_read) {
    struct row {
        const char* set;
        const char* text;  // text()
        const char* shown; // what the box holds
    };
    const row rows[] = {
        {"23/11/2026", "23/11/2026", "23/11/2026"}, {"2026/11/23", "23/11/2026", "23/11/2026"},
        {"1/2/26", "01/02/2026", "01/02/2026"},     {"", "", ""},
        {"31/02/2026", "", "31/02/2026"},           {"amanhã", "", "amanhã"},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.set);
        date_field d;
        d.set_date(QDate(2020, 1, 1));
        d.set_text(QString::fromUtf8(r.set));
        EXPECT_EQ(d.text(), QString::fromUtf8(r.text));
        EXPECT_EQ(d.typed_text(), QString::fromUtf8(r.shown));
        EXPECT_EQ(d.date().isValid(), *r.text != '\0');
    }
    date_field d;
    d.set_text(QStringLiteral("2026/11/23"));
    EXPECT_EQ(d.date(), QDate(2026, 11, 23));
    d.set_date(QDate());
    EXPECT_TRUE(d.is_empty());
}

TEST(date_field, typed_dates_are_tidied_on_leaving_and_letters_are_not_typed) {
    struct row {
        const char* keys;
        const char* shown; // after leaving
        const char* text;
    };
    const row rows[] = {
        {"23/11/2026", "23/11/2026", "23/11/2026"}, {"23112026", "23/11/2026", "23/11/2026"},
        {"5/3/2027", "05/03/2027", "05/03/2027"},   {"2x3/1a1/2026", "23/11/2026", "23/11/2026"},
        {"99/99/9999", "99/99/9999", ""},           {"", "", ""},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.keys);
        date_window w;
        w.txtvencimento->setFocus();
        keys::type(w.txtvencimento->line_edit(), QString::fromUtf8(r.keys));
        keys::enter(w.txtvencimento->line_edit());
        EXPECT_TRUE(w.next->hasFocus());
        EXPECT_EQ(w.txtvencimento->typed_text(), QString::fromUtf8(r.shown));
        EXPECT_EQ(w.txtvencimento->text(), QString::fromUtf8(r.text));
    }
}

TEST(date_field, the_calendar_picks_a_date_and_tells_when_it_opens_and_closes) {
    platform::fixed_clock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    platform::set_clock(&clock);
    date_window w;
    int opened = 0, closed = 0;
    bool open_when_told = true;
    QObject::connect(w.txtvencimento, &date_field::calendar_opened, [&] {
        ++opened;
        open_when_told = w.txtvencimento->calendar_open();
    });
    QObject::connect(w.txtvencimento, &date_field::calendar_closed, [&] { ++closed; });

    w.txtvencimento->setFocus();
    keys::press(w.txtvencimento->line_edit(), Qt::Key_F4);
    EXPECT_TRUE(w.txtvencimento->calendar_open());
    EXPECT_FALSE(open_when_told); // told before it shows
    // Empty: the calendar starts on today.
    EXPECT_EQ(w.txtvencimento->calendar()->selectedDate(), QDate(2026, 11, 23));
    Q_EMIT w.txtvencimento->calendar()->clicked(QDate(2026, 12, 10));
    EXPECT_FALSE(w.txtvencimento->calendar_open());
    EXPECT_EQ(w.txtvencimento->text(), QStringLiteral("10/12/2026"));
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(closed, 1);

    // With a date, it starts there; Escape closes it and changes nothing.
    w.txtvencimento->open_calendar();
    EXPECT_EQ(w.txtvencimento->calendar()->selectedDate(), QDate(2026, 12, 10));
    keys::press(w.txtvencimento->calendar(), Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
    EXPECT_FALSE(w.txtvencimento->calendar_open());
    EXPECT_EQ(w.txtvencimento->text(), QStringLiteral("10/12/2026"));
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(closed, 2);
    platform::set_clock(nullptr);
}

TEST(date_field, tells_when_the_user_enters_and_leaves_it) {
    date_window w;
    int entered = 0, left = 0;
    QObject::connect(w.txtvencimento, &date_field::entered, [&] { ++entered; });
    QObject::connect(w.txtvencimento, &date_field::left, [&] { ++left; });
    w.next->setFocus(); // the window gave its first focus to the date field
    entered = left = 0;
    w.txtvencimento->setFocus();
    w.txtvencimento->open_calendar(); // the popup taking the focus is not leaving
    w.txtvencimento->close_calendar();
    w.next->setFocus();
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(left, 1);
}

} // namespace
