#include "registers/ui/frmcentro.h"

#include "output/ui/frmreport_window.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "registers/print/centres_print.h"
#include "shell/ledger_load.h"
#include "shell/principal_api.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <optional>

using namespace Qt::StringLiterals;
using registers::centro;

namespace {

QPointer<frmcentrocusto> janela_custo;
QPointer<frmcentrolucro> janela_lucro;

QPushButton* botao(const char* name, const QString& caption) {
    return named(new QPushButton(caption), name);
}

// An entry window on the screen, known by name only (the entries are another subsystem's windows).
bool visivel(const QString& nome) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == nome && w->isVisible()) return true;
    return false;
}

shell::cadastro aviso_de(centro c) {
    return c == centro::custo ? shell::cadastro::centrocusto : shell::cadastro::centrolucro;
}

shell::ledger ledger_de(centro c) {
    return c == centro::custo ? shell::ledger::pagar : shell::ledger::receber;
}

} // namespace

frmcentrocusto* frmcentrocusto::instance() {
    if (!janela_custo || janela_custo->descarregado()) janela_custo = new frmcentrocusto();
    return janela_custo;
}
frmcentrocusto* frmcentrocusto::aberto() {
    return janela_custo && !janela_custo->descarregado() ? janela_custo.data() : nullptr;
}
frmcentrolucro* frmcentrolucro::instance() {
    if (!janela_lucro || janela_lucro->descarregado()) janela_lucro = new frmcentrolucro();
    return janela_lucro;
}
frmcentrolucro* frmcentrolucro::aberto() {
    return janela_lucro && !janela_lucro->descarregado() ? janela_lucro.data() : nullptr;
}

centre_window::centre_window(centro c) : QWidget(nullptr, Qt::Window), c_(c) {
    const registers::gemeo_centro& g = registers::gemeo(c);
    setObjectName(g.janela);
    setWindowTitle(g.caption);
    setAttribute(Qt::WA_DeleteOnClose);

    XTab1 = named(new QTabWidget(this), "XTab1");
    txtnome = named(new QLineEdit, "txtnome");
    cmdcad = botao("cmdcad", u"&Cadastrar"_s);
    lista = new list_view;
    lista->setObjectName(g.lista);
    lista->add_column(u"Nome do centro de custo"_s, 7000);
    cmdremover = botao("cmdremover", u"&Remover"_s);
    cmdeditar = botao("cmdeditar", u"&Editar"_s);
    cbodata1 = named(new date_field, "cbodata1");
    cbodata2 = named(new date_field, "cbodata2");
    cmdver = botao("cmdver", u"&Visualizar"_s);
    lstplanos = named(new list_view, "lstplanos");
    // the profit twin keeps these headings
    lstplanos->add_column(u"ID"_s, 500, list_view::tag_number);
    lstplanos->add_column(u"Centro de custo"_s, 2800);
    lstplanos->add_column(u"Pendentes"_s, 2200);
    lstplanos->add_column(u"Pagas"_s, 2200);
    lstplanos->add_column(u"Total"_s, 2200);
    lblgeral = named(new QLabel, "lblgeral");
    lblgeral->setWordWrap(true);
    cmdimprimir = botao("cmdimprimir", u"&Imprimir"_s);
    cmdtxt = botao("cmdtxt", u"Salvar em TXT"_s);
    cmdhtml = botao("cmdhtml", u"Salvar em HTML"_s);
    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    montar();

    connect(cmdcad, &QPushButton::clicked, this, &centre_window::cmdcad_click);
    connect(cmdeditar, &QPushButton::clicked, this, &centre_window::cmdeditar_click);
    connect(cmdremover, &QPushButton::clicked, this, &centre_window::cmdremover_click);
    connect(cmdver, &QPushButton::clicked, this, &centre_window::cmdver_click);
    connect(cmdtxt, &QPushButton::clicked, this, &centre_window::cmdtxt_click);
    connect(cmdhtml, &QPushButton::clicked, this, &centre_window::cmdhtml_click);
    connect(cmdimprimir, &QPushButton::clicked, this, &centre_window::cmdimprimir_click);
    connect(XTab1, &QTabWidget::currentChanged, this, [this](int aba) {
        if (aba == 1) cmdver_click();
    });

    // opening: the first tab, the names, the exporter bound to the bar
    XTab1->setCurrentIndex(0);
    carregar();
    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

centre_window::~centre_window() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

void centre_window::montar() {
    const registers::gemeo_centro& g = registers::gemeo(c_);
    auto* cadastro = new QWidget;
    auto* grid = new QGridLayout(cadastro);
    grid->addWidget(new QLabel(u"Nome do centro de custo:"_s), 0, 0, 1, 2);
    grid->addWidget(txtnome, 1, 0);
    grid->addWidget(cmdcad, 1, 1);
    grid->addWidget(new QLabel(g.rotulo_lista), 2, 0, 1, 2);
    grid->addWidget(lista, 3, 0, 1, 2);
    auto* acoes = new QHBoxLayout;
    acoes->addStretch();
    acoes->addWidget(cmdeditar);
    acoes->addWidget(cmdremover);
    grid->addLayout(acoes, 4, 0, 1, 2);
    XTab1->addTab(cadastro, u"Cadastrar / Alterar"_s);

    auto* resumo = new QWidget;
    auto* v = new QVBoxLayout(resumo);
    auto* datas = new QHBoxLayout;
    datas->addWidget(new QLabel(u"Período de"_s));
    datas->addWidget(cbodata1);
    datas->addWidget(new QLabel(u"e"_s));
    datas->addWidget(cbodata2);
    datas->addWidget(cmdver);
    datas->addStretch();
    v->addLayout(datas);
    v->addWidget(lstplanos, 1);
    v->addWidget(barraprogresso);
    v->addWidget(lblgeral);
    auto* saidas = new QHBoxLayout;
    saidas->addStretch();
    saidas->addWidget(cmdimprimir);
    saidas->addWidget(cmdtxt);
    saidas->addWidget(cmdhtml);
    v->addLayout(saidas);
    XTab1->addTab(resumo, u"Resumo"_s);

    auto* outer = new QVBoxLayout(this);
    outer->addWidget(XTab1);
    install_field_conduct_all(this);
}

QSize centre_window::sizeHint() const {
    return {list_view::twips_to_pixels(11500, this), list_view::twips_to_pixels(7500, this)};
}

void centre_window::mostrar() {
    show_form(this);
}

void centre_window::erro(const QString& texto) {
    platform::msgbox(texto, platform::exclamation, u"Erro"_s);
}

void centre_window::avisar(const QString& nome) {
    Q_EMIT shell::avisos::instance().cadastrado(aviso_de(c_), nome);
}

QString centre_window::selecionado() const {
    const int r = lista->selected_row();
    return r < 0 ? QString() : lista->text(r, 0);
}

void centre_window::carregar() {
    lista->clear_rows();
    platform::ignore_errors([this] {
        std::vector<QStringList> linhas;
        for (const QString& n : registers::carregar_nomes(c_))
            linhas.push_back({n});
        lista->add_rows(std::move(linhas));
    });
}

void centre_window::cmdcad_click() {
    try {
        if (registers::cadastrar(c_, txtnome->text()) == registers::cadastro_resultado::vazio) {
            erro(registers::msg_vazio(c_));
            return;
        }
        carregar();
        // the open entry windows refill their box and show the name as it was typed
        avisar(txtnome->text());
        txtnome->clear();
    } catch (...) {
        // whatever failed, the name is taken for one that exists
        erro(registers::msg_duplicado_cadastro(c_));
    }
}

void centre_window::cmdeditar_click() {
    if (lista->row_count() == 0) return;
    const QString antigo = selecionado();
    if (antigo.isEmpty()) return;
    const QString novo =
        platform::ask().inputbox(registers::prompt_edicao(c_), registers::titulo_edicao(c_), antigo);
    if (vb::trim_blanks(novo).isEmpty()) return;
    try {
        registers::renomear(c_, antigo, novo);
    } catch (...) {
        erro(registers::msg_duplicado_edicao(c_));
        return;
    }
    carregar();
    avisar(vb::trim_blanks(novo));
}

void centre_window::cmdremover_click() {
    if (lista->row_count() == 0) return;
    const QString nome = selecionado();
    if (nome.isEmpty()) return;
    platform::ignore_errors([&] {
        const int r = platform::msgbox(registers::msg_remover(c_, nome),
                                       platform::yes_no | platform::question, u"Remover"_s);
        if (r != platform::answer_yes) return;
        platform::ignore_errors([&] { registers::remover(c_, nome); });
        QCoreApplication::processEvents();
        carregar();
    });
}

void centre_window::cmdver_click() {
    lstplanos->clear_rows();
    std::optional<waiting_window> espera;
    platform::ignore_errors([&] {
        registers::resumo r = registers::calcular_resumo(
            c_, cbodata1->date(), cbodata2->date(),
            [&](int n) {
                espera.emplace(this, u"Carregando resumo de "_s + registers::gemeo(c_).palavra,
                               shell::waiting_text());
                espera->set_range(0, n);
            },
            [&](int i) {
                if (espera) espera->set_value(i);
            });
        if (r.sem_centros) {
            platform::msgbox(registers::msg_sem_centros(c_), platform::exclamation, u"Plano de conta"_s);
            return;
        }
        lstplanos->add_rows(std::move(r.linhas));
        espera.reset();
        lblgeral->setText(r.geral);
    });
}

void centre_window::cmdtxt_click() {
    registers::salvar_resumo(registers::formato::txt, c_, *lstplanos, lblgeral->text(), relatorio_);
}

void centre_window::cmdhtml_click() {
    registers::salvar_resumo(registers::formato::html, c_, *lstplanos, lblgeral->text(), relatorio_);
}

void centre_window::cmdimprimir_click() {
    registers::imprimir_resumo(c_, *lstplanos, lblgeral->text());
}

void centre_window::closeEvent(QCloseEvent* e) {
    descarregado_ = true;
    platform::ignore_errors([this] {
        if (visivel(u"frmadicionar"_s) || visivel(u"frmeditar"_s)) {
            // no name: the entry windows only refill their box
            avisar(QString());
        } else if (shell::principal_api* p = shell::principal()) {
            p->carregar(ledger_de(c_));
            p->carregar_filtros(ledger_de(c_));
        }
    });
    e->accept();
}
