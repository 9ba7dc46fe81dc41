#pragma once
// What the registers add up to: per cost/profit centre, per client and per supplier, the count and
// sum of all, paid and pending entries (frmestforncli), and the list reports of clients and
// suppliers (frmrelatorio). For each row of a master statement a detail statement reads the
// entries that name it; the status is tested exactly against "Pendente".

#include "analysis/status_tally.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace analysis {

enum class lista_cadastro { planos, clientes, fornecedores };

struct estatistica_cadastro {
    QString nome;          // the menu item
    QString mestre;        // "Select * from pcontapagar"
    QString coluna_mestre; // the master's column that names the entries
    QString detalhe;       // "select * from pagar where (descricao like '" + name + "')"
    QString caption;
    lista_cadastro lista; // lstplanos, lstcliente or lstfornecedor
    bool receitas;        // income words in the totals line
};

// mnuestplanopagar, mnuestplanoreceber, mnuestcli, mnuestforn.
const std::vector<estatistica_cadastro>& estatisticas_cadastro();
const estatistica_cadastro* achar_estatistica_cadastro(const QString& nome);
QString consulta_detalhe(const estatistica_cadastro& e, const QString& nome);

// An empty master: this message, titled "Plano de conta", for all four (the wording speaks of
// centres even for clients and suppliers).
inline const QString titulo_sem_cadastro = QStringLiteral("Plano de conta");
inline const QString msg_sem_cadastro = QStringLiteral(
    "Não há nenhum centro de custo cadastrado no banco de dados! para cadastrar um centro de custo clique no "
    "menu principal e depois em centro de custo.");

struct resumo_cadastro {
    bool vazio = true;               // the master had no rows
    std::vector<QStringList> linhas; // name, pending, paid, all: "count (R$ sum)"
    status_tally tally{classes::exato, soma::moeda};
    QString geral; // lblgeral
};
// Connects and reads. antes(n) runs once the master's count is known, a_cada(i) before master row
// i (1-based). A detail that fails (an apostrophe in a name) gives its row zeros.
resumo_cadastro resumir_cadastro(const estatistica_cadastro& e, const std::function<void(long)>& antes = {},
                                 const std::function<void(long)>& a_cada = {});
// "3 (R$ 1.234,50)"
QString celula_contagem(long n, const QString& soma);

// The list reports of clients and suppliers.
struct lista_contatos {
    bool vazio = true;
    std::vector<QStringList> linhas;
};
inline const QString consulta_clientes = QStringLiteral("Select * from cliente order by nome");
inline const QString consulta_fornecedores = QStringLiteral("Select * from fornecedor order by nome");
// Each row carries nome, tipo ("f": "Pessoa Física", else "Pessoa Jurídica"), cpf, nascimento as
// dd/mm/yyyy, pais, estado, cidade, bairro, endereco, cep, tel, tel2, cel, email, site: fifteen
// fields for fourteen columns, so from "Telefone" on each column shows the field before it.
lista_contatos ler_contatos(const QString& consulta);

} // namespace analysis
