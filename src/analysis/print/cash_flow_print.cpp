#include "analysis/print/cash_flow_print.h"

#include "output/c_relatorios.h"
#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "output/report_frame.h"
#include "platform/print/printer.h"

#include <QCoreApplication>

namespace analysis {

using namespace Qt::StringLiterals;
namespace mod = output::modimpressao;

bool imprimir_fluxo_lista(const platform::table_source& lista, const QString& caption, const QString& lbldata,
                          const QString& lblest) {
    output::list_report r = output::nova_impressao(output::report_form::rlt_impressao, &lista);
    r.rpf_Titulo = caption.toUpper();
    r.lblfiltro = lbldata;
    r.lblestatus = lblest;
    r.lblsumario1 = output::slogan_relatorio();
    return output::Executar(r);
}

bool imprimir_fluxo_geral(const platform::table_source& pagar, const platform::table_source& receber,
                          const QString& caption, const QString& lbldata, const QString& lblest,
                          output::progress* barra) {
    try {
        platform::printer p;
        if (!mod::comecar(p, caption)) return false;
        if (barra) barra->set_visible(true);
        p.set_FontName(u"Arial"_s);
        mod::estado e{caption.toUpper(), {}, 0, 0};
        const int total = pagar.row_count() + receber.row_count();
        int feitas = 0;
        const std::pair<const platform::table_source*, QString> partes[] = {
            {&pagar, u" (contas a pagar)"_s}, {&receber, u" (contas a receber)"_s}};
        bool primeira = true;
        for (const auto& [lista, sufixo] : partes) {
            e.subtitulo = lbldata + sufixo;
            if (!primeira) p.NewPage();
            primeira = false;
            mod::cabecalho_pagina(p, e, mod::cabecalho::fluxo);
            QStringList campos;
            for (int r = 0; r < lista->row_count(); ++r) {
                mod::antes_da_linha(p, e, mod::cabecalho::fluxo);
                campos.clear();
                for (int k = 0; k < lista->column_count(); ++k)
                    campos << lista->text(r, k);
                mod::linha_entrada(p, campos);
                ++feitas;
                if (barra) {
                    barra->set_value(double(feitas) / total * 100.0);
                    if ((feitas & 63) == 0) QCoreApplication::processEvents();
                }
            }
        }
        p.set_CurrentX(0);
        p.print(u"Estatísticas"_s);
        p.new_line();
        mod::regua(p, u"_"_s, 87);
        p.new_line();
        p.new_line();
        p.print(lblest);
        p.new_line();
        mod::regua(p, u"_"_s, 87);
        p.new_line();
        mod::rodape_comum(p);
        p.EndDoc();
        if (barra) barra->set_visible(false);
        return true;
    } catch (...) {
        if (barra) barra->set_visible(false);
        mod::erro_impressao();
        return false;
    }
}

} // namespace analysis
