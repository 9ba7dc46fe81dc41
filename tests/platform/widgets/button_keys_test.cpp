#include "platform/widgets/button_keys.h"
#include "support/key_input.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

TEST(button_keys, enter_presses_the_focused_command_button_only) {
    button_keys::install();
    QWidget w;
    auto* l = new QVBoxLayout(&w);
    auto* ok = new QPushButton(QStringLiteral("Entrar"));
    auto* other = new QPushButton(QStringLiteral("Cancelar"));
    auto* check = new QCheckBox(QStringLiteral("Lembrar"));
    for (QWidget* c : {static_cast<QWidget*>(ok), static_cast<QWidget*>(other), static_cast<QWidget*>(check)})
        l->addWidget(c);
    keys::show_active(&w);
    int pressed = 0, other_pressed = 0;
    QObject::connect(ok, &QPushButton::clicked, [&] { ++pressed; });
    QObject::connect(other, &QPushButton::clicked, [&] { ++other_pressed; });

    ok->setFocus();
    ASSERT_TRUE(ok->hasFocus());
    EXPECT_TRUE(keys::press(ok, Qt::Key_Return));
    EXPECT_TRUE(keys::press(ok, Qt::Key_Enter, Qt::KeypadModifier));
    EXPECT_EQ(pressed, 2);
    EXPECT_EQ(other_pressed, 0);
    // with a modifier, or on a check box, Enter is left to the window
    keys::press(ok, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(pressed, 2);
    check->setFocus();
    keys::press(check, Qt::Key_Return);
    EXPECT_FALSE(check->isChecked());
    // a disabled button is not pressed
    ok->setFocus();
    ok->setEnabled(false);
    keys::press(ok, Qt::Key_Return);
    EXPECT_EQ(pressed, 2);
}
