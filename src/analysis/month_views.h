#pragma once
// The twin per-month views of a year: the entries of pagar or receber whose date (or due date)
// text holds the year and the month, and their totals line. The two windows differ only in the
// data of gemeo_mes.

#include "analysis/status_tally.h"
#include "shell/ledger_statement.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace analysis {

struct gemeo_mes {
    const char* nome; // the window's name
    QString caption;
    QString campo;          // "Data" or "Vencimento"
    QString padrao_janeiro; // the end of January's pattern ("/01/%')", or "/01%')" without the bar)
};
const gemeo_mes& contas_por_mes();      // frmpormes
const gemeo_mes& vencimentos_por_mes(); // frmvenpormes

// mes 1..12; ano as the window keeps it (text).
QString consulta_mes(const gemeo_mes& g, shell::ledger tabela, const QString& ano, int mes);
// "Visualizando contas a pagar separadas por mês - ano de 2026"
QString caption_ano(shell::ledger tabela, const QString& ano);

struct mes_lido {
    std::vector<QStringList> linhas; // código, data, descricao, documento, party, vencimento, R$ valor, ...
    status_tally tally{classes::exato, soma::moeda};
};
// A statement that fails reads as an empty month.
mes_lido ler_mes(shell::ledger tabela, const QString& consulta);
QString linha_mes(shell::ledger tabela, const status_tally& t);

} // namespace analysis
