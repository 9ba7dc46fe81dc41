#include "entries/ui/frmjurosparcelado.h"

#include "entries/juros.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QPointer<frmjurosparcelado> the_window;
} // namespace

frmjurosparcelado* frmjurosparcelado::instance() {
    if (!the_window) the_window = new frmjurosparcelado();
    return the_window;
}

frmjurosparcelado::frmjurosparcelado()
    : QWidget(nullptr, Qt::Window), txtvalor(named(new QLineEdit, "txtvalor")),
      txtparcelas(named(new QLineEdit, "txtparcelas")), txtdias(named(new QLineEdit, "txtdias")),
      txtdata(named(new date_field, "txtdata")), txtjurosmes(named(new QLineEdit, "txtjurosmes")),
      optfixo(named(new QRadioButton(QStringLiteral("Juros fixo")), "optfixo")),
      optmes(named(new QRadioButton(QStringLiteral("Juros ao mês")), "optmes")),
      txtvalorjuros(named(new QLineEdit, "txtvalorjuros")),
      txttotaljuros(named(new QLineEdit, "txttotaljuros")), lstmeses(named(new list_view, "lstmeses")),
      cmdcalcular(named(new QPushButton(QStringLiteral("&Calcular")), "cmdcalcular")) {
    setObjectName(QStringLiteral("frmjurosparcelado"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Calculo de juro em parcelas"));
    optfixo->setChecked(true);
    txtdata->set_date(platform::today());
    lstmeses->add_column(QStringLiteral("Parcela"), 900);
    lstmeses->add_column(QStringLiteral("Vencimento"), 1500, list_view::tag_date);
    lstmeses->add_column(QStringLiteral("Valor"), 1600, list_view::tag_number);

    auto* g = new QGridLayout;
    int row = 0;
    const auto linha = [&](const char* rotulo, QWidget* campo) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, 0);
        g->addWidget(campo, row++, 1);
    };
    linha("Valor total", txtvalor);
    linha("Numero de parcelas", txtparcelas);
    linha("Dias entre as parcelas", txtdias);
    linha("Data inicial", txtdata);
    linha("Porcentagem de juros", txtjurosmes);
    auto* tipo = new QHBoxLayout;
    tipo->addWidget(optfixo);
    tipo->addWidget(optmes);
    g->addLayout(tipo, row++, 1);
    linha("Total de juros:", txtvalorjuros);
    linha("Valor total(juros):", txttotaljuros);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdcalcular);
    auto* esquerda = new QVBoxLayout;
    esquerda->addLayout(g);
    esquerda->addStretch();
    esquerda->addLayout(botoes);
    auto* h = new QHBoxLayout(this);
    h->addLayout(esquerda);
    h->addWidget(lstmeses, 1);
    resize(700, 320);

    install_field_conduct_all(this);
    connect(cmdcalcular, &QPushButton::clicked, this, [this] { cmdcalcular_click(); });
}

frmjurosparcelado::~frmjurosparcelado() {
    if (the_window == this) the_window = nullptr;
}

void frmjurosparcelado::cmdcalcular_click() {
    entries::parcelamento r =
        entries::calcular_parcelas(txtvalor->text(), txtparcelas->text(), txtdias->text(), txtdata->date(),
                                   txtjurosmes->text(), optfixo->isChecked());
    if (r.limpa) {
        lstmeses->clear_rows();
        std::vector<QStringList> linhas;
        linhas.reserve(r.parcelas.size());
        for (entries::parcela& p : r.parcelas)
            linhas.push_back({std::move(p.numero), std::move(p.vencimento), std::move(p.valor)});
        lstmeses->add_rows(std::move(linhas));
    }
    if (r.totaljuros) txttotaljuros->setText(*r.totaljuros);
    if (r.valorjuros) txtvalorjuros->setText(*r.valorjuros);
    if (r.erro) platform::msgbox(entries::erro_data_invalida, platform::exclamation, QStringLiteral("Erro"));
}
