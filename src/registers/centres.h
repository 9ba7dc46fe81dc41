#pragma once
// Cost centres (pcontapagar) and profit centres (pcontareceber): their names, the rename that is
// carried into the entries, the summary per centre between two dates and its text and HTML files.
// The two kinds are twins; what differs between them is the table below, not code.

#include "output/c_relatorios.h"
#include "platform/table_source.h"
#include "platform/text/vb_text.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QIODevice;

namespace registers {

enum class centro { custo, lucro };

// What the twin windows differ in.
struct gemeo_centro {
    QString janela;        // the window's name
    QString caption;       // its caption
    QString tabela;        // the centres
    QString entradas;      // the entries that bear their names
    QString lista;         // the list of names
    QString consulta;      // the statement that lists them (the profit one is unsorted)
    QString rotulo_lista;  // the label over the list
    QString palavra;       // the word of every message
    QString fim_duplicado; // the ending of the duplicate message on adding
    QString rotulo_total;  // the totals line, in its order
    QString rotulo_concluido;
    QString titulo;         // the heading of the outputs
    QString prefixo_centro; // the printed line of each centre
};
const gemeo_centro& gemeo(centro c);

// The messages, with the twin's word.
QString msg_vazio(centro c);
QString msg_duplicado_cadastro(centro c);
QString msg_duplicado_edicao(centro c);
QString titulo_edicao(centro c);
QString prompt_edicao(centro c);
QString msg_remover(centro c, const QString& nome);
QString msg_sem_centros(centro c);

// The names, in the order of the twin's statement. Throws sql::error.
QStringList carregar_nomes(centro c);

// Adds a centre: the table is opened before the name is looked at, so a failed open is a failure
// too. vazio: the name trimmed was empty and nothing was written. Throws on any failure.
enum class cadastro_resultado { vazio, gravado };
cadastro_resultado cadastrar(centro c, const QString& nome);

// The two statements of a rename, in their order: the centre, then its entries.
QStringList renomear_statements(centro c, const QString& antigo, const QString& novo);
// Runs them on a new connection, the second only when the first went through (a name that
// exists, or an apostrophe, stops the first). Throws.
void renomear(centro c, const QString& antigo, const QString& novo);

QString remover_statement(centro c, const QString& nome);
// Entries that bear the name keep it. Throws.
void remover(centro c, const QString& nome);

// " AND data between '…' AND '…'", only when both dates are given.
QString periodo(const QDate& de, const QDate& ate);
QString resumo_statement(centro c, const QString& nome, const QString& periodo);

// A count and its sum, as the summary cells show them: "3 (R$ 1.234,50)".
QString celula(long n, vb::currency soma);
// lblgeral: the whole, the settled part, the pending part.
QString texto_geral(centro c, vb::currency total, vb::currency concluido, vb::currency pendente);

struct resumo {
    bool sem_centros = false;
    // ID, name, pending, settled, total
    std::vector<QStringList> linhas;
    vb::currency total, concluido, pendente;
    QString geral;
};
// The summary: every centre of the table, numbered from 1, with its entries between the dates
// (all dates unless both are given); "Pendente" rows are pending, every other status settled.
// comeco(n) runs once the number of centres is known, passo(i) after centre i. A centre whose
// statement fails counts nothing.
resumo calcular_resumo(centro c, const QDate& de, const QDate& ate,
                       const std::function<void(int)>& comeco = {},
                       const std::function<void(int)>& passo = {});

// The summary files. lista: the summary list (its table is left out when it has no rows).
void escrever_txt(QIODevice& out, centro c, const platform::table_source& lista, const QString& geral,
                  output::c_relatorios& exportador);
// Begins with a UTF-8 byte-order mark: the page declares no character set.
void escrever_html(QIODevice& out, centro c, const platform::table_source& lista, const QString& geral,
                   output::c_relatorios& exportador);

enum class formato { txt, html };
// The save action: dialog, file, the bar while it is written, the "Visualizar" question. Returns
// the file chosen (empty: cancelled). Nothing here throws.
QString salvar_resumo(formato f, centro c, const platform::table_source& lista, const QString& geral,
                      output::c_relatorios& exportador);

} // namespace registers
