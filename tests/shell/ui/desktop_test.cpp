// What a desktop user expects of the main window beyond its captions: keys on the lists, F10, the
// filter boxes as they were left, icons, the window's place, and a window on the screen while the
// lists fill.
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/theme_icon.h"
#include "shell/main_menu.h"
#include "support/window_fixture.h"

#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using shell::ledger;

class desktop : public support::window_fixture {
protected:
    frmprincipal* reabrir() {
        delete frmprincipal::instance();
        frmlogin::descarregar();
        settle();
        prompts_.clear();
        frmlogin::instance()->abrir();
        return p = frmprincipal::instance();
    }
    void movement() {
        exec(u"INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) VALUES "
             u"('Concluído', 'Caixa', ' - ', '2026/11/01', 'Depósito', ' ', '10,00')"_s);
    }
};

TEST_F(desktop, insert_enter_delete_and_f5_on_a_list_run_its_tabs_routines) {
    const struct {
        list_view* lista;
        std::function<void()> linha; // puts one row in the list's table
        std::function<QWidget*()> adicionar, alterar;
        const char* tabela;
        const char* pergunta;
    } listas[] = {
        {p->lstpagar, [&] { entrada(u"pagar"_s, u"2026/11/01"_s); }, [] { return frmadicionar::aberto(); },
         [] { return frmeditar::aberto(); }, "pagar",
         "Remover: Tem certeza que deseja remover o item selecionado do banco de dados?"},
        {p->lstreceber, [&] { entrada(u"receber"_s, u"2026/11/01"_s); },
         [] { return frmadicionar::aberto(); }, [] { return frmeditar::aberto(); }, "receber",
         "Remover: Tem certeza que deseja remover o item selecionado do banco de dados?"},
        {p->lstmovimento, [&] { movement(); }, [] { return frmmovimentobanc::aberto(); },
         [] { return frmeditarbancario::aberto(); }, "bancario",
         "Remover: Tem certeza que deseja remover o item selecionados do banco de dados?"},
        {p->lstcaixabanco, [&] { conta(u"Caixa"_s, u"100,00"_s); }, [] { return frmbanco::aberto(); },
         [] { return frmeditarbanco::aberto(); }, "banco",
         "Remover: Tem certeza que deseja remover Caixa (R$ 100,00) do banco de dados?"},
    };
    for (const auto& t : listas) {
        SCOPED_TRACE(t.lista->objectName().toStdString());
        t.linha();
        // F5 loads what the table holds now
        EXPECT_EQ(t.lista->row_count(), 0);
        keys::press(t.lista, Qt::Key_F5);
        ASSERT_EQ(t.lista->row_count(), 1);

        keys::press(t.lista, Qt::Key_Insert);
        QWidget* novo = t.adicionar();
        ASSERT_TRUE(novo);
        EXPECT_TRUE(novo->isVisible());
        delete novo;

        t.lista->select_row(0);
        keys::press(t.lista, Qt::Key_Enter, Qt::KeypadModifier);
        QWidget* editor = t.alterar();
        ASSERT_TRUE(editor);
        EXPECT_TRUE(editor->isVisible());
        delete editor;

        // with Shift the key is not the list's; No keeps the row; Yes removes it
        keys::press(t.lista, Qt::Key_Delete, Qt::ShiftModifier);
        EXPECT_TRUE(prompts_.records().empty());
        prompts_.answer(platform::answer_no);
        keys::press(t.lista, Qt::Key_Delete);
        EXPECT_EQ(rows(u"SELECT * FROM %1"_s.arg(QLatin1String(t.tabela))).size(), 1);
        t.lista->select_row(0);
        prompts_.answer(platform::answer_yes);
        keys::press(t.lista, Qt::Key_Delete);
        EXPECT_EQ(boxes(), QStringList(2, QString::fromUtf8(t.pergunta)));
        EXPECT_TRUE(rows(u"SELECT * FROM %1"_s.arg(QLatin1String(t.tabela))).isEmpty());
        EXPECT_EQ(t.lista->row_count(), 0);
        prompts_.clear();
    }
}

TEST_F(desktop, f10_opens_the_first_menu_and_alt_reaches_the_bar) {
    keys::show_active(p);
    QShortcut* f10 = nullptr;
    for (QShortcut* s : p->findChildren<QShortcut*>())
        if (s->key() == QKeySequence(Qt::Key_F10)) f10 = s;
    ASSERT_TRUE(f10);
    EXPECT_TRUE(f10->isEnabled());
    Q_EMIT f10->activated();
    QAction* ativo = p->menuBar()->activeAction();
    ASSERT_TRUE(ativo);
    EXPECT_EQ(ativo->text(), u"..:: Menu Principal"_s);
    EXPECT_TRUE(ativo->menu()->isVisible());
    ativo->menu()->close();
    EXPECT_TRUE(p->style()->styleHint(QStyle::SH_MenuBar_AltKeyNavigation, nullptr, p->menuBar()));
}

TEST_F(desktop, a_restored_box_stands_on_its_entry_so_the_arrows_move_from_it) {
    entrada(u"pagar"_s, u"2026/11/01"_s, u"Pendente"_s, u"Caixa"_s);
    entrada(u"pagar"_s, u"2026/11/20"_s, u"Pendente"_s, u"Itaú"_s);
    entrada(u"pagar"_s, u"2026/11/21"_s, u"Pendente"_s, u"Nubank"_s);
    const struct {
        const char* chave;
        const char* salvo;
        QComboBox* frmprincipal::*box;
        const char* depois; // the text ↓ leads to
    } casos[] = {
        {"FiltroR", "Apenas deste mês", &frmprincipal::cbofiltror, "Apenas do dia"},
        {"MostrarR", "Pendentes", &frmprincipal::cbotipor, "Concluídos"},
        {"MostrarM", "Retiradas", &frmprincipal::cbotipom, "Depósitos"},
        {"OrganizarM", "Valor", &frmprincipal::cboorgm, "Estatus"},
        // filled from the data after the restore, and still standing on the saved one
        {"OrigemP", "Itaú", &frmprincipal::cbobancop, "Nubank"},
    };
    for (const auto& c : casos)
        store::save_setting(store::secao_config, QString::fromUtf8(c.chave), QString::fromUtf8(c.salvo));
    reabrir();
    for (const auto& c : casos) {
        SCOPED_TRACE(c.chave);
        QComboBox* box = p->*c.box;
        EXPECT_EQ(box->currentIndex(), box->findText(QString::fromUtf8(c.salvo)));
        EXPECT_EQ(box->currentText(), QString::fromUtf8(c.salvo));
        keys::press(box, Qt::Key_Down);
        EXPECT_EQ(box->currentText(), QString::fromUtf8(c.depois));
        // a key choice is a choice: the box is saved
        EXPECT_EQ(store::setting(store::secao_config, QString::fromUtf8(c.chave), {}),
                  QString::fromUtf8(c.depois));
    }
    // ↓ from "Itaú" to "Nubank" reloaded the list with it
    EXPECT_EQ(column(p->lstpagar, 8), QStringList{u"Nubank"_s});

    // a saved text no entry reads stands alone: ↓ starts from the first entry
    store::save_setting(store::secao_config, u"FiltroR"_s, u"Semana que vem"_s);
    reabrir();
    EXPECT_EQ(p->cbofiltror->currentIndex(), -1);
    EXPECT_EQ(p->cbofiltror->currentText(), u"Semana que vem"_s);
    keys::press(p->cbofiltror, Qt::Key_Down);
    EXPECT_EQ(p->cbofiltror->currentText(), u"Todos os dados"_s);
}

TEST_F(desktop, the_toolbar_and_the_main_actions_carry_icons) {
    for (QToolButton* b : p->tbrbarra->findChildren<QToolButton*>()) {
        if (b->objectName().startsWith(u"qt_"_s)) continue; // the bar's own extension button
        EXPECT_FALSE(b->icon().isNull()) << b->objectName().toStdString();
        EXPECT_EQ(b->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    }
    for (const char* nome : {"mnusair", "mnuconfigsoft", "mnubloquearsoft", "mnucaddespesas", "mnuclientes"})
        EXPECT_FALSE(p->item(QString::fromLatin1(nome))->icon().isNull()) << nome;
    for (QPushButton* b : {p->cmdadicionard, p->cmdalterarr, p->cmdremoverm, p->cmdconfbanc})
        EXPECT_FALSE(b->icon().isNull()) << b->objectName().toStdString();
    // every icon named has the program's own picture, in both sizes, for a desktop without a theme
    QStringList nomes;
    for (const auto& e : shell::main_menu())
        nomes << e.name;
    for (const auto& e : shell::main_toolbar())
        nomes << e.key;
    for (QPushButton* b : p->findChildren<QPushButton*>())
        nomes << b->objectName();
    for (const QString& n : nomes) {
        const QString icone = shell::icon_of(n);
        if (icone.isEmpty()) continue;
        const QIcon own = own_icon(icone);
        EXPECT_EQ(own.availableSizes().size(), 2) << n.toStdString() << " " << icone.toStdString();
    }
}

TEST_F(desktop, the_window_keeps_its_size_and_place_between_sessions) {
    p->resize(640, 420);
    p->move(30, 40);
    const QRect antes = p->geometry();
    p->close();
    EXPECT_FALSE(store::setting(store::secao_config, frmprincipal::chave_geometria, {}).isEmpty());
    reabrir();
    EXPECT_EQ(p->geometry(), antes);
}

TEST_F(desktop, on_opening_the_window_is_on_the_screen_before_the_lists_fill) {
    entrada(u"pagar"_s, u"2026/11/01"_s);
    // who was on the screen when the waiting window came up
    struct espia : QObject {
        QStringList vistos;
        bool eventFilter(QObject* o, QEvent* e) override {
            if (e->type() == QEvent::Show && qobject_cast<frmcarregando*>(o))
                vistos << (frmprincipal::exists() && frmprincipal::instance()->isVisible() ? u"principal"_s
                                                                                           : u"nada"_s);
            return false;
        }
    } e;
    qApp->installEventFilter(&e);
    reabrir();
    qApp->removeEventFilter(&e);
    ASSERT_FALSE(e.vistos.isEmpty());
    EXPECT_EQ(e.vistos.front(), u"principal"_s);
    EXPECT_EQ(p->lstpagar->row_count(), 1);
}

} // namespace
