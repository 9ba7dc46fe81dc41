#include "output/ui/frmmovimento.h"

#include "output/print/modimpressao.h"
#include "platform/widgets/list_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using namespace output;
using namespace Qt::StringLiterals;

// "despesa" in the income list's second heading stays as it always was.
std::vector<coluna_lista> colunas_entrada(const QString& contato) {
    return {{u"Data"_s, 1320, dat},    {u"Descrição da despesa"_s, 4190, txt}, {u"Documento"_s, 1840, txt},
            {contato, 2340, txt},      {u"Vencimento"_s, 1320, dat},           {u"Valor"_s, 1239, num},
            {u"Estatus"_s, 1320, txt}, {u"Conta Origem"_s, 2140, txt},         {u"Informações"_s, 3240, txt}};
}

} // namespace

frmmovimento::frmmovimento(QWidget* parent)
    : report_window("frmmovimento", QStringLiteral("Movimento"), parent, janela_relatorio::movimento) {
    lblsubtitulo = new QLabel(this);
    lblsubtitulo->setObjectName(QStringLiteral("lblsubtitulo"));
    // in the order of lista
    lstpagar = nova_lista("lstpagar", colunas_entrada(u"Fornecedor"_s));
    lstreceber = nova_lista("lstreceber", colunas_entrada(u"Cliente"_s));
    lstmovimento = nova_lista("lstmovimento", {{u"Data"_s, 1320, dat},
                                               {u"Tipo de movimento"_s, 2940, txt},
                                               {u"Conta origem"_s, 2140, txt},
                                               {u"Conta destino"_s, 2140, txt},
                                               {u"Valor"_s, 1340, num},
                                               {u"Estatus"_s, 1340, txt},
                                               {u"Informações"_s, 2840, txt}});
    lstpagar->show();
    lblpagarest = new QLabel(this);
    lblpagarest->setObjectName(QStringLiteral("lblpagarest"));
    cmdsair = new QPushButton(QStringLiteral("Sair"), this);
    cmdsair->setObjectName(QStringLiteral("cmdsair"));
    rotulos(nullptr, lblsubtitulo, lblpagarest);

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

void frmmovimento::preencher(lista l, std::vector<QStringList>&& rows, const textos& t) {
    preencher_lista(std::size_t(l), std::move(rows),
                    {.caption = t.caption, .tipo = {}, .subtitulo = t.subtitulo, .totais = t.pagarest});
}

void frmmovimento::imprimir() {
    list_view* l = lista_visivel();
    if (!l) return;
    using modimpressao::cabecalho;
    const cabecalho c = l == lstpagar     ? cabecalho::despesas
                        : l == lstreceber ? cabecalho::receitas
                                          : cabecalho::bancario;
    modimpressao::imprimir_lista(c, *l, windowTitle(), lblsubtitulo->text(), lblpagarest->text(), barra());
}
