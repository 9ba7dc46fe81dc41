#include "registers/ui/frmretcompromisso.h"

#include "platform/clock.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "registers/ui/frmcompromisso.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
QPointer<frmretcompromisso> the_window;
} // namespace

frmretcompromisso* frmretcompromisso::instance() {
    if (!the_window) the_window = new frmretcompromisso();
    return the_window;
}

frmretcompromisso* frmretcompromisso::carregada() {
    return the_window.data();
}

frmretcompromisso::frmretcompromisso()
    : list_window("frmretcompromisso", QStringLiteral("Relatórios de compromissos"), new list_view),
      lstcompromisso(lista_), lblbaixo(named(new QLabel, "lblbaixo")) {
    lstcompromisso->setObjectName(QStringLiteral("lstcompromisso"));
    montar_lista_compromissos(lstcompromisso);
    connect(lstcompromisso, &list_view::header_clicked, this,
            [this](int c) { lstcompromisso->ordenarlista(c); });
    novo_botao("txt", QStringLiteral("Salvar em TXT"), [this] { txt(); });
    novo_botao("html", QStringLiteral("Salvar em HTML"), [this] { HTML(); });
    novo_botao("imprimir", QStringLiteral("Imprimir"), [this] { Imprimir(); });
    tbrbarra->addSeparator();
    novo_botao("fechar", QStringLiteral("Fechar"), [this] { close(); });
    auto* v = new QVBoxLayout(this);
    v->addWidget(tbrbarra);
    v->addWidget(lbltopo);
    v->addWidget(lstcompromisso, 1);
    v->addWidget(barraprogresso);
    v->addWidget(lblbaixo);
    resize(820, 480);
    carregar_fundo();
}

frmretcompromisso::~frmretcompromisso() {
    if (the_window == this) the_window = nullptr;
}

void frmretcompromisso::preencher(registers::relatorio_compromissos r) {
    const QDate hoje = platform::today();
    lstcompromisso->clear_rows();
    lstcompromisso->add_rows(registers::carregar(registers::comando_relatorio(r, hoje), hoje));
    lbltopo->setText(registers::topo_relatorio(r, hoje));
    lblbaixo->setText(registers::total_compromissos(lstcompromisso->row_count()));
    show_window(this);
}

list_window::saida frmretcompromisso::textos_saida() const {
    return saida_compromissos(lbltopo->text(), lblbaixo->text());
}
