#include "platform/widgets/field_helpers.h"

#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/money_field.h"

#include "support/golden.h"
#include "support/key_input.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor pale_yellow(255, 255, 192);

QComboBox* fruit_box(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setEditable(true);
    box->addItems({u"Água"_s, u"abacaxi"_s, u"Abacate"_s, u"banana"_s, u"banco do brasil"_s});
    box->setCurrentIndex(-1);
    return box;
}

// "<old key code> [typed]": what the box shows and which tail is selected, against
// tests/data/platform/completarcombo.txt.
TEST(completarcombo, completes_with_the_first_match_and_selects_the_tail) {
    EXPECT_TRUE(support::matches_baseline(u"platform/completarcombo.txt"_s, [](const QString& line) {
        QWidget window;
        QComboBox* box = fruit_box(&window);
        box->setEditText(support::bracketed(line)[0]);
        completarcombo(line.section(QLatin1Char(' '), 0, 0).toInt(), box);
        return QStringList{u"[%1] entry %2, selected [%3] cursor %4"_s.arg(box->currentText())
                               .arg(box->currentIndex())
                               .arg(box->lineEdit()->selectedText())
                               .arg(box->lineEdit()->hasSelectedText() ? box->lineEdit()->selectionStart()
                                                                       : box->lineEdit()->cursorPosition())};
    }));
}

TEST(completarcombo, runs_on_key_release_and_typing_replaces_the_tail) {
    QWidget window;
    QComboBox* box = fruit_box(&window);
    autocomplete_on_key_up(box);
    EXPECT_EQ(box->completer(), nullptr);
    keys::show_active(&window);
    box->setFocus();
    // An accent counts: "a" is not the start of "Água".
    keys::type(box, u"a"_s);
    EXPECT_EQ(box->currentText(), u"abacaxi"_s);
    EXPECT_EQ(box->lineEdit()->selectedText(), u"bacaxi"_s);
    keys::type(box, u"bacat"_s);
    EXPECT_EQ(box->currentText(), u"Abacate"_s);
    EXPECT_EQ(box->lineEdit()->selectedText(), u"e"_s);
    // Backspace takes the completed tail away and completes nothing.
    keys::press(box, Qt::Key_Backspace, Qt::NoModifier, u"\b"_s);
    EXPECT_EQ(box->currentText(), u"Abacat"_s);
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
    keys::press(w.texto, 'C', Qt::AltModifier | Qt::ShiftModifier, u"C"_s);
    keys::press(w.texto, 'C', Qt::NoModifier, u"c"_s);
    EXPECT_EQ(w.cancelar, 0);
    EXPECT_EQ(w.inserir, 0);
    // Alt+X typed nothing; the plain C was typed.
    EXPECT_EQ(w.texto->text(), u"c"_s);

    EXPECT_TRUE(w.teclas->run('I', 4));
    EXPECT_FALSE(w.teclas->run('I', 0));
    EXPECT_FALSE(w.teclas->run('X', 4));
    EXPECT_EQ(w.inserir, 1);
}

TEST(atalhos, a_registered_alt_key_wins_over_a_button_mnemonic) {
    counting_window w;
    auto* button = new QPushButton(u"&Cancelar"_s, &w.window);
    w.teclas->install(button);
    QKeyEvent over(QEvent::ShortcutOverride, 'C', Qt::AltModifier, u"c"_s);
    over.ignore();
    QCoreApplication::sendEvent(w.texto, &over);
    EXPECT_TRUE(over.isAccepted());
    QKeyEvent other(QEvent::ShortcutOverride, 'X', Qt::AltModifier, u"x"_s);
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
    QPushButton* cmdinserir = new QPushButton(u"&Inserir"_s);
    int clicked = 0;

    entry_form() {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* w : std::initializer_list<QWidget*>{txtdocumento, cbotipo, txtdata, txtvalor,
                                                          cboestatus, cmdinserir})
            layout->addWidget(w);
        cboestatus->addItems({u"Pendente"_s, u"Concluído"_s});
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
    f.cbotipo->setEditText(u"novo fornecedor"_s);
    keys::enter(f.cbotipo);
    EXPECT_TRUE(f.txtdata->line_edit()->hasFocus());
    // The editable box did not take the typed text in as a new entry.
    EXPECT_EQ(f.cbotipo->count(), 5);
    keys::enter(f.txtdata->line_edit());
    EXPECT_TRUE(f.txtvalor->hasFocus());
    keys::enter(f.txtvalor);
    EXPECT_TRUE(f.cboestatus->hasFocus());
    keys::type(f.cboestatus, u"c"_s); // chosen, never typed
    EXPECT_EQ(f.cboestatus->currentText(), u"Pendente"_s);
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
    cbotipop->addItems({u"Pendentes e Concluídos"_s, u"Pendentes"_s, u"Concluídos"_s});
    QComboBox* cbobancop = fruit_box(&window);
    cbobancop->setEditText(u"Todos os bancos"_s);
    discard_keys(cbotipop);
    discard_keys(cbobancop);
    keys::show_active(&window);
    cbotipop->setFocus();
    keys::type(cbotipop, u"c"_s);
    EXPECT_EQ(cbotipop->currentIndex(), 0);
    cbobancop->setFocus();
    keys::type(cbobancop, u"x1"_s);
    EXPECT_EQ(cbobancop->currentText(), u"Todos os bancos"_s);
}

TEST(sempretopo, switches_the_flag_and_keeps_the_window_visible) {
    QWidget form;
    keys::show_active(&form);
    sempretopo(u"ativo"_s, &form);
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form.isVisible());
    sempretopo(u"qualquer"_s, &form);
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    // A field of the window stands for the window.
    auto* field = new QLineEdit(&form);
    sempretopo(u"desativo"_s, field);
    EXPECT_FALSE(form.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form.isVisible());

    QWidget hidden;
    sempretopo(u"ativo"_s, &hidden);
    EXPECT_TRUE(hidden.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(hidden.isVisible());
}

TEST(vb_key_code, control_keys_stay_below_48_and_typing_keys_do_not) {
    const auto code = [](int key, const QString& text, Qt::KeyboardModifiers m = Qt::NoModifier) {
        return vb_key_code(QKeyEvent(QEvent::KeyPress, key, m, text));
    };
    EXPECT_EQ(code(Qt::Key_Backspace, u"\b"_s), 8);
    EXPECT_EQ(code(Qt::Key_Return, u"\r"_s), 13);
    EXPECT_EQ(code(Qt::Key_Delete, QString()), 46);
    EXPECT_EQ(code(Qt::Key_Space, u" "_s), 32);
    EXPECT_EQ(code(Qt::Key_C, u"c"_s), 67);
    EXPECT_EQ(code(Qt::Key_5, u"5"_s, Qt::KeypadModifier), 101);
    EXPECT_EQ(code(Qt::Key_Ccedilla, u"ç"_s), 186);
    EXPECT_EQ(vb_shift_state(QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::AltModifier | Qt::ShiftModifier)), 5);
}

} // namespace
