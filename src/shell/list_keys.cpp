#include "shell/list_keys.h"

#include "shell/ledger.h"

namespace shell {

const std::array<list_routines, 4>& main_list_routines() {
    static const std::array<list_routines, 4> all = [] {
        const auto de = [](ledger which, const char* adicionar, const char* remover) {
            const ledger_traits& t = traits(which);
            return list_routines{t.lista, QString::fromLatin1(adicionar), t.alterar,
                                 QString::fromLatin1(remover), t.carregar};
        };
        return std::array<list_routines, 4>{
            de(ledger::pagar, "adicionarpagar", "removerpagar"),
            de(ledger::receber, "adicionarreceber", "removerreceber"),
            de(ledger::bancario, "adicionarmovimento", "removermovimento"),
            list_routines{QStringLiteral("lstcaixabanco"), QStringLiteral("adicionarbanco"),
                          QStringLiteral("alterarbanco"), QStringLiteral("removerbanco"),
                          QStringLiteral("carregarbancos")},
        };
    }();
    return all;
}

QString routine_for_key(const list_routines& r, int key) {
    switch (key) {
    case Qt::Key_Insert:
        return r.adicionar;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return r.alterar;
    case Qt::Key_Delete:
        return r.remover;
    case Qt::Key_F5:
        return r.carregar;
    default:
        return {};
    }
}

} // namespace shell
