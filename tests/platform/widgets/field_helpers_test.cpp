#include "platform/widgets/field_helpers.h"

#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/money_field.h"

#include "key_input.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

const QColor pale_yellow(255, 255, 192);

QComboBox* fruit_box(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setEditable(true);
    box->addItems({QStringLiteral("Água"), QStringLiteral("abacaxi"), QStringLiteral("Abacate"),
                   QStringLiteral("banana"), QStringLiteral("banco do brasil")});
    box->setCurrentIndex(-1);
    return box;
}

TEST(completarcombo, completes_with_the_first_match_and_selects_the_tail) {
    struct row {
        const char* typed;
        int key;
        const char* shown;
        int index;  // -1: unchanged
        int cursor; // where the selection starts; -1: left as typed
        int sel_length;
    };
    const row rows[] = {
        {"ab", 'B', "abacaxi", 1, 2, 5},
        {"AB", 'B', "abacaxi", 1, 2, 5}, // whatever the case
        {"abacat", 'T', "Abacate", 2, 6, 1},
        {"á", 186, "Água", 0, 1, 3},
        {"BANANA", 'A', "banana", 3, 6, 0},
        {"banco ", 32, "banco do brasil", 4, 6, 9}, // the space is typed text, not a control key
        {"b", 0, "banana", 3, 1, 5},
        {"xyz", 'Z', "xyz", -1, -1, 0}, // no match changes nothing
        {"ab", 8, "ab", -1, -1, 0},     // Backspace
        {"ab", 37, "ab", -1, -1, 0},    // arrow
        {"ab", 16, "ab", -1, -1, 0},    // Shift
        {"", 'A', "", -1, -1, 0},
    };
    for (const row& r : rows) {
        SCOPED_TRACE(r.typed);
        QWidget window;
        QComboBox* box = fruit_box(&window);
        box->setEditText(QString::fromUtf8(r.typed));
        completarcombo(r.key, box);
        EXPECT_EQ(box->currentText(), QString::fromUtf8(r.shown));
        EXPECT_EQ(box->currentIndex(), r.index);
        EXPECT_EQ(box->lineEdit()->selectedText().size(), r.sel_length);
        if (r.sel_length > 0) {
            EXPECT_EQ(box->lineEdit()->selectionStart(), r.cursor);
        } else if (r.cursor >= 0) {
            EXPECT_EQ(box->lineEdit()->cursorPosition(), r.cursor);
        }
    }
}

TEST(completarcombo, runs_on_key_release_and_typing_replaces_the_tail) {
    QWidget window;
    QComboBox* box = fruit_box(&window);
    autocomplete_on_key_up(box);
    EXPECT_EQ(box->completer(), nullptr);
    keys::show_active(&window);
    box->setFocus();
    // An accent counts: "a" is not the start of "Água".
    keys::type(box, QStringLiteral("a"));
    EXPECT_EQ(box->currentText(), QStringLiteral("abacaxi"));
    EXPECT_EQ(box->lineEdit()->selectedText(), QStringLiteral("bacaxi"));
    keys::type(box, QStringLiteral("bacat"));
    EXPECT_EQ(box->currentText(), QStringLiteral("Abacate"));
    EXPECT_EQ(box->lineEdit()->selectedText(), QStringLiteral("e"));
    // Backspace takes the completed tail away and completes nothing.
    keys::press(box, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
    EXPECT_EQ(box->currentText(), QStringLiteral("Abacat"));
}

struct counting_window {
    QWidget window;
    QLineEdit* texto = new QLineEdit(&window);
    QComboBox* caixa = fruit_box(&window);
    int cancelar = 0;
    int inserir = 0;
    atalhos* teclas = new atalhos(&window);

    counting_window() {
        teclas->add(QLatin1Char('C'), [this] { ++cancelar; }).add(QLatin1Char('i'), [this] { ++inserir; });
    }
};

TEST(atalhos, alt_with_a_registered_letter_runs_its_action_from_any_field) {
    counting_window w;
    keys::alt(w.texto, 'c');
    keys::alt(w.caixa, 'i');
    keys::alt(&w.window, 'i');
    EXPECT_EQ(w.cancelar, 1);
    EXPECT_EQ(w.inserir, 2);

    // A field made later is watched once installed.
    auto* late = new QLineEdit(&w.window);
    w.teclas->install(late);
    keys::alt(late, 'c');
    EXPECT_EQ(w.cancelar, 2);
}

TEST(atalhos, other_letters_and_other_shift_states_do_nothing) {
    counting_window w;
    keys::alt(w.texto, 'x');
    keys::press(w.texto, 'C', Qt::AltModifier | Qt::ShiftModifier, QStringLiteral("C"));
    keys::press(w.texto, 'C', Qt::NoModifier, QStringLiteral("c"));
    EXPECT_EQ(w.cancelar, 0);
    EXPECT_EQ(w.inserir, 0);
    // Alt+X typed nothing; the plain C was typed.
    EXPECT_EQ(w.texto->text(), QStringLiteral("c"));

    EXPECT_TRUE(w.teclas->run('I', 4));
    EXPECT_FALSE(w.teclas->run('I', 0));
    EXPECT_FALSE(w.teclas->run('X', 4));
    EXPECT_EQ(w.inserir, 1);
}

TEST(atalhos, a_registered_alt_key_wins_over_a_button_mnemonic) {
    counting_window w;
    auto* button = new QPushButton(QStringLiteral("&Cancelar"), &w.window);
    w.teclas->install(button);
    QKeyEvent over(QEvent::ShortcutOverride, 'C', Qt::AltModifier, QStringLiteral("c"));
    over.ignore();
    QCoreApplication::sendEvent(w.texto, &over);
    EXPECT_TRUE(over.isAccepted());
    QKeyEvent other(QEvent::ShortcutOverride, 'X', Qt::AltModifier, QStringLiteral("x"));
    other.ignore();
    QCoreApplication::sendEvent(w.texto, &other);
    EXPECT_FALSE(other.isAccepted());
}

struct entry_form {
    QWidget window;
    QLineEdit* txtdocumento = new QLineEdit;
    QComboBox* cbotipo = fruit_box(nullptr);
    date_field* txtdata = new date_field;
    money_field* txtvalor = new money_field;
    QComboBox* cboestatus = new QComboBox;
    QPushButton* cmdinserir = new QPushButton(QStringLiteral("&Inserir"));
    int clicked = 0;

    entry_form() {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* w : std::initializer_list<QWidget*>{txtdocumento, cbotipo, txtdata, txtvalor,
                                                          cboestatus, cmdinserir})
            layout->addWidget(w);
        cboestatus->addItems({QStringLiteral("Pendente"), QStringLiteral("Concluído")});
        cmdinserir->setDefault(true);
        QObject::connect(cmdinserir, &QPushButton::clicked, [this] { ++clicked; });
        install_field_conduct_all(&window);
        discard_keys(cboestatus);
        keys::show_active(&window);
        txtdocumento->setFocus();
    }
};

TEST(field_conduct, enter_moves_the_focus_on_in_tab_order_and_goes_no_further) {
    entry_form f;
    keys::enter(f.txtdocumento);
    EXPECT_TRUE(f.cbotipo->hasFocus());
    f.cbotipo->setEditText(QStringLiteral("novo fornecedor"));
    keys::enter(f.cbotipo);
    EXPECT_TRUE(f.txtdata->line_edit()->hasFocus());
    // The editable box did not take the typed text in as a new entry.
    EXPECT_EQ(f.cbotipo->count(), 5);
    keys::enter(f.txtdata->line_edit());
    EXPECT_TRUE(f.txtvalor->hasFocus());
    keys::enter(f.txtvalor);
    EXPECT_TRUE(f.cboestatus->hasFocus());
    keys::type(f.cboestatus, QStringLiteral("c")); // chosen, never typed
    EXPECT_EQ(f.cboestatus->currentText(), QStringLiteral("Pendente"));
    keys::enter(f.cboestatus);
    EXPECT_TRUE(f.cmdinserir->hasFocus());
    EXPECT_EQ(f.clicked, 0);
}

TEST(field_conduct, focus_paints_pale_yellow_and_leaving_white) {
    EXPECT_EQ(bgr_colour(cor_foco), pale_yellow);
    EXPECT_EQ(bgr_colour(0x0000FF), QColor(255, 0, 0));

    entry_form f;
    EXPECT_EQ(f.txtdocumento->palette().color(QPalette::Base), pale_yellow);
    f.cboestatus->setFocus();
    EXPECT_EQ(f.txtdocumento->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(f.cboestatus->palette().color(QPalette::Base), pale_yellow);
    EXPECT_EQ(f.cboestatus->palette().color(QPalette::Button), pale_yellow);
    f.txtdata->setFocus();
    EXPECT_EQ(f.cboestatus->palette().color(QPalette::Button), QColor(Qt::white));
    EXPECT_EQ(f.txtdata->line_edit()->palette().color(QPalette::Base), pale_yellow);
}

TEST(discard_keys, filter_boxes_cannot_be_typed_in) {
    QWidget window;
    auto* cbotipop = new QComboBox(&window);
    cbotipop->addItems({QStringLiteral("Pendentes e Concluídos"), QStringLiteral("Pendentes"),
                        QStringLiteral("Concluídos")});
    QComboBox* cbobancop = fruit_box(&window);
    cbobancop->setEditText(QStringLiteral("Todos os bancos"));
    discard_keys(cbotipop);
    discard_keys(cbobancop);
    keys::show_active(&window);
    cbotipop->setFocus();
    keys::type(cbotipop, QStringLiteral("c"));
    EXPECT_EQ(cbotipop->currentIndex(), 0);
    cbobancop->setFocus();
    keys::type(cbobancop, QStringLiteral("x1"));
    EXPECT_EQ(cbobancop->currentText(), QStringLiteral("Todos os bancos"));
}

// Notes whether its window was topmost when each box came up.
class watching_prompts : public platform::scripted_prompts {
public:
    QWidget* window = nullptr;
    std::vector<bool> topmost_during;
    int msgbox(const QString& text, int style, const QString& title) override {
        topmost_during.push_back(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        return scripted_prompts::msgbox(text, style, title);
    }
};

TEST(sempretopo, switches_the_flag_and_keeps_the_window_visible) {
    QWidget form;
    keys::show_active(&form);
    sempretopo(QStringLiteral("ativo"), &form);
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form.isVisible());
    sempretopo(QStringLiteral("qualquer"), &form);
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    // A field of the window stands for the window.
    auto* field = new QLineEdit(&form);
    sempretopo(QStringLiteral("desativo"), field);
    EXPECT_FALSE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form.isVisible());

    QWidget hidden;
    sempretopo(QStringLiteral("ativo"), &hidden);
    EXPECT_TRUE(hidden.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(hidden.isVisible());
}

TEST(sempretopo, a_message_box_comes_up_with_the_window_not_topmost) {
    watching_prompts prompts;
    platform::set_prompts(&prompts);
    QWidget form;
    prompts.window = &form;
    keys::show_active(&form);
    sempretopo(QStringLiteral("ativo"), &form);
    prompts.answer(platform::answer_no);
    const int answer = msgbox_over(&form, QStringLiteral("Deseja continuar?"),
                                   platform::question + platform::yes_no, QStringLiteral("Info"));
    platform::set_prompts(nullptr);

    EXPECT_EQ(answer, platform::answer_no);
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].title, QStringLiteral("Info"));
    EXPECT_EQ(prompts.boxes()[0].style, platform::question + platform::yes_no);
    EXPECT_EQ(prompts.topmost_during, std::vector<bool>{false});
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form.isVisible());
}

TEST(vb_key_code, control_keys_stay_below_48_and_typing_keys_do_not) {
    const auto code = [](int key, const QString& text, Qt::KeyboardModifiers m = Qt::NoModifier) {
        return vb_key_code(QKeyEvent(QEvent::KeyPress, key, m, text));
    };
    EXPECT_EQ(code(Qt::Key_Backspace, QStringLiteral("\b")), 8);
    EXPECT_EQ(code(Qt::Key_Return, QStringLiteral("\r")), 13);
    EXPECT_EQ(code(Qt::Key_Delete, QString()), 46);
    EXPECT_EQ(code(Qt::Key_Space, QStringLiteral(" ")), 32);
    EXPECT_EQ(code(Qt::Key_C, QStringLiteral("c")), 67);
    EXPECT_EQ(code(Qt::Key_5, QStringLiteral("5"), Qt::KeypadModifier), 101);
    EXPECT_EQ(code(Qt::Key_Ccedilla, QStringLiteral("ç")), 186);
    EXPECT_EQ(vb_shift_state(QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::AltModifier | Qt::ShiftModifier)), 5);
}

} // namespace
