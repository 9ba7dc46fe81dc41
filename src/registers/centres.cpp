#include "registers/centres.h"

#include "output/report_frame.h"
#include "platform/busy.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QIODevice>

namespace registers {

using namespace Qt::StringLiterals;

namespace {

const gemeo_centro custo{u"frmcentrocusto"_s,
                         u"Centro de custo"_s,
                         store::tabela::pcontapagar,
                         store::tabela::pagar,
                         u"lstcentrocusto"_s,
                         u"Select * from pcontapagar order by descricao"_s,
                         u"Centro de custos cadastrados:"_s,
                         u"centro de custo"_s,
                         u"selecione outro nome!"_s,
                         u"Total de despesas: R$ "_s,
                         u" - Total pago: R$ "_s,
                         u"Resumo de centro de custo"_s,
                         u"Centro de custo: "_s};

const gemeo_centro lucro{u"frmcentrolucro"_s,
                         u"Centro de lucro"_s,
                         store::tabela::pcontareceber,
                         store::tabela::receber,
                         u"lstcentrolucro"_s,
                         u"Select * from pcontareceber"_s,
                         u"Centro de lucros cadastrados:"_s,
                         u"centro de lucro"_s,
                         u"digite outro nome!"_s,
                         u"Total de receitas: R$ "_s,
                         u" - Total recebido: R$ "_s,
                         u"Resumo de centro de lucro"_s,
                         u"Centro de lucro: "_s};

// The connection of conectarbanco; a failed connection is a failure of the step that needed it.
sql::connection_ptr conectar() {
    store::conectarbanco();
    if (!store::conexao) throw sql::error(u"Não foi possível conectar ao banco de dados."_s);
    return store::conexao;
}

void line(QIODevice& out, const QString& s) {
    if (out.isWritable()) out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

// What an amount adds to a sum: its text through "##,##0.00" read back, so each addend is rounded
// to the cent. An amount that cannot be read adds nothing.
vb::currency parcela(const QString& valor) {
    return vb::money_of(vb::reformat_money_text(valor));
}

} // namespace

const gemeo_centro& gemeo(centro c) {
    return c == centro::custo ? custo : lucro;
}

QString msg_vazio(centro c) {
    return u"O nome do "_s + gemeo(c).palavra + u" não pode estar vazio!"_s;
}
QString msg_duplicado_cadastro(centro c) {
    return u"Já existe um "_s + gemeo(c).palavra + u" com o nome cadastrado, por favor "_s +
           gemeo(c).fim_duplicado;
}
QString msg_duplicado_edicao(centro c) {
    return u"Já existe um "_s + gemeo(c).palavra + u" com o nome cadastrado, por favor digite outro nome!"_s;
}
QString titulo_edicao(centro c) {
    return u"Editar "_s + gemeo(c).palavra;
}
QString prompt_edicao(centro c) {
    return u"Digite o novo nome para este "_s + gemeo(c).palavra;
}
QString msg_remover(centro c, const QString& nome) {
    return u"Tem certeza que deseja remover o "_s + gemeo(c).palavra + u" "_s + nome +
           u" do banco de dados?"_s;
}
QString msg_sem_centros(centro c) {
    const QString& p = gemeo(c).palavra;
    return u"Não há nenhum "_s + p + u", cadastrado no banco de dados! para cadastrar um "_s + p +
           u" clique no menu principal e depois em "_s + p + u"."_s;
}

namespace {

QStringList nomes_em(const sql::connection_ptr& conn, centro c) {
    sql::recordset rs;
    rs.open(gemeo(c).consulta, conn, sql::keyset, sql::read_only);
    const int col = rs.index_of(store::coluna::descricao);
    QStringList nomes;
    for (; !rs.eof(); rs.move_next())
        nomes << rs.text(col);
    return nomes;
}

} // namespace

QStringList carregar_nomes(centro c) {
    return nomes_em(conectar(), c);
}

cadastro_resultado cadastrar(centro c, const QString& nome) {
    sql::recordset rs;
    rs.open(gemeo(c).tabela, conectar(), sql::keyset, sql::pessimistic);
    const QString limpo = vb::trim_blanks(nome);
    if (limpo.isEmpty()) return cadastro_resultado::vazio;
    rs.add_new();
    rs.set(store::coluna::descricao, limpo);
    rs.update();
    rs.close();
    return cadastro_resultado::gravado;
}

QStringList renomear_statements(centro c, const QString& antigo, const QString& novo) {
    const QString set = u" SET descricao='"_s + sql::value(vb::trim_blanks(novo)) +
                        u"' where(descricao like '"_s + sql::value(antigo) + u"')"_s;
    return {u"UPDATE "_s + gemeo(c).tabela + set, u"UPDATE "_s + gemeo(c).entradas + set};
}

void renomear(centro c, const QString& antigo, const QString& novo) {
    const sql::connection_ptr conn = conectar();
    for (const QString& s : renomear_statements(c, antigo, novo))
        conn->execute(s);
    store::fecharconexao();
}

QString remover_statement(centro c, const QString& nome) {
    return u"Delete FROM "_s + gemeo(c).tabela + u" where(descricao like '"_s + sql::value(nome) + u"')"_s;
}

void remover(centro c, const QString& nome) {
    conectar()->execute(remover_statement(c, nome));
}

QString periodo(const QDate& de, const QDate& ate) {
    if (!de.isValid() || !ate.isValid()) return {};
    return u" AND data between '"_s + vb::ymd(de) + u"' AND '"_s + vb::ymd(ate) + u"'"_s;
}

QString resumo_statement(centro c, const QString& nome, const QString& periodo) {
    return u"select * from "_s + gemeo(c).entradas + u" where (descricao like '"_s + sql::value(nome) +
           u"')"_s + periodo;
}

QString celula(long n, vb::currency soma) {
    return QString::number(n) + u" (R$ "_s + vb::format_money(soma) + u")"_s;
}

QString texto_geral(centro c, vb::currency total, vb::currency concluido, vb::currency pendente) {
    return gemeo(c).rotulo_total + vb::format_money(total) + gemeo(c).rotulo_concluido +
           vb::format_money(concluido) + u" - Total pendente: R$ "_s + vb::format_money(pendente);
}

resumo calcular_resumo(centro c, const QDate& de, const QDate& ate, const std::function<void(int)>& comeco,
                       const std::function<void(int)>& passo) {
    resumo r;
    const QString filtro = periodo(de, ate);
    const sql::connection_ptr conn = conectar();
    const QStringList nomes = nomes_em(conn, c);
    if (nomes.isEmpty()) {
        r.sem_centros = true;
        return r;
    }
    if (comeco) comeco(int(nomes.size()));
    int numero = 0;
    for (const QString& nome : nomes) {
        ++numero;
        long n_pendentes = 0, n_concluidas = 0;
        vb::currency pendentes, concluidas;
        try {
            sql::recordset rs;
            rs.open(resumo_statement(c, nome, filtro), conn, sql::keyset, sql::read_only);
            const int i_estatus = rs.index_of(store::coluna::estatus);
            const int i_valor = rs.index_of(store::coluna::valor);
            for (; !rs.eof(); rs.move_next()) {
                const vb::currency v = parcela(rs.text(i_valor));
                if (rs.text(i_estatus) == store::palavra::pendente) {
                    ++n_pendentes;
                    vb::add_or_keep(pendentes, v);
                } else {
                    ++n_concluidas;
                    vb::add_or_keep(concluidas, v);
                }
            }
        } catch (const std::exception&) {
            // errors ignored: the centre shows what was counted before the failure
        }
        vb::currency ambos = pendentes;
        vb::add_or_keep(ambos, concluidas);
        r.linhas.push_back({QString::number(numero), nome, celula(n_pendentes, pendentes),
                            celula(n_concluidas, concluidas), celula(n_pendentes + n_concluidas, ambos)});
        vb::add_or_keep(r.total, ambos);
        vb::add_or_keep(r.concluido, concluidas);
        vb::add_or_keep(r.pendente, pendentes);
        if (passo) passo(numero);
    }
    r.geral = texto_geral(c, r.total, r.concluido, r.pendente);
    return r;
}

void escrever_txt(QIODevice& out, centro c, const platform::table_source& lista, const QString& geral,
                  output::c_relatorios& exportador) {
    line(out, gemeo(c).titulo);
    line(out, QString(114, u'_'));
    line(out, output::linha_produto);
    line(out, QString());
    {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaTXT(out, QString(), lista, true);
    }
    line(out, QString());
    line(out, geral);
    line(out, QString());
    line(out, output::linha_gerado());
    line(out, QString());
    line(out, output::nome_relatorio());
    line(out, QString());
    line(out, output::slogan_relatorio());
    line(out, output::site_relatorio());
}

void escrever_html(QIODevice& out, centro c, const platform::table_source& lista, const QString& geral,
                   output::c_relatorios& exportador) {
    const QString& titulo = gemeo(c).titulo;
    if (out.isWritable()) out.write(QByteArrayLiteral("\xEF\xBB\xBF"));
    line(out, u"<html>\r\n<head>\r\n<title>"_s + titulo + u"</title>"_s);
    line(out, u"<p><font face='Arial'>"_s);
    line(out, u"<center><b>"_s + titulo + u"</b>"_s);
    line(out, u"<hr>"_s);
    line(out, output::linha_produto + u"<br>"_s);
    line(out, u"</center></font></p>"_s);
    {
        platform::busy_span hourglass;
        exportador.Exportar_listaparaHTML(out, lista);
    }
    line(out, u"<p><font face='Arial'><center>"_s);
    line(out, u"<hr><br>"_s + geral);
    line(out, output::linha_gerado() + u"<br>"_s);
    line(out, u"<br>"_s);
    line(out, u"<b>"_s + output::nome_relatorio() + u"</b><br>"_s);
    line(out, u"<br>"_s);
    line(out, output::slogan_relatorio() + u"<br>"_s);
    line(out, output::linha_site_html());
    line(out, u"</center></font></p>"_s);
}

QString salvar_resumo(formato f, centro c, const platform::table_source& lista, const QString& geral,
                      output::c_relatorios& exportador) {
    if (f == formato::txt)
        return output::salvar_arquivo(
            u"Salvar resumo em txt"_s, u"Arquivos de texto (*.txt)|*.txt"_s, exportador.Progresbar(),
            [&](QIODevice& out) { escrever_txt(out, c, lista, geral, exportador); });
    return output::salvar_arquivo(u"Salvar resumo em html"_s, u"Arquivos HTML (*.html)|*.html"_s,
                                  exportador.Progresbar(),
                                  [&](QIODevice& out) { escrever_html(out, c, lista, geral, exportador); });
}

} // namespace registers
