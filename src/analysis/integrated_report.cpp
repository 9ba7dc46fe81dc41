#include "analysis/integrated_report.h"

#include "output/report_frame.h"
#include "platform/busy.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QHash>
#include <QIODevice>

namespace analysis {

using namespace Qt::StringLiterals;

namespace {

const QString crlf = u"\r\n"_s;

// How a filter over a list of names is written: its value and line when it does not filter, the
// quoting of the first name and of each later one, and the start of its line.
struct regra_lista {
    QString todos;
    QString linha_todos;
    QString abre, fecha;       // the first name
    QString ou_abre, ou_fecha; // each later one
    QString linha;
};

struct filtro {
    QString valor;
    QString linha;
};

// A ticked box over an empty list gives no value and no line: the statement that holds it fails.
filtro por_lista(bool filtrar, const QStringList& nomes, const regra_lista& r) {
    if (!filtrar) return {r.todos, r.linha_todos};
    filtro f;
    for (qsizetype i = 0; i < nomes.size(); ++i) {
        const QString v = sql::value(nomes[i]);
        if (i == 0) {
            f.valor = r.abre + v + r.fecha;
            f.linha = r.linha + nomes[i];
        } else {
            f.valor += r.ou_abre + v + r.ou_fecha;
            f.linha += u", "_s + nomes[i];
        }
    }
    return f;
}

// The date's value (its closing quote comes from the statement) and line; entre: "') AND ('" on
// the entry pages, "' AND '" on the bank page.
filtro por_data(const filtros_pagina& f, const QString& todos, const QString& abre, const QString& entre) {
    if (!f.por_data) return {todos, u"Datas incluídas: Todas, não filtrada."_s};
    return {abre + vb::ymd(f.de) + entre + vb::ymd(f.ate),
            u"Datas incluídas: "_s + vb::dmy(f.de) + u" à "_s + vb::dmy(f.ate)};
}

// The status value and line; the concluded value is the ledger's own (misspelt on two pages).
filtro por_estatus(estatus_filtro e, const QString& concluido) {
    switch (e) {
    case estatus_filtro::tudo:
        return {u"%%"_s, u"Estatus: Pendentes e Conluídos"_s};
    case estatus_filtro::pendente:
        return {u"Pendente"_s, u"Estatus: Apenas pendentes"_s};
    case estatus_filtro::concluido:
        break;
    }
    return {concluido, u"Estatus: Apenas conluídos"_s};
}

// The twin pages of expenses and income.
struct pagina_entradas {
    QString tabela;
    QString contato;
    regra_lista contatos;
    regra_lista centros;
    QString concluido;
};

regra_lista entre_parenteses(const QString& coluna, const QString& linha_todos, const QString& linha) {
    return {u"('%%')"_s, linha_todos, u"('"_s, u"')"_s, u" OR ["_s + coluna + u"] like ('"_s, u"')"_s, linha};
}

clausula entradas(const filtros_pagina& f, const pagina_entradas& p) {
    const filtro data = por_data(f, u"like ('%%"_s, u"BETWEEN ('"_s, u"') AND ('"_s);
    const filtro contato = por_lista(f.por_contato, f.contatos, p.contatos);
    const filtro origem =
        por_lista(f.por_origem, f.origens,
                  entre_parenteses(u"origem"_s, u"Conta origem incluídas: Todas, não filtrada."_s,
                                   u"Conta origem incluídas: "_s));
    const filtro centro = por_lista(!f.centros.isEmpty(), f.centros, p.centros);
    const filtro estatus = por_estatus(f.estatus, p.concluido);
    const QString campo = f.por_vencimento ? store::coluna::vencimento : store::coluna::data;
    clausula c;
    c.consulta = u"SELECT * FROM ["_s + p.tabela + u"]"_s + u" WHERE ["_s + campo + u"] "_s + data.valor +
                 u"') AND (["_s + p.contato + u"] like "_s + contato.valor + u") AND ([origem] like "_s +
                 origem.valor + u") AND ([descricao] like "_s + centro.valor + u") AND [estatus] like ('"_s +
                 estatus.valor + u"')"_s;
    for (const filtro* x : {&data, &contato, &origem, &centro, &estatus})
        c.relato += x->linha + crlf;
    return c;
}

// Ledgers repeat their dates and amounts from row to row: each distinct text is converted once.
class memo {
public:
    template <class F> QString get(const QString& stored, F&& make) {
        const auto it = seen_.constFind(stored);
        if (it != seen_.constEnd()) return *it;
        QString shown = make(stored);
        if (seen_.size() < 16384) seen_.insert(stored, shown);
        return shown;
    }

private:
    QHash<QString, QString> seen_;
};

QString valor_texto(const QString& stored) {
    try {
        return vb::reformat_money_text(stored);
    } catch (const std::exception&) {
        return stored;
    }
}

void somar(vb::currency& total, const QString& valor) {
    vb::add_or_keep(total, vb::money_of(valor));
}

// "R$ 1.234,56" in one allocation.
QString com_moeda(const QString& moeda, const QString& valor) {
    QString s;
    s.reserve(moeda.size() + 1 + valor.size());
    s.append(moeda).append(QLatin1Char(' ')).append(valor);
    return s;
}

QString campo(const sql::recordset& rs, int i) {
    return i < 0 ? QString() : rs.text(i);
}

void line(QIODevice& out, const QString& s) {
    if (out.isWritable()) out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

} // namespace

clausula despesas(const filtros_pagina& f) {
    return entradas(f,
                    {store::tabela::pagar, store::coluna::fornecedor,
                     entre_parenteses(u"fornecedor"_s, u"Fornecedores Incluídos: Todos, não filtrado."_s,
                                      u"Fornecedores Incluídos: "_s),
                     entre_parenteses(u"descricao"_s, u"Centro de custos incluídos: Todos, não filtrado."_s,
                                      u"Centro de custos incluídos: "_s),
                     store::palavra::concluido});
}

clausula receitas(const filtros_pagina& f) {
    // the lower-case line and the misspelt status value stay: "Apenas Concluído" finds nothing here
    return entradas(f,
                    {store::tabela::receber, store::coluna::cliente,
                     entre_parenteses(u"cliente"_s, u"clientes Incluídos: Todos, não filtrado."_s,
                                      u"Clientes Incluídos: "_s),
                     entre_parenteses(u"descricao"_s, u"Centro de lucros incluídos: Todos, não filtrado."_s,
                                      u"Centro de lucros incluídos: "_s),
                     u"Conluído"_s});
}

clausula bancarios(const filtros_pagina& f) {
    const filtro data = por_data(f, u"like '%%"_s, u"BETWEEN '"_s, u"' AND '"_s);
    const filtro origem =
        por_lista(f.por_origem, f.origens,
                  {u"'%%'"_s, u"Conta origem incluídas: Todas, não filtrada."_s, u"'"_s, u"'"_s,
                   u" OR [origem] like '"_s, u"'"_s, u"Conta origem incluídas: "_s});
    // later destinations are written in brackets, unlike the first
    const filtro destino =
        por_lista(f.por_destino, f.destinos,
                  {u"'%%'"_s, u"Conta destino incluídas: Todas, não filtrado."_s, u"'"_s, u"'"_s,
                   u" OR [destino] like ('"_s, u"')"_s, u"Contas destino incluídas: "_s});
    const filtro estatus = por_estatus(f.estatus, u"Conluído"_s);
    clausula c;
    c.consulta = u"SELECT * FROM [bancario]"_s + u" WHERE [data] "_s + data.valor +
                 u"'  AND ([origem] like "_s + origem.valor + u") AND ([destino] like "_s + destino.valor +
                 u") AND [estatus] like '"_s + estatus.valor + u"'"_s;
    for (const filtro* x : {&data, &origem, &destino, &estatus})
        c.relato += x->linha + crlf;
    return c;
}

linhas_razao ler_linhas(razao r, const QString& consulta) {
    linhas_razao out;
    sql::recordset rs;
    try {
        const auto conn =
            sql::connection::open(store::caminho_dados(store::arquivo_dados), store::senha_dados.toUtf8());
        rs.open(consulta, conn, sql::keyset, sql::read_only);
    } catch (const std::exception&) {
        return out;
    }
    out.ok = true;
    const auto at = [&rs](const QString& name) { return rs.index_of(name); };
    const int i_data = at(store::coluna::data), i_valor = at(store::coluna::valor),
              i_estatus = at(store::coluna::estatus), i_origem = at(store::coluna::origem);
    // amounts are nearly all distinct: only the dates are worth remembering
    memo datas;
    out.linhas.reserve(std::size_t(rs.record_count()));
    if (r == razao::bancario) {
        const int i_movimento = at(store::coluna::movimento), i_destino = at(store::coluna::destino);
        const QString hifen = u"-"_s;
        for (; !rs.eof(); rs.move_next()) {
            const QString valor = campo(rs, i_valor);
            const QString movimento = campo(rs, i_movimento);
            QString conta = campo(rs, i_origem);
            // compared as written: the stored word begins with a capital and never equals it
            if (movimento == u"transferência entre contas"_s) conta += u" / "_s + campo(rs, i_destino);
            out.linhas.push_back({datas.get(campo(rs, i_data), shell::display_date), movimento, hifen, hifen,
                                  valor_texto(valor), hifen, campo(rs, i_estatus), conta,
                                  u"Movimento Bancário"_s});
            somar(out.soma, valor);
        }
        return out;
    }
    const bool pagar = r == razao::pagar;
    const int i_descricao = at(store::coluna::descricao), i_documento = at(store::coluna::documento),
              i_contato = at(pagar ? store::coluna::fornecedor : store::coluna::cliente),
              i_vencimento = at(store::coluna::vencimento), i_moeda = at(store::coluna::moeda);
    const QString tipo = pagar ? u"DÉBITO"_s : u"CRÉDITO"_s;
    for (; !rs.eof(); rs.move_next()) {
        const QString valor = campo(rs, i_valor);
        out.linhas.push_back({datas.get(campo(rs, i_data), shell::display_date), campo(rs, i_descricao),
                              campo(rs, i_documento), campo(rs, i_contato),
                              com_moeda(campo(rs, i_moeda), valor_texto(valor)),
                              datas.get(campo(rs, i_vencimento), shell::display_date), campo(rs, i_estatus),
                              campo(rs, i_origem), tipo});
        somar(out.soma, valor);
    }
    return out;
}

relatorio_integrado gerar(const filtros_integrados& f) {
    relatorio_integrado out;
    const auto razao_de = [&out](razao r, const clausula& c, QString& relato, const QString& total) {
        relato += c.relato;
        linhas_razao l = ler_linhas(r, c.consulta);
        if (!l.ok) return;
        out.linhas.insert(out.linhas.end(), std::make_move_iterator(l.linhas.begin()),
                          std::make_move_iterator(l.linhas.end()));
        out.txtfinanceiro += total + vb::format_money(l.soma) + crlf;
    };
    if (f.pagar)
        razao_de(razao::pagar, despesas(f.p), out.txtpagar, u"Total de despesa: R$ "_s);
    else
        out.txtpagar = u"Contas a pagar - débitos, não incluído no relatório!"_s;
    if (f.receber)
        razao_de(razao::receber, receitas(f.r), out.txtreceber, u"Total de receitas: R$ "_s);
    else
        out.txtreceber = u"Contas a receber - créditos, não incluído no relatório!"_s;
    if (f.bancario)
        razao_de(razao::bancario, bancarios(f.b), out.txtbancario, u"Total bancário: R$ "_s);
    else
        out.txtbancario = u"Movimento bancário, não incluído no relatório!"_s;
    return out;
}

void escrever_txt(QIODevice& out, const QString& caption, const platform::table_source& lista,
                  const relatorio_integrado& r, output::c_relatorios& exportador) {
    line(out, caption.toUpper() + u" "_s + titulo_integrado);
    line(out, QString());
    line(out, output::linha_produto);
    line(out, QString());
    {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaTXT(out, QString(), lista, true);
    }
    const std::pair<QString, const QString*> blocos[] = {{u"Contas a pagar:"_s, &r.txtpagar},
                                                         {u"Contas a receber:"_s, &r.txtreceber},
                                                         {u"Movimento bancário:"_s, &r.txtbancario},
                                                         {u"Dados financeiros:"_s, &r.txtfinanceiro}};
    for (const auto& [titulo, texto] : blocos) {
        line(out, QString());
        line(out, titulo);
        line(out, *texto);
    }
    line(out, QString());
    line(out, output::linha_gerado());
    line(out, QString());
    line(out, output::nome_relatorio());
    line(out, QString());
    line(out, output::slogan_relatorio());
    line(out, output::site_relatorio());
}

void escrever_html(QIODevice& out, const QString& caption, const platform::table_source& lista,
                   const relatorio_integrado& r, output::c_relatorios& exportador) {
    const QString titulo = caption.toUpper() + titulo_integrado;
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, u"<html>\r\n<head>\r\n<title>"_s + titulo + u"</title>"_s);
    line(out, u"<p><font face='Arial'>"_s);
    line(out, u"<center><b>"_s + titulo + u"</b>"_s);
    line(out, u"<hr>"_s);
    line(out, output::linha_produto + u"<br><br>"_s);
    line(out, u"</center></font></p>"_s);
    {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaHTML(out, lista);
    }
    line(out, u"<p><font face='Arial'><center>"_s);
    line(out, u"<br><b>Estatísticas</b><hr>"_s + u"<b>CONTAS A PAGAR - DESPESAS</b><BR>"_s + r.txtpagar +
                  u"<br><br>"_s + u"<b>CONTAS A RECEBER - RECEITAS</b><BR>"_s + r.txtreceber + u"<br><br>"_s +
                  u"<b>MOVIMENTO BANCÁRIO</b><BR>"_s + r.txtbancario + u"<br><br>"_s +
                  u"<b>DADOS FINANCEIROS</b><BR>"_s + r.txtfinanceiro + u"<hr><br>"_s);
    line(out, output::linha_gerado() + u"<br>"_s);
    line(out, u"<br>"_s);
    line(out, u"<b>"_s + output::nome_relatorio() + u"</b><br>"_s);
    line(out, u"<br>"_s);
    line(out, output::slogan_relatorio() + u"<br>"_s);
    line(out, output::linha_site_html());
    line(out, u"</center></font></p>"_s);
}

QString salvar(formato f, const QString& caption, const platform::table_source& lista,
               const relatorio_integrado& r, output::c_relatorios& exportador) {
    if (f == formato::txt)
        return output::salvar_arquivo(
            u"Salvar relatório em txt"_s, u"Arquivos de Texto(*.txt)|*.txt"_s, exportador.Progresbar(),
            [&](QIODevice& out) { escrever_txt(out, caption, lista, r, exportador); });
    return output::salvar_arquivo(u"Salvar relatório integrado em html"_s, u"Arquivos HTML(*.html)|*.html"_s,
                                  exportador.Progresbar(),
                                  [&](QIODevice& out) { escrever_html(out, caption, lista, r, exportador); });
}

} // namespace analysis
