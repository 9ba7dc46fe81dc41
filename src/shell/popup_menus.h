#pragma once
// The pop-up menus of the four lists of the main window as data: poppagar, popreceber,
// popmovimento, popcaixa. Each entry names the menu or submenu that holds it and what it does;
// the window builds the menus in one loop and runs an item by its kind. The receber menu is
// made from the same rows as the pagar menu: the rows hold both twins' names and targets.

#include "shell/ledger.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace shell {

enum class popup_kind {
    submenu,      // holds the entries that name it as their menu
    separator,    // a line
    routine,      // a routine of the main window; target: its name
    menu_item,    // acts as an item of the main menu; target: that item's name
    window,       // opens a window that no main menu item opens; target: the window's name
    print_list,   // prints the list it belongs to
    filter,       // sets the list's period box; target: the box's text
    order,        // writes the setting Ordem; target: "ASC" or "DESC"
    order_clause, // sets the order clause of the movement reports; target: the clause
    view,         // writes the setting VisualizarDadosbancario; target: "0", "1" or "2"
    none,         // present, with no action
};

struct popup_entry {
    QString menu; // the top menu (poppagar...) or a submenu's name
    QString name; // empty for a separator
    QString caption;
    popup_kind kind = popup_kind::none;
    QString target;
};

// The four top menus, in this order.
const std::vector<QString>& popup_menu_names();
// Every entry of every menu, each menu's entries in display order.
const std::vector<popup_entry>& popup_entries();
// The top menu an entry or submenu belongs to.
QString top_menu_of(const popup_entry& e);

// The action an item runs in the main window's action table: a routine, main-menu item or window
// by its target, a list print by the item's name, the items of the kinds below by their own name;
// empty for the items that do nothing (and separators and submenus).
QString popup_action(const popup_entry& e);

// What an item of the kinds filter, order, order_clause and view does, in this order: the setting
// written, the movement reports' order clause set, the item checked among those of its kind in
// its submenu, the list's period box set (and the boxes saved), the list reloaded, the notice
// shown (title view_notice_title).
struct popup_effect {
    QString chave; // the key written in Configurações; empty: none
    QString valor;
    std::optional<QString> ordem_bancario;
    bool marca = false;
    std::optional<QString> filtro;
    std::optional<ledger> recarregar;
    QString aviso;
};
popup_effect effect_of(const popup_entry& e, const QDate& hoje);
// Writes the setting and the order clause of an effect.
void apply_settings(const popup_effect& f);

// Whether a checkable item (order, view) is checked: the marks follow the settings they write,
// which the settings window writes too.
bool popup_checked(const popup_entry& e);

} // namespace shell
