#include "analysis/ui/frmconfgrafico.h"

#include "analysis/ui/frmgrafico.h"
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

using analysis::painel_grafico;

namespace {

QPointer<frmconfgrafico> the_window;

// One panel: its title on top, criteria in rows, the two buttons at the foot.
class montador {
public:
    montador(QWidget* painel, const QString& titulo) : grade_(new QGridLayout) {
        auto* v = new QVBoxLayout(painel);
        auto* t = new QLabel(titulo);
        QFont f = t->font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() * 1.2);
        t->setFont(f);
        v->addWidget(t);
        v->addLayout(grade_);
        v->addStretch(1);
        botoes_ = new QHBoxLayout;
        botoes_->addStretch(1);
        v->addLayout(botoes_);
        grade_->setColumnStretch(1, 1);
    }
    void linha(QCheckBox* c, QWidget* w) {
        const int r = grade_->rowCount();
        grade_->addWidget(c, r, 0, 1, 2);
        grade_->addWidget(w, r + 1, 1);
    }
    void botao(QPushButton* b) { botoes_->addWidget(b); }

private:
    QGridLayout* grade_;
    QHBoxLayout* botoes_;
};

QWidget* par_de_datas(date_field*& d1, date_field*& d2, const char* n1, const char* n2) {
    auto* w = new QWidget;
    auto* h = new QHBoxLayout(w);
    h->setContentsMargins(0, 0, 0, 0);
    d1 = named(new date_field, n1);
    d2 = named(new date_field, n2);
    h->addWidget(new QLabel(QStringLiteral("Mostrar apenas dados entre:")));
    h->addWidget(d1);
    h->addWidget(new QLabel(QStringLiteral("e")));
    h->addWidget(d2);
    h->addStretch(1);
    return w;
}

QGroupBox* quadro_estatus(QRadioButton*& pend, QRadioButton*& conc, const char* nome, const char* np,
                          const char* nc) {
    auto* g = named(new QGroupBox, nome);
    auto* h = new QHBoxLayout(g);
    pend = named(new QRadioButton(QStringLiteral("Apenas Pendente")), np);
    conc = named(new QRadioButton(QStringLiteral("Apenas Concluído")), nc);
    pend->setChecked(true);
    h->addWidget(pend);
    h->addWidget(conc);
    h->addStretch(1);
    return g;
}

QComboBox* caixa_descricao(const char* nome, const QString& prompt) {
    QComboBox* c = typed_box(nome);
    c->lineEdit()->setPlaceholderText(prompt);
    return c;
}

QString filtro_data() {
    return QStringLiteral("Filtrar dados por data");
}
QString filtro_estatus() {
    return QStringLiteral("Filtrar dados por Estatus");
}

void sem_texto(QComboBox* c) {
    c->setCurrentIndex(-1);
    c->setEditText(QString());
}

} // namespace

frmconfgrafico* frmconfgrafico::instance() {
    return single_window(the_window, [] {
        auto* w = new frmconfgrafico();
        if (shell::principal_api* p = shell::principal(); p && p->janela())
            w->setParent(p->janela(), Qt::Window);
        return w;
    });
}

frmconfgrafico* frmconfgrafico::aberto() {
    return loaded_window(the_window);
}

frmconfgrafico::frmconfgrafico() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmconfgrafico"));
    setWindowTitle(QStringLiteral("Configurar gráfico"));
    const QString visualizar = QStringLiteral("Visualizar gráfico na tela");
    const QString cancelar = QStringLiteral("Cancelar");
    const QString conta_origem = QStringLiteral("Filtrar dados por conta origem");
    const QString por_descricao = QStringLiteral("Filtrar dados por descrição / Plano de contas");

    // expenses
    picpagar = named(new QWidget, "picpagar");
    {
        montador m(picpagar, QStringLiteral("Gráfico de Contas a pagar - despesas"));
        chkdatap = caixa_criterio("chkdatap", filtro_data());
        QWidget* datas = par_de_datas(cbodata1p, cbodata2p, "cbodata1p", "cbodata2p");
        m.linha(chkdatap, datas);
        chkestatusp = caixa_criterio("chkestatusp", filtro_estatus());
        frameestatusp =
            quadro_estatus(optpendentep, optconcluidop, "frameestatusp", "optpendentep", "optconcluidop");
        m.linha(chkestatusp, frameestatusp);
        chkfornecedorp = caixa_criterio("chkfornecedorp", QStringLiteral("Filtrar dados por fornecedor"));
        cbofornecedorp = chosen_box("cbofornecedorp");
        m.linha(chkfornecedorp, cbofornecedorp);
        chkorigemp = caixa_criterio("chkorigemp", conta_origem);
        cboorigemp = chosen_box("cboorigemp");
        m.linha(chkorigemp, cboorigemp);
        chkdescricaop = caixa_criterio("chkdescricaop", por_descricao);
        cbodescricaop = caixa_descricao("cbodescricaop",
                                        QStringLiteral("Digite a descricão ou selecione plano de conta"));
        m.linha(chkdescricaop, cbodescricaop);
        cmdnatelap = named(new QPushButton(visualizar), "cmdnatelap");
        cmdcancelarp = named(new QPushButton(cancelar), "cmdcancelarp");
        m.botao(cmdnatelap);
        m.botao(cmdcancelarp);
        ligar_criterio(chkdatap, {cbodata1p, cbodata2p});
        ligar_criterio(chkestatusp, {frameestatusp, optpendentep, optconcluidop});
        ligar_criterio(chkfornecedorp, {cbofornecedorp});
        ligar_criterio(chkorigemp, {cboorigemp});
        ligar_criterio(chkdescricaop, {cbodescricaop});
    }
    // income
    picreceber = named(new QWidget, "picreceber");
    {
        montador m(picreceber, QStringLiteral("Gráfico de Contas a receber - receitas"));
        chkdatar = caixa_criterio("chkdatar", filtro_data());
        m.linha(chkdatar, par_de_datas(cbodata1r, cbodata2r, "cbodata1r", "cbodata2r"));
        chkestatusr = caixa_criterio("chkestatusr", filtro_estatus());
        frameestatusr =
            quadro_estatus(optpendenter, optconcluidor, "frameestatusr", "optpendenter", "optconcluidor");
        m.linha(chkestatusr, frameestatusr);
        chkclir = caixa_criterio("chkclir", QStringLiteral("Filtrar dados por Cliente"));
        cboclir = chosen_box("cboclir");
        m.linha(chkclir, cboclir);
        chkorigemr = caixa_criterio("chkorigemr", conta_origem);
        cboorigemr = chosen_box("cboorigemr");
        m.linha(chkorigemr, cboorigemr);
        chkdescricaor = caixa_criterio("chkdescricaor", por_descricao);
        cbodescricaor = caixa_descricao("cbodescricaor",
                                        QStringLiteral("Digite a descricão ou selecione um plano de conta"));
        m.linha(chkdescricaor, cbodescricaor);
        cmdnatelar = named(new QPushButton(visualizar), "cmdnatelar");
        cmdcancelarr = named(new QPushButton(cancelar), "cmdcancelarr");
        m.botao(cmdnatelar);
        m.botao(cmdcancelarr);
        ligar_criterio(chkdatar, {cbodata1r, cbodata2r});
        ligar_criterio(chkestatusr, {frameestatusr, optpendenter, optconcluidor});
        ligar_criterio(chkclir, {cboclir});
        ligar_criterio(chkorigemr, {cboorigemr});
        ligar_criterio(chkdescricaor, {cbodescricaor});
    }
    // bank movements
    picmovimento = named(new QWidget, "picmovimento");
    {
        montador m(picmovimento, QStringLiteral("Gráfico de Movimentos bancário"));
        chkdatab = caixa_criterio("chkdatab", filtro_data());
        m.linha(chkdatab, par_de_datas(cbodata1b, cbodata2b, "cbodata1b", "cbodata2b"));
        chkestatusb = caixa_criterio("chkestatusb", filtro_estatus());
        frameestatusb =
            quadro_estatus(optpendenteb, optconcluidob, "frameestatusb", "optpendenteb", "optconcluidob");
        m.linha(chkestatusb, frameestatusb);
        chkorigemb = caixa_criterio("chkorigemb", conta_origem);
        cboorigemb = typed_box("cboorigemb");
        m.linha(chkorigemb, cboorigemb);
        chkdestinob = caixa_criterio("chkdestinob", QStringLiteral("Filtrar dados por conta destino"));
        cbodestinob = typed_box("cbodestinob");
        m.linha(chkdestinob, cbodestinob);
        cmdnatelab = named(new QPushButton(visualizar), "cmdnatelab");
        cmdcancelarb = named(new QPushButton(cancelar), "cmdcancelarb");
        m.botao(cmdnatelab);
        m.botao(cmdcancelarb);
        ligar_criterio(chkdatab, {cbodata1b, cbodata2b});
        ligar_criterio(chkestatusb, {frameestatusb, optpendenteb, optconcluidob});
        ligar_criterio(chkorigemb, {cboorigemb});
        ligar_criterio(chkdestinob, {cbodestinob});
    }
    // expenses against income
    picdesprec = named(new QWidget, "picdesprec");
    {
        montador m(picdesprec, QStringLiteral("Gráfico de despesas x receitas"));
        chkdatadr = caixa_criterio("chkdatadr", filtro_data());
        m.linha(chkdatadr, par_de_datas(cbodata1dr, cbodata2dr, "cbodata1dr", "cbodata2dr"));
        chkestatusdr = caixa_criterio("chkestatusdr", filtro_estatus());
        Frame1 = quadro_estatus(optpendentedr, optconcluidodr, "Frame1", "optpendentedr", "optconcluidodr");
        m.linha(chkestatusdr, Frame1);
        chkcontadr = caixa_criterio("chkcontadr", conta_origem);
        // nothing fills this box: it keeps its first text until the user types an account
        cbocontadr = typed_box("cbocontadr");
        cbocontadr->setEditText(QStringLiteral("Combo1"));
        m.linha(chkcontadr, cbocontadr);
        cmdgradr = named(new QPushButton(visualizar), "cmdgradr");
        cmdcancelardr = named(new QPushButton(cancelar), "cmdcancelardr");
        m.botao(cmdgradr);
        m.botao(cmdcancelardr);
        ligar_criterio(chkdatadr, {cbodata1dr, cbodata2dr});
        ligar_criterio(chkestatusdr, {Frame1, optpendentedr, optconcluidodr});
        ligar_criterio(chkcontadr, {cbocontadr});
    }

    auto* pilha = new QStackedLayout(this);
    for (QWidget* w : {picpagar, picreceber, picmovimento, picdesprec})
        pilha->addWidget(w);

    connect(cmdnatelap, &QPushButton::clicked, this, [this] { grafico_lancamentos(painel_grafico::pagar); });
    connect(cmdnatelar, &QPushButton::clicked, this,
            [this] { grafico_lancamentos(painel_grafico::receber); });
    connect(cmdnatelab, &QPushButton::clicked, this,
            [this] { grafico_lancamentos(painel_grafico::bancario); });
    connect(cmdgradr, &QPushButton::clicked, this, &frmconfgrafico::cmdgradr_click);
    for (QPushButton* b : {cmdcancelarp, cmdcancelarr, cmdcancelarb, cmdcancelardr})
        connect(b, &QPushButton::clicked, this, &QWidget::close);

    resize(620, 460);
    carregar_listas();
}

void frmconfgrafico::carregar_listas() {
    using analysis::valores_da_consulta;
    // each list on its own: one that fails leaves the others
    platform::ignore_errors([this] {
        cbodescricaop->addItems(
            valores_da_consulta(QStringLiteral("Select * from pcontapagar"), store::coluna::descricao));
        sem_texto(cbodescricaop);
    });
    platform::ignore_errors([this] {
        cbodescricaor->addItems(
            valores_da_consulta(QStringLiteral("Select * from pcontareceber"), store::coluna::descricao));
        sem_texto(cbodescricaor);
    });
    platform::ignore_errors([this] {
        const QStringList bancos =
            valores_da_consulta(QStringLiteral("select * from banco"), store::coluna::banco);
        for (QComboBox* c : {cboorigemp, cboorigemb, cbodestinob, cboorigemr})
            fill_names(c, bancos);
    });
    platform::ignore_errors([this] {
        fill_names(cbofornecedorp,
                   valores_da_consulta(QStringLiteral("select * from fornecedor"), store::coluna::nome));
    });
    platform::ignore_errors([this] {
        fill_names(cboclir,
                   valores_da_consulta(QStringLiteral("select * from cliente"), store::coluna::nome));
    });
}

void frmconfgrafico::mostrar_painel(painel_grafico p) {
    auto* pilha = static_cast<QStackedLayout*>(layout());
    QWidget* alvo = p == painel_grafico::pagar      ? picpagar
                    : p == painel_grafico::receber  ? picreceber
                    : p == painel_grafico::bancario ? picmovimento
                                                    : picdesprec;
    pilha->setCurrentWidget(alvo);
    show_form(this);
}

painel_grafico frmconfgrafico::painel_visivel() const {
    const QWidget* w = static_cast<QStackedLayout*>(layout())->currentWidget();
    if (w == picreceber) return painel_grafico::receber;
    if (w == picmovimento) return painel_grafico::bancario;
    if (w == picdesprec) return painel_grafico::despesas_receitas;
    return painel_grafico::pagar;
}

analysis::criterios_grafico frmconfgrafico::criterios(painel_grafico p) const {
    analysis::criterios_grafico c;
    const auto datas = [&c](const QCheckBox* chk, const date_field* d1, const date_field* d2) {
        c.data = chk->isChecked();
        c.data1 = d1->date();
        c.data2 = d2->date();
    };
    const auto estatus = [&c](const QCheckBox* chk, const QRadioButton* pend) {
        c.estatus = chk->isChecked();
        c.pendente = pend->isChecked();
    };
    switch (p) {
    case painel_grafico::pagar:
        datas(chkdatap, cbodata1p, cbodata2p);
        estatus(chkestatusp, optpendentep);
        c.contato = chkfornecedorp->isChecked();
        c.contato_texto = cbofornecedorp->currentText();
        c.origem = chkorigemp->isChecked();
        c.origem_texto = cboorigemp->currentText();
        c.descricao = chkdescricaop->isChecked();
        c.descricao_texto = cbodescricaop->currentText();
        break;
    case painel_grafico::receber:
        datas(chkdatar, cbodata1r, cbodata2r);
        estatus(chkestatusr, optpendenter);
        c.contato = chkclir->isChecked();
        c.contato_texto = cboclir->currentText();
        c.origem = chkorigemr->isChecked();
        c.origem_texto = cboorigemr->currentText();
        c.descricao = chkdescricaor->isChecked();
        c.descricao_texto = cbodescricaor->currentText();
        break;
    case painel_grafico::bancario:
        datas(chkdatab, cbodata1b, cbodata2b);
        estatus(chkestatusb, optpendenteb);
        c.origem = chkorigemb->isChecked();
        c.origem_texto = cboorigemb->currentText();
        c.destino = chkdestinob->isChecked();
        c.destino_texto = cbodestinob->currentText();
        break;
    case painel_grafico::despesas_receitas:
        datas(chkdatadr, cbodata1dr, cbodata2dr);
        estatus(chkestatusdr, optpendentedr);
        c.origem = chkcontadr->isChecked();
        c.origem_texto = cbocontadr->currentText();
        break;
    }
    return c;
}

void frmconfgrafico::grafico_lancamentos(painel_grafico p) {
    const auto consulta = analysis::consulta_grafico(p, criterios(p));
    if (!consulta) {
        platform::msgbox(analysis::msg_datas_grafico, platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    const analysis::palavras_grafico w = analysis::palavras_de(p);
    const QPointer<frmconfgrafico> self(this);
    analysis::contagem c;
    {
        waiting_window espera(this, QStringLiteral("Carregando gráfico"), analysis::texto_carregando);
        platform::ignore_errors([&] { c = analysis::contar(*consulta); });
    }
    if (c.vazio) {
        platform::msgbox(w.sem_dados, platform::information, QStringLiteral("Info"));
        return;
    }
    frmgrafico* g = frmgrafico::instance();
    g->limpar();
    g->setWindowTitle(w.caption);
    if (!w.caption2.isEmpty()) g->setWindowTitle(w.caption2);
    if (const auto r = analysis::rotulos_de(w.palavras, false)) g->definir_rotulos(*r);
    g->mostrar_figuras(analysis::figuras_de(c.tally));
    g->mgrafico->set_title(w.titulo);
    show_form(g);
    if (self) close();
}

void frmconfgrafico::cmdgradr_click() {
    const analysis::criterios_grafico c = criterios(painel_grafico::despesas_receitas);
    const auto pagar = analysis::consulta_grafico(painel_grafico::despesas_receitas, c);
    const auto receber = analysis::consulta_receitas(c);
    if (!pagar || !receber) {
        platform::msgbox(analysis::msg_datas_grafico, platform::exclamation, QStringLiteral("Erro"));
        return;
    }
    const analysis::palavras_grafico w = analysis::palavras_de(painel_grafico::despesas_receitas);
    const QPointer<frmconfgrafico> self(this);
    const QPointer<frmgrafico> g = frmgrafico::instance();
    g->limpar();
    g->setWindowTitle(w.caption);
    show_form(g);
    analysis::despesas_receitas d;
    {
        waiting_window espera(g, QStringLiteral("Carregando gráfico"), analysis::texto_carregando);
        platform::ignore_errors([&] { d = analysis::somar_despesas_receitas(*pagar, *receber); });
    }
    if (!g) return;
    const analysis::figuras_dr f = analysis::figuras_de(d);
    g->definir_rotulos({QStringLiteral("Total Geral"), QStringLiteral("Total de receitas"),
                        QStringLiteral("Total de despesas"),
                        QStringLiteral("Diferença entre despesas x receitas"), g->lbl5->text(),
                        g->lbl6->text()});
    g->lbltotalcad->setText(f.lbltotalcad);
    g->lbltotal->setText(f.lbltotal);
    g->lbltotalpg->setText(f.lbltotalpg);
    g->lblqtdpg->setText(f.lblqtdpg);
    for (QLabel* l : {g->lbl5, g->lbl6, g->lbltotalpen, g->lblqtdpen})
        l->hide();
    g->mgrafico->set_title(w.titulo);
    g->mgrafico->set_columns(
        {QStringLiteral("Total"), QStringLiteral("Despesas"), QStringLiteral("Receitas")});
    for (int i = 0; i < 3; ++i)
        g->mgrafico->set_data(i, f.colunas[std::size_t(i)]);
    if (self) close();
}
