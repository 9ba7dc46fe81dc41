#include "shell/popup_menus.h"

#include "shell/list_actions.h"
#include "store/config.h"

#include <algorithm>

namespace shell {

namespace {

using k = popup_kind;

// One row of the twin ledger menus: the pagar entry and its receber twin. Submenus are named
// "<top menu>_<part>", so one row names both twins' submenu by its part.
struct twin_row {
    const char* part; // "" for the top menu itself
    k kind;
    const char* name_p;
    const char* caption_p;
    const char* target_p;
    const char* name_r;
    const char* caption_r;
    const char* target_r;
};

// clang-format off
const twin_row ledger_rows[] = {
    {"", k::routine, "popadicionarpagar", "Adicionar despesa", "adicionarpagar",
                     "popadicionarreceber", "Adicionar receita", "adicionarreceber"},
    {"", k::routine, "popmultiplos", "Adicionar despesas parceladas", "multiplospagar",
                     "popmultiplosreceber", "Adicionar receitas parceladas", "multiplosreceber"},
    {"", k::routine, "popalterarpagar", "Alterar despesa", "alterarpagar",
                     "popalterarreceber", "Alterar receita", "alterarreceber"},
    {"", k::routine, "popremoverpagar", "Remover despesa", "removerpagar",
                     "popremoverreceber", "Remover receita", "removerreceber"},
    {"", k::separator, "", "", "", "", "", ""},
    {"", k::routine, "popbaixapagar", "Efetuar baixa", "popbaixapagar",
                     "popbaixareceber", "Efetuar baixa", "popbaixareceber"},
    {"", k::routine, "mnpoprecebopagar", "Imprimir recibo", "recibopagar",
                     "popreciboreceber", "Imprimir recibo", "reciboreceber"},
    {"", k::separator, "", "", "", "", "", ""},
    {"", k::menu_item, "popadcentrocusto", "Cadastrar centro de custo", "mnucentrocusto",
                       "popadcentroluco", "Cadastrar centro de lucro", "mnucentrolucro"},
    {"", k::submenu, "visaogeral", "Visão geral", "", "visaogeral", "Visão geral", ""},
    {"visaogeral", k::menu_item, "mnudesppagar", "Gerenciamento de despesas", "mnugerendesp",
                                 "mnugenrec", "Gerenciamento de receitas", "mnugerenlucros"},
    {"visaogeral", k::menu_item, "mnuprojecaopagar", "Projeções e metas", "mnumetadesp",
                                 "mnumetarec", "Projeções e metas", "mnumetarec"},
    {"visaogeral", k::menu_item, "mnucomparapagar", "Comparativo de meses e anos", "mnucompdesp",
                                 "mnucomprec", "Comparativo de meses e anos", "mnucomprec"},
    {"visaogeral", k::menu_item, "pophistoricoforn", "Histórico financeiro do fornecedor", "mnufinforn",
                                 "pophistoricocli", "Histórico financeiro do cliente", "mnufincli"},
    {"visaogeral", k::menu_item, "mnuvermespagar", "Visualizar contas por mês", "mnuviscontmespagar",
                                 "mnuvermesrec", "Visualizar contas por mês", "mnuviscontmesreceber"},
    {"visaogeral", k::menu_item, "mnuvencpormespagar", "Visualizar vencimentos por mês", "mnuvisvencpagar",
                                 "mnuvenpormesrec", "Visualizar vencimentos por mês", "mnuvisvencreceber"},
    {"visaogeral", k::menu_item, "popvencpagar", "Vencimentos do mês e do dia", "mnuvencpagar",
                                 "popvencmesreceber", "Vencimentos do mês e do dia", "mnuvencreceber"},
    {"", k::menu_item, "mnuordemserv1", "Ordem de serviço", "mnuordemserv",
                       "mnuordemserv2", "Ordem de serviço", "mnuordemserv"},
    {"", k::separator, "", "", "", "", "", ""},
    {"", k::submenu, "relatorios", "Relatórios", "", "relatorios", "Relatórios", ""},
    {"relatorios", k::menu_item, "popretperpagar", "Contas a pagar", "mnuretpagar",
                                 "popretreceber", "Contas a receber", "mnuretreceber"},
    {"relatorios", k::menu_item, "popretdiapagar", "Despesas do dia", "mnuretdiadesp",
                                 "popretdiareceber", "Receitas do dia", "mnuretdialucros"},
    {"relatorios", k::menu_item, "popretmespagar", "Despesas do mês", "mnuretmesdespesas",
                                 "popmes", "Receitas do mês", "mnuretmeslucros"},
    {"relatorios", k::menu_item, "popretanopagar", "Despesas do ano", "mnuretanualdespesas",
                                 "popanoreceber", "Receitas do ano", "mnuretanolucros"},
    {"relatorios", k::menu_item, "popretforn", "Fornecedores", "mnuretfornecedor",
                                 "retcliente", "Clientes", "mnuretcliente"},
    {"relatorios", k::menu_item, "popretcentrocusto", "Centro de custo", "mnuretcentrocusto",
                                 "popretcentrolucro", "Centro de lucro", "mnuretcentrolucro"},
    {"", k::submenu, "graficos", "Gráficos", "", "graficos", "Gráficos", ""},
    {"graficos", k::menu_item, "popgrapagar", "Contas a pagar", "mnugrapagar",
                               "popgraficoreceber", "Contas a receber", "mnugrareceber"},
    {"graficos", k::menu_item, "popgradiapagar", "Despesas do dia", "mnugradiadesp",
                               "popgradiareceber", "Receitas do dia", "mnugralucrosdia"},
    // the main menu's month income item runs the statistics, and its twin here follows it
    {"graficos", k::menu_item, "popgramespagar", "Despesas do mês", "mnugradespmes",
                               "popgramesreceber", "Receitas do mês", "mnugralucrosmes"},
    {"graficos", k::menu_item, "popgranopagar", "Despesas do ano", "mnugraanualdesp",
                               "popgraanoreceber", "Receitas do ano", "mnugraabuallucros"},
    {"", k::submenu, "estatisticas", "Estatísticas", "", "estatisticas", "Estatísticas", ""},
    {"estatisticas", k::menu_item, "popestpagar", "Contas a pagar", "mnuestpagar",
                                   "popestreceber", "Contas a receber", "mnuestreceber"},
    {"estatisticas", k::menu_item, "popestdiapagar", "Despesas do dia", "mnuestdiadesp",
                                   "popestdiareceber", "Receitas do dia", "mnuestdialucros"},
    {"estatisticas", k::menu_item, "popestmespagar", "Despesas do mês", "mnuestmesdesp",
                                   "popestmesreceber", "Receitas do mês", "mnuestmeslucros"},
    {"estatisticas", k::menu_item, "popestanopagar", "Despesas do ano", "mnuestanualdesp",
                                   "popestanoreceber", "Receitas do ano", "mnuestanuallucros"},
    {"estatisticas", k::menu_item, "popestforn", "Fornecedores", "mnuestforn",
                                   "popestcliente", "Clientes", "mnuestcli"},
    {"estatisticas", k::menu_item, "popestcentrocusto", "Centros de custo", "mnuestplanopagar",
                                   "popestcentrolucro", "Centros de lucro", "mnuestplanoreceber"},
    {"", k::submenu, "visualizar", "Visualizar", "", "visualizar", "Visualizar", ""},
    {"visualizar", k::filter, "popvistodospagar", "Todos os dados", "Todos os dados",
                              "popvistodosreceber", "Todos os dados", "Todos os dados"},
    {"visualizar", k::filter, "popvisdiapagar", "Apenas do dia", "Apenas do dia",
                              "popvisdiareceber", "Apenas do dia", "Apenas do dia"},
    {"visualizar", k::filter, "popvis7pagar", "Últimos 7 dias", "Ultimos 7 dias",
                              "mnuvis7receber", "Últimos 7 dias", "Ultimos 7 dias"},
    {"visualizar", k::filter, "mnuvis15pagar", "Últimos 15 dias", "Ultimos 15 dias",
                              "mnuvis15receber", "Últimos 15 dias", "Ultimos 15 dias"},
    {"visualizar", k::filter, "popvismespagar", "Apenas deste mês", "Apenas deste mês",
                              "mnuvismesreceber", "Apenas deste mês", "Apenas deste mês"},
    {"visualizar", k::filter, "popvisanopagar", "Apenas deste ano", "Apenas deste ano",
                              "mnuvisanoreceber", "Apenas deste ano", "Apenas deste ano"},
    // two items only the receber menu has; they do nothing
    {"", k::none, nullptr, nullptr, nullptr, "popordem2", "Ordem dos dados", ""},
    {"", k::none, nullptr, nullptr, nullptr, "poporgreceber", "Organizar dados por", ""},
    {"", k::separator, "", "", "", "", "", ""},
    {"", k::menu_item, "popconfig1", "Configurações", "mnuconfigsoft",
                       "popconfig2", "Configurações", "mnuconfigsoft"},
};

struct plain_row {
    const char* menu;
    k kind;
    const char* name;
    const char* caption;
    const char* target;
};

const plain_row other_rows[] = {
    {"popmovimento", k::routine, "popadicionarmov", "Adicionar movimento", "adicionarmovimento"},
    {"popmovimento", k::routine, "popalterarmov", "Alterar movimento", "alterarmovimento"},
    {"popmovimento", k::routine, "popremovermov", "Remover movimento", "removermovimento"},
    {"popmovimento", k::separator, "", "", ""},
    {"popmovimento", k::menu_item, "popretbancario", "Relatório", "mnuretbancario"},
    {"popmovimento", k::menu_item, "popgraficobancario", "Gráfico", "mnugrabancario"},
    {"popmovimento", k::menu_item, "popestbancario", "Estatísticas", "mnuestbancario"},
    {"popmovimento", k::separator, "", "", ""},
    {"popmovimento", k::submenu, "popmovimento_ordem", "Ordem", ""},
    {"popmovimento_ordem", k::order, "popordemasc3", "Crescente", "ASC"},
    {"popmovimento_ordem", k::order, "popordemdesc3", "Decrescente", "DESC"},
    {"popmovimento", k::submenu, "popmovimento_organizar", "Organizar por", ""},
    {"popmovimento_organizar", k::order_clause, "poporgdatabancario", "Data", " Order by Data"},
    {"popmovimento_organizar", k::order_clause, "poporgtipobancario", "Tipo de movimento", " Order by movimento"},
    {"popmovimento_organizar", k::order_clause, "poporgorigembancario", "Conta origem", " Order by origem"},
    {"popmovimento_organizar", k::order_clause, "poporgdestinobancario", "Conta destino", " Order by destino"},
    {"popmovimento_organizar", k::order_clause, "poporgvalorbancario", "Valor", " Order by valor"},
    {"popmovimento_organizar", k::order_clause, "poporgestatusbancario", "Estatus", " Order by estatus"},
    {"popmovimento", k::submenu, "popmovimento_visualizar", "Visualizar", ""},
    {"popmovimento_visualizar", k::view, "popvistodosbancario", "Todos os dados (Padrão)", "0"},
    {"popmovimento_visualizar", k::view, "popvisanosbancario", "Apenas deste ano", "2"},
    {"popmovimento_visualizar", k::view, "popvismesbancario", "Apenas deste mês", "1"},
    {"popmovimento", k::separator, "", "", ""},
    {"popmovimento", k::menu_item, "popconfig3", "Configurações", "mnuconfigsoft"},

    {"popcaixa", k::routine, "popadicionarcaixa", "Adicionar banco ou caixa", "adicionarbanco"},
    {"popcaixa", k::routine, "popalterarcaixa", "Alterar banco ou caixa", "alterarbanco"},
    {"popcaixa", k::routine, "popremovercaixa", "Remover banco ou caixa", "removerbanco"},
    {"popcaixa", k::separator, "", "", ""},
    {"popcaixa", k::print_list, "mnuimprimirdados", "Imprimir dados", "lstcaixabanco"},
    {"popcaixa", k::separator, "", "", ""},
    {"popcaixa", k::menu_item, "mnuextrato", "Extrato bancário", "mnuextrato"},
    {"popcaixa", k::window, "mnuestbanco", "Estatísticas do banco", "frmdatabanco"},
    {"popcaixa", k::window, "mnusaldobanco", "Saldo por dia", "frmsaldodia"},
};
// clang-format on

QString text(const char* s) {
    return s ? QString::fromUtf8(s) : QString();
}

std::vector<popup_entry> build() {
    std::vector<popup_entry> out;
    for (const bool pagar : {true, false}) {
        const QString top = pagar ? QStringLiteral("poppagar") : QStringLiteral("popreceber");
        for (const twin_row& r : ledger_rows) {
            const char* name = pagar ? r.name_p : r.name_r;
            if (!name) continue; // the other twin has no such entry
            const QString part = text(r.part);
            popup_entry e;
            e.menu = part.isEmpty() ? top : top + QLatin1Char('_') + part;
            e.kind = r.kind;
            e.name = r.kind == k::submenu ? top + QLatin1Char('_') + text(name) : text(name);
            e.caption = text(pagar ? r.caption_p : r.caption_r);
            e.target = text(pagar ? r.target_p : r.target_r);
            out.push_back(std::move(e));
        }
    }
    for (const plain_row& r : other_rows)
        out.push_back({text(r.menu), text(r.name), text(r.caption), r.kind, text(r.target)});
    return out;
}

} // namespace

const std::vector<QString>& popup_menu_names() {
    static const std::vector<QString> names = {QStringLiteral("poppagar"), QStringLiteral("popreceber"),
                                               QStringLiteral("popmovimento"), QStringLiteral("popcaixa")};
    return names;
}

const std::vector<popup_entry>& popup_entries() {
    static const std::vector<popup_entry> entries = build();
    return entries;
}

QString top_menu_of(const popup_entry& e) {
    QString menu = e.menu;
    for (;;) {
        const auto& all = popup_entries();
        const auto it = std::find_if(all.begin(), all.end(), [&](const popup_entry& x) {
            return x.kind == popup_kind::submenu && x.name == menu;
        });
        if (it == all.end()) return menu;
        menu = it->menu;
    }
}

QString popup_action(const popup_entry& e) {
    switch (e.kind) {
    case k::routine:
    case k::menu_item:
    case k::window:
        return e.target;
    case k::print_list:
    case k::filter:
    case k::order:
    case k::order_clause:
    case k::view:
        return e.name;
    case k::submenu:
    case k::separator:
    case k::none:
        break;
    }
    return {};
}

namespace {
// Order is read as it is written; the view key is written with a small b and read with a capital
// one (settings keys ignore case, so both are the same setting).
const QString chave_ordem = QStringLiteral("Ordem");
const QString chave_visualizar_escrita = QStringLiteral("VisualizarDadosbancario");
const QString chave_visualizar_lida = QStringLiteral("VisualizarDadosBancario");
} // namespace

popup_effect effect_of(const popup_entry& e, const QDate& hoje) {
    popup_effect f;
    switch (e.kind) {
    case k::filter:
        f.filtro = e.target;
        f.recarregar = top_menu_of(e) == QLatin1String("poppagar") ? ledger::pagar : ledger::receber;
        break;
    case k::order:
        f.chave = chave_ordem;
        f.valor = e.target;
        f.marca = true;
        f.recarregar = ledger::bancario;
        break;
    case k::order_clause:
        f.ordem_bancario = e.target;
        f.recarregar = ledger::bancario;
        break;
    case k::view:
        f.chave = chave_visualizar_escrita;
        f.valor = e.target;
        f.marca = true;
        if (e.target == QLatin1String("2"))
            f.aviso = view_notice_year(hoje);
        else if (e.target == QLatin1String("1"))
            f.aviso = view_notice_month(hoje);
        break;
    default:
        break;
    }
    return f;
}

void apply_settings(const popup_effect& f) {
    if (!f.chave.isEmpty()) store::save_setting(store::secao_config, f.chave, f.valor);
    if (f.ordem_bancario) set_ordem_bancario(*f.ordem_bancario);
}

bool popup_checked(const popup_entry& e) {
    if (e.kind == k::order)
        return store::setting(store::secao_config, chave_ordem, QStringLiteral("ASC"))
                   .compare(e.target, Qt::CaseInsensitive) == 0;
    if (e.kind == k::view)
        return store::setting(store::secao_config, chave_visualizar_lida, QStringLiteral("0")) == e.target;
    return false;
}

} // namespace shell
