#include "shell/ui/frmloginsoft.h"

#include "platform/prompts.h"
#include "platform/sql/recordset.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "shell/login.h"
#include "shell/principal_api.h"
#include "shell/ui/frmlogin.h"
#include "store/conexao.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {
QPointer<frmloginsoft> the_lock;
} // namespace

frmloginsoft* frmloginsoft::instance() {
    if (!the_lock) the_lock = new frmloginsoft();
    return the_lock;
}

frmloginsoft* frmloginsoft::aberto() {
    return the_lock.data();
}

void frmloginsoft::descarregar() {
    if (!the_lock) return;
    frmloginsoft* w = the_lock;
    the_lock = nullptr;
    w->saindo_ = true;
    w->hide();
    w->deleteLater();
}

frmloginsoft::frmloginsoft()
    : QWidget(nullptr, Qt::Window), txtusuario(named(new QLineEdit, "txtusuario")),
      txtsenha(named(new QLineEdit, "txtsenha")), cmdentrar(named(new QPushButton, "cmdentrar")),
      cmdcancelar(named(new QPushButton, "cmdcancelar")) {
    setObjectName(QStringLiteral("frmloginsoft"));
    setProperty("quintara_form", true);
    setWindowTitle(QStringLiteral("Login do usuário"));
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* aviso =
        new QLabel(QStringLiteral("O software está bloqueado. Digite o seu usuário e a sua senha para "
                                  "voltar a usá-lo."));
    aviso->setWordWrap(true);
    txtsenha->setEchoMode(QLineEdit::Password);
    auto* g = new QGridLayout;
    g->addWidget(new QLabel(QStringLiteral("Usuário")), 0, 0);
    g->addWidget(txtusuario, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Senha:")), 1, 0);
    g->addWidget(txtsenha, 1, 1);
    cmdentrar->setText(QStringLiteral("Entrar"));
    cmdcancelar->setText(QStringLiteral("Cancelar"));
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdentrar);
    botoes->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addWidget(aviso);
    v->addLayout(g);
    v->addLayout(botoes);
    setFixedWidth(380);
    install_field_conduct_all(this);
    connect(cmdentrar, &QPushButton::clicked, this, &frmloginsoft::cmdentrar_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &frmloginsoft::cmdcancelar_click);
}

frmloginsoft::~frmloginsoft() {
    if (the_lock == this) the_lock = nullptr;
}

void frmloginsoft::bloquear() {
    frmloginsoft* w = instance();
    // what was typed at the last unlock does not wait for the next person at the desk
    w->txtsenha->clear();
    if (shell::principal_api* p = shell::principal()) p->janela()->hide();
    // the lock keeps every window of the program out of sight, not only the main one
    for (QWidget* t : QApplication::topLevelWidgets()) {
        if (t == w || !t->isVisible() || t->windowType() == Qt::Popup || t->windowType() == Qt::ToolTip)
            continue;
        w->escondidas_.emplace_back(t);
        t->hide();
    }
    w->adjustSize();
    if (QScreen* s = QGuiApplication::primaryScreen())
        w->move(s->availableGeometry().center() - QPoint(w->width() / 2, w->height() / 2));
    w->show();
    w->raise();
    w->activateWindow();
    sempretopo(QStringLiteral("ativo"), w);
    (w->txtusuario->text().isEmpty() ? w->txtusuario : w->txtsenha)->setFocus();
}

void frmloginsoft::mostrar_principal() {
    QWidget* j = nullptr;
    if (shell::principal_api* p = shell::principal()) {
        j = p->janela();
        j->show();
        j->raise();
        j->activateWindow();
    }
    // the windows that were open come back over the main window, as they stood
    for (const QPointer<QWidget>& t : escondidas_)
        if (t && t != j) {
            t->show();
            t->raise();
        }
    escondidas_.clear();
}

void frmloginsoft::cmdentrar_click() {
    sempretopo(QStringLiteral("desativo"), this);
    using shell::resultado_login;
    resultado_login r;
    try {
        // the lock may have lasted: the connection of the last action is not counted on
        store::conectarbanco();
        r = shell::conferir_login(txtusuario->text(), txtsenha->text());
    } catch (const sql::error& e) {
        platform::msgbox(e.description(), platform::critical, shell::titulo_login);
        sempretopo(QStringLiteral("ativo"), this);
        return;
    }
    const shell::aviso_login a = shell::aviso_de(r);
    if (!a.texto.isEmpty()) platform::msgbox(a.texto, a.estilo, shell::titulo_login);
    if (a.volta_ao_topo) sempretopo(QStringLiteral("ativo"), this);
    if (r == resultado_login::sem_usuarios) {
        mostrar_principal();
        descarregar();
    } else if (r == resultado_login::aceito) {
        txtsenha->clear();
        mostrar_principal();
        hide();
        store::fecharconexao();
    }
}

void frmloginsoft::cmdcancelar_click() {
    // unloading the first window ends the program
    saindo_ = true;
    frmlogin::instance()->cmdcancelar_click();
}

void frmloginsoft::closeEvent(QCloseEvent* e) {
    e->accept();
    if (saindo_) return;
    // a locked program is opened again by a login or closed: the close box closes it
    cmdcancelar_click();
}
