// The main window's menus and toolbar, built from the menu data and bound to the window's actions;
// and the menu items that act on this window itself.
#include "platform/autostart.h"
#include "platform/prompts.h"
#include "platform/widgets/theme_icon.h"
#include "shell/main_menu.h"
#include "shell/ui/frmprincipal.h"
#include "shell/usuarios.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

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
        if (!e.checkable) a->setIcon(theme_icon(shell::icon_of(e.name)));
        if (parent) parent->addAction(a);
        items_.insert(e.name, a);
        ligar(a, e.name);
    }
    // F10 opens the first menu, from where the arrows reach every other; Alt alone marks the bar
    // (the menu bar's own conduct), so the captions need no letters of their own
    auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), this);
    f10->setObjectName(QStringLiteral("teclaf10"));
    connect(f10, &QShortcut::activated, this, [this] {
        const QList<QAction*> menus = menuBar()->actions();
        if (!menus.isEmpty()) menuBar()->setActiveAction(menus.first());
    });
}

void frmprincipal::montar_toolbar() {
    tbrbarra = addToolBar(QStringLiteral("Barra"));
    tbrbarra->setObjectName(QStringLiteral("tbrbarra"));
    tbrbarra->setMovable(false);
    tbrbarra->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tbrbarra->setIconSize(QSize(24, 24));
    for (const auto& e : shell::main_toolbar()) {
        if (!e.dropdown.isEmpty()) {
            QToolButton* holder = toolbar_buttons_.value(e.dropdown);
            if (!holder) continue;
            auto* a = holder->menu()->addAction(e.caption);
            a->setObjectName(e.key);
            ligar(a, e.menu_item);
            if (a->isEnabled()) holder->setEnabled(true);
            continue;
        }
        auto* b = new QToolButton;
        b->setObjectName(e.key);
        b->setText(e.caption);
        b->setIcon(theme_icon(shell::icon_of(e.key)));
        b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        b->setAutoRaise(true);
        if (e.menu_item.isEmpty()) {
            b->setMenu(new QMenu(b));
            b->setPopupMode(QToolButton::InstantPopup);
            b->setEnabled(false); // enabled by the first entry that works
        } else {
            ligar(b, e.menu_item);
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
    shell::gravar_exigirlogin(item(QStringLiteral("mnulogininiciar"))->isChecked());
}
