#include "analysis/ui/frmestatisticas.h"

#include "analysis/period_summary.h"
#include "analysis/software_info.h"
#include "platform/errors.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QPointer<frmestatisticas> the_window;
} // namespace

frmestatisticas* frmestatisticas::instance() {
    return single_window(the_window, [] {
        auto* w = new frmestatisticas();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmestatisticas* frmestatisticas::aberto() {
    return loaded_window(the_window);
}

frmestatisticas::frmestatisticas() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmestatisticas"));
    auto* pares = new label_pairs(this);
    figuras.build(pares, analysis::rotulos_despesas(true));
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
    const auto bd = pares->add("lblbdlocal_rotulo", QStringLiteral("Local do banco de dados:"), "lblbdlocal");
    lblbdlocal = bd.value;
    lblbdlocal->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblbdtamanho =
        pares->add("lblbdtamanho_rotulo", QStringLiteral("Tamanho do banco de dados:"), "lblbdtamanho").value;
    cmdcancelar = named(new QPushButton(QStringLiteral("Cancelar"), this), "cmdcancelar");
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addWidget(pares);
    v->addStretch(1);
    v->addLayout(botoes);
    connect(cmdcancelar, &QPushButton::clicked, this, &QWidget::close);
    limpar();
    resize(560, sizeHint().height());
}

void frmestatisticas::limpar() {
    setWindowTitle(QStringLiteral("Estatisticas"));
    figuras.set_captions(analysis::rotulos_despesas(true));
    const QString n = QStringLiteral("0 cadastros"), r = QStringLiteral("R$ 0,00");
    figuras.set_values({n, r, r, n, r, n});
    // where the data file lies and its size, read each time the window is filled
    platform::ignore_errors([this] { lblbdlocal->setText(analysis::arquivo_dados_programa()); });
    platform::ignore_errors(
        [this] { lblbdtamanho->setText(analysis::tamanho_arquivo(analysis::arquivo_dados_programa())); });
}

void frmestatisticas::definir_rotulos(const std::array<QString, 6>& captions) {
    figuras.set_captions(captions);
}

void frmestatisticas::mostrar_figuras(const analysis::figuras& f) {
    figuras.set_values({f.lbltotalcad, f.lbltotal, f.lbltotalpg, f.lblqtdpg, f.lbltotalpen, f.lblqtdpen});
}
