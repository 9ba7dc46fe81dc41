#include "output/frmrelatorio.h"

#include "output/list_report.h"
#include "output/modimpressao.h"
#include "platform/widgets/list_view.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>

namespace output {

void montar_colunas(list_view& l, const std::vector<coluna_lista>& colunas) {
    for (const coluna_lista& c : colunas)
        l.add_column(c.texto, c.largura, c.tag);
}

void barra_progresso::set_value(double percent) {
    b_->setValue(int(percent));
}

void barra_progresso::set_visible(bool v) {
    b_->setVisible(v);
}

} // namespace output

namespace {

using output::coluna_lista;
constexpr int txt = list_view::tag_text;
constexpr int dat = list_view::tag_date;
constexpr int num = list_view::tag_number;

QString texto(const char* s) {
    return QString::fromUtf8(s);
}

std::vector<coluna_lista> colunas_pagar(const char* contato, const char* venc) {
    return {{texto("Data"), 1320, dat},
            {texto("Descrição"), 4190, txt},
            {texto("Doc."), 1840, txt},
            {texto(contato), 2340, txt},
            {texto(venc), 1320, dat},
            {texto("Valor"), 1239, num},
            {texto("Estatus"), 1320, txt},
            {texto("Origem"), 2140, txt},
            {texto("Informações adicionais"), 3240, txt}};
}

std::vector<coluna_lista> colunas_contato(const char* nome, const char* tipo) {
    return {{texto(nome), 2800, txt},       {texto(tipo), 1600, txt},
            {texto("CPF/CNPJ"), 1800, txt}, {texto("Nascimento"), 1200, dat},
            {texto("País"), 1000, txt},     {texto("Estado"), 800, txt},
            {texto("Cidade"), 1600, txt},   {texto("Bairro"), 1600, txt},
            {texto("Endereço"), 2800, txt}, {texto("CEP"), 1100, txt},
            {texto("Telefone"), 1400, txt}, {texto("Celular/Nextel"), 1400, txt},
            {texto("E-mail"), 2200, txt},   {texto("Site"), 2200, txt}};
}

list_view* nova_lista(QWidget* parent, const char* name, const std::vector<coluna_lista>& colunas) {
    auto* l = new list_view(parent);
    l->setObjectName(QString::fromLatin1(name));
    output::montar_colunas(*l, colunas);
    l->hide();
    return l;
}

// Twips of the window's own layout.
constexpr double margem = 150;
constexpr double topo_lista = 600;
constexpr double altura_livre = 2105; // the lists take the inner height less this
constexpr double largura_livre = 300;
constexpr double abaixo_da_lista = 610;
constexpr double altura_botao = 420;

} // namespace

frmrelatorio::frmrelatorio(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("frmrelatorio"));
    setWindowTitle(QStringLiteral("Relatório"));

    SpitFireXpSB1 = new QLabel(QStringLiteral("  Relatório"), this);
    SpitFireXpSB1->setObjectName(QStringLiteral("SpitFireXpSB1"));
    SpitFireXpSB1->setAutoFillBackground(true);
    QFont bold = SpitFireXpSB1->font();
    bold.setBold(true);
    SpitFireXpSB1->setFont(bold);

    LBLTIPO = new QLabel(this);
    LBLTIPO->setObjectName(QStringLiteral("LBLTIPO"));
    LBLTIPO->setFont(bold);
    lblsubtitulo = new QLabel(this);
    lblsubtitulo->setObjectName(QStringLiteral("lblsubtitulo"));

    lstpagar = nova_lista(this, "lstpagar", colunas_pagar("Fornecedor", "Venc."));
    lstreceber = nova_lista(this, "lstreceber", colunas_pagar("Cliente", "Vencimento"));
    lstmovimento = nova_lista(this, "lstmovimento",
                              {{texto("Data"), 1320, dat},
                               {texto("Tipo de movimento"), 2940, txt},
                               {texto("Origem"), 2140, txt},
                               {texto("Destino"), 2140, txt},
                               {texto("Valor"), 1340, num},
                               {texto("Estatus"), 1340, txt}});
    lstclientes = nova_lista(this, "lstclientes", colunas_contato("Nome do cliente", "Tipo de cliente"));
    lstfornecedores =
        nova_lista(this, "lstfornecedores", colunas_contato("Nome do fornecedor", "Tipo de fornecedor"));
    lstpagar->show();

    barraprogresso = new QProgressBar(this);
    barraprogresso->setObjectName(QStringLiteral("barraprogresso"));
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    lblgeral = new QLabel(this);
    lblgeral->setObjectName(QStringLiteral("lblgeral"));
    lblgeral->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    cmdimprimir = new QPushButton(QStringLiteral("Imprimir Relatório"), this);
    cmdimprimir->setObjectName(QStringLiteral("cmdimprimir"));
    cmdtxt = new QPushButton(QStringLiteral("Salvar em TXT"), this);
    cmdtxt->setObjectName(QStringLiteral("cmdtxt"));
    cmdhtml = new QPushButton(QStringLiteral("Salvar em HTML"), this);
    cmdhtml->setObjectName(QStringLiteral("cmdhtml"));
    connect(cmdimprimir, &QPushButton::clicked, this, &frmrelatorio::imprimir);
    connect(cmdtxt, &QPushButton::clicked, this, &frmrelatorio::salvartxt);
    connect(cmdhtml, &QPushButton::clicked, this, &frmrelatorio::salvarhtml);

    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);

    resize(px(12500), px(8200));
    dispor();
}

frmrelatorio::~frmrelatorio() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

int frmrelatorio::px(double twips) const {
    return list_view::twips_to_pixels(twips, this);
}

list_view* frmrelatorio::lista_de(lista l) const {
    switch (l) {
    case lista::pagar:
        return lstpagar;
    case lista::receber:
        return lstreceber;
    case lista::movimento:
        return lstmovimento;
    case lista::clientes:
        return lstclientes;
    case lista::fornecedores:
        return lstfornecedores;
    }
    return lstpagar;
}

list_view* frmrelatorio::lista_visivel() const {
    for (list_view* l : {lstpagar, lstreceber, lstmovimento, lstclientes, lstfornecedores})
        if (!l->isHidden()) return l;
    return nullptr;
}

void frmrelatorio::mostrar_lista(lista l) {
    list_view* alvo = lista_de(l);
    for (list_view* v : {lstpagar, lstreceber, lstmovimento, lstclientes, lstfornecedores})
        v->setVisible(v == alvo);
}

void frmrelatorio::preencher(lista l, std::vector<QStringList>&& rows, const textos& t) {
    list_view* alvo = lista_de(l);
    alvo->clear_rows();
    alvo->add_rows(std::move(rows));
    if (!t.caption.isEmpty()) setWindowTitle(t.caption);
    LBLTIPO->setText(t.tipo);
    lblsubtitulo->setText(t.subtitulo);
    lblgeral->setText(t.geral);
    mostrar_lista(l);
}

void frmrelatorio::ajustarcolunas() {
    list_view* l = lista_visivel();
    if (!l) return;
    int ultima = 9;
    if (l == lstmovimento) ultima = 7;
    if (l == lstclientes || l == lstfornecedores) ultima = 15;
    ultima = std::min(ultima, l->column_count() - 1);
    l->setUpdatesEnabled(false);
    for (int c = 0; c <= ultima; ++c)
        if (l->column_width(c) > 0) l->resizeColumnToContents(c);
    l->setUpdatesEnabled(true);
}

output::report_texts frmrelatorio::report_texts() const {
    output::report_texts t;
    t.janela = output::janela_relatorio::relatorio;
    t.caption = windowTitle();
    t.tipo = LBLTIPO->text();
    t.subtitulo = lblsubtitulo->text();
    t.totais = lblgeral->text();
    return t;
}

void frmrelatorio::salvartxt() {
    output::salvar_relatorio(output::formato_relatorio::txt, report_texts(), lista_visivel(), relatorio_);
}

void frmrelatorio::salvarhtml() {
    output::salvar_relatorio(output::formato_relatorio::html, report_texts(), lista_visivel(), relatorio_);
}

void frmrelatorio::imprimir() {
    try {
        list_view* l = lista_visivel();
        if (!l) return;
        output::list_report r = output::nova_impressao(output::report_form::rlt_impressao, l);
        r.rpf_Titulo = LBLTIPO->text().toUpper();
        r.lblfiltro = lblsubtitulo->text();
        r.lblestatus = lblgeral->text();
        r.lblsumario1 = output::slogan_relatorio();
        if (l == lstmovimento) r.orientacao = 1;
        output::Executar(r);
    } catch (...) {
        output::modimpressao::erro_impressao();
    }
}

void frmrelatorio::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    dispor();
}

void frmrelatorio::dispor() {
    const double w = list_view::pixels_to_twips(width(), this);
    const double h = list_view::pixels_to_twips(height(), this);
    const double lw = std::max(0.0, w - largura_livre);
    const double lh = std::max(0.0, h - altura_livre);
    SpitFireXpSB1->setGeometry(0, 0, width(), px(300));
    LBLTIPO->setGeometry(px(margem), px(320), px(lw / 2), px(260));
    lblsubtitulo->setGeometry(px(margem + lw / 2), px(320), px(lw / 2), px(260));
    for (list_view* l : {lstpagar, lstreceber, lstmovimento, lstclientes, lstfornecedores})
        l->setGeometry(px(margem), px(topo_lista), px(lw), px(lh));
    const double barra_topo = lh + abaixo_da_lista;
    barraprogresso->setGeometry(px(margem), px(barra_topo), px(lw), px(240));
    lblgeral->setGeometry(px(margem), px(barra_topo), px(lw), px(560));
    const double botoes = h - altura_botao - 180;
    const double bw = 2000;
    cmdimprimir->setGeometry(px(margem), px(botoes), px(bw), px(altura_botao));
    cmdtxt->setGeometry(px(margem + bw + 120), px(botoes), px(bw), px(altura_botao));
    cmdhtml->setGeometry(px(margem + 2 * (bw + 120)), px(botoes), px(bw), px(altura_botao));
}
