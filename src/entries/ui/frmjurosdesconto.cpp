#include "entries/ui/frmjurosdesconto.h"

#include "entries/juros.h"
#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QPointer<frmjurosdesconto> the_window;
} // namespace

frmjurosdesconto* frmjurosdesconto::instance() {
    if (!the_window) the_window = new frmjurosdesconto();
    return the_window;
}

frmjurosdesconto::frmjurosdesconto()
    : QWidget(nullptr, Qt::Window), cboorigem(chosen_box("cboorigem")),
      txttotal(named(new QLineEdit, "txttotal")),
      lbltipo(named(new QLabel(QStringLiteral("Juros:")), "lbltipo")),
      txtporcentagem(named(new QLineEdit, "txtporcentagem")),
      lblporcentagem(named(new QLabel(QStringLiteral("Total de juros:")), "lblporcentagem")),
      txtresultado(named(new QLineEdit, "txtresultado")),
      lblnovovalor(named(new QLabel(QStringLiteral("Novo valor:")), "lblnovovalor")),
      txtnovovalor(named(new QLineEdit, "txtnovovalor")),
      cmdcalcular(named(new QPushButton(QStringLiteral("&Calcular")), "cmdcalcular")) {
    setObjectName(QStringLiteral("frmjurosdesconto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Calculo de juros e descontos"));
    cboorigem->addItems({QStringLiteral("Juros"), QStringLiteral("Desconto")});
    cboorigem->setCurrentIndex(0);
    cboorigem->setToolTip(QStringLiteral("Selecione a tipo de operação juros/desconto"));

    auto* g = new QGridLayout;
    g->addWidget(new QLabel(QStringLiteral("Tipo de operação:")), 0, 0);
    g->addWidget(cboorigem, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Valor total:")), 1, 0);
    g->addWidget(txttotal, 1, 1);
    g->addWidget(lbltipo, 2, 0);
    g->addWidget(txtporcentagem, 2, 1);
    g->addWidget(lblporcentagem, 3, 0);
    g->addWidget(txtresultado, 3, 1);
    g->addWidget(lblnovovalor, 4, 0);
    g->addWidget(txtnovovalor, 4, 1);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdcalcular);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addLayout(botoes);
    resize(380, 220);

    install_field_conduct_all(this);
    connect(cboorigem, &QComboBox::activated, this, [this] { cboorigem_click(); });
    connect(cmdcalcular, &QPushButton::clicked, this, [this] { cmdcalcular_click(); });
}

frmjurosdesconto::~frmjurosdesconto() {
    if (the_window == this) the_window = nullptr;
}

void frmjurosdesconto::cboorigem_click() {
    const bool juros = cboorigem->currentText() == QLatin1String("Juros");
    lbltipo->setText(juros ? QStringLiteral("Juros:") : QStringLiteral("Desconto:"));
    lblporcentagem->setText(juros ? QStringLiteral("Total de juros:") : QStringLiteral("Total de desconto:"));
}

void frmjurosdesconto::cmdcalcular_click() {
    const entries::juros_desconto r = entries::calcular_juros_desconto(
        txttotal->text(), txtporcentagem->text(), cboorigem->currentText() == QLatin1String("Juros"));
    if (r.resultado) txtresultado->setText(*r.resultado);
    if (r.novovalor) txtnovovalor->setText(*r.novovalor);
    if (r.erro) platform::msgbox(entries::erro_valores_altos, platform::exclamation, QStringLiteral("Erro"));
}
