#include "registers/print/centres_print.h"

#include "output/print/modimpressao.h"
#include "platform/print/printer.h"

namespace registers {

using namespace Qt::StringLiterals;

namespace {

void linha(platform::printer& p, const QString& texto) {
    p.print(texto);
    p.new_line();
}

} // namespace

bool imprimir_resumo(centro c, const platform::table_source& lista, const QString& geral) {
    namespace mod = output::modimpressao;
    try {
        platform::printer p;
        if (!mod::comecar(p, gemeo(c).titulo)) return false;
        p.set_font(u"Arial"_s, 10);
        linha(p, gemeo(c).titulo);
        mod::regua(p, u"_"_s, 87);
        p.new_line();
        p.new_line();
        for (int r = 0; r < lista.row_count(); ++r) {
            // a centre's lines stay on one page
            if (p.CurrentY() > p.ScaleHeight() - 1000) p.NewPage();
            linha(p, gemeo(c).prefixo_centro + lista.text(r, 1));
            linha(p, u"Pendentes: "_s + lista.text(r, 2));
            linha(p, u"Concluídas: "_s + lista.text(r, 3));
            linha(p, u"Total: "_s + lista.text(r, 4));
            mod::regua(p, u"-"_s);
            p.new_line();
        }
        if (p.CurrentY() > p.ScaleHeight() - 2500) p.NewPage();
        p.new_line();
        linha(p, geral);
        p.new_line();
        mod::rodape_comum(p);
        p.EndDoc();
        return true;
    } catch (...) {
        mod::erro_impressao();
        return false;
    }
}

} // namespace registers
