#pragma once
// Keys and focus for widget tests under the offscreen platform: events are sent straight to the
// widget, as the keyboard would deliver them to the focus widget.

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace keys {

inline int qt_key_of(QChar c) {
    const ushort u = c.toUpper().unicode();
    if ((u >= '0' && u <= '9') || (u >= 'A' && u <= 'Z')) return u;
    switch (u) {
    case ',':
        return Qt::Key_Comma;
    case '.':
        return Qt::Key_Period;
    case '/':
        return Qt::Key_Slash;
    case ' ':
        return Qt::Key_Space;
    case '$':
        return Qt::Key_Dollar;
    default:
        return Qt::Key_unknown;
    }
}

// A key down and up; returns whether the key down was taken (accepted) by someone.
inline bool press(QWidget* w, int key, Qt::KeyboardModifiers mods = Qt::NoModifier,
                  const QString& text = QString()) {
    QKeyEvent down(QEvent::KeyPress, key, mods, text);
    QCoreApplication::sendEvent(w, &down);
    QKeyEvent up(QEvent::KeyRelease, key, mods, text);
    QCoreApplication::sendEvent(w, &up);
    return down.isAccepted();
}

inline void type(QWidget* w, const QString& text) {
    for (QChar c : text)
        press(w, qt_key_of(c), Qt::NoModifier, QString(c));
}

inline void enter(QWidget* w) {
    press(w, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
}

inline void alt(QWidget* w, char letter) {
    press(w, qt_key_of(QLatin1Char(letter)), Qt::AltModifier, QString(QChar(QLatin1Char(letter)).toLower()));
}

// Shows a window and makes it the active one, so that focus changes send focus events.
inline void show_active(QWidget* window) {
    window->show();
    QApplication::setActiveWindow(window);
    window->activateWindow();
    QCoreApplication::processEvents();
}

} // namespace keys
