#include "shell/main_menu.h"
#include "shell/popup_menus.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

using shell::popup_kind;

const shell::popup_entry* find_popup_entry(const QString& top_menu, const QString& name) {
    for (const shell::popup_entry& e : shell::popup_entries())
        if (e.name == name && e.kind != popup_kind::separator && shell::top_menu_of(e) == top_menu) return &e;
    return nullptr;
}

const shell::popup_entry* entry(const char* menu, const char* name) {
    return find_popup_entry(QString::fromUtf8(menu), QString::fromUtf8(name));
}

// The items that act as an item of the main menu, pagar and receber side by side.
TEST(popup_menus, ledger_items_act_as_their_main_menu_items) {
    const struct {
        const char* pagar;
        const char* receber;
        const char* main_pagar;
        const char* main_receber;
    } twins[] = {
        {"popadcentrocusto", "popadcentroluco", "mnucentrocusto", "mnucentrolucro"},
        {"mnudesppagar", "mnugenrec", "mnugerendesp", "mnugerenlucros"},
        {"mnuprojecaopagar", "mnumetarec", "mnumetadesp", "mnumetarec"},
        {"mnucomparapagar", "mnucomprec", "mnucompdesp", "mnucomprec"},
        {"pophistoricoforn", "pophistoricocli", "mnufinforn", "mnufincli"},
        {"mnuordemserv1", "mnuordemserv2", "mnuordemserv", "mnuordemserv"},
        {"mnuvermespagar", "mnuvermesrec", "mnuviscontmespagar", "mnuviscontmesreceber"},
        {"mnuvencpormespagar", "mnuvenpormesrec", "mnuvisvencpagar", "mnuvisvencreceber"},
        {"popvencpagar", "popvencmesreceber", "mnuvencpagar", "mnuvencreceber"},
        {"popretperpagar", "popretreceber", "mnuretpagar", "mnuretreceber"},
        {"popretdiapagar", "popretdiareceber", "mnuretdiadesp", "mnuretdialucros"},
        {"popretmespagar", "popmes", "mnuretmesdespesas", "mnuretmeslucros"},
        {"popretanopagar", "popanoreceber", "mnuretanualdespesas", "mnuretanolucros"},
        {"popretforn", "retcliente", "mnuretfornecedor", "mnuretcliente"},
        {"popretcentrocusto", "popretcentrolucro", "mnuretcentrocusto", "mnuretcentrolucro"},
        {"popgrapagar", "popgraficoreceber", "mnugrapagar", "mnugrareceber"},
        {"popgradiapagar", "popgradiareceber", "mnugradiadesp", "mnugralucrosdia"},
        // the month income chart runs the statistics in the main menu, and so here
        {"popgramespagar", "popgramesreceber", "mnugradespmes", "mnugralucrosmes"},
        {"popgranopagar", "popgraanoreceber", "mnugraanualdesp", "mnugraabuallucros"},
        {"popestpagar", "popestreceber", "mnuestpagar", "mnuestreceber"},
        {"popestdiapagar", "popestdiareceber", "mnuestdiadesp", "mnuestdialucros"},
        {"popestmespagar", "popestmesreceber", "mnuestmesdesp", "mnuestmeslucros"},
        {"popestanopagar", "popestanoreceber", "mnuestanualdesp", "mnuestanuallucros"},
        {"popestforn", "popestcliente", "mnuestforn", "mnuestcli"},
        {"popestcentrocusto", "popestcentrolucro", "mnuestplanopagar", "mnuestplanoreceber"},
        {"popconfig1", "popconfig2", "mnuconfigsoft", "mnuconfigsoft"},
    };
    for (const auto& t : twins) {
        for (const auto& [menu, name, target] : {std::tuple{"poppagar", t.pagar, t.main_pagar},
                                                 std::tuple{"popreceber", t.receber, t.main_receber}}) {
            const shell::popup_entry* e = entry(menu, name);
            ASSERT_TRUE(e) << menu << " " << name;
            EXPECT_EQ(e->kind, popup_kind::menu_item) << name;
            EXPECT_EQ(e->target, QString::fromUtf8(target)) << name;
        }
    }
    const struct {
        const char* menu;
        const char* name;
        const char* main;
    } others[] = {{"popmovimento", "popretbancario", "mnuretbancario"},
                  {"popmovimento", "popgraficobancario", "mnugrabancario"},
                  {"popmovimento", "popestbancario", "mnuestbancario"},
                  {"popmovimento", "popconfig3", "mnuconfigsoft"},
                  {"popcaixa", "mnuextrato", "mnuextrato"}};
    for (const auto& o : others) {
        const shell::popup_entry* e = entry(o.menu, o.name);
        ASSERT_TRUE(e) << o.name;
        EXPECT_EQ(e->kind, popup_kind::menu_item);
        EXPECT_EQ(e->target, QString::fromUtf8(o.main));
    }
    // every item acted as exists in the main menu
    QSet<QString> main_items;
    for (const auto& m : shell::main_menu())
        main_items.insert(m.name);
    for (const auto& e : shell::popup_entries()) {
        if (e.kind == popup_kind::menu_item) {
            EXPECT_TRUE(main_items.contains(e.target)) << qPrintable(e.name);
        }
    }
}

TEST(popup_menus, every_other_item_is_in_its_menu) {
    const struct {
        const char* menu;
        QStringList names;
    } menus[] = {
        {"poppagar",
         {"popadicionarpagar", "popmultiplos", "popalterarpagar", "popremoverpagar", "popbaixapagar",
          "mnpoprecebopagar", "popvistodospagar", "popvisdiapagar", "popvis7pagar", "mnuvis15pagar",
          "popvismespagar", "popvisanopagar"}},
        {"popreceber",
         {"popadicionarreceber", "popmultiplosreceber", "popalterarreceber", "popremoverreceber",
          "popbaixareceber", "popreciboreceber", "popvistodosreceber", "popvisdiareceber", "mnuvis7receber",
          "mnuvis15receber", "mnuvismesreceber", "mnuvisanoreceber", "popordem2", "poporgreceber"}},
        {"popmovimento",
         {"popadicionarmov", "popalterarmov", "popremovermov", "popordemasc3", "popordemdesc3",
          "poporgdatabancario", "poporgtipobancario", "poporgorigembancario", "poporgdestinobancario",
          "poporgvalorbancario", "poporgestatusbancario", "popvistodosbancario", "popvisanosbancario",
          "popvismesbancario"}},
        {"popcaixa",
         {"popadicionarcaixa", "popalterarcaixa", "popremovercaixa", "mnuimprimirdados", "mnuestbanco",
          "mnusaldobanco"}},
    };
    for (const auto& m : menus)
        for (const QString& n : m.names)
            EXPECT_TRUE(find_popup_entry(QString::fromLatin1(m.menu), n)) << m.menu << " " << qPrintable(n);
    // the items with no action exist in the receber menu only
    EXPECT_FALSE(entry("poppagar", "popordem2"));
    EXPECT_FALSE(entry("poppagar", "poporgreceber"));
    EXPECT_EQ(entry("popreceber", "popordem2")->kind, popup_kind::none);
}

TEST(popup_menus, names_are_unique_within_a_menu_and_the_twins_have_the_same_shape) {
    QHash<QString, QSet<QString>> seen;
    QHash<QString, QList<popup_kind>> shape;
    for (const auto& e : shell::popup_entries()) {
        const QString top = shell::top_menu_of(e);
        ASSERT_TRUE(shell::popup_menu_names().end() !=
                    std::find(shell::popup_menu_names().begin(), shell::popup_menu_names().end(), top))
            << qPrintable(e.name);
        if (e.kind == popup_kind::separator) continue;
        EXPECT_FALSE(seen[top].contains(e.name)) << qPrintable(e.name);
        seen[top].insert(e.name);
        if (e.kind != popup_kind::none) shape[top] << e.kind;
    }
    EXPECT_EQ(shape.value("poppagar"), shape.value("popreceber"));
    EXPECT_EQ(seen.value("poppagar").size() + 2, seen.value("popreceber").size());
}

} // namespace
