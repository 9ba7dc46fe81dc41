#include "platform/widgets/key_actions.h"

#include <QKeyEvent>
#include <QWidget>

key_actions* key_actions::install(QWidget* w, std::vector<binding> keys) {
    return w ? new key_actions(w, std::move(keys)) : nullptr;
}

key_actions::key_actions(QWidget* w, std::vector<binding> keys) : QObject(w), keys_(std::move(keys)) {
    w->installEventFilter(this);
}

const key_actions::binding* key_actions::find(int key) const {
    if (key == Qt::Key_Enter) key = Qt::Key_Return;
    for (const binding& b : keys_)
        if (b.key == key) return &b;
    return nullptr;
}

bool key_actions::eventFilter(QObject*, QEvent* e) {
    if (e->type() != QEvent::KeyPress && e->type() != QEvent::ShortcutOverride) return false;
    auto* k = static_cast<QKeyEvent*>(e);
    // with Ctrl, Alt or Shift the key is someone else's (a shortcut, a selection)
    if (k->modifiers() & ~Qt::KeypadModifier) return false;
    const binding* b = find(k->key());
    if (!b) return false;
    if (e->type() == QEvent::ShortcutOverride) {
        // the key is ours before any shortcut of the window
        k->accept();
        return true;
    }
    if (!k->isAutoRepeat() && b->run) b->run();
    return true;
}
