#include "entries/print/recibo_print.h"

#include "output/print/modimpressao.h"
#include "platform/print/printer.h"

#include <exception>

namespace entries {

impressao imprimir_recibo(const recibo_texto& r) {
    try {
        platform::printer p;
        platform::page_format format;
        // about the unprintable edge of a sheet, where the old printer object started
        format.margins_mm = QMarginsF(6.35, 6.35, 6.35, 6.35);
        switch (p.begin(r.legenda, format)) {
        case platform::printer::cancelled:
            return impressao::cancelada;
        case platform::printer::no_printer:
        case platform::printer::failed:
            return impressao::falhou;
        case platform::printer::started:
            break;
        }
        p.set_FontName(QStringLiteral("Arial"));
        for (const QString& linha : linhas_recibo(r)) {
            p.print(linha);
            p.new_line();
        }
        output::modimpressao::rodape_comum(p);
        p.EndDoc();
        return impressao::impressa;
    } catch (const std::exception&) {
        return impressao::falhou;
    }
}

} // namespace entries
