#include "banks/ui/frmmovimento_window.h"

#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "shell/principal_api.h"
#include "store/messages.h"
#include "store/names.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const QString titulo_erro = QStringLiteral("Erro");

// Chosen from, never typed in; any text the rows hold can still be shown.
QComboBox* caixa(const char* name, const QString& tooltip) {
    QComboBox* c = chosen_box(name);
    c->setToolTip(tooltip);
    c->setMinimumContentsLength(24);
    return c;
}

} // namespace

movimento_window::movimento_window(const banks::movement_twin& twin) : twin_(twin) {
    setObjectName(twin_.window);
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose, true);
    setWindowTitle(twin_.title);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    montar();
    // The window stays on top while it is open.
    sempretopo(QStringLiteral("ativo"), this);
    if (twin_.starts_today) txtdata->set_date(platform::today());
    preencher_contas();
}

void movimento_window::montar() {
    cbomovimento =
        caixa("cbomovimento", QStringLiteral("Selecione o tipo de movimento bancário desta transação"));
    cbomovimento->addItems(
        {store::palavra::deposito, store::palavra::retirada, store::palavra::transferencia});
    cbomovimento->setCurrentIndex(0);
    cboorigem =
        caixa("cboorigem", QStringLiteral("Selecione a conta de origem desta operação(para castrar uma "
                                          "conta utilize a guia movimento de báncario)"));
    cbodestino = caixa("cbodestino", QStringLiteral("Seleciona a conta de destino da transação"));
    txtdata = new date_field;
    txtdata->setObjectName(QStringLiteral("txtdata"));
    txtvalor = new money_field;
    txtvalor->setObjectName(QStringLiteral("txtvalor"));
    txtvalor->setToolTip(QStringLiteral("Digite o valor"));
    txtinfo = new QLineEdit;
    txtinfo->setObjectName(QStringLiteral("txtinfo"));
    txtinfo->setToolTip(twin_.info_tooltip);
    cboestatus = caixa("cboestatus", QStringLiteral("Estatus da operação"));
    cboestatus->addItems({store::palavra::pendente, store::palavra::concluido});
    cboestatus->setCurrentIndex(0);
    gravar_ = new QPushButton(twin_.store_caption);
    gravar_->setObjectName(twin_.store_button);
    cmdcancelar = new QPushButton(QStringLiteral("&Cancelar"));
    cmdcancelar->setObjectName(QStringLiteral("cmdcancelar"));

    auto* g = new QGridLayout;
    int linha = 0;
    auto linha_de = [&](const QString& rotulo, QWidget* campo) {
        auto* l = new QLabel(rotulo);
        l->setBuddy(campo);
        g->addWidget(l, linha, 0);
        g->addWidget(campo, linha, 1);
        ++linha;
        return l;
    };
    linha_de(QStringLiteral("Tipo de movimento:"), cbomovimento);
    linha_de(QStringLiteral("Conta de origem:"), cboorigem);
    QLabel* rotulo_destino = linha_de(QStringLiteral("Conta de destino:"), cbodestino);
    linha_de(QStringLiteral("Data:"), txtdata);
    linha_de(QStringLiteral("Valor:"), txtvalor);
    linha_de(QStringLiteral("Informações:"), txtinfo);
    linha_de(QStringLiteral("Estatus:"), cboestatus);
    lbldestino_ = rotulo_destino;
    mostrar_destino(false);

    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(gravar_);
    botoes->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addLayout(botoes);

    set_tab_chain(
        {cbomovimento, cboorigem, cbodestino, txtdata, txtvalor, txtinfo, cboestatus, gravar_, cmdcancelar});

    install_field_conduct_all(this);
    atalhos_ = new atalhos(this);
    atalhos_->add(twin_.store_key, [this]() { gravar_->click(); });
    atalhos_->add(QLatin1Char('C'), [this]() { cmdcancelar->click(); });

    connect(gravar_, &QPushButton::clicked, this, &movimento_window::gravar);
    connect(cmdcancelar, &QPushButton::clicked, this, &movimento_window::cmdcancelar_click);
    connect(cbomovimento, &QComboBox::activated, this, &movimento_window::cbomovimento_click);
    connect(txtdata, &date_field::entered, this, &movimento_window::txtdata_entrou);
    connect(txtdata, &date_field::left, this, &movimento_window::txtdata_saiu);
    connect(txtdata, &date_field::calendar_opened, this,
            [this]() { sempretopo(QStringLiteral("desativo"), this); });
    connect(txtdata, &date_field::calendar_closed, this, [this]() {
        // Still in the date field: stay-on-top comes back when the field is left.
        if (!txtdata->line_edit()->hasFocus()) sempretopo(QStringLiteral("ativo"), this);
    });
    // The window grows and shrinks with the target row.
    v->setSizeConstraint(QLayout::SetFixedSize);
}

void movimento_window::preencher_contas() {
    const QStringList contas = banks::account_names(twin_);
    for (QComboBox* c : {cboorigem, cbodestino}) {
        c->addItems(contas);
        if (twin_.accounts_as_text && !contas.isEmpty()) c->setCurrentIndex(int(contas.size()) - 1);
    }
    // An editable box shows its first entry; with no text given it starts empty.
    if (!twin_.accounts_as_text)
        for (QComboBox* c : {cboorigem, cbodestino})
            c->setCurrentIndex(-1);
}

void movimento_window::mostrar() {
    show_form(this);
}

void movimento_window::mostrar_destino(bool sim) {
    // The label goes with its box.
    cbodestino->setVisible(sim);
    lbldestino_->setVisible(sim);
}

void movimento_window::cbomovimento_click() {
    // Hidden, the box keeps its text: the rule on writing decides what destino holds.
    mostrar_destino(banks::shows_destino(cbomovimento->currentText()));
}

void movimento_window::txtdata_entrou() {
    sempretopo(QStringLiteral("desativo"), this);
    for (QWidget* campo : {static_cast<QWidget*>(cbomovimento), static_cast<QWidget*>(cboorigem),
                           static_cast<QWidget*>(cbodestino), static_cast<QWidget*>(txtvalor),
                           static_cast<QWidget*>(txtinfo), static_cast<QWidget*>(cboestatus)})
        paint_field(campo, cor_normal);
}

void movimento_window::txtdata_saiu() {
    sempretopo(QStringLiteral("ativo"), this);
}

banks::movement_fields movimento_window::campos() const {
    banks::movement_fields f;
    f.movimento = cbomovimento->currentText();
    f.origem = cboorigem->currentText();
    f.destino = cbodestino->currentText();
    // A date typed in another accepted form is written as the date it reads as.
    f.data = txtdata->date().isValid() ? txtdata->text() : txtdata->typed_text();
    f.valor = txtvalor->text();
    f.informacoes = txtinfo->text();
    f.estatus = cboestatus->currentText();
    return f;
}

void movimento_window::gravar() {
    try {
        const QString vazio = banks::blank_field_message(twin_, txtvalor->text(), txtdata->typed_text());
        if (!vazio.isEmpty()) {
            msgbox_over(this, vazio, platform::ok_only | platform::exclamation, titulo_erro);
            return;
        }
        const auto marcar_origem = [this]() {
            if (cboorigem->currentText().isEmpty()) cboorigem->setEditText(store::palavra::sem_origem);
        };
        if (twin_.origem_mark_first) marcar_origem();
        const banks::save_outcome r = banks::save_movement(twin_, chave(), campos());
        if (!twin_.origem_mark_first && r.row_opened) marcar_origem();
        if (!r.ok) {
            msgbox_over(this, store::save_error_message(r.error), platform::ok_only | platform::exclamation,
                        titulo_erro);
            return;
        }
        hide();
        shell::recarregar_principal(shell::ledger::bancario, false);
        descarregar();
    } catch (const std::exception& e) {
        msgbox_over(this, store::save_error_message(e), platform::ok_only | platform::exclamation,
                    titulo_erro);
    }
}

void movimento_window::cmdcancelar_click() {
    descarregar();
}

void movimento_window::descarregar() {
    mark_unloaded(this);
    close();
}

void movimento_window::closeEvent(QCloseEvent* e) {
    mark_unloaded(this);
    QWidget::closeEvent(e);
}
