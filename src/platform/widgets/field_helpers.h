#pragma once
// The conduct every entry form shares: focus colours, Enter as Tab, combo completion, the
// stay-on-top switch, Alt shortcuts and opening files. Windows call these; none of them knows a
// particular window.

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>

class QComboBox;
class QFocusEvent;
class QKeyEvent;
class QWidget;

// Colours come in the old blue-green-red order.
inline constexpr std::uint32_t cor_foco = 0xC0FFFF;   // pale yellow
inline constexpr std::uint32_t cor_normal = 0xFFFFFF; // white
QColor bgr_colour(std::uint32_t bgr);
// The background of a text field or combo box (palette Base; Button too for combos).
void paint_field(QWidget* field, std::uint32_t bgr);

// The old key code of a key event: 8 Backspace, 13 Enter, 32 space, 37-40 arrows, 48-57 digits,
// 65-90 letters, 112+ function keys; other printable keys give 186, unknown keys 0.
int vb_key_code(const QKeyEvent& e);
// 1 Shift, 2 Ctrl, 4 Alt, added up.
int vb_shift_state(const QKeyEvent& e);
bool is_enter_key(const QKeyEvent& e);
// A field keeps the focus while its window is in the background, a popup is open or the menu bar
// is in use: such a focus out is not leaving the field.
bool is_leaving_field(const QFocusEvent& e);

// Enter as Tab: the focus moves on in tab order, as the keyboard's own Tab does.
void send_tab(QWidget* from);

// Focus colours and Enter as Tab on one field. Installing twice does nothing more.
void install_field_conduct(QWidget* field);
// The same on every text field, combo box and date field of a window.
void install_field_conduct_all(QWidget* window);

// Boxes that can be chosen from but not typed in (the main window's filter boxes, the account and
// status boxes of the entry forms): every key that would type is discarded, except Enter on a
// field that moves on with it.
void discard_keys(QWidget* box);

// Completes the typed text of an editable box with its first entry that begins with it, whatever
// the case, and leaves the completed tail selected. key is the old key code of the key released.
void completarcombo(int key, QComboBox* combo);
// Turns off the box's own completer and runs completarcombo on every key release.
void autocomplete_on_key_up(QComboBox* combo);

// "ativo": the window stays on top of the others; "desativo": it no longer does. The window
// stays visible. Any other text does nothing.
void sempretopo(const QString& estado, QWidget* window);

// Stay-on-top off for a scope (message boxes, quick adds), on again at its end.
class topmost_off {
public:
    explicit topmost_off(QWidget* window);
    ~topmost_off();
    topmost_off(const topmost_off&) = delete;
    topmost_off& operator=(const topmost_off&) = delete;

private:
    QWidget* window_;
};

// A message box of a topmost window: stay-on-top off, the box, stay-on-top on again.
int msgbox_over(QWidget* window, const QString& text, int style, const QString& title);

// The Alt shortcuts of a window: Alt alone with a registered letter runs its action, from the
// window and from any of its fields; other letters and other shift states pass on untouched.
class atalhos : public QObject {
    Q_OBJECT
public:
    // Watches the window and everything already inside it; owned by the window.
    explicit atalhos(QWidget* window);

    atalhos& add(QChar letter, std::function<void()> action);
    // Watches a field created after the shortcuts (and what is inside it).
    void install(QWidget* widget);
    // The key code and shift state of a key down; true when an action ran.
    bool run(int key, int shift);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QHash<int, std::function<void()>> actions_;
};
