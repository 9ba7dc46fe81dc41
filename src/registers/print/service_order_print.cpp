#include "registers/print/service_order_print.h"

#include "output/print/modimpressao.h"
#include "platform/clock.h"
#include "platform/print/printer.h"

#include <exception>

namespace registers {

namespace {

void linha(platform::printer& p, const QString& texto) {
    p.print(texto);
    p.new_line();
}

// A label and its value at a tab column.
void campo(platform::printer& p, const QString& rotulo, int coluna, const QString& valor) {
    p.print(rotulo);
    p.tab(coluna);
    p.print(valor);
    p.new_line();
}

// A section's title followed by dashes to the edge of the page.
void titulo_secao(platform::printer& p, const QString& titulo) {
    p.print(titulo);
    const double w = p.TextWidth(QStringLiteral("-"));
    while (w > 0 && p.CurrentX() + w <= p.ScaleWidth())
        p.print(QStringLiteral("-"));
    p.new_line();
}

// A block is kept on one page when the page still has room for it.
void antes_do_bloco(platform::printer& p, int linhas) {
    if (p.CurrentY() + linhas * p.TextHeight() > p.ScaleHeight() - 1000) p.NewPage();
}

QString real(vb::currency v) {
    return vb::format_money_prefixed(v);
}

} // namespace

void desenhar_ordem(platform::printer& p, const cabecalho_ordem& c,
                    const std::vector<produto_ordem>& produtos, const std::vector<servico_ordem>& servicos) {
    const totais_ordem t = totalizar(produtos, servicos);
    p.set_FontName(QStringLiteral("Arial"));
    p.set_FontSize(13);
    linha(p, c.empresa);
    linha(p, c.endereco);
    linha(p, QStringLiteral("Telefone de contato: ") + c.telefone);
    output::modimpressao::regua(p, QStringLiteral("-"));
    p.new_line();
    p.tab(40);
    linha(p, QStringLiteral("ORDEM DE SERVIÇO"));
    p.set_FontSize(11);
    linha(p, QStringLiteral("Nome do cliente: ") + c.cliente);
    linha(p, QStringLiteral("Data de emissão: ") + vb::long_date(platform::today()));
    p.new_line();

    titulo_secao(p, QStringLiteral("PRODUTOS "));
    for (const produto_ordem& pr : produtos) {
        antes_do_bloco(p, 8);
        campo(p, QStringLiteral("Nome do produto: "), 30, pr.nome);
        campo(p, QStringLiteral("Marca: "), 30, pr.marca);
        campo(p, QStringLiteral("Modelo: "), 30, pr.modelo);
        campo(p, QStringLiteral("Nº de serie: "), 30, pr.serie);
        campo(p, QStringLiteral("Descrição: "), 30, pr.descricao);
        campo(p, QStringLiteral("Valor: "), 30, pr.valor);
        campo(p, QStringLiteral("Quantidade: "), 30, pr.quantidade);
        p.new_line();
    }
    antes_do_bloco(p, 2);
    titulo_secao(p, QStringLiteral("SERVIÇOS "));
    for (const servico_ordem& s : servicos) {
        antes_do_bloco(p, 4);
        campo(p, QStringLiteral("Tipo de serviço: "), 25, s.tipo);
        campo(p, QStringLiteral("Descrição: "), 25, s.descricao);
        campo(p, QStringLiteral("Valor: "), 25, s.valor);
        p.new_line();
    }
    antes_do_bloco(p, 9);
    p.new_line();
    linha(p, QStringLiteral("RESUMO"));
    campo(p, QStringLiteral("Total de produtos:"), 25, real(t.produtos));
    campo(p, QStringLiteral("Total de serviços:"), 25, real(t.servicos));
    campo(p, QStringLiteral("Total a pagar:"), 25, real(t.total));
    output::modimpressao::rodape_comum(p);
}

impressao_ordem imprimir_ordem(const cabecalho_ordem& c, const std::vector<produto_ordem>& produtos,
                               const std::vector<servico_ordem>& servicos) {
    platform::printer p;
    try {
        platform::page_format format;
        format.margins_mm = QMarginsF(6.35, 6.35, 6.35, 6.35);
        switch (p.begin(QStringLiteral("ORDEM DE SERVIÇO"), format)) {
        case platform::printer::cancelled:
            return impressao_ordem::cancelada;
        case platform::printer::no_printer:
        case platform::printer::failed:
            return impressao_ordem::falhou;
        case platform::printer::started:
            break;
        }
        desenhar_ordem(p, c, produtos, servicos);
        p.EndDoc();
        return impressao_ordem::impressa;
    } catch (const std::exception&) {
        p.abort();
        return impressao_ordem::falhou;
    }
}

} // namespace registers
