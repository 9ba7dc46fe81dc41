#pragma once
// The management window's queries: one filter chosen among five, the sort word appended after it
// (which only the first statement can take: after a filter it makes the statement fail, and the
// list stays empty without a word), and the rows with their sum.

#include "analysis/status_tally.h"
#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace analysis {

enum class filtro_gerencia { nenhum, todas, contato, estatus, origem, data };

struct pedido_gerencia {
    shell::ledger tabela = shell::ledger::pagar; // pagar or receber
    filtro_gerencia filtro = filtro_gerencia::nenhum;
    QString texto;          // the supplier, client or account
    bool concluido = false; // the status option "Apenas Concluído"
    QDate data1, data2;
    QString data1_texto, data2_texto; // as the pickers show them, for the message
    QString ordem;                    // "", "ASC" or "DESC"
};

struct consulta_gerencia {
    QString sql;
    QString sem_dados; // the message when it finds nothing
};
// nullopt for no filter, or for the date filter with a date missing (see datas_faltando).
std::optional<consulta_gerencia> consulta_de(const pedido_gerencia& p);
bool datas_faltando(const pedido_gerencia& p);
inline const QString msg_datas_gerencia = QStringLiteral("As datas devem ser preenchidas!");

struct resultado_gerencia {
    bool falhou = false;             // the statement was refused: no rows and no message
    std::vector<QStringList> linhas; // data, descricao, moeda + " " + Valor
    status_tally tally{classes::exato, soma::moeda};
};
resultado_gerencia consultar_gerencia(const QString& sql);
// "Valor total R$ x", the sum of the formatted amounts.
QString total_gerencia(const status_tally& t);

} // namespace analysis
