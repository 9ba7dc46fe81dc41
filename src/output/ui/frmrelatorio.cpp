#include "output/ui/frmrelatorio.h"

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "platform/widgets/list_view.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>

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

// Twips of the window's own layout.
constexpr double margem = 150;
constexpr double topo_lista = 600;
constexpr double altura_livre = 2105; // the lists take the inner height less this
constexpr double largura_livre = 300;
constexpr double abaixo_da_lista = 610;
constexpr double altura_botao = 420;

} // namespace

frmrelatorio::frmrelatorio(QWidget* parent)
    : report_window("frmrelatorio", QStringLiteral("Relatório"), parent) {

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

    lstpagar = nova_lista("lstpagar", colunas_pagar("Fornecedor", "Venc."));
    lstreceber = nova_lista("lstreceber", colunas_pagar("Cliente", "Vencimento"));
    lstmovimento = nova_lista("lstmovimento", {{texto("Data"), 1320, dat},
                                               {texto("Tipo de movimento"), 2940, txt},
                                               {texto("Origem"), 2140, txt},
                                               {texto("Destino"), 2140, txt},
                                               {texto("Valor"), 1340, num},
                                               {texto("Estatus"), 1340, txt}});
    lstclientes = nova_lista("lstclientes", colunas_contato("Nome do cliente", "Tipo de cliente"));
    lstfornecedores =
        nova_lista("lstfornecedores", colunas_contato("Nome do fornecedor", "Tipo de fornecedor"));
    lstpagar->show();

    lblgeral = new QLabel(this);
    lblgeral->setObjectName(QStringLiteral("lblgeral"));
    lblgeral->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    resize(px(12500), px(8200));
    dispor();
}

frmrelatorio::~frmrelatorio() = default;

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

void frmrelatorio::mostrar_lista(lista l) {
    mostrar(lista_de(l));
}

void frmrelatorio::preencher(lista l, std::vector<QStringList>&& rows, const textos& t) {
    encher(lista_de(l), std::move(rows));
    if (!t.caption.isEmpty()) setWindowTitle(t.caption);
    LBLTIPO->setText(t.tipo);
    lblsubtitulo->setText(t.subtitulo);
    lblgeral->setText(t.geral);
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
    for (list_view* l : listas())
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
