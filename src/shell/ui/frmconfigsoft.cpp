#include "shell/ui/frmconfigsoft.h"

#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "store/config.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>

using namespace Qt::Literals::StringLiterals;

QPointer<frmconfigsoft> frmconfigsoft::aberta_;

namespace {

// Runs a routine when the user leaves a field (not when the window loses the focus).
class ao_sair : public QObject {
public:
    ao_sair(QWidget* campo, std::function<void()> f) : QObject(campo), f_(std::move(f)) {
        campo->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::FocusOut && is_leaving_field(*static_cast<QFocusEvent*>(e))) f_();
        return false;
    }

private:
    std::function<void()> f_;
};

void gravar(const QString& secao, const QString& chave, const QString& valor) {
    store::save_setting(secao, chave, valor);
}

QString um_zero(bool v) {
    return v ? u"1"_s : u"0"_s;
}

QCheckBox* caixa_com_texto(QVBoxLayout* v, const char* nome, const QString& texto, const QString& explica) {
    auto* c = named(new QCheckBox(texto), nome);
    auto* l = new QLabel(explica);
    l->setWordWrap(true);
    l->setIndent(22);
    QFont f = l->font();
    f.setPointSizeF(f.pointSizeF() * 0.9);
    l->setFont(f);
    v->addWidget(c);
    v->addWidget(l);
    return c;
}

QIcon amostra(std::uint32_t bgr) {
    QPixmap p(18, 18);
    p.fill(bgr_colour(bgr));
    QPainter pintor(&p);
    pintor.setPen(Qt::gray);
    pintor.drawRect(0, 0, 17, 17);
    return QIcon(p);
}

} // namespace

frmconfigsoft* frmconfigsoft::aberto() {
    return aberta_.data();
}

frmconfigsoft* frmconfigsoft::mostrar() {
    frmconfigsoft* w = aberta_;
    if (!w) w = new frmconfigsoft;
    show_form(w);
    return w;
}

frmconfigsoft::frmconfigsoft() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmconfigsoft"_s);
    setWindowTitle(u"Configurações do software"_s);
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    aberta_ = this;

    xtab = named(new QTabWidget, "xtab");
    xtab->addTab(montar_geral(), u"Geral"_s);
    xtab->addTab(montar_aparencia(), u"Aparência das listas"_s);
    xtab->addTab(montar_rede(), u"Banco de dados"_s);
    cmdsair = named(new QPushButton(u"Sair"_s), "cmdsair");
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);
    auto* v = new QVBoxLayout(this);
    v->addWidget(xtab);
    v->addWidget(cmdsair, 0, Qt::AlignRight);

    install_field_conduct(txtnome);
    install_field_conduct(txtslogan);
    new ao_sair(txtnome, [this] { txtnome_lostfocus(); });
    new ao_sair(txtslogan, [this] { txtslogan_lostfocus(); });
    new ao_sair(cboffonte, [this] { cboffonte_lostfocus(); });
    new ao_sair(cboftamanho, [this] { cboftamanho_lostfocus(); });
    abrir();
}

QWidget* frmconfigsoft::montar_geral() {
    auto* page = new QWidget;
    auto* v = new QVBoxLayout(page);
    auto* form = new QFormLayout;
    txtnome = named(new QLineEdit, "txtnome");
    txtslogan = named(new QLineEdit, "txtslogan");
    form->addRow(u"Nome do usuário ou da empresa"_s, txtnome);
    form->addRow(u"Slogan e ou direitos autorais"_s, txtslogan);
    v->addLayout(form);

    chkdica = caixa_com_texto(v, "chkdica", u"Exibir dica do dia na inicialização do software"_s,
                              u"Uma dica sobre o uso do software aparece cada vez que ele é aberto."_s);
    chkiniciar = caixa_com_texto(v, "chkiniciar", u"Iniciar software automaticamente com o windows"_s,
                                 u"O software abre sozinho quando você entra no computador."_s);
    chkatualizar =
        caixa_com_texto(v, "chkatualizar", u"Atualizar dados bancários automaticamente"_s,
                        u"Os saldos dos bancos e do caixa são calculados sempre que a lista de bancos "
                        u"é exibida."_s);
    chkalertavenc =
        caixa_com_texto(v, "chkalertavenc", u"Alertas sobre vencimento de contas"_s,
                        u"Ao abrir o software, as contas vencidas e as que vencem hoje são avisadas."_s);
    connect(chkdica, &QCheckBox::clicked, this,
            [](bool c) { gravar(store::secao_configuracoes, u"Exibir dica do dia"_s, um_zero(c)); });
    connect(chkiniciar, &QCheckBox::clicked, this, [](bool c) { shell::gravar_iniciar(c); });
    connect(chkatualizar, &QCheckBox::clicked, this,
            [](bool c) { gravar(store::secao_config, u"AtualizarSaldo"_s, um_zero(c)); });
    connect(chkalertavenc, &QCheckBox::clicked, this, [](bool c) { shell::gravar_alerta(c); });

    auto* ordem = new QGroupBox(u"Definir ordem dos dados"_s);
    auto* oh = new QHBoxLayout(ordem);
    optasc = named(new QRadioButton(u"Ordem Crescente"_s), "optasc");
    optdesc = named(new QRadioButton(u"Ordem decrescente"_s), "optdesc");
    oh->addWidget(optasc);
    oh->addWidget(optdesc);
    oh->addStretch();
    connect(optasc, &QRadioButton::clicked, this, [] { gravar(store::secao_config, u"Ordem"_s, u"ASC"_s); });
    connect(optdesc, &QRadioButton::clicked, this,
            [] { gravar(store::secao_config, u"Ordem"_s, u"DESC"_s); });
    v->addWidget(ordem);
    v->addStretch();
    return page;
}

QWidget* frmconfigsoft::montar_paleta(std::array<QRadioButton*, 12>& botoes, const char* nome,
                                      shell::grupo_cor g) {
    auto* w = new QWidget;
    auto* h = new QHBoxLayout(w);
    h->setContentsMargins(0, 0, 0, 0);
    auto* grupo = new QButtonGroup(w);
    for (int i = 0; i < 12; ++i) {
        auto* b = named(new QRadioButton, nome);
        b->setProperty("Index", i);
        b->setIcon(amostra(shell::paleta[std::size_t(i)]));
        grupo->addButton(b, i);
        h->addWidget(b);
        connect(b, &QRadioButton::clicked, this, [g, i] { shell::gravar_cor(g, i); });
        botoes[std::size_t(i)] = b;
    }
    h->addStretch();
    return w;
}

QWidget* frmconfigsoft::montar_aparencia() {
    auto* page = new QWidget;
    auto* v = new QVBoxLayout(page);
    auto* form = new QFormLayout;
    cboffonte = chosen_box("cboffonte");
    cboftamanho = chosen_box("cboftamanho");
    cboftamanho->addItems({u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s, u"14"_s, u"16"_s, u"18"_s, u"20"_s,
                           u"22"_s, u"24"_s, u"26"_s, u"28"_s, u"36"_s});
    form->addRow(u"Nome da fonte:"_s, cboffonte);
    form->addRow(u"Tamanho da fonte:"_s, cboftamanho);
    form->addRow(u"Cor da fonte:"_s, montar_paleta(optcorfonte, "optcorfonte", shell::grupo_cor::fonte));
    v->addLayout(form);
    auto* fundo = new QGroupBox(u"Cores de fundo das linhas"_s);
    auto* ff = new QFormLayout(fundo);
    ff->addRow(u"Cor 1"_s, montar_paleta(optcorfundo1, "optcorfundo1", shell::grupo_cor::fundo1));
    ff->addRow(u"Cor 2"_s, montar_paleta(optcorfundo2, "optcorfundo2", shell::grupo_cor::fundo2));
    v->addWidget(fundo);
    v->addStretch();
    pegarfontes();
    return page;
}

QWidget* frmconfigsoft::montar_rede() {
    auto* page = new QWidget;
    auto* v = new QVBoxLayout(page);
    chkrede = named(new QCheckBox(u"Trabalhar em rede"_s), "chkrede");
    txtbd = named(new QLineEdit, "txtbd");
    cmdlocal = named(new QPushButton(u"Procurar..."_s), "cmdlocal");
    connect(chkrede, &QCheckBox::clicked, this, &frmconfigsoft::chkrede_click);
    connect(cmdlocal, &QPushButton::clicked, this, &frmconfigsoft::cmdlocal_click);
    v->addWidget(chkrede);
    v->addWidget(new QLabel(u"Local do bando de dados:"_s));
    auto* h = new QHBoxLayout;
    h->addWidget(txtbd, 1);
    h->addWidget(cmdlocal);
    v->addLayout(h);
    auto* aviso = new QLabel(u"É necessário reiniciar o software para que essa atualização tenha efeito."_s);
    aviso->setWordWrap(true);
    v->addWidget(aviso);
    v->addStretch();
    return page;
}

void frmconfigsoft::pegarfontes() {
    cboffonte->clear();
    cboffonte->addItems(QFontDatabase::families());
}

void frmconfigsoft::abrir() {
    const shell::config_soft c = shell::ler_config_soft();
    txtnome->setText(c.nome);
    txtslogan->setText(c.slogan);
    chkiniciar->setChecked(c.iniciar);
    const std::pair<std::array<QRadioButton*, 12>*, int> paletas[] = {
        {&optcorfundo1, c.cor_fundo1}, {&optcorfundo2, c.cor_fundo2}, {&optcorfonte, c.cor_fonte}};
    for (const auto& [botoes, i] : paletas)
        if (i >= 0) (*botoes)[std::size_t(i)]->setChecked(true);
    cboftamanho->setEditText(c.tamanho_fonte);
    cboffonte->setEditText(c.fonte);
    (c.ordem_desc ? optdesc : optasc)->setChecked(true);
    chkatualizar->setChecked(c.atualizar);
    chkdica->setChecked(c.dica);
    chkalertavenc->setChecked(c.alertas);
    chkrede->setChecked(c.em_rede);
    txtbd->setText(c.texto_bd);
    txtbd->setEnabled(c.em_rede);
    cmdlocal->setEnabled(c.em_rede);
}

void frmconfigsoft::txtnome_lostfocus() {
    gravar(store::secao_relatorio, u"nome"_s, txtnome->text());
}

void frmconfigsoft::txtslogan_lostfocus() {
    gravar(store::secao_relatorio, u"slogan"_s, txtslogan->text());
}

void frmconfigsoft::cboffonte_lostfocus() {
    gravar(store::secao_config, u"Fontenome"_s, cboffonte->currentText());
}

void frmconfigsoft::cboftamanho_lostfocus() {
    gravar(store::secao_config, u"TamanhoFonte"_s, cboftamanho->currentText());
}

void frmconfigsoft::chkrede_click() {
    const bool ligado = chkrede->isChecked();
    if (!ligado) txtbd->setText(shell::caminho_local_bd());
    shell::gravar_rede(ligado, txtbd->text());
    txtbd->setEnabled(ligado);
    cmdlocal->setEnabled(ligado);
}

void frmconfigsoft::cmdlocal_click() {
    const QString arquivo = platform::ask().open_file(
        u"Abrir Banco de dados em rede"_s, u"Arquivos de Banco de dados do software|*.qntbd"_s, QString());
    if (arquivo.isEmpty()) return;
    txtbd->setText(arquivo);
    store::save_setting(store::secao_config, u"RedeLocal"_s, arquivo);
}

void frmconfigsoft::closeEvent(QCloseEvent* e) {
    // closing takes the focus from the field it was in: what it holds is written like any other leave
    QWidget* campo = focusWidget();
    if (campo == txtnome) txtnome_lostfocus();
    if (campo == txtslogan) txtslogan_lostfocus();
    if (campo == cboffonte || (campo && cboffonte->isAncestorOf(campo))) cboffonte_lostfocus();
    if (campo == cboftamanho || (campo && cboftamanho->isAncestorOf(campo))) cboftamanho_lostfocus();
    if (aberta_ == this) aberta_ = nullptr;
    QWidget::closeEvent(e);
}
