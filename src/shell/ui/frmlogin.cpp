#include "shell/ui/frmlogin.h"

#include "platform/prompts.h"
#include "platform/sql/recordset.h"
#include "platform/widgets/field_helpers.h"
#include "shell/login.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {
frmlogin* the_login = nullptr;

// Unloading the login window unloads every window and so ends the program. The main window may be
// hidden behind the lock: it is closed as on any other close, which keeps the lists' layout.
void descarregar_tudo() {
    if (frmprincipal::exists() && frmprincipal::instance()->carregado())
        frmprincipal::instance()->descarregar();
    QApplication::closeAllWindows();
    QCoreApplication::quit();
}
} // namespace

frmlogin* frmlogin::instance() {
    if (!the_login) the_login = new frmlogin();
    return the_login;
}

void frmlogin::descarregar() {
    if (!the_login) return;
    frmlogin* w = the_login;
    the_login = nullptr;
    w->saindo_ = true;
    w->hide();
    w->deleteLater();
}

frmlogin::frmlogin() {
    setObjectName(QStringLiteral("frmlogin"));
    setProperty("quintara_form", true);
    setWindowTitle(QStringLiteral("Login do usuário"));
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* v = new QVBoxLayout(this);
    auto* titulo = new QLabel(QStringLiteral("Sistema de Autenticação"));
    QFont f = titulo->font();
    f.setPointSizeF(f.pointSizeF() * 1.5);
    f.setBold(true);
    titulo->setFont(f);
    auto* nota = new QLabel(QStringLiteral("O login protege os seus dados financeiros: só quem tem um "
                                           "usuário e uma senha cadastrados pode abrir o "
                                           "software e ver as suas contas."));
    nota->setWordWrap(true);
    auto* g = new QGridLayout;
    txtusuario = new QLineEdit;
    txtusuario->setObjectName(QStringLiteral("txtusuario"));
    txtsenha = new QLineEdit;
    txtsenha->setObjectName(QStringLiteral("txtsenha"));
    txtsenha->setEchoMode(QLineEdit::Password);
    g->addWidget(new QLabel(QStringLiteral("Usuário")), 0, 0);
    g->addWidget(txtusuario, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Senha:")), 1, 0);
    g->addWidget(txtsenha, 1, 1);
    auto* botoes = new QHBoxLayout;
    cmdentrar = new QPushButton(QStringLiteral("Entrar"));
    cmdentrar->setObjectName(QStringLiteral("cmdentrar"));
    cmdcancelar = new QPushButton(QStringLiteral("Cancelar"));
    cmdcancelar->setObjectName(QStringLiteral("cmdcancelar"));
    botoes->addStretch();
    botoes->addWidget(cmdentrar);
    botoes->addWidget(cmdcancelar);
    v->addWidget(titulo);
    v->addWidget(nota);
    v->addLayout(g);
    v->addLayout(botoes);
    setFixedWidth(420);
    install_field_conduct_all(this);
    connect(cmdentrar, &QPushButton::clicked, this, &frmlogin::cmdentrar_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &frmlogin::cmdcancelar_click);
}

frmlogin::~frmlogin() {
    if (the_login == this) the_login = nullptr;
}

void frmlogin::abrir() {
    txtusuario->setFocus();
    store::conectarbanco();
    sempretopo(QStringLiteral("ativo"), this);
    QString exigir;
    bool lido = false;
    try {
        exigir = shell::exigirlogin();
        lido = true;
    } catch (const sql::error&) {
        // an unreadable data file has been reported by the connection; the main window opens with empty lists
    }
    if (!lido || exigir == QLatin1String("0")) {
        hide();
        frmprincipal* p = frmprincipal::instance();
        p->mostrar();
        p->CarregarDados();
        return;
    }
    adjustSize();
    if (QScreen* s = QGuiApplication::primaryScreen())
        move(s->availableGeometry().center() - QPoint(width() / 2, height() / 2));
    show();
    txtusuario->setFocus();
}

void frmlogin::entrar_no_principal() {
    // hidden first: the main window's opening may take a while on a big file
    hide();
    frmprincipal::instance()->mostrar();
}

void frmlogin::cmdentrar_click() {
    sempretopo(QStringLiteral("desativo"), this);
    using shell::resultado_login;
    resultado_login r;
    try {
        r = shell::conferir_login(txtusuario->text(), txtsenha->text());
    } catch (const sql::error& e) {
        platform::msgbox(e.description(), platform::critical, shell::titulo_login);
        sempretopo(QStringLiteral("ativo"), this);
        return;
    }
    const shell::aviso_login a = shell::aviso_de(r);
    if (!a.texto.isEmpty()) platform::msgbox(a.texto, a.estilo, shell::titulo_login);
    if (a.volta_ao_topo) sempretopo(QStringLiteral("ativo"), this);
    if (r == resultado_login::sem_usuarios || r == resultado_login::aceito) entrar_no_principal();
    if (r == resultado_login::aceito) store::fecharconexao();
}

void frmlogin::cmdcancelar_click() {
    close();
}

void frmlogin::closeEvent(QCloseEvent* e) {
    e->accept();
    if (saindo_) return;
    saindo_ = true;
    descarregar_tudo();
}
