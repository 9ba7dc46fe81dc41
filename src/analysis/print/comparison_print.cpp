#include "analysis/print/comparison_print.h"

#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "platform/print/printer.h"

namespace analysis {

using namespace Qt::StringLiterals;
namespace mod = output::modimpressao;

namespace {

// Line by line, a new page whenever the position has passed the printable height.
void linhas(platform::printer& p, const QString& texto) {
    QString t = texto;
    t.remove(u'\r');
    for (const QString& l : t.split(u'\n')) {
        if (p.CurrentY() > p.ScaleHeight() - 1000) p.NewPage();
        p.print(l);
        p.new_line();
    }
}

} // namespace

bool imprimir_comparacao(const QString& titulo, const aba_comparacao& a) {
    try {
        platform::printer p;
        if (!mod::comecar(p, titulo)) return false;
        p.set_FontName(u"Arial"_s);
        p.set_FontSize(11);
        p.print(titulo);
        p.new_line();
        p.print(output::linha_produto);
        p.new_line();
        mod::regua(p, u"-"_s);
        p.new_line();
        for (int i = 0; i < 3; ++i) {
            if (p.CurrentY() > p.ScaleHeight() - 1000) p.NewPage();
            p.set_FontBold(true);
            p.print(i < a.rotulos.size() ? a.rotulos[i] : QString());
            p.new_line();
            p.set_FontBold(false);
            p.new_line();
            linhas(p, a.blocos[i].texto);
            p.new_line();
            mod::regua(p, u"-"_s);
            p.new_line();
        }
        if (p.CurrentY() > p.ScaleHeight() - 1000) p.NewPage();
        mod::rodape_comum(p);
        p.EndDoc();
        return true;
    } catch (...) {
        mod::erro_impressao();
        return false;
    }
}

} // namespace analysis
