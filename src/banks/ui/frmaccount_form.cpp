#include "banks/ui/frmaccount_form.h"

#include "banks/account_record.h"
#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "shell/principal_api.h"
#include "store/conexao.h"
#include "store/messages.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

account_form::account_form(const QString& name, const QString& title) : QWidget(nullptr, Qt::Window) {
    setObjectName(name);
    setWindowTitle(title);
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    txtnome = new QLineEdit;
    txtnome->setObjectName(QStringLiteral("txtnome"));
    txtnome->setToolTip(QStringLiteral("Digite o nome do banco ou caixa"));
    txtvalor = new money_field;
    txtvalor->setObjectName(QStringLiteral("txtvalor"));
    txtvalor->setToolTip(QStringLiteral("Digite o valor"));
    txtinfo = new QLineEdit;
    txtinfo->setObjectName(QStringLiteral("txtinfo"));
    txtinfo->setToolTip(QStringLiteral("informações adicionais"));
    cmdinserir = new QPushButton;
    cmdinserir->setObjectName(QStringLiteral("cmdinserir"));
    cmdcancelar = new QPushButton(QStringLiteral("&Cancelar"));
    cmdcancelar->setObjectName(QStringLiteral("cmdcancelar"));
    connect(cmdinserir, &QPushButton::clicked, this, &account_form::cmdinserir_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &account_form::cmdcancelar_click);
    // opening: on top of the others, and the data file at hand
    sempretopo(QStringLiteral("ativo"), this);
    store::conectarbanco();
}

void account_form::montar(QWidget* amount_before, const QString& amount_label, const QString& letters) {
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Nome do banco/caixa:"), txtnome);
    if (amount_before) form->addRow(QStringLiteral("Saldo inicial:"), amount_before);
    form->addRow(amount_label, txtvalor);
    form->addRow(QStringLiteral("Informações:"), txtinfo);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdinserir);
    buttons->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addLayout(form);
    v->addLayout(buttons);
    resize(420, sizeHint().height());

    set_tab_chain({txtnome, amount_before, txtvalor, txtinfo, cmdinserir, cmdcancelar});
    install_field_conduct_all(this);
    atalhos_ = new atalhos(this);
    atalhos_->add(QLatin1Char('C'), [this] { cmdcancelar_click(); });
    for (QChar letter : letters)
        atalhos_->add(letter, [this] { cmdinserir_click(); });
}

void account_form::mostrar() {
    show_form(this);
}

void account_form::erro(const QString& texto) {
    msgbox_over(this, texto, platform::exclamation, QStringLiteral("Erro"));
}

void account_form::cmdinserir_click() {
    const QString em_branco = banks::account_fields_message(txtvalor->text(), txtnome->text());
    if (!em_branco.isEmpty()) {
        erro(em_branco);
        return;
    }
    try {
        // a connection per action: the one of the opening may have been closed since
        store::conectarbanco();
        gravar();
        shell::recarregar_bancos();
        depois_de_gravar();
        descarregar();
    } catch (const std::exception& e) {
        erro(store::save_error_message(e));
    }
}

void account_form::cmdcancelar_click() {
    descarregar();
}

void account_form::descarregar() {
    mark_unloaded(this);
    hide();
    deleteLater();
}

void account_form::closeEvent(QCloseEvent* e) {
    mark_unloaded(this);
    e->accept();
}
