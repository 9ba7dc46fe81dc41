#include "registers/ui/frmcadservord.h"

#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "registers/service_order.h"
#include "registers/ui/frmordemserv.h"
#include "registers/ui/order_item_form.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace {
QPointer<frmcadservord> the_window;
} // namespace

frmcadservord* frmcadservord::instance() {
    if (!the_window) the_window = new frmcadservord();
    return the_window;
}

frmcadservord* frmcadservord::aberto() {
    return the_window.data();
}

frmcadservord::frmcadservord()
    : QWidget(nullptr, Qt::Window), txtnome(named(new QLineEdit, "txtnome")),
      txtdescricao(named(new QLineEdit, "txtdescricao")), txtvalor(registers::campo_valor_ordem()),
      cmdadicionar(named(new QPushButton(QStringLiteral("&Adicionar")), "cmdadicionar")),
      cmdcancelar(named(new QPushButton(QStringLiteral("&Cancelar")), "cmdcancelar")) {
    setObjectName(QStringLiteral("frmcadservord"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Adicionar novo serviço"));
    registers::montar_item_ordem(
        this, {{"Tipo de serviço:", txtnome}, {"Descrição:", txtdescricao}, {"Valor:", txtvalor}},
        cmdadicionar, cmdcancelar);
    connect(cmdadicionar, &QPushButton::clicked, this, [this] { cmdadicionar_click(); });
    connect(cmdcancelar, &QPushButton::clicked, this, [this] { close(); });
}

frmcadservord::~frmcadservord() {
    if (the_window == this) the_window = nullptr;
}

void frmcadservord::abrir() {
    show_form(this);
    txtnome->setFocus();
}

void frmcadservord::cmdadicionar_click() {
    const registers::servico_ordem s{txtnome->text(), txtdescricao->text(), txtvalor->text()};
    if (const auto falta = registers::falta_servico(s)) {
        registers::falta_campo(this, *falta);
        return;
    }
    frmordemserv::instance()->adicionar_servico(s);
    close();
}
