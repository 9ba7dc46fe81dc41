#include "banks/statement.h"

#include "banks/balance.h"
#include "output/report_frame.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"

#include <optional>

namespace banks {

namespace {

const QString dmy = QStringLiteral("dd/mm/yyyy");

void somar(vb::currency& total, const QString& valor) {
    if (const auto v = rounded_amount(valor)) vb::add_or_keep(total, *v);
}

// The rows of a statement into display rows; the caller's row maker reads the fields it knows.
template <class Row>
bool ler(const QString& statement, std::vector<QStringList>& rows, vb::currency& total, Row make_row) {
    try {
        sql::recordset rs;
        rs.open(statement, store::conexao, sql::keyset, sql::read_only);
        const int valor = rs.index_of(store::coluna::valor);
        rows.reserve(std::size_t(rs.record_count()));
        for (; !rs.eof(); rs.move_next()) {
            rows.push_back(make_row(rs));
            somar(total, rs.text(valor));
        }
        return true;
    } catch (const sql::error&) {
        return false;
    }
}

struct entrada_cols {
    int codigo, data, descricao, documento, contato, vencimento, moeda, valor, estatus, origem;
    entrada_cols(const sql::recordset& rs, const QString& contato_col)
        : codigo(rs.index_of(store::coluna::codigo)), data(rs.index_of(store::coluna::data)),
          descricao(rs.index_of(store::coluna::descricao)), documento(rs.index_of(store::coluna::documento)),
          contato(rs.index_of(contato_col)), vencimento(rs.index_of(store::coluna::vencimento)),
          moeda(rs.index_of(store::coluna::moeda)), valor(rs.index_of(store::coluna::valor)),
          estatus(rs.index_of(store::coluna::estatus)), origem(rs.index_of(store::coluna::origem)) {}
};

QString cell(const sql::recordset& rs, int i) {
    return i >= 0 ? rs.text(i) : QString();
}

// código, data, descrição, documento, contact, vencimento, moeda + amount, estatus, origem
auto entrada_row(const QString& contato_col) {
    return [contato_col, cols = std::optional<entrada_cols>()](const sql::recordset& rs) mutable {
        if (!cols) cols.emplace(rs, contato_col);
        const entrada_cols& c = *cols;
        return QStringList{cell(rs, c.codigo),
                           vb::format_date_text(cell(rs, c.data), dmy),
                           cell(rs, c.descricao),
                           cell(rs, c.documento),
                           cell(rs, c.contato),
                           vb::format_date_text(cell(rs, c.vencimento), dmy),
                           cell(rs, c.moeda) + QLatin1Char(' ') + vb::reformat_money_text(cell(rs, c.valor)),
                           cell(rs, c.estatus),
                           cell(rs, c.origem)};
    };
}

// código, data, movimento, origem, destino, "R$ " + amount, estatus, informacoes
auto movimento_row() {
    return [cols = std::vector<int>()](const sql::recordset& rs) mutable {
        if (cols.empty())
            for (const QString* c : {&store::coluna::codigo, &store::coluna::data, &store::coluna::movimento,
                                     &store::coluna::origem, &store::coluna::destino, &store::coluna::valor,
                                     &store::coluna::estatus, &store::coluna::informacoes})
                cols.push_back(rs.index_of(*c));
        return QStringList{
            cell(rs, cols[0]), vb::format_date_text(cell(rs, cols[1]), dmy),
            cell(rs, cols[2]), cell(rs, cols[3]),
            cell(rs, cols[4]), QStringLiteral("R$ ") + vb::reformat_money_text(cell(rs, cols[5])),
            cell(rs, cols[6]), cell(rs, cols[7])};
    };
}

void line(QIODevice& out, const QString& s) {
    out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

} // namespace

std::array<QString, 3> extrato_statements(const QString& conta, const QString& data1, const QString& data2,
                                          bool destino) {
    const QString c = sql::value(conta);
    const QString periodo = QStringLiteral("[data] BETWEEN '") + sql::value(data1) +
                            QStringLiteral("' AND '") + sql::value(data2);
    return {
        QStringLiteral("select * from [pagar] where ") + periodo + QStringLiteral("' AND [origem] like '") +
            c + QStringLiteral("' AND [estatus] like 'Concluído'"),
        QStringLiteral("select * from [receber] where ") + periodo + QStringLiteral("' AND (origem like '") +
            c + QStringLiteral("') AND (estatus like 'Concluído')"),
        QStringLiteral("select * from [bancario] where ") + periodo + QStringLiteral("' AND (origem like '") +
            c + (destino ? QStringLiteral("' OR [destino] like '") + c : QString()) +
            QStringLiteral("') AND [estatus] like 'Concluído'"),
    };
}

extrato carregar_extrato(const QString& conta, const QString& data1, const QString& data2, bool destino) {
    extrato e;
    // the bounds are taken as given: reversed, they enclose no day
    if (QString::compare(data1, data2, Qt::CaseSensitive) > 0) return e;
    store::conectarbanco();
    const auto s = extrato_statements(conta, data1, data2, destino);
    if (!ler(s[0], e.pagar, e.total_pagar, entrada_row(store::coluna::fornecedor))) ++e.falhas;
    if (!ler(s[1], e.receber, e.total_receber, entrada_row(store::coluna::cliente))) ++e.falhas;
    if (!ler(s[2], e.movimento, e.total_movimento, movimento_row())) ++e.falhas;
    return e;
}

QString filtro_extrato(const QString& digitada1, const QString& digitada2, qint64 dias) {
    return QStringLiteral("Entre ") + digitada1 + QStringLiteral(" e ") + digitada2 +
           QStringLiteral(" - Período de ") + QString::number(dias) + QStringLiteral(" dias");
}

QString total_extrato(vb::currency total) {
    return vb::format_money_prefixed(total);
}

void write_extrato_html(QIODevice& out, const extrato_textos& t, const platform::table_source& pagar,
                        const platform::table_source& receber, const platform::table_source& movimento,
                        output::c_relatorios& exportador) {
    if (!out.isWritable()) return;
    out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, QStringLiteral("<html>\r\n<head>\r\n<title>") + t.caption + QStringLiteral("</title>"));
    line(out, QStringLiteral("<p><font face='Arial'>"));
    line(out, QStringLiteral("<center><b>") + t.caption + QStringLiteral("</b>"));
    line(out, QStringLiteral("<hr>"));
    line(out, output::linha_produto + QStringLiteral("<br><br>"));
    line(out, QStringLiteral("<b>Despesas:</b><br>"));
    exportador.Exportar_listaparaHTML(out, pagar);
    line(out, QStringLiteral("<br><br><b>Receitas:</b><br>"));
    exportador.Exportar_listaparaHTML(out, receber);
    line(out, QStringLiteral("<br><br><b>Movimento bancário:</b><br>"));
    exportador.Exportar_listaparaHTML(out, movimento);
    line(out, QStringLiteral("<br><b>Estatísticas</b></center><hr>"));
    line(out, QStringLiteral("<b>Período filtrado:</b> ") + t.filtro + QStringLiteral("<br>"));
    line(out, QStringLiteral("<b>Total de despesas:</b> ") + t.despesa + QStringLiteral("<br>"));
    line(out, QStringLiteral("<b>Total de receitas:</b> ") + t.receita + QStringLiteral("<br>"));
    line(out, QStringLiteral("<b>Total de movimento bancário:</b> ") + t.movimento + QStringLiteral("<br>"));
    line(out, QStringLiteral("<center>") + output::linha_gerado() + QStringLiteral("<br>"));
    line(out, QStringLiteral("<br>"));
    line(out, QStringLiteral("<b>") + output::nome_relatorio() + QStringLiteral("</b><br>"));
    line(out, QStringLiteral("<br>"));
    line(out, output::slogan_relatorio() + QStringLiteral("<br>"));
    line(out, output::linha_site_html());
    line(out, QStringLiteral("</center></font></p>"));
}

} // namespace banks
