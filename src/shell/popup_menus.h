#pragma once
// The pop-up menus of the four lists of the main window as data: poppagar, popreceber,
// popmovimento, popcaixa. Each entry names the menu or submenu that holds it and what it does;
// the window builds the menus in one loop and runs an item by its kind. The receber menu is
// made from the same rows as the pagar menu: the rows hold both twins' names and targets.

#include <QString>

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
// The entry of that name under the top menu (searching its submenus); nullptr if absent.
const popup_entry* find_popup_entry(const QString& top_menu, const QString& name);
// The top menu an entry or submenu belongs to.
QString top_menu_of(const popup_entry& e);

} // namespace shell
