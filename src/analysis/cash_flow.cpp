#include "analysis/cash_flow.h"

#include "output/report_frame.h"
#include "platform/busy.h"
#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QIODevice>

namespace analysis {

using namespace Qt::StringLiterals;

namespace {

const QString crlf = u"\r\n"_s;

QString ymd_texto(const QString& dmy) {
    // an unreadable date goes into the statement as it was typed, and finds nothing
    return vb::format_date_text(dmy, u"yyyy/mm/dd"_s);
}

QString palavra_estatus(const QString& combo) {
    const QString s = combo.toLower();
    if (s == u"pendentes"_s) return store::palavra::pendente;
    if (s == u"concluidas"_s) return store::palavra::concluido;
    return {};
}

QString com_branco(const QString& s) {
    QString out;
    out.reserve(s.size() + 1);
    return out.append(s).append(u' ');
}

void line(QIODevice& out, const QString& s) {
    if (out.isWritable()) out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

} // namespace

QString comando_fluxo(bool pagar, const pedido_fluxo& p) {
    const QString banco = p.banco.toUpper() == todos_os_bancos.toUpper() ? QString() : p.banco;
    return u"Select * from "_s + (pagar ? store::tabela::pagar : store::tabela::receber) +
           u" WHERE vencimento BETWEEN '"_s + sql::value(ymd_texto(p.data1)) + u"' AND '"_s +
           sql::value(ymd_texto(p.data2)) + u"' AND estatus like ('%"_s +
           sql::value(palavra_estatus(p.estatus)) + u"%') "_s +
           (pagar ? u"AND fornecedor like('%%') "_s : u"AND cliente like('%%') "_s) +
           u"AND origem like('%"_s + sql::value(banco) + u"%') AND descricao like('%%') "_s;
}

qint64 periodo_fluxo(const pedido_fluxo& p) {
    const QDate a = vb::cdate(p.data1), b = vb::cdate(p.data2);
    return a.isValid() && b.isValid() ? a.daysTo(b) : 0;
}

lado_fluxo ler_fluxo(bool pagar, const pedido_fluxo& p) {
    lado_fluxo l;
    // bounds in reverse find nothing, as BETWEEN reads them; the store itself would take either order
    if (ymd_texto(p.data1) > ymd_texto(p.data2)) return l;
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(comando_fluxo(pagar, p), store::conexao, sql::keyset, sql::read_only);
        const auto at = [&rs](const QString& n) { return rs.index_of(n); };
        const int i_data = at(store::coluna::data), i_descricao = at(store::coluna::descricao),
                  i_documento = at(store::coluna::documento),
                  i_contato = at(pagar ? store::coluna::fornecedor : store::coluna::cliente),
                  i_vencimento = at(store::coluna::vencimento), i_valor = at(store::coluna::valor),
                  i_moeda = at(store::coluna::moeda), i_estatus = at(store::coluna::estatus),
                  i_origem = at(store::coluna::origem), i_informacoes = at(store::coluna::informacoes);
        const auto f = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
        const QString dmy = u"dd/mm/yyyy"_s;
        l.linhas.reserve(std::size_t(std::max<qint64>(rs.record_count(), 0)));
        for (; !rs.eof(); rs.move_next()) {
            const QString valor = f(i_valor), estatus = f(i_estatus);
            const std::optional<vb::currency> formatado = valor_formatado(valor);
            const QString valor_texto = formatado ? vb::format_money(*formatado) : valor;
            l.linhas.push_back({vb::format_date_text(f(i_data), dmy), com_branco(f(i_descricao)),
                                com_branco(f(i_documento)), com_branco(f(i_contato)),
                                com_branco(vb::format_date_text(f(i_vencimento), dmy)),
                                f(i_moeda) + u' ' + valor_texto + u' ', com_branco(estatus),
                                com_branco(f(i_origem)), com_branco(f(i_informacoes))});
            l.soma.add(estatus, formatado, valor);
        }
    });
    return l;
}

double saldo_fluxo(double receitas, double despesas) {
    return vb::val(vb::cstr(receitas)) - vb::val(vb::cstr(despesas));
}

QString sem_resultado(tipo_fluxo t, bool pagar) {
    if (t == tipo_fluxo::pagar) return u"A pesquisa não retornou resultados"_s;
    const QString resto =
        u", verifique se os dados informados estão corretos e se existem cadastros entre as "
        u"datas informadas!"_s;
    if (t == tipo_fluxo::receber) return u"A pesquisa não retornou resultados"_s + resto;
    return u"A pesquisa não retornou resultados em contas a "_s + (pagar ? u"pagar"_s : u"receber"_s) + resto;
}

tipo_fluxo tipo_pela_legenda(const QString& caption) {
    const QString c = caption.toUpper();
    if (c == u"fluxo de caixa - contas a pagar"_s.toUpper()) return tipo_fluxo::pagar;
    if (c == u"fluxo de caixa - contas a receber"_s.toUpper()) return tipo_fluxo::receber;
    return tipo_fluxo::geral;
}

textos_fluxo textos_do_fluxo(tipo_fluxo t, const pedido_fluxo& p, const lado_fluxo* pagar,
                             const lado_fluxo* receber) {
    textos_fluxo x;
    const QString periodo = QString::number(periodo_fluxo(p));
    x.lbldata = u"Previsão entre os vencimentos de "_s + p.data1 + u" até "_s + p.data2 +
                u" - Período de: "_s + periodo + u" dias"_s;
    x.txtinfo = u"Previsão entre os vencimentos de "_s + p.data1 + u" até "_s + p.data2 +
                u" - Período de: "_s + periodo + u" dias "_s + crlf + u"Exibindo do Banco: "_s + p.banco +
                crlf + u"Exibindo com o estatus: "_s + p.estatus;
    const QString info2 = u"Previsão entre os vencimentos de "_s + p.data1 + u" até "_s + p.data2 +
                          u"<br>"_s + u"<b>Período de:</b> "_s + periodo + u" dias "_s + u"<br>"_s +
                          u"<b>Exibindo do Banco:</b> "_s + p.banco + u"<br>"_s +
                          u"<b>Exibindo com o estatus:</b> "_s + p.estatus + u"<br>"_s;
    const auto m = [](double v) { return vb::format_money(v); };
    long n = 0;
    QString a, b, c;
    QString ha, hb, hc;
    QString va, vb_, vc;
    if (t == tipo_fluxo::geral) {
        x.caption = u"FLUXO DE CAIXA - GERAL"_s;
        x.tab0 = u"CONTAS A PAGAR"_s;
        x.tab1 = u"CONTAS A RECEBER"_s;
        const double rec = receber ? receber->soma.total() : 0, desp = pagar ? pagar->soma.total() : 0;
        n = (pagar ? pagar->soma.n() : 0) + (receber ? receber->soma.n() : 0);
        a = u"Total de receitas: R$ "_s, b = u" - Total de despesas: R$ "_s, c = u" - Saldo: R$ "_s;
        ha = u"<b>Total receitas:</b> R$ "_s, hb = u"<b>Total de despesas:</b> R$ "_s,
        hc = u"<b>Saldo:</b> R$ "_s;
        va = m(rec), vb_ = m(desp), vc = m(saldo_fluxo(rec, desp));
    } else {
        const bool eh_pagar = t == tipo_fluxo::pagar;
        const lado_fluxo* l = eh_pagar ? pagar : receber;
        if (eh_pagar) {
            x.caption = u"FLUXO DE CAIXA - CONTAS A PAGAR"_s;
            x.tab0 = u"CONTAS A PAGAR"_s;
            x.tab1_ativa = false;
            a = u"Total de despesas: R$ "_s, b = u" - Total pago: R$ "_s;
            ha = u"<b>Total de despesas:</b> R$ "_s, hb = u"<b>Total pago:</b> R$ "_s;
        } else {
            x.caption = u"FLUXO DE CAIXA - CONTAS A RECEBER"_s;
            x.tab1 = u"CONTAS A RECEBER"_s;
            x.tab0_ativa = false;
            a = u"Total de receitas: R$ "_s, b = u" - Total recebido: R$ "_s;
            ha = u"<b>Total de receitas:</b> R$ "_s, hb = u"<b>Total recebido:</b> R$ "_s;
        }
        c = u" - Total pendente: R$ "_s;
        hc = u"<b>Total pendente:</b> R$ "_s;
        if (l) {
            n = l->soma.n();
            va = m(l->soma.total());
            vb_ = m(l->soma.soma_de(classe::concluido) + l->soma.soma_de(classe::outro));
            vc = m(l->soma.soma_de(classe::pendente));
        } else {
            va = vb_ = vc = m(0.0);
        }
    }
    x.lblest = a + va + b + vb_ + c + vc;
    x.lblest2 = u"Total de cadastros: "_s + QString::number(n);
    x.txtinfop2 = info2 + ha + va + u"<br>"_s + hb + vb_ + u"<br>"_s + hc + vc + u"<br>"_s +
                  u"<b>Total de cadastros no período:</b> "_s + QString::number(n) + u" cadastros"_s;
    return x;
}

void escrever_html_fluxo(QIODevice& out, const QString& caption, const QString& lbldata,
                         const QString& txtinfop2, const platform::table_source* pagar,
                         const platform::table_source* receber, output::c_relatorios& exportador) {
    const QString titulo = caption.toUpper();
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, u"<html>"_s);
    line(out, u"<head>"_s);
    line(out, u"<title>"_s + titulo + u"</title>"_s);
    line(out, u"<p><font face='Arial'>"_s);
    line(out, u"<center><b>"_s + titulo + u"</b>"_s);
    line(out, u"<hr>"_s);
    line(out, lbldata);
    line(out, u"<br>"_s);
    line(out, output::linha_produto + u"<br><br>"_s);
    line(out, u"</center></font></p>"_s);
    {
        platform::busy_span hourglass;
        if (pagar && receber) {
            line(out, u"<br><b>CONTAS A PAGAR:<br><br></b>"_s);
            exportador.Exportar_listaparaHTML(out, *pagar);
            line(out, u"<br><b>CONTAS A RECEBER:<br><br></b>"_s);
            exportador.Exportar_listaparaHTML(out, *receber);
        } else if (pagar || receber) {
            exportador.Exportar_listaparaHTML(out, pagar ? *pagar : *receber);
        }
    }
    line(out, u"<p><font face='Arial'><center>"_s);
    line(out, u"<br><b>Estatísticas</b><hr>"_s + txtinfop2 + u"<hr><br>"_s);
    line(out, output::linha_gerado() + u"<br>"_s);
    line(out, u"<br>"_s);
    line(out, u"<b>"_s + output::nome_relatorio() + u"</b><br>"_s);
    line(out, u"<br>"_s);
    line(out, output::slogan_relatorio() + u"<br>"_s);
    line(out, output::linha_site_html());
    line(out, u"</center></font></p>"_s);
}

} // namespace analysis
