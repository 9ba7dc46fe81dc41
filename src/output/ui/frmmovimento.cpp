#include "output/ui/frmmovimento.h"

#include "output/print/modimpressao.h"
#include "output/ui/frmrelatorio.h"
#include "platform/widgets/list_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using output::coluna_lista;
constexpr int txt = list_view::tag_text;
constexpr int dat = list_view::tag_date;
constexpr int num = list_view::tag_number;

QString texto(const char* s) {
    return QString::fromUtf8(s);
}

// "despesa" in the income list's second heading stays as it always was.
std::vector<coluna_lista> colunas_entrada(const char* contato) {
    return {{texto("Data"), 1320, dat},       {texto("Descrição da despesa"), 4190, txt},
            {texto("Documento"), 1840, txt},  {texto(contato), 2340, txt},
            {texto("Vencimento"), 1320, dat}, {texto("Valor"), 1239, num},
            {texto("Estatus"), 1320, txt},    {texto("Conta Origem"), 2140, txt},
            {texto("Informações"), 3240, txt}};
}

} // namespace

frmmovimento::frmmovimento(QWidget* parent)
    : report_window("frmmovimento", QStringLiteral("Movimento"), parent) {
    lblsubtitulo = new QLabel(this);
    lblsubtitulo->setObjectName(QStringLiteral("lblsubtitulo"));
    lstpagar = nova_lista("lstpagar", colunas_entrada("Fornecedor"));
    lstreceber = nova_lista("lstreceber", colunas_entrada("Cliente"));
    lstmovimento = nova_lista("lstmovimento", {{texto("Data"), 1320, dat},
                                               {texto("Tipo de movimento"), 2940, txt},
                                               {texto("Conta origem"), 2140, txt},
                                               {texto("Conta destino"), 2140, txt},
                                               {texto("Valor"), 1340, num},
                                               {texto("Estatus"), 1340, txt},
                                               {texto("Informações"), 2840, txt}});
    lstpagar->show();
    lblpagarest = new QLabel(this);
    lblpagarest->setObjectName(QStringLiteral("lblpagarest"));
    cmdsair = new QPushButton(QStringLiteral("Sair"), this);
    cmdsair->setObjectName(QStringLiteral("cmdsair"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblsubtitulo);
    for (list_view* l : {lstpagar, lstreceber, lstmovimento})
        layout->addWidget(l, 1);
    layout->addWidget(barraprogresso);
    layout->addWidget(lblpagarest);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdimprimir, cmdtxt, cmdhtml})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(cmdsair);
    layout->addLayout(buttons);

    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);

    resize(list_view::twips_to_pixels(12500, this), list_view::twips_to_pixels(7500, this));
}

frmmovimento::~frmmovimento() = default;

list_view* frmmovimento::lista_de(lista l) const {
    switch (l) {
    case lista::pagar:
        return lstpagar;
    case lista::receber:
        return lstreceber;
    case lista::movimento:
        return lstmovimento;
    }
    return lstpagar;
}

void frmmovimento::mostrar_lista(lista l) {
    mostrar(lista_de(l));
}

void frmmovimento::preencher(lista l, std::vector<QStringList>&& rows, const textos& t) {
    encher(lista_de(l), std::move(rows));
    if (!t.caption.isEmpty()) setWindowTitle(t.caption);
    lblsubtitulo->setText(t.subtitulo);
    lblpagarest->setText(t.pagarest);
}

output::report_texts frmmovimento::report_texts() const {
    output::report_texts t;
    t.janela = output::janela_relatorio::movimento;
    t.caption = windowTitle();
    t.subtitulo = lblsubtitulo->text();
    t.totais = lblpagarest->text();
    return t;
}

void frmmovimento::imprimir() {
    list_view* l = lista_visivel();
    if (!l) return;
    using output::modimpressao::cabecalho;
    const cabecalho c = l == lstpagar     ? cabecalho::despesas
                        : l == lstreceber ? cabecalho::receitas
                                          : cabecalho::bancario;
    output::modimpressao::imprimir_lista(c, *l, windowTitle(), lblsubtitulo->text(), lblpagarest->text(),
                                         barra());
}
