#include "registers/ui/frmgeradorad.h"

#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
QPointer<frmgeradorad> a_janela;
} // namespace

frmgeradorad* frmgeradorad::instance() {
    if (!a_janela || a_janela->descarregado_) a_janela = new frmgeradorad();
    return a_janela;
}

frmgeradorad* frmgeradorad::aberto() {
    return a_janela && !a_janela->descarregado_ ? a_janela.data() : nullptr;
}

frmgeradorad::frmgeradorad() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmgeradorad"_s);
    setWindowTitle(u"Lista de"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    lbltitulo = named(new QLabel(u"Lista de"_s), "lbltitulo");
    cbolista = typed_box("cbolista");
    cmdadicionar = named(new QPushButton(u"&Adicionar"_s), "cmdadicionar");
    connect(cmdadicionar, &QPushButton::clicked, this, &frmgeradorad::cmdadicionar_click);
    auto* linha = new QHBoxLayout;
    linha->addWidget(cbolista, 1);
    linha->addWidget(cmdadicionar);
    auto* v = new QVBoxLayout(this);
    v->addWidget(lbltitulo);
    v->addLayout(linha);
    install_field_conduct_all(this);
    setMinimumWidth(440);
    // opening: on top of the others
    sempretopo(u"ativo"_s, this);
}

void frmgeradorad::abrir(const registers::pedido_lista& pedido) {
    frmgeradorad* w = instance();
    show_form(w);
    w->setWindowTitle(pedido.caption);
    w->lbltitulo->setText(pedido.titulo);
    w->adicionar_ = pedido.adicionar;
    w->carregar(pedido.consulta, pedido.campo);
    w->modificar(pedido.tipo);
}

void frmgeradorad::carregar(const QString& consulta, const QString& campo) {
    cbolista->clear();
    fill_names(cbolista, registers::ler_lista(consulta, campo));
}

void frmgeradorad::modificar(const QString& tipo) {
    tipo_ = tipo;
}

void frmgeradorad::cmdadicionar_click() {
    // an empty box adds an empty line
    if (adicionar_) adicionar_(tipo_, cbolista->currentText());
    descarregar();
}

void frmgeradorad::descarregar() {
    descarregado_ = true;
    hide();
    deleteLater();
}

void frmgeradorad::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    e->accept();
}
