#include "entries/ui/frmrecibo.h"

#include "entries/print/recibo_print.h"
#include "entries/recibo.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QPointer<frmrecibo> the_window;
} // namespace

frmrecibo* frmrecibo::instance() {
    if (!the_window) the_window = new frmrecibo();
    return the_window;
}

frmrecibo* frmrecibo::aberto() {
    return the_window.data();
}

frmrecibo::frmrecibo()
    : QWidget(nullptr, Qt::Window), txtpagamento(named(new QLineEdit, "txtpagamento")),
      txtrecibo(named(new QLineEdit, "txtrecibo")), txtreferente(named(new QLineEdit, "txtreferente")),
      txtvalor(named(new money_field, "txtvalor")), txtdata(named(new date_field, "txtdata")),
      cmdimprimir(named(new QPushButton(QStringLiteral("&Imprimir")), "cmdimprimir")) {
    setObjectName(QStringLiteral("frmrecibo"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Recibo"));
    txtvalor->setToolTip(QStringLiteral("Digite o valor"));
    // shown with the prefix once left; nothing typed, or a leading separator, gives "R$ 00,00"
    txtvalor->set_leaving_prefix(QStringLiteral("R$ "), true);

    for (QLineEdit* e : {txtpagamento, txtrecibo, txtreferente})
        e->setMinimumWidth(320);
    auto* g = new QGridLayout;
    const auto linha = [g](int row, const char* rotulo, QWidget* campo) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, 0);
        g->addWidget(campo, row, 1);
    };
    linha(0, "Pagamento para:", txtpagamento);
    linha(1, "Recibo de:", txtrecibo);
    linha(2, "Referente a:", txtreferente);
    linha(3, "Valor:", txtvalor);
    linha(4, "Data:", txtdata);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdimprimir);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addLayout(botoes);
    resize(480, 230);

    install_field_conduct_all(this);
    connect(txtdata, &date_field::calendar_opened, this,
            [this] { sempretopo(QStringLiteral("desativo"), this); });
    connect(txtdata, &date_field::calendar_closed, this,
            [this] { sempretopo(QStringLiteral("ativo"), this); });
    connect(cmdimprimir, &QPushButton::clicked, this, [this] { cmdimprimir_click(); });
    sempretopo(QStringLiteral("ativo"), this);
}

frmrecibo::~frmrecibo() {
    if (the_window == this) the_window = nullptr;
}

void frmrecibo::abrir(shell::ledger which, double codigo) {
    platform::ignore_errors([&] { setWindowTitle(entries::legenda_recibo(which)); });
    show_form(this);
    if (codigo <= 0) return;
    const entries::recibo_campos c = entries::ler_recibo(which, codigo, platform::today());
    if (c.pagamento) txtpagamento->setText(*c.pagamento);
    if (c.recibo) txtrecibo->setText(*c.recibo);
    if (c.referente) txtreferente->setText(*c.referente);
    txtdata->set_text(c.data);
    if (c.valor) txtvalor->setText(*c.valor);
}

void frmrecibo::cmdimprimir_click() {
    const entries::recibo_texto r{windowTitle(),        txtpagamento->text(), txtrecibo->text(),
                                  txtreferente->text(), txtvalor->text(),     txtdata->text()};
    if (entries::imprimir_recibo(r) == entries::impressao::falhou)
        msgbox_over(this, entries::erro_imprimir_recibo, platform::exclamation, QStringLiteral("Erro"));
}
