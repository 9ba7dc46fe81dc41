#pragma once
// Direct printing, line by line at character tabs: the page heads of the statements and
// movement lists, their rows, and the closing "Estatísticas" block with the common foot.

#include "platform/table_source.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace platform {
class printer;
}

namespace output {

class progress;

namespace modimpressao {

enum class cabecalho { despesas, receitas, bancario, integrado, fluxo };

// The shared values a caller sets before the first page.
struct estado {
    QString titulo;
    QString subtitulo;
    int pagina = 0;
    double topo = 0;
};

// The headings of a page head, tab and text.
struct coluna_cabecalho {
    int tab;
    QString texto;
};
std::vector<coluna_cabecalho> colunas(cabecalho c);

// Page head (the page number grows by one, the foot of the page is printed with it).
void cabecalho_pagina(platform::printer& p, estado& e, cabecalho c);
// Before a row: a new page with its head when the current one is past its limit.
void antes_da_linha(platform::printer& p, estado& e, cabecalho c);
// A pagar or receber row of frmmovimento: three lines and an empty one (texts trimmed).
// Fields: date, description, document, contact, due date, amount, status, account, information.
void linha_entrada(platform::printer& p, const QStringList& campos);
// A bancario row: two lines and an empty one.
// Fields: date, kind, origin, destination, amount, status, information.
void linha_bancario(platform::printer& p, const QStringList& campos);
// "Estatísticas", the totals between rules, and the common foot. Does not end the job.
void estatisticas(platform::printer& p, const QString& totais);

// A rule of the character from the left edge: to the width of the page, or of n characters.
void regua(platform::printer& p, const QString& ch);
void regua(platform::printer& p, const QString& ch, int n);
// The common foot: "Gerado …", an empty line, nome, slogan.
void rodape_comum(platform::printer& p);

// A heading and its text (the text may hold line breaks) in a closing statistics block.
struct bloco {
    QString titulo;
    QString texto;
};
// A print of the page head and a closing block alone: "Estatísticas", a rule, an empty line, each
// heading with its text, a rule and the common foot (the integrated report). Failures show the
// "Erro" box. True when the job went out.
bool imprimir_blocos(cabecalho c, const QString& titulo, const QString& subtitulo,
                     const std::vector<bloco>& blocos);

// The print of frmmovimento: one job with the page head of the list's kind, every row, the
// closing block. Failures show the "Erro" box. True when the job went out.
bool imprimir_lista(cabecalho c, const platform::table_source& lista, const QString& titulo,
                    const QString& subtitulo, const QString& totais, progress* barra = nullptr);

// "Ocorreu um erro ao tentar imprimir, ..." (title "Erro", critical icon).
void erro_impressao();

// Starts a job with the sheet's usual margins. False when the user cancelled, or when there is no
// printer or the job failed (then after the "Erro" box).
bool comecar(platform::printer& p, const QString& titulo);

} // namespace modimpressao
} // namespace output
