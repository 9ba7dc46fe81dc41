#include "registers/service_order.h"

namespace registers {

std::optional<QString> falta_produto(const produto_ordem& p) {
    if (vb::trim_blanks(p.nome).isEmpty()) return QStringLiteral("O nome do produto deve ser digitado!");
    if (p.valor.isEmpty()) return QStringLiteral("O valor do produto deve ser digitado!");
    return std::nullopt;
}

std::optional<QString> falta_servico(const servico_ordem& s) {
    if (vb::trim_blanks(s.tipo).isEmpty()) return QStringLiteral("O tipo de serviço deve ser digitado!");
    if (s.valor.isEmpty()) return QStringLiteral("O valor do serviço deve ser digitado!");
    return std::nullopt;
}

vb::currency valor_produto(const produto_ordem& p) {
    // the value is read back from its formatted text, the quantity by its leading number
    return vb::multiply(vb::ccur_or_throw(p.valor), vb::ccur_number(vb::val(p.quantidade)));
}

totais_ordem totalizar(const std::vector<produto_ordem>& produtos,
                       const std::vector<servico_ordem>& servicos) {
    totais_ordem t;
    for (const produto_ordem& p : produtos)
        t.produtos += valor_produto(p);
    for (const servico_ordem& s : servicos)
        t.servicos += vb::ccur_or_throw(s.valor);
    t.total = t.produtos + t.servicos;
    return t;
}

} // namespace registers
