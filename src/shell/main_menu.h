#pragma once
// The menu tree of the main window as data: each entry names its parent, so the window builds
// the menus in one loop and routes each item by its name.

#include <QString>

#include <vector>

namespace shell {

struct menu_entry {
    QString parent; // empty for a top-level menu
    QString name;   // "-" for a separator
    QString caption;
    bool checkable = false;
};

const std::vector<menu_entry>& main_menu();

// The toolbar: buttons by key, and the drop-down entries by key, each acting as a menu item.
struct toolbar_entry {
    QString key;
    QString caption;
    QString menu_item; // the menu item it acts as; empty for a drop-down holder
    QString dropdown;  // for drop-down entries: the key of the button that holds them
};

const std::vector<toolbar_entry>& main_toolbar();

// The icon of a toolbar key, a menu item or a tab's button, as a name of the desktop's icon
// theme (the program carries its own picture for each); empty for none.
QString icon_of(const QString& name);

// The maker's pages.
inline const QString site_base = QStringLiteral("https://www.quintara.com.br");
QString maker_page(const QString& menu_item); // empty when the item opens no page

} // namespace shell
