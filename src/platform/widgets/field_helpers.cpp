#include "platform/widgets/field_helpers.h"

#include "platform/prompts.h"
#include "platform/shell.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>
#include <QWindow>

namespace {

const char* const conduct_mark = "quintara_field_conduct";

// Pale yellow while the field has the focus, white after; Enter goes on as Tab.
class field_conduct : public QObject {
public:
    explicit field_conduct(QWidget* field) : QObject(field) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* w = static_cast<QWidget*>(watched);
        switch (event->type()) {
        case QEvent::FocusIn:
            paint_field(w, cor_foco);
            break;
        case QEvent::FocusOut:
            if (is_leaving_field(*static_cast<QFocusEvent*>(event))) paint_field(w, cor_normal);
            break;
        case QEvent::KeyPress:
            if (is_enter_key(*static_cast<QKeyEvent*>(event))) {
                send_tab(w);
                return true;
            }
            break;
        default:
            break;
        }
        return false;
    }
};

// The key-press routine that sets the key to 0: whatever would type is dropped, while Tab and the
// keys that only move (arrows, F4) still work.
class key_discarder : public QObject {
public:
    explicit key_discarder(QObject* parent) : QObject(parent) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* ke = static_cast<QKeyEvent*>(event);
        if (ke->key() == Qt::Key_Tab || ke->key() == Qt::Key_Backtab) return false;
        // A chosen-only box of an entry form still moves on with Enter.
        if (is_enter_key(*ke) && watched->property(conduct_mark).toBool()) return false;
        return !ke->text().isEmpty();
    }
};

class key_up_completion : public QObject {
public:
    explicit key_up_completion(QComboBox* combo) : QObject(combo), combo_(combo) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyRelease) {
            const auto* ke = static_cast<QKeyEvent*>(event);
            if (!ke->isAutoRepeat()) completarcombo(vb_key_code(*ke), combo_);
        }
        return false;
    }

private:
    QComboBox* combo_;
};

} // namespace

QColor bgr_colour(std::uint32_t bgr) {
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

void paint_field(QWidget* field, std::uint32_t bgr) {
    if (!field) return;
    const QColor c = bgr_colour(bgr);
    QPalette p = field->palette();
    p.setColor(QPalette::Base, c);
    // A closed combo box draws its face with the button colour.
    if (qobject_cast<QComboBox*>(field)) p.setColor(QPalette::Button, c);
    field->setPalette(p);
}

int vb_key_code(const QKeyEvent& e) {
    const int k = e.key();
    if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;
    if (k >= Qt::Key_0 && k <= Qt::Key_9)
        return (e.modifiers() & Qt::KeypadModifier) ? 96 + (k - Qt::Key_0) : k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return 112 + (k - Qt::Key_F1);
    switch (k) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return 9;
    case Qt::Key_Clear:
        return 12;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
        return 18;
    case Qt::Key_Pause:
        return 19;
    case Qt::Key_CapsLock:
        return 20;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Space:
        return 32;
    case Qt::Key_PageUp:
        return 33;
    case Qt::Key_PageDown:
        return 34;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return 40;
    case Qt::Key_Print:
        return 44;
    case Qt::Key_Insert:
        return 45;
    case Qt::Key_Delete:
        return 46;
    case Qt::Key_Meta:
        return 91;
    case Qt::Key_Menu:
        return 93;
    case Qt::Key_NumLock:
        return 144;
    case Qt::Key_ScrollLock:
        return 145;
    default:
        break;
    }
    // Accented letters and punctuation: an "OEM" key, never a control key.
    return e.text().isEmpty() ? 0 : 186;
}

int vb_shift_state(const QKeyEvent& e) {
    const Qt::KeyboardModifiers m = e.modifiers();
    return ((m & Qt::ShiftModifier) ? 1 : 0) | ((m & Qt::ControlModifier) ? 2 : 0) |
           ((m & Qt::AltModifier) ? 4 : 0);
}

bool is_enter_key(const QKeyEvent& e) {
    return (e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter) && !(e.modifiers() & Qt::ControlModifier);
}

bool is_leaving_field(const QFocusEvent& e) {
    switch (e.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return false;
    default:
        return true;
    }
}

void send_tab(QWidget* from) {
    if (!from) return;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QCoreApplication::sendEvent(from, &tab);
}

void install_field_conduct(QWidget* field) {
    if (!field || field->property(conduct_mark).toBool()) return;
    field->setProperty(conduct_mark, true);
    field->installEventFilter(new field_conduct(field));
}

void install_field_conduct_all(QWidget* window) {
    if (!window) return;
    const auto children = window->findChildren<QWidget*>();
    for (QWidget* w : children) {
        if (qobject_cast<QComboBox*>(w)) {
            install_field_conduct(w);
        } else if (qobject_cast<QLineEdit*>(w)) {
            // The edit inside a combo or spin box is driven by its owner.
            QWidget* owner = w->parentWidget();
            if (qobject_cast<QComboBox*>(owner) || qobject_cast<QAbstractSpinBox*>(owner)) continue;
            install_field_conduct(w);
        }
    }
}

void discard_keys(QWidget* box) {
    if (!box) return;
    auto* filter = new key_discarder(box);
    box->installEventFilter(filter);
    if (auto* combo = qobject_cast<QComboBox*>(box); combo && combo->lineEdit())
        combo->lineEdit()->installEventFilter(filter);
}

void completarcombo(int key, QComboBox* combo) {
    if (!combo) return;
    const QString texto = combo->currentText();
    if (texto.isEmpty()) return;
    if (key >= 1 && key < 48 && key != 32) return;
    const qsizetype n = texto.size();
    const QString procurado = texto.toLower();
    for (int i = 0; i < combo->count(); ++i) {
        const QString entrada = combo->itemText(i);
        if (entrada.left(n).toLower() != procurado) continue;
        combo->setCurrentIndex(i);
        if (QLineEdit* edit = combo->lineEdit()) {
            // The index may already have been i while the typed text differed.
            edit->setText(entrada);
            edit->setSelection(int(n), int(entrada.size() - n));
        }
        return;
    }
}

void autocomplete_on_key_up(QComboBox* combo) {
    if (!combo) return;
    if (combo->isEditable()) combo->setCompleter(nullptr);
    combo->installEventFilter(new key_up_completion(combo));
}

void sempretopo(const QString& estado, QWidget* window) {
    if (!window) return;
    bool on = false;
    if (estado == QLatin1String("ativo"))
        on = true;
    else if (estado != QLatin1String("desativo"))
        return;
    QWidget* top = window->window();
    Qt::WindowFlags flags = top->windowFlags();
    if (flags.testFlag(Qt::WindowStaysOnTopHint) == on) return;
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    const bool visible = top->isVisible();
    QWindow* handle = top->windowHandle();
    if (visible && handle) {
        // Telling the native window directly spares the hide and show that setWindowFlags does.
        top->overrideWindowFlags(flags);
        handle->setFlags(flags);
    } else {
        top->setWindowFlags(flags);
    }
    if (visible && !top->isVisible()) top->show();
}

topmost_off::topmost_off(QWidget* window) : window_(window) {
    sempretopo(QStringLiteral("desativo"), window_);
}

topmost_off::~topmost_off() {
    sempretopo(QStringLiteral("ativo"), window_);
}

int msgbox_over(QWidget* window, const QString& text, int style, const QString& title) {
    topmost_off off(window);
    return platform::msgbox(text, style, title);
}

atalhos::atalhos(QWidget* window) : QObject(window) {
    install(window);
}

atalhos& atalhos::add(QChar letter, std::function<void()> action) {
    actions_[int(letter.toUpper().unicode())] = std::move(action);
    return *this;
}

void atalhos::install(QWidget* widget) {
    if (!widget) return;
    widget->installEventFilter(this);
    const auto children = widget->findChildren<QWidget*>();
    for (QWidget* w : children)
        w->installEventFilter(this);
}

bool atalhos::run(int key, int shift) {
    if (shift != 4) return false;
    const auto it = actions_.constFind(key);
    if (it == actions_.constEnd() || !*it) return false;
    // A copy: the action may close the window that owns this table.
    const std::function<void()> action = *it;
    action();
    return true;
}

bool atalhos::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto* ke = static_cast<QKeyEvent*>(event);
    const int key = vb_key_code(*ke);
    const int shift = vb_shift_state(*ke);
    if (shift != 4 || !actions_.contains(key)) {
        // Alt with a letter types nothing (Ctrl+Alt may be AltGr, which does type); mnemonics and
        // menus have had their turn before the key press arrives.
        return event->type() == QEvent::KeyPress && (shift & 4) && !(shift & 2) && key >= 'A' && key <= 'Z';
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Ours, not a button's mnemonic: the key press comes here next.
        event->accept();
        return true;
    }
    return run(key, 4);
}
