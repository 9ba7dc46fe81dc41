#pragma once
// The small pieces every window is built from: a control named for tests and wiring, the two
// kinds of combo box of the entry forms, a picture, and a box refilled from a list of names.

#include <QString>
#include <QStringList>
#include <QStyle>

#include <initializer_list>

class QComboBox;
class QLabel;
class QWidget;

template <class W> W* named(W* w, const char* name) {
    w->setObjectName(QString::fromLatin1(name));
    return w;
}

// A box chosen from its list and never typed in; the code may still show any text in it.
QComboBox* chosen_box(const char* name);
// A box typed in, completed from its list as the user types.
QComboBox* typed_box(const char* name);
// A hidden picture of a standard icon (the expense and income pictures of the entry forms).
QLabel* picture(const char* name, QStyle::StandardPixmap icon);
// Refills a box with the names and shows the first one (nothing when there is none).
void fill_names(QComboBox* box, const QStringList& names);
// Shows a form in front, placed the first time over the middle of the window the user was in.
void show_form(QWidget* form);
// The same for a window that keeps the size it was given (lists, reports).
void show_window(QWidget* window);
// The tab order of a form, in the order given; null entries are skipped.
void set_tab_chain(std::initializer_list<QWidget*> chain);
