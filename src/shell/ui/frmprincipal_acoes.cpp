// The actions on a row of the four lists: removal and settling, and the wiring that leads the
// buttons, double clicks, menu items and pop-up menus to the routines. A control whose routine or
// window is not part of the program yet stays disabled.
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "shell/list_actions.h"
#include "shell/popup_menus.h"
#include "shell/principal_api.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/config.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>

#include <exception>

using shell::ledger;
using shell::popup_entry;
using shell::popup_kind;

namespace {

using rotina = void (frmprincipal::*)();

// The routines this program has, by name. The receipt's are registered with its window.
const struct {
    const char* nome;
    rotina r;
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
};

rotina rotina_de(const QString& nome) {
    for (const auto& r : rotinas)
        if (nome == QLatin1String(r.nome)) return r.r;
    return nullptr;
}

// Every event routine runs with errors ignored: a failing step is skipped.
template <class F> void ignorando(F&& f) {
    platform::ignore_errors(std::forward<F>(f));
}

// A routine of this window, or one that another subsystem registered (the receipt's).
bool existe(const QString& nome) {
    return rotina_de(nome) != nullptr || shell::find_action(nome) != nullptr;
}

// The receipt reads the selected row by its code: 0 when its list has none.
void selecionar_recibo(frmprincipal* p, const QString& nome) {
    const bool pagar = nome == QLatin1String("recibopagar");
    if (!pagar && nome != QLatin1String("reciboreceber")) return;
    const list_view* l = pagar ? p->lstpagar : p->lstreceber;
    const int row = l->selected_row();
    p->codigoselecionado = row >= 0 && row < l->row_count() ? vb::val(l->text(row, 0)) : 0;
}

void executar(frmprincipal* p, const QString& nome) {
    selecionar_recibo(p, nome);
    if (const rotina r = rotina_de(nome))
        ignorando([&] { (p->*r)(); });
    else
        shell::run_action(nome);
}

// The row an action works on: none for an empty list or when nothing is selected.
int linha_selecionada(const list_view* l) {
    if (l->row_count() == 0) return -1;
    const int row = l->selected_row();
    return row < l->row_count() ? row : -1;
}

bool perguntar(const QString& texto, const QString& titulo) {
    return platform::msgbox(texto, platform::yes_no | platform::question, titulo) == platform::answer_yes;
}

void remover_entrada(frmprincipal* p, ledger which) {
    list_view* l = which == ledger::pagar     ? p->lstpagar
                   : which == ledger::receber ? p->lstreceber
                                              : p->lstmovimento;
    const int row = linha_selecionada(l);
    if (row < 0) return;
    if (!perguntar(shell::remove_question(which), shell::remove_title)) return;
    p->codigoselecionado = vb::val(l->text(row, 0));
    l->remove_row(row);
    shell::run_removal(shell::delete_statement(which, p->codigoselecionado));
    waiting_window::yield();
    ignorando([&] {
        if (which == ledger::pagar)
            p->carregarpagar();
        else if (which == ledger::receber)
            p->carregarreceber();
        else
            p->carregarbancario();
    });
}

void dar_baixa(frmprincipal* p, ledger which) {
    list_view* l = which == ledger::pagar ? p->lstpagar : p->lstreceber;
    const int row = linha_selecionada(l);
    if (row < 0) return;
    p->codigoselecionado = vb::val(l->text(row, 0));
    shell::settle_entry(which, p->codigoselecionado, platform::today(),
                        [&] { return perguntar(shell::settle_question(which), shell::settle_title); });
    ignorando([&] { which == ledger::pagar ? p->carregarpagar() : p->carregarreceber(); });
    ignorando([&] { p->carregarbancos(); });
}

// --- pop-up menus --------------------------------------------------------------------------

QMenu* menu_de(const frmprincipal* p, const QString& name) {
    return p->findChild<QMenu*>(name);
}

QAction* acao_de(const frmprincipal* p, const popup_entry& e) {
    QMenu* m = menu_de(p, e.menu);
    return m ? m->findChild<QAction*>(e.name, Qt::FindDirectChildrenOnly) : nullptr;
}

// Marks the item among the entries of its kind in its submenu.
void marcar(const frmprincipal* p, const popup_entry& escolhido) {
    for (const popup_entry& e : shell::popup_entries())
        if (e.menu == escolhido.menu && e.kind == escolhido.kind)
            if (QAction* a = acao_de(p, e)) a->setChecked(e.name == escolhido.name);
}

bool habilitado(const frmprincipal* p, const popup_entry& e) {
    switch (e.kind) {
    case popup_kind::routine:
        return existe(e.target);
    case popup_kind::menu_item: {
        const QAction* a = p->item(e.target);
        return a && a->isEnabled();
    }
    case popup_kind::filter:
    case popup_kind::order:
    case popup_kind::order_clause:
    case popup_kind::view:
        return true;
    case popup_kind::window:
        return shell::find_action(e.target) != nullptr;
    case popup_kind::print_list:
        return shell::find_action(e.name) != nullptr;
    default:
        // windows and printing of later parts of the program, and the items with no action
        return false;
    }
}

void executar_popup(frmprincipal* p, const popup_entry& e) {
    const QString top = shell::top_menu_of(e);
    switch (e.kind) {
    case popup_kind::routine:
        executar(p, e.target);
        break;
    case popup_kind::menu_item:
        ignorando([&] { p->executar_item(e.target); });
        break;
    case popup_kind::window:
        shell::run_action(e.target);
        break;
    case popup_kind::print_list:
        shell::run_action(e.name);
        break;
    case popup_kind::filter:
        ignorando([&] {
            if (top == QLatin1String("poppagar")) {
                p->cbofiltrop->setCurrentText(e.target);
                p->salvartudopagar();
                p->carregarpagar();
            } else {
                p->cbofiltror->setCurrentText(e.target);
                p->salvartudoreceber();
                p->carregarreceber();
            }
        });
        break;
    case popup_kind::order:
        store::save_setting(store::secao_config, QStringLiteral("Ordem"), e.target);
        marcar(p, e);
        ignorando([&] { p->carregarbancario(); });
        break;
    case popup_kind::order_clause:
        shell::set_ordem_bancario(e.target);
        ignorando([&] { p->carregarbancario(); });
        break;
    case popup_kind::view:
        // the key is written with a small b; readers spell it with a capital one
        store::save_setting(store::secao_config, QStringLiteral("VisualizarDadosbancario"), e.target);
        marcar(p, e);
        if (e.target == QLatin1String("2"))
            platform::msgbox(shell::view_notice_year(platform::today()), platform::information,
                             shell::view_notice_title);
        else if (e.target == QLatin1String("1"))
            platform::msgbox(shell::view_notice_month(platform::today()), platform::information,
                             shell::view_notice_title);
        break;
    default:
        break;
    }
}

// The check marks follow the settings they write.
bool marcado(const popup_entry& e) {
    if (e.kind == popup_kind::order)
        return store::setting(store::secao_config, QStringLiteral("Ordem"), QStringLiteral("ASC"))
                   .compare(e.target, Qt::CaseInsensitive) == 0;
    if (e.kind == popup_kind::view)
        return store::setting(store::secao_config, QStringLiteral("VisualizarDadosBancario"),
                              QStringLiteral("0")) == e.target;
    return false;
}

// Enabled states and check marks as the program and the settings stand now (the settings window
// writes Ordem too).
void atualizar_habilitados(frmprincipal* p) {
    const auto& all = shell::popup_entries();
    for (const popup_entry& e : all) {
        if (e.kind == popup_kind::submenu || e.kind == popup_kind::separator) continue;
        QAction* a = acao_de(p, e);
        if (!a) continue;
        a->setEnabled(habilitado(p, e));
        if (a->isCheckable()) a->setChecked(marcado(e));
    }
    // a submenu is open while one of its items works (children come after their submenu)
    for (auto it = all.rbegin(); it != all.rend(); ++it) {
        if (it->kind != popup_kind::submenu) continue;
        QMenu* m = menu_de(p, it->name);
        if (!m) continue;
        bool algum = false;
        for (QAction* a : m->actions())
            algum = algum || (a->isEnabled() && !a->isSeparator());
        m->menuAction()->setEnabled(algum);
    }
}

void montar_popups(frmprincipal* p) {
    // the hidden window that holds the pop-up menus
    auto* frmmenuspop = new QWidget(p);
    frmmenuspop->setObjectName(QStringLiteral("frmmenuspop"));
    frmmenuspop->hide();
    for (const QString& nome : shell::popup_menu_names()) {
        auto* m = new QMenu(frmmenuspop);
        m->setObjectName(nome);
    }
    for (const popup_entry& e : shell::popup_entries()) {
        QMenu* pai = menu_de(p, e.menu);
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
        if (e.kind == popup_kind::order || e.kind == popup_kind::view) {
            a->setCheckable(true);
        }
        pai->addAction(a);
        const popup_entry* entrada = &e; // the entries live as long as the program
        QObject::connect(a, &QAction::triggered, p, [p, entrada]() { executar_popup(p, *entrada); });
    }
    atualizar_habilitados(p);
}

// The right click on a list: its menu at the pointer. The holder window connects at its first
// opening, as the lists' own routines then find the connection open.
void mostrar_popup(frmprincipal* p, list_view* l, const QString& nome, const QPoint& pos) {
    QWidget* frmmenuspop = p->findChild<QWidget*>(QStringLiteral("frmmenuspop"));
    QMenu* m = menu_de(p, nome);
    if (!frmmenuspop || !m) return;
    if (!frmmenuspop->property("carregado").toBool()) {
        frmmenuspop->setProperty("carregado", true);
        try {
            store::conectarbanco();
        } catch (const std::exception& e) {
            platform::msgbox(QStringLiteral("Ocorreu o seguinte erro: ") + QString::fromUtf8(e.what()),
                             platform::critical, QStringLiteral("erro"));
        }
    }
    atualizar_habilitados(p);
    m->popup(l->viewport()->mapToGlobal(pos));
}

} // namespace

void frmprincipal::removerpagar() {
    remover_entrada(this, ledger::pagar);
}

void frmprincipal::removerreceber() {
    remover_entrada(this, ledger::receber);
}

void frmprincipal::removermovimento() {
    remover_entrada(this, ledger::bancario);
}

void frmprincipal::removerbanco() {
    const int row = linha_selecionada(lstcaixabanco);
    if (row < 0) return;
    const QString banco = lstcaixabanco->text(row, 0);
    if (!perguntar(shell::remove_bank_question(banco, lstcaixabanco->text(row, 1)), shell::remove_title))
        return;
    lstcaixabanco->remove_row(row);
    shell::run_removal(shell::delete_bank_statement(banco));
    waiting_window::yield();
    ignorando([this] { carregarbancos(); });
}

void frmprincipal::popbaixapagar() {
    dar_baixa(this, ledger::pagar);
}

void frmprincipal::popbaixareceber() {
    dar_baixa(this, ledger::receber);
}

void frmprincipal::ligar_acoes() {
    // buttons: each to its routine, enabled when the routine exists
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
    for (const auto& b : botoes) {
        const QString nome = QString::fromLatin1(b.rotina);
        b.botao->setEnabled(existe(nome));
        connect(b.botao, &QPushButton::clicked, this, [this, nome]() { executar(this, nome); });
    }
    // the add items of the main menu: routed by executar_item, enabled here
    const struct {
        const char* item;
        const char* rotina;
    } itens[] = {{"mnucaddespesas", "adicionarpagar"},
                 {"mnucadrececeber", "adicionarreceber"},
                 {"mnucadbancario", "adicionarmovimento"},
                 {"mnucadbancos", "adicionarbanco"}};
    for (const auto& i : itens) {
        QAction* a = item(QString::fromLatin1(i.item));
        const QString nome = QString::fromLatin1(i.rotina);
        if (!a) continue;
        a->setEnabled(existe(nome));
    }
    montar_popups(this);
    // double click edits, right click opens the list's menu
    const struct {
        list_view* lista;
        const char* alterar;
        const char* menu;
    } listas[] = {{lstpagar, "alterarpagar", "poppagar"},
                  {lstreceber, "alterarreceber", "popreceber"},
                  {lstmovimento, "alterarmovimento", "popmovimento"},
                  {lstcaixabanco, "alterarbanco", "popcaixa"}};
    for (const auto& l : listas) {
        const QString alterar = QString::fromLatin1(l.alterar);
        const QString menu = QString::fromLatin1(l.menu);
        list_view* lista = l.lista;
        connect(lista, &list_view::row_double_clicked, this, [this, alterar]() { executar(this, alterar); });
        lista->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(lista, &QWidget::customContextMenuRequested, this,
                [this, lista, menu](const QPoint& pos) { mostrar_popup(this, lista, menu, pos); });
    }
}
