#pragma once
// The comparison of two years or two months of expenses or income: counts and sums of each
// period by status, and the signed differences of the second against the first, as plain text
// and as HTML. Expenses and income differ only by their table and word.

#include "analysis/status_tally.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace analysis {

struct lado_comparacao {
    QString tabela;  // "pagar", "receber"
    QString palavra; // "despesas", "receitas"
    QString caption; // "Comparação entre meses e anos - Despesas"
};
const lado_comparacao& comparacao_despesas();
const lado_comparacao& comparacao_receitas();

// "select * from pagar where (data like '%2024%')"; padrao: a year, or "2024/03".
QString comando_comparacao(const lado_comparacao& l, const QString& padrao);
// On the shared connection; a statement that fails leaves every figure at 0.
status_tally somar_periodo(const lado_comparacao& l, const QString& padrao);

struct bloco_comparacao {
    QString texto; // CR LF line ends
    QString html;
};
// The six figures of one period.
bloco_comparacao bloco_periodo(const lado_comparacao& l, const status_tally& s);
// The six paired entries and their differences (second less first). unidade: "ano", "mês".
bloco_comparacao bloco_diferencas(const lado_comparacao& l, const QString& unidade, const QString& nome1,
                                  const QString& nome2, const status_tally& s1, const status_tally& s2);

// What a tab shows: its three labels and blocks.
struct aba_comparacao {
    QStringList rotulos; // lblano1, lblano2, lblresultado (or the month tab's)
    bloco_comparacao blocos[3];
};
void escrever_txt_comparacao(QIODevice& out, const lado_comparacao& l, const aba_comparacao& a);
// Begins with a UTF-8 byte-order mark: the page declares no character set.
void escrever_html_comparacao(QIODevice& out, const lado_comparacao& l, const aba_comparacao& a);

} // namespace analysis
