#pragma once
// The period summaries: for today, this month or this year, and for pagar, receber or bancario,
// four views of the same rows (movement list, report, chart, statistics), and the all-time
// statistics of each ledger. Each member is one row of data: its statement's prefix and suffix,
// whether the order clause follows, its window's words, its totals lines and its no-data text.
// The statements are deliberately inconsistent (blanks, parentheses, Data/data, the order clause
// on some members only) and are kept so. Later windows that sum a period (custom reports, e-mail)
// read the same table.

#include "analysis/period.h"
#include "analysis/status_tally.h"
#include "shell/ledger_statement.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace analysis {

enum class vista { movimento, relatorio, grafico, estatistica };
// The words of the six labels of frmgrafico and frmestatisticas a member writes: none (the
// window's own, for expenses), the income words or the bank words; "Quantidade de" in place of
// "Qtd de" for the all-time statistics.
enum class rotulos { nenhum, receitas, bancario };

struct membro {
    QString nome; // the menu item, e.g. "mnudiapagar"
    shell::ledger tabela;
    periodo p;
    vista v;
    QString prefixo;
    QString sufixo;
    bool ordem; // the order clause and the direction follow the suffix
    QString caption;
    // movimento: the loading window's title (empty: no words); grafico: the chart's title
    QString titulo;
    // Templates of the period and totals lines (list views): {N} count, {T} total, {P} settled,
    // {D} pending, {DMY} today as dd/mm/yyyy, {LONGDATE}, {LONGTIME}, {MES} month name, {ANO}.
    // An empty period template writes no period line.
    QString linha_periodo;
    QString linha_totais;
    QString sem_dados; // the no-data message (report, chart, statistics)
    rotulos palavras = rotulos::nenhum;
    bool quantidade = false;
};

// The 36 period members and the three all-time statistics, in menu order.
const std::vector<membro>& membros();
const membro* achar_membro(const QString& nome);
// The member a main-menu item runs. One crossing is kept: the month income chart item runs the
// month income statistics.
const membro* membro_do_menu(const QString& item);

// The sort direction (setting Ordem, "ASC" by default).
QString direcao();
// The order clause of pagar and receber, shared by their members, and the bank members' own
// (the one the movement list's pop-up sets). An empty clause becomes " order by Data" here.
QString clausula_ordem(shell::ledger tabela);
void set_ordem_entradas(const QString& clausula);

// The member's statement for today: prefix, period, suffix, and the order clause, a blank and the
// direction when the member takes them.
QString consulta(const membro& m, const QDate& hoje);

// --- list views (frmmovimento, frmrelatorio) ---------------------------------------------------

// The fields of a list row, in column order: pagar/receber data, descricao, documento, contact,
// vencimento, moeda + " " + Valor, estatus, origem, informacoes; bancario data, movimento, origem,
// destino, "R$ " + Valor, estatus, informacoes (movement view only). The movement view follows
// every field with a blank.
struct lista_lida {
    bool vazio = true;
    std::vector<QStringList> linhas;
    status_tally tally{classes::exato, soma::moeda};
};
// Connects, opens the statement and walks it. antes(n) runs once the count is known (n > 0), a_cada(i)
// before row i (1-based). A statement that fails reads as empty.
lista_lida ler_lista(const membro& m, const QString& consulta, const std::function<void(long)>& antes = {},
                     const std::function<void(long)>& a_cada = {});

QString preencher_modelo(const QString& modelo, const status_tally& t, const QDateTime& agora);
QString linha_periodo(const membro& m, const QDateTime& agora);
QString linha_totais(const membro& m, const status_tally& t, const QDateTime& agora);
// lblpagarest of an empty movement view: plain zeros, the bank words spelt as they always were.
QString linha_sem_dados(shell::ledger tabela);
// LBLTIPO of the report view.
QString tipo_relatorio(shell::ledger tabela);
inline const QString texto_carregando = QStringLiteral(
    "Por favor aguarde enquanto o software carrega os dados, este processo pode demorar dependendo do "
    "tamanho do banco de dados.");

// --- counts (frmgrafico, frmestatisticas) -------------------------------------------------------

// The six values beside the labels, and the three columns of the chart.
struct figuras {
    QString lbltotalcad, lbltotal, lbltotalpg, lblqtdpg, lbltotalpen, lblqtdpen;
    std::array<double, 3> colunas{}; // all rows, pending, concluded (counts)
};
// Counts pass through Val, as the old labels and chart cells did; sums are "R$ ##,##0.00".
figuras figuras_de(const status_tally& t);

struct contagem {
    bool vazio = true;
    status_tally tally{classes::tres_vias, soma::dupla};
};
// Connects, opens and counts: case-blind pending / concluded / other, sums as doubles.
contagem contar(const QString& consulta);

// The six label captions: the windows' own (expenses) and the member's, if it writes them.
std::array<QString, 6> rotulos_despesas(bool quantidade);
std::optional<std::array<QString, 6>> rotulos_de(rotulos r, bool quantidade);
// The bank chart members also write this text in the heading over the figures.
inline const QString titulo_estatistica_receber = QStringLiteral("Estatistica de contas a receber");

} // namespace analysis
