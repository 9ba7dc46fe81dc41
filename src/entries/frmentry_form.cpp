#include "entries/frmentry_form.h"

#include "banks/frmbanco.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "shell/frmprincipal.h"
#include "store/conexao.h"
#include "store/config.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include <exception>

namespace {

QPushButton* button(const char* name, const QString& caption) {
    return named(new QPushButton(caption), name);
}

} // namespace

entry_form::entry_form(const QString& name, entries::list_source bank_list, QString expense_caption)
    : QWidget(nullptr, Qt::Window), bank_list_(std::move(bank_list)),
      expense_caption_(std::move(expense_caption)) {
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
    cbomoeda->setEditText(QStringLiteral("R$"));
    cbomoeda->setToolTip(QStringLiteral("Selecione o tipo de moeda"));
    txtvalor = named(new money_field, "txtvalor");
    txtvalor->setToolTip(QStringLiteral("Digite o valor"));
    txtvencimento = named(new date_field, "txtvencimento");
    txtinfo = named(new QPlainTextEdit, "txtinfo");
    txtinfo->setToolTip(QStringLiteral("informações adicionais"));
    txtinfo->setTabChangesFocus(true);
    cboestatus = chosen_box("cboestatus");
    cboestatus->addItems({QStringLiteral("Pendente"), QStringLiteral("Concluído")});
    cboestatus->setEditText(QStringLiteral("Pendente"));
    cboestatus->setToolTip(QStringLiteral("Estatus da operação"));
    cmdinserir = button("cmdinserir", QString());
    cmdcancelar = button("cmdcancelar", QStringLiteral("&Cancelar"));
    cmdbancoinc = button("cmdbancoinc", QStringLiteral("Cadastrar novo"));
    cmddescinc = button("cmddescinc", QStringLiteral("Cadastrar novo"));
    cmdforncliinc = button("cmdforncliinc", QStringLiteral("Cadastrar novo"));
    // the windows of centres, clients and suppliers are not part of this program yet
    cmddescinc->setEnabled(false);
    cmdforncliinc->setEnabled(false);
    PIC1 = picture("PIC1", QStyle::SP_ArrowDown);
    PIC2 = picture("PIC2", QStyle::SP_ArrowUp);

    connect(cmdinserir, &QPushButton::clicked, this, &entry_form::cmdinserir_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &entry_form::cmdcancelar_click);
    connect(cmdbancoinc, &QPushButton::clicked, this, &entry_form::cmdbancoinc_click);
    ligar_datas(txtdata);
    ligar_datas(txtvencimento);

    // opening: on top of the others, and the currency signs in their order
    sempretopo(QStringLiteral("ativo"), this);
    cbomoeda->addItems({QStringLiteral("R$"), QStringLiteral("$"), QStringLiteral("€"), QStringLiteral("¥"),
                        QStringLiteral("£")});
    cbomoeda->setEditText(QStringLiteral("R$"));
}

entry_form::~entry_form() = default;

void entry_form::montar(QWidget* extra) {
    auto* grid = new QGridLayout;
    int row = 0;
    const auto add = [&](const QString& label, QWidget* field, QWidget* beside = nullptr) {
        grid->addWidget(new QLabel(label), row, 0);
        grid->addWidget(field, row, 1);
        if (beside) grid->addWidget(beside, row, 2);
        ++row;
    };
    add(QStringLiteral("Banco/Caixa:"), cboorigem, cmdbancoinc);
    add(QStringLiteral("Documento:"), txtdocumento);
    add(QStringLiteral("Data:"), txtdata);
    add(QStringLiteral("Descrição:"), txtdescricao, cmddescinc);
    add(QStringLiteral("Fornecedor/Cliente:"), cbotipo, cmdforncliinc);
    add(QStringLiteral("Moeda:"), cbomoeda);
    add(QStringLiteral("Valor:"), txtvalor);
    add(QStringLiteral("Vencimento:"), txtvencimento);
    add(QStringLiteral("Informações:"), txtinfo);
    add(QStringLiteral("Estatus:"), cboestatus);
    grid->setColumnStretch(1, 1);

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
    if (extra) v->addWidget(extra);
    v->addLayout(buttons);
    txtinfo->setFixedHeight(txtinfo->fontMetrics().lineSpacing() * 4 + 12);
    resize(520, sizeHint().height());

    QWidget* order[] = {cboorigem,  txtdocumento, txtdata,       txtdescricao, cbotipo,
                        cbomoeda,   txtvalor,     txtvencimento, txtinfo,      cboestatus,
                        cmdinserir, cmdcancelar,  cmdbancoinc,   cmddescinc,   cmdforncliinc};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);

    install_field_conduct_all(this);
    install_field_conduct(txtinfo);
    atalhos_ = new atalhos(this);
    atalhos_->add(QLatin1Char('C'), [this] { cmdcancelar_click(); });
    atalhos_->add(QLatin1Char('I'), [this] { cmdinserir_click(); });
}

void entry_form::atalho_extra(QChar letra) {
    if (atalhos_) atalhos_->add(letra, [this] { cmdinserir_click(); });
}

void entry_form::ligar_datas(date_field* d) {
    // a date field steps back from the top while it is in use, so that its calendar shows
    const auto off = [this] { sempretopo(QStringLiteral("desativo"), this); };
    const auto on = [this] { sempretopo(QStringLiteral("ativo"), this); };
    connect(d, &date_field::entered, this, off);
    connect(d, &date_field::left, this, on);
    connect(d, &date_field::calendar_opened, this, off);
    connect(d, &date_field::calendar_closed, this, on);
}

void entry_form::carregar_lista(QComboBox* box, const entries::list_source& s) {
    QStringList names;
    try {
        names = entries::read_names(s);
    } catch (const std::exception&) {
        // errors ignored: the box is left empty
    }
    fill_names(box, names);
}

void entry_form::carregarbanco() {
    carregar_lista(cboorigem, bank_list_);
}

void entry_form::carregarfornecedor() {
    carregar_lista(cbotipo, entries::suppliers());
}

void entry_form::carregarcliente() {
    carregar_lista(cbotipo, entries::clients());
}

void entry_form::planopagar() {
    carregar_lista(txtdescricao, entries::cost_centres());
}

void entry_form::planoreceber() {
    carregar_lista(txtdescricao, entries::profit_centres());
}

void entry_form::vestir(const entries::dress& d) {
    setWindowTitle(d.titulo);
    PIC1->setVisible(d.despesa);
    PIC2->setVisible(!d.despesa);
    cmdinserir->setText(d.botao);
}

void entry_form::mostrar() {
    show_form(this);
}

entries::entry_fields entry_form::campos() const {
    return {cboestatus->currentText(),   cboorigem->currentText(), cbotipo->currentText(), txtdata->text(),
            txtdescricao->currentText(), txtdocumento->text(),     txtinfo->toPlainText(), txtvalor->text(),
            txtvencimento->text(),       cbomoeda->currentText()};
}

void entry_form::erro(const QString& texto) {
    msgbox_over(this, texto, platform::exclamation, QStringLiteral("Erro"));
}

void entry_form::cmdinserir_click() {
    const QString em_branco = entries::blank_fields_message(campos());
    if (!em_branco.isEmpty()) {
        erro(em_branco);
        return;
    }
    const QString falha = QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ");
    try {
        if (cboorigem->currentText().isEmpty()) cboorigem->setEditText(store::palavra::sem_origem);
        store::conectarbanco();
        const entries::kind k = entries::kind_of_caption(cmdinserir->text(), expense_caption_);
        gravar(k, campos());
        depois_de_gravar(k);
    } catch (const sql::error& e) {
        erro(falha + e.description());
    } catch (const std::exception& e) {
        erro(falha + QString::fromUtf8(e.what()));
    }
}

void entry_form::cmdcancelar_click() {
    descarregar();
}

void entry_form::cmdbancoinc_click() {
    sempretopo(QStringLiteral("desativo"), this);
    frmbanco::instance()->mostrar();
}

void entry_form::descarregar() {
    hide();
    if (!descarregado_) {
        descarregado_ = true;
        try {
            ao_descarregar();
        } catch (const std::exception&) {
            // errors ignored: the window goes all the same
        }
    }
    deleteLater();
}

void entry_form::closeEvent(QCloseEvent* e) {
    if (!descarregado_) {
        descarregado_ = true;
        try {
            ao_descarregar();
        } catch (const std::exception&) {
        }
    }
    e->accept();
}

void entry_form::recarregar_principal(entries::kind k, bool com_filtros) {
    if (store::setting(store::secao_config, QStringLiteral("ExibirPrincipal"), QStringLiteral("1")) !=
        QLatin1String("1"))
        return;
    frmprincipal* p = frmprincipal::instance();
    const bool despesa = k == entries::kind::despesa;
    p->xtab->setCurrentIndex(despesa ? 0 : 1);
    if (despesa) {
        p->carregarpagar();
        if (com_filtros) p->dadospagar();
    } else {
        p->carregarreceber();
        if (com_filtros) p->dadosreceber();
    }
}
