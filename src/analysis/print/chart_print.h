#pragma once
// The printed chart: the chart's picture at the top of the page, then, past it, the figures under
// a rule and " Estatísticas", one " caption value" line each, and the "Gerado" stamp with the
// owner's lines. The picture comes rendered from the window (the clipboard is never used).

#include <QImage>
#include <QString>

#include <utility>
#include <vector>

namespace platform {
class printer;
}

namespace analysis {

struct pagina_grafico {
    QImage figura;
    std::vector<std::pair<QString, QString>> rotulos; // caption, value
};

inline const QString regua_grafico = QString(77, QLatin1Char('-'));
// Empty lines printed to pass the picture.
constexpr int linhas_da_figura = 39;

// Draws the page on an open job (does not end it).
void desenhar_pagina_grafico(platform::printer& p, const pagina_grafico& g);
// One job to the print destination. A fault shows the "Erro" box; true when the page went out.
bool imprimir_grafico(const pagina_grafico& g, const QString& nome_trabalho);

} // namespace analysis
