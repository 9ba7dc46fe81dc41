#include "analysis/software_info.h"

#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QDir>
#include <QFileInfo>

#ifndef QUINTARA_VERSION
#define QUINTARA_VERSION "0.0.0"
#endif

namespace analysis {

QString tamanho_em_megabytes(qint64 bytes) {
    return vb::format_money(double(bytes) / 1024.0 / 1024.0) + QStringLiteral(" MegaBytes");
}

QString arquivo_dados_programa() {
    return QDir::toNativeSeparators(store::program_path(store::arquivo_dados));
}

QString tamanho_arquivo(const QString& caminho) {
    const QFileInfo f(caminho);
    return tamanho_em_megabytes(f.exists() ? f.size() : 0);
}

info_software ler_info_software() {
    info_software i;
    i.versao = QStringLiteral(QUINTARA_VERSION);
    i.nome = store::app_title + QLatin1Char(' ') + i.versao;
    i.local_inst = QDir::toNativeSeparators(store::program_dir());
    i.bd = arquivo_dados_programa();
    i.bd_tamanho = tamanho_arquivo(i.bd);
    i.local = QDir::toNativeSeparators(QFileInfo(store::caminho_dados(store::arquivo_dados)).absolutePath());
    const QString nunca = QStringLiteral("Nunca foi realizado");
    i.ultimo_backup = store::setting(store::secao_config, QStringLiteral("BackupData"), nunca);
    i.ultima_manutencao = store::setting(store::secao_config, QStringLiteral("ManutencaoBD"), nunca);
    const QString rede =
        store::setting(store::secao_config, QStringLiteral("RedeLocal"), QStringLiteral("SemRede"));
    i.rede =
        rede.isEmpty() || rede == QLatin1String("SemRede") ? QStringLiteral("Não") : QStringLiteral("Sim");
    return i;
}

} // namespace analysis
