#include "registers/ui/frmordemserv.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"
#include "registers/print/service_order_print.h"
#include "registers/ui/frmcadprodorc.h"
#include "registers/ui/frmcadservord.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QPointer<frmordemserv> the_window;

QPushButton* botao(const char* nome, const char* legenda) {
    return named(new QPushButton(QString::fromUtf8(legenda)), nome);
}

QWidget* aba(list_view* lista, std::initializer_list<QPushButton*> botoes) {
    auto* w = new QWidget;
    auto* h = new QHBoxLayout(w);
    h->addWidget(lista, 1);
    auto* v = new QVBoxLayout;
    for (QPushButton* b : botoes)
        v->addWidget(b);
    v->addStretch();
    h->addLayout(v);
    return w;
}

// A row of the list, or nothing without a selection.
void remover_selecionada(list_view* l) {
    platform::ignore_errors([l] {
        const int row = l->selected_row();
        if (row >= 0 && row < l->row_count()) l->remove_row(row);
    });
}

} // namespace

frmordemserv* frmordemserv::instance() {
    if (!the_window) the_window = new frmordemserv();
    return the_window;
}

frmordemserv* frmordemserv::aberto() {
    return the_window.data();
}

frmordemserv::frmordemserv()
    : QWidget(nullptr, Qt::Window), txtempresa(named(new QLineEdit, "txtempresa")),
      txtendereco(named(new QLineEdit, "txtendereco")), txttel(named(new QLineEdit, "txttel")),
      txtcliente(named(new QLineEdit, "txtcliente")), XTab1(named(new QTabWidget, "XTab1")),
      lstprodutos(named(new list_view, "lstprodutos")), lstservicos(named(new list_view, "lstservicos")),
      cmdadpro(botao("cmdadpro", "Adicionar")), cmdrempro(botao("cmdrempro", "Remover")),
      cmdprodtudo(botao("cmdprodtudo", "Remover todos")), cmdadserv(botao("cmdadserv", "Adicionar")),
      cmdremserv(botao("cmdremserv", "Remover")), cmd(botao("cmd", "Remover todos")),
      cmdimprimir(botao("cmdimprimir", "&Imprimir")), cmdsair(botao("cmdsair", "&Sair")) {
    setObjectName(QStringLiteral("frmordemserv"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("ORDEM DE SERVIÇO"));

    for (const auto& [titulo, largura] :
         std::initializer_list<std::pair<const char*, double>>{{"Nome do produto", 2000},
                                                               {"Marca", 1300},
                                                               {"Modelo", 1300},
                                                               {"Nº de série", 1300},
                                                               {"Descrição", 2200},
                                                               {"Valor", 1300},
                                                               {"Quantidade", 1000}})
        lstprodutos->add_column(QString::fromUtf8(titulo), largura);
    lstservicos->add_column(QStringLiteral("Tipo de serviço"), 2400);
    lstservicos->add_column(QStringLiteral("Descrição"), 4000);
    lstservicos->add_column(QStringLiteral("Valor"), 1300);
    XTab1->addTab(aba(lstprodutos, {cmdadpro, cmdrempro, cmdprodtudo}), QStringLiteral("Produtos"));
    XTab1->addTab(aba(lstservicos, {cmdadserv, cmdremserv, cmd}), QStringLiteral("Serviços"));

    auto* g = new QGridLayout;
    const auto linha = [g](int row, const char* rotulo, QWidget* campo) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, 0);
        g->addWidget(campo, row, 1);
    };
    linha(0, "Empresa:", txtempresa);
    linha(1, "Endereço:", txtendereco);
    linha(2, "Telefone:", txttel);
    linha(3, "Cliente:", txtcliente);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdsair);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addWidget(XTab1, 1);
    v->addLayout(botoes);
    resize(760, 520);

    install_field_conduct_all(this);
    connect(cmdadpro, &QPushButton::clicked, this, [] { frmcadprodorc::instance()->abrir(); });
    connect(cmdadserv, &QPushButton::clicked, this, [] { frmcadservord::instance()->abrir(); });
    connect(cmdrempro, &QPushButton::clicked, this, [this] { cmdrempro_click(); });
    connect(cmdremserv, &QPushButton::clicked, this, [this] { cmdremserv_click(); });
    connect(cmdprodtudo, &QPushButton::clicked, this, [this] { lstprodutos->clear_rows(); });
    connect(cmd, &QPushButton::clicked, this, [this] { lstservicos->clear_rows(); });
    connect(cmdimprimir, &QPushButton::clicked, this, [this] { cmdimprimir_click(); });
    connect(cmdsair, &QPushButton::clicked, this, [this] { close(); });
}

frmordemserv::~frmordemserv() {
    if (the_window == this) the_window = nullptr;
    // the small entry windows belong to the order
    if (frmcadprodorc* f = frmcadprodorc::aberto()) f->close();
    if (frmcadservord* f = frmcadservord::aberto()) f->close();
}

void frmordemserv::adicionar_produto(const registers::produto_ordem& p) {
    lstprodutos->add_rows({{p.nome, p.marca, p.modelo, p.serie, p.descricao, p.valor, p.quantidade}});
}

void frmordemserv::adicionar_servico(const registers::servico_ordem& s) {
    lstservicos->add_rows({{s.tipo, s.descricao, s.valor}});
}

std::vector<registers::produto_ordem> frmordemserv::produtos() const {
    std::vector<registers::produto_ordem> out;
    for (int r = 0; r < lstprodutos->row_count(); ++r) {
        const auto t = [&](int c) { return lstprodutos->text(r, c); };
        out.push_back({t(0), t(1), t(2), t(3), t(4), t(5), t(6)});
    }
    return out;
}

std::vector<registers::servico_ordem> frmordemserv::servicos() const {
    std::vector<registers::servico_ordem> out;
    for (int r = 0; r < lstservicos->row_count(); ++r)
        out.push_back({lstservicos->text(r, 0), lstservicos->text(r, 1), lstservicos->text(r, 2)});
    return out;
}

void frmordemserv::cmdrempro_click() {
    remover_selecionada(lstprodutos);
}

void frmordemserv::cmdremserv_click() {
    remover_selecionada(lstservicos);
}

void frmordemserv::cmdimprimir_click() {
    const registers::cabecalho_ordem c{txtempresa->text(), txtendereco->text(), txttel->text(),
                                       txtcliente->text()};
    if (registers::imprimir_ordem(c, produtos(), servicos()) == registers::impressao_ordem::falhou)
        platform::msgbox(registers::erro_imprimir_ordem, platform::critical, QStringLiteral("Erro"));
}
