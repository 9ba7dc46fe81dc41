#pragma once
// Windows that exist once: made at their first use, unloaded when the user closes them, and made
// again at the next use. A window closed but not yet deleted counts as gone.

#include <QPointer>
#include <QWidget>

// Marks the window so that closing it unloads it (deleted later) and single_window forgets it.
void unload_on_close(QWidget* w);
bool is_unloaded(const QWidget* w);
// A window that unloads itself without closing (hidden, deleted later) says so here.
void mark_unloaded(QWidget* w);

template <class W, class Make> W* single_window(QPointer<W>& slot, Make&& make) {
    if (!slot || is_unloaded(slot)) {
        slot = make();
        unload_on_close(slot);
    }
    return slot;
}

// The window while it is loaded, or nullptr: a window's aberto().
template <class W> W* loaded_window(const QPointer<W>& slot) {
    return slot && !is_unloaded(slot) ? slot.data() : nullptr;
}
