#include "banks/ui/frmeditarbancario.h"
#include "platform/widgets/list_view.h"
#include "shell/list_actions.h"
#include "shell/popup_menus.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <functional>

#include <gtest/gtest.h>

namespace {

using shell::ledger;

class actions : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        // neither the tip nor the due alerts come between the window and the tests
        store::save_setting(store::secao_configuracoes, "Exibir dica do dia", "0");
        store::save_setting(store::secao_config, "AlertasVencimento", "0");
        exec("UPDATE login_inicia SET exigirlogin='0'");
        frmlogin::instance()->abrir();
        p = frmprincipal::instance();
        prompts_.clear();
    }
    void TearDown() override {
        if (frmeditarbancario* e = frmeditarbancario::loaded()) e->close();
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }
    QAction* popup(const char* menu, const char* name) {
        QMenu* m = p->findChild<QMenu*>(QString::fromLatin1(menu));
        return m ? m->findChild<QAction*>(QString::fromLatin1(name)) : nullptr;
    }
    void trigger(const char* menu, const char* name) {
        QAction* a = popup(menu, name);
        ASSERT_TRUE(a) << name;
        ASSERT_TRUE(a->isEnabled()) << name;
        a->trigger();
    }
    void entry(const char* table, const char* data, const char* estatus = "Pendente",
               const char* origem = "Caixa", const char* valor = "30,00") {
        const QString contato = QString::fromLatin1(table) == "pagar" ? "fornecedor" : "cliente";
        exec(QStringLiteral(
                 "INSERT INTO %1 (estatus, origem, %2, data, descricao, documento, informacoes, Valor, "
                 "vencimento, moeda) VALUES ('%3', '%4', 'Fulano', '%5', 'Aluguel', ' ', ' ', '%6', "
                 "'2026/12/10', 'R$')")
                 .arg(QString::fromLatin1(table), contato, QString::fromUtf8(estatus),
                      QString::fromUtf8(origem), QString::fromLatin1(data), QString::fromLatin1(valor)));
    }
    void movement(const char* data, const char* valor = "10,00") {
        exec(QStringLiteral(
                 "INSERT INTO bancario (estatus, origem, destino, data, movimento, informacoes, Valor) "
                 "VALUES ('Concluído', 'Caixa', ' - ', '%1', 'Depósito', ' ', '%2')")
                 .arg(QString::fromLatin1(data), QString::fromLatin1(valor)));
    }
    QStringList codes(list_view* l) {
        QStringList out;
        for (int r = 0; r < l->row_count(); ++r)
            out << l->text(r, 0);
        return out;
    }
    frmprincipal* p = nullptr;
};

// The three ledger lists' removal, by button and by pop-up item.
struct removal_case {
    ledger which;
    const char* table;
    const char* menu;
    const char* item;
    const char* question;
};
const removal_case removals[] = {
    {ledger::pagar, "pagar", "poppagar", "popremoverpagar",
     "Tem certeza que deseja remover o item selecionado do banco de dados?"},
    {ledger::receber, "receber", "popreceber", "popremoverreceber",
     "Tem certeza que deseja remover o item selecionado do banco de dados?"},
    {ledger::bancario, "bancario", "popmovimento", "popremovermov",
     "Tem certeza que deseja remover o item selecionados do banco de dados?"},
};

list_view* list_of(frmprincipal* p, ledger which) {
    return which == ledger::pagar ? p->lstpagar : which == ledger::receber ? p->lstreceber : p->lstmovimento;
}
QPushButton* remove_button(frmprincipal* p, ledger which) {
    return which == ledger::pagar     ? p->cmdremoverd
           : which == ledger::receber ? p->cmdremoverr
                                      : p->cmdremoverm;
}

TEST_F(actions, removing_asks_and_on_yes_deletes_the_selected_row_and_reloads) {
    for (const auto& c : removals) {
        SCOPED_TRACE(c.table);
        for (const char* d : {"2026/11/01", "2026/11/02", "2026/11/03"})
            c.which == ledger::bancario ? movement(d) : entry(c.table, d);
        p->carregarpagar();
        p->carregarreceber();
        p->carregarbancario();
        list_view* l = list_of(p, c.which);
        const QString all = QStringLiteral("SELECT \"código\" FROM %1 ORDER BY 1").arg(c.table);
        ASSERT_EQ(codes(l), (QStringList{"1", "2", "3"}));

        // No: nothing changes
        l->select_row(1);
        prompts_.clear();
        prompts_.answer(platform::answer_no);
        remove_button(p, c.which)->click();
        ASSERT_EQ(prompts_.boxes().size(), 1u);
        EXPECT_EQ(prompts_.boxes()[0].title, "Remover");
        EXPECT_EQ(prompts_.boxes()[0].text, QString::fromUtf8(c.question));
        EXPECT_EQ(prompts_.boxes()[0].style, platform::yes_no | platform::question);
        EXPECT_EQ(rows(all), (QStringList{"1", "2", "3"}));
        EXPECT_EQ(codes(l), (QStringList{"1", "2", "3"}));

        // Yes, from the pop-up this time
        l->select_row(1);
        prompts_.answer(platform::answer_yes);
        trigger(c.menu, c.item);
        EXPECT_EQ(prompts_.boxes().size(), 2u);
        EXPECT_EQ(p->codigoselecionado, 2.0);
        EXPECT_EQ(rows(all), (QStringList{"1", "3"}));
        EXPECT_EQ(codes(l), (QStringList{"1", "3"}));
    }
    EXPECT_TRUE(p->lblpagarest->text().startsWith("2 cadastros  -  Total de despesas: R$ 60,00"));
    EXPECT_TRUE(p->lblreceberest->text().startsWith("2 cadastrados  -  Total de lucros: R$ 60,00"));
    EXPECT_TRUE(p->lblmovimentoest->text().startsWith("Depósitos: R$ 20,00 (2 cad.)"));
}

TEST_F(actions, removing_the_last_row_leaves_an_empty_list_with_zero_totals) {
    entry("pagar", "2026/11/01");
    p->carregarpagar();
    p->lstpagar->select_row(0);
    prompts_.answer(platform::answer_yes);
    p->removerpagar();
    EXPECT_TRUE(rows("SELECT * FROM pagar").isEmpty());
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    EXPECT_TRUE(p->lblpagarest->text().startsWith("0 cadastros  -  Total de despesas: "));
    // and a second press finds nothing to act on
    p->removerpagar();
    EXPECT_EQ(prompts_.boxes().size(), 1u);
}

TEST_F(actions, an_empty_list_or_no_selection_does_nothing_and_says_nothing) {
    const std::function<void()> routines[] = {
        [&] { p->removerpagar(); },       [&] { p->removerreceber(); },     [&] { p->removermovimento(); },
        [&] { p->removerbanco(); },       [&] { p->popbaixapagar(); },      [&] { p->popbaixareceber(); },
        [&] { p->cmdremoverd->click(); }, [&] { p->cmdremoverb->click(); },
    };
    for (const auto& r : routines)
        r();
    EXPECT_TRUE(prompts_.records().empty());

    entry("pagar", "2026/11/01");
    entry("receber", "2026/11/01");
    movement("2026/11/01");
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', ' ', '100,00')");
    p->carregarpagar();
    p->carregarreceber();
    p->carregarbancario();
    p->carregarbancos();
    for (list_view* l : {p->lstpagar, p->lstreceber, p->lstmovimento, p->lstcaixabanco}) {
        ASSERT_EQ(l->row_count(), 1);
        l->select_row(-1);
    }
    for (const auto& r : routines)
        r();
    EXPECT_TRUE(prompts_.records().empty());
    EXPECT_EQ(rows("SELECT estatus FROM pagar"), QStringList{"Pendente"});
    EXPECT_EQ(rows("SELECT banco FROM banco"), QStringList{"Caixa"});
}

TEST_F(actions, removing_an_account_names_it_with_its_balance_and_leaves_its_rows) {
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', ' ', '100,00')");
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Banco X', ' ', '50,00')");
    entry("pagar", "2026/11/01", "Concluído", "Caixa", "30,00");
    p->carregarbancos();
    ASSERT_EQ(p->lstcaixabanco->text(0, 1), "R$ 70,00");
    p->lstcaixabanco->select_row(0);
    prompts_.answer(platform::answer_yes);
    trigger("popcaixa", "popremovercaixa");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, "Remover");
    EXPECT_EQ(prompts_.boxes()[0].text, "Tem certeza que deseja remover Caixa (R$ 70,00) do banco de dados?");
    EXPECT_EQ(rows("SELECT banco FROM banco"), QStringList{"Banco X"});
    EXPECT_EQ(rows("SELECT origem FROM pagar"), QStringList{"Caixa"});
    EXPECT_EQ(codes(p->lstcaixabanco), QStringList{"Banco X"});
}

TEST_F(actions, settling_asks_each_time_writes_today_and_refreshes_the_balance) {
    const struct {
        const char* table;
        const char* menu;
        const char* item;
        const char* question;
        const char* balance;
    } twins[] = {
        {"pagar", "poppagar", "popbaixapagar", "Deseja efetuar uma baixa para está despesa?", "R$ 70,00"},
        {"receber", "popreceber", "popbaixareceber", "Deseja efetuar uma baixa para está receita?",
         "R$ 100,00"},
    };
    exec("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Caixa', ' ', '100,00')");
    entry("pagar", "2026/11/01");
    entry("receber", "2026/11/01");
    p->carregarpagar();
    p->carregarreceber();
    for (const auto& t : twins) {
        SCOPED_TRACE(t.table);
        list_view* l = QString::fromLatin1(t.table) == "pagar" ? p->lstpagar : p->lstreceber;
        const QString row = QStringLiteral("SELECT estatus, vencimento FROM %1").arg(t.table);
        prompts_.clear();

        l->select_row(0);
        prompts_.answer(platform::answer_no);
        trigger(t.menu, t.item);
        ASSERT_EQ(prompts_.boxes().size(), 1u);
        EXPECT_EQ(prompts_.boxes()[0].title, "Efetuar baixa");
        EXPECT_EQ(prompts_.boxes()[0].text, QString::fromUtf8(t.question));
        EXPECT_EQ(rows(row), QStringList{"Pendente|2026/12/10"});

        for (int vez = 0; vez < 2; ++vez) {
            l->select_row(0);
            prompts_.answer(platform::answer_yes);
            trigger(t.menu, t.item);
            EXPECT_EQ(prompts_.boxes().size(), 2u + vez);
            EXPECT_EQ(rows(row), QStringList{"Concluído|23/11/2026"});
            // the list shows the new state and the account its new balance
            EXPECT_EQ(l->text(0, 7), "Concluído");
            EXPECT_EQ(l->text(0, 5), "23/11/2026");
            EXPECT_EQ(p->lstcaixabanco->text(0, 1), QString::fromUtf8(t.balance));
            exec(QStringLiteral("UPDATE %1 SET vencimento='2026/12/10'").arg(t.table));
        }
    }
}

TEST_F(actions, filter_items_set_the_box_save_it_and_reload) {
    for (const char* table : {"pagar", "receber"})
        for (const char* d : {"2026/11/23", "2026/11/20", "2026/11/10", "2026/03/01", "2025/05/05"})
            entry(table, d);
    p->carregarpagar();
    p->carregarreceber();
    const struct {
        const char* pagar;
        const char* receber;
        const char* filtro;
        int rows;
    } items[] = {
        {"popvisdiapagar", "popvisdiareceber", "Apenas do dia", 1},
        {"popvis7pagar", "mnuvis7receber", "Ultimos 7 dias", 2},
        {"mnuvis15pagar", "mnuvis15receber", "Ultimos 15 dias", 3},
        {"popvismespagar", "mnuvismesreceber", "Apenas deste mês", 3},
        {"popvisanopagar", "mnuvisanoreceber", "Apenas deste ano", 4},
        {"popvistodospagar", "popvistodosreceber", "Todos os dados", 5},
    };
    for (const auto& i : items) {
        SCOPED_TRACE(i.filtro);
        const QString filtro = QString::fromUtf8(i.filtro);
        trigger("poppagar", i.pagar);
        EXPECT_EQ(p->cbofiltrop->currentText(), filtro);
        EXPECT_EQ(store::setting(store::secao_config, "FiltroP", "?"), filtro);
        EXPECT_EQ(p->lstpagar->row_count(), i.rows);
        trigger("popreceber", i.receber);
        EXPECT_EQ(p->cbofiltror->currentText(), filtro);
        EXPECT_EQ(store::setting(store::secao_config, "FiltroR", "?"), filtro);
        EXPECT_EQ(p->lstreceber->row_count(), i.rows);
    }
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(actions, every_popup_item_is_present_and_enabled_only_when_it_can_work) {
    const QStringList working = {
        "popadicionarpagar",     "popalterarpagar",     "popremoverpagar",       "popbaixapagar",
        "popvistodospagar",      "popvisdiapagar",      "popvis7pagar",          "mnuvis15pagar",
        "popvismespagar",        "popvisanopagar",      "popadicionarreceber",   "popalterarreceber",
        "popremoverreceber",     "popbaixareceber",     "popvistodosreceber",    "popvisdiareceber",
        "mnuvis7receber",        "mnuvis15receber",     "mnuvismesreceber",      "mnuvisanoreceber",
        "popadicionarmov",       "popalterarmov",       "popremovermov",         "popordemasc3",
        "popordemdesc3",         "poporgdatabancario",  "poporgtipobancario",    "poporgorigembancario",
        "poporgdestinobancario", "poporgvalorbancario", "poporgestatusbancario", "popvistodosbancario",
        "popvisanosbancario",    "popvismesbancario",   "popadicionarcaixa",     "popalterarcaixa",
        "popremovercaixa",       "popmultiplos",        "popmultiplosreceber",   "mnuestbanco",
        "mnusaldobanco",         "mnpoprecebopagar",    "popreciboreceber"};
    // the items with no action and the windows of later work
    const QStringList waiting = {"popordem2", "poporgreceber", "mnuimprimirdados"};
    int checked = 0;
    for (const auto& e : shell::popup_entries()) {
        if (e.kind == shell::popup_kind::separator || e.kind == shell::popup_kind::submenu) continue;
        const QString top = shell::top_menu_of(e);
        QAction* a = popup(qPrintable(top), qPrintable(e.name));
        ASSERT_TRUE(a) << qPrintable(e.name);
        EXPECT_EQ(a->text(), e.caption);
        ++checked;
        if (working.contains(e.name)) {
            EXPECT_TRUE(a->isEnabled()) << qPrintable(e.name);
        } else if (waiting.contains(e.name)) {
            EXPECT_FALSE(a->isEnabled()) << qPrintable(e.name);
        } else {
            // the items that act as a main menu item share its state
            ASSERT_EQ(e.kind, shell::popup_kind::menu_item) << qPrintable(e.name);
            EXPECT_EQ(a->isEnabled(), p->item(e.target)->isEnabled()) << qPrintable(e.name);
        }
    }
    EXPECT_EQ(checked, 38 + 40 + 18 + 7);
}

TEST_F(actions, buttons_and_add_items_are_enabled_where_their_routines_exist) {
    for (QPushButton* b :
         {p->cmdadicionard, p->cmdalterard, p->cmdremoverd, p->cmdadicionarr, p->cmdalterarr, p->cmdremoverr,
          p->cmdadicionarm, p->cmdalterarm, p->cmdremoverm, p->cmdadicionarb, p->cmdalterarb, p->cmdremoverb,
          p->cmdmultiplosp, p->cmdmultiplosr, p->cmdrecibod, p->cmdrecibor})
        EXPECT_TRUE(b->isEnabled()) << qPrintable(b->objectName());
    for (const char* i : {"mnucaddespesas", "mnucadrececeber", "mnucadbancario", "mnucadbancos"})
        EXPECT_TRUE(p->item(QString::fromLatin1(i))->isEnabled()) << i;
}

TEST_F(actions, order_items_write_the_setting_and_mark_one_item) {
    QAction* asc = popup("popmovimento", "popordemasc3");
    QAction* desc = popup("popmovimento", "popordemdesc3");
    EXPECT_TRUE(asc->isChecked());
    EXPECT_FALSE(desc->isChecked());
    trigger("popmovimento", "popordemdesc3");
    EXPECT_EQ(store::setting(store::secao_config, "Ordem", "?"), "DESC");
    EXPECT_FALSE(asc->isChecked());
    EXPECT_TRUE(desc->isChecked());
    // a second click on the marked item keeps it marked
    trigger("popmovimento", "popordemdesc3");
    EXPECT_TRUE(desc->isChecked());
    trigger("popmovimento", "popordemasc3");
    EXPECT_EQ(store::setting(store::secao_config, "Ordem", "?"), "ASC");
    EXPECT_TRUE(asc->isChecked());
    EXPECT_FALSE(desc->isChecked());

    // the settings window writes the same key: the marks follow it when the menu opens
    store::save_setting(store::secao_config, "Ordem", "desc");
    QContextMenuEvent e(QContextMenuEvent::Mouse, QPoint(5, 5),
                        p->lstmovimento->viewport()->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(p->lstmovimento->viewport(), &e);
    EXPECT_TRUE(desc->isChecked());
    EXPECT_FALSE(asc->isChecked());
    p->findChild<QMenu*>("popmovimento")->close();
}

TEST_F(actions, order_clause_items_set_the_movement_order_and_reload) {
    const struct {
        const char* item;
        const char* clause;
    } items[] = {
        {"poporgdatabancario", " Order by Data"},     {"poporgtipobancario", " Order by movimento"},
        {"poporgorigembancario", " Order by origem"}, {"poporgdestinobancario", " Order by destino"},
        {"poporgvalorbancario", " Order by valor"},   {"poporgestatusbancario", " Order by estatus"}};
    int n = 0;
    for (const auto& i : items) {
        // a row added behind the list's back shows after the item
        movement("2026/11/01");
        ++n;
        trigger("popmovimento", i.item);
        EXPECT_EQ(shell::ordem_bancario(), QString::fromLatin1(i.clause));
        EXPECT_EQ(p->lstmovimento->row_count(), n) << i.item;
    }
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(actions, view_items_write_the_setting_mark_the_item_and_warn) {
    QAction* todos = popup("popmovimento", "popvistodosbancario");
    QAction* ano = popup("popmovimento", "popvisanosbancario");
    QAction* mes = popup("popmovimento", "popvismesbancario");
    EXPECT_TRUE(todos->isChecked());

    trigger("popmovimento", "popvisanosbancario");
    // written with a small b, read with a capital one: the same setting
    EXPECT_EQ(store::setting(store::secao_config, "VisualizarDadosBancario", "?"), "2");
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, "Aviso");
    EXPECT_EQ(prompts_.boxes()[0].text, shell::view_notice_year(QDate(2026, 11, 23)));
    EXPECT_TRUE(prompts_.boxes()[0].text.contains("ao ano de 2026 para visulizar"));
    EXPECT_TRUE(ano->isChecked());
    EXPECT_FALSE(todos->isChecked());

    trigger("popmovimento", "popvismesbancario");
    EXPECT_EQ(store::setting(store::secao_config, "VisualizarDadosBancario", "?"), "1");
    ASSERT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_EQ(prompts_.boxes()[1].title, "Aviso");
    EXPECT_TRUE(prompts_.boxes()[1].text.contains("ao mês de novembro do ano de 2026 para visulizar"));
    EXPECT_TRUE(mes->isChecked());
    EXPECT_FALSE(ano->isChecked());

    trigger("popmovimento", "popvistodosbancario");
    EXPECT_EQ(store::setting(store::secao_config, "VisualizarDadosBancario", "?"), "0");
    EXPECT_EQ(prompts_.boxes().size(), 2u);
    EXPECT_TRUE(todos->isChecked());
    EXPECT_FALSE(mes->isChecked());
}

TEST_F(actions, a_right_click_opens_the_lists_menu_which_connects_at_its_first_opening) {
    const struct {
        list_view* list;
        const char* menu;
    } lists[] = {{p->lstpagar, "poppagar"},
                 {p->lstreceber, "popreceber"},
                 {p->lstmovimento, "popmovimento"},
                 {p->lstcaixabanco, "popcaixa"}};
    store::fecharconexao();
    for (const auto& l : lists) {
        QMenu* m = p->findChild<QMenu*>(QString::fromLatin1(l.menu));
        ASSERT_TRUE(m);
        QContextMenuEvent e(QContextMenuEvent::Mouse, QPoint(5, 5),
                            l.list->viewport()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(l.list->viewport(), &e);
        EXPECT_TRUE(m->isVisible()) << l.menu;
        m->close();
    }
    EXPECT_TRUE(store::conexao);
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(actions, a_double_click_on_a_movement_edits_it) {
    movement("2026/11/01", "12,50");
    p->carregarbancario();
    p->lstmovimento->select_row(0);
    Q_EMIT p->lstmovimento->row_double_clicked(0);
    frmeditarbancario* e = frmeditarbancario::loaded();
    ASSERT_TRUE(e);
    EXPECT_TRUE(e->isVisible());
    EXPECT_EQ(p->codigoselecionado, 1.0);
}

} // namespace
