#include "analysis/filter_kit.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace analysis {

QString like_contem(const QString& coluna, const QString& palavra, bool espaco_antes_do_parentese) {
    return coluna + (espaco_antes_do_parentese ? QStringLiteral(" like ('%") : QStringLiteral(" like('%")) +
           sql::value(palavra) + QStringLiteral("%') ");
}

std::optional<clausula_datas> clausula_entre_datas(bool marcado, const QDate& inicio, const QDate& fim,
                                                   const QString& coluna) {
    if (!marcado) return clausula_datas{QString(), QStringLiteral(" WHERE ")};
    if (!inicio.isValid() || !fim.isValid()) return std::nullopt;
    return clausula_datas{QStringLiteral("WHERE ") + coluna + QStringLiteral(" BETWEEN '") + vb::ymd(inicio) +
                              QStringLiteral("' AND '") + vb::ymd(fim) + QStringLiteral("' "),
                          QStringLiteral(" AND ")};
}

QStringList valores_da_consulta(const QString& consulta, const QString& coluna) {
    QStringList out;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        const int i = rs.index_of(coluna);
        for (; !rs.eof(); rs.move_next())
            out << (i < 0 ? QString() : rs.text(i));
    });
    return out;
}

} // namespace analysis
