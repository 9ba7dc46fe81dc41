#pragma once
// What the windows of the other subsystems may ask of the main window, and the table of actions
// they add to its menus. Nothing here shows the main window's controls: a window reloads a list,
// turns to a tab or reads the selected row through these routines only.

#include "shell/ledger_statement.h"

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace shell {

class principal_api {
public:
    virtual ~principal_api() = default;
    // The window itself, as the parent of the windows opened from it.
    virtual QWidget* janela() = 0;
    // carregarpagar / carregarreceber / carregarbancario: the list rebuilt from its filter boxes.
    virtual void carregar(ledger which) = 0;
    // dadospagar / dadosreceber: the filter boxes refilled from the data file (none for bancario).
    virtual void carregar_filtros(ledger which) = 0;
    // carregarbancos: the account list and its balances.
    virtual void carregar_bancos() = 0;
    // Turns to a ledger's tab (0 pagar, 1 receber, 2 bancario).
    virtual void mostrar_aba(ledger which) = 0;

    // The selected row, carried from the main window to the editors.
    double codigoselecionado = 0;
    QString bancoselecionado;
    QString saldoselecionado;
};

// The main window, or nullptr before it is made.
principal_api* principal();
void set_principal(principal_api* p);

// After a save: with ExibirPrincipal at "1" the main window turns to the ledger's tab and reloads
// it, and its filter boxes too when com_filtros.
void recarregar_principal(ledger which, bool com_filtros);
// After an account changed: the account list, with ExibirPrincipal at "1".
void recarregar_bancos();

// --- actions ------------------------------------------------------------------------------
// What a main-menu item, a pop-up item, a main-window button or a window name runs. Each
// subsystem registers the windows it builds; an item with nothing registered stays disabled.
using action = std::function<void()>;
void register_action(const QString& name, action run);
// nullptr when nothing is registered under the name.
const action* find_action(const QString& name);
// Runs it with errors ignored; false when nothing is registered.
bool run_action(const QString& name);

// --- notices ------------------------------------------------------------------------------
// Something that other windows keep in their boxes was added or renamed: an account, a
// supplier, a client, a cost or profit centre. Open editors refill their boxes.
enum class cadastro { banco, fornecedor, cliente, centrocusto, centrolucro };

class avisos : public QObject {
    Q_OBJECT
public:
    static avisos& instance();
Q_SIGNALS:
    void cadastrado(shell::cadastro que, const QString& nome);
};

} // namespace shell
