#include "store/config.h"

#include "platform/settings.h"

namespace store {

QString setting(const QString& secao, const QString& chave, const QString& padrao) {
    return platform::get_setting(app_title, secao, chave, padrao);
}

void save_setting(const QString& secao, const QString& chave, const QString& valor) {
    platform::save_setting(app_title, secao, chave, valor);
}

bool exibir_principal() {
    return setting(secao_config, QStringLiteral("ExibirPrincipal"), QStringLiteral("1")) ==
           QLatin1String("1");
}

QString endereco_boleto() {
    return setting(secao_config, QStringLiteral("EnderecoBoleto"),
                   QStringLiteral("https://www.quintara.com.br"));
}

} // namespace store
