#include "analysis/ui/frmconfrelatorio.h"

#include "output/ui/frmrelatorio.h"
#include "output/ui/report_instances.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/filter_panel.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/names.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <optional>

using shell::ledger;

namespace {

QPointer<frmconfrelatorio> the_window;

// A control's name: its stem and the page's letter.
QByteArray nome(const char* raiz, char sufixo) {
    return QByteArray(raiz) + sufixo;
}

template <class W> W* com_nome(W* w, const char* raiz, char sufixo) {
    w->setObjectName(QString::fromLatin1(nome(raiz, sufixo)));
    return w;
}

QCheckBox* caixa(const char* raiz, char s, const QString& texto, const QString& dica) {
    QCheckBox* c = caixa_criterio(nome(raiz, s).constData(), texto);
    c->setToolTip(dica);
    return c;
}

QString dica_dados() {
    return QStringLiteral("Selecione está opção para mostrar apenas dados do fornecedor selecionado abaixo");
}
QString dica_conta() {
    return QStringLiteral(
        "Selecione está opção para mostrar apenas os dados da conta bancário selecionada abaixo.");
}

void sem_texto(QComboBox* c) {
    c->setCurrentIndex(-1);
    c->setEditText(QString());
}

} // namespace

frmconfrelatorio* frmconfrelatorio::instance() {
    return single_window(the_window, [] {
        auto* w = new frmconfrelatorio();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmconfrelatorio* frmconfrelatorio::aberto() {
    return loaded_window(the_window);
}

frmconfrelatorio::frmconfrelatorio() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmconfrelatorio"));
    setWindowTitle(QStringLiteral("Configurar relatório"));
    picpagar = montar(ledger::pagar);
    picreceber = montar(ledger::receber);
    picmovimento = montar(ledger::bancario);
    auto* pilha = new QStackedLayout(this);
    for (QWidget* w : {picpagar, picreceber, picmovimento})
        pilha->addWidget(w);
    for (ledger l : {ledger::pagar, ledger::receber, ledger::bancario}) {
        connect(pag(l).cmdnatela, &QPushButton::clicked, this, [this, l] { visualizar(l); });
        connect(pag(l).cmdcancelar, &QPushButton::clicked, this, &QWidget::close);
    }
    resize(640, 560);
    carregar_listas();
}

QWidget* frmconfrelatorio::montar(ledger l) {
    const char s = l == ledger::pagar ? 'p' : l == ledger::receber ? 'r' : 'b';
    pagina& p = paginas_[std::size_t(l)];
    auto* w = named(new QWidget, l == ledger::pagar     ? "picpagar"
                                 : l == ledger::receber ? "picreceber"
                                                        : "picmovimento");
    auto* v = new QVBoxLayout(w);
    auto* titulo = new QLabel(l == ledger::pagar     ? QStringLiteral("Relatório de Contas a pagar")
                              : l == ledger::receber ? QStringLiteral("Relatório de Contas a receber")
                                                     : QStringLiteral("Relatório de Movimentos bancário"));
    QFont f = titulo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.2);
    titulo->setFont(f);
    v->addWidget(titulo);
    auto* grade = new QGridLayout;
    grade->setColumnStretch(1, 1);
    v->addLayout(grade);
    const auto linha = [grade](QCheckBox* c, QWidget* x) {
        const int r = grade->rowCount();
        grade->addWidget(c, r, 0, 1, 2);
        grade->addWidget(x, r + 1, 1);
    };

    // dates
    p.chkdata =
        caixa("chkdata", s, QStringLiteral("Filtrar dados por data"),
              QStringLiteral("Selecione está opção para mostrar apenas dados entre as datas definidas "
                             "abaixo"));
    auto* datas = new QWidget;
    {
        auto* h = new QHBoxLayout(datas);
        h->setContentsMargins(0, 0, 0, 0);
        p.data1 = com_nome(new date_field, "cbodata1", s);
        p.data2 = com_nome(new date_field, "cbodata2", s);
        h->addWidget(new QLabel(QStringLiteral("Mostrar apenas dados entre:")));
        h->addWidget(p.data1);
        h->addWidget(new QLabel(QStringLiteral("e")));
        h->addWidget(p.data2);
        if (l != ledger::bancario) {
            h->addWidget(new QLabel(QStringLiteral("Baseado em:")));
            p.optdatacad = com_nome(new QRadioButton(QStringLiteral("Data de Cadastro")), "optdatacad", s);
            p.optvenccad = com_nome(new QRadioButton(QStringLiteral("Data de Vencimento")), "optvenccad", s);
            p.optdatacad->setChecked(true);
            auto* base = new QWidget; // its own group of options
            auto* hb = new QHBoxLayout(base);
            hb->setContentsMargins(0, 0, 0, 0);
            hb->addWidget(p.optdatacad);
            hb->addWidget(p.optvenccad);
            h->addWidget(base);
        }
        h->addStretch(1);
    }
    linha(p.chkdata, datas);
    ligar_criterio(p.chkdata, {p.data1, p.data2});

    // status
    p.chkestatus =
        caixa("chkestatus", s, QStringLiteral("Filtrar dados por Estatus"),
              QStringLiteral("Selecione está opção para mostrar apenas os dados que tiverem o estatu "
                             "definido abaixo"));
    auto* frame = com_nome(new QGroupBox, "frameestatus", s);
    {
        auto* h = new QHBoxLayout(frame);
        p.optpendente = com_nome(new QRadioButton(QStringLiteral("Apenas Pendente")), "optpendente", s);
        p.optconcluido = com_nome(new QRadioButton(QStringLiteral("Apenas Concluído")), "optconcluido", s);
        p.optpendente->setChecked(true);
        h->addWidget(p.optpendente);
        h->addWidget(p.optconcluido);
        h->addStretch(1);
    }
    linha(p.chkestatus, frame);
    ligar_criterio(p.chkestatus, {frame, p.optpendente, p.optconcluido});

    // contact or destination, origin, description
    const QString conta_origem = QStringLiteral("Filtrar dados por conta origem");
    if (l == ledger::bancario) {
        p.chkdestino =
            caixa("chkdestino", s, QStringLiteral("Filtrar dados por conta destino"), dica_dados());
        p.cbodestino = chosen_box("cbodestinob");
        p.chkorigem = caixa("chkorigem", s, conta_origem, dica_conta());
        p.cboorigem = chosen_box("cboorigemb");
        linha(p.chkorigem, p.cboorigem);
        linha(p.chkdestino, p.cbodestino);
        ligar_criterio(p.chkdestino, {p.cbodestino});
    } else {
        const bool pagar = l == ledger::pagar;
        p.chkcontato =
            pagar ? caixa("chkfornecedor", s, QStringLiteral("Filtrar dados por fornecedor"), dica_dados())
                  : caixa("chkcli", s, QStringLiteral("Filtrar dados por Cliente"), dica_dados());
        p.cbocontato = typed_box(pagar ? "cbofornecedorp" : "cboclir");
        linha(p.chkcontato, p.cbocontato);
        ligar_criterio(p.chkcontato, {p.cbocontato});
        p.chkorigem = caixa("chkorigem", s, conta_origem, dica_conta());
        p.cboorigem = typed_box(pagar ? "cboorigemp" : "cboorigemr");
        linha(p.chkorigem, p.cboorigem);
        p.chkdescricao = caixa("chkdescricao", s,
                               QStringLiteral("Filtrar dados por descrição / Plano de contas"), dica_conta());
        p.cbodescricao = typed_box(pagar ? "cbodescricaop" : "cbodescricaor");
        p.cbodescricao->lineEdit()->setPlaceholderText(
            QStringLiteral("Digite a descricão ou selecione um plano de conta"));
        p.cbodescricao->setToolTip(
            QStringLiteral("Digite a descricão ou selecione um plano de conta para "
                           "filtrar os dados ou deixe em branco para verificar todos"));
        linha(p.chkdescricao, p.cbodescricao);
        ligar_criterio(p.chkdescricao, {p.cbodescricao});
    }
    ligar_criterio(p.chkorigem, {p.cboorigem});

    // order
    auto* ordem = new QHBoxLayout;
    auto* por = new QGroupBox(QStringLiteral("Organizar dados por"));
    {
        auto* g = new QGridLayout(por);
        int i = 0;
        for (const analysis::opcao_ordem& o : analysis::opcoes_ordem(l)) {
            auto* b = named(new QRadioButton(o.texto), o.nome);
            p.ordens.push_back(b);
            g->addWidget(b, i / 2, i % 2);
            ++i;
        }
        p.ordens.front()->setChecked(true);
    }
    auto* na = new QGroupBox(QStringLiteral("Na ordem"));
    {
        auto* g = new QVBoxLayout(na);
        p.optasc = com_nome(new QRadioButton(QStringLiteral("Crescente")), "optasc", s);
        p.optdesc = com_nome(new QRadioButton(QStringLiteral("Decrescente")), "optdesc", s);
        p.optasc->setChecked(true);
        g->addWidget(p.optasc);
        g->addWidget(p.optdesc);
    }
    ordem->addWidget(por, 2);
    ordem->addWidget(na, 1);
    v->addLayout(ordem);
    v->addStretch(1);

    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    p.cmdnatela = com_nome(new QPushButton(QStringLiteral("Visualizar na tela")), "cmdnatela", s);
    p.cmdcancelar = com_nome(new QPushButton(QStringLiteral("Cancelar")), "cmdcancelar", s);
    botoes->addWidget(p.cmdnatela);
    botoes->addWidget(p.cmdcancelar);
    v->addLayout(botoes);
    return w;
}

void frmconfrelatorio::carregar_listas() {
    using analysis::valores_da_consulta;
    // each list on its own: one that fails leaves the others
    platform::ignore_errors([this] {
        QComboBox* c = pag(ledger::pagar).cbodescricao;
        c->addItems(
            valores_da_consulta(QStringLiteral("Select * from pcontapagar"), store::coluna::descricao));
        sem_texto(c);
    });
    platform::ignore_errors([this] {
        QComboBox* c = pag(ledger::receber).cbodescricao;
        c->addItems(
            valores_da_consulta(QStringLiteral("Select * from pcontareceber"), store::coluna::descricao));
        sem_texto(c);
    });
    platform::ignore_errors([this] {
        const QStringList bancos =
            valores_da_consulta(QStringLiteral("select * from banco"), store::coluna::banco);
        for (QComboBox* c : {pag(ledger::pagar).cboorigem, pag(ledger::bancario).cboorigem,
                             pag(ledger::bancario).cbodestino, pag(ledger::receber).cboorigem})
            fill_names(c, bancos);
    });
    platform::ignore_errors([this] {
        fill_names(pag(ledger::pagar).cbocontato,
                   valores_da_consulta(QStringLiteral("select * from fornecedor"), store::coluna::nome));
    });
    platform::ignore_errors([this] {
        fill_names(pag(ledger::receber).cbocontato,
                   valores_da_consulta(QStringLiteral("select * from cliente"), store::coluna::nome));
    });
}

void frmconfrelatorio::mostrar_pagina(ledger l) {
    auto* pilha = static_cast<QStackedLayout*>(layout());
    pilha->setCurrentWidget(l == ledger::pagar ? picpagar : l == ledger::receber ? picreceber : picmovimento);
    show_form(this);
}

ledger frmconfrelatorio::pagina_visivel() const {
    const QWidget* w = static_cast<QStackedLayout*>(layout())->currentWidget();
    return w == picreceber ? ledger::receber : w == picmovimento ? ledger::bancario : ledger::pagar;
}

analysis::criterios_relatorio frmconfrelatorio::criterios(ledger l) const {
    const pagina& p = pag(l);
    analysis::criterios_relatorio c;
    c.tabela = l;
    c.data = p.chkdata->isChecked();
    c.data1 = p.data1->date();
    c.data2 = p.data2->date();
    c.data_cadastro = !p.optdatacad || p.optdatacad->isChecked();
    c.estatus = p.chkestatus->isChecked();
    c.pendente = p.optpendente->isChecked();
    if (p.chkcontato) {
        c.contato = p.chkcontato->isChecked();
        c.contato_texto = p.cbocontato->currentText();
    }
    c.origem = p.chkorigem->isChecked();
    c.origem_texto = p.cboorigem->currentText();
    if (p.chkdestino) {
        c.destino = p.chkdestino->isChecked();
        c.destino_texto = p.cbodestino->currentText();
    }
    if (p.chkdescricao) {
        c.descricao = p.chkdescricao->isChecked();
        c.descricao_texto = p.cbodescricao->currentText();
    }
    const auto& opcoes = analysis::opcoes_ordem(l);
    for (std::size_t i = 0; i < p.ordens.size(); ++i)
        if (p.ordens[i]->isChecked()) c.ordem = opcoes[i].clausula;
    c.crescente = p.optasc->isChecked();
    return c;
}

void frmconfrelatorio::visualizar(ledger l) {
    platform::ignore_errors([&] {
        const analysis::criterios_relatorio c = criterios(l);
        const auto consulta = analysis::consulta_relatorio(c);
        if (!consulta) {
            platform::msgbox(analysis::msg_datas_grafico, platform::exclamation, QStringLiteral("Erro"));
            return;
        }
        const QPointer<frmconfrelatorio> self(this);
        std::optional<waiting_window> espera;
        analysis::lista_lida r = analysis::ler_relatorio(
            l, *consulta,
            [&](long n) {
                espera.emplace(this, QStringLiteral("Carregando relatório"), analysis::texto_carregando);
                espera->set_range(0, int(n));
            },
            [&](long i) {
                if (!espera) return;
                espera->set_value(int(i));
                if (i % 256 == 0) waiting_window::yield();
            });
        espera.reset();
        if (r.vazio) {
            platform::msgbox(analysis::msg_sem_resultado, platform::information, QStringLiteral("Info"));
            return;
        }
        const pagina& p = pag(l);
        const QString d1 = p.data1->text(), d2 = p.data2->text();
        frmrelatorio* w = output::relatorio_unico();
        const auto lista = l == ledger::pagar     ? frmrelatorio::lista::pagar
                           : l == ledger::receber ? frmrelatorio::lista::receber
                                                  : frmrelatorio::lista::movimento;
        const QString geral = analysis::geral_relatorio(l, r.tally, d1, d2);
        w->preencher(lista, std::move(r.linhas),
                     {QStringLiteral("Relatório"), analysis::tipo_relatorio(l),
                      analysis::subtitulo_relatorio(c, d1, d2), geral});
        if (l != ledger::bancario) w->ajustarcolunas();
        show_window(w);
        if (self) close();
    });
}
