// The main window: its opening, its menus, toolbar, buttons and pop-ups (as one dump of what each
// control is and whether it works), and the routines they run on the lists.
#include "platform/autostart.h"
#include "shell/list_actions.h"
#include "shell/popup_menus.h"
#include "store/conexao.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

using shell::ledger;

const char* const kinds[] = {"submenu", "separator", "routine",      "menu_item", "window", "print_list",
                             "filter",  "order",     "order_clause", "view",      "none"};

// One line per control: indent, name, caption, what it runs, its state.
void dump_menu(const QMenu* m, int depth, QString& out) {
    for (const QAction* a : m->actions()) {
        out += QString(depth * 2, QLatin1Char(' '));
        if (a->isSeparator()) {
            out += u"-\n"_s;
            continue;
        }
        const QString name = a->menu() ? a->menu()->objectName() : a->objectName();
        QString runs;
        for (const auto& e : shell::popup_entries())
            if (e.menu == m->objectName() && e.name == name && !a->menu() &&
                e.kind != shell::popup_kind::none)
                runs = u" -> %1 %2"_s.arg(kinds[int(e.kind)], e.target);
        out += u"%1 \"%2\"%3%4%5%6\n"_s.arg(
            name, a->text(), runs, a->isCheckable() ? (a->isChecked() ? u" [x]"_s : u" [ ]"_s) : QString(),
            a->menu() ? u":"_s : QString(), a->isEnabled() ? QString() : u" (off)"_s);
        if (a->menu()) dump_menu(a->menu(), depth + 1, out);
    }
}

class principal : public support::window_fixture {
protected:
    void exigir_login(const char* v) {
        exec(u"UPDATE login_inicia SET exigirlogin='%1'"_s.arg(QString::fromLatin1(v)));
    }
    // A fresh main window through the login window, as at start.
    frmprincipal* reabrir() {
        delete frmprincipal::instance();
        frmlogin::descarregar();
        settle();
        prompts_.clear();
        frmlogin::instance()->abrir();
        return p = frmprincipal::instance();
    }
    void movement(const char* data) {
        exec(QStringLiteral("INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, "
                            "Valor) VALUES ('Concluído', 'Caixa', ' - ', '%1', 'Depósito', ' ', '10,00')")
                 .arg(QString::fromLatin1(data)));
    }
    void right_click(list_view* l) {
        QContextMenuEvent e(QContextMenuEvent::Mouse, QPoint(5, 5), l->viewport()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(l->viewport(), &e);
    }
};

TEST_F(principal, every_menu_item_button_and_popup_item_runs_its_action_when_one_exists) {
    QString out = u"[menus]\n"_s;
    for (const QAction* a : p->menuBar()->actions()) {
        out += a->menu()->objectName() + u" \""_s + a->text() + u"\":\n"_s;
        dump_menu(a->menu(), 1, out);
    }
    out += u"[toolbar]\n"_s;
    for (const QToolButton* b : p->tbrbarra->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
        if (b->objectName().startsWith("qt_")) continue; // the bar's own extension button
        out += u"%1 \"%2\"%3\n"_s.arg(b->objectName(), b->text(), b->isEnabled() ? QString() : u" (off)"_s);
        if (b->menu()) dump_menu(b->menu(), 1, out);
    }
    out += u"[buttons]\n"_s;
    for (const QPushButton* b : p->findChildren<QPushButton*>())
        out += u"%1 \"%2\"%3\n"_s.arg(b->objectName(), b->text(), b->isEnabled() ? QString() : u" (off)"_s);
    out += u"[popups]\n"_s;
    for (const QString& m : shell::popup_menu_names()) {
        out += m + u":\n"_s;
        dump_menu(p->findChild<QMenu*>(m), 1, out);
    }
    EXPECT_TRUE(support::matches_golden(u"shell/principal_controls.txt"_s, out));
}

TEST_F(principal, without_login_the_main_window_opens_with_the_settings_marks) {
    EXPECT_FALSE(frmlogin::instance()->isVisible());
    ASSERT_TRUE(p->isVisible());
    EXPECT_EQ(p->statustexto->text(),
              "Seja bem vindo ao software   -   segunda-feira, 23 de novembro de 2026");
    // the marks of the settings are in the dump of the controls
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(principal, the_login_window_applies_the_login_rule) {
    exigir_login("1");
    exec("INSERT INTO login (nome, senha) VALUES ('Maria', 'Segredo1')");
    reabrir();
    frmlogin* l = frmlogin::instance();
    ASSERT_TRUE(l->isVisible());
    EXPECT_FALSE(p->isVisible());
    l->txtusuario->setText("Maria");
    l->txtsenha->setText("errada");
    l->cmdentrar->click();
    EXPECT_EQ(boxes(),
              QStringList{"Login: Usuário e ou senha inválido, por favor verifique os dados digitados!"});
    EXPECT_FALSE(p->isVisible());
    l->txtsenha->setText("segredo1");
    l->cmdentrar->click();
    EXPECT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_TRUE(p->isVisible());
    EXPECT_FALSE(l->isVisible());
    EXPECT_TRUE(p->item("mnulogininiciar")->isChecked());
}

TEST_F(principal, a_missing_background_stops_the_opening_with_its_message) {
    QFile::remove(path("fundo.gif"));
    reabrir();
    ASSERT_TRUE(p->isVisible());
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, "Erro");
    EXPECT_EQ(prompts_.boxes()[0].style, platform::critical);
    EXPECT_TRUE(
        prompts_.boxes()[0].text.startsWith("Ocorreu o seguinte erro ao tentar abrir o banco de dados: "));
    EXPECT_TRUE(
        prompts_.boxes()[0].text.endsWith(" o banco de dados foi definido como local, reinicie o software."));
    // nothing after the picture ran
    EXPECT_TRUE(p->statustexto->text().isEmpty());
    EXPECT_TRUE(p->lblpagarest->text().isEmpty());
}

TEST_F(principal, a_missing_data_file_still_opens_the_main_window_with_empty_lists) {
    QFile::remove(path("dados.qntbd"));
    reabrir();
    ASSERT_TRUE(p->isVisible());
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    ASSERT_FALSE(prompts_.boxes().empty());
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith("Não foi possível conectar ao banco de dados"));
    EXPECT_EQ(store::setting(store::secao_config, "RedeLocal", QString()), "SemRede");
}

TEST_F(principal, with_the_data_off_the_tabs_are_hidden_and_the_item_turns_them_on) {
    store::save_setting(store::secao_config, "ExibirPrincipal", "0");
    reabrir();
    entrada("pagar", "2026/11/01");
    EXPECT_FALSE(p->picprincipal->isVisible());
    EXPECT_FALSE(p->item("mnuexibirprincipal")->isChecked());
    EXPECT_TRUE(p->lblpagarest->text().isEmpty());
    p->item("mnuexibirprincipal")->trigger();
    EXPECT_EQ(store::setting(store::secao_config, "ExibirPrincipal", {}), "1");
    EXPECT_TRUE(p->picprincipal->isVisible());
    EXPECT_EQ(p->lstpagar->row_count(), 1);
    p->item("mnuexibirprincipal")->trigger();
    EXPECT_EQ(store::setting(store::secao_config, "ExibirPrincipal", {}), "0");
    EXPECT_TRUE(p->picprincipal->isHidden());
    EXPECT_EQ(boxes(), QStringList{"Info: Quando está opção está desmarcada o software não mostra os dados "
                                   "cadastrados na página principal, para exibir novamente estes dados basta "
                                   "marcar está opção!"});
}

TEST_F(principal, closing_by_the_menu_or_the_close_box_stores_the_column_layout) {
    for (const char* how : {"mnusair", "close box"}) {
        QFile::remove(path("pagar.ini"));
        reabrir()->lstpagar->set_column_width(2, 3000);
        if (QString::fromLatin1(how) == "mnusair")
            p->item("mnusair")->trigger();
        else
            p->close();
        QFile f(path("pagar.ini"));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << how;
        EXPECT_TRUE(f.readAll().contains("descricao=3000")) << how;
    }
}

TEST_F(principal, display_settings_reach_the_lists_and_an_empty_list_keeps_its_look) {
    store::save_setting(store::secao_config, "TamanhoFonte", "14");
    store::save_setting(store::secao_config, "Fontenome", "DejaVu Serif");
    store::save_setting(store::secao_config, "Iniciar", "1");
    store::save_setting(store::secao_config, "CorFundo1", "&HC0FFFF");
    store::save_setting(store::secao_config, "CorFundo2", "&HE0E0E0");
    p->CarregarConfigSoft();
    for (list_view* l : {p->lstpagar, p->lstreceber, p->lstmovimento, p->lstcaixabanco}) {
        EXPECT_EQ(l->font().pointSizeF(), 14.0);
        EXPECT_EQ(l->font().family(), "DejaVu Serif");
    }
    EXPECT_TRUE(p->item("mnuiniciar")->isChecked());
    EXPECT_FALSE(p->lstpagar->alternatingRowColors());
    entrada("pagar", "2026/11/23");
    p->carregarpagar();
    p->CarregarConfigSoft();
    EXPECT_TRUE(p->lstpagar->alternatingRowColors());
    EXPECT_EQ(p->lstpagar->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(p->lstpagar->palette().color(QPalette::AlternateBase), QColor(0xE0, 0xE0, 0xE0));
}

TEST_F(principal, toggles_and_the_desktop_items_write_and_open_what_they_name) {
    const struct {
        const char* item;
        const QString* section;
        const char* key;
    } toggles[] = {{"mnualertavenc", &store::secao_config, "AlertasVencimento"},
                   {"mnuatualizarsaldo", &store::secao_config, "AtualizarSaldo"},
                   {"mnudicadia", &store::secao_configuracoes, "Exibir dica do dia"},
                   {"mnuiniciar", &store::secao_config, "Iniciar"}};
    for (const auto& t : toggles)
        for (int vez = 0; vez < 2; ++vez) {
            p->item(t.item)->trigger();
            EXPECT_EQ(store::setting(*t.section, t.key, "<nada>"), p->item(t.item)->isChecked() ? "1" : "0");
        }
    // the tip lives in the lower-case section only
    EXPECT_EQ(store::setting(store::secao_config, "Exibir dica do dia", "<nada>"), "<nada>");
    // the start entry holds the program while the item is checked, nothing after
    QFile f(platform::autostart_file("Quintara"));
    for (bool marcado : {true, false}) {
        p->item("mnuiniciar")->trigger();
        ASSERT_EQ(p->item("mnuiniciar")->isChecked(), marcado);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        EXPECT_TRUE(f.readAll().contains(marcado ? "Exec=" + path(QString()).toUtf8() : "Exec=\n"));
        f.close();
    }
    p->item("mnulogininiciar")->trigger();
    EXPECT_EQ(rows("SELECT exigirlogin FROM login_inicia"), QStringList{"1"});
    p->item("mnulogininiciar")->trigger();
    EXPECT_EQ(rows("SELECT exigirlogin FROM login_inicia"), QStringList{"0"});

    p->item("mnunotepad")->trigger();
    p->item("mnucalc")->trigger();
    p->item("mnumanual")->trigger();
    p->executar_botao("sobre");
    EXPECT_EQ(shell_.opened, (QStringList{"<editor>", "<calculator>",
                                          "https://www.quintara.com.br/produtos/quintara/manual.aspx",
                                          "https://www.quintara.com.br/produtos/quintara"}));
}

// --- the lists' actions ----------------------------------------------------------------------

TEST_F(principal, removing_asks_and_on_yes_deletes_the_selected_row_and_reloads) {
    const struct {
        ledger which;
        const char* menu;
        const char* item;
        const char* question;
    } twins[] = {
        {ledger::pagar, "poppagar", "popremoverpagar",
         "Remover: Tem certeza que deseja remover o item selecionado do banco de dados?"},
        {ledger::receber, "popreceber", "popremoverreceber",
         "Remover: Tem certeza que deseja remover o item selecionado do banco de dados?"},
        {ledger::bancario, "popmovimento", "popremovermov",
         "Remover: Tem certeza que deseja remover o item selecionados do banco de dados?"},
    };
    for (const auto& t : twins) {
        SCOPED_TRACE(t.item);
        for (const char* d : {"2026/11/01", "2026/11/02", "2026/11/03"})
            t.which == ledger::bancario ? movement(d) : entrada(shell::traits(t.which).tabela, d);
        list_view* l = p->findChild<list_view*>(shell::traits(t.which).lista);
        p->carregar(t.which);
        l->select_row(1);
        prompts_.clear();
        prompts_.answer(platform::answer_no);
        popup(t.menu, t.item);
        prompts_.answer(platform::answer_yes);
        popup(t.menu, t.item);
        EXPECT_EQ(boxes(), (QStringList{t.question, t.question}));
        EXPECT_EQ(p->codigoselecionado, 2.0);
        // reloaded from the file
        EXPECT_EQ(column(l), (QStringList{"1", "3"}));
    }
    EXPECT_TRUE(p->lblmovimentoest->text().startsWith("Depósitos: R$ 20,00 (2 cad.)"));
    // the buttons run the same routine
    p->lstpagar->select_row(0);
    prompts_.answer(platform::answer_yes);
    p->cmdremoverd->click();
    EXPECT_EQ(column(p->lstpagar), QStringList{"3"});
}

TEST_F(principal, an_empty_list_or_no_selection_does_nothing_and_says_nothing) {
    const std::function<void()> routines[] = {
        [&] { p->removerpagar(); }, [&] { p->removerreceber(); }, [&] { p->removermovimento(); },
        [&] { p->removerbanco(); }, [&] { p->popbaixapagar(); },  [&] { p->popbaixareceber(); },
        [&] { p->alterarpagar(); }, [&] { p->alterarbanco(); },   [&] { p->alterarmovimento(); },
    };
    for (const auto& r : routines)
        r();
    entrada("pagar", "2026/11/01");
    movement("2026/11/01");
    conta("Caixa", "100,00");
    p->carregarpagar();
    p->carregarbancario();
    p->carregarbancos();
    for (list_view* l : {p->lstpagar, p->lstmovimento, p->lstcaixabanco})
        l->select_row(-1);
    for (const auto& r : routines)
        r();
    EXPECT_TRUE(prompts_.records().empty());
    EXPECT_EQ(frmeditar::aberto(), nullptr);
    EXPECT_EQ(rows("SELECT banco FROM banco"), QStringList{"Caixa"});
}

TEST_F(principal, removing_an_account_names_it_with_its_balance) {
    conta("Caixa", "100,00");
    conta("Banco X", "50,00");
    entrada("pagar", "2026/11/01", "Concluído", "Caixa", "30,00");
    p->carregarbancos();
    p->lstcaixabanco->select_row(0);
    prompts_.answer(platform::answer_yes);
    popup("popcaixa", "popremovercaixa");
    EXPECT_EQ(boxes(),
              QStringList{"Remover: Tem certeza que deseja remover Caixa (R$ 70,00) do banco de dados?"});
    EXPECT_EQ(column(p->lstcaixabanco), QStringList{"Banco X"});
    EXPECT_EQ(rows("SELECT origem FROM pagar"), QStringList{"Caixa"});
}

TEST_F(principal, settling_asks_writes_today_and_refreshes_the_balance) {
    conta("Caixa", "100,00");
    for (const auto& [tabela, menu, item, question, balance] :
         {std::tuple{"pagar", "poppagar", "popbaixapagar", "despesa", "R$ 70,00"},
          std::tuple{"receber", "popreceber", "popbaixareceber", "receita", "R$ 100,00"}}) {
        SCOPED_TRACE(tabela);
        entrada(tabela, "2026/11/01");
        list_view* l = tabela == QLatin1String("pagar") ? p->lstpagar : p->lstreceber;
        p->carregar(tabela == QLatin1String("pagar") ? ledger::pagar : ledger::receber);
        prompts_.clear();
        l->select_row(0);
        prompts_.answer(platform::answer_no);
        popup(menu, item);
        EXPECT_EQ(l->text(0, 7), "Pendente");
        l->select_row(0);
        prompts_.answer(platform::answer_yes);
        popup(menu, item);
        EXPECT_EQ(boxes(), QStringList(2, u"Efetuar baixa: Deseja efetuar uma baixa para está "_s +
                                              QLatin1String(question) + QLatin1Char('?')));
        EXPECT_EQ(l->text(0, 7), "Concluído");
        EXPECT_EQ(l->text(0, 5), "23/11/2026");
        EXPECT_EQ(p->lstcaixabanco->text(0, 1), balance);
    }
}

TEST_F(principal, setting_items_of_the_popups_set_the_box_the_order_and_the_view) {
    for (const char* d : {"2026/11/23", "2026/11/10", "2025/05/05"})
        entrada("receber", d);
    p->carregarreceber();
    popup("popreceber", "popvisdiareceber");
    EXPECT_EQ(p->cbofiltror->currentText(), "Apenas do dia");
    EXPECT_EQ(store::setting(store::secao_config, "FiltroR", {}), "Apenas do dia");
    EXPECT_EQ(p->lstreceber->row_count(), 1);

    QAction* asc = p->findChild<QMenu*>("popmovimento")->findChild<QAction*>("popordemasc3");
    QAction* desc = p->findChild<QMenu*>("popmovimento")->findChild<QAction*>("popordemdesc3");
    movement("2026/11/01");
    popup("popmovimento", "popordemdesc3");
    EXPECT_EQ(store::setting(store::secao_config, "Ordem", {}), "DESC");
    EXPECT_TRUE(desc->isChecked());
    EXPECT_FALSE(asc->isChecked());
    EXPECT_EQ(p->lstmovimento->row_count(), 1);
    // a second click on the marked item keeps it marked
    popup("popmovimento", "popordemdesc3");
    EXPECT_TRUE(desc->isChecked());
    // the settings window writes the same key: the marks follow it when the menu opens
    store::save_setting(store::secao_config, "Ordem", "asc");
    right_click(p->lstmovimento);
    EXPECT_TRUE(asc->isChecked());
    p->findChild<QMenu*>("popmovimento")->close();

    popup("popmovimento", "poporgvalorbancario");
    EXPECT_EQ(shell::ordem_bancario(), " Order by valor");
    popup("popmovimento", "popvismesbancario");
    EXPECT_EQ(store::setting(store::secao_config, "VisualizarDadosBancario", {}), "1");
    EXPECT_TRUE(p->findChild<QAction*>("popvismesbancario")->isChecked());
    EXPECT_FALSE(p->findChild<QAction*>("popvistodosbancario")->isChecked());
    EXPECT_EQ(boxes(), QStringList{"Aviso: " + shell::view_notice_month(QDate(2026, 11, 23))});
}

TEST_F(principal, a_right_click_opens_the_lists_menu_which_connects_at_its_first_opening) {
    store::fecharconexao();
    for (list_view* l : {p->lstpagar, p->lstreceber, p->lstmovimento, p->lstcaixabanco}) {
        right_click(l);
        const auto open = p->findChildren<QMenu*>();
        const auto it = std::find_if(open.begin(), open.end(), [](QMenu* m) { return m->isVisible(); });
        ASSERT_NE(it, open.end()) << qPrintable(l->objectName());
        (*it)->close();
    }
    EXPECT_TRUE(store::conexao);
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(principal, a_double_click_edits_the_row) {
    movement("2026/11/01");
    p->carregarbancario();
    p->lstmovimento->select_row(0);
    Q_EMIT p->lstmovimento->row_double_clicked(0);
    ASSERT_TRUE(frmeditarbancario::aberto());
    EXPECT_TRUE(frmeditarbancario::aberto()->isVisible());
    EXPECT_EQ(p->codigoselecionado, 1.0);
}

} // namespace
