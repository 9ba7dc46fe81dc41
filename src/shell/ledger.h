#pragma once
// The three ledgers of the main window, described once: what tells pagar, receber and bancario
// apart (table, party column, words, settings keys, layout file, list, loader, editor, tab) is
// data here, and every routine that serves all three reads it instead of spelling out the twins.

#include <QString>

#include <array>

namespace shell {

// pagar holds the expenses, receber the income, bancario the bank movements.
enum class ledger { pagar, receber, bancario };

inline constexpr std::array<ledger, 3> all_ledgers = {ledger::pagar, ledger::receber, ledger::bancario};

// The head of the bank boxes of both entry ledgers.
inline const QString todos_bancos = QStringLiteral("Todos os bancos");

// The settings keys that keep a ledger list's filter boxes (empty for bancario, which keeps its own).
struct filter_keys {
    QString origem, mostrar, centro, contato, filtro, baseado;
    QString ordem; // OrdemP / OrdemR: the last header click
};

struct ledger_traits {
    ledger which;
    QString tabela;  // pagar, receber, bancario
    QString contato; // the party column: fornecedor, cliente; empty for bancario
    // The heads of the centre and contact boxes, as shown ("Todos os centros de custos").
    QString todos_centros;
    QString todos_contatos;
    QString contato_titulo; // "Fornecedor", "Cliente": the party's heading and label
    QString centro_titulo;  // "Centro de custo", "Centro de lucro"
    // The label under the list: "N cadastros  -  Total de despesas: ...  -  Total pago: ...".
    QString cadastros;
    QString total_de;
    QString total_baixado;
    QString palavra; // "despesa", "receita": what a row is called in the questions
    filter_keys chaves;
    QString layout;     // the columns' layout file in the program's folder ("\pagar.ini")
    QString carregando; // the waiting window's title during a load
    // The main window: the tab, the list, its loader and editor routines and its pop-up menu.
    int aba;
    QString lista;
    QString carregar;
    QString alterar;
    QString popup;
};

const ledger_traits& traits(ledger which);

} // namespace shell
