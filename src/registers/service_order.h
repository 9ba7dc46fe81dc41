#pragma once
// A service order lives in its window only: the products and services typed in, their totals and
// the checks of the two small entry windows. Nothing of it is stored.

#include "platform/text/vb_text.h"

#include <QString>

#include <optional>
#include <vector>

namespace registers {

struct produto_ordem {
    QString nome, marca, modelo, serie, descricao;
    QString valor; // as the value field shows it: "R$ 1.234,50"
    QString quantidade;
};

struct servico_ordem {
    QString tipo, descricao;
    QString valor;
};

// The check of frmcadprodorc / frmcadservord: the message of the first blank required field, or
// nothing when the row can be added.
std::optional<QString> falta_produto(const produto_ordem& p);
std::optional<QString> falta_servico(const servico_ordem& s);

// The totals of the print: each product counts its value times its quantity (an empty quantity
// counts 0), each service its value. Throws vb::type_mismatch for a value that is no amount and
// vb::overflow_error past the currency's range: the print fails on them.
struct totais_ordem {
    vb::currency produtos;
    vb::currency servicos;
    vb::currency total;
};
vb::currency valor_produto(const produto_ordem& p);
totais_ordem totalizar(const std::vector<produto_ordem>& produtos,
                       const std::vector<servico_ordem>& servicos);

// The shop and the customer at the head of the page.
struct cabecalho_ordem {
    QString empresa, endereco, telefone, cliente;
};

inline const QString erro_imprimir_ordem = QStringLiteral(
    " Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e conectada ao computador");

} // namespace registers
