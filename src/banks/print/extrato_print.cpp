#include "banks/print/extrato_print.h"

#include "banks/statement.h"
#include "output/c_relatorios.h"
#include "output/print/modimpressao.h"
#include "platform/print/printer.h"

#include <QCoreApplication>

namespace banks {

namespace {

namespace mi = output::modimpressao;

// The cells the printed line takes, from the list's columns; the ID stays off the page and the
// entry lists have no further information to print.
QStringList campos_entrada(const platform::table_source& l, int r) {
    QStringList f;
    for (int c = 1; c <= 8; ++c)
        f << l.text(r, c);
    f << QString();
    return f;
}

QStringList campos_movimento(const platform::table_source& l, int r) {
    QStringList f;
    for (int c = 1; c <= 7; ++c)
        f << l.text(r, c);
    return f;
}

} // namespace

bool imprimir_extrato(const extrato_textos& t, const platform::table_source& pagar,
                      const platform::table_source& receber, const platform::table_source& movimento,
                      output::progress* barra) {
    try {
        platform::printer p;
        if (!mi::comecar(p, t.caption)) return false;
        if (barra) barra->set_visible(true);
        p.set_font(QStringLiteral("Arial"), 11);
        mi::estado e{t.caption, QStringLiteral("Período filtrado: ") + t.filtro, 0, 0};
        const struct {
            mi::cabecalho cabecalho;
            const platform::table_source* lista;
        } partes[] = {{mi::cabecalho::despesas, &pagar},
                      {mi::cabecalho::receitas, &receber},
                      {mi::cabecalho::bancario, &movimento}};
        const int total = pagar.row_count() + receber.row_count() + movimento.row_count();
        int feitas = 0;
        for (const auto& parte : partes) {
            if (e.pagina > 0) p.NewPage();
            mi::cabecalho_pagina(p, e, parte.cabecalho);
            const int n = parte.lista->row_count();
            for (int r = 0; r < n; ++r) {
                mi::antes_da_linha(p, e, parte.cabecalho);
                if (parte.cabecalho == mi::cabecalho::bancario)
                    mi::linha_bancario(p, campos_movimento(*parte.lista, r));
                else
                    mi::linha_entrada(p, campos_entrada(*parte.lista, r));
                ++feitas;
                if (barra) {
                    barra->set_value(double(feitas) / total * 100.0);
                    if ((feitas & 63) == 0) QCoreApplication::processEvents();
                }
            }
        }
        p.set_FontSize(11);
        mi::estatisticas(p, QStringLiteral("Período filtrado: ") + t.filtro +
                                QStringLiteral("\nTotal de despesas: ") + t.despesa +
                                QStringLiteral("\nTotal de receitas: ") + t.receita +
                                QStringLiteral("\nTotal de movimento bancário: ") + t.movimento);
        p.EndDoc();
        if (barra) barra->set_visible(false);
        return true;
    } catch (...) {
        if (barra) barra->set_visible(false);
        mi::erro_impressao();
        return false;
    }
}

} // namespace banks
