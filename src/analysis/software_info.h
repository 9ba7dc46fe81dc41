#pragma once
// Facts on the installation for the statistics windows: where the data file is, how large, the
// program's version, the last backup and maintenance, and whether it works over the network.

#include <QString>

namespace analysis {

// "1,50 MegaBytes": bytes / 1024 / 1024 through "##,##0.00".
QString tamanho_em_megabytes(qint64 bytes);

// The data file beside the program (what frmestatisticas and txtbd show, also in network mode).
QString arquivo_dados_programa();
// Its size as above; an unreadable file shows "0,00 MegaBytes".
QString tamanho_arquivo(const QString& caminho);

struct info_software {
    QString nome;       // "Quintara 0.1.0"
    QString versao;     // major.minor.revision
    QString local_inst; // the program's folder
    QString bd;         // the data file beside the program
    QString bd_tamanho;
    QString local;         // the folder of the data file in use (the network path's in network mode)
    QString ultimo_backup; // setting BackupData, "Nunca foi realizado" when absent
    QString ultima_manutencao;
    QString rede; // "Sim" in network mode (RedeLocal holds a path), else "Não"
};
info_software ler_info_software();

} // namespace analysis
