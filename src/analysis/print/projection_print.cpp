#include "analysis/print/projection_print.h"

#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "platform/print/printer.h"

namespace analysis {

using namespace Qt::StringLiterals;
namespace mod = output::modimpressao;

bool imprimir_projecao(const lado_projecao& l, const QString& texto) {
    try {
        platform::printer p;
        if (!mod::comecar(p, l.titulo)) return false;
        p.set_FontName(u"Arial"_s);
        p.set_FontSize(11);
        p.print(l.titulo);
        p.new_line();
        p.print(output::linha_produto);
        p.new_line();
        mod::regua(p, u"-"_s);
        p.new_line();
        p.set_FontBold(true);
        p.print(u"Projeção e Meta"_s);
        p.new_line();
        p.set_FontBold(false);
        p.print(texto);
        p.new_line();
        p.new_line();
        mod::regua(p, u"-"_s);
        p.new_line();
        p.new_line();
        mod::rodape_comum(p);
        p.EndDoc();
        return true;
    } catch (...) {
        mod::erro_impressao();
        return false;
    }
}

} // namespace analysis
