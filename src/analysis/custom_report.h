#pragma once
// The configured report of one ledger: the statement from the boxes of its page (every unticked
// filter stays as a LIKE on '%%', so rows with an empty column drop out), the sub-title, and the
// totals line that names the picker dates even when the dates were not used.

#include "analysis/filter_kit.h"
#include "analysis/period_summary.h"
#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace analysis {

// A sort option of a page: the option's name, its caption, its order clause.
struct opcao_ordem {
    const char* nome;
    QString texto;
    QString clausula;
};
// In the order the page shows them; the first is the default.
const std::vector<opcao_ordem>& opcoes_ordem(shell::ledger tabela);

struct criterios_relatorio {
    shell::ledger tabela = shell::ledger::pagar;
    bool data = false;
    QDate data1, data2;
    bool data_cadastro = true; // "Data de Cadastro", else "Data de Vencimento" (not on bancario)
    bool estatus = false;
    bool pendente = true;
    bool contato = false; // supplier or client
    QString contato_texto;
    bool origem = false;
    QString origem_texto;
    bool destino = false; // bancario
    QString destino_texto;
    bool descricao = false; // not on bancario
    QString descricao_texto;
    QString ordem; // an order clause of opcoes_ordem
    bool crescente = true;
};

// "Data" or "Vencimento" (always "Data" for bancario).
QString campo_data(const criterios_relatorio& c);
// nullopt when the date box is ticked with a date missing.
std::optional<QString> consulta_relatorio(const criterios_relatorio& c);

// The texts of the report window; d1 and d2 are the pickers' texts (possibly empty).
QString subtitulo_relatorio(const criterios_relatorio& c, const QString& d1, const QString& d2);
QString geral_relatorio(shell::ledger tabela, const status_tally& t, const QString& d1, const QString& d2);

// The rows of the report, every text followed by a blank.
lista_lida ler_relatorio(shell::ledger tabela, const QString& consulta,
                         const std::function<void(long)>& antes = {},
                         const std::function<void(long)>& a_cada = {});

inline const QString msg_sem_resultado = QStringLiteral("A pesquisa não retornou resultados");

} // namespace analysis
