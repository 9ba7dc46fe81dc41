// The main window's actions: one table (shell::action_table) says what each menu item, toolbar
// button, pop-up item and button runs and whether it is enabled; the controls are bound to their
// action once. Also the actions on a row of the four lists: removal and settling.
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/shell.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/combo_text.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/key_actions.h"
#include "platform/widgets/list_view.h"
#include "shell/list_actions.h"
#include "shell/list_keys.h"
#include "shell/main_menu.h"
#include "shell/popup_menus.h"
#include "shell/ui/frmdica.h"
#include "shell/ui/frmprincipal.h"
#include "shell/ui/ledger_list.h"
#include "store/conexao.h"
#include "store/config.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>

using shell::ledger;
using shell::popup_entry;
using shell::popup_kind;

namespace {

// The routines of this window that menus, pop-ups and buttons run by name. The receipt is not
// among them: its window registers it, and this window only says which row it reads.
const struct {
    const char* nome;
    void (frmprincipal::*rotina)();
} rotinas[] = {
    {"adicionarpagar", &frmprincipal::adicionarpagar},
    {"adicionarreceber", &frmprincipal::adicionarreceber},
    {"adicionarmovimento", &frmprincipal::adicionarmovimento},
    {"adicionarbanco", &frmprincipal::adicionarbanco},
    {"alterarpagar", &frmprincipal::alterarpagar},
    {"alterarreceber", &frmprincipal::alterarreceber},
    {"alterarmovimento", &frmprincipal::alterarmovimento},
    {"alterarbanco", &frmprincipal::alterarbanco},
    {"removerpagar", &frmprincipal::removerpagar},
    {"removerreceber", &frmprincipal::removerreceber},
    {"removermovimento", &frmprincipal::removermovimento},
    {"removerbanco", &frmprincipal::removerbanco},
    {"popbaixapagar", &frmprincipal::popbaixapagar},
    {"popbaixareceber", &frmprincipal::popbaixareceber},
    {"multiplospagar", &frmprincipal::multiplospagar},
    {"multiplosreceber", &frmprincipal::multiplosreceber},
    // the loaders, which F5 runs on a list
    {"carregarpagar", &frmprincipal::carregarpagar},
    {"carregarreceber", &frmprincipal::carregarreceber},
    {"carregarbancario", &frmprincipal::carregarbancario},
    {"carregarbancos", &frmprincipal::carregarbancos},
    // the add items of the main menu
    {"mnucaddespesas", &frmprincipal::adicionarpagar},
    {"mnucadrececeber", &frmprincipal::adicionarreceber},
    {"mnucadbancario", &frmprincipal::adicionarmovimento},
    {"mnucadbancos", &frmprincipal::adicionarbanco},
};

// Items that flip a check mark and a "1"/"0" setting.
const struct {
    const char* item;
    const QString* secao;
    const char* chave;
} alternancias[] = {
    {"mnualertavenc", &store::secao_config, "AlertasVencimento"},
    {"mnuatualizarsaldo", &store::secao_config, "AtualizarSaldo"},
    {"mnudicadia", &store::secao_configuracoes, "Exibir dica do dia"},
};

bool perguntar(const QString& texto, const QString& titulo) {
    return platform::msgbox(texto, platform::yes_no | platform::question, titulo) == platform::answer_yes;
}

QMenu* menu_de(const frmprincipal* p, const QString& name) {
    return p->findChild<QMenu*>(name);
}

QAction* acao_de(const frmprincipal* p, const popup_entry& e) {
    QMenu* m = menu_de(p, e.menu);
    return m ? m->findChild<QAction*>(e.name, Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace

void frmprincipal::montar_acoes() {
    for (const auto& r : rotinas)
        acoes_.add(QString::fromLatin1(r.nome), [this, f = r.rotina] { (this->*f)(); });
    for (const auto& t : alternancias) {
        const QString item = QString::fromLatin1(t.item);
        // a checkable action has flipped its mark before this runs: the mark is the new state
        acoes_.add(item, [this, item, t] {
            store::save_setting(*t.secao, QString::fromUtf8(t.chave),
                                this->item(item)->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
        });
    }
    // The receipt reads the selected row by its code (0 when its list has none); enabled with its window.
    for (const auto& recibo : {std::pair{QStringLiteral("recibopagar"), lstpagar},
                               std::pair{QStringLiteral("reciboreceber"), lstreceber}}) {
        const QString nome = recibo.first;
        list_view* const l = recibo.second;
        acoes_.add(
            nome,
            [this, nome, l] {
                const int row = shell::linha_selecionada(l);
                codigoselecionado = row >= 0 ? vb::val(l->text(row, 0)) : 0;
                shell::run_action(nome);
            },
            [nome] { return shell::find_action(nome) != nullptr; });
    }
    acoes_.add(QStringLiteral("mnusair"), [this] { close(); });
    acoes_.add(QStringLiteral("mnumostrardicadia"), [this] { frmdica::mostrar_por_pedido(this); });
    acoes_.add(QStringLiteral("mnuexibirprincipal"), [this] { mnuexibirprincipal_click(); });
    acoes_.add(QStringLiteral("mnuiniciar"), [this] { mnuiniciar_click(); });
    acoes_.add(QStringLiteral("mnulogininiciar"), [this] { mnulogininiciar_click(); });
    acoes_.add(QStringLiteral("mnunotepad"), [] {
        if (!platform::desktop().start_editor())
            platform::msgbox(QStringLiteral("Não foi encontrado um editor de textos neste computador."),
                             platform::exclamation, QStringLiteral("Bloco de notas"));
    });
    acoes_.add(QStringLiteral("mnucalc"), [] {
        if (!platform::desktop().start_calculator())
            platform::msgbox(QStringLiteral("Não foi encontrada uma calculadora neste computador."),
                             platform::exclamation, QStringLiteral("Calculadora"));
    });
    for (const auto& e : shell::main_menu())
        if (const QString page = shell::maker_page(e.name); !page.isEmpty())
            acoes_.add(e.name, [page] { platform::desktop().open(page); });
    // the pop-up items that set the lists' views and orders act on this window
    for (const popup_entry& e : shell::popup_entries())
        if (e.kind == popup_kind::filter || e.kind == popup_kind::order ||
            e.kind == popup_kind::order_clause || e.kind == popup_kind::view)
            acoes_.add(e.name, [this, &e] { aplicar_popup(e); });
}

void frmprincipal::ligar(QAction* a, const QString& nome) {
    a->setEnabled(acoes_.enabled(nome));
    connect(a, &QAction::triggered, this, [this, nome] { acoes_.run(nome); });
}

void frmprincipal::ligar(QAbstractButton* b, const QString& nome) {
    b->setEnabled(acoes_.enabled(nome));
    connect(b, &QAbstractButton::clicked, this, [this, nome] { acoes_.run(nome); });
}

void frmprincipal::executar_item(const QString& name) {
    acoes_.run(name);
}

// --- removal and settling -------------------------------------------------------------------

void frmprincipal::remover(ledger which) {
    list_view* l = lista(which);
    const int row = shell::linha_selecionada(l);
    if (row < 0) return;
    if (!perguntar(shell::remove_question(which), shell::remove_title)) return;
    codigoselecionado = vb::val(l->text(row, 0));
    l->remove_row(row);
    shell::run_removal(shell::delete_statement(which, codigoselecionado));
    waiting_window::yield();
    platform::ignore_errors([&] { carregar(which); });
}

void frmprincipal::dar_baixa(ledger which) {
    list_view* l = lista(which);
    const int row = shell::linha_selecionada(l);
    if (row < 0) return;
    codigoselecionado = vb::val(l->text(row, 0));
    shell::settle_entry(which, codigoselecionado, platform::today(),
                        [&] { return perguntar(shell::settle_question(which), shell::settle_title); });
    platform::ignore_errors([&] { carregar(which); });
    platform::ignore_errors([this] { carregarbancos(); });
}

void frmprincipal::removerpagar() {
    remover(ledger::pagar);
}

void frmprincipal::removerreceber() {
    remover(ledger::receber);
}

void frmprincipal::removermovimento() {
    remover(ledger::bancario);
}

void frmprincipal::removerbanco() {
    const int row = shell::linha_selecionada(lstcaixabanco);
    if (row < 0) return;
    const QString banco = lstcaixabanco->text(row, 0);
    if (!perguntar(shell::remove_bank_question(banco, lstcaixabanco->text(row, 1)), shell::remove_title))
        return;
    lstcaixabanco->remove_row(row);
    shell::run_removal(shell::delete_bank_statement(banco));
    waiting_window::yield();
    platform::ignore_errors([this] { carregarbancos(); });
}

void frmprincipal::popbaixapagar() {
    dar_baixa(ledger::pagar);
}

void frmprincipal::popbaixareceber() {
    dar_baixa(ledger::receber);
}

// --- pop-up menus ---------------------------------------------------------------------------

void frmprincipal::aplicar_popup(const popup_entry& e) {
    const shell::popup_effect f = shell::effect_of(e, platform::today());
    shell::apply_settings(f);
    if (f.marca)
        for (const popup_entry& x : shell::popup_entries())
            if (x.menu == e.menu && x.kind == e.kind)
                if (QAction* a = acao_de(this, x)) a->setChecked(x.name == e.name);
    if (f.filtro && f.recarregar) {
        set_box_text(this->*controles_de(*f.recarregar).filtro.member, *f.filtro);
        salvar_filtros(*f.recarregar);
    }
    if (f.recarregar) platform::ignore_errors([&] { carregar(*f.recarregar); });
    if (!f.aviso.isEmpty()) platform::msgbox(f.aviso, platform::information, shell::view_notice_title);
}

void frmprincipal::atualizar_popups() {
    const auto& all = shell::popup_entries();
    for (const popup_entry& e : all) {
        if (e.kind == popup_kind::submenu || e.kind == popup_kind::separator) continue;
        QAction* a = acao_de(this, e);
        if (!a) continue;
        const QString nome = shell::popup_action(e);
        a->setEnabled(!nome.isEmpty() && acoes_.enabled(nome));
        if (a->isCheckable()) a->setChecked(shell::popup_checked(e));
    }
    // a submenu is open while one of its items works (children come after their submenu)
    for (auto it = all.rbegin(); it != all.rend(); ++it) {
        if (it->kind != popup_kind::submenu) continue;
        QMenu* m = menu_de(this, it->name);
        if (!m) continue;
        bool algum = false;
        for (QAction* a : m->actions())
            algum = algum || (a->isEnabled() && !a->isSeparator());
        m->menuAction()->setEnabled(algum);
    }
}

void frmprincipal::montar_popups() {
    // the hidden window that holds the pop-up menus
    auto* frmmenuspop = new QWidget(this);
    frmmenuspop->setObjectName(QStringLiteral("frmmenuspop"));
    frmmenuspop->hide();
    for (const QString& nome : shell::popup_menu_names()) {
        auto* m = new QMenu(frmmenuspop);
        m->setObjectName(nome);
    }
    for (const popup_entry& e : shell::popup_entries()) {
        QMenu* pai = menu_de(this, e.menu);
        if (!pai) continue;
        if (e.kind == popup_kind::separator) {
            pai->addSeparator();
            continue;
        }
        if (e.kind == popup_kind::submenu) {
            QMenu* sub = pai->addMenu(e.caption);
            sub->setObjectName(e.name);
            continue;
        }
        auto* a = new QAction(e.caption, pai);
        a->setObjectName(e.name);
        a->setCheckable(e.kind == popup_kind::order || e.kind == popup_kind::view);
        pai->addAction(a);
        if (const QString nome = shell::popup_action(e); !nome.isEmpty()) ligar(a, nome);
    }
    atualizar_popups();
}

void frmprincipal::mostrar_popup(list_view* l, const QString& nome, const QPoint& pos) {
    QWidget* frmmenuspop = findChild<QWidget*>(QStringLiteral("frmmenuspop"));
    QMenu* m = menu_de(this, nome);
    if (!frmmenuspop || !m) return;
    // the holder window connects at its first opening, as the lists' own routines then find the
    // connection open
    if (!frmmenuspop->property("carregado").toBool()) {
        frmmenuspop->setProperty("carregado", true);
        try {
            store::conectarbanco();
        } catch (const std::exception& e) {
            platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + platform::error_text(e),
                             platform::critical, QStringLiteral("erro"));
        }
    }
    atualizar_popups();
    m->popup(l->viewport()->mapToGlobal(pos));
}

// --- the tabs' buttons and lists ------------------------------------------------------------

void frmprincipal::ligar_acoes() {
    montar_popups();
    // the tabs' buttons: each to its routine (a button of a window still to come stays disabled)
    const struct {
        QPushButton* botao;
        const char* rotina;
    } botoes[] = {
        {cmdadicionard, "adicionarpagar"},     {cmdmultiplosp, "multiplospagar"},
        {cmdalterard, "alterarpagar"},         {cmdremoverd, "removerpagar"},
        {cmdrecibod, "recibopagar"},           {cmdadicionarr, "adicionarreceber"},
        {cmdmultiplosr, "multiplosreceber"},   {cmdalterarr, "alterarreceber"},
        {cmdremoverr, "removerreceber"},       {cmdrecibor, "reciboreceber"},
        {cmdadicionarm, "adicionarmovimento"}, {cmdalterarm, "alterarmovimento"},
        {cmdremoverm, "removermovimento"},     {cmdadicionarb, "adicionarbanco"},
        {cmdalterarb, "alterarbanco"},         {cmdremoverb, "removerbanco"},
    };
    for (const auto& b : botoes)
        ligar(b.botao, QString::fromLatin1(b.rotina));
    // buttons that act as menu items
    const struct {
        QPushButton* botao;
        const char* item;
    } como_itens[] = {{cmdconfbanc, "mnuconfigsoft"},   {cmdhistoricocli, "mnufincli"},
                      {cmdhistoricoforn, "mnufinforn"}, {cmdprojecaop, "mnumetadesp"},
                      {cmdprojecoesr, "mnumetarec"},    {cmdmesp, "mnuvisvencpagar"},
                      {cmdmesr, "mnuvisvencreceber"}};
    for (const auto& b : como_itens)
        ligar(b.botao, QString::fromLatin1(b.item));
    // double click edits, right click opens the list's menu
    const auto ligar_lista = [this](list_view* lista, const QString& alterar, const QString& menu) {
        connect(lista, &list_view::row_double_clicked, this, [this, alterar] { acoes_.run(alterar); });
        lista->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(lista, &QWidget::customContextMenuRequested, this,
                [this, lista, menu](const QPoint& pos) { mostrar_popup(lista, menu, pos); });
    };
    for (ledger which : shell::all_ledgers)
        ligar_lista(lista(which), shell::traits(which).alterar, shell::traits(which).popup);
    ligar_lista(lstcaixabanco, QStringLiteral("alterarbanco"), QStringLiteral("popcaixa"));
    // Insert, Enter, Delete and F5 on a list run what its tab's buttons and its loader run
    for (const shell::list_routines& r : shell::main_list_routines()) {
        std::vector<key_actions::binding> teclas;
        for (int tecla : {Qt::Key_Insert, Qt::Key_Return, Qt::Key_Delete, Qt::Key_F5})
            teclas.push_back({tecla, [this, nome = shell::routine_for_key(r, tecla)] { acoes_.run(nome); }});
        key_actions::install(findChild<list_view*>(r.lista), std::move(teclas));
    }
}
