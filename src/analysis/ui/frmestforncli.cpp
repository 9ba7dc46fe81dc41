#include "analysis/ui/frmestforncli.h"

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QPointer<frmestforncli> the_window;

std::vector<output::coluna_lista> colunas(const char* nome, const char* pendentes, const char* pagas,
                                          const char* total) {
    constexpr int txt = list_view::tag_text;
    return {{QString::fromUtf8(nome), 3400, txt},
            {QString::fromUtf8(pendentes), 2300, txt},
            {QString::fromUtf8(pagas), 2300, txt},
            {QString::fromUtf8(total), 2300, txt}};
}

} // namespace

frmestforncli* frmestforncli::instance() {
    return single_window(the_window, [] {
        auto* w = new frmestforncli();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmestforncli* frmestforncli::aberto() {
    return loaded_window(the_window);
}

// the caption keeps its double "s"
frmestforncli::frmestforncli()
    : report_window("frmestforncli", QStringLiteral("Estatísticas de clientes/fornecedoress"), nullptr) {
    cmdimprimir->setText(QStringLiteral("Imprimir Estatísticas"));
    lstcliente = nova_lista("lstcliente", colunas("Nome do Cliente", "Receitas pendentes",
                                                  "Receitas recebidas", "Total de receitas"));
    lstfornecedor = nova_lista("lstfornecedor", colunas("Nome do Fornecedor", "Despesas pendentes",
                                                        "Despesas pagas", "Total de despesas"));
    lstplanos = nova_lista(
        "lstplanos", colunas("Plano de contas", "Contas pendentes", "Contas concluídas", "Total de contas"));
    lstfornecedor->show();
    lblgeral = new QLabel(this);
    lblgeral->setObjectName(QStringLiteral("lblgeral"));
    lblgeral->setWordWrap(true);
    cmdsair = new QPushButton(QStringLiteral("Sair"), this);
    cmdsair->setObjectName(QStringLiteral("cmdsair"));
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);

    auto* v = new QVBoxLayout(this);
    for (list_view* l : {lstcliente, lstfornecedor, lstplanos})
        v->addWidget(l, 1);
    v->addWidget(barraprogresso);
    v->addWidget(lblgeral);
    auto* botoes = new QHBoxLayout;
    for (QPushButton* b : {cmdimprimir, cmdtxt, cmdhtml})
        botoes->addWidget(b);
    botoes->addStretch(1);
    botoes->addWidget(cmdsair);
    v->addLayout(botoes);
    resize(list_view::twips_to_pixels(11000, this), list_view::twips_to_pixels(6500, this));
}

list_view* frmestforncli::lista_de(lista l) const {
    switch (l) {
    case lista::cliente:
        return lstcliente;
    case lista::fornecedor:
        return lstfornecedor;
    case lista::planos:
        break;
    }
    return lstplanos;
}

void frmestforncli::preencher(lista l, std::vector<QStringList>&& rows, const QString& caption,
                              const QString& geral) {
    encher(lista_de(l), std::move(rows));
    setWindowTitle(caption);
    lblgeral->setText(geral);
}

output::report_texts frmestforncli::report_texts() const {
    output::report_texts t;
    t.janela = output::janela_relatorio::movimento;
    t.caption = windowTitle();
    t.totais = lblgeral->text();
    return t;
}

QString frmestforncli::save_title(output::formato_relatorio f) const {
    return f == output::formato_relatorio::txt ? QStringLiteral("Salvar estatísticas em txt")
                                               : QStringLiteral("Salvar estatísticas em html");
}

QString frmestforncli::save_filter(output::formato_relatorio f) const {
    return f == output::formato_relatorio::txt ? QStringLiteral("Arquivos de texto (*.txt)|*.txt")
                                               : QStringLiteral("Arquivos HTML (*.html)|*.html");
}

QString frmestforncli::titulo_impressao() const {
    const list_view* l = lista_visivel();
    if (l == lstcliente) return QStringLiteral("ESTATÍSTICAS DE CLIENTES");
    if (l == lstfornecedor) return QStringLiteral("ESTATÍSTICAS DE FORNECEDORES");
    return QStringLiteral("ESTATÍSTICAS DE CENTRO DE LUCROS/CUSTOS");
}

void frmestforncli::imprimir() {
    try {
        list_view* l = lista_visivel();
        if (!l) return;
        output::list_report r = output::nova_impressao(output::report_form::rlt_ListView, l);
        r.rpf_Titulo = titulo_impressao();
        r.lblfiltro = QStringLiteral("Filtrado por: Todos os dados");
        r.lblestatus = lblgeral->text();
        r.lblsumario1 = output::slogan_relatorio();
        r.lblsumario2 = output::nome_relatorio();
        output::Executar(r);
    } catch (...) {
        output::modimpressao::erro_impressao();
    }
}
