#include "platform/widgets/frmcarregando.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(frmcarregando, shows_over_its_window_for_the_scope_of_a_load) {
    QWidget frmprincipal;
    frmprincipal.resize(800, 600);
    frmprincipal.move(100, 50);
    frmprincipal.show();
    {
        waiting_window espera(&frmprincipal, u"Carregando contas a pagar"_s,
                              u"Por favor aguarde enquanto o software carrega os dados."_s);
        auto* frm = frmprincipal.findChild<frmcarregando*>(u"frmcarregando"_s);
        ASSERT_NE(frm, nullptr);
        EXPECT_TRUE(frm->isVisible());
        EXPECT_EQ(frm->findChild<QLabel*>(u"lbltitulo"_s)->text(), u"Carregando contas a pagar"_s);
        EXPECT_EQ(frm->findChild<QLabel*>(u"lbltexto"_s)->text(),
                  u"Por favor aguarde enquanto o software carrega os dados."_s);
        EXPECT_LE((frm->geometry().center() - frmprincipal.geometry().center()).manhattanLength(), 2);
        espera.set_range(0, 11);
        espera.set_value(4);
        EXPECT_EQ(frm->findChild<QProgressBar*>(u"progressobarra"_s)->maximum(), 11);
        EXPECT_EQ(frm->progressobarra->value(), 4);
    }
    EXPECT_EQ(frmprincipal.findChild<frmcarregando*>(), nullptr);
}

TEST(frmcarregando, may_be_left_on_the_screen_or_lost_with_its_window) {
    auto* frmmultiplos = new QWidget;
    frmmultiplos->show();
    frmcarregando* kept = nullptr;
    {
        waiting_window espera(frmmultiplos, u"Adicionando parcelas ..."_s, QString());
        kept = espera.release();
    }
    ASSERT_EQ(frmmultiplos->findChild<frmcarregando*>(), kept);
    EXPECT_TRUE(kept->isVisible());
    delete kept;

    // The window beneath closes while the load lets events through: nothing is deleted twice.
    {
        waiting_window espera(frmmultiplos, u"Carregando"_s, QString());
        delete frmmultiplos;
        espera.set_value(1);
    }
}

} // namespace
