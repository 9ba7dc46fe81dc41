#include "analysis/ui/frmconfrelatorio2.h"

#include "analysis/custom_report.h"
#include "analysis/filter_kit.h"
#include "output/ui/frmrelatorio.h"
#include "output/ui/report_instances.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/names.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <optional>

using analysis::consolidado;

namespace {

QPointer<frmconfrelatorio2> the_window;

struct nomes_pagina {
    const char *pagina, *titulo, *rotulo, *combo, *d1, *d2, *optdata, *optvenc, *gerar, *cancelar;
};

// The centre pages carry their old names; the other three are ours.
const nomes_pagina nomes[] = {
    {"piccentrocusto", "Relatório de Centro de custo", "Selecione o centro de custo:", "cbocentrocusto",
     "cbodata1c", "cbodata2c", "optdatac", "optvencc", "cmdcentrocusto", "cmdcancela1"},
    {"piccentrolucro", "Relatório de Centro de lucro", "Selecione o centro de lucro:", "cbocentrolucro",
     "cbodata1l", "cbodata2l", "optdatal", "optvencl", "cmdcentrolucro", "cmdcancela2"},
    {"picfornecedor", "Relatório por fornecedor", "Selecione o fornecedor:", "cbofornecedor", "cbodata1f",
     "cbodata2f", "optdataf", "optvencf", "cmdfornecedor", "cmdcancela3"},
    {"piccliente", "Relatório por cliente", "Selecione o cliente:", "cbocliente", "cbodata1cl", "cbodata2cl",
     "optdatacl", "optvenccl", "cmdcliente", "cmdcancela4"},
    {"picpagamento", "Relatório por forma de pagamento", "Selecione a forma de pagamento:", "cbopagamento",
     "cbodata1pg", "cbodata2pg", "optdatapg", "optvencpg", "cmdpagamento", "cmdcancela5"},
};

QString caption_de(consolidado c) {
    switch (c) {
    case consolidado::centro_custo:
        return QStringLiteral("Relatório de centro de custo");
    case consolidado::centro_lucro:
        return QStringLiteral("Relatório de centro de lucro");
    case consolidado::fornecedor:
        return QStringLiteral("Relatório por fornecedor");
    case consolidado::cliente:
        return QStringLiteral("Relatório por cliente");
    case consolidado::pagamento:
        break;
    }
    return QStringLiteral("Relatório por forma de pagamento");
}

} // namespace

frmconfrelatorio2* frmconfrelatorio2::instance() {
    return single_window(the_window, [] {
        auto* w = new frmconfrelatorio2();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmconfrelatorio2::frmconfrelatorio2() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmconfrelatorio2"));
    setWindowTitle(caption_de(consolidado::centro_custo));
    auto* v = new QVBoxLayout(this);
    menu = named(new QMenuBar(this), "menu");
    v->setMenuBar(menu);
    QMenu* outros = menu->addMenu(QStringLiteral("Outros relatórios"));
    outros->setObjectName(QStringLiteral("mnuoutros"));
    const struct {
        const char* nome;
        const char* texto;
        consolidado c;
    } itens[] = {{"mnurelfornecedor", "Relatório por fornecedor (despesas)", consolidado::fornecedor},
                 {"mnurelcliente", "Relatório por cliente (receitas)", consolidado::cliente},
                 {"mnurelpagamento", "Relatório por forma de pagamento", consolidado::pagamento}};
    for (const auto& i : itens) {
        QAction* a = outros->addAction(QString::fromUtf8(i.texto));
        a->setObjectName(QString::fromLatin1(i.nome));
        const consolidado c = i.c;
        connect(a, &QAction::triggered, this, [this, c] { mostrar_pagina(c); });
    }
    auto* pilha = new QStackedWidget;
    v->addWidget(pilha);
    for (consolidado c : {consolidado::centro_custo, consolidado::centro_lucro, consolidado::fornecedor,
                          consolidado::cliente, consolidado::pagamento}) {
        montar(c);
        pilha->addWidget(pag(c).w);
        connect(pag(c).gerar, &QPushButton::clicked, this, [this, c] { gerar(c); });
        connect(pag(c).cancelar, &QPushButton::clicked, this, &QWidget::close);
    }
    piccentrocusto = pag(consolidado::centro_custo).w;
    piccentrolucro = pag(consolidado::centro_lucro).w;
    picfornecedor = pag(consolidado::fornecedor).w;
    piccliente = pag(consolidado::cliente).w;
    picpagamento = pag(consolidado::pagamento).w;
    cbocentrocusto = pag(consolidado::centro_custo).combo;
    cbocentrolucro = pag(consolidado::centro_lucro).combo;
    cbofornecedor = pag(consolidado::fornecedor).combo;
    cbocliente = pag(consolidado::cliente).combo;
    cbopagamento = pag(consolidado::pagamento).combo;
    resize(560, 300);
}

void frmconfrelatorio2::montar(consolidado c) {
    const nomes_pagina& n = nomes[std::size_t(c)];
    pagina& p = paginas_[std::size_t(c)];
    p.w = named(new QWidget, n.pagina);
    auto* v = new QVBoxLayout(p.w);
    auto* titulo = new QLabel(QString::fromUtf8(n.titulo));
    QFont f = titulo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.2);
    titulo->setFont(f);
    v->addWidget(titulo);
    auto* g = new QGridLayout;
    g->setColumnStretch(1, 1);
    p.combo = typed_box(n.combo);
    g->addWidget(new QLabel(QString::fromUtf8(n.rotulo)), 0, 0);
    g->addWidget(p.combo, 0, 1);
    auto* datas = new QHBoxLayout;
    p.d1 = named(new date_field, n.d1);
    p.d2 = named(new date_field, n.d2);
    datas->addWidget(p.d1);
    datas->addWidget(new QLabel(QStringLiteral("e")));
    datas->addWidget(p.d2);
    datas->addStretch(1);
    g->addWidget(new QLabel(QStringLiteral("Selecione a data:")), 1, 0);
    g->addLayout(datas, 1, 1);
    auto* base = new QHBoxLayout;
    p.optdata = named(new QRadioButton(QStringLiteral("Data de Cadastro")), n.optdata);
    p.optvenc = named(new QRadioButton(QStringLiteral("Data de Vencimento")), n.optvenc);
    p.optdata->setChecked(true);
    base->addWidget(p.optdata);
    base->addWidget(p.optvenc);
    base->addStretch(1);
    g->addWidget(new QLabel(QStringLiteral("Baseado em:")), 2, 0);
    g->addLayout(base, 2, 1);
    if (c == consolidado::pagamento) {
        cbotabela = chosen_box("cbotabela");
        cbotabela->addItems({QStringLiteral("Despesas"), QStringLiteral("Receitas")});
        g->addWidget(new QLabel(QStringLiteral("Contas:")), 3, 0);
        g->addWidget(cbotabela, 3, 1);
    }
    v->addLayout(g);
    v->addStretch(1);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    p.gerar = named(new QPushButton(QStringLiteral("Visualizar na tela")), n.gerar);
    p.cancelar = named(new QPushButton(QStringLiteral("Cancelar")), n.cancelar);
    botoes->addWidget(p.gerar);
    botoes->addWidget(p.cancelar);
    v->addLayout(botoes);
}

void frmconfrelatorio2::carregar(consolidado c) {
    const struct {
        const char* consulta;
        const QString& coluna;
    } fontes[] = {{"Select * from pcontapagar", store::coluna::descricao},
                  {"Select * from pcontareceber", store::coluna::descricao},
                  {"select * from fornecedor", store::coluna::nome},
                  {"select * from cliente", store::coluna::nome},
                  {"Select * from fpagamento", store::coluna::pagamento}};
    QComboBox* combo = pag(c).combo;
    // the centre lists add to what they hold; the others start afresh
    if (c != consolidado::centro_custo && c != consolidado::centro_lucro) combo->clear();
    platform::ignore_errors([&] {
        // each row sets the text as it is added: the last one stays selected
        for (const QString& s : analysis::valores_da_consulta(
                 QString::fromLatin1(fontes[std::size_t(c)].consulta), fontes[std::size_t(c)].coluna)) {
            combo->setEditText(s);
            combo->addItem(s);
        }
        if (combo->count() > 0) combo->setCurrentIndex(combo->count() - 1);
    });
}

void frmconfrelatorio2::mostrar_pagina(consolidado c) {
    setWindowTitle(caption_de(c));
    static_cast<QStackedWidget*>(pag(c).w->parentWidget())->setCurrentWidget(pag(c).w);
    carregar(c);
    show_form(this);
}

consolidado frmconfrelatorio2::pagina_visivel() const {
    for (std::size_t i = 0; i < paginas_.size(); ++i)
        if (paginas_[i].w->isVisible()) return consolidado(i);
    return consolidado::centro_custo;
}

void frmconfrelatorio2::gerar(consolidado c) {
    platform::ignore_errors([&] {
        const pagina& p = pag(c);
        analysis::pedido_consolidado pedido;
        pedido.tipo = c;
        pedido.data1 = p.d1->date();
        pedido.data2 = p.d2->date();
        if (!pedido.data1.isValid() || !pedido.data2.isValid()) {
            platform::msgbox(analysis::msg_datas_consolidado, platform::exclamation, QStringLiteral("Erro"));
            return;
        }
        pedido.valor = p.combo->currentText();
        if (vb::trim_blanks(pedido.valor).isEmpty()) {
            platform::msgbox(analysis::msg_selecao(c), platform::exclamation, store::app_title);
            return;
        }
        pedido.data_cadastro = p.optdata->isChecked();
        pedido.despesas = c != consolidado::pagamento || cbotabela->currentIndex() <= 0;
        const QString consulta = analysis::consulta_consolidado(pedido);
        const QPointer<frmconfrelatorio2> self(this);
        std::optional<waiting_window> espera;
        analysis::lista_lida r = analysis::ler_consolidado(
            pedido, consulta,
            [&](long n) {
                espera.emplace(this, QStringLiteral("Carregando relatório"), analysis::texto_carregando);
                espera->set_range(0, int(n));
            },
            [&](long i) {
                if (!espera) return;
                espera->set_value(int(i));
                if (i % 256 == 0) waiting_window::yield();
            });
        espera.reset();
        if (r.vazio) {
            platform::msgbox(analysis::msg_sem_resultado_consolidado, platform::information,
                             QStringLiteral("Info"));
            return;
        }
        const QString d1 = p.d1->text(), d2 = p.d2->text();
        analysis::criterios_relatorio datas;
        datas.data = true;
        datas.data1 = pedido.data1;
        datas.data2 = pedido.data2;
        datas.data_cadastro = pedido.data_cadastro;
        frmrelatorio* w = output::relatorio_unico();
        const auto lista = analysis::tabela_de(pedido) == shell::ledger::pagar ? frmrelatorio::lista::pagar
                                                                               : frmrelatorio::lista::receber;
        const QString geral = analysis::geral_consolidado(pedido, r.tally, d1, d2);
        w->preencher(lista, std::move(r.linhas),
                     {QStringLiteral("Relatório"), analysis::tipo_consolidado(c),
                      analysis::subtitulo_relatorio(datas, d1, d2), geral});
        show_window(w);
        if (self) close();
    });
}
