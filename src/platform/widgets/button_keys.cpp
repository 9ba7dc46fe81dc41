#include "platform/widgets/button_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

void button_keys::install() {
    static button_keys* filter = nullptr;
    if (filter || !qApp) return;
    filter = new button_keys(qApp);
    qApp->installEventFilter(filter);
}

bool button_keys::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() != QEvent::KeyPress) return false;
    const auto* k = static_cast<QKeyEvent*>(e);
    if ((k->key() != Qt::Key_Return && k->key() != Qt::Key_Enter) || k->modifiers() & ~Qt::KeypadModifier)
        return false;
    auto* b = qobject_cast<QAbstractButton*>(watched);
    if (!b || !b->hasFocus() || !b->isEnabled() || !b->isVisible()) return false;
    // check boxes and option buttons keep Enter for their window; command buttons are pressed
    if (b->isCheckable() && !b->inherits("QPushButton")) return false;
    b->click();
    return true;
}
