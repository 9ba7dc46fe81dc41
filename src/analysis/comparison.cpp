#include "analysis/comparison.h"

#include "output/report_frame.h"
#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QIODevice>

namespace analysis {

using namespace Qt::StringLiterals;

namespace {

const QString crlf = u"\r\n"_s;

void line(QIODevice& out, const QString& s) {
    if (out.isWritable()) out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

QString rs(vb::currency v) {
    return vb::format_money_prefixed(v);
}

// The six figures in their order: total, pending and completed, each a count and a value.
struct figuras {
    double n[3];
    vb::currency v[3];
};

figuras de(const status_tally& s) {
    const double p = s.n(classe::pendente), c = s.n() - s.n(classe::pendente);
    const vb::currency vp = s.moeda(classe::pendente), vc = s.moeda_total() - s.moeda(classe::pendente);
    return {{p + c, p, c}, {vp + vc, vp, vc}};
}

// The six lead-ins; the counts' lines first in each pair.
QStringList entradas(const QString& palavra) {
    return {
        u"Total de "_s + palavra + u" cadastradas: "_s, u"Valor total de "_s + palavra + u": "_s,
        u"Total de "_s + palavra + u" pendentes: "_s,   u"Valor total de "_s + palavra + u" pendentes: "_s,
        u"Total de "_s + palavra + u" concluídas: "_s,  u"Valor total de "_s + palavra + u" concluídas: "_s};
}

QString numero(double n) {
    return QString::number(n, 'g', 15);
}

} // namespace

const lado_comparacao& comparacao_despesas() {
    static const lado_comparacao l{store::tabela::pagar, u"despesas"_s,
                                   u"Comparação entre meses e anos - Despesas"_s};
    return l;
}

const lado_comparacao& comparacao_receitas() {
    static const lado_comparacao l{store::tabela::receber, u"receitas"_s,
                                   u"Comparação entre meses e anos - Receitas"_s};
    return l;
}

QString comando_comparacao(const lado_comparacao& l, const QString& padrao) {
    return u"select * from "_s + l.tabela + u" where (data like '%"_s + sql::value(padrao) + u"%')"_s;
}

status_tally somar_periodo(const lado_comparacao& l, const QString& padrao) {
    status_tally s(classes::minusculas, soma::moeda);
    platform::ignore_errors([&] {
        sql::recordset r;
        r.open(comando_comparacao(l, padrao), store::conexao, sql::keyset, sql::read_only);
        const int i_estatus = r.index_of(store::coluna::estatus), i_valor = r.index_of(store::coluna::valor);
        for (; !r.eof(); r.move_next())
            s.add(i_estatus < 0 ? QString() : r.text(i_estatus), i_valor < 0 ? QString() : r.text(i_valor));
    });
    return s;
}

bloco_comparacao bloco_periodo(const lado_comparacao& l, const status_tally& s) {
    const figuras f = de(s);
    const QStringList e = entradas(l.palavra);
    const QString valores[6] = {numero(f.n[0]), rs(f.v[0]),     numero(f.n[1]),
                                rs(f.v[1]),     numero(f.n[2]), rs(f.v[2])};
    bloco_comparacao b;
    for (int i = 0; i < 6; ++i) {
        if (i > 0) {
            b.texto += crlf + crlf;
            b.html += u"<br><br>"_s;
        }
        b.texto += e[i] + valores[i];
        b.html += e[i] + valores[i];
    }
    return b;
}

bloco_comparacao bloco_diferencas(const lado_comparacao& l, const QString& unidade, const QString& nome1,
                                  const QString& nome2, const status_tally& s1, const status_tally& s2) {
    const figuras a = de(s1), b = de(s2);
    const QStringList e = entradas(l.palavra);
    bloco_comparacao out;
    for (int i = 0; i < 6; ++i) {
        const int k = i / 2;
        const bool contagem = i % 2 == 0;
        const QString x = contagem ? numero(a.n[k]) : rs(a.v[k]);
        const QString y = contagem ? numero(b.n[k]) : rs(b.v[k]);
        QString dif;
        try {
            dif = contagem ? numero(b.n[k] - a.n[k]) + u" cadastros"_s : rs(b.v[k] - a.v[k]);
        } catch (const std::exception&) {
            // errors ignored: the difference stays empty
        }
        const QString par = e[i] + unidade + u" de "_s + nome1 + u" ("_s + x + u") - "_s + unidade +
                            u" de: "_s + nome2 + u" ("_s + y + u")"_s;
        out.texto += par + crlf + u"Diferença de "_s + dif + crlf + crlf;
        if (i > 0) out.html += u"<br><br>"_s;
        out.html += par + u"<br>Diferença de "_s + dif;
    }
    return out;
}

void escrever_txt_comparacao(QIODevice& out, const lado_comparacao& l, const aba_comparacao& a) {
    const QString regua(128, u'-');
    const auto rot = [&a](int i) { return i < a.rotulos.size() ? a.rotulos[i] : QString(); };
    for (const QString& s : {u"Comparação de "_s + l.palavra + u" entre anos"_s,
                             QString(),
                             output::linha_produto,
                             regua,
                             QString(),
                             rot(0),
                             QString(),
                             a.blocos[0].texto,
                             regua,
                             rot(1),
                             QString(),
                             a.blocos[1].texto,
                             QString(),
                             regua,
                             QString(),
                             rot(2),
                             QString(),
                             a.blocos[2].texto,
                             QString(),
                             regua,
                             QString(),
                             output::linha_gerado(),
                             QString(),
                             output::nome_relatorio(),
                             QString(),
                             output::slogan_relatorio(),
                             output::site_relatorio()})
        line(out, s);
}

void escrever_html_comparacao(QIODevice& out, const lado_comparacao& l, const aba_comparacao& a) {
    const QString titulo = (u"Comparação de "_s + l.palavra + u" entre anos"_s).toUpper();
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    for (const QString& s : {u"<html>"_s, u"<head>"_s, u"<title>"_s + titulo + u"</title>"_s,
                             u"<b><p><font face='Arial'><center>"_s + titulo + u"</b><hr>"_s,
                             output::linha_produto + u"<br>"_s, u"</center><br>"_s, u"<hr>"_s})
        line(out, s);
    for (int i = 0; i < 3; ++i) {
        line(out, u"<b><center>"_s + (i < a.rotulos.size() ? a.rotulos[i] : QString()) + u"</b></center>"_s);
        line(out, u"<br><br>"_s);
        line(out, a.blocos[i].html);
        line(out, u"<hr>"_s);
    }
    const QString site = output::site_relatorio();
    for (const QString& s :
         {u"</font><p><font face='Arial'><center>"_s, output::linha_gerado() + u"<br>"_s, u"<br>"_s,
          u"<b>QUINTARA</b><br>"_s, u"<br>"_s, output::slogan_relatorio() + u"<br>"_s,
          u"<p><a href='"_s + site + u"'>"_s + site + u"</a></p><br>"_s, u"</center></font></p>"_s})
        line(out, s);
}

} // namespace analysis
