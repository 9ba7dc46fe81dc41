#pragma once
// The printed statistics of the accounts: each account's figures, then the two summaries as
// they stand beside the list, and the common foot.

#include <QString>
#include <QStringList>

#include <vector>

namespace output {
class progress;
}

namespace banks {

// linhas: the rows of the statistics list (Banco/Caixa, Saldo(no período), Informações,
// Saldo(Inicial)). A failure shows the print-fault box; false when nothing went out.
bool imprimir_estatisticas(const std::vector<QStringList>& linhas, const QString& resumo, const QString& est,
                           output::progress* barra = nullptr);

} // namespace banks
