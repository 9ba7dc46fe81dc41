#include "entries/ui/frmentry_form.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/conexao.h"
#include "store/messages.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

QPushButton* button(const char* name, const QString& caption) {
    return named(new QPushButton(caption), name);
}

} // namespace

entry_form::entry_form(const QString& name, entries::list_source bank_list, QString expense_caption)
    : entry_fields_form(name, std::move(bank_list), QStringLiteral("Estatus da operação")),
      expense_caption_(std::move(expense_caption)) {
    txtvencimento = named(new date_field, "txtvencimento");
    cmdbancoinc = button("cmdbancoinc", QStringLiteral("Cadastrar novo"));
    cmddescinc = button("cmddescinc", QStringLiteral("Cadastrar novo"));
    cmdforncliinc = button("cmdforncliinc", QStringLiteral("Cadastrar novo"));
    cmdforncliinc->setEnabled(shell::find_action(QStringLiteral("frmcadforn")) &&
                              shell::find_action(QStringLiteral("frmcadcli")));

    connect(cmdinserir, &QPushButton::clicked, this, &entry_form::cmdinserir_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &entry_form::cmdcancelar_click);
    connect(cmdbancoinc, &QPushButton::clicked, this, &entry_form::cmdbancoinc_click);
    connect(cmddescinc, &QPushButton::clicked, this, &entry_form::cmddescinc_click);
    connect(cmdforncliinc, &QPushButton::clicked, this, &entry_form::cmdforncliinc_click);
    cmdbancoinc->setEnabled(shell::find_action(QStringLiteral("frmbanco")) != nullptr);
    cmddescinc->setEnabled(shell::find_action(QStringLiteral("frmcentrocusto")) &&
                           shell::find_action(QStringLiteral("frmcentrolucro")));
    // an account, a centre, a supplier or a client added by a quick add: the box refilled and showing it
    connect(&shell::avisos::instance(), &shell::avisos::cadastrado, this,
            [this](shell::cadastro que, const QString& nome) {
                if (descarregado_) return;
                if (que == shell::cadastro::centrocusto || que == shell::cadastro::centrolucro) {
                    centro_cadastrado(que == shell::cadastro::centrocusto, nome);
                    return;
                }
                if (que == shell::cadastro::fornecedor || que == shell::cadastro::cliente) {
                    // the box takes the kind of the form that saved, whatever this window is dressed as
                    if (isVisible()) {
                        que == shell::cadastro::fornecedor ? carregarfornecedor() : carregarcliente();
                        cbotipo->setEditText(nome);
                    }
                } else if (que != shell::cadastro::banco) {
                    return;
                } else if (isVisible()) {
                    carregarbanco();
                    cboorigem->setEditText(nome);
                }
                // the edit window goes back on top; the adding one, which stepped back for the quick add,
                // does not
                if (objectName() == QLatin1String("frmeditar")) sempretopo(QStringLiteral("ativo"), this);
            });
    ligar_datas(txtvencimento);
    abrir_no_topo();
}

entry_form::~entry_form() = default;

void entry_form::montar(QWidget* extra) {
    auto* grid = new QGridLayout;
    const int row = linhas_comuns(grid, cmdbancoinc, cmddescinc, cmdforncliinc);
    linha(grid, row, QStringLiteral("Vencimento:"), txtvencimento);
    linha(grid, row + 1, QStringLiteral("Informações:"), txtinfo);
    linha(grid, row + 2, QStringLiteral("Estatus:"), cboestatus);

    montar_tela(grid, {extra},
                {cboorigem, txtdocumento, txtdata, txtdescricao, cbotipo, cbomoeda, txtvalor, txtvencimento,
                 txtinfo, cboestatus, cmdinserir, cmdcancelar, cmdbancoinc, cmddescinc, cmdforncliinc});
    atalhos_ = new atalhos(this);
    atalhos_->add(QLatin1Char('C'), [this] { cmdcancelar_click(); });
    atalhos_->add(QLatin1Char('I'), [this] { cmdinserir_click(); });
}

void entry_form::atalho_extra(QChar letra) {
    if (atalhos_) atalhos_->add(letra, [this] { cmdinserir_click(); });
}

entries::entry_fields entry_form::campos() const {
    return campos_com(txtvencimento->text());
}

void entry_form::cmdinserir_click() {
    const QString em_branco = entries::blank_fields_message(campos());
    if (!em_branco.isEmpty()) {
        erro(em_branco);
        return;
    }
    try {
        if (cboorigem->currentText().isEmpty()) cboorigem->setEditText(store::palavra::sem_origem);
        store::conectarbanco();
        const shell::ledger k = entries::kind_of_caption(cmdinserir->text(), expense_caption_);
        gravar(k, campos());
        depois_de_gravar(k);
    } catch (const std::exception& e) {
        erro(store::save_error_message(e));
    }
}

void entry_form::cmdcancelar_click() {
    descarregar();
}

void entry_form::cmdbancoinc_click() {
    sempretopo(QStringLiteral("desativo"), this);
    shell::run_action(QStringLiteral("frmbanco"));
}

void entry_form::cmddescinc_click() {
    sempretopo(QStringLiteral("desativo"), this);
    shell::run_action(PIC1->isVisibleTo(this) ? QStringLiteral("frmcentrocusto")
                                              : QStringLiteral("frmcentrolucro"));
}

void entry_form::cmdforncliinc_click() {
    sempretopo(QStringLiteral("desativo"), this);
    shell::run_action(PIC1->isVisibleTo(this) ? QStringLiteral("frmcadforn") : QStringLiteral("frmcadcli"));
}

void entry_form::centro_cadastrado(bool custo, const QString& nome) {
    // the centre windows refill the box of their own kind, whatever this window is dressed as
    if (!isVisible()) return;
    if (custo)
        planopagar();
    else
        planoreceber();
    // no name: the centres changed, the box is only refilled
    if (!nome.isEmpty()) txtdescricao->setEditText(nome);
}

void entry_form::marcar_descarregado() {
    if (descarregado_) return;
    descarregado_ = true;
    mark_unloaded(this);
    // errors ignored: the window goes all the same
    platform::ignore_errors([this] { ao_descarregar(); });
}

void entry_form::descarregar() {
    hide();
    marcar_descarregado();
    deleteLater();
}

void entry_form::closeEvent(QCloseEvent* e) {
    marcar_descarregado();
    e->accept();
}
