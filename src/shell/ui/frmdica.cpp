#include "shell/ui/frmdica.h"
#include "platform/widgets/form_builders.h"

#include "platform/errors.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"
#include "store/config.h"
#include "store/program_dir.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>

QPointer<frmdica> frmdica::aberto_;

namespace {

QString ler_dica() {
    return store::setting(store::secao_configuracoes, shell::chave_dica, QStringLiteral("1"));
}

void gravar_dica(const QString& valor) {
    store::save_setting(store::secao_configuracoes, shell::chave_dica, valor);
}

} // namespace

frmdica::frmdica(QWidget* parent)
    : QDialog(parent), lbltitulo(named(new QLabel, "lbltitulo")), lblTipText(named(new QLabel, "lblTipText")),
      chkdicadia(named(new QCheckBox, "chkdicadia")), cmdNextTip(named(new QPushButton, "cmdNextTip")),
      cmdok(named(new QPushButton, "cmdok")) {
    setObjectName(QStringLiteral("frmdica"));
    setWindowTitle(QStringLiteral("Dica do Dia"));
    setAttribute(Qt::WA_DeleteOnClose);

    lbltitulo->setText(QStringLiteral("Dica do dia"));
    QFont f = lbltitulo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.4);
    lbltitulo->setFont(f);
    // a tip is shown as written, never read as markup
    lblTipText->setTextFormat(Qt::PlainText);
    lblTipText->setWordWrap(true);
    lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText->setMinimumHeight(110);
    chkdicadia->setText(QStringLiteral("&Sempre exibir estas dicas ao iniciar"));
    cmdNextTip->setText(QStringLiteral("&Próxima dica"));
    cmdok->setText(QStringLiteral("OK"));
    cmdok->setDefault(true);

    auto* botoes = new QVBoxLayout;
    botoes->addWidget(cmdok);
    botoes->addWidget(cmdNextTip);
    botoes->addStretch(1);
    auto* meio = new QHBoxLayout;
    auto* texto = new QVBoxLayout;
    texto->addWidget(lbltitulo);
    texto->addWidget(lblTipText, 1);
    meio->addLayout(texto, 1);
    meio->addLayout(botoes);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(meio, 1);
    layout->addWidget(chkdicadia);
    resize(480, 240);

    // clicked, not toggled: only the user's click writes the setting
    connect(chkdicadia, &QCheckBox::clicked, this, [this] { chkdicadia_click(); });
    connect(cmdNextTip, &QPushButton::clicked, this, [this] { cmdNextTip_click(); });
    connect(cmdok, &QPushButton::clicked, this, [this] { cmdok_click(); });

    aberto_ = this;
}

frmdica::~frmdica() {
    if (aberto_ == this) aberto_ = nullptr;
    restaurar();
}

frmdica* frmdica::aberto() {
    return aberto_.data();
}

frmdica* frmdica::mostrar(bool ao_iniciar, QWidget* parent) {
    frmdica* w = aberto_;
    if (!w) {
        w = new frmdica(parent);
        if (!w->abrir(ao_iniciar)) {
            delete w;
            return nullptr;
        }
    }
    w->show();
    w->raise();
    w->activateWindow();
    return w;
}

frmdica* frmdica::mostrar_por_pedido(QWidget* parent) {
    const QString antes = ler_dica();
    gravar_dica(QStringLiteral("1"));
    frmdica* w = mostrar(false, parent);
    if (!w) {
        gravar_dica(antes);
        return nullptr;
    }
    // a window already opened on request keeps the value from before the first request
    if (!w->restaurar_) w->restaurar_ = antes;
    return w;
}

bool frmdica::abrir(bool ao_iniciar) {
    sempretopo(QStringLiteral("ativo"), this);
    if (ao_iniciar && vb::val(ler_dica()) == 0) return false;
    chkdicadia->setChecked(true);
    const QString arquivo = shell::tips_file();
    if (!LoadTips(arquivo)) lblTipText->setText(shell::missing_tips_text(arquivo));
    // a missing picture leaves the plain background
    fundo_.load(store::program_path(QStringLiteral("\\fundo.gif")));
    return true;
}

bool frmdica::LoadTips(const QString& arquivo) {
    const std::optional<QStringList> linhas = shell::read_tips(arquivo);
    if (!linhas) return false;
    dicas.append(*linhas);
    escolher_dica();
    return true;
}

void frmdica::DisplayCurrentTip() {
    if (CurrentTip >= 1 && CurrentTip <= dicas.size()) lblTipText->setText(dicas.at(CurrentTip - 1));
}

void frmdica::escolher_dica() {
    CurrentTip = shell::pick_tip(int(dicas.size()));
    DisplayCurrentTip();
}

void frmdica::cmdNextTip_click() {
    escolher_dica();
}

void frmdica::cmdok_click() {
    close();
}

void frmdica::chkdicadia_click() {
    gravar_dica(chkdicadia->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
}

void frmdica::done(int r) {
    restaurar();
    QDialog::done(r);
}

void frmdica::restaurar() {
    if (!restaurar_) return;
    const QString valor = *restaurar_;
    restaurar_.reset();
    platform::ignore_errors([&] { gravar_dica(valor); });
}

void frmdica::paintEvent(QPaintEvent* e) {
    QDialog::paintEvent(e);
    if (fundo_.isNull()) return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, fundo_);
}
