// The main window's menus, toolbar and tab buttons: built from the menu data and routed by name.
// An item whose window is not part of the program yet stays disabled.
#include "platform/autostart.h"
#include "platform/prompts.h"
#include "platform/shell.h"
#include "shell/main_menu.h"
#include "shell/principal_api.h"
#include "shell/ui/frmdica.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <functional>

namespace {

// Items that flip a check mark and a "1"/"0" setting.
struct toggle {
    const char* item;
    const QString* section;
    const char* key;
};
const toggle toggles[] = {
    {"mnualertavenc", &store::secao_config, "AlertasVencimento"},
    {"mnuatualizarsaldo", &store::secao_config, "AtualizarSaldo"},
    {"mnudicadia", &store::secao_configuracoes, "Exibir dica do dia"},
};

} // namespace

void frmprincipal::montar_menus() {
    QHash<QString, QMenu*> menus;
    for (const auto& e : shell::main_menu()) {
        QMenu* parent = menus.value(e.parent);
        if (e.name == QLatin1String("-")) {
            if (parent) parent->addSeparator();
            continue;
        }
        const bool has_children = std::any_of(shell::main_menu().begin(), shell::main_menu().end(),
                                              [&](const shell::menu_entry& c) { return c.parent == e.name; });
        if (has_children) {
            QMenu* m = parent ? parent->addMenu(e.caption) : menuBar()->addMenu(e.caption);
            m->setObjectName(e.name);
            m->menuAction()->setObjectName(e.name);
            menus.insert(e.name, m);
            items_.insert(e.name, m->menuAction());
            continue;
        }
        auto* a = new QAction(e.caption, this);
        a->setObjectName(e.name);
        a->setCheckable(e.checkable);
        a->setEnabled(false);
        if (parent) parent->addAction(a);
        items_.insert(e.name, a);
        const QString name = e.name;
        connect(a, &QAction::triggered, this, [this, name]() { executar_item(name); });
    }
    // the items this program has a routine for
    QStringList working = {QStringLiteral("mnusair"),          QStringLiteral("mnuexibirprincipal"),
                           QStringLiteral("mnuiniciar"),       QStringLiteral("mnulogininiciar"),
                           QStringLiteral("mnunotepad"),       QStringLiteral("mnucalc"),
                           QStringLiteral("mnumostrardicadia")};
    for (const auto& t : toggles)
        working << QString::fromLatin1(t.item);
    for (const auto& e : shell::main_menu())
        if (!shell::maker_page(e.name).isEmpty() || shell::find_action(e.name)) working << e.name;
    for (const QString& n : working)
        if (QAction* a = items_.value(n)) a->setEnabled(true);
}

void frmprincipal::montar_toolbar() {
    tbrbarra = addToolBar(QStringLiteral("Barra"));
    tbrbarra->setObjectName(QStringLiteral("tbrbarra"));
    tbrbarra->setMovable(false);
    tbrbarra->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const auto& e : shell::main_toolbar()) {
        if (!e.dropdown.isEmpty()) {
            QToolButton* holder = toolbar_buttons_.value(e.dropdown);
            if (!holder) continue;
            QAction* source = items_.value(e.menu_item);
            auto* a = holder->menu()->addAction(e.caption);
            a->setObjectName(e.key);
            a->setEnabled(source && source->isEnabled());
            const QString key = e.key;
            connect(a, &QAction::triggered, this, [this, key]() { executar_botao(key); });
            if (a->isEnabled()) holder->setEnabled(true);
            continue;
        }
        auto* b = new QToolButton;
        b->setObjectName(e.key);
        b->setText(e.caption);
        b->setAutoRaise(true);
        if (e.menu_item.isEmpty()) {
            b->setMenu(new QMenu(b));
            b->setPopupMode(QToolButton::InstantPopup);
            b->setEnabled(false); // enabled by the first entry that works
        } else {
            QAction* source = items_.value(e.menu_item);
            b->setEnabled(source && source->isEnabled());
            const QString key = e.key;
            connect(b, &QToolButton::clicked, this, [this, key]() { executar_botao(key); });
        }
        tbrbarra->addWidget(b);
        toolbar_buttons_.insert(e.key, b);
    }
}

void frmprincipal::executar_botao(const QString& key) {
    for (const auto& e : shell::main_toolbar())
        if (e.key == key && !e.menu_item.isEmpty()) {
            executar_item(e.menu_item);
            return;
        }
}

void frmprincipal::executar_item(const QString& name) {
    QAction* a = items_.value(name);
    if (!a || !a->isEnabled()) return;
    for (const auto& t : toggles)
        if (name == QLatin1String(t.item)) {
            // a checkable action has flipped its mark before this runs: the mark is the new state
            store::save_setting(*t.section, QString::fromUtf8(t.key),
                                a->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
            return;
        }
    if (name == QLatin1String("mnusair")) {
        close();
    } else if (name == QLatin1String("mnucaddespesas")) {
        adicionarpagar();
    } else if (name == QLatin1String("mnucadrececeber")) {
        adicionarreceber();
    } else if (name == QLatin1String("mnucadbancario")) {
        adicionarmovimento();
    } else if (name == QLatin1String("mnucadbancos")) {
        adicionarbanco();
    } else if (name == QLatin1String("mnumostrardicadia")) {
        frmdica::mostrar_por_pedido(this);
    } else if (name == QLatin1String("mnuexibirprincipal")) {
        mnuexibirprincipal_click();
    } else if (name == QLatin1String("mnuiniciar")) {
        mnuiniciar_click();
    } else if (name == QLatin1String("mnulogininiciar")) {
        mnulogininiciar_click();
    } else if (name == QLatin1String("mnunotepad")) {
        if (!platform::desktop().start_editor())
            platform::msgbox(QStringLiteral("Não foi encontrado um editor de textos neste computador."),
                             platform::exclamation, QStringLiteral("Bloco de notas"));
    } else if (name == QLatin1String("mnucalc")) {
        if (!platform::desktop().start_calculator())
            platform::msgbox(QStringLiteral("Não foi encontrada uma calculadora neste computador."),
                             platform::exclamation, QStringLiteral("Calculadora"));
    } else if (const QString page = shell::maker_page(name); !page.isEmpty()) {
        platform::desktop().open(page);
    } else {
        shell::run_action(name);
    }
}

void frmprincipal::mnuexibirprincipal_click() {
    QAction* a = item(QStringLiteral("mnuexibirprincipal"));
    if (!a->isChecked()) {
        // it was checked: the click turns the data off
        store::save_setting(store::secao_config, QStringLiteral("ExibirPrincipal"), QStringLiteral("0"));
        platform::msgbox(
            QStringLiteral("Quando está opção está desmarcada o software não mostra os dados cadastrados na "
                           "página principal, para exibir novamente estes dados basta marcar está opção!"),
            platform::information, QStringLiteral("Info"));
        picprincipal->hide();
    } else {
        store::save_setting(store::secao_config, QStringLiteral("ExibirPrincipal"), QStringLiteral("1"));
        picprincipal->show();
        carregarpagar();
        carregarreceber();
        carregarbancario();
        carregarbancos();
        CarregarConfigSoft();
    }
}

void frmprincipal::mnuiniciar_click() {
    QAction* a = item(QStringLiteral("mnuiniciar"));
    if (!a->isChecked()) {
        platform::gravarregistro(platform::run_key, store::app_title, QString());
        store::save_setting(store::secao_config, QStringLiteral("Iniciar"), QStringLiteral("0"));
    } else {
        const QString programa = store::program_dir() + QLatin1Char('/') +
                                 QFileInfo(QCoreApplication::applicationFilePath()).fileName();
        platform::gravarregistro(platform::run_key, store::app_title, programa);
        store::save_setting(store::secao_config, QStringLiteral("Iniciar"), QStringLiteral("1"));
    }
}

void frmprincipal::mnulogininiciar_click() {
    gravar_exigirlogin(item(QStringLiteral("mnulogininiciar"))->isChecked());
}

void frmprincipal::ligar_botoes() {
    // buttons that act as menu items
    const struct {
        QPushButton* button;
        const char* item;
    } routes[] = {{cmdconfbanc, "mnuconfigsoft"},   {cmdhistoricocli, "mnufincli"},
                  {cmdhistoricoforn, "mnufinforn"}, {cmdprojecaop, "mnumetadesp"},
                  {cmdprojecoesr, "mnumetarec"},    {cmdmesp, "mnuvisvencpagar"},
                  {cmdmesr, "mnuvisvencreceber"}};
    for (const auto& r : routes) {
        const QString name = QString::fromLatin1(r.item);
        QAction* a = items_.value(name);
        r.button->setEnabled(a && a->isEnabled());
        connect(r.button, &QPushButton::clicked, this, [this, name]() { executar_item(name); });
    }
}
