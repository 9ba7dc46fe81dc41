#include "shell/login.h"

#include "platform/sql/jet_dialect.h"

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

} // namespace shell
