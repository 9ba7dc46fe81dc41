#pragma once
// The cash flow forecast: the entries that fall due between two dates, for expenses, income or
// both, in the data file's own order, with their totals and the texts of the result window.

#include "analysis/status_tally.h"
#include "output/c_relatorios.h"
#include "platform/table_source.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

namespace analysis {

enum class tipo_fluxo { pagar, receber, geral };

// The request window's controls as they stand; dates as typed ("dd/mm/yyyy").
struct pedido_fluxo {
    QString data1, data2;
    QString banco;   // "Todos os bancos" or an account
    QString estatus; // "Pendentes e Concluidas", "Concluidas", "Pendentes"
};

inline const QString todos_os_bancos = QStringLiteral("Todos os bancos");

// The statement of one ledger (pagar: true for the expenses).
QString comando_fluxo(bool pagar, const pedido_fluxo& p);

// Days from the first date to the second, the end not counted; 0 when a date is unreadable.
qint64 periodo_fluxo(const pedido_fluxo& p);

struct lado_fluxo {
    std::vector<QStringList> linhas; // the list's columns, each but the first with a blank behind
    status_tally soma{classes::exato, soma::moeda};
};
// On the shared connection. A statement that fails reads as no rows.
lado_fluxo ler_fluxo(bool pagar, const pedido_fluxo& p);

struct textos_fluxo {
    QString caption;
    QString tab0, tab1;
    bool tab0_ativa = true, tab1_ativa = true;
    QString lbldata, lblest, lblest2, txtinfo, txtinfop2;
};
// pagar or receber may be null where the kind does not read that ledger.
textos_fluxo textos_do_fluxo(tipo_fluxo t, const pedido_fluxo& p, const lado_fluxo* pagar,
                             const lado_fluxo* receber);

// The messages of an empty result.
QString sem_resultado(tipo_fluxo t, bool pagar);

// The balance of the general view: each total through the locale's text and back through Val, so
// that under a decimal comma the cents are dropped before the subtraction.
double saldo_fluxo(double receitas, double despesas);

// Which form the export and print take, from the window's caption.
tipo_fluxo tipo_pela_legenda(const QString& caption);

// The HTML file (a UTF-8 byte-order mark first: the page declares no character set). pagar or
// receber is null where the form leaves that list out.
void escrever_html_fluxo(QIODevice& out, const QString& caption, const QString& lbldata,
                         const QString& txtinfop2, const platform::table_source* pagar,
                         const platform::table_source* receber, output::c_relatorios& exportador);

} // namespace analysis
