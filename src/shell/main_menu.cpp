#include "shell/main_menu.h"

#include <initializer_list>

namespace shell {

namespace {
menu_entry item(const char* parent, const char* name, const char* caption, bool checkable = false) {
    return {QString::fromUtf8(parent), QString::fromUtf8(name), QString::fromUtf8(caption), checkable};
}
menu_entry sep(const char* parent) {
    return {QString::fromUtf8(parent), QStringLiteral("-"), QString(), false};
}
} // namespace

const std::vector<menu_entry>& main_menu() {
    static const std::vector<menu_entry> menu = {
        item("", "mnuprincipal", "..:: Menu Principal"),
        item("mnuprincipal", "mnuclientes", "Cadastro de Clientes"),
        item("mnuprincipal", "mnufornecedores", "Cadastro de Fornecedores"),
        sep("mnuprincipal"),
        item("mnuprincipal", "mnucentrocusto", "Centro de custo"),
        item("mnuprincipal", "mnucentrolucro", "Centro de lucro"),
        sep("mnuprincipal"),
        item("mnuprincipal", "mnucomp", "Compromissos"),
        item("mnuprincipal", "mnugenlogin", "Gerenciador de login"),
        item("mnugenlogin", "mnulogininiciar", "Exibir menu de login ao inicar", true),
        item("mnugenlogin", "mnuconflogin", "Configurar usuários"),
        item("mnugenlogin", "mnubloquearsoft", "Bloquear software"),
        sep("mnuprincipal"),
        item("mnuprincipal", "mnucaddespesas", "Cadastar contas a pagar"),
        item("mnuprincipal", "mnucadrececeber", "Cadastrar contas a receber"),
        item("mnuprincipal", "mnucadbancario", "Cadastrar Movimento bancário"),
        item("mnuprincipal", "mnuimportarextrato", "Importar extrato (OFX/CSV)…"),
        item("mnuprincipal", "mnucadbancos", "Cadastrar bancos e caixa"),
        sep("mnuprincipal"),
        item("mnuprincipal", "mnusair", "Sair"),

        item("", "mnuexibir", "Exibir"),
        item("mnuexibir", "mnualertavenc", "Alertar sobre vencimentos", true),
        item("mnuexibir", "mnuatualizarsaldo", "Atualizar saldo automaticamente", true),
        item("mnuexibir", "mnudicadia", "Dica do dia", true),
        item("mnuexibir", "mnuiniciar", "Iniciar com o windows", true),
        item("mnuexibir", "mnuexibirprincipal", "Dados na página principal", true),
        sep("mnuexibir"),
        item("mnuexibir", "mnuconfigsoft", "Configurações"),

        item("", "mnuvisaogeral", "Visão geral"),
        item("mnuvisaogeral", "mnuvencimentos", "Vencimentos do mês e do dia"),
        item("mnuvencimentos", "mnuvencpagar", "Contas a pagar"),
        item("mnuvencimentos", "mnuvencreceber", "Contas a receber"),
        item("mnuvisaogeral", "mnumovdia", "Movimento do dia"),
        item("mnumovdia", "mnudiapagar", "Contas a pagar"),
        item("mnumovdia", "mnudiareceber", "Contas a receber"),
        item("mnumovdia", "mnudibancario", "Movimento bancário"),
        item("mnuvisaogeral", "mnumovmes", "Movimento do mês"),
        item("mnumovmes", "mnumespagar", "Contas a pagar"),
        item("mnumovmes", "mnumesreceber", "Contas a receber"),
        item("mnumovmes", "mnumesbancario", "Movimento bancário"),
        item("mnuvisaogeral", "mnumovanual", "Movimento anual"),
        item("mnumovanual", "mnuanualpagar", "Contas a pagar"),
        item("mnumovanual", "mnuanualreceber", "Contas a receber"),
        item("mnumovanual", "mnuanualbancario", "Movimento bancário"),
        sep("mnuvisaogeral"),
        item("mnuvisaogeral", "mnugerendesp", "Gerenciamento de despesas"),
        item("mnuvisaogeral", "mnugerenlucros", "Gerenciamento de receitas"),
        item("mnuvisaogeral", "mnulucrosdesp", "Relação lucros x despesas"),
        item("mnuvisaogeral", "mnucompmesesano", "Comparativo de meses e anos"),
        item("mnucompmesesano", "mnucompdesp", "Despesas"),
        item("mnucompmesesano", "mnucomprec", "Receitas"),
        item("mnuvisaogeral", "mnuprojecoes", "Projeções e metas"),
        item("mnuprojecoes", "mnumetadesp", "Despesas"),
        item("mnuprojecoes", "mnumetarec", "Receitas"),
        item("mnuvisaogeral", "mnufinanceiro", "Histórico financeiro"),
        item("mnufinanceiro", "mnufincli", "Clientes"),
        item("mnufinanceiro", "mnufinforn", "Fornecedores"),
        item("mnuvisaogeral", "mnuvismes", "Visualizar contas por mês"),
        item("mnuvismes", "mnuviscontmespagar", "Contas a pagar"),
        item("mnuvismes", "mnuviscontmesreceber", "Contas a receber"),
        item("mnuvisaogeral", "mnuvisvenc", "Visualizar vencimentos por mês"),
        item("mnuvisvenc", "mnuvisvencpagar", "Contas a pagar"),
        item("mnuvisvenc", "mnuvisvencreceber", "Contas a receber"),

        item("", "mnurelatorios", "Relatórios"),
        item("mnurelatorios", "mnuretint", "Relatório Integrado"),
        sep("mnurelatorios"),
        item("mnurelatorios", "mnuretpagar", "Contas a pagar"),
        item("mnurelatorios", "mnuretreceber", "Contas a receber"),
        item("mnurelatorios", "mnuretbancario", "Movimento bancário"),
        item("mnurelatorios", "mnuretconsolidado", "Movimento Consolidado"),
        item("mnuretconsolidado", "mnuretcentrocusto", "Centro de custo"),
        item("mnuretconsolidado", "mnuretcentrolucro", "Centro de lucro"),
        item("mnurelatorios", "mnuretmovdia", "Movimento do dia"),
        item("mnuretmovdia", "mnuretdiadesp", "Despesas"),
        item("mnuretmovdia", "mnuretdialucros", "Receitas"),
        item("mnuretmovdia", "mnuretdiabancario", "Movimento bancário"),
        item("mnurelatorios", "mnuretmovmes", "Movimento do mês"),
        item("mnuretmovmes", "mnuretmesdespesas", "Despesas"),
        item("mnuretmovmes", "mnuretmeslucros", "Receitas"),
        item("mnuretmovmes", "mnuretmesbancario", "Movimento bancário"),
        item("mnurelatorios", "mnuretmovanual", "Movimento anual"),
        item("mnuretmovanual", "mnuretanualdespesas", "Despesas"),
        item("mnuretmovanual", "mnuretanolucros", "Receitas"),
        item("mnuretmovanual", "mnuretanualbancario", "Movimento bancário"),
        sep("mnurelatorios"),
        item("mnurelatorios", "mnuextrato", "Extrato bancário"),
        item("mnurelatorios", "mnufluxo", "Fluxo de caixa"),
        item("mnufluxo", "mnuretfxgeral", "Geral"),
        item("mnufluxo", "mnuretfxpagar", "Contas a pagar"),
        item("mnufluxo", "mnuretfxreceber", "Contas a receber"),
        sep("mnurelatorios"),
        item("mnurelatorios", "mnuretcliente", "Clientes"),
        item("mnurelatorios", "mnuretfornecedor", "Fornecedores"),
        item("mnurelatorios", "mnuretcomp", "Compromissos"),
        item("mnuretcomp", "mnuretcompgeral", "Todos os compromissos"),
        item("mnuretcomp", "mnuretcompmes", "Compromissos do mês"),
        item("mnuretcomp", "mnuretcompdia", "Compromissos do dia"),

        item("", "mnugraficos", "Gráficos"),
        item("mnugraficos", "mnugrapagar", "Contas a pagar"),
        item("mnugraficos", "mnugrareceber", "Contas a receber"),
        item("mnugraficos", "mnugrabancario", "Movimento bancário"),
        item("mnugraficos", "mnugradesprec", "Despesas x Receitas"),
        sep("mnugraficos"),
        item("mnugraficos", "mnugramovdia", "Movimento do dia"),
        item("mnugramovdia", "mnugradiadesp", "Despesas"),
        item("mnugramovdia", "mnugralucrosdia", "Receitas"),
        item("mnugramovdia", "mnugrabancdia", "Movimento bancário"),
        item("mnugraficos", "mnugramovmes", "Movimento do mês"),
        item("mnugramovmes", "mnugradespmes", "Despesas"),
        item("mnugramovmes", "mnugralucrosmes", "Receitas"),
        item("mnugramovmes", "mnugrabancmes", "Movimento bancário"),
        item("mnugraficos", "mnugramovanual", "Movimento anual"),
        item("mnugramovanual", "mnugraanualdesp", "Despesas"),
        item("mnugramovanual", "mnugraabuallucros", "Receitas"),
        item("mnugramovanual", "mnugrabancarioanual", "Movimento bancário"),

        item("", "mnuestatisticas", "Estatísticas"),
        item("mnuestatisticas", "mnuestpagar", "Contas a pagar"),
        item("mnuestatisticas", "mnuestreceber", "Contas a receber"),
        item("mnuestatisticas", "mnuestbancario", "Movimento bancário"),
        item("mnuestatisticas", "mnuestcli", "Clientes"),
        item("mnuestatisticas", "mnuestforn", "Fornecedores"),
        sep("mnuestatisticas"),
        item("mnuestatisticas", "mnuestmovdia", "Movimento do dia"),
        item("mnuestmovdia", "mnuestdiadesp", "Despesas"),
        item("mnuestmovdia", "mnuestdialucros", "Receitas"),
        item("mnuestmovdia", "mnuestdiabancario", "Movimento bancário"),
        item("mnuestatisticas", "mnuestmovmes", "Movimento do mês"),
        item("mnuestmovmes", "mnuestmesdesp", "Despesas"),
        item("mnuestmovmes", "mnuestmeslucros", "Receitas"),
        item("mnuestmovmes", "mnuestmesbancario", "Movimento bancário"),
        item("mnuestatisticas", "mnuestmovanual", "Movimento anual"),
        item("mnuestmovanual", "mnuestanualdesp", "Despesas"),
        item("mnuestmovanual", "mnuestanuallucros", "Receitas"),
        item("mnuestmovanual", "mnuestanualbancario", "Movimento bancário"),
        item("mnuestatisticas", "mnuestplanopagar", "Centros de custo"),
        item("mnuestatisticas", "mnuestplanoreceber", "Centros de lucro"),
        sep("mnuestatisticas"),
        item("mnuestatisticas", "mnuestsoftware", "Estatísticas do software"),

        item("", "mnuviaemail", "Via e-mail"),
        item("mnuviaemail", "mnuretviaemail", "Relatórios"),
        item("mnuviaemail", "mnuestviaemail", "Estatísticas"),

        item("", "mnubackup", "Backup"),
        item("mnubackup", "mnurealizarbak", "Realizar backup"),
        item("mnubackup", "mnurestbak", "Restaurar backup"),

        item("", "mnuferramentas", "Ferramentas"),
        item("mnuferramentas", "mnuboleto", "Gerar Boleto bancario"),
        item("mnuferramentas", "mnuordemserv", "ORDEM DE SERVIÇO"),
        item("mnuferramentas", "mnucal", "Calendário"),
        sep("mnuferramentas"),
        item("mnuferramentas", "mnunotepad", "Bloco de notas"),
        item("mnuferramentas", "mnucalc", "Calculadora"),
        sep("mnuferramentas"),
        item("mnuferramentas", "mnujurosdesc", "Juros e desconto"),
        item("mnuferramentas", "mnujurosparcelas", "Juros parcelados"),

        item("", "mnusobre", "Sobre"),
        item("mnusobre", "mnumostrardicadia", "Mostrar dica do dia"),
        sep("mnusobre"),
        item("mnusobre", "mnusoftware", "O software"),
        item("mnusobre", "mnumanual", "Manual do software"),
        item("mnusobre", "mnusuporte", "Suporte Técnico"),
        item("mnusobre", "mnucontato", "Fale Conosco"),
        item("mnusobre", "mnuopiniao", "Boletim Informativo (Newsletter)"),
        item("mnusobre", "mnuvelmora", "Visite nosso site"),
    };
    return menu;
}

const std::vector<toolbar_entry>& main_toolbar() {
    auto e = [](const char* key, const char* caption, const char* item, const char* dropdown = "") {
        return toolbar_entry{QString::fromUtf8(key), QString::fromUtf8(caption), QString::fromUtf8(item),
                             QString::fromUtf8(dropdown)};
    };
    static const std::vector<toolbar_entry> bar = {
        e("clientes", "Clientes", "mnuclientes"),
        e("fornecedores", "Fornecedores", "mnufornecedores"),
        e("comp", "Compromissos", "mnucomp"),
        e("relatorios", "Relatórios", ""),
        e("retpagar", "Contas a pagar", "mnuretpagar", "relatorios"),
        e("retreceber", "Contas a receber", "mnuretreceber", "relatorios"),
        e("retbancario", "Movimento bancário", "mnuretbancario", "relatorios"),
        e("retclientes", "Clientes", "mnuretcliente", "relatorios"),
        e("retfornecedores", "Fornecedores", "mnuretfornecedor", "relatorios"),
        e("graficos", "Gráficos", ""),
        e("grapagar", "Contas a pagar", "mnugrapagar", "graficos"),
        e("grareceber", "Contas a receber", "mnugrareceber", "graficos"),
        e("grabancario", "Movimento bancário", "mnugrabancario", "graficos"),
        e("estatisticas", "Estatísticas", ""),
        e("estpagar", "Contas a pagar", "mnuestpagar", "estatisticas"),
        e("estreceber", "Contas a receber", "mnuestreceber", "estatisticas"),
        e("estbancario", "Movimento bancário", "mnuestbancario", "estatisticas"),
        e("manual", "Manual", "mnumanual"),
        e("sobre", "Sobre", "mnusoftware"),
        e("sair", "Sair", "mnusair"),
    };
    return bar;
}

QString icon_of(const QString& name) {
    static const struct {
        const char* icon;
        std::initializer_list<const char*> names;
    } icons[] = {
        {"system-users", {"clientes", "mnuclientes", "mnuconflogin"}},
        {"x-office-address-book", {"fornecedores", "mnufornecedores"}},
        {"x-office-calendar", {"comp", "mnucomp", "mnucal"}},
        {"x-office-document", {"relatorios", "mnuretint"}},
        {"x-office-presentation", {"graficos"}},
        {"x-office-spreadsheet", {"estatisticas", "mnuestsoftware"}},
        {"help-contents", {"manual", "mnumanual"}},
        {"help-about", {"sobre", "mnusoftware"}},
        {"dialog-information", {"mnumostrardicadia"}},
        {"application-exit", {"sair", "mnusair"}},
        {"list-add",
         {"mnucaddespesas", "mnucadrececeber", "mnucadbancario", "mnucadbancos", "cmdadicionard",
          "cmdadicionarr", "cmdadicionarm", "cmdadicionarb"}},
        {"document-properties", {"cmdalterard", "cmdalterarr", "cmdalterarm", "cmdalterarb"}},
        {"list-remove", {"cmdremoverd", "cmdremoverr", "cmdremoverm", "cmdremoverb"}},
        {"document-print", {"cmdrecibod", "cmdrecibor"}},
        {"preferences-system", {"mnuconfigsoft", "cmdconfbanc"}},
        {"system-lock-screen", {"mnubloquearsoft"}},
        {"document-save", {"mnurealizarbak"}},
        {"document-open", {"mnurestbak"}},
        {"accessories-calculator", {"mnucalc", "mnujurosdesc", "mnujurosparcelas"}},
        {"accessories-text-editor", {"mnunotepad"}},
        {"mail-send", {"mnuretviaemail", "mnuestviaemail"}},
    };
    for (const auto& i : icons)
        for (const char* n : i.names)
            if (name == QLatin1String(n)) return QString::fromLatin1(i.icon);
    return {};
}

QString maker_page(const QString& menu_item) {
    static const struct {
        const char* item;
        const char* path;
    } pages[] = {{"mnusoftware", "/produtos/quintara"}, {"mnumanual", "/produtos/quintara/manual.aspx"},
                 {"mnusuporte", "/suporte.aspx"},       {"mnucontato", "/contato.aspx"},
                 {"mnuopiniao", "/newsletter.aspx"},    {"mnuvelmora", "/"}};
    for (const auto& p : pages)
        if (menu_item == QLatin1String(p.item)) return site_base + QLatin1String(p.path);
    return {};
}

} // namespace shell
