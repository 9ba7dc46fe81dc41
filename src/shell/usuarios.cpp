#include "shell/usuarios.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "shell/login.h"
#include "store/conexao.h"

namespace shell {

using store::conexao;
namespace coluna = store::coluna;

QString pergunta_remover_usuario(const QString& nome) {
    return QStringLiteral("tem certeza que deseja remover ") + nome +
           QStringLiteral(" e todos os seus produtos do banco de dados?");
}

QString comando_usuarios() {
    return QStringLiteral("SELECT * FROM login");
}

QString comando_usuario_clicado(const QString& nome) {
    return QStringLiteral("SELECT * FROM login where (nome like '%") + sql::value(nome) +
           QStringLiteral("%')");
}

QString comando_usuario_existente(const QString& nome) {
    return QStringLiteral("SELECT * FROM login WHERE (nome like '") + sql::value(nome) + QStringLiteral("')");
}

QString comando_remover_usuario(const QString& nome) {
    return QStringLiteral("Delete * from login where(nome like '") + sql::value(nome) + QStringLiteral("')");
}

QStringList nomes_usuarios() {
    sql::recordset rs;
    rs.open(comando_usuarios(), conexao, sql::keyset, sql::read_only);
    QStringList nomes;
    for (; !rs.eof(); rs.move_next())
        nomes << rs.text(coluna::nome);
    return nomes;
}

namespace {

bool proibido(const QString& nome, const QString& senha) {
    return tem_caractere_proibido(nome) || tem_caractere_proibido(senha);
}

} // namespace

resultado_cadastro adicionar_usuario(const QString& nome, const QString& senha) {
    if (nome.isEmpty() || senha.isEmpty()) return resultado_cadastro::campos_vazios;
    if (proibido(nome, senha)) return resultado_cadastro::caractere_proibido;
    {
        sql::recordset rs;
        rs.open(comando_usuario_existente(nome), conexao, sql::keyset, sql::read_only);
        if (!rs.eof()) return resultado_cadastro::nome_existe;
    }
    sql::recordset rs;
    rs.open(store::tabela::login, conexao, sql::keyset, sql::optimistic);
    rs.add_new();
    rs.set(coluna::nome, nome);
    rs.set(coluna::senha, senha);
    rs.update();
    rs.close();
    return resultado_cadastro::gravado;
}

bool usuario_aberto::abrir(const QString& nome) {
    aberto_ = false;
    rs_.close();
    rs_.open(comando_usuario_clicado(nome), conexao, sql::keyset, sql::pessimistic);
    if (rs_.eof()) return false;
    codigo_ = rs_.text(coluna::codigo_login);
    nome_ = rs_.text(coluna::nome);
    senha_ = rs_.text(coluna::senha);
    aberto_ = true;
    return true;
}

void usuario_aberto::fechar() {
    aberto_ = false;
    rs_.close();
}

resultado_cadastro usuario_aberto::atualizar(const QString& nome, const QString& senha) {
    if (proibido(nome, senha)) return resultado_cadastro::caractere_proibido;
    rs_.set(coluna::nome, nome);
    rs_.set(coluna::senha, senha);
    rs_.update();
    nome_ = nome;
    senha_ = senha;
    return resultado_cadastro::gravado;
}

QString ler_exigirlogin() {
    store::conectarbanco();
    try {
        return exigirlogin();
    } catch (const sql::error&) {
        return {};
    }
}

void gravar_exigirlogin(bool exigir) {
    store::conectarbanco();
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM login_inicia"), conexao, sql::keyset, sql::pessimistic);
        if (rs.eof()) return;
        rs.set(coluna::exigirlogin, exigir ? QStringLiteral("1") : QStringLiteral("0"));
        rs.update();
    });
}

} // namespace shell
