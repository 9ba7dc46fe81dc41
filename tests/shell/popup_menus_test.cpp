// The pop-up menus' own rules; their rows, targets and states are in the main window's dump
// (tests/data/shell/principal_controls.txt).
#include "shell/list_actions.h"
#include "shell/main_menu.h"
#include "shell/popup_menus.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QSet>

namespace {

using shell::popup_kind;

const shell::popup_entry& entry(const char* name) {
    for (const auto& e : shell::popup_entries())
        if (e.name == QLatin1String(name)) return e;
    throw std::runtime_error(name);
}

TEST(popup_menus, names_are_unique_per_menu_the_twins_alike_and_every_target_exists) {
    QSet<QString> main_items;
    for (const auto& m : shell::main_menu())
        main_items.insert(m.name);
    QHash<QString, QSet<QString>> seen;
    QHash<QString, QList<popup_kind>> shape;
    for (const auto& e : shell::popup_entries()) {
        const QString top = shell::top_menu_of(e);
        ASSERT_TRUE(std::count(shell::popup_menu_names().begin(), shell::popup_menu_names().end(), top))
            << qPrintable(e.name);
        if (e.kind == popup_kind::separator) continue;
        EXPECT_FALSE(seen[top].contains(e.name)) << qPrintable(e.name);
        seen[top].insert(e.name);
        if (e.kind != popup_kind::none) shape[top] << e.kind;
        if (e.kind == popup_kind::menu_item) EXPECT_TRUE(main_items.contains(e.target)) << qPrintable(e.name);
    }
    EXPECT_EQ(shape.value("poppagar"), shape.value("popreceber"));
}

class popup_effects : public support::fixture {};

TEST_F(popup_effects, each_setting_item_says_what_it_writes_sets_reloads_and_shows) {
    const QDate hoje(2026, 11, 23);
    auto f = shell::effect_of(entry("mnuvis15receber"), hoje);
    EXPECT_EQ(f.filtro, QString("Ultimos 15 dias"));
    EXPECT_EQ(f.recarregar, shell::ledger::receber);
    EXPECT_TRUE(f.chave.isEmpty());
    EXPECT_EQ(shell::effect_of(entry("popvis7pagar"), hoje).recarregar, shell::ledger::pagar);

    f = shell::effect_of(entry("popordemdesc3"), hoje);
    EXPECT_EQ(std::tuple(f.chave, f.valor, f.marca, f.recarregar),
              std::tuple(QString("Ordem"), QString("DESC"), true, std::optional(shell::ledger::bancario)));
    f = shell::effect_of(entry("poporgdestinobancario"), hoje);
    EXPECT_EQ(f.ordem_bancario, QString(" Order by destino"));
    EXPECT_EQ(f.recarregar, shell::ledger::bancario);
    shell::apply_settings(f);
    EXPECT_EQ(shell::ordem_bancario(), " Order by destino");

    // the view key is written with a small b and read with a capital one; only the two periods warn
    f = shell::effect_of(entry("popvisanosbancario"), hoje);
    EXPECT_EQ(
        std::tuple(f.chave, f.valor, f.marca, f.aviso),
        std::tuple(QString("VisualizarDadosbancario"), QString("2"), true, shell::view_notice_year(hoje)));
    EXPECT_FALSE(f.recarregar);
    EXPECT_TRUE(shell::effect_of(entry("popvistodosbancario"), hoje).aviso.isEmpty());
    EXPECT_EQ(shell::effect_of(entry("popvismesbancario"), hoje).aviso, shell::view_notice_month(hoje));
    shell::apply_settings(f);
    EXPECT_TRUE(shell::popup_checked(entry("popvisanosbancario")));
    EXPECT_FALSE(shell::popup_checked(entry("popvistodosbancario")));

    // Ordem is compared without regard to case, ascending when nothing is saved
    EXPECT_TRUE(shell::popup_checked(entry("popordemasc3")));
    store::save_setting(store::secao_config, "Ordem", "desc");
    EXPECT_TRUE(shell::popup_checked(entry("popordemdesc3")));
    EXPECT_FALSE(shell::popup_checked(entry("popordemasc3")));
}

} // namespace
