#include "mail/via_email.h"

#include "analysis/status_tally.h"
#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "shell/main_menu.h"
#include "store/conexao.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QFile>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace mail {

namespace {

// The rows of one ledger as the page's working list held them, for the exporter. The texts lie
// end to end in one buffer and are handed out without a copy: a few hundred thousand rows cost
// no allocation each.
class tabela : public platform::table_source {
public:
    tabela(QStringList cabecalhos, qsizetype linhas) : cabecalhos_(std::move(cabecalhos)) {
        fins_.reserve(std::size_t(linhas * cabecalhos_.size()));
        textos_.reserve(linhas * 160);
    }
    int column_count() const override { return int(cabecalhos_.size()); }
    QString column_text(int col) const override { return cabecalhos_.at(col); }
    double column_width(int) const override { return 1440; }
    int row_count() const override { return int(fins_.size() / std::size_t(cabecalhos_.size())); }
    QString text(int row, int col) const override {
        const std::size_t k = std::size_t(row) * std::size_t(cabecalhos_.size()) + std::size_t(col);
        const qsizetype inicio = k == 0 ? 0 : fins_[k - 1];
        return QString::fromRawData(textos_.constData() + inicio, fins_[k] - inicio);
    }
    // A cell, or the pieces of one closed by fim().
    tabela& operator<<(QStringView s) {
        textos_ += s;
        return *this;
    }
    void fim() { fins_.push_back(textos_.size()); }
    void celula(QStringView s) { *this << s, fim(); }

private:
    QStringList cabecalhos_;
    QString textos_;
    std::vector<qsizetype> fins_;
};

struct ledger_info {
    const QString& tabela;
    QString titulo;
    bool movimento;
};

const QString regua(48, QLatin1Char('-'));

QString reais(vb::currency v) {
    return vb::format_money_prefixed(v, u"R$ "_s);
}

// "##,##0.00" of a stored amount; text that is no amount stays as it is.
QString texto_valor(const QString& valor, const std::optional<vb::currency>& v) {
    return v ? vb::format_money(*v) : vb::reformat_money_text(valor);
}

void linha(QIODevice& out, const QString& s) {
    out.write(s.toUtf8() + QByteArrayLiteral("\r\n"));
}

QString long_date_hoje() {
    return vb::long_date(platform::today());
}

// One ticked ledger into the file; nothing when its statement fails or finds no row.
void escrever_ledger(QIODevice& out, const ledger_info& l, const pagina& p, tipo_ret t,
                     const progresso& barra) {
    sql::recordset rs;
    try {
        store::conectarbanco();
        rs.open(consulta(l.tabela, t, p.por_data, p.inicio, p.fim), store::conexao, sql::keyset,
                sql::read_only);
    } catch (const std::exception&) {
        return; // errors ignored: the section is left out
    }
    const int total = int(rs.record_count());
    if (total <= 0) return;
    if (barra) barra(0, total);
    linha(out, QString());
    linha(out, l.titulo);
    linha(out, regua);

    const auto col = [&rs](const QString& n) { return rs.index_of(n); };
    const auto txt = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
    const int i_codigo = col(store::coluna::codigo), i_data = col(store::coluna::data),
              i_valor = col(store::coluna::valor), i_estatus = col(store::coluna::estatus),
              i_origem = col(store::coluna::origem);
    analysis::status_tally soma(analysis::classes::exato, analysis::soma::moeda);
    vb::currency depositos, retiradas, transferencias;
    tabela lista(l.movimento
                     ? QStringList{u"Código"_s, u"Data"_s, u"Movimento"_s, u"Origem"_s, u"Destino"_s,
                                   u"Valor"_s, u"Estatus"_s, u"Informações"_s}
                     : QStringList{u"Código"_s, u"Data"_s, u"Descrição"_s, u"Documento"_s,
                                   l.tabela == store::tabela::receber ? u"Cliente"_s : u"Fornecedor"_s,
                                   u"Vencimento"_s, u"Valor"_s, u"Estatus"_s, u"Origem"_s},
                 total);
    if (l.movimento) {
        const int i_mov = col(store::coluna::movimento), i_destino = col(store::coluna::destino),
                  i_info = col(store::coluna::informacoes);
        for (int n = 0; !rs.eof(); rs.move_next(), ++n) {
            const QString valor = txt(i_valor), estatus = txt(i_estatus), movimento = txt(i_mov);
            const std::optional<vb::currency> v = analysis::valor_formatado(valor);
            for (int i : {i_codigo, i_data})
                lista.celula(txt(i));
            lista.celula(movimento);
            for (int i : {i_origem, i_destino})
                lista.celula(txt(i));
            (lista << u"R$ ") << texto_valor(valor, v);
            lista.fim();
            lista.celula(estatus);
            lista.celula(txt(i_info));
            soma.add(estatus, v, valor);
            if (v) {
                vb::currency& alvo = movimento == store::palavra::retirada   ? retiradas
                                     : movimento == store::palavra::deposito ? depositos
                                                                             : transferencias;
                platform::ignore_errors([&] { alvo += *v; });
            }
            if (barra && (n & 2047) == 0) barra(n, total);
        }
    } else {
        const int i_desc = col(store::coluna::descricao), i_doc = col(store::coluna::documento),
                  i_contato = col(l.tabela == store::tabela::receber ? store::coluna::cliente
                                                                     : store::coluna::fornecedor),
                  i_venc = col(store::coluna::vencimento), i_moeda = col(store::coluna::moeda);
        for (int n = 0; !rs.eof(); rs.move_next(), ++n) {
            const QString valor = txt(i_valor), estatus = txt(i_estatus);
            const std::optional<vb::currency> v = analysis::valor_formatado(valor);
            lista.celula(txt(i_codigo));
            lista.celula(shell::display_date(txt(i_data)));
            for (int i : {i_desc, i_doc, i_contato})
                lista.celula(txt(i));
            lista.celula(shell::display_date(txt(i_venc)));
            ((lista << txt(i_moeda)) << u" ") << texto_valor(valor, v);
            lista.fim();
            lista.celula(estatus);
            lista.celula(txt(i_origem));
            soma.add(estatus, v, valor);
            if (barra && (n & 2047) == 0) barra(n, total);
        }
    }
    rs.close();
    if (barra) barra(total, total);

    QString rotulo = u"Valor total: "_s + reais(soma.moeda_total()) + u" - Total concluído: "_s +
                     reais(soma.moeda(analysis::classe::concluido)) + u" - Total pendente: "_s +
                     reais(soma.moeda(analysis::classe::pendente));
    if (l.movimento)
        rotulo = u"Total depósito: "_s + reais(depositos) + u" - Total retirada: "_s + reais(retiradas) +
                 u" - Total transferência: "_s + reais(transferencias) + u"\r\n"_s + rotulo;
    output::c_relatorios exportador;
    exportador.Exportar_listaparaTXT(out, caminho_anexo(), lista, true);
    linha(out, QString());
    linha(out, rotulo);
}

// The figures of one ledger for the statistics mail.
QString estatisticas_ledger(const QString& tabela, const QString& titulo, const pagina& p, bool ultimo) {
    analysis::status_tally soma(analysis::classes::tres_vias, analysis::soma::dupla);
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(u"select * from "_s + tabela + clausula_datas(p.por_data, p.inicio, p.fim), store::conexao,
                sql::keyset, sql::read_only);
        const int i_valor = rs.index_of(store::coluna::valor),
                  i_estatus = rs.index_of(store::coluna::estatus);
        for (; !rs.eof(); rs.move_next())
            soma.add(i_estatus < 0 ? QString() : rs.text(i_estatus),
                     i_valor < 0 ? QString() : rs.text(i_valor));
    });
    const auto n = [](long v) { return QString::number(v); };
    return u"> "_s + titulo + u"<br><br>"_s + u"<b>Total de contas cadastradas:</b> "_s + n(soma.n()) +
           u" cadastros<br><br>"_s + u"<b>Total de contas pendentes cadastradas:</b> "_s +
           n(soma.n(analysis::classe::pendente)) + u" cadastros<br><br>"_s +
           u"<b>Valor total de contas pendentes:</b> R$ "_s +
           vb::format_money(soma.soma_de(analysis::classe::pendente)) + u"<br><br>"_s +
           u"<b>Total de contas concluídas cadastradas:</b> "_s + n(soma.n(analysis::classe::concluido)) +
           u" cadastros<br><br>"_s + u"<b>Valor total de contas concluidas:</b> R$ "_s +
           vb::format_money(soma.soma_de(analysis::classe::concluido)) + u"<br><br>"_s +
           u"<b>Total geral:</b> R$ "_s + vb::format_money(soma.total()) +
           (ultimo ? u"<br><br>"_s : u"<br><br><hr>"_s);
}

QString rodape_html() {
    return u"<hr><br> Gerado dia: "_s + long_date_hoje() + u"<br><br> Quintara<br> "_s + site_fabricante();
}

} // namespace

QString ler(const QString& chave, const QString& padrao) {
    return store::setting(store::secao_config, chave, padrao);
}

void gravar(const QString& chave, const QString& valor) {
    store::save_setting(store::secao_config, chave, valor);
}

QString caminho_anexo() {
    return store::program_path(u"\\"_s + arquivo_anexo);
}

QString site_fabricante() {
    return shell::site_base;
}

QString texto_tipo(tipo_ret t) {
    switch (t) {
    case tipo_ret::pendentes:
        return u"Pendentes"_s;
    case tipo_ret::concluidos:
        return u"Concluidos"_s;
    default:
        return u"Todos"_s;
    }
}

tipo_ret tipo_de(const QString& salvo) {
    if (salvo == u"Pendentes"_s) return tipo_ret::pendentes;
    if (salvo == u"Concluidos"_s) return tipo_ret::concluidos;
    return tipo_ret::todos;
}

QString campos_faltando(const pagina& p) {
    QString lista;
    if (vb::trim_blanks(p.servidor).isEmpty()) lista += u"Servidor "_s;
    if (vb::trim_blanks(p.nome).isEmpty()) lista += u"Seu Nome "_s;
    if (vb::trim_blanks(p.email).isEmpty()) lista += u"Seu E-mail "_s;
    return lista;
}

QString erro_envio(const pagina& p) {
    // one empty picker passes
    if (p.por_data && !p.inicio.isValid() && !p.fim.isValid())
        return u"A data inicial e a data final devem ser preenchidas!"_s;
    const QString faltando = campos_faltando(p);
    if (!faltando.isEmpty()) return u"Os campos "_s + faltando + u" devem ser preenchidos."_s;
    return {};
}

QString clausula_status(tipo_ret t) {
    switch (t) {
    case tipo_ret::pendentes:
        return u" WHERE estatus(like 'Pendente')"_s;
    case tipo_ret::concluidos:
        return u" WHERE estatus(like 'Concluído')"_s;
    default:
        return {};
    }
}

QString clausula_datas(bool por_data, const QDate& inicio, const QDate& fim) {
    if (!por_data) return {};
    return u" WHERE Data BETWEEN '"_s + vb::ymd(inicio) + u"' AND '"_s + vb::ymd(fim) + u"'"_s;
}

QString consulta(const QString& tabela, tipo_ret t, bool por_data, const QDate& inicio, const QDate& fim) {
    const QString status = clausula_status(t);
    const QString datas = clausula_datas(por_data, inicio, fim);
    const QString juncao = !status.isEmpty() && !datas.isEmpty() ? u" AND "_s : QString();
    return u"select * from "_s + tabela + status + juncao + datas;
}

void CarregarDadosRelatorio(QIODevice& arquivo, const pagina& p, tipo_ret t, const progresso& barra) {
    const ledger_info ledgers_[] = {{store::tabela::pagar, u"CONTAS A PAGAR"_s, false},
                                    {store::tabela::receber, u"CONTAS A RECEBER"_s, false},
                                    {store::tabela::bancario, u"MOVIMENTO BANCÁRIO"_s, true}};
    const bool marcados[] = {p.incluir.pagar, p.incluir.receber, p.incluir.bancario};
    for (int i = 0; i < 3; ++i)
        if (marcados[i]) escrever_ledger(arquivo, ledgers_[i], p, t, barra);
}

bool escrever_anexo(const QString& caminho, const pagina& p, tipo_ret t, const progresso& barra) {
    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    linha(f, u"RELATÓRIO ENVIADO POR E-MAIL"_s);
    linha(f, QString());
    CarregarDadosRelatorio(f, p, t, barra);
    linha(f, QString());
    linha(f, u"Gerado dia: "_s + long_date_hoje());
    linha(f, QString());
    linha(f, output::nome_relatorio());
    linha(f, site_fabricante());
    return f.error() == QFileDevice::NoError;
}

QString corpo_relatorio(const pagina& p, tipo_ret t, bool datas_est) {
    QString c = u"<p><font face='Verdana' style='font-size: 11pt'>"_s;
    c += u"<b>Olá </b>"_s + p.nome + u",<br><br>"_s;
    c += u"Segue em anexo o relatório que foi enviado pelo senhor através do software Quintara.<br><br> "
         u"Obrigado por utilizar nossos softwares!<br><br>"_s;
    c += u"Os dados no arquivo em anexo foram filtrados de acordo com a sua preferência, segue abaixo os "
         u"dados "
         u"filtrados:<br><br>"_s;
    if (datas_est)
        c += u"<b>Filtrados entre as datas:</b> "_s + vb::dmy(p.inicio) + u" e "_s + vb::dmy(p.fim) +
             u"<br>"_s;
    switch (t) {
    case tipo_ret::pendentes:
        c += u"<b>Filtrados por estatus:</b> Somente contas Pendentes<br>"_s;
        break;
    case tipo_ret::concluidos:
        c += u"<b>Filtrados por estatus:</b> Somente contas Concluídas<br>"_s;
        break;
    default:
        c += u"<b>Filtrados por estatus:</b> Todas as contas (concluídas e pendentes)<br>"_s;
    }
    c += u"<b>Dados incluídos:</b>"_s;
    if (p.incluir.pagar) c += u" Contas a pagar / "_s;
    if (p.incluir.receber) c += u"Contas a receber / "_s;
    if (p.incluir.bancario) c += u"Movimento bancario"_s;
    return c + rodape_html();
}

QString CarregarDadosEstatisticas(const pagina& p) {
    QString c;
    if (p.incluir.pagar) c += estatisticas_ledger(store::tabela::pagar, u"Contas a pagar"_s, p, false);
    if (p.incluir.receber) c += estatisticas_ledger(store::tabela::receber, u"Contas a receber"_s, p, false);
    if (p.incluir.bancario)
        c += estatisticas_ledger(store::tabela::bancario, u"Movimento bancario"_s, p, true);
    return c;
}

QString corpo_estatisticas(const pagina& p) {
    QString c =
        u"<p><font face='Verdana' style='font-size: 11pt'><b>Estatística enviada por e-mail</b><br><br>"_s;
    if (p.por_data)
        c += u"Filtrados entre as datas: "_s + vb::dmy(p.inicio) + u" e "_s + vb::dmy(p.fim) + u"<br><br>"_s;
    c += u"> Dados incluídos:<br><br>"_s;
    if (p.incluir.pagar) c += u"Contas a pagar<br>"_s;
    if (p.incluir.receber) c += u"Contas a receber<br>"_s;
    if (p.incluir.bancario) c += u"Movimento bancario<br>"_s;
    c += u"<br><br><hr>"_s;
    c += u"<b>Olá </b>"_s + p.nome + u",<br><br>Segue abaixo as estatísticas enviadas por você:<br><br>"_s;
    c += CarregarDadosEstatisticas(p);
    return c + rodape_html() + u"</font></p>"_s;
}

platform::mail_message mensagem(const pagina& p, const QString& assunto, const QString& corpo,
                                const QString& anexo) {
    platform::mail_message m;
    m.server = p.servidor;
    m.from = u"<"_s + p.email + u">"_s;
    m.to = m.from;
    m.subject = assunto;
    m.html_body = corpo;
    m.login = ler(chave::login, QString());
    m.password = ler(chave::senha, QString());
    m.attachment = anexo;
    return m;
}

} // namespace mail
