#include "entries/ui/frmentry_fields.h"

#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

entry_fields_form::entry_fields_form(const QString& name, entries::list_source bank_list,
                                     const QString& estatus_tip)
    : QWidget(nullptr, Qt::Window), bank_list_(std::move(bank_list)) {
    setObjectName(name);
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);

    cboorigem = chosen_box("cboorigem");
    cboorigem->setToolTip(
        QStringLiteral("Selecione a conta de origem desta operação(para castrar uma conta utilize "
                       "a guia movimento de báncario)"));
    txtdocumento = named(new QLineEdit, "txtdocumento");
    txtdocumento->setToolTip(
        QStringLiteral("Coloque o numero do documento, nota fiscal, ordem de serviço, numero da "
                       "nota, etc (campo opcional)"));
    txtdata = named(new date_field, "txtdata");
    txtdescricao = typed_box("txtdescricao");
    txtdescricao->setToolTip(
        QStringLiteral("Selecione o plano de conta ou digite uma descrição para a despesa/receita"));
    cbotipo = typed_box("cbotipo");
    cbotipo->setToolTip(QStringLiteral("Selecione o fornecedor/cliente"));
    cbomoeda = chosen_box("cbomoeda");
    cbomoeda->setToolTip(QStringLiteral("Selecione o tipo de moeda"));
    txtvalor = named(new money_field, "txtvalor");
    txtvalor->setToolTip(QStringLiteral("Digite o valor"));
    txtinfo = named(new QPlainTextEdit, "txtinfo");
    txtinfo->setToolTip(QStringLiteral("informações adicionais"));
    txtinfo->setTabChangesFocus(true);
    cboestatus = chosen_box("cboestatus");
    cboestatus->addItems({QStringLiteral("Pendente"), QStringLiteral("Concluído")});
    cboestatus->setEditText(QStringLiteral("Pendente"));
    cboestatus->setToolTip(estatus_tip);
    cmdinserir = named(new QPushButton, "cmdinserir");
    cmdcancelar = named(new QPushButton(QStringLiteral("&Cancelar")), "cmdcancelar");
    PIC1 = picture("PIC1", QStyle::SP_ArrowDown);
    PIC2 = picture("PIC2", QStyle::SP_ArrowUp);
    ligar_datas(txtdata);
}

void entry_fields_form::abrir_no_topo() {
    sempretopo(QStringLiteral("ativo"), this);
    cbomoeda->addItems({QStringLiteral("R$"), QStringLiteral("$"), QStringLiteral("€"), QStringLiteral("¥"),
                        QStringLiteral("£")});
    cbomoeda->setEditText(QStringLiteral("R$"));
}

void entry_fields_form::ligar_datas(date_field* d) {
    const auto off = [this] { sempretopo(QStringLiteral("desativo"), this); };
    const auto on = [this] { sempretopo(QStringLiteral("ativo"), this); };
    connect(d, &date_field::entered, this, off);
    connect(d, &date_field::left, this, on);
    connect(d, &date_field::calendar_opened, this, off);
    connect(d, &date_field::calendar_closed, this, on);
}

void entry_fields_form::linha(QGridLayout* grid, int row, const QString& label, QWidget* field,
                              QWidget* beside) {
    grid->addWidget(new QLabel(label), row, 0);
    grid->addWidget(field, row, 1);
    if (beside) grid->addWidget(beside, row, 2);
}

int entry_fields_form::linhas_comuns(QGridLayout* grid, QWidget* beside_origem, QWidget* beside_descricao,
                                     QWidget* beside_contato) {
    linha(grid, 0, QStringLiteral("Banco/Caixa:"), cboorigem, beside_origem);
    linha(grid, 1, QStringLiteral("Documento:"), txtdocumento);
    linha(grid, 2, QStringLiteral("Data:"), txtdata);
    linha(grid, 3, QStringLiteral("Descrição:"), txtdescricao, beside_descricao);
    linha(grid, 4, QStringLiteral("Fornecedor/Cliente:"), cbotipo, beside_contato);
    linha(grid, 5, QStringLiteral("Moeda:"), cbomoeda);
    linha(grid, 6, QStringLiteral("Valor:"), txtvalor);
    grid->setColumnStretch(1, 1);
    txtinfo->setFixedHeight(txtinfo->fontMetrics().lineSpacing() * 4 + 12);
    return 7;
}

void entry_fields_form::montar_tela(QGridLayout* grid, std::initializer_list<QWidget*> abaixo,
                                    std::initializer_list<QWidget*> ordem) {
    auto* pics = new QHBoxLayout;
    pics->addWidget(PIC1);
    pics->addWidget(PIC2);
    pics->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdinserir);
    buttons->addWidget(cmdcancelar);
    auto* v = new QVBoxLayout(this);
    v->addLayout(pics);
    v->addLayout(grid);
    for (QWidget* w : abaixo)
        if (w) v->addWidget(w);
    v->addLayout(buttons);
    resize(520, sizeHint().height());
    set_tab_chain(ordem);
    install_field_conduct_all(this);
    install_field_conduct(txtinfo);
}

void entry_fields_form::carregar_lista(QComboBox* box, const entries::list_source& s) {
    QStringList names;
    // errors ignored: the box is left empty
    platform::ignore_errors([&] { names = entries::read_names(s); });
    fill_names(box, names);
}

void entry_fields_form::carregarbanco() {
    carregar_lista(cboorigem, bank_list_);
}
void entry_fields_form::carregarfornecedor() {
    carregar_lista(cbotipo, entries::suppliers());
}
void entry_fields_form::carregarcliente() {
    carregar_lista(cbotipo, entries::clients());
}
void entry_fields_form::planopagar() {
    carregar_lista(txtdescricao, entries::cost_centres());
}
void entry_fields_form::planoreceber() {
    carregar_lista(txtdescricao, entries::profit_centres());
}

void entry_fields_form::carregar_contato_e_centro(shell::ledger k) {
    if (k == shell::ledger::pagar) {
        carregarfornecedor();
        planopagar();
    } else {
        carregarcliente();
        planoreceber();
    }
}

void entry_fields_form::carregar_caixas(shell::ledger k) {
    if (k != shell::ledger::pagar) carregarbanco();
    carregar_contato_e_centro(k);
    if (k == shell::ledger::pagar) carregarbanco();
}

void entry_fields_form::vestir(const entries::dress& d) {
    setWindowTitle(d.titulo);
    PIC1->setVisible(d.despesa);
    PIC2->setVisible(!d.despesa);
    cmdinserir->setText(d.botao);
}

void entry_fields_form::mostrar() {
    show_form(this);
}

entries::entry_fields entry_fields_form::campos_com(const QString& vencimento) const {
    return {.estatus = cboestatus->currentText(),
            .origem = cboorigem->currentText(),
            .nome = cbotipo->currentText(),
            .data = txtdata->text(),
            .descricao = txtdescricao->currentText(),
            .documento = txtdocumento->text(),
            .informacoes = txtinfo->toPlainText(),
            .valor = txtvalor->text(),
            .vencimento = vencimento,
            .moeda = cbomoeda->currentText()};
}

void entry_fields_form::erro(const QString& texto) {
    msgbox_over(this, texto, platform::exclamation, QStringLiteral("Erro"));
}
