#include "shell/principal_api.h"

#include "platform/errors.h"
#include "store/config.h"

#include <QHash>

namespace shell {

namespace {
principal_api* atual = nullptr;

QHash<QString, action>& acoes() {
    static QHash<QString, action> tabela;
    return tabela;
}
} // namespace

principal_api* principal() {
    return atual;
}

void set_principal(principal_api* p) {
    atual = p;
}

void recarregar_principal(ledger which, bool com_filtros) {
    if (!atual || !store::exibir_principal()) return;
    atual->mostrar_aba(which);
    atual->carregar(which);
    if (com_filtros && which != ledger::bancario) atual->carregar_filtros(which);
}

void recarregar_bancos() {
    if (atual && store::exibir_principal()) atual->carregar_bancos();
}

void register_action(const QString& name, action run) {
    acoes()[name] = std::move(run);
}

const action* find_action(const QString& name) {
    const auto it = acoes().constFind(name);
    return it == acoes().constEnd() ? nullptr : &it.value();
}

bool run_action(const QString& name) {
    const action* a = find_action(name);
    if (!a) return false;
    platform::ignore_errors(*a);
    return true;
}

avisos& avisos::instance() {
    static avisos a;
    return a;
}

} // namespace shell
