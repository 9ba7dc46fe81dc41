#pragma once
// The checks of the login windows, apart from the windows.

#include <QString>

namespace shell {

// The seven characters that keep a name or password from changing the login statement.
inline const QString caracteres_proibidos = QStringLiteral("'*%=-#;");

// True when the text holds any of them.
bool tem_caractere_proibido(const QString& texto);

// The statement that finds a user by name and password (LIKE: any case passes).
QString comando_login(const QString& nome, const QString& senha);

} // namespace shell
