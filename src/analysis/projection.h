#pragma once
// Projections and targets: a month's completed expenses or income against a target the user
// types, the daily means, and the result as text and as HTML, with its files. The expense and
// income sides are one code path over the data that tells them apart.

#include "platform/text/vb_text.h"

#include <QDate>
#include <QString>

class QIODevice;

namespace analysis {

struct lado_projecao {
    QString tabela;     // "pagar", "receber"
    QString palavra;    // "despesas", "receitas"
    QString caption;    // "Projeções e Metas - Despesas"
    QString titulo;     // "Projeções e Metas de despesas"
    QString titulo_txt; // save dialog titles
    QString titulo_html;
};
const lado_projecao& projecao_despesas();
const lado_projecao& projecao_receitas();

// "Select * from pagar where (estatus like 'Concluído') AND (data like '%2024/03/%')"
QString comando_projecao(const lado_projecao& l, const QDate& mes);

struct resultado_projecao {
    QString texto; // txtresultadodesp, CR LF line ends
    QString html;  // txto
};
// The result from figures already known: dias 0 leaves the daily means at 0.
resultado_projecao montar_projecao(const lado_projecao& l, const QString& mes, const QString& ano,
                                   vb::currency total, int dias, vb::currency meta);
// VERIFICAR: reads the month's completed entries on the shared connection. A month word that is
// not understood gives 0 days and finds nothing; a target that does not read counts as 0.
resultado_projecao verificar_projecao(const lado_projecao& l, const QString& mes, const QString& ano,
                                      const QString& meta);

// The target field once left: "R$ #,##0.00"; blank, a leading point or comma, or text that does not
// read gives "R$ 00,00".
QString meta_ao_sair(const QString& texto);

void escrever_txt_projecao(QIODevice& out, const lado_projecao& l, const QString& texto);
// Begins with a UTF-8 byte-order mark: the page declares no character set.
void escrever_html_projecao(QIODevice& out, const lado_projecao& l, const QString& html);

} // namespace analysis
