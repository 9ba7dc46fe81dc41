#include "analysis/ui/frmestsoftware.h"

#include "analysis/software_info.h"
#include "platform/errors.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QPointer<frmestsoftware> the_window;

QLabel* valor(const char* nome) {
    auto* l = named(new QLabel, nome);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

} // namespace

frmestsoftware* frmestsoftware::instance() {
    return single_window(the_window, [] {
        auto* w = new frmestsoftware();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmestsoftware* frmestsoftware::aberto() {
    return loaded_window(the_window);
}

frmestsoftware::frmestsoftware() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmestsoftware"));
    setWindowTitle(QStringLiteral("Estatísticas do software"));
    lblnomesoft = valor("lblnomesoft");
    lblversao = valor("lblversao");
    lbllocalinst = valor("lbllocalinst");
    txtbd = named(new QLineEdit, "txtbd");
    txtbd->setReadOnly(true);
    lbllocal = valor("lbllocal");
    lblbdtamanho = valor("lblbdtamanho");
    lblultimobk = valor("lblultimobk");
    lblultimamanu = valor("lblultimamanu");
    lblrede = valor("lblrede");

    auto* basicas = new QWidget;
    auto* f1 = new QFormLayout(basicas);
    f1->addRow(QStringLiteral("Nome do software:"), lblnomesoft);
    f1->addRow(QStringLiteral("Versão:"), lblversao);
    f1->addRow(QStringLiteral("Local de instalação do software:"), lbllocalinst);
    auto* avancadas = new QWidget;
    auto* f2 = new QFormLayout(avancadas);
    f2->addRow(QStringLiteral("Informações do banco de dados:"), txtbd);
    f2->addRow(QStringLiteral("Local:"), lbllocal);
    f2->addRow(QStringLiteral("Tamanho do banco de dados:"), lblbdtamanho);
    f2->addRow(QStringLiteral("Ultima vez que foi realizado o backup:"), lblultimobk);
    f2->addRow(QStringLiteral("Ultima vez que foi realizado a manutenção:"), lblultimamanu);
    f2->addRow(QStringLiteral("Trabalhando em rede"), lblrede);
    XTab = named(new QTabWidget, "XTab");
    XTab->addTab(basicas, QStringLiteral("Informações básicas"));
    XTab->addTab(avancadas, QStringLiteral("Informações avançadas"));
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab);
    resize(620, sizeHint().height());
    carregar();
}

void frmestsoftware::carregar() {
    // each value on its own: one that cannot be read leaves the others
    analysis::info_software i;
    platform::ignore_errors([&] { i = analysis::ler_info_software(); });
    lblversao->setText(i.versao);
    lblnomesoft->setText(i.nome);
    txtbd->setText(i.bd);
    lblbdtamanho->setText(i.bd_tamanho);
    lbllocalinst->setText(i.local_inst);
    lblultimamanu->setText(i.ultima_manutencao);
    lblultimobk->setText(i.ultimo_backup);
    lbllocal->setText(i.local);
    lblrede->setText(i.rede);
}
