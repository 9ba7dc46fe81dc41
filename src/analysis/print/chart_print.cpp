#include "analysis/print/chart_print.h"

#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "platform/clock.h"
#include "platform/print/printer.h"
#include "platform/text/vb_text.h"

namespace analysis {

namespace {

void linha(platform::printer& p, const QString& texto = {}) {
    if (!texto.isEmpty()) p.print(texto);
    p.new_line();
}

} // namespace

void desenhar_pagina_grafico(platform::printer& p, const pagina_grafico& g) {
    p.set_font(QStringLiteral("Arial"), 10);
    const double topo = p.CurrentY();
    if (!g.figura.isNull()) {
        // the picture fits in the lines that pass it, as wide as its proportions allow
        const double altura = (linhas_da_figura - 1) * p.TextHeight();
        const double proporcao = double(g.figura.width()) / std::max(1, g.figura.height());
        double largura = std::min(p.ScaleWidth(), altura * proporcao);
        p.draw_image(QRectF(0, topo, largura, largura / proporcao), g.figura);
    }
    for (int i = 0; i < linhas_da_figura; ++i)
        linha(p);
    linha(p, regua_grafico);
    linha(p, QStringLiteral(" Estatísticas"));
    linha(p, regua_grafico);
    linha(p);
    for (const auto& [rotulo, valor] : g.rotulos) {
        linha(p, QLatin1Char(' ') + rotulo + QLatin1Char(' ') + valor);
        linha(p);
    }
    linha(p, regua_grafico);
    linha(p);
    const QDateTime agora = platform::now();
    linha(p, QStringLiteral(" Gerado ") + vb::long_date(agora.date()) + QStringLiteral(" às ") +
                 vb::long_time(agora.time()));
    linha(p);
    linha(p, output::nome_relatorio());
    linha(p, output::slogan_relatorio());
    linha(p, output::site_relatorio());
}

bool imprimir_grafico(const pagina_grafico& g, const QString& nome_trabalho) {
    try {
        platform::printer p;
        platform::page_format formato;
        // about the unprintable edge of a sheet, where the old printer object started
        formato.margins_mm = QMarginsF(6.35, 6.35, 6.35, 6.35);
        switch (p.begin(nome_trabalho, formato)) {
        case platform::printer::cancelled:
            return false;
        case platform::printer::no_printer:
        case platform::printer::failed:
            output::modimpressao::erro_impressao();
            return false;
        case platform::printer::started:
            break;
        }
        desenhar_pagina_grafico(p, g);
        p.EndDoc();
        return true;
    } catch (...) {
        output::modimpressao::erro_impressao();
        return false;
    }
}

} // namespace analysis
