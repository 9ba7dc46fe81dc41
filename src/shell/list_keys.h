#pragma once
// The keys of the main window's four lists: Insert adds, Enter edits, Delete removes, F5 reloads,
// each through the routine the tab's button (or the list's loader) runs.

#include <QString>

#include <array>

namespace shell {

struct list_routines {
    QString lista;
    QString adicionar, alterar, remover, carregar;
};

// lstpagar, lstreceber, lstmovimento, lstcaixabanco.
const std::array<list_routines, 4>& main_list_routines();

// The routine a key runs on the list; empty for any other key. key is a Qt::Key.
QString routine_for_key(const list_routines& r, int key);

} // namespace shell
