#include "analysis/ui/frmgrafico.h"

#include "analysis/period_summary.h"
#include "analysis/print/chart_print.h"
#include "platform/errors.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPointer<frmgrafico> the_window;

const QString titulo_inicial = QStringLiteral("GRÁFICO DE CONTAS APAGAR");

QStringList colunas_inicial() {
    return {QStringLiteral("Total"), QStringLiteral("Pendente"), QStringLiteral("Concluído")};
}

std::array<QString, 6> valores_zero() {
    const QString n = QStringLiteral("0 cadastros"), r = QStringLiteral("R$ 0,00");
    return {n, r, r, n, r, n};
}

} // namespace

frmgrafico* frmgrafico::instance() {
    return single_window(the_window, [] {
        auto* w = new frmgrafico();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmgrafico* frmgrafico::aberto() {
    return loaded_window(the_window);
}

frmgrafico::frmgrafico() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmgrafico"));
    painel = new chart_panel("mgrafico", this);
    mgrafico = painel->chart;
    lblestatistica = named(painel->heading, "lblestatistica");
    figuras.build(painel->figures, analysis::rotulos_despesas(false));
    lbl1 = figuras.lbl[0];
    lbl2 = figuras.lbl[1];
    lbl3 = figuras.lbl[2];
    lbl4 = figuras.lbl[3];
    lbl5 = figuras.lbl[4];
    lbl6 = figuras.lbl[5];
    lbltotalcad = figuras.lbltotalcad;
    lbltotal = figuras.lbltotal;
    lbltotalpg = figuras.lbltotalpg;
    lblqtdpg = figuras.lblqtdpg;
    lbltotalpen = figuras.lbltotalpen;
    lblqtdpen = figuras.lblqtdpen;
    Picture1 = named(new QLabel(this), "Picture1");
    Picture1->hide();
    cmdimprimir = named(new QPushButton(QStringLiteral("Imprimir Gráfico"), this), "cmdimprimir");
    cmdsair = named(new QPushButton(QStringLiteral("Sair"), this), "cmdsair");
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdsair);
    auto* v = new QVBoxLayout(this);
    v->addWidget(painel, 1);
    v->addLayout(botoes);
    connect(cmdimprimir, &QPushButton::clicked, this, &frmgrafico::imprimir);
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);
    resize(720, 640);
    limpar();
}

void frmgrafico::limpar() {
    setWindowTitle(QStringLiteral("Gráfico"));
    mgrafico->set_title(titulo_inicial);
    mgrafico->set_columns(colunas_inicial());
    lblestatistica->setText(QStringLiteral("Estatísticas"));
    figuras.set_captions(analysis::rotulos_despesas(false));
    figuras.set_values(valores_zero());
    for (QLabel* l : {lbl5, lbl6, lbltotalpen, lblqtdpen})
        l->show();
}

void frmgrafico::definir_rotulos(const std::array<QString, 6>& captions) {
    figuras.set_captions(captions);
}

void frmgrafico::mostrar_figuras(const analysis::figuras& f) {
    figuras.set_values({f.lbltotalcad, f.lbltotal, f.lbltotalpg, f.lblqtdpg, f.lbltotalpen, f.lblqtdpen});
    for (int c = 0; c < 3; ++c)
        mgrafico->set_data(c, f.colunas[std::size_t(c)]);
}

void frmgrafico::imprimir() {
    analysis::pagina_grafico g;
    platform::ignore_errors([&] {
        g.figura = mgrafico->picture();
        Picture1->setPixmap(QPixmap::fromImage(g.figura));
        g.rotulos = figuras.lines();
    });
    const bool saiu = analysis::imprimir_grafico(g, windowTitle());
    Picture1->clear();
    if (saiu) close();
}
