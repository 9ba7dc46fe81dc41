#include "analysis/income_expenses.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace analysis {

namespace {

const QString pagar = QStringLiteral("Select * from pagar where (estatus like 'Concluído') AND ");
const QString receber = QStringLiteral("Select * from receber where (estatus like 'Concluído') AND ");

relacao_cabecas ambas(const QString& tail, bool geral = false) {
    return {pagar + tail, receber + tail, geral, false};
}

// The settled amounts of one statement, each through "##,##0.00" before it is added.
vb::currency soma(const QString& statement) {
    vb::currency total;
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(statement, store::conexao, sql::keyset, sql::read_only);
        const int valor = rs.index_of(store::coluna::valor);
        for (; !rs.eof(); rs.move_next()) {
            if (const auto v = vb::ccur(vb::reformat_money_text(rs.text(valor)))) vb::add_or_keep(total, *v);
        }
    });
    return total;
}

QString reais(vb::currency v) {
    return QStringLiteral("R$ ") + vb::format_money(v);
}

vb::currency diferenca(vb::currency a, vb::currency b) {
    try {
        return a - b;
    } catch (const vb::overflow_error&) {
        return vb::currency();
    }
}

} // namespace

relacao_cabecas cabecas_geral() {
    return ambas(QString(), true);
}

relacao_cabecas cabecas_entre_datas(const QString& data1, const QString& data2) {
    relacao_cabecas c = ambas(QStringLiteral("Data BETWEEN '") + sql::value(data1) +
                                  QStringLiteral("' AND '") + sql::value(data2) + QStringLiteral("' AND "),
                              true);
    c.nenhum_dia = QString::compare(data1, data2, Qt::CaseSensitive) > 0;
    return c;
}

relacao_cabecas cabecas_diario(const QDate& dia) {
    return ambas(QStringLiteral("(data like '") + vb::ymd(dia) + QStringLiteral("')"));
}

relacao_cabecas cabecas_mensal(const QString& ano, int mes) {
    return ambas(QStringLiteral("(data like '%") + sql::value(ano) + QLatin1Char('/') +
                 QStringLiteral("%1").arg(mes, 2, 10, QLatin1Char('0')) + QStringLiteral("/%')"));
}

relacao_cabecas cabecas_anual(const QString& ano) {
    return ambas(QStringLiteral("(data like '%") + sql::value(ano) + QStringLiteral("/%')"));
}

QString relacao_statement(const QString& cabeca, bool geral, const QString& banco) {
    return cabeca + (geral ? QStringLiteral("(origem like '") : QStringLiteral(" AND (origem like '")) +
           sql::value(banco) + QStringLiteral("')");
}

relacao_resultado relacao(const relacao_cabecas& c, const relacao_hooks& hooks) {
    relacao_resultado r;
    store::conectarbanco();
    QStringList bancos;
    try {
        sql::recordset rs;
        rs.open(QStringLiteral("select * from banco"), store::conexao, sql::keyset, sql::read_only);
        const int banco = rs.index_of(store::coluna::banco);
        for (; !rs.eof(); rs.move_next())
            bancos << rs.text(banco);
    } catch (const sql::error&) {
        return r;
    }
    if (bancos.isEmpty()) {
        r.sem_banco = true;
        return r;
    }
    if (hooks.before_walk) hooks.before_walk(int(bancos.size()));
    r.linhas.reserve(std::size_t(bancos.size()));
    int feito = 0;
    for (const QString& banco : bancos) {
        if (hooks.progress) hooks.progress(++feito);
        vb::currency despesas, receitas;
        if (!c.nenhum_dia) {
            despesas = soma(relacao_statement(c.despesas, c.geral, banco));
            receitas = soma(relacao_statement(c.receitas, c.geral, banco));
        }
        r.linhas.push_back({banco, reais(despesas), reais(receitas), reais(diferenca(receitas, despesas))});
    }
    return r;
}

QString relacao_total(const std::vector<QStringList>& linhas) {
    vb::currency despesas, receitas;
    for (const QStringList& l : linhas) {
        // a row whose expense overflows adds nothing of its income either
        if (vb::add_or_keep(despesas, vb::money_of(l.value(1))))
            vb::add_or_keep(receitas, vb::money_of(l.value(2)));
    }
    return QStringLiteral("Total de despesas R$ ") + vb::format_money(despesas) +
           QStringLiteral(" - Total de lucros R$ ") + vb::format_money(receitas) +
           QStringLiteral(" - Saldo total R$ ") + vb::format_money(diferenca(receitas, despesas));
}

} // namespace analysis
