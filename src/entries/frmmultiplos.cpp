#include "entries/frmmultiplos.h"

#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"
#include "shell/frmcarregando.h"
#include "shell/frmprincipal.h"
#include "store/config.h"
#include "store/vb_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <climits>
#include <cmath>
#include <exception>
#include <memory>

namespace {

QPointer<frmmultiplos> the_window;

} // namespace

frmmultiplos* frmmultiplos::instance() {
    if (!the_window || the_window->descarregado_) the_window = new frmmultiplos();
    return the_window;
}

frmmultiplos* frmmultiplos::aberto() {
    return the_window && !the_window->descarregado_ ? the_window.data() : nullptr;
}

frmmultiplos::frmmultiplos() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmmultiplos"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Inserir multiplos lançamentos"));

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
    cboestatus->setToolTip(QStringLiteral("Estatus da operação que será aplicado a todas as parcelas"));

    txtnparcelas = named(new QLineEdit(QStringLiteral("1")), "txtnparcelas");
    txtnparcelas->setToolTip(QStringLiteral("Digite o número de parcelas"));
    txtdiasparcelas = named(new QLineEdit(QStringLiteral("30")), "txtdiasparcelas");
    txtdiasparcelas->setToolTip(QStringLiteral("Digite o número de dias entre as parcelas"));
    txtdiasparcelas->setEnabled(false);
    optdia = named(new QRadioButton(QStringLiteral("Dia fixo por mês")), "optdia");
    optdia->setChecked(true);
    optperiodo = named(new QRadioButton(QStringLiteral("Por periodo de dias")), "optperiodo");
    chkDataInicial = named(new QCheckBox(QStringLiteral("Iniciar cobrança no mesmo mês da data inicial")),
                           "chkDataInicial");

    cmdinserir = named(new QPushButton, "cmdinserir");
    cmdcancelar = named(new QPushButton(QStringLiteral("&Cancelar")), "cmdcancelar");
    PIC1 = picture("PIC1", QStyle::SP_ArrowDown);
    PIC2 = picture("PIC2", QStyle::SP_ArrowUp);

    connect(cmdinserir, &QPushButton::clicked, this, &frmmultiplos::cmdinserir_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &frmmultiplos::cmdcancelar_click);
    connect(optdia, &QRadioButton::clicked, this, [this] { txtdiasparcelas->setEnabled(false); });
    connect(optperiodo, &QRadioButton::clicked, this, [this] { txtdiasparcelas->setEnabled(true); });
    // the date field steps back from the top while it is in use, so that its calendar shows
    const auto off = [this] { sempretopo(QStringLiteral("desativo"), this); };
    const auto on = [this] { sempretopo(QStringLiteral("ativo"), this); };
    connect(txtdata, &date_field::entered, this, off);
    connect(txtdata, &date_field::left, this, on);
    connect(txtdata, &date_field::calendar_opened, this, off);
    connect(txtdata, &date_field::calendar_closed, this, on);

    montar();

    // opening: on top, today as the starting date, the currency signs in their order
    sempretopo(QStringLiteral("ativo"), this);
    txtdata->set_date(platform::today());
    cbomoeda->addItems({QStringLiteral("R$"), QStringLiteral("$"), QStringLiteral("€"), QStringLiteral("¥"),
                        QStringLiteral("£")});
    cbomoeda->setEditText(QStringLiteral("R$"));
}

void frmmultiplos::montar() {
    auto* grid = new QGridLayout;
    int row = 0;
    const auto add = [&](const QString& label, QWidget* field) {
        grid->addWidget(new QLabel(label), row, 0);
        grid->addWidget(field, row, 1);
        ++row;
    };
    add(QStringLiteral("Banco/Caixa:"), cboorigem);
    add(QStringLiteral("Documento:"), txtdocumento);
    add(QStringLiteral("Data:"), txtdata);
    add(QStringLiteral("Descrição:"), txtdescricao);
    add(QStringLiteral("Fornecedor/Cliente:"), cbotipo);
    add(QStringLiteral("Moeda:"), cbomoeda);
    add(QStringLiteral("Valor:"), txtvalor);
    add(QStringLiteral("Parcelas:"), txtnparcelas);
    add(QStringLiteral("Dias entre parcelas:"), txtdiasparcelas);
    add(QStringLiteral("Informações:"), txtinfo);
    add(QStringLiteral("Estatus:"), cboestatus);
    grid->setColumnStretch(1, 1);

    auto* agenda = new QHBoxLayout;
    agenda->addWidget(optdia);
    agenda->addWidget(optperiodo);
    agenda->addStretch();
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
    v->addLayout(agenda);
    v->addWidget(chkDataInicial);
    v->addLayout(buttons);
    txtinfo->setFixedHeight(txtinfo->fontMetrics().lineSpacing() * 4 + 12);
    resize(520, sizeHint().height());

    QWidget* order[] = {cboorigem,       txtdocumento,   txtdata,    txtdescricao, cbotipo, cbomoeda,
                        txtvalor,        txtinfo,        cboestatus, txtnparcelas, optdia,  optperiodo,
                        txtdiasparcelas, chkDataInicial, cmdinserir, cmdcancelar};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);

    install_field_conduct_all(this);
    install_field_conduct(txtinfo);
    auto* a = new atalhos(this);
    a->add(QLatin1Char('C'), [this] { cmdcancelar_click(); });
    a->add(QLatin1Char('I'), [this] { cmdinserir_click(); });
}

void frmmultiplos::carregar_lista(QComboBox* box, const entries::list_source& s) {
    QStringList names;
    try {
        names = entries::read_names(s);
    } catch (const std::exception&) {
        // errors ignored: the box is left empty
    }
    fill_names(box, names);
}

void frmmultiplos::carregarbanco() {
    carregar_lista(cboorigem, entries::banks_for_editing());
}

void frmmultiplos::carregarfornecedor() {
    carregar_lista(cbotipo, entries::suppliers());
}

void frmmultiplos::carregarcliente() {
    carregar_lista(cbotipo, entries::clients());
}

void frmmultiplos::planopagar() {
    carregar_lista(txtdescricao, entries::cost_centres());
}

void frmmultiplos::planoreceber() {
    carregar_lista(txtdescricao, entries::profit_centres());
}

void frmmultiplos::vestir(const entries::dress& d) {
    setWindowTitle(d.titulo);
    PIC1->setVisible(d.despesa);
    PIC2->setVisible(!d.despesa);
    cmdinserir->setText(d.botao);
}

void frmmultiplos::mostrar() {
    show_form(this);
}

entries::entry_fields frmmultiplos::campos() const {
    return {cboestatus->currentText(),
            cboorigem->currentText(),
            cbotipo->currentText(),
            txtdata->text(),
            txtdescricao->currentText(),
            txtdocumento->text(),
            txtinfo->toPlainText(),
            txtvalor->text(),
            QString(),
            cbomoeda->currentText()};
}

void frmmultiplos::erro(const QString& texto) {
    msgbox_over(this, texto, platform::exclamation, QStringLiteral("Erro"));
}

bool frmmultiplos::planejar(entries::series_plan& plan) {
    plan.parcelas = entries::read_count(txtnparcelas->text());
    plan.dias = entries::read_count(txtdiasparcelas->text());
    plan.agenda = optperiodo->isChecked() ? entries::schedule::periodo : entries::schedule::dia_fixo;
    plan.data_inicial = chkDataInicial->isChecked();
    plan.inicio = vb::cdate(txtdata->text());
    if (!plan.inicio.isValid()) throw vb::type_mismatch();
    const QString recusa = entries::count_message(plan.parcelas, plan.dias);
    if (recusa.isEmpty()) return true;
    erro(recusa);
    return false;
}

void frmmultiplos::cmdinserir_click() {
    const entries::entry_fields f = campos();
    const QString em_branco = entries::series_blank_message(f);
    if (!em_branco.isEmpty()) {
        erro(em_branco);
        return;
    }
    const QString falha = QStringLiteral("Ocorreu o seguinte erro ao tentar cadastrar os dados: ");
    std::unique_ptr<waiting_window> espera;
    try {
        entries::series_plan plan;
        if (!planejar(plan)) return;

        hide();
        QWidget* sobre = frmprincipal::exists() ? frmprincipal::instance() : nullptr;
        espera = std::make_unique<waiting_window>(sobre, entries::series_title(), entries::series_text());
        const double maximo = std::min(plan.parcelas + 1, double(INT_MAX));
        espera->set_range(0, int(maximo));

        const entries::kind k =
            entries::kind_of_caption(cmdinserir->text(), QStringLiteral("&inserir despesa"));
        waiting_window* w = espera.get();
        entries::write_series(k, f, plan, [w](double i) {
            w->set_value(int(std::min(i, double(INT_MAX))));
            // the bar is drawn as the series goes; what the user types waits for the end
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });

        exibir_principal(k);
        espera->close();
        descarregar();
    } catch (const sql::error& e) {
        falhou(espera.get(), falha + e.description());
    } catch (const std::exception& e) {
        falhou(espera.get(), falha + QString::fromUtf8(e.what()));
    }
}

void frmmultiplos::falhou(waiting_window* espera, const QString& texto) {
    // the waiting window stays on the screen and this one hidden, as the failure found them
    if (espera) espera->release();
    erro(texto);
}

void frmmultiplos::exibir_principal(entries::kind k) {
    frmprincipal* p = frmprincipal::instance();
    const bool exibir = store::setting(store::secao_config, QStringLiteral("ExibirPrincipal"),
                                       QStringLiteral("1")) == QLatin1String("1");
    if (k == entries::kind::despesa) {
        // the expense tab comes forward whatever the setting says; only the reload depends on it
        p->xtab->setCurrentIndex(0);
        if (!exibir) return;
        p->xtab->setCurrentIndex(0);
        p->carregarpagar();
    } else {
        if (!exibir) return;
        p->xtab->setCurrentIndex(1);
        p->carregarreceber();
    }
}

void frmmultiplos::cmdcancelar_click() {
    descarregar();
}

void frmmultiplos::descarregar() {
    descarregado_ = true;
    hide();
    deleteLater();
}
