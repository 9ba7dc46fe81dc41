#pragma once
// The integrated report: expenses, income and bank movements in one list, each row marked by its
// kind, with a plain account of the filters that produced it. Each ledger's filters become one
// statement and its account lines; the rows, the totals and the files are built here.

#include "output/c_relatorios.h"
#include "platform/table_source.h"
#include "platform/text/vb_text.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

namespace analysis {

enum class estatus_filtro { tudo, pendente, concluido };

// One page of the generator as its controls stand. The bank page has no due-date option and no
// centres; only it has destinations.
struct filtros_pagina {
    bool por_data = false;
    QDate de, ate;
    bool por_vencimento = false;
    bool por_contato = false; // suppliers or clients
    QStringList contatos;
    bool por_origem = false;
    QStringList origens;
    QStringList centros; // filters whenever the list holds names, ticked or not
    bool por_destino = false;
    QStringList destinos;
    estatus_filtro estatus = estatus_filtro::tudo;
};

// A ledger's statement and the account of its filters, each line ended by CR LF.
struct clausula {
    QString consulta;
    QString relato;
};
clausula despesas(const filtros_pagina& f);
clausula receitas(const filtros_pagina& f);
clausula bancarios(const filtros_pagina& f);

enum class razao { pagar, receber, bancario };

// The rows of a ledger in the columns of the report, and the sum of their amounts. ok is false
// when the statement could not be run (no rows then).
struct linhas_razao {
    bool ok = false;
    std::vector<QStringList> linhas;
    vb::currency soma;
};
// Runs the statement on a connection of its own.
linhas_razao ler_linhas(razao r, const QString& consulta);

// What the result window shows.
struct relatorio_integrado {
    std::vector<QStringList> linhas;
    QString txtpagar, txtreceber, txtbancario, txtfinanceiro;
};
struct filtros_integrados {
    bool pagar = false, receber = false, bancario = false;
    filtros_pagina p, r, b;
};
// Each ticked ledger in the order expenses, income, bank: its account lines, its rows and its
// total line; a ledger left out says so. A ledger whose statement fails shows its account lines
// alone.
relatorio_integrado gerar(const filtros_integrados& f);

inline const QString titulo_integrado = QStringLiteral(" - Despesas, Receitas e Movimento Bancário");

// The report files; caption: the result window's caption.
void escrever_txt(QIODevice& out, const QString& caption, const platform::table_source& lista,
                  const relatorio_integrado& r, output::c_relatorios& exportador);
// Begins with a UTF-8 byte-order mark: the page declares no character set.
void escrever_html(QIODevice& out, const QString& caption, const platform::table_source& lista,
                   const relatorio_integrado& r, output::c_relatorios& exportador);

enum class formato { txt, html };
// The save action: dialog, file, the bar while it is written, the "Visualizar" question. Returns
// the file chosen (empty: cancelled). Nothing here throws.
QString salvar(formato f, const QString& caption, const platform::table_source& lista,
               const relatorio_integrado& r, output::c_relatorios& exportador);

} // namespace analysis
