#pragma once
// Enter and Return press the focused button, as Space does, in every window of the program:
// the toolkit the windows were designed for pressed a focused command button on Enter. Fields
// that take Enter as Tab keep doing so; this only acts when a button has the focus.

#include <QObject>

class button_keys : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    // Installs one filter on the application.
    static void install();

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;
};
