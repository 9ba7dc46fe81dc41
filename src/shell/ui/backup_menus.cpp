#include "shell/ui/backup_menus.h"

#include "platform/busy.h"
#include "platform/prompts.h"
#include "shell/backup.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

using namespace Qt::Literals::StringLiterals;

namespace shell {

namespace {

const QString filtro = u"Arquivo de banco de dados(*.qntbd)|*.qntbd"_s;

void erro(const QString& descricao) {
    platform::msgbox(u"Ocorreu o seguinte erro: "_s + descricao, platform::exclamation, u"Erro"_s);
    store::conectarbanco();
}

} // namespace

void mnurealizarbak_click() {
    const QString arquivo =
        platform::ask().save_file(u"Realizar backup do banco de dados"_s, filtro, QString());
    if (arquivo.isEmpty()) return;
    try {
        {
            platform::busy_span ampulheta;
            realizar_backup(arquivo);
        }
        platform::msgbox(u"Backup realizado com sucesso!"_s, platform::information, u"Backup"_s);
        store::conectarbanco();
    } catch (const copy_error& e) {
        erro(e.description());
    }
}

void mnurestbak_click() {
    const QString arquivo =
        platform::ask().open_file(u"Restaurar backup do banco de dados"_s, filtro, QString());
    if (arquivo.isEmpty()) return;
    try {
        {
            platform::busy_span ampulheta;
            restaurar_backup(arquivo);
        }
        platform::msgbox(u"Backup restaurado com sucesso!"_s, platform::information, u"Backup"_s);
        store::conectarbanco();
        if (principal_api* p = principal()) {
            p->carregar(ledger::pagar);
            p->carregar(ledger::receber);
            p->carregar(ledger::bancario);
            p->carregar_bancos();
        }
    } catch (const copy_error& e) {
        erro(e.description());
    }
}

} // namespace shell
