#include "banks/statistics.h"

#include "output/report_frame.h"
#include "platform/errors.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace banks {

namespace {

const QString nl = QStringLiteral("\n");
const QString br = QStringLiteral("<br>");

const QString deposito = QStringLiteral("depósito");
const QString retirada = QStringLiteral("retirada");

// "R$ ##,##0.00" of a double: the minus goes before the sign.
QString reais(double v) {
    const QString t = vb::format_money(v);
    return t.startsWith(QLatin1Char('-')) ? QStringLiteral("-R$ ") + t.mid(1) : QStringLiteral("R$ ") + t;
}

QString dmy_text(const QString& ymd) {
    return vb::format_date_text(ymd, QStringLiteral("dd/mm/yyyy"));
}

// Second day less the first, in days; no +1, negative when reversed.
qint64 dias_entre(const QString& data1, const QString& data2) {
    const QDate a = vb::cdate(data1), b = vb::cdate(data2);
    return a.isValid() && b.isValid() ? a.daysTo(b) : 0;
}

void resumo_de(estatisticas& e) {
    for (const QStringList& row : e.linhas) {
        const vb::currency atual = vb::money_of(row.value(1));
        const vb::currency inicial = vb::money_of(row.value(3));
        e.soma_periodo += atual.to_double();
        e.soma_inicial += inicial.to_double();
        QString movimentacao;
        try {
            movimentacao = vb::format_money(atual - inicial);
        } catch (const vb::overflow_error&) {
            movimentacao = vb::format_money(atual.to_double() - inicial.to_double());
        }
        const QString conta = row.value(0) + QLatin1Char('(') + row.value(2) + QLatin1Char(')');
        e.resumo += QStringLiteral("Caixa/Banco: ") + conta + nl +
                    QStringLiteral("O saldo neste banco inicio com R$ ") + vb::cstr(inicial) + nl +
                    QStringLiteral("O saldo atual é R$ ") + vb::cstr(atual) + nl +
                    QStringLiteral("Movimentação de R$ ") + movimentacao + QLatin1Char('.') + nl + nl;
        e.resumo_html += QStringLiteral("<b>Caixa/Banco:</b> ") + conta + br +
                         QStringLiteral("<b>O saldo neste banco inicio com:</b> R$ ") + vb::cstr(inicial) +
                         br + QStringLiteral("<b>O saldo atual é:</b> R$ ") + vb::cstr(atual) + br +
                         QStringLiteral("<b>Movimentação de:</b> R$ ") + movimentacao + QLatin1Char('.') +
                         br + br;
    }
    const struct {
        const char16_t* titulo;
        double soma;
    } totais[] = {{u"Valor total em caixa/banco", e.soma_periodo},
                  {u"Valor total de inicio em caixa/banco", e.soma_inicial},
                  {u"Saldo total de movimentação ", e.soma_periodo - e.soma_inicial}};
    e.resumo += QStringLiteral(" > REFERÊNCIAS RÁPIDAS") + nl;
    e.resumo_html += QStringLiteral("<b>REFERÊNCIAS RÁPIDAS</b><br>");
    for (const auto& t : totais) {
        const QString titulo = QString::fromUtf16(t.titulo);
        const QString valor = QStringLiteral("R$ ") + vb::format_money(t.soma);
        e.resumo += titulo + nl + valor + nl;
        e.resumo_html += QStringLiteral("<b>") + titulo.trimmed() + QStringLiteral(":</b> ") + valor + br;
    }
}

void totais_de(estatisticas& e) {
    const struct {
        const char16_t* titulo;
        double valor;
    } linhas[] = {{u"Total de despesas", e.despesas},
                  {u"Total de receitas", e.receitas},
                  {u"Retiradas", e.retiradas},
                  {u"Depósitos", e.depositos},
                  {u"Saldo", e.soma_periodo}};
    for (const auto& l : linhas) {
        const QString titulo = QString::fromUtf16(l.titulo);
        e.est += titulo + QStringLiteral(": ") + reais(l.valor) + nl;
        e.est_html += QStringLiteral("<b>") + titulo + QStringLiteral(":</b> ") + reais(l.valor) + br;
    }
}

// The accounts, each over the period, then the summaries. Nothing but the heading without accounts.
estatisticas calcular(estatisticas e, const period& periodo, const account_rows_hooks& hooks) {
    store::conectarbanco();
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM banco"), store::conexao, sql::keyset, sql::read_only);
        if (rs.eof()) return;
        const int banco = rs.index_of(store::coluna::banco);
        const int informacoes = rs.index_of(store::coluna::informacoes);
        const int saldo = rs.index_of(store::coluna::saldo);
        if (hooks.before_walk) hooks.before_walk(int(rs.record_count()));
        int feitas = 0;
        for (; !rs.eof(); rs.move_next()) {
            const QString nome = rs.text(banco);
            const QString inicial = rs.text(saldo);
            const conta_no_periodo c = saldo_no_periodo(store::conexao, nome, inicial, periodo);
            e.despesas += c.despesas;
            e.receitas += c.receitas;
            e.depositos += c.depositos;
            e.retiradas += c.retiradas;
            e.linhas.push_back({nome, QStringLiteral("R$ ") + vb::format_money(c.saldo), rs.text(informacoes),
                                list_amount_text(inicial)});
            if (hooks.progress) hooks.progress(++feitas);
        }
    });
    if (e.linhas.empty()) return e;
    resumo_de(e);
    totais_de(e);
    return e;
}

void line(QIODevice& out, const QString& s) {
    out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

// A text box's lines as file lines.
void lines(QIODevice& out, const QString& text) {
    QString t = text;
    if (t.endsWith(nl)) t.chop(1);
    for (const QString& l : t.split(nl))
        line(out, l);
}

} // namespace

conta_no_periodo saldo_no_periodo(const sql::connection_ptr& conn, const QString& nome, const QString& saldo,
                                  const period& periodo) {
    conta_no_periodo c;
    c.inicial = vb::cdbl(saldo).value_or(0.0);
    c.saldo = c.inicial;
    c.falhas = walk_account(conn, nome, periodo, ordem_das_estatisticas, [&c](const statement_row& r) {
        const auto v = vb::cdbl(r.valor);
        if (!v) return;
        switch (r.statement) {
        case consulta_despesas:
            c.despesas += *v;
            c.saldo -= *v;
            break;
        case consulta_receitas:
            c.receitas += *v;
            c.saldo += *v;
            break;
        case consulta_movimentos: {
            const QString kind = r.movimento.toLower();
            if (kind == deposito) {
                c.depositos += *v;
                c.saldo += *v;
            } else if (kind == retirada) {
                c.retiradas += *v;
                c.saldo -= *v;
            }
            break;
        }
        case consulta_entrada:
            c.saldo += *v;
            break;
        case consulta_saida:
            c.saldo -= *v;
            break;
        }
    });
    return c;
}

estatisticas geral(const QString& data1, const QString& data2, const account_rows_hooks& hooks) {
    estatisticas e;
    const QString d1 = dmy_text(data1), d2 = dmy_text(data2);
    const QString dias = QString::number(dias_entre(data1, data2));
    e.est = QStringLiteral("Filtrado entre as datas:") + nl + d1 + QStringLiteral(" e ") + d2 + nl +
            QStringLiteral("Período de ") + dias + QStringLiteral(" dia(s)") + nl;
    e.est_html = QStringLiteral("<b>Filtrado entre as datas:</b> ") + d1 + QStringLiteral(" e ") + d2 + br +
                 QStringLiteral("Período de ") + dias + QStringLiteral(" dia(s)<br>");
    return calcular(std::move(e), period{data1, data2}, hooks);
}

estatisticas nodia(const QString& data, const account_rows_hooks& hooks) {
    estatisticas e;
    e.est = QStringLiteral("Saldo em caixa até o dia: ") + dmy_text(data) + nl;
    e.est_html = QStringLiteral("<b>Saldo em caixa até o dia:</b> ") + dmy_text(data) + br;
    return calcular(std::move(e), period{inicio_do_dia, data}, hooks);
}

void write_estatisticas_txt(QIODevice& out, const QString& resumo, const QString& est) {
    if (!out.isWritable()) return;
    line(out, output::linha_produto);
    line(out, QString());
    line(out, QStringLiteral("RESUMO DE CAIXA"));
    line(out, QString());
    lines(out, resumo);
    line(out, QString());
    line(out, QStringLiteral("ESTATÍSTICAS"));
    line(out, QString());
    lines(out, est);
    line(out, QString());
    line(out, output::linha_gerado());
    line(out, QString());
    line(out, output::nome_relatorio());
    line(out, QString());
    line(out, output::slogan_relatorio());
    line(out, output::site_relatorio());
}

void write_estatisticas_html(QIODevice& out, const QString& resumo_html, const QString& est_html) {
    if (!out.isWritable()) return;
    out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, QStringLiteral("<p><font face='Arial'>"));
    line(out, QStringLiteral("<BR><B>RESUMO DE CAIXA</B><BR>"));
    line(out, resumo_html);
    line(out, QStringLiteral("<BR><B>ESTATÍSTICAS</B><BR>"));
    line(out, est_html);
    line(out, QStringLiteral("<center>") + output::linha_gerado() + br);
    line(out, br);
    line(out, QStringLiteral("<b>") + output::nome_relatorio() + QStringLiteral("</b><br>"));
    line(out, br);
    line(out, output::slogan_relatorio() + br);
    line(out, output::linha_site_html());
    line(out, QStringLiteral("</center></font></p>"));
}

} // namespace banks
