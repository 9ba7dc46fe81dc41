#include "store/conexao.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "store/column_types.h"
#include "store/config.h"
#include "store/data_file.h"

#include "store/program_dir.h"
#include <QSet>

namespace store {

sql::connection_ptr conexao;
qint16 tentativasconexao = 0;

namespace {

QString ultimo_erro;

bool abrir(const QString& caminho, const QString& senha) {
    try {
        conexao = sql::connection::open(caminho, senha.toUtf8());
        conexao->set_column_check(check_column);
        return true;
    } catch (const sql::error& e) {
        conexao.reset();
        ultimo_erro = e.description();
        return false;
    }
}

void reconectarbanco(const QString& caminho, const QString& senha) {
    for (;;) {
        conexao.reset();
        if (abrir(caminho, senha)) return;
        ++tentativasconexao;
        if (tentativasconexao >= 20) break;
        platform::sleep_ms(800);
    }
    platform::msgbox(
        QStringLiteral("Não foi possível conectar ao banco de dados, verifique se você está conectado a "
                       "internet ou rede local e tente novamente. Caso o erro persista entre em contato "
                       "com o administrador da rede. \nErro: ") +
            ultimo_erro,
        platform::critical, QStringLiteral("Erro"));
    save_setting(secao_config, QStringLiteral("EmRede"), QStringLiteral("0"));
    save_setting(secao_config, QStringLiteral("RedeLocal"), QStringLiteral("SemRede"));
    save_setting(secao_config, QStringLiteral("BackupID"), QStringLiteral("0"));
}

} // namespace

QString caminho_dados(const QString& arquivo) {
    const QString caminho = setting(secao_config, QStringLiteral("RedeLocal"), QStringLiteral("SemRede"));
    if (caminho.isEmpty() || caminho == QLatin1String("SemRede")) return program_path(arquivo);
    return caminho;
}

void conectarbanco(const QString& arquivo, const QString& senha) {
    tentativasconexao = 0;
    const QString caminho = caminho_dados(arquivo);
    conexao.reset();
    if (!abrir(caminho, senha)) reconectarbanco(caminho, senha);
    // once per file and run: the indexes of a file an older version wrote
    static QSet<QString> updated;
    if (conexao && !updated.contains(caminho)) {
        updated.insert(caminho);
        platform::ignore_errors([] { update_indexes(conexao); });
    }
}

void colunas_proprias() {
    if (!conexao) return;
    try {
        conexao->prepare(QStringLiteral("select id_extrato from bancario where 1 = 0"));
    } catch (const sql::error&) {
        platform::ignore_errors(
            [] { conexao->execute(QStringLiteral("ALTER TABLE bancario ADD COLUMN id_extrato TEXT")); });
    }
}

void fecharconexao() {
    conexao.reset();
}

} // namespace store
