#include "shell/login.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/sql/jet_dialect.h"
#include "store/conexao.h"

namespace shell {

bool tem_caractere_proibido(const QString& texto) {
    for (QChar c : caracteres_proibidos)
        if (texto.contains(c)) return true;
    return false;
}

QString comando_login(const QString& nome, const QString& senha) {
    return QStringLiteral("SELECT * FROM login WHERE (nome like '") + sql::value(nome) +
           QStringLiteral("' AND senha LIKE '") + sql::value(senha) + QStringLiteral("')");
}

QString exigirlogin() {
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM login_inicia"), store::conexao, sql::keyset, sql::read_only);
    return rs.text(store::coluna::exigirlogin);
}

bool ha_usuarios() {
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM login"), store::conexao, sql::keyset, sql::read_only);
    return !rs.eof();
}

bool usuario_existe(const QString& nome, const QString& senha) {
    bool achou = false;
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(comando_login(nome, senha), store::conexao, sql::keyset, sql::read_only);
        achou = !rs.eof();
    });
    return achou;
}

resultado_login decidir_login(bool ha_usuarios, const QString& nome, const QString& senha,
                              const std::function<bool()>& procurar) {
    if (!ha_usuarios) return resultado_login::sem_usuarios;
    if (nome.isEmpty() || senha.isEmpty()) return resultado_login::campos_vazios;
    if (tem_caractere_proibido(nome) || tem_caractere_proibido(senha))
        return resultado_login::caractere_proibido;
    return procurar() ? resultado_login::aceito : resultado_login::recusado;
}

resultado_login conferir_login(const QString& nome, const QString& senha) {
    return decidir_login(ha_usuarios(), nome, senha, [&] { return usuario_existe(nome, senha); });
}

aviso_login aviso_de(resultado_login r) {
    switch (r) {
    case resultado_login::sem_usuarios:
        return {texto_sem_usuarios, platform::exclamation, false};
    case resultado_login::campos_vazios:
        return {texto_campos_login, platform::exclamation, true};
    case resultado_login::caractere_proibido:
        return {texto_login_invalido, platform::critical, false};
    case resultado_login::recusado:
        return {texto_login_invalido, platform::critical, true};
    case resultado_login::aceito:
        break;
    }
    return {};
}

} // namespace shell
