#pragma once
// Fills a data file with realistic rows for benchmarks and for trying the program on a full file:
// expenses, income, bank movements, accounts, cost and profit centres, clients and suppliers.
// The same seed gives the same rows.

#include "platform/sql/connection.h"

#include <QDate>
#include <QString>

#include <cstdint>

namespace generator {

struct options {
    int despesas = 1000;                    // rows of pagar
    int receitas = 1000;                    // rows of receber
    int movimentos = 500;                   // rows of bancario
    int clientes = 300;                     // rows of cliente
    int fornecedores = 200;                 // rows of fornecedor
    std::uint64_t semente = 20261123;       // the entries and movements
    std::uint64_t semente_cadastros = 1500; // the clients and suppliers
    QDate hoje = QDate(2026, 11, 23);       // entries run over `anos` years up to a little after this day
    int anos = 4;
    double concluidas = 0.85; // share of past-due entries that were settled
};

struct summary {
    int despesas = 0, receitas = 0, movimentos = 0;
    int contas = 0, centros_custo = 0, centros_lucro = 0, clientes = 0, fornecedores = 0; // newly added
};

// Adds the rows in one transaction. Accounts, centres, clients and suppliers already present
// (by name) are not added again, so a file can be filled more than once. Throws sql::error.
summary fill(const sql::connection_ptr& conn, const options& o);
// The same on a data file of the program (opened with its password).
summary fill_file(const QString& path, const options& o);

// The accounts the rows use.
const QStringList& bank_names();

} // namespace generator
