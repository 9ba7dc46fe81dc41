#include "platform/widgets/date_field.h"

#include "platform/clock.h"

#include "support/golden.h"
#include "support/key_input.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

// "set [text]": text() and what the box holds; "typed [keys]": what it holds after Enter, and text();
// against tests/data/platform/date_field.txt.
TEST(date_field, set_and_typed_dates_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"platform/date_field.txt"_s, [](const QString& line) {
        const QString t = support::bracketed(line)[0];
        date_window w;
        if (line.startsWith(u"set"_s)) {
            w.txtvencimento->set_date(QDate(2020, 1, 1));
            w.txtvencimento->set_text(t);
        } else {
            w.txtvencimento->setFocus();
            keys::type(w.txtvencimento->line_edit(), t);
            keys::enter(w.txtvencimento->line_edit());
        }
        return QStringList{
            u"text [%1], shows [%2]%3"_s.arg(w.txtvencimento->text(), w.txtvencimento->typed_text(),
                                             w.txtvencimento->date().isValid() ? u""_s : u", no date"_s)};
    }));
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
    EXPECT_EQ(w.txtvencimento->text(), u"10/12/2026"_s);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(closed, 1);

    // With a date, it starts there; Escape closes it and changes nothing.
    w.txtvencimento->open_calendar();
    EXPECT_EQ(w.txtvencimento->calendar()->selectedDate(), QDate(2026, 12, 10));
    keys::press(w.txtvencimento->calendar(), Qt::Key_Escape, Qt::NoModifier, u"\x1b"_s);
    EXPECT_FALSE(w.txtvencimento->calendar_open());
    EXPECT_EQ(w.txtvencimento->text(), u"10/12/2026"_s);
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
