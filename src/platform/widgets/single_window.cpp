#include "platform/widgets/single_window.h"

#include <QEvent>

namespace {

const char* const unloaded = "quintara_unloaded";

class close_watch : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::Close && e->isAccepted()) o->setProperty(unloaded, true);
        return false;
    }
};

} // namespace

void unload_on_close(QWidget* w) {
    w->setAttribute(Qt::WA_DeleteOnClose);
    w->installEventFilter(new close_watch(w));
}

bool is_unloaded(const QWidget* w) {
    return w->property(unloaded).toBool();
}

void mark_unloaded(QWidget* w) {
    w->setProperty(unloaded, true);
}
