#pragma once
// The login rule and the data it reads, apart from the windows: whether a login is asked at start
// (login_inicia.exigirlogin), who may enter, and in which order the checks refuse.

#include <QString>

#include <functional>

namespace shell {

inline const QString titulo_login = QStringLiteral("Login");
inline const QString texto_sem_usuarios = QStringLiteral(
    "Não há nenhum usuário cadastrado, o software será iniciado para adicionar um usuário clique "
    "no menu principal, gerenciador de login e depois em configurar usuários.");
inline const QString texto_campos_login = QStringLiteral("Digite o nome de usuário e ou a senha!");
inline const QString texto_login_invalido =
    QStringLiteral("Usuário e ou senha inválido, por favor verifique os dados digitados!");

// The seven characters that keep a name or password from changing the login statement.
inline const QString caracteres_proibidos = QStringLiteral("'*%=-#;");

// True when the text holds any of them.
bool tem_caractere_proibido(const QString& texto);

// The statement that finds a user by name and password (LIKE: any case passes).
QString comando_login(const QString& nome, const QString& senha);

// login_inicia.exigirlogin on the open connection ("1": a login is asked at start). Throws
// sql::error when it cannot be read, an empty table included.
QString exigirlogin();

// Whether the login table holds any user, on the open connection. Throws sql::error.
bool ha_usuarios();
// Whether a user of that name and password exists; false when the lookup fails.
bool usuario_existe(const QString& nome, const QString& senha);

// What a login window shows next (frmlogin and frmloginsoft).
enum class resultado_login {
    sem_usuarios, // nobody registered: anyone gets in, after the warning
    campos_vazios,
    caractere_proibido,
    aceito,
    recusado,
};
// The rule: no user registered lets anyone in; then blank fields, then forbidden characters refuse;
// only then is procurar asked whether the user exists.
resultado_login decidir_login(bool ha_usuarios, const QString& nome, const QString& senha,
                              const std::function<bool()>& procurar);

// The login steps of both login windows on the current connection: decidir_login on the table of
// users. Throws sql::error when the table of users cannot be read at all.
resultado_login conferir_login(const QString& nome, const QString& senha);

// What a login window shows for an outcome (title titulo_login; nothing when the text is empty),
// and whether it is put on top again: not after a forbidden character, nor once the user is in.
struct aviso_login {
    QString texto;
    int estilo = 0; // platform/prompts.h
    bool volta_ao_topo = false;
};
aviso_login aviso_de(resultado_login r);

} // namespace shell
