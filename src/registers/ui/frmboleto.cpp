#include "registers/ui/frmboleto.h"

#include "platform/errors.h"
#include "platform/shell.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "store/config.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

QPointer<frmboleto> the_window;

QLineEdit* campo(const char* nome, const QString& valor) {
    return named(new QLineEdit(valor), nome);
}

} // namespace

frmboleto* frmboleto::instance() {
    if (!the_window) the_window = new frmboleto();
    return the_window;
}

frmboleto* frmboleto::aberto() {
    return the_window.data();
}

frmboleto::frmboleto()
    : QWidget(nullptr, Qt::Window), cbobanco(chosen_box("cbobanco")), cbocliente(typed_box("cbocliente")) {
    const registers::boleto_campos b = registers::boleto_inicial();
    txtcedente = campo("txtcedente", b.cedente);
    txtvalor = campo("txtvalor", b.valor);
    txtag = campo("txtag", b.agencia);
    txtconta = campo("txtconta", b.conta);
    txtinscricao = campo("txtinscricao", b.inscricao);
    txtnossonum = campo("txtnossonum", b.nossonum);
    txtvencimento = campo("txtvencimento", b.vencimento);
    txtlinha1 = campo("txtlinha1", b.linha1);
    txtlinha2 = campo("txtlinha2", b.linha2);
    txtlinha3 = campo("txtlinha3", b.linha3);
    txtcodcedente = campo("txtcodcedente", b.codcedente);
    cdmgerar = named(new QPushButton(QStringLiteral("&Gerar boleto")), "cdmgerar");
    setObjectName(QStringLiteral("frmboleto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Gerador de boleto bancario"));
    cbobanco->addItem(registers::banco_boleto);
    // sized by the layout, not by measuring every client's name
    cbocliente->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbocliente->setMinimumContentsLength(30);
    cbobanco->setCurrentIndex(0);

    auto* g = new QGridLayout;
    int row = 0;
    const auto linha = [&](const char* rotulo, QWidget* w, int col = 0, int span = 1) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, col);
        g->addWidget(w, row, col + 1, 1, span);
    };
    linha("Banco:", cbobanco, 0, 3);
    ++row;
    linha("Cliente:", cbocliente, 0, 3);
    ++row;
    linha("Cedente:", txtcedente, 0, 3);
    ++row;
    linha("Valor:", txtvalor);
    linha("Vencimento:", txtvencimento, 2);
    ++row;
    linha("Agência:", txtag);
    linha("Conta Corrente:", txtconta, 2);
    ++row;
    linha("Controle:", txtinscricao);
    linha("Nosso número:", txtnossonum, 2);
    ++row;
    linha("Código cedente:", txtcodcedente);
    ++row;
    linha("Linha 1:", txtlinha1, 0, 3);
    ++row;
    linha("Linha 2:", txtlinha2, 0, 3);
    ++row;
    linha("Linha 3:", txtlinha3, 0, 3);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cdmgerar);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addLayout(botoes);
    resize(560, 380);

    install_field_conduct_all(this);
    connect(cdmgerar, &QPushButton::clicked, this, [this] { cdmgerar_click(); });
}

frmboleto::~frmboleto() {
    if (the_window == this) the_window = nullptr;
}

void frmboleto::carregar() {
    // a plain list model: a full client file fills the box several times faster than item by item
    // (the box drops the model it held when that one was its own)
    cbocliente->setModel(new QStringListModel(registers::nomes_clientes(), cbocliente));
    cbocliente->setEditText(QString());
}

registers::boleto_campos frmboleto::campos() const {
    registers::boleto_campos b;
    b.valor = txtvalor->text();
    b.agencia = txtag->text();
    b.conta = txtconta->text();
    b.nossonum = txtnossonum->text();
    b.cedente = txtcedente->text();
    b.inscricao = txtinscricao->text();
    b.cliente = cbocliente->currentText();
    b.vencimento = txtvencimento->text();
    b.linha1 = txtlinha1->text();
    b.linha2 = txtlinha2->text();
    b.linha3 = txtlinha3->text();
    b.codcedente = txtcodcedente->text();
    return b;
}

void frmboleto::cdmgerar_click() {
    const registers::boleto_campos b = campos();
    const registers::endereco_cliente e = registers::endereco_de(b.cliente);
    const QString url = registers::endereco_boleto(store::endereco_boleto(), b, e);
    // what the browser makes of it is not this window's concern
    platform::ignore_errors([&] { platform::desktop().open(url); });
}
