#include "shell/ui/frmgerenciarlogin.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>

namespace {
QPointer<frmgerenciarlogin> the_window;
const QString titulo_erro = QStringLiteral("Erro");
} // namespace

frmgerenciarlogin* frmgerenciarlogin::mostrar() {
    if (!the_window) {
        the_window = new frmgerenciarlogin();
        the_window->abrir();
    }
    show_window(the_window);
    return the_window;
}

frmgerenciarlogin* frmgerenciarlogin::aberto() {
    return the_window.data();
}

frmgerenciarlogin::frmgerenciarlogin()
    : QWidget(nullptr, Qt::Window), lstusuarios(named(new QListWidget, "lstusuarios")),
      txtcodigo(named(new QLineEdit, "txtcodigo")), txtusuario(named(new QLineEdit, "txtusuario")),
      txtsenha(named(new QLineEdit, "txtsenha")), chkusuario(named(new QCheckBox, "chkusuario")),
      cmdadicionar(named(new QPushButton, "cmdadicionar")),
      cdmatualizar(named(new QPushButton, "cdmatualizar")), cdmremover(named(new QPushButton, "cdmremover")),
      cmdcancelar(named(new QPushButton, "cmdcancelar")) {
    setObjectName(QStringLiteral("frmgerenciarlogin"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Gerenciador de Login"));

    // the code is the data file's own: shown, never typed
    txtcodigo->setReadOnly(true);
    chkusuario->setText(QStringLiteral("Exigir login ao iniciar o software(recomendado)"));
    cmdadicionar->setText(QStringLiteral("Adicionar"));
    cdmatualizar->setText(QStringLiteral("Atualizar"));
    cdmremover->setText(QStringLiteral("Remover"));
    cmdcancelar->setText(QStringLiteral("Cancelar"));

    auto* esquerda = new QVBoxLayout;
    esquerda->addWidget(new QLabel(QStringLiteral(" ..:: Usuários do sistema")));
    esquerda->addWidget(lstusuarios, 1);
    auto* campos = new QVBoxLayout;
    campos->addWidget(new QLabel(QStringLiteral("Código do usuário:")));
    campos->addWidget(txtcodigo);
    campos->addWidget(new QLabel(QStringLiteral("Nome do Usuário")));
    campos->addWidget(txtusuario);
    campos->addWidget(new QLabel(QStringLiteral("Senha do usuário")));
    campos->addWidget(txtsenha);
    campos->addStretch(1);
    auto* topo = new QHBoxLayout;
    topo->addLayout(esquerda, 1);
    topo->addLayout(campos, 1);
    auto* botoes = new QHBoxLayout;
    for (QPushButton* b : {cmdadicionar, cdmatualizar, cdmremover, cmdcancelar})
        botoes->addWidget(b);
    auto* v = new QVBoxLayout(this);
    v->addLayout(topo, 1);
    v->addWidget(chkusuario);
    v->addLayout(botoes);
    resize(520, 320);
    install_field_conduct_all(this);

    connect(lstusuarios, &QListWidget::itemClicked, this, [this] { lstusuarios_click(); });
    connect(lstusuarios, &QListWidget::currentRowChanged, this, [this](int row) {
        // the keyboard walks the list as clicks do
        if (row >= 0 && !lstusuarios->signalsBlocked()) lstusuarios_click();
    });
    // clicked, not toggled: the opening sets the box without writing it back
    connect(chkusuario, &QCheckBox::clicked, this, [this] { chkusuario_click(); });
    connect(cmdadicionar, &QPushButton::clicked, this, [this] { cmdadicionar_click(); });
    connect(cdmatualizar, &QPushButton::clicked, this, [this] { cdmatualizar_click(); });
    connect(cdmremover, &QPushButton::clicked, this, [this] { cdmremover_click(); });
    connect(cmdcancelar, &QPushButton::clicked, this, [this] { close(); });
}

frmgerenciarlogin::~frmgerenciarlogin() {
    if (the_window == this) the_window = nullptr;
}

int frmgerenciarlogin::aviso(const QString& texto, int estilo, const QString& titulo) {
    return platform::msgbox(texto, estilo, titulo);
}

void frmgerenciarlogin::abrir() {
    store::conectarbanco();
    chkusuario->setChecked(shell::ler_exigirlogin() == QLatin1String("1"));
    carregarusuarios();
}

void frmgerenciarlogin::carregarusuarios() {
    const QSignalBlocker b(lstusuarios);
    lstusuarios->clear();
    // an unreadable table shows an empty list
    platform::ignore_errors([&] {
        store::conectarbanco();
        lstusuarios->addItems(shell::nomes_usuarios());
    });
}

void frmgerenciarlogin::lstusuarios_click() {
    QListWidgetItem* item = lstusuarios->currentItem();
    if (!item) return;
    try {
        store::conectarbanco();
        if (!usuario_.abrir(item->text())) return;
        txtcodigo->setText(usuario_.codigo());
        txtusuario->setText(usuario_.nome());
        txtsenha->setText(usuario_.senha());
    } catch (const sql::error& e) {
        aviso(e.description(), platform::critical, titulo_erro);
    }
}

void frmgerenciarlogin::chkusuario_click() {
    shell::gravar_exigirlogin(chkusuario->isChecked());
}

void frmgerenciarlogin::cmdadicionar_click() {
    using shell::resultado_cadastro;
    try {
        store::conectarbanco();
        switch (shell::adicionar_usuario(txtusuario->text(), txtsenha->text())) {
        case resultado_cadastro::campos_vazios:
            aviso(shell::texto_usuario_vazio, platform::ok_only, shell::titulo_login);
            return;
        case resultado_cadastro::caractere_proibido:
            aviso(shell::texto_caracteres, platform::critical, shell::titulo_login);
            return;
        case resultado_cadastro::nome_existe:
            aviso(shell::texto_usuario_existe, platform::ok_only, shell::titulo_login);
            return;
        case resultado_cadastro::gravado:
            break;
        }
    } catch (const sql::error& e) {
        aviso(QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ") + e.description(),
              platform::exclamation, titulo_erro);
        return;
    }
    carregarusuarios();
}

void frmgerenciarlogin::cdmatualizar_click() {
    if (!usuario_.aberto()) {
        aviso(QStringLiteral("Clique em um usuário da lista para alterar os seus dados."),
              platform::exclamation, shell::titulo_login);
        return;
    }
    try {
        if (usuario_.atualizar(txtusuario->text(), txtsenha->text()) ==
            shell::resultado_cadastro::caractere_proibido) {
            aviso(shell::texto_caracteres, platform::critical, shell::titulo_login);
            return;
        }
    } catch (const sql::error& e) {
        aviso(QStringLiteral("Ocorreu o seguinte erro ao tentar atualizar os dados: ") + e.description(),
              platform::exclamation, titulo_erro);
        return;
    }
    aviso(shell::texto_atualizado, platform::ok_only, shell::titulo_login);
    // the list shows the name as it now stands
    const QString nome = txtusuario->text();
    carregarusuarios();
    const auto achados = lstusuarios->findItems(nome, Qt::MatchExactly);
    if (!achados.isEmpty()) {
        const QSignalBlocker b(lstusuarios);
        lstusuarios->setCurrentItem(achados.first());
    }
}

void frmgerenciarlogin::cdmremover_click() {
    QListWidgetItem* item = lstusuarios->currentItem();
    if (lstusuarios->count() == 1) {
        aviso(shell::texto_ultimo_usuario, platform::critical, titulo_erro);
        return;
    }
    if (!item) return;
    const QString nome = item->text();
    if (aviso(shell::pergunta_remover_usuario(nome), platform::yes_no | platform::question,
              shell::titulo_login) != platform::answer_yes)
        return;
    try {
        store::conectarbanco();
        if (store::conexao) store::conexao->execute(shell::comando_remover_usuario(nome));
    } catch (const std::exception& e) {
        aviso(QStringLiteral("Ocorreu o seguinte erro ao tentar remover os dados: ") +
                  platform::error_text(e),
              platform::exclamation, titulo_erro);
    }
    // the row a click held may be gone: nothing stays loaded for cdmatualizar
    usuario_.fechar();
    for (QLineEdit* t : {txtcodigo, txtusuario, txtsenha})
        t->clear();
    carregarusuarios();
}
