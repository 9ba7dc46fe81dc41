// What a desktop user expects of the main window beyond its captions: keys on the lists, F10, the
// filter boxes as they were left, icons, the window's place, a window on the screen while the lists fill.
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/theme_icon.h"
#include "shell/main_menu.h"
#include "support/window_fixture.h"

#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class desktop : public support::window_fixture {
protected:
    void reabrir() {
        delete frmprincipal::instance();
        frmlogin::descarregar();
        settle();
        frmlogin::instance()->abrir();
        p = frmprincipal::instance();
    }
};

TEST_F(desktop, insert_enter_delete_and_f5_on_a_list_run_its_tabs_routines) {
    entrada(u"pagar"_s, u"2026/11/01"_s);
    conta(u"Caixa"_s, u"100,00"_s);
    const struct {
        list_view* lista;
        QWidget* (*adicionar)();
        QWidget* (*alterar)();
        QString tabela;
    } listas[] = {
        {p->lstpagar, [] -> QWidget* { return frmadicionar::aberto(); },
         [] -> QWidget* { return frmeditar::aberto(); }, u"pagar"_s},
        {p->lstcaixabanco, [] -> QWidget* { return frmbanco::aberto(); },
         [] -> QWidget* { return frmeditarbanco::aberto(); }, u"banco"_s},
    };
    for (const auto& t : listas) {
        keys::press(t.lista, Qt::Key_F5);
        ASSERT_EQ(t.lista->row_count(), 1) << t.tabela.toStdString();
        keys::press(t.lista, Qt::Key_Insert);
        EXPECT_TRUE(t.adicionar() && t.adicionar()->isVisible());
        delete t.adicionar();
        t.lista->select_row(0);
        keys::press(t.lista, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_TRUE(t.alterar() && t.alterar()->isVisible());
        delete t.alterar();
        prompts_.answer(platform::answer_yes);
        keys::press(t.lista, Qt::Key_Delete);
        EXPECT_EQ(prompts_.boxes().size(), 1u); // the removal's question
        EXPECT_TRUE(rows(u"SELECT * FROM "_s + t.tabela).isEmpty());
        prompts_.clear();
    }
}

TEST_F(desktop, f10_opens_the_first_menu) {
    keys::show_active(p);
    QShortcut* f10 = p->findChild<QShortcut*>(u"teclaf10"_s);
    ASSERT_TRUE(f10 && f10->key() == QKeySequence(Qt::Key_F10));
    Q_EMIT f10->activated();
    ASSERT_TRUE(p->menuBar()->activeAction());
    EXPECT_TRUE(p->menuBar()->activeAction()->menu()->isVisible());
    p->menuBar()->activeAction()->menu()->close();
}

TEST_F(desktop, a_restored_box_stands_on_its_entry_so_the_arrows_move_from_it) {
    for (const char* banco : {"Caixa", "Itaú", "Nubank"})
        entrada(u"pagar"_s, u"2026/11/01"_s, u"Pendente"_s, QString::fromUtf8(banco));
    const struct {
        const char *chave, *salvo, *depois;
        QComboBox* frmprincipal::*box;
    } casos[] = {
        {"FiltroR", "Apenas deste mês", "Apenas do dia", &frmprincipal::cbofiltror},
        {"OrigemP", "Itaú", "Nubank", &frmprincipal::cbobancop},                   // refilled from the data
        {"MostrarP", "Semana", "Pendentes e Concluídos", &frmprincipal::cbotipop}, // no entry: from the top
    };
    for (const auto& c : casos)
        store::save_setting(store::secao_config, QString::fromUtf8(c.chave), QString::fromUtf8(c.salvo));
    reabrir();
    for (const auto& c : casos) {
        EXPECT_EQ((p->*c.box)->currentText(), QString::fromUtf8(c.salvo));
        keys::press(p->*c.box, Qt::Key_Down);
        EXPECT_EQ(store::setting(store::secao_config, QString::fromUtf8(c.chave), {}),
                  QString::fromUtf8(c.depois));
    }
    EXPECT_EQ(column(p->lstpagar, 8), QStringList{u"Nubank"_s});
}

TEST_F(desktop, the_toolbar_and_the_main_actions_carry_icons_the_program_also_carries) {
    for (const auto& e : shell::main_toolbar())
        if (e.dropdown.isEmpty()) {
            EXPECT_FALSE(p->findChild<QToolButton*>(e.key)->icon().isNull()) << e.key.toStdString();
        }
    EXPECT_FALSE(p->cmdremoverm->icon().isNull());
    for (const auto& e : shell::main_menu())
        if (const QString icone = shell::icon_of(e.name); !icone.isEmpty()) {
            EXPECT_EQ(own_icon(icone).availableSizes().size(), 2) << icone.toStdString();
        }
}

TEST_F(desktop, the_window_keeps_its_size_and_place_and_shows_before_its_lists_fill) {
    p->setGeometry(30, 40, 640, 420);
    const QRect antes = p->geometry(); // no narrower than the window can be
    p->close();
    entrada(u"pagar"_s, u"2026/11/01"_s);
    struct espia : QObject {
        QList<bool> principal_visivel; // at each showing of the waiting window
        bool eventFilter(QObject* o, QEvent* e) override {
            if (e->type() == QEvent::Show && qobject_cast<frmcarregando*>(o))
                principal_visivel << frmprincipal::instance()->isVisible();
            return false;
        }
    } e;
    qApp->installEventFilter(&e);
    reabrir();
    qApp->removeEventFilter(&e);
    EXPECT_EQ(p->geometry(), antes);
    EXPECT_EQ(e.principal_visivel.value(0), true);
}

} // namespace
