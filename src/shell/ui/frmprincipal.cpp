#include "shell/ui/frmprincipal.h"
#include "platform/widgets/form_builders.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/theme_icon.h"
#include "shell/filter_state.h"
#include "shell/login.h"
#include "shell/main_menu.h"
#include "shell/ui/frmalerta.h"
#include "shell/ui/frmdica.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmloginsoft.h"
#include "store/conexao.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <stdexcept>

using shell::ledger;

namespace {

frmprincipal* the_window = nullptr;

// The window's background picture, drawn once at the top left as the old form did.
class fundo_widget : public QWidget {
public:
    using QWidget::QWidget;
    void set_picture(const QPixmap& p) {
        picture_ = p;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), palette().window());
        if (!picture_.isNull()) painter.drawPixmap(0, 0, picture_);
    }

private:
    QPixmap picture_;
};

QPushButton* button(const char* name, const char* caption) {
    auto* b = named(new QPushButton(QString::fromUtf8(caption)), name);
    b->setIcon(theme_icon(shell::icon_of(b->objectName())));
    return b;
}

QComboBox* filter_box(const char* name, const QStringList& entries) {
    auto* c = named(new QComboBox, name);
    c->setEditable(true);
    c->addItems(entries);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->setMinimumContentsLength(20);
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return c;
}

QWidget* labelled(const QString& caption, QWidget* field) {
    auto* w = new QWidget;
    auto* l = new QVBoxLayout(w);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(1);
    l->addWidget(new QLabel(caption));
    l->addWidget(field);
    return w;
}

} // namespace

frmprincipal* frmprincipal::instance() {
    if (!the_window) the_window = new frmprincipal();
    return the_window;
}

bool frmprincipal::exists() {
    return the_window != nullptr;
}

frmprincipal::frmprincipal() {
    shell::set_principal(this);
    setObjectName(QStringLiteral("frmprincipal"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(QStringLiteral("Quintara"));
    resize(1180, 720);
    auto* fundo = new fundo_widget;
    fundo->setObjectName(QStringLiteral("fundo"));
    setCentralWidget(fundo);
    auto* l = new QVBoxLayout(fundo);
    l->setContentsMargins(4, 4, 4, 4);
    picprincipal = named(new QWidget, "picprincipal");
    l->addWidget(picprincipal);
    montar_tabs();
    montar_acoes();
    montar_menus();
    montar_toolbar();
    statusBar()->setObjectName(QStringLiteral("statusbar"));
    statustexto = named(new QLabel, "statustexto");
    statusBar()->addWidget(statustexto, 1);
    ligar_filtros();
    ligar_acoes();
    // activation: the window gets the focus back from another of the program's windows
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* w) {
        QWindow* before = janela_anterior_;
        janela_anterior_ = w;
        if (!carregado_ || fechando_ || !w || w != windowHandle()) return;
        QWidget* from = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->windowHandle() == before) from = top;
        if (from && from != this && from->property("quintara_form").toBool()) ativar();
    });
}

frmprincipal::~frmprincipal() {
    if (the_window == this) the_window = nullptr;
    if (shell::principal() == this) shell::set_principal(nullptr);
}

void frmprincipal::montar_tabs() {
    auto* l = new QVBoxLayout(picprincipal);
    l->setContentsMargins(0, 0, 0, 0);
    xtab = named(new QTabWidget, "xtab");
    l->addWidget(xtab);
    xtab->addTab(montar_tab_ledger(ledger::pagar), QStringLiteral("Contas a pagar"));
    xtab->addTab(montar_tab_ledger(ledger::receber), QStringLiteral("Contas a receber"));
    xtab->addTab(montar_tab_movimento(), QStringLiteral("Movimento bancário"));
    xtab->addTab(montar_tab_bancos(), QStringLiteral("Bancos e caixa"));
    connect(xtab, &QTabWidget::currentChanged, this, &frmprincipal::tab_mudou);
}

QWidget* frmprincipal::montar_tab_ledger(ledger which) {
    const shell::ledger_traits& t = shell::traits(which);
    const controles& c = controles_de(which);
    auto* tab = new QWidget;
    auto* v = new QVBoxLayout(tab);
    auto* top1 = (this->*c.top1.member) = named(new QWidget, c.top1.name);
    auto* top2 = (this->*c.top2.member) = named(new QWidget, c.top2.name);
    auto* h1 = new QHBoxLayout(top1);
    auto* h2 = new QHBoxLayout(top2);
    h1->setContentsMargins(0, 0, 0, 0);
    h2->setContentsMargins(0, 0, 0, 0);
    const auto box = [this](const control<QComboBox>& b, const QStringList& entries) {
        return (this->*b.member) = filter_box(b.name, entries);
    };
    h1->addWidget(labelled(QStringLiteral("Mostrar:"), box(c.tipo, shell::tipo_entries())));
    h1->addWidget(labelled(QStringLiteral("Período:"), box(c.filtro, shell::filtro_entries())));
    h1->addWidget(labelled(QStringLiteral("Baseado em:"), box(c.baseado, shell::baseado_entries())));
    h1->addStretch();
    h2->addWidget(labelled(QStringLiteral("Banco:"), box(c.banco, {shell::todos_bancos})));
    h2->addWidget(labelled(t.centro_titulo + QLatin1Char(':'), box(c.centro, {t.todos_centros})));
    h2->addWidget(labelled(t.contato_titulo + QLatin1Char(':'), box(c.contato, {t.todos_contatos})));
    h2->addStretch();
    v->addWidget(top1);
    v->addWidget(top2);
    v->addWidget((this->*c.lista.member) = named(new list_view, c.lista.name), 1);
    auto* botoes = new QHBoxLayout;
    for (const auto& b : c.botoes)
        botoes->addWidget((this->*b.member) = button(b.name, b.caption));
    botoes->addStretch();
    v->addLayout(botoes);
    QLabel* l = (this->*c.rotulo.member) = named(new QLabel, c.rotulo.name);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    v->addWidget(l);
    return tab;
}

QWidget* frmprincipal::montar_tab_movimento() {
    auto* tab = new QWidget;
    auto* v = new QVBoxLayout(tab);
    pictopbancario = named(new QWidget, "pictopbancario");
    auto* h = new QHBoxLayout(pictopbancario);
    h->setContentsMargins(0, 0, 0, 0);
    cbotipom = filter_box("cbotipom", shell::tipo_movimento_entries());
    cbofiltrom = filter_box("cbofiltrom", shell::filtro_movimento_entries());
    cboorgm = filter_box("cboorgm", shell::organizar_entries());
    optascm = named(new QRadioButton(QStringLiteral("Crescente")), "optascm");
    optdescm = named(new QRadioButton(QStringLiteral("Decrescente")), "optdescm");
    optascm->setChecked(true);
    h->addWidget(labelled(QStringLiteral("Mostrar:"), cbotipom));
    h->addWidget(labelled(QStringLiteral("Período:"), cbofiltrom));
    h->addWidget(labelled(QStringLiteral("Organizar por:"), cboorgm));
    auto* ordem = new QWidget;
    auto* ol = new QVBoxLayout(ordem);
    ol->setContentsMargins(0, 0, 0, 0);
    ol->addWidget(optascm);
    ol->addWidget(optdescm);
    h->addWidget(ordem);
    h->addStretch();
    lstmovimento = named(new list_view, "lstmovimento");
    auto* botoes = new QHBoxLayout;
    cmdadicionarm = button("cmdadicionarm", "Adicionar");
    cmdalterarm = button("cmdalterarm", "Alterar");
    cmdremoverm = button("cmdremoverm", "Remover");
    botoes->addWidget(cmdadicionarm);
    botoes->addWidget(cmdalterarm);
    botoes->addWidget(cmdremoverm);
    botoes->addStretch();
    lblmovimentoest = named(new QLabel, "lblmovimentoest");
    lblmovimentoest->setTextInteractionFlags(Qt::TextSelectableByMouse);
    v->addWidget(pictopbancario);
    v->addWidget(lstmovimento, 1);
    v->addLayout(botoes);
    v->addWidget(lblmovimentoest);
    return tab;
}

QWidget* frmprincipal::montar_tab_bancos() {
    auto* tab = new QWidget;
    auto* v = new QVBoxLayout(tab);
    lstcaixabanco = named(new list_view, "lstcaixabanco");
    auto* botoes = new QHBoxLayout;
    cmdadicionarb = button("cmdadicionarb", "Adicionar");
    cmdalterarb = button("cmdalterarb", "Alterar");
    cmdremoverb = button("cmdremoverb", "Remover");
    cmdconfbanc = button("cmdconfbanc", "Configurações");
    botoes->addWidget(cmdadicionarb);
    botoes->addWidget(cmdalterarb);
    botoes->addWidget(cmdremoverb);
    botoes->addWidget(cmdconfbanc);
    botoes->addStretch();
    lblresumocaixa = named(new QLabel(QStringLiteral("Resumo do caixa:")), "lblresumocaixa");
    lblbanco = named(new QLabel, "lblbanco");
    txtresucaixa = named(new QPlainTextEdit, "txtresucaixa");
    txtresucaixa->setReadOnly(true);
    auto* lado = new QHBoxLayout;
    lado->addWidget(lstcaixabanco, 3);
    auto* resumo = new QVBoxLayout;
    resumo->addWidget(lblresumocaixa);
    resumo->addWidget(txtresucaixa, 1);
    lado->addLayout(resumo, 1);
    v->addLayout(lado, 1);
    v->addLayout(botoes);
    v->addWidget(lblbanco);
    return tab;
}

void frmprincipal::mostrar() {
    const bool primeira = !carregado_;
    if (primeira) {
        carregado_ = true;
        restaurar_geometria();
        // on a big file the lists take a while to fill: the window is already on the screen, and
        // the waiting window over it, while they do
        show();
        raise();
        activateWindow();
        QCoreApplication::processEvents();
        abrir();
    }
    show();
    raise();
    activateWindow();
    // windows that stay on top (the tip, the alerts) opened during the opening stay above this one
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != this && w->isVisible() && (w->windowFlags() & Qt::WindowStaysOnTopHint)) w->raise();
    if (primeira) ativar();
}

void frmprincipal::abrir() {
    try {
        // the background picture; a missing file stops the opening here
        QPixmap picture;
        const QString fundo = store::program_path(QStringLiteral("\\fundo.gif"));
        if (!picture.load(fundo))
            throw std::runtime_error(QStringLiteral("Arquivo não encontrado: '%1'").arg(fundo).toStdString());
        static_cast<fundo_widget*>(centralWidget())->set_picture(picture);
        CarregarDados();
        xtab->setCurrentIndex(0);
        VerificarDica();
        statustexto->setText(QStringLiteral("Seja bem vindo ao software   -   ") +
                             vb::long_date(platform::today()));
        item(QStringLiteral("mnuatualizarsaldo"))
            ->setChecked(store::setting(store::secao_config, QStringLiteral("AtualizarSaldo"),
                                        QStringLiteral("1")) != QLatin1String("0"));
        const bool exibir = store::setting(store::secao_config, QStringLiteral("ExibirPrincipal"),
                                           QStringLiteral("1")) != QLatin1String("0");
        item(QStringLiteral("mnuexibirprincipal"))->setChecked(exibir);
        picprincipal->setVisible(exibir);
        if (shell::exigirlogin() == QLatin1String("1"))
            item(QStringLiteral("mnulogininiciar"))->setChecked(true);
        if (store::exibir_principal()) {
            carregarpagar();
            dadospagar();
            carregarreceber();
            dadosreceber();
            carregarbancario();
            CarregarConfigSoft();
            QCoreApplication::processEvents();
        }
        if (store::setting(store::secao_config, QStringLiteral("AlertasVencimento"), QStringLiteral("1")) ==
            QLatin1String("1")) {
            item(QStringLiteral("mnualertavenc"))->setChecked(true);
            frmalerta::VerificarVencimentos_ao_iniciar(this);
        }
        CarregarColuna();
    } catch (const std::exception& e) {
        platform::msgbox(
            QStringLiteral("Ocorreu o seguinte erro ao tentar abrir o banco de dados: ") +
                platform::error_text(e) +
                QStringLiteral(" o banco de dados foi definido como local, reinicie o software."),
            platform::critical, QStringLiteral("Erro"));
    }
}

void frmprincipal::VerificarDica() {
    if (store::setting(store::secao_configuracoes, QStringLiteral("Exibir dica do dia"),
                       QStringLiteral("1")) == QLatin1String("1")) {
        item(QStringLiteral("mnudicadia"))->setChecked(true);
        frmdica::mostrar(true, this);
    }
}

void frmprincipal::ativar() {
    // each step runs with errors ignored
    store::conectarbanco();
    platform::ignore_errors([this] { SalvarColuna(); });
    try {
        item(QStringLiteral("mnulogininiciar"))->setChecked(shell::exigirlogin() == QLatin1String("1"));
    } catch (const sql::error&) {
        // an unreadable setting leaves the mark as it is
    }
    platform::ignore_errors([this] { CarregarConfigSoft(); });
}

void frmprincipal::CarregarConfigSoft() {
    using store::secao_config;
    // the menu checks follow what the settings window may have written meanwhile
    const auto setting_is = [](const QString& secao, const char* chave, const char* padrao,
                               const char* valor) {
        return store::setting(secao, QString::fromUtf8(chave), QString::fromUtf8(padrao)) ==
               QLatin1String(valor);
    };
    item(QStringLiteral("mnuiniciar"))->setChecked(setting_is(secao_config, "Iniciar", "0", "1"));
    item(QStringLiteral("mnuatualizarsaldo"))
        ->setChecked(!setting_is(secao_config, "AtualizarSaldo", "1", "0"));
    item(QStringLiteral("mnudicadia"))
        ->setChecked(setting_is(store::secao_configuracoes, "Exibir dica do dia", "1", "1"));
    item(QStringLiteral("mnualertavenc"))
        ->setChecked(setting_is(secao_config, "AlertasVencimento", "1", "1"));
    list_view* listas[] = {lstpagar, lstreceber, lstmovimento, lstcaixabanco};
    const double tamanho =
        vb::val(store::setting(secao_config, QStringLiteral("TamanhoFonte"), QStringLiteral("10")));
    const QString nome = store::setting(secao_config, QStringLiteral("Fontenome"), QStringLiteral("Arial"));
    const std::uint32_t cor =
        vb::colour_number(store::setting(secao_config, QStringLiteral("Corfonte"), QStringLiteral("0")));
    for (list_view* l : listas) {
        QFont f = l->font();
        if (tamanho > 0) f.setPointSizeF(tamanho);
        f.setFamily(nome);
        l->set_list_font(f);
        l->set_text_colour(bgr_colour(cor));
    }
    const std::uint32_t cor1 = vb::colour_number(
        store::setting(secao_config, QStringLiteral("CorFundo1"), QStringLiteral("&HFFFFFF")), 0xFFFFFF);
    const std::uint32_t cor2 = vb::colour_number(
        store::setting(secao_config, QStringLiteral("CorFundo2"), QStringLiteral("&HFFFFFF")), 0xFFFFFF);
    QCoreApplication::processEvents();
    for (list_view* l : listas)
        pintarlinhas(l, bgr_colour(cor1), bgr_colour(cor2));
}

void frmprincipal::pintarlinhas(list_view* lista, const QColor& cor1, const QColor& cor2) {
    if (lista) lista->pintarlinhas(cor1, cor2);
}

void frmprincipal::tab_mudou(int index) {
    platform::ignore_errors([&] {
        if (index == 3) {
            SalvarColuna();
            carregarbancos();
        } else if (index == shell::traits(ledger::pagar).aba) {
            carregar_filtros(ledger::pagar);
        } else if (index == shell::traits(ledger::receber).aba) {
            carregar_filtros(ledger::receber);
        }
    });
}

void frmprincipal::restaurar_geometria() {
    const QByteArray salva =
        QByteArray::fromBase64(store::setting(store::secao_config, chave_geometria, QString()).toLatin1());
    if (!salva.isEmpty() && restoreGeometry(salva)) return;
    if (QScreen* s = QGuiApplication::primaryScreen())
        move(s->availableGeometry().center() - QPoint(width() / 2, height() / 2));
}

void frmprincipal::closeEvent(QCloseEvent* e) {
    e->accept();
    descarregar();
}

void frmprincipal::descarregar() {
    fechando_ = true;
    platform::ignore_errors([this] { SalvarColuna(); });
    platform::ignore_errors([this] {
        store::save_setting(store::secao_config, chave_geometria,
                            QString::fromLatin1(saveGeometry().toBase64()));
    });
    hide();
    frmloginsoft::descarregar();
    frmlogin::descarregar();
    QCoreApplication::quit();
}
