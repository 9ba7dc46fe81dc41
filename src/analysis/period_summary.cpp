#include "analysis/period_summary.h"

#include "platform/errors.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "shell/list_actions.h"
#include "store/conexao.h"
#include "store/config.h"

namespace analysis {

namespace {

using shell::ledger;
constexpr ledger P = ledger::pagar;
constexpr ledger R = ledger::receber;
constexpr ledger B = ledger::bancario;
constexpr periodo dia = periodo::dia;
constexpr periodo mes = periodo::mes;
constexpr periodo ano = periodo::ano;
constexpr periodo tudo = periodo::tudo;

// Second lines of the totals.
const char* const l2_mov_p = "Total de despesas: R$ {T}  -  Total pago: R$ {P}  -  Total pendente: R$ {D}";
const char* const l2_mov_b =
    "Total de movimento bancario: R$ {T}  -  Total concluído: R$ {P}  -  Total pendente: R$ {D}";
const char* const l2_mov_b_ano =
    "Total de movimento bancário: R$ {T}  -  Total concluído: R$ {P}  -  Total pendente: R$ {D}";
const char* const l2_ret_p = "Total de despesas: R$ {T} - Total pago: R$ {P} - Total pendente: R$ {D}";
const char* const l2_ret_r = "Total de receitas: R$ {T} - Total recebido: R$ {P} - Total pendente: R$ {D}";
const char* const l2_ret_b = "Valor total: R$ {T} - Total concluido: R$ {P} - Total pendente: R$ {D}";

const char* const sd_dia = "Não há dados cadastrados com a data de hoje!";
const char* const sd_neste_mes = "Não há dados cadastrados neste mês!";
const char* const sd_mes = "Não há dados cadastrados este mês!";
const char* const sd_ano = "Não há dados cadastrados este ano!";
// the all-time statistics of an empty ledger
const char* const sd_tudo = "Não há dados cadastrados!";

struct linha {
    const char* nome;
    ledger t;
    periodo p;
    vista v;
    const char* prefixo;
    const char* sufixo;
    bool ordem;
    const char* caption;
    const char* titulo;
    const char* periodo_;
    const char* totais1;
    const char* totais2;
    const char* sem_dados;
    rotulos palavras;
    bool quantidade;
};

constexpr vista MOV = vista::movimento;
constexpr vista REL = vista::relatorio;
constexpr vista GRA = vista::grafico;
constexpr vista EST = vista::estatistica;
constexpr rotulos nenhum = rotulos::nenhum;
constexpr rotulos rec = rotulos::receitas;
constexpr rotulos ban = rotulos::bancario;

const char* const per_mov_dia = "Dados cadastrados: {LONGDATE} até {LONGTIME}";
const char* const per_mov_mes = "Dados cadastrados neste mês: {MES} de {ANO} até hoje: {DMY}";
const char* const per_mov_ano = "Dados cadastrados neste ano: {ANO} até hoje: {DMY} às {LONGTIME}";
const char* const tot_mov_dia = "Total de cadastros hoje ({DMY}) {N} cadastros \r\n";
const char* const tot_mov_mes = "Total de cadastros neste mês ({MES}) {N} cadastros \r\n";
const char* const tot_mov_ano = "Total de cadastros neste ano ({ANO}) {N} cadastros \r\n";
const char* const per_ret_dia = "Dados cadastrados: {LONGDATE} até {LONGTIME}";
const char* const per_ret_mes = "Dados cadastrados no mês de: {MES} de {ANO} até hoje: {DMY}";
const char* const per_ret_ano = "Dados cadastrados no ano de: {ANO} até hoje: {DMY} às {LONGTIME}";
const char* const tot_ret_dia = "Total de cadastros ({DMY}): {N}\r\n";
const char* const tot_ret_mes = "Total de cadastros no mês de ({MES} de {ANO}): {N}\r\n";
const char* const tot_ret_ano = "Total de cadastros no ano de ({ANO}): {N}\r\n";

// clang-format off
const linha tabela[] = {
    // movement view (frmmovimento); the receber members keep the pagar words of the totals
    {"mnudiapagar", P, dia, MOV, "SELECT * FROM pagar where (data like '", "')", true,
     "Movimento do dia de contas a pagar", "Carregando contas a pagar", per_mov_dia, tot_mov_dia, l2_mov_p, "", nenhum, false},
    {"mnudiareceber", R, dia, MOV, "SELECT * FROM receber where (data like '", "')", true,
     "Movimento do dia de contas a receber", "Carregando contas a receber", per_mov_dia, tot_mov_dia, l2_mov_p, "", nenhum, false},
    {"mnudibancario", B, dia, MOV, "SELECT * FROM bancario where (data like '", "')", true,
     "Movimento do dia de movimento bancario", "Carregando movimento bancario", per_mov_dia, tot_mov_dia, l2_mov_b, "", nenhum, false},
    {"mnumespagar", P, mes, MOV, "SELECT * FROM pagar where(Data like '%", "/%')", true,
     "Movimento do mês de contas a pagar", "Carregando contas a pagar", per_mov_mes, tot_mov_mes, l2_mov_p, "", nenhum, false},
    {"mnumesreceber", R, mes, MOV, "SELECT * FROM receber where(Data like '%", "/%')", true,
     "Movimento do mês de contas a receber", "Carregando contas a receber", per_mov_mes, tot_mov_mes, l2_mov_p, "", nenhum, false},
    {"mnumesbancario", B, mes, MOV, "SELECT * FROM bancario where(data like '%", "/%')", true,
     "Movimento do mês - bancario", "Carregando movimento bancario", per_mov_mes, tot_mov_mes, l2_mov_b, "", nenhum, false},
    {"mnuanualpagar", P, ano, MOV, "SELECT * FROM pagar where(data like '%", "%')", true,
     "Movimento do ano de contas a pagar", "Carregando contas a pagar", per_mov_ano, tot_mov_ano, l2_mov_p, "", nenhum, false},
    {"mnuanualreceber", R, ano, MOV, "SELECT * FROM receber where(data like '%", "%')", true,
     "Movimento do ano de contas a receber", "Carregando contas a receber", per_mov_ano, tot_mov_ano, l2_mov_p, "", nenhum, false},
    // the bank year movement shows no loading words and writes no period line
    {"mnuanualbancario", B, ano, MOV, "SELECT * FROM bancario where(data like '%", "%')", true,
     "Movimento anual - bancário", "", "", tot_mov_ano, l2_mov_b_ano, "", nenhum, false},

    // report view (frmrelatorio)
    {"mnuretdiadesp", P, dia, REL, "SELECT * FROM pagar where data like '", "'", true,
     "Relatório de movimento do dia (despesas)", "", per_ret_dia, tot_ret_dia, l2_ret_p, sd_dia, nenhum, false},
    {"mnuretdialucros", R, dia, REL, "SELECT * FROM receber where data like '", "'", true,
     "Relatório de movimento do dia (lucros)", "", per_ret_dia, tot_ret_dia, l2_ret_r, sd_dia, nenhum, false},
    {"mnuretdiabancario", B, dia, REL, "SELECT * FROM bancario where data like '", "'", true,
     "Relatório de movimento do dia (bancário)", "", per_ret_dia, tot_ret_dia, l2_ret_b, sd_dia, nenhum, false},
    {"mnuretmesdespesas", P, mes, REL, "SELECT * FROM pagar where (Data like '%", "/%')", true,
     "Relatório de movimento mensal (despesas)", "", per_ret_mes, tot_ret_mes, l2_ret_p, sd_neste_mes, nenhum, false},
    {"mnuretmeslucros", R, mes, REL, "SELECT * FROM receber where (Data like '%", "/%')", true,
     "Relatório de movimento mensal (lucros)", "", per_ret_mes, tot_ret_mes, l2_ret_r, sd_neste_mes, nenhum, false},
    // the month bank report keeps "dia" in its caption
    {"mnuretmesbancario", B, mes, REL, "SELECT * FROM bancario where (Data like '%", "/%')", true,
     "Relatório de movimento do dia (bancário)", "", per_ret_mes, tot_ret_mes, l2_ret_b, sd_mes, nenhum, false},
    {"mnuretanualdespesas", P, ano, REL, "SELECT * FROM pagar where(data like '%", "%')", true,
     "Relatório de movimento anual (despesas)", "", per_ret_ano, tot_ret_ano, l2_ret_p, sd_ano, nenhum, false},
    {"mnuretanolucros", R, ano, REL, "SELECT * FROM receber where(data like '%", "%')", true,
     "Relatório de movimento anual (lucros)", "", per_ret_ano, tot_ret_ano, l2_ret_r, sd_ano, nenhum, false},
    // no wildcard: it finds only a date text that is the bare year, so it ends in its message
    {"mnuretanualbancario", B, ano, REL, "SELECT * FROM bancario where data like '", "'", true,
     "Relatório de movimento anual (bancário)", "", per_ret_ano, "Total de cadastros neste ano ({ANO}): {N}\r\n",
     l2_ret_b, "nenhum dado cadastrado com a data de hoje", nenhum, false},

    // chart view (frmgrafico): the order clause on pagar only
    {"mnugradiadesp", P, dia, GRA, "SELECT * FROM pagar where data like '", "'", true,
     "Gráfico de movimento do dia (despesas)", "Movimento do dia (despesas)", "", "", "", sd_dia, nenhum, false},
    {"mnugralucrosdia", R, dia, GRA, "SELECT * FROM receber where data like '", "'", false,
     "Gráfico de movimento do dia (lucros)", "Movimento do dia (lucros)", "", "", "", sd_dia, rec, false},
    {"mnugrabancdia", B, dia, GRA, "SELECT * FROM bancario where data like '", "'", false,
     "Gráfico de movimento do dia (bancário)", "Movimento do dia (bancário)", "", "", "", sd_dia, ban, false},
    {"mnugradespmes", P, mes, GRA, "SELECT * FROM pagar where(Data like '%", "/%')", true,
     "Gráfico de movimento do mês (despesas)", "Movimento do mês (despesas)", "", "", "", sd_mes, nenhum, false},
    {"mnugralucrosmes", R, mes, GRA, "SELECT * FROM receber where(Data like '%", "/%')", false,
     "Gráfico de movimento do mês (lucros)", "Movimento do mês (lucros)", "", "", "", sd_mes, rec, false},
    {"mnugrabancmes", B, mes, GRA, "SELECT * FROM bancario where(Data like '%", "/%')", false,
     "Gráfico de movimento do mês (bancário)", "Movimento do mês (bancário)", "", "", "", sd_mes, ban, false},
    {"mnugraanualdesp", P, ano, GRA, "SELECT * FROM pagar where (data like '%", "%')", true,
     "Gráfico de movimento anual (despesas)", "Movimento anual (despesas)", "", "", "", sd_ano, nenhum, false},
    // the year income members speak of "este mês"
    {"mnugraabuallucros", R, ano, GRA, "SELECT * FROM receber where(data like '%", "%')", false,
     "Gráfico de movimento do ano (lucros)", "Movimento do ano (lucros)", "", "", "", sd_mes, rec, false},
    {"mnugrabancarioanual", B, ano, GRA, "SELECT * FROM bancario where(data like '%", "%')", false,
     "Gráfico de movimento anual (bancário)", "Movimento anual (bancário)", "", "", "", sd_ano, ban, false},

    // statistics view (frmestatisticas)
    {"mnuestdiadesp", P, dia, EST, "SELECT * FROM pagar where (data like '", "')", false,
     "Estatistica de movimento do dia(despesas)", "", "", "", "", sd_dia, nenhum, false},
    {"mnuestdialucros", R, dia, EST, "SELECT * FROM receber where (data like '", "')", false,
     "Estatistica de movimento do dia(lucros)", "", "", "", "", sd_dia, rec, false},
    {"mnuestdiabancario", B, dia, EST, "SELECT * FROM bancario where data like '", "'", false,
     "Estatistica de movimento do dia(bancário)", "", "", "", "", sd_dia, ban, false},
    {"mnuestmesdesp", P, mes, EST, "SELECT * FROM pagar where (Data like '%", "/%')", true,
     "Estatistica de movimento do mês(despesas)", "", "", "", "", sd_mes, nenhum, false},
    {"mnuestmeslucros", R, mes, EST, "SELECT * FROM receber where (Data like '%", "/%')", false,
     "Estatistica de movimento do mês(lucros)", "", "", "", "", sd_mes, rec, false},
    // the month bank statistics reads its own table in the pagar shape and writes no label words
    {"mnuestmesbancario", B, mes, EST, "SELECT * FROM bancario where (Data like '%", "/%')", false,
     "Estatistica de movimento do mês(bancário)", "", "", "", "", sd_mes, nenhum, false},
    {"mnuestanualdesp", P, ano, EST, "SELECT * FROM pagar where(data like '%", "%')", false,
     "Estatistica de movimento anual(despesas)", "", "", "", "", sd_ano, nenhum, false},
    {"mnuestanuallucros", R, ano, EST, "SELECT * FROM receber where(data like '%", "%')", false,
     "Estatistica de movimento anual(lucros)", "", "", "", "", sd_mes, rec, false},
    {"mnuestanualbancario", B, ano, EST, "SELECT * FROM bancario where(data like '%", "%')", false,
     "Estatistica de movimento anual(bancário)", "", "", "", "", sd_ano, ban, false},

    // all-time statistics
    {"mnuestpagar", P, tudo, EST, "SELECT * FROM pagar", "", false,
     "Estatistica de contas a pagar", "", "", "", "", sd_tudo, nenhum, true},
    {"mnuestreceber", R, tudo, EST, "SELECT * FROM receber", "", false,
     "Estatistica de contas a receber", "", "", "", "", sd_tudo, rec, true},
    {"mnuestbancario", B, tudo, EST, "SELECT * FROM bancario", "", false,
     "Estatistica de movimento bancário", "", "", "", "", sd_tudo, ban, true},
};
// clang-format on

QString u(const char* s) {
    return QString::fromUtf8(s);
}

QString ordem_entradas_atual;

QString com_espaco(const QString& s) {
    QString out;
    out.reserve(s.size() + 1);
    out.append(s).append(QLatin1Char(' '));
    return out;
}

// A field by index, empty when the statement did not bring the column.
inline QString campo(const sql::recordset& rs, int i) {
    return i < 0 ? QString() : rs.text(i);
}

} // namespace

const std::vector<membro>& membros() {
    static const std::vector<membro> todos = [] {
        std::vector<membro> out;
        for (const linha& l : tabela)
            out.push_back({u(l.nome), l.t, l.p, l.v, u(l.prefixo), u(l.sufixo), l.ordem, u(l.caption),
                           u(l.titulo), u(l.periodo_), u(l.totais1) + u(l.totais2), u(l.sem_dados),
                           l.palavras, l.quantidade});
        return out;
    }();
    return todos;
}

const membro* achar_membro(const QString& nome) {
    for (const membro& m : membros())
        if (m.nome == nome) return &m;
    return nullptr;
}

const membro* membro_do_menu(const QString& item) {
    if (item == QLatin1String("mnugralucrosmes")) return achar_membro(QStringLiteral("mnuestmeslucros"));
    return achar_membro(item);
}

QString direcao() {
    return store::setting(store::secao_config, QStringLiteral("Ordem"), QStringLiteral("ASC"));
}

QString clausula_ordem(ledger tabela) {
    static const QString padrao = QStringLiteral(" order by Data");
    if (tabela == ledger::bancario) {
        if (shell::ordem_bancario().isEmpty()) shell::set_ordem_bancario(padrao);
        return shell::ordem_bancario();
    }
    if (ordem_entradas_atual.isEmpty()) ordem_entradas_atual = padrao;
    return ordem_entradas_atual;
}

void set_ordem_entradas(const QString& clausula) {
    ordem_entradas_atual = clausula;
}

QString consulta(const membro& m, const QDate& hoje) {
    QString s = m.prefixo + valor_periodo(m.p, hoje) + m.sufixo;
    if (m.ordem) s += clausula_ordem(m.tabela) + QLatin1Char(' ') + direcao();
    return s;
}

lista_lida ler_lista(const membro& m, const QString& consulta, const std::function<void(long)>& antes,
                     const std::function<void(long)>& a_cada) {
    lista_lida out;
    sql::recordset rs;
    bool aberta = false;
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(consulta, store::conexao);
        aberta = true;
    });
    if (!aberta) return out;
    const long n = rs.record_count();
    if (n == 0) return out;
    out.vazio = false;
    if (antes) antes(n);
    const bool mov = m.v == vista::movimento;
    const auto f = [mov](const QString& s) { return mov ? com_espaco(s) : s; };
    out.linhas.reserve(std::size_t(n));
    using namespace store;
    const int i_data = rs.index_of(coluna::data);
    const int i_valor = rs.index_of(coluna::valor);
    const int i_estatus = rs.index_of(coluna::estatus);
    const int i_origem = rs.index_of(coluna::origem);
    const int i_info = rs.index_of(coluna::informacoes);
    if (m.tabela == ledger::bancario) {
        const int i_mov = rs.index_of(coluna::movimento);
        const int i_destino = rs.index_of(coluna::destino);
        long i = 0;
        for (rs.move_first(); !rs.eof(); rs.move_next()) {
            if (a_cada) a_cada(++i);
            const QString valor = campo(rs, i_valor);
            const auto v = valor_formatado(valor);
            const QString estatus = campo(rs, i_estatus);
            QStringList r;
            r.reserve(7);
            r << f(shell::display_date(campo(rs, i_data))) << f(campo(rs, i_mov)) << f(campo(rs, i_origem))
              << f(campo(rs, i_destino)) << f(QStringLiteral("R$ ") + (v ? vb::format_money(*v) : valor))
              << f(estatus);
            if (mov) r << f(campo(rs, i_info));
            out.tally.add(estatus, v, valor);
            out.linhas.push_back(std::move(r));
        }
        return out;
    }
    const int i_desc = rs.index_of(coluna::descricao);
    const int i_doc = rs.index_of(coluna::documento);
    const int i_contato = rs.index_of(m.tabela == ledger::receber ? coluna::cliente : coluna::fornecedor);
    const int i_venc = rs.index_of(coluna::vencimento);
    const int i_moeda = rs.index_of(coluna::moeda);
    long i = 0;
    for (rs.move_first(); !rs.eof(); rs.move_next()) {
        if (a_cada) a_cada(++i);
        const QString valor = campo(rs, i_valor);
        const auto v = valor_formatado(valor);
        const QString estatus = campo(rs, i_estatus);
        QStringList r;
        r.reserve(9);
        r << f(shell::display_date(campo(rs, i_data))) << f(campo(rs, i_desc)) << f(campo(rs, i_doc))
          << f(campo(rs, i_contato)) << f(shell::display_date(campo(rs, i_venc)))
          << f(campo(rs, i_moeda) + QLatin1Char(' ') + (v ? vb::format_money(*v) : valor)) << f(estatus)
          << f(campo(rs, i_origem)) << f(campo(rs, i_info));
        out.tally.add(estatus, v, valor);
        out.linhas.push_back(std::move(r));
    }
    return out;
}

QString preencher_modelo(const QString& modelo, const status_tally& t, const QDateTime& agora) {
    if (!modelo.contains(QLatin1Char('{'))) return modelo;
    const QDate hoje = agora.date();
    const std::pair<const char*, QString> valores[] = {
        {"{N}", QString::number(t.n())},
        {"{T}", t.texto_total()},
        {"{P}", t.texto(classe::concluido)},
        {"{D}", t.texto(classe::pendente)},
        {"{DMY}", vb::dmy(hoje)},
        {"{LONGDATE}", vb::long_date(hoje)},
        {"{LONGTIME}", vb::long_time(agora.time())},
        {"{MES}", vb::format_date(hoje, QStringLiteral("mmmm"))},
        {"{ANO}", texto_ano(hoje)},
    };
    QString s = modelo;
    for (const auto& [chave, valor] : valores)
        s.replace(QLatin1String(chave), valor);
    return s;
}

QString linha_periodo(const membro& m, const QDateTime& agora) {
    return preencher_modelo(m.linha_periodo, status_tally(), agora);
}

QString linha_totais(const membro& m, const status_tally& t, const QDateTime& agora) {
    return preencher_modelo(m.linha_totais, t, agora);
}

QString linha_sem_dados(ledger tabela) {
    if (tabela == ledger::bancario)
        return QStringLiteral(
            "0 cadastros  -  Total de movimento: 0  -  Total Conluido: 0  -  Total pendente: 0");
    return QStringLiteral("0 cadastros  -  Total de despesas: 0  -  Total pago: 0  -  Total pendente: 0");
}

QString tipo_relatorio(ledger tabela) {
    switch (tabela) {
    case ledger::pagar:
        return QStringLiteral("CONTAS A PAGAR");
    case ledger::receber:
        return QStringLiteral("CONTAS A RECEBER");
    case ledger::bancario:
        break;
    }
    return QStringLiteral("MOVIMENTO BANCARIO");
}

figuras figuras_de(const status_tally& t) {
    // counts go through Val as the old labels and chart cells read them
    const auto contagem = [](long n) { return vb::val(QString::number(n)); };
    const auto cadastros = [&](long n) { return vb::cstr(contagem(n)) + QStringLiteral(" cadastros"); };
    const auto reais = [](const QString& s) { return QStringLiteral("R$ ") + s; };
    figuras f;
    f.lbltotalcad = cadastros(t.n());
    f.lblqtdpen = cadastros(t.n(classe::pendente));
    f.lbltotalpen = reais(t.texto(classe::pendente));
    f.lbltotalpg = reais(t.texto(classe::concluido));
    f.lblqtdpg = cadastros(t.n(classe::concluido));
    f.lbltotal = reais(t.texto_total());
    f.colunas = {contagem(t.n()), contagem(t.n(classe::pendente)), contagem(t.n(classe::concluido))};
    return f;
}

contagem contar(const QString& consulta) {
    contagem out;
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(consulta, store::conexao);
        if (rs.record_count() == 0) return;
        out.vazio = false;
        const int i_valor = rs.index_of(store::coluna::valor);
        const int i_estatus = rs.index_of(store::coluna::estatus);
        for (rs.move_first(); !rs.eof(); rs.move_next())
            out.tally.add(campo(rs, i_estatus), campo(rs, i_valor));
    });
    return out;
}

std::array<QString, 6> rotulos_despesas(bool quantidade) {
    const QString q = quantidade ? QStringLiteral("Quantidade de ") : QStringLiteral("Qtd de ");
    return {QStringLiteral("Total de despesas cadastradas:"),
            QStringLiteral("Total de despesas:"),
            QStringLiteral("Total de despesas pagas:"),
            q + QStringLiteral("despesas pagas cadastradas:"),
            QStringLiteral("Total de despesas pendentes:"),
            q + QStringLiteral("despesas pendentes cadastradas:")};
}

std::optional<std::array<QString, 6>> rotulos_de(rotulos r, bool quantidade) {
    const QString q = quantidade ? QStringLiteral("Quantidade de ") : QStringLiteral("Qtd de ");
    switch (r) {
    case rotulos::nenhum:
        break;
    case rotulos::receitas:
        return std::array<QString, 6>{QStringLiteral("Total de receitas cadastradas:"),
                                      QStringLiteral("Total de receitas:"),
                                      QStringLiteral("Total de receitas recebidas:"),
                                      q + QStringLiteral("receitas recebidas cadastradas:"),
                                      QStringLiteral("Total de receitas pendentes:"),
                                      q + QStringLiteral("receitas pendentes cadastradas:")};
    case rotulos::bancario:
        return std::array<QString, 6>{
            QStringLiteral("Total de cadastradas:"), QStringLiteral("Valor Total:"),
            QStringLiteral("Total de concluidos:"),  q + QStringLiteral("concluidos cadastradas:"),
            QStringLiteral("Total de pendentes:"),   q + QStringLiteral("pendentes cadastradas:")};
    }
    return std::nullopt;
}

} // namespace analysis
