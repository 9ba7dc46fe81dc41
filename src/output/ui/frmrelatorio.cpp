#include "output/ui/frmrelatorio.h"

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "platform/widgets/list_view.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>

namespace {

using namespace output;
using namespace Qt::StringLiterals;

std::vector<coluna_lista> colunas_pagar(const QString& contato, const QString& venc) {
    return {{u"Data"_s, 1320, dat},    {u"Descrição"_s, 4190, txt}, {u"Doc."_s, 1840, txt},
            {contato, 2340, txt},      {venc, 1320, dat},           {u"Valor"_s, 1239, num},
            {u"Estatus"_s, 1320, txt}, {u"Origem"_s, 2140, txt},    {u"Informações adicionais"_s, 3240, txt}};
}

std::vector<coluna_lista> colunas_contato(const QString& nome, const QString& tipo) {
    return {{nome, 2800, txt},          {tipo, 1600, txt},
            {u"CPF/CNPJ"_s, 1800, txt}, {u"Nascimento"_s, 1200, dat},
            {u"País"_s, 1000, txt},     {u"Estado"_s, 800, txt},
            {u"Cidade"_s, 1600, txt},   {u"Bairro"_s, 1600, txt},
            {u"Endereço"_s, 2800, txt}, {u"CEP"_s, 1100, txt},
            {u"Telefone"_s, 1400, txt}, {u"Celular/Nextel"_s, 1400, txt},
            {u"E-mail"_s, 2200, txt},   {u"Site"_s, 2200, txt}};
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

    // in the order of lista
    lstpagar = nova_lista("lstpagar", colunas_pagar(u"Fornecedor"_s, u"Venc."_s));
    lstreceber = nova_lista("lstreceber", colunas_pagar(u"Cliente"_s, u"Vencimento"_s));
    lstmovimento = nova_lista("lstmovimento", {{u"Data"_s, 1320, dat},
                                               {u"Tipo de movimento"_s, 2940, txt},
                                               {u"Origem"_s, 2140, txt},
                                               {u"Destino"_s, 2140, txt},
                                               {u"Valor"_s, 1340, num},
                                               {u"Estatus"_s, 1340, txt}});
    lstclientes = nova_lista("lstclientes", colunas_contato(u"Nome do cliente"_s, u"Tipo de cliente"_s));
    lstfornecedores =
        nova_lista("lstfornecedores", colunas_contato(u"Nome do fornecedor"_s, u"Tipo de fornecedor"_s));
    lstpagar->show();

    lblgeral = new QLabel(this);
    lblgeral->setObjectName(QStringLiteral("lblgeral"));
    lblgeral->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rotulos(LBLTIPO, lblsubtitulo, lblgeral);

    resize(px(12500), px(8200));
    dispor();
}

frmrelatorio::~frmrelatorio() = default;

int frmrelatorio::px(double twips) const {
    return list_view::twips_to_pixels(twips, this);
}

void frmrelatorio::preencher(lista l, std::vector<QStringList>&& rows, const textos& t) {
    preencher_lista(std::size_t(l), std::move(rows),
                    {.caption = t.caption, .tipo = t.tipo, .subtitulo = t.subtitulo, .totais = t.geral});
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

void frmrelatorio::imprimir() {
    try {
        list_view* l = lista_visivel();
        if (!l) return;
        list_report r = nova_impressao(report_form::rlt_impressao, l);
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
