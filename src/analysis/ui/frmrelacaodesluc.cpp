#include "analysis/ui/frmrelacaodesluc.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <optional>

namespace {

QPointer<frmrelacaodesluc> the_window;

list_view* lista(const char* nome) {
    auto* l = named(new list_view, nome);
    l->add_column(QStringLiteral("Banco"), 3000);
    l->add_column(QStringLiteral("Despesas"), 1900, list_view::tag_number);
    l->add_column(QStringLiteral("Lucros"), 1900, list_view::tag_number);
    l->add_column(QStringLiteral("Saldo"), 1900, list_view::tag_number);
    return l;
}

QPushButton* botao_ver(const char* nome) {
    return named(new QPushButton(QStringLiteral("Ver")), nome);
}

// Picked from 2000 to 2500, showing this year; typing is swallowed.
QComboBox* anos(const char* nome) {
    QComboBox* c = chosen_box(nome);
    for (int i = 0; i <= analysis::ultimo_ano - analysis::primeiro_ano; ++i)
        c->addItem(QString::number(analysis::primeiro_ano + i));
    c->setEditText(vb::format_date(platform::today(), QStringLiteral("yyyy")));
    return c;
}

// A tab: its selectors above, the list, the totals line.
QWidget* aba(QLayout* seletores, list_view* l, QLabel* total) {
    auto* w = new QWidget;
    auto* v = new QVBoxLayout(w);
    v->addLayout(seletores);
    v->addWidget(l, 1);
    v->addWidget(total);
    return w;
}

} // namespace

frmrelacaodesluc* frmrelacaodesluc::instance() {
    if (!the_window) the_window = new frmrelacaodesluc();
    return the_window;
}

frmrelacaodesluc::frmrelacaodesluc() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmrelacaodesluc"));
    setWindowTitle(QStringLiteral("Relação de lucros x despesas"));
    setAttribute(Qt::WA_DeleteOnClose);
    XTab1 = named(new QTabWidget, "XTab1");

    lstgeral = lista("lstgeral");
    optgeral = named(new QRadioButton(QStringLiteral("Relação geral")), "optgeral");
    optentredatas = named(new QRadioButton(QStringLiteral("Entre datas")), "optentredatas");
    optgeral->setChecked(true);
    cbodata1 = named(new date_field, "cbodata1");
    cbodata2 = named(new date_field, "cbodata2");
    cmdvergeral = botao_ver("cmdvergeral");
    lblgeral = named(new QLabel, "lblgeral");
    auto* geral = new QHBoxLayout;
    geral->addWidget(optgeral);
    geral->addWidget(optentredatas);
    geral->addWidget(cbodata1);
    geral->addWidget(new QLabel(QStringLiteral("e")));
    geral->addWidget(cbodata2);
    geral->addStretch(1);
    geral->addWidget(cmdvergeral);
    XTab1->addTab(aba(geral, lstgeral, lblgeral), QStringLiteral("Relação Geral"));
    const auto datas_conforme = [this] {
        cbodata1->setEnabled(optentredatas->isChecked());
        cbodata2->setEnabled(optentredatas->isChecked());
    };
    connect(optentredatas, &QRadioButton::toggled, this, datas_conforme);
    datas_conforme();

    lstdia = lista("lstdia");
    caldia = named(new QCalendarWidget, "caldia");
    caldia->setSelectedDate(platform::today());
    caldia->setGridVisible(true);
    cmdverdiario = botao_ver("cmdverdiario");
    lbldia = named(new QLabel, "lbldia");
    auto* dia = new QHBoxLayout;
    dia->addWidget(caldia);
    dia->addStretch(1);
    dia->addWidget(cmdverdiario, 0, Qt::AlignBottom);
    XTab1->addTab(aba(dia, lstdia, lbldia), QStringLiteral("Por dia"));

    lstmes = lista("lstmes");
    auto* meses = new QGridLayout;
    for (int i = 0; i < 12; ++i) {
        QString nome = vb::month_name(i + 1);
        nome[0] = nome[0].toUpper();
        optmes[std::size_t(i)] = named(new QRadioButton(nome), "optmes");
        meses->addWidget(optmes[std::size_t(i)], i / 6, i % 6);
    }
    optmes[std::size_t(platform::today().month() - 1)]->setChecked(true);
    cboano3 = anos("cboano3");
    cmdvermensal = botao_ver("cmdvermensal");
    lblmes = named(new QLabel, "lblmes");
    auto* mes = new QHBoxLayout;
    mes->addLayout(meses);
    mes->addWidget(cboano3);
    mes->addStretch(1);
    mes->addWidget(cmdvermensal);
    XTab1->addTab(aba(mes, lstmes, lblmes), QStringLiteral("Por mês"));

    lstano = lista("lstano");
    cboano4 = anos("cboano4");
    cmdveranual = botao_ver("cmdveranual");
    lblano = named(new QLabel, "lblano");
    auto* ano = new QHBoxLayout;
    ano->addWidget(new QLabel(QStringLiteral("Ano:")));
    ano->addWidget(cboano4);
    ano->addStretch(1);
    ano->addWidget(cmdveranual);
    XTab1->addTab(aba(ano, lstano, lblano), QStringLiteral("Por ano"));

    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1);
    connect(cmdvergeral, &QPushButton::clicked, this, &frmrelacaodesluc::vergeral);
    connect(cmdverdiario, &QPushButton::clicked, this, &frmrelacaodesluc::verdiario);
    connect(cmdvermensal, &QPushButton::clicked, this, &frmrelacaodesluc::vermensal);
    connect(cmdveranual, &QPushButton::clicked, this, &frmrelacaodesluc::veranual);
    resize(list_view::twips_to_pixels(10000, this), list_view::twips_to_pixels(7000, this));
}

void frmrelacaodesluc::ver(list_view* l, QLabel* total, const analysis::relacao_cabecas& c) {
    std::optional<waiting_window> espera;
    analysis::relacao_hooks hooks;
    hooks.before_walk = [&](int bancos) {
        espera.emplace(
            this, QStringLiteral("Relação de lucros x despesas"),
            QStringLiteral("Aguarde enquanto o software soma as despesas e os lucros de cada banco."));
        espera->set_range(1, bancos);
        waiting_window::yield();
        l->clear_rows();
    };
    hooks.progress = [&](int feito) {
        if (espera) espera->set_value(feito);
    };
    analysis::relacao_resultado r;
    platform::ignore_errors([&] { r = analysis::relacao(c, hooks); });
    if (r.sem_banco) {
        platform::msgbox(analysis::sem_banco_texto, platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    if (!espera) return; // the accounts could not be read
    const QString linha_total = analysis::relacao_total(r.linhas);
    l->add_rows(std::move(r.linhas));
    espera.reset();
    total->setText(linha_total);
}

void frmrelacaodesluc::vergeral() {
    if (optentredatas->isChecked()) {
        const QDate d1 = cbodata1->date(), d2 = cbodata2->date();
        if (!d1.isValid() || !d2.isValid()) {
            platform::msgbox(analysis::datas_vazias_texto, platform::exclamation, QStringLiteral("Erro"));
            return;
        }
        ver(lstgeral, lblgeral, analysis::cabecas_entre_datas(vb::ymd(d1), vb::ymd(d2)));
        return;
    }
    ver(lstgeral, lblgeral, analysis::cabecas_geral());
}

void frmrelacaodesluc::verdiario() {
    ver(lstdia, lbldia, analysis::cabecas_diario(caldia->selectedDate()));
}

void frmrelacaodesluc::vermensal() {
    int mes = 0;
    for (int i = 0; i < 12; ++i)
        if (optmes[std::size_t(i)]->isChecked()) mes = i + 1;
    ver(lstmes, lblmes, analysis::cabecas_mensal(cboano3->currentText(), mes));
}

void frmrelacaodesluc::veranual() {
    ver(lstano, lblano, analysis::cabecas_anual(cboano4->currentText()));
}
