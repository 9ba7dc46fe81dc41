#include "analysis/projection.h"

#include "analysis/period.h"
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

lado_projecao lado(const QString& tabela, const QString& palavra, const QString& maiuscula) {
    return {tabela,
            palavra,
            u"Projeções e Metas - "_s + maiuscula,
            u"Projeções e Metas de "_s + palavra,
            u"Salvar projeções e metas de "_s + palavra + u" em txt"_s,
            u"Salvar projeções e metas de "_s + palavra + u" em html"_s};
}

QString rs(vb::currency v) {
    return vb::format_money_prefixed(v);
}

void line(QIODevice& out, const QString& s) {
    if (out.isWritable()) out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

// The amount over the days, to four decimals by the nearest-even rule; nothing when there are none.
vb::currency por_dia(vb::currency v, int dias) {
    return dias > 0 ? vb::currency::from_double(v.to_double() / dias) : vb::currency();
}

} // namespace

const lado_projecao& projecao_despesas() {
    static const lado_projecao l = lado(store::tabela::pagar, u"despesas"_s, u"Despesas"_s);
    return l;
}

const lado_projecao& projecao_receitas() {
    static const lado_projecao l = lado(store::tabela::receber, u"receitas"_s, u"Receitas"_s);
    return l;
}

QString comando_projecao(const lado_projecao& l, const QDate& mes) {
    return u"Select * from "_s + l.tabela + u" where (estatus like 'Concluído') AND (data like '%"_s +
           sql::value(vb::format_date(mes, u"yyyy/mm/"_s)) + u"%')"_s;
}

resultado_projecao montar_projecao(const lado_projecao& l, const QString& mes, const QString& ano,
                                   vb::currency total, int dias, vb::currency meta) {
    QString estatus;
    try {
        const vb::currency diferenca = total - meta;
        if (diferenca < vb::currency())
            estatus = u"Faltam "_s + rs(diferenca) + u" para atingir sua meta!"_s;
        else if (diferenca > vb::currency())
            estatus = u"A meta foi atingida com sobra de "_s + rs(diferenca);
        else
            estatus = u"A meta foi atingida!"_s;
    } catch (const std::exception&) {
        // errors ignored: the status stays empty
    }
    const vb::currency metadiaria = por_dia(meta, dias), mediadiaria = por_dia(total, dias);
    const QString nota = u"* Está projeção é baseada apenas em "_s + l.palavra + u" concluídas."_s;
    const QString n_dias = QString::number(dias);
    resultado_projecao r;
    r.texto = crlf + u"Valor da projeção: "_s + rs(meta) + crlf + u"Meta diária: "_s + rs(metadiaria) + crlf +
              u"Valor Efetivado: "_s + rs(total) + crlf + u"Média diária efetivada: "_s + rs(mediadiaria) +
              crlf + u"Estatus: "_s + estatus + crlf + crlf + u"Informações Adicionais "_s + crlf +
              u"Data escolhida: Mês de "_s + mes + u" de "_s + ano + crlf + u"Dias no mês: "_s + n_dias +
              u" dias "_s + crlf + nota;
    r.html = crlf + u"<b>Valor da projeção:</b> "_s + rs(meta) + u"<br>"_s + u"<b>Meta diária:</b> "_s +
             rs(metadiaria) + u"<br>"_s + u"<b>Valor Efetivado:</b> "_s + rs(total) + u"<br>"_s +
             u"<b>Média diária efetivada:</b> "_s + rs(mediadiaria) + u"<br>"_s + u"<b>Estatus:</b> "_s +
             estatus + u"<br><br>"_s + u"<b>Informações Adicionais</b> "_s + u"<br>"_s +
             u"<b>Data escolhida:</b> Mês de "_s + mes + u" de "_s + ano + u"<br>"_s +
             u"<b>Dias no mês:</b> "_s + n_dias + u" dias "_s + u"<br><br>"_s + u"<b>"_s + nota + u"</b>"_s;
    return r;
}

resultado_projecao verificar_projecao(const lado_projecao& l, const QString& mes, const QString& ano,
                                      const QString& meta) {
    const QDate d = data_do_mes(mes, ano);
    const int dias = dias_no_mes(d);
    vb::currency total;
    if (d.isValid()) {
        platform::ignore_errors([&] {
            sql::recordset r;
            r.open(comando_projecao(l, d), store::conexao, sql::keyset, sql::read_only);
            const int i = r.index_of(store::coluna::valor);
            for (; !r.eof(); r.move_next()) {
                const std::optional<vb::currency> v = vb::ccur(i < 0 ? QString() : r.text(i));
                if (!v) continue; // an amount that does not read is skipped
                vb::add_or_keep(total, *v);
            }
        });
    }
    const vb::currency alvo = vb::ccur(meta).value_or(vb::currency());
    return montar_projecao(l, mes, ano, total, dias, alvo);
}

QString meta_ao_sair(const QString& texto) {
    const std::optional<vb::currency> v = vb::ccur(texto);
    if (texto.isEmpty() || texto.front() == u'.' || texto.front() == u',' || !v) return u"R$ 00,00"_s;
    return rs(*v);
}

void escrever_txt_projecao(QIODevice& out, const lado_projecao& l, const QString& texto) {
    const QString regua(128, u'-');
    for (const QString& s :
         {l.titulo, QString(), output::linha_produto, regua, QString(), u"Projeção e Meta"_s, texto,
          QString(), regua, QString(), output::linha_gerado(), QString(), output::nome_relatorio(), QString(),
          output::slogan_relatorio(), output::site_relatorio()})
        line(out, s);
}

void escrever_html_projecao(QIODevice& out, const lado_projecao& l, const QString& html) {
    const QString titulo = l.titulo.toUpper();
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    for (const QString& s :
         {u"<html>"_s, u"<head>"_s, u"<title>"_s + titulo + u"</title>"_s,
          u"<b><p><font face='Arial'><center>"_s + titulo + u"</b><hr>"_s, output::linha_produto + u"<br>"_s,
          u"</center><br>"_s, u"<hr>"_s, u"<b><center>Projeção e Meta</b></center>"_s, u"<br><br>"_s, html,
          u"<hr>"_s, u"</font><p><font face='Arial'><center>"_s, output::linha_gerado() + u"<br>"_s,
          u"<br>"_s, u"<b>QUINTARA</b><br>"_s, u"<br>"_s, output::slogan_relatorio() + u"<br>"_s,
          output::linha_site_html(), u"</center></font></p>"_s})
        line(out, s);
}

} // namespace analysis
