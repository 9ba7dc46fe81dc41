#include "entries/ui/frmmultiplos.h"

#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/messages.h"

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
    return single_window(the_window, [] { return new frmmultiplos; });
}

frmmultiplos* frmmultiplos::aberto() {
    return loaded_window(the_window);
}

frmmultiplos::frmmultiplos()
    : entry_fields_form(QStringLiteral("frmmultiplos"), entries::banks_for_editing(),
                        QStringLiteral("Estatus da operação que será aplicado a todas as parcelas")) {
    setWindowTitle(QStringLiteral("Inserir multiplos lançamentos"));

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

    connect(cmdinserir, &QPushButton::clicked, this, &frmmultiplos::cmdinserir_click);
    connect(cmdcancelar, &QPushButton::clicked, this, &frmmultiplos::cmdcancelar_click);
    connect(optdia, &QRadioButton::clicked, this, [this] { txtdiasparcelas->setEnabled(false); });
    connect(optperiodo, &QRadioButton::clicked, this, [this] { txtdiasparcelas->setEnabled(true); });

    montar();
    // a supplier or client stored meanwhile: the box refilled, without taking the new name
    connect(&shell::avisos::instance(), &shell::avisos::cadastrado, this,
            [this](shell::cadastro que, const QString&) {
                if (descarregado() || !isVisible()) return;
                if (que == shell::cadastro::fornecedor) carregarfornecedor();
                if (que == shell::cadastro::cliente) carregarcliente();
            });

    // opening: today as the starting date
    abrir_no_topo();
    txtdata->set_date(platform::today());
}

void frmmultiplos::montar() {
    auto* grid = new QGridLayout;
    const int row = linhas_comuns(grid, nullptr, nullptr, nullptr);
    linha(grid, row, QStringLiteral("Parcelas:"), txtnparcelas);
    linha(grid, row + 1, QStringLiteral("Dias entre parcelas:"), txtdiasparcelas);
    linha(grid, row + 2, QStringLiteral("Informações:"), txtinfo);
    linha(grid, row + 3, QStringLiteral("Estatus:"), cboestatus);
    auto* agenda = new QWidget;
    auto* h = new QHBoxLayout(agenda);
    h->setContentsMargins(0, 0, 0, 0);
    h->addWidget(optdia);
    h->addWidget(optperiodo);
    h->addStretch();
    montar_tela(grid, {agenda, chkDataInicial},
                {cboorigem, txtdocumento, txtdata, txtdescricao, cbotipo, cbomoeda, txtvalor, txtinfo,
                 cboestatus, txtnparcelas, optdia, optperiodo, txtdiasparcelas, chkDataInicial, cmdinserir,
                 cmdcancelar});
    auto* a = new atalhos(this);
    a->add(QLatin1Char('C'), [this] { cmdcancelar_click(); });
    a->add(QLatin1Char('I'), [this] { cmdinserir_click(); });
}

entries::entry_fields frmmultiplos::campos() const {
    return campos_com(QString());
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
    std::unique_ptr<waiting_window> espera;
    try {
        entries::series_plan plan;
        if (!planejar(plan)) return;

        hide();
        QWidget* sobre = shell::principal() ? shell::principal()->janela() : nullptr;
        espera = std::make_unique<waiting_window>(sobre, entries::series_title(), entries::series_text());
        const double maximo = std::min(plan.parcelas + 1, double(INT_MAX));
        espera->set_range(0, int(maximo));

        const shell::ledger k =
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
    } catch (const std::exception& e) {
        falhou(espera.get(), store::save_error_message(e));
    }
}

void frmmultiplos::falhou(waiting_window* espera, const QString& texto) {
    // the waiting window stays on the screen and this one hidden, as the failure found them
    if (espera) espera->release();
    erro(texto);
}

void frmmultiplos::exibir_principal(shell::ledger k) {
    // the expense tab comes forward whatever the setting says; only the reload depends on it
    if (k == shell::ledger::pagar && shell::principal())
        shell::principal()->mostrar_aba(shell::ledger::pagar);
    shell::recarregar_principal(k, false);
}

void frmmultiplos::cmdcancelar_click() {
    descarregar();
}

void frmmultiplos::descarregar() {
    mark_unloaded(this);
    hide();
    deleteLater();
}
