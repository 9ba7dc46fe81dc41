#include "output/print/modimpressao.h"

#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "platform/print/printer.h"
#include "platform/prompts.h"
#include "store/names.h"

#include <QCoreApplication>

#include <algorithm>

namespace output::modimpressao {

namespace {

QString field(const QStringList& f, int i) {
    return i < f.size() ? f[i].trimmed() : QString();
}

// A character repeated from the left edge while it still fits on the line.
void rule(platform::printer& p, const QString& ch) {
    p.set_CurrentX(0);
    const double w = p.TextWidth(ch);
    if (w <= 0) return;
    while (p.CurrentX() + w <= p.ScaleWidth())
        p.print(ch);
}

void at(platform::printer& p, int tab, const QString& text) {
    p.tab(tab);
    p.print(text);
}

} // namespace

std::vector<coluna_cabecalho> colunas(cabecalho c) {
    const auto s = [](const char* t) { return QString::fromUtf8(t); };
    switch (c) {
    case cabecalho::despesas:
        return {{0, s("DATA")}, {14, s("DESCRIÇÃO DA DESPESA")}, {74, s("DOC.")}, {90, s("FORNECEDOR")}};
    case cabecalho::receitas:
        return {{0, s("DATA")}, {14, s("DESCRIÇÃO DA RECEITA")}, {74, s("DOC.")}, {90, s("CLIENTE")}};
    case cabecalho::bancario:
        return {{0, s("DATA")},
                {14, s("TIPO DE MOVIMENTO")},
                {46, s("ORIGEM")},
                {76, s("DESTINO")},
                {111, s("VALOR")}};
    case cabecalho::integrado:
        return {{0, s("VENC.")}, {14, s("DESCRIÇÃO")}, {74, s("DOC.")}, {90, s("FORNECEDOR/CLIENTE")}};
    case cabecalho::fluxo:
        return {{0, s("DATA")}, {14, s("DESCRIÇÃO")}, {74, s("DOC.")}, {90, s("CLI/FORN")}};
    }
    return {};
}

void cabecalho_pagina(platform::printer& p, estado& e, cabecalho c) {
    e.pagina += 1;
    p.set_CurrentY(20);
    p.set_FontBold(true);
    // the foot goes on while the head is drawn, so the last page has it too
    const double y = p.CurrentY();
    p.set_CurrentY(p.ScaleHeight() - 400);
    p.print(store::app_title.toUpper() + QStringLiteral("     -    Página: ") + QString::number(e.pagina));
    p.new_line();
    p.set_CurrentY(y);
    p.set_FontSize(14);
    at(p, 20, e.titulo);
    p.new_line();
    p.set_FontBold(false);
    p.set_FontSize(13);
    at(p, 10, e.subtitulo);
    p.new_line();
    p.set_FontSize(10);
    rule(p, QStringLiteral("_"));
    p.set_FontBold(true);
    for (const coluna_cabecalho& h : colunas(c))
        at(p, h.tab, h.texto);
    p.new_line();
    p.set_FontBold(false);
    rule(p, QStringLiteral("-"));
    p.new_line();
    p.new_line();
}

void antes_da_linha(platform::printer& p, estado& e, cabecalho c) {
    if (p.CurrentY() > p.ScaleHeight() - 1000) {
        p.NewPage();
        cabecalho_pagina(p, e, c);
    }
    p.set_FontSize(11);
}

void linha_entrada(platform::printer& p, const QStringList& f) {
    at(p, 0, field(f, 0));
    at(p, 13, field(f, 1));
    at(p, 68, field(f, 2));
    at(p, 83, field(f, 3));
    p.new_line();
    at(p, 0, QStringLiteral("Vencimento: ") + field(f, 4));
    at(p, 30, QStringLiteral("Valor: ") + field(f, 5));
    at(p, 68, QStringLiteral("Conta origem: ") + field(f, 7));
    p.new_line();
    at(p, 0, QStringLiteral("Estatus: ") + field(f, 6));
    at(p, 30, QStringLiteral("Informações Adicionais: ") + field(f, 8));
    p.new_line();
    p.new_line();
}

void linha_bancario(platform::printer& p, const QStringList& f) {
    at(p, 0, field(f, 0));
    at(p, 13, field(f, 1));
    at(p, 42, field(f, 2));
    at(p, 70, field(f, 3));
    at(p, 102, field(f, 4));
    p.new_line();
    at(p, 0, QStringLiteral("Estatus: ") + field(f, 5));
    at(p, 42, QStringLiteral("Informações: ") + field(f, 6));
    p.new_line();
    p.new_line();
}

void estatisticas(platform::printer& p, const QString& totais) {
    if (p.CurrentY() >= p.ScaleHeight() - 2500) p.NewPage();
    p.set_CurrentX(0);
    p.print(QStringLiteral("Estatísticas"));
    p.new_line();
    rule(p, QStringLiteral("_"));
    p.new_line();
    p.new_line();
    p.print(totais);
    p.new_line();
    rule(p, QStringLiteral("_"));
    p.new_line();
    rodape_comum(p);
}

void regua(platform::printer& p, const QString& ch) {
    rule(p, ch);
}

void regua(platform::printer& p, const QString& ch, int n) {
    p.set_CurrentX(0);
    p.print(ch.repeated(std::max(n, 0)));
}

void rodape_comum(platform::printer& p) {
    p.print(linha_gerado());
    p.new_line();
    p.new_line();
    p.print(nome_relatorio());
    p.new_line();
    p.print(slogan_relatorio());
    p.new_line();
}

bool imprimir_blocos(cabecalho c, const QString& titulo, const QString& subtitulo,
                     const std::vector<bloco>& blocos) {
    try {
        platform::printer p;
        if (!comecar(p, titulo)) return false;
        p.set_FontName(QStringLiteral("Arial"));
        estado e{titulo, subtitulo, 0, 0};
        cabecalho_pagina(p, e, c);
        p.set_CurrentX(0);
        p.print(QStringLiteral("Estatísticas"));
        p.new_line();
        rule(p, QStringLiteral("_"));
        p.new_line();
        p.new_line();
        for (const bloco& b : blocos) {
            if (p.CurrentY() > p.ScaleHeight() - 1000) p.NewPage();
            p.print(b.titulo);
            p.new_line();
            p.print(b.texto);
            // a text that ends its last line leaves the position at the start of the next one
            if (p.CurrentX() > 0) p.new_line();
        }
        rule(p, QStringLiteral("_"));
        p.new_line();
        rodape_comum(p);
        p.EndDoc();
        return true;
    } catch (...) {
        erro_impressao();
        return false;
    }
}

bool comecar(platform::printer& p, const QString& titulo) {
    platform::page_format format;
    // about the unprintable edge of a sheet, where the old printer object started
    format.margins_mm = QMarginsF(6.35, 6.35, 6.35, 6.35);
    switch (p.begin(titulo, format)) {
    case platform::printer::started:
        return true;
    case platform::printer::no_printer:
    case platform::printer::failed:
        erro_impressao();
        return false;
    case platform::printer::cancelled:
        break;
    }
    return false;
}

void erro_impressao() {
    platform::msgbox(
        QStringLiteral("Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e "
                       "conectada ao computador"),
        platform::critical, QStringLiteral("Erro"));
}

bool imprimir_lista(cabecalho c, const platform::table_source& lista, const QString& titulo,
                    const QString& subtitulo, const QString& totais, progress* barra) {
    try {
        platform::printer p;
        if (!comecar(p, titulo)) return false;
        if (barra) barra->set_visible(true);
        const auto let_through = [barra] {
            if (barra) QCoreApplication::processEvents();
        };
        p.set_FontName(QStringLiteral("Arial"));
        estado e{titulo, subtitulo, 0, 0};
        cabecalho_pagina(p, e, c);
        const int rows = lista.row_count();
        const int cols = lista.column_count();
        QStringList campos;
        for (int r = 0; r < rows; ++r) {
            antes_da_linha(p, e, c);
            campos.clear();
            for (int k = 0; k < cols; ++k)
                campos << lista.text(r, k);
            if (c == cabecalho::bancario)
                linha_bancario(p, campos);
            else
                linha_entrada(p, campos);
            if (barra) barra->set_value(double(r + 1) / rows * 100.0);
            if ((r & 63) == 0) let_through();
        }
        estatisticas(p, totais);
        p.EndDoc();
        if (barra) barra->set_visible(false);
        return true;
    } catch (...) {
        if (barra) barra->set_visible(false);
        erro_impressao();
        return false;
    }
}

} // namespace output::modimpressao
