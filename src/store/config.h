#pragma once
// Settings of the program (application "Quintara"), read at each use with the default of the call.

#include "store/names.h"

#include <QString>

namespace store {

QString setting(const QString& secao, const QString& chave, const QString& padrao);
void save_setting(const QString& secao, const QString& chave, const QString& valor);

// ExibirPrincipal at "1": the main window shows its data and reloads it after every save.
bool exibir_principal();

// The site that makes the bank-slip pages (key "EnderecoBoleto" of "Configurações"): scheme and
// host, the page's path follows it.
QString endereco_boleto();

} // namespace store
