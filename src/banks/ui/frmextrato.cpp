#include "banks/ui/frmextrato.h"

#include "banks/print/extrato_print.h"
#include "banks/ui/report_dialogs.h"
#include "output/report_frame.h"
#include "output/ui/frmreport_window.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/list_view.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QPointer<frmextrato> the_window;

using output::coluna_lista;
constexpr int txt = list_view::tag_text;
constexpr int dat = list_view::tag_date;
constexpr int num = list_view::tag_number;

QString texto(const char* s) {
    return QString::fromUtf8(s);
}

std::vector<coluna_lista> colunas_entrada(const char* descricao, const char* contato) {
    return {
        {texto("ID"), 700, num},         {texto("Data"), 1200, dat},    {texto(descricao), 3400, txt},
        {texto("Documento"), 1500, txt}, {texto(contato), 2200, txt},   {texto("Venc."), 1200, dat},
        {texto("Valor"), 1400, num},     {texto("Estatus"), 1200, txt}, {texto("Conta Origem"), 2000, txt}};
}

list_view* lista(const char* nome, const std::vector<coluna_lista>& colunas) {
    auto* l = named(new list_view, nome);
    output::montar_colunas(*l, colunas);
    return l;
}

} // namespace

frmextrato* frmextrato::instance() {
    if (!the_window) the_window = new frmextrato();
    return the_window;
}

frmextrato::frmextrato() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmextrato"));
    setWindowTitle(QStringLiteral("Extrato bancário"));
    setAttribute(Qt::WA_DeleteOnClose);
    XTab1 = named(new QTabWidget, "XTab1");
    lstpagar = lista("lstpagar", colunas_entrada("Descrição / Centro de custo", "Fornecedor"));
    lstreceber = lista("lstreceber", colunas_entrada("Plano de conta / Descrição", "Cliente"));
    lstmovimento = lista("lstmovimento", {{texto("ID"), 700, num},
                                          {texto("Data"), 1200, dat},
                                          {texto("Tipo de movimento"), 2600, txt},
                                          {texto("Conta origem"), 2000, txt},
                                          {texto("Conta destino"), 2000, txt},
                                          {texto("Valor"), 1400, num},
                                          {texto("Estatus"), 1200, txt},
                                          {texto("Informações"), 2800, txt}});
    lblfiltro = named(new QLabel, "lblfiltro");
    lbldespesa = named(new QLabel, "lbldespesa");
    lblreceita = named(new QLabel, "lblreceita");
    lblmovimento = named(new QLabel, "lblmovimento");
    auto* estatisticas = new QWidget;
    auto* grade = new QGridLayout(estatisticas);
    const std::pair<const char*, QLabel*> linhas[] = {{"Período filtrado:", lblfiltro},
                                                      {"Total de despesas:", lbldespesa},
                                                      {"Total de receita:", lblreceita},
                                                      {"Total de movimento bancário:", lblmovimento}};
    int r = 0;
    for (const auto& [rotulo, valor] : linhas) {
        auto* l = new QLabel(texto(rotulo));
        QFont f = l->font();
        f.setBold(true);
        l->setFont(f);
        grade->addWidget(l, r, 0);
        grade->addWidget(valor, r++, 1);
    }
    grade->setRowStretch(r, 1);
    grade->setColumnStretch(1, 1);
    XTab1->addTab(lstpagar, QStringLiteral("Despesas"));
    XTab1->addTab(lstreceber, QStringLiteral("Receitas"));
    XTab1->addTab(lstmovimento, QStringLiteral("Movimento bancário"));
    XTab1->addTab(estatisticas, QStringLiteral("Estatísticas"));

    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    cmdimprimir = named(new QPushButton(QStringLiteral("&Imprimir")), "cmdimprimir");
    cmdhtml = named(new QPushButton(QStringLiteral("Salvar em &HTML")), "cmdhtml");
    cmdsair = named(new QPushButton(QStringLiteral("&Sair")), "cmdsair");
    auto* v = new QVBoxLayout(this);
    v->addWidget(XTab1, 1);
    v->addWidget(barraprogresso);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(cmdimprimir);
    botoes->addWidget(cmdhtml);
    botoes->addStretch(1);
    botoes->addWidget(cmdsair);
    v->addLayout(botoes);
    connect(cmdimprimir, &QPushButton::clicked, this, &frmextrato::imprimir);
    connect(cmdhtml, &QPushButton::clicked, this, &frmextrato::salvarhtml);
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);

    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

QSize frmextrato::sizeHint() const {
    return {list_view::twips_to_pixels(12500, this), list_view::twips_to_pixels(7000, this)};
}

frmextrato::~frmextrato() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

void frmextrato::carregar(const QString& conta, const QString& data1, const QString& data2, bool destino,
                          const QString& filtro) {
    setWindowTitle(QStringLiteral("Extrato bancário: ") + conta);
    banks::extrato e = banks::carregar_extrato(conta, data1, data2, destino);
    for (list_view* l : {lstpagar, lstreceber, lstmovimento})
        l->clear_rows();
    lstpagar->add_rows(std::move(e.pagar));
    lstreceber->add_rows(std::move(e.receber));
    lstmovimento->add_rows(std::move(e.movimento));
    lblfiltro->setText(filtro);
    lbldespesa->setText(banks::total_extrato(e.total_pagar));
    lblreceita->setText(banks::total_extrato(e.total_receber));
    lblmovimento->setText(banks::total_extrato(e.total_movimento));
}

banks::extrato_textos frmextrato::textos() const {
    return {windowTitle(), lblfiltro->text(), lbldespesa->text(), lblreceita->text(), lblmovimento->text()};
}

void frmextrato::salvarhtml() {
    banks::salvar_arquivo(
        banks::titulo_html_extrato, banks::filtro_html_extrato, barra_.get(), [this](QIODevice& f) {
            banks::write_extrato_html(f, textos(), *lstpagar, *lstreceber, *lstmovimento, relatorio_);
        });
}

void frmextrato::imprimir() {
    banks::imprimir_extrato(textos(), *lstpagar, *lstreceber, *lstmovimento, barra_.get());
}
