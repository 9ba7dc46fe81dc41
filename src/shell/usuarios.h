#pragma once
// The users of the program apart from their windows: the upkeep of the table login with its
// statements and messages (the login itself is shell/login.h).

#include "platform/sql/recordset.h"
#include "shell/login.h"

#include <QString>
#include <QStringList>

namespace shell {

// frmgerenciarlogin
inline const QString texto_usuario_vazio =
    QStringLiteral("O campo nome de usuário e senha não podem estar vazios!");
inline const QString texto_caracteres = QStringLiteral("Os seguintes caractes não são permitidos: '=%-#;");
inline const QString texto_usuario_existe =
    QStringLiteral("O nome de usuário digitado já existe, por favor selecione outro nome de usuário!");
inline const QString texto_atualizado = QStringLiteral("Dados atualizados com sucesso!");
inline const QString texto_ultimo_usuario =
    QStringLiteral("Não é possível remover este usuário, o sistema não pode ficar sem usuários!");
// The question before a removal; "produtos" is how it has always read.
QString pergunta_remover_usuario(const QString& nome);

// The statements of the user manager.
QString comando_usuarios();
// A click on a user: the first row whose name contains the clicked one.
QString comando_usuario_clicado(const QString& nome);
// The duplicate test: LIKE without wildcards, so the case does not count.
QString comando_usuario_existente(const QString& nome);
// The removal takes every row whose name matches, in any case.
QString comando_remover_usuario(const QString& nome);

// The names of all users, in the table's order. Throws sql::error.
QStringList nomes_usuarios();

enum class resultado_cadastro { campos_vazios, caractere_proibido, nome_existe, gravado };
// cmdadicionar: the checks in their order, then the new row. Throws sql::error on a failed write.
resultado_cadastro adicionar_usuario(const QString& nome, const QString& senha);

// The user a click loaded, held open for cdmatualizar.
class usuario_aberto {
public:
    // False when no name contains the clicked one; the row held before is let go either way.
    bool abrir(const QString& nome);
    bool aberto() const { return aberto_; }
    void fechar();
    QString codigo() const { return codigo_; }
    QString nome() const { return nome_; }
    QString senha() const { return senha_; }
    // cdmatualizar: only the forbidden characters are checked; nothing else is. Throws sql::error.
    resultado_cadastro atualizar(const QString& nome, const QString& senha);

private:
    sql::recordset rs_;
    bool aberto_ = false;
    QString codigo_, nome_, senha_;
};

// login_inicia.exigirlogin: read, and written at once in pessimistic mode ("1" or "0").
// Both connect first; a failure reads as empty and writes nothing.
QString ler_exigirlogin();
void gravar_exigirlogin(bool exigir);

} // namespace shell
