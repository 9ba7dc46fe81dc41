#include "mail/ui/frmconfloginemail.h"

#include "mail/via_email.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmconfloginemail::frmconfloginemail(QWidget* parent)
    : QDialog(parent), txtnome(named(new QLineEdit, "txtnome")), txtsenha(named(new QLineEdit, "txtsenha")),
      cmdsalvar(named(new QPushButton(QStringLiteral("Salvar")), "cmdsalvar")) {
    setObjectName(QStringLiteral("frmconfloginemail"));
    setWindowTitle(QStringLiteral("Configuração de dados de login - email"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    txtsenha->setEchoMode(QLineEdit::Password);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Nome de usuário:"), txtnome);
    form->addRow(QStringLiteral("Senha:"), txtsenha);
    auto* v = new QVBoxLayout(this);
    v->addLayout(form);
    v->addWidget(cmdsalvar, 0, Qt::AlignRight);
    resize(360, sizeHint().height());
    install_field_conduct(txtnome);
    install_field_conduct(txtsenha);
    txtnome->setText(mail::ler(mail::chave::login, QString()));
    txtsenha->setText(mail::ler(mail::chave::senha, QString()));
    connect(cmdsalvar, &QPushButton::clicked, this, &frmconfloginemail::cmdsalvar_click);
}

frmconfloginemail* frmconfloginemail::mostrar(QWidget* parent) {
    auto* w = new frmconfloginemail(parent);
    w->setWindowModality(Qt::WindowModal);
    show_form(w);
    return w;
}

void frmconfloginemail::cmdsalvar_click() {
    mail::gravar(mail::chave::login, txtnome->text());
    mail::gravar(mail::chave::senha, txtsenha->text());
    close();
}
