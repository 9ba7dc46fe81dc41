#include "analysis/ui/frmpormes.h"

#include "analysis/period.h"
#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

using shell::ledger;

namespace {

QPointer<frmpormes> contas;
QPointer<frmvenpormes> vencimentos;

template <class W> W* criar(W* w) {
    if (shell::principal_api* p = shell::principal(); p && p->janela()) w->setParent(p->janela(), Qt::Window);
    return w;
}

} // namespace

frmpormes* frmpormes::instance() {
    return single_window(contas, [] { return criar(new frmpormes); });
}
frmpormes::frmpormes() : janela_por_mes(analysis::contas_por_mes()) {}

frmvenpormes* frmvenpormes::instance() {
    return single_window(vencimentos, [] { return criar(new frmvenpormes); });
}
frmvenpormes::frmvenpormes() : janela_por_mes(analysis::vencimentos_por_mes()) {}

janela_por_mes::janela_por_mes(const analysis::gemeo_mes& g) : QWidget(nullptr, Qt::Window), g_(g) {
    setObjectName(QString::fromLatin1(g.nome));
    setWindowTitle(g.caption);
    cboano = chosen_box("cboano");
    cmdverificar =
        named(new QPushButton(QStringLiteral("Verificar contas no ano selecionado")), "cmdverificar");
    meses = named(new QTabBar, "meses");
    for (const QString& m : analysis::nomes_meses())
        meses->addTab(m);
    lstlista = named(new list_view, "lstlista");
    QFont arial(QStringLiteral("Arial"));
    lstlista->set_list_font(arial);
    lstlista->add_column(QString(), 0); // the record's código
    const struct {
        const char* texto;
        double largura;
        int tag;
    } colunas[] = {
        {"Data", 1100, list_view::tag_date},       {"Plano de conta / Descrição", 2600, list_view::tag_text},
        {"Documento", 1200, list_view::tag_text},  {"Fornecedor", 2000, list_view::tag_text},
        {"Venc.", 1100, list_view::tag_date},      {"Valor", 1400, list_view::tag_number},
        {"Estatus", 1100, list_view::tag_text},    {"Conta Origem", 1600, list_view::tag_text},
        {"Informações", 2500, list_view::tag_text}};
    for (const auto& c : colunas)
        lstlista->add_column(QString::fromUtf8(c.texto), c.largura, c.tag);
    lbltipo = named(new QLabel, "lbltipo");
    lbltipo->hide();
    lblest = named(new QLabel, "lblest");
    anoatual = named(new QLineEdit, "anoatual");
    anoatual->hide();

    auto* v = new QVBoxLayout(this);
    auto* topo = new QHBoxLayout;
    topo->addWidget(new QLabel(QStringLiteral("Selecione o ano:")));
    topo->addWidget(cboano);
    topo->addWidget(cmdverificar);
    topo->addStretch(1);
    v->addLayout(topo);
    v->addWidget(meses);
    v->addWidget(lstlista, 1);
    v->addWidget(lblest);

    const QString ano = platform::today().toString(QStringLiteral("yyyy"));
    anoatual->setText(ano);
    for (int i = 0; i <= 150; ++i)
        cboano->addItem(QString::number(2000 + i));
    cboano->setCurrentIndex(cboano->findText(ano));
    if (cboano->currentIndex() < 0) cboano->setEditText(ano);

    connect(cmdverificar, &QPushButton::clicked, this, &janela_por_mes::verificar);
    connect(meses, &QTabBar::currentChanged, this, [this](int i) {
        if (!carregando_) carregar_mes(i + 1);
    });
    resize(900, 520);
}

ledger janela_por_mes::tabela() const {
    return lbltipo->text() == QLatin1String("pagar") ? ledger::pagar : ledger::receber;
}

void janela_por_mes::abrir(ledger t) {
    lbltipo->setText(t == ledger::pagar ? QStringLiteral("pagar") : QStringLiteral("receber"));
    carregarinicio();
    show_window(this);
}

void janela_por_mes::verificar() {
    anoatual->setText(cboano->currentText());
    setWindowTitle(analysis::caption_ano(tabela(), anoatual->text()));
    carregarinicio();
}

void janela_por_mes::carregarinicio() {
    carregando_ = true;
    meses->setCurrentIndex(0);
    carregando_ = false;
    carregar_mes(1);
}

void janela_por_mes::carregar_mes(int mes) {
    platform::ignore_errors([&] {
        lstlista->clear_rows();
        const ledger t = tabela();
        analysis::mes_lido r = analysis::ler_mes(t, analysis::consulta_mes(g_, t, anoatual->text(), mes));
        waiting_window::yield();
        lblest->setText(analysis::linha_mes(t, r.tally));
        lstlista->add_rows(std::move(r.linhas));
    });
}
