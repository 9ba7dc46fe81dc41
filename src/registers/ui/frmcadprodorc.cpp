#include "registers/ui/frmcadprodorc.h"

#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "registers/service_order.h"
#include "registers/ui/frmordemserv.h"
#include "registers/ui/order_item_form.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace {
QPointer<frmcadprodorc> the_window;
} // namespace

frmcadprodorc* frmcadprodorc::instance() {
    if (!the_window) the_window = new frmcadprodorc();
    return the_window;
}

frmcadprodorc* frmcadprodorc::aberto() {
    return the_window.data();
}

frmcadprodorc::frmcadprodorc()
    : QWidget(nullptr, Qt::Window), txtnome(named(new QLineEdit, "txtnome")),
      txtmarca(named(new QLineEdit, "txtmarca")), txtmodelo(named(new QLineEdit, "txtmodelo")),
      txtserie(named(new QLineEdit, "txtserie")), txtdescricao(named(new QLineEdit, "txtdescricao")),
      txtvalor(registers::campo_valor_ordem()), txtquantidade(named(new QLineEdit, "txtquantidade")),
      cmdadicionar(named(new QPushButton(QStringLiteral("&Adicionar")), "cmdadicionar")),
      cmdcancelar(named(new QPushButton(QStringLiteral("&Cancelar")), "cmdcancelar")) {
    setObjectName(QStringLiteral("frmcadprodorc"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Cadastrar novo produto"));
    registers::montar_item_ordem(this,
                                 {{"Nome:", txtnome},
                                  {"Marca:", txtmarca},
                                  {"Modelo:", txtmodelo},
                                  {"Nº de série:", txtserie},
                                  {"Descrição:", txtdescricao},
                                  {"Valor:", txtvalor},
                                  {"Quantidade:", txtquantidade}},
                                 cmdadicionar, cmdcancelar);
    connect(cmdadicionar, &QPushButton::clicked, this, [this] { cmdadicionar_click(); });
    connect(cmdcancelar, &QPushButton::clicked, this, [this] { close(); });
}

frmcadprodorc::~frmcadprodorc() {
    if (the_window == this) the_window = nullptr;
}

void frmcadprodorc::abrir() {
    show_form(this);
    txtnome->setFocus();
}

void frmcadprodorc::cmdadicionar_click() {
    const registers::produto_ordem p{txtnome->text(),      txtmarca->text(),     txtmodelo->text(),
                                     txtserie->text(),     txtdescricao->text(), txtvalor->text(),
                                     txtquantidade->text()};
    if (const auto falta = registers::falta_produto(p)) {
        registers::falta_campo(this, *falta);
        return;
    }
    frmordemserv::instance()->adicionar_produto(p);
    close();
}
