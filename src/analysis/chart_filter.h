#pragma once
// The filtered charts of frmconfgrafico: the statement of each panel from its criteria, the counts
// of the three ledger panels, and the sums of the expenses-against-income panel.

#include "analysis/filter_kit.h"
#include "analysis/period_summary.h"

#include <QDate>
#include <QString>

#include <optional>

namespace analysis {

enum class painel_grafico { pagar, receber, bancario, despesas_receitas };

// What a panel's boxes hold. Unticked criteria give empty words.
struct criterios_grafico {
    bool data = false;
    QDate data1, data2;
    bool estatus = false;
    bool pendente = true; // the "Apenas Pendente" option, else "Apenas Concluído"
    bool contato = false;
    QString contato_texto; // supplier or client
    bool origem = false;
    QString origem_texto; // origin (account for the expenses-against-income panel)
    bool descricao = false;
    QString descricao_texto;
    bool destino = false;
    QString destino_texto;
};

// The panel's statement; for despesas_receitas the pagar one (receber: consulta_receitas).
// nullopt when the date box is ticked with a date missing.
std::optional<QString> consulta_grafico(painel_grafico p, const criterios_grafico& c);
std::optional<QString> consulta_receitas(const criterios_grafico& c);

// Words of each ledger panel's chart.
struct palavras_grafico {
    QString sem_dados; // "A pesquisa não retonou resultados" (sic) or the bank panel's spelling
    QString caption;   // caption of frmgrafico
    QString caption2;  // what overwrites it afterwards (the bank panel), or empty
    QString titulo;    // the chart's title
    rotulos palavras;
};
palavras_grafico palavras_de(painel_grafico p);

// Expenses against income: the two sums, each amount rounded to the cent first.
struct despesas_receitas {
    double despesas = 0, receitas = 0;
    double geral() const { return despesas + receitas; }
};
despesas_receitas somar_despesas_receitas(const QString& consulta_pagar, const QString& consulta_receber);
// Its six values and the three columns (general total, expenses, income), the columns read as the
// old chart cells read them: the number as text, then Val, so a decimal comma drops the cents.
struct figuras_dr {
    QString lbltotalcad, lbltotal, lbltotalpg, lblqtdpg;
    std::array<double, 3> colunas{};
};
figuras_dr figuras_de(const despesas_receitas& d);

} // namespace analysis
