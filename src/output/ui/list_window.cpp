#include "output/ui/list_window.h"

#include "output/print/list_report.h"
#include "output/print/modimpressao.h"
#include "output/ui/frmreport_window.h"
#include "platform/widgets/list_view.h"
#include "store/program_dir.h"

#include "platform/errors.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPalette>
#include <QProgressBar>
#include <QToolBar>

list_window::list_window(const char* name, const QString& caption, list_view* lista)
    : QWidget(nullptr, Qt::Window), lbltopo(new QLabel), barraprogresso(new QProgressBar),
      tbrbarra(new QToolBar), lista_(lista) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose);
    lbltopo->setObjectName(QStringLiteral("lbltopo"));
    barraprogresso->setObjectName(QStringLiteral("barraprogresso"));
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    tbrbarra->setObjectName(QStringLiteral("tbrbarra"));
    tbrbarra->setToolButtonStyle(Qt::ToolButtonTextOnly);
    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

list_window::~list_window() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

QAction* list_window::novo_botao(const char* key, const QString& caption, std::function<void()> run) {
    QAction* a = tbrbarra->addAction(caption);
    a->setObjectName(QString::fromLatin1(key));
    connect(a, &QAction::triggered, this, [run = std::move(run)] { run(); });
    return a;
}

QIcon icone_tema(const QStringList& nomes, QStyle::StandardPixmap reserva) {
    // without a desktop session Qt names no theme: the one installed with the system serves
    const auto sem_tema = [](const QString& n) { return n.isEmpty() || n == QLatin1String("hicolor"); };
    if (sem_tema(QIcon::themeName()) && sem_tema(QIcon::fallbackThemeName()))
        QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));
    for (const QString& n : nomes) {
        if (QIcon::hasThemeIcon(n)) return QIcon::fromTheme(n);
        const QString simbolico = n + QStringLiteral("-symbolic");
        if (QIcon::hasThemeIcon(simbolico)) return QIcon::fromTheme(simbolico);
    }
    return QApplication::style()->standardIcon(reserva);
}

QAction* list_window::novo_botao(const char* key, const QString& caption, std::function<void()> run,
                                 const QStringList& icones, QStyle::StandardPixmap reserva) {
    QAction* a = novo_botao(key, caption, std::move(run));
    a->setIcon(icone_tema(icones, reserva));
    a->setToolTip(caption);
    tbrbarra->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tbrbarra->setIconSize(QSize(24, 24));
    return a;
}

QAction* list_window::novo_item(QMenu* menu, const char* name, const QString& caption,
                                std::function<void()> run) {
    QAction* a = menu->addAction(caption);
    a->setObjectName(QString::fromLatin1(name));
    QObject::connect(a, &QAction::triggered, menu, [run = std::move(run)] { platform::ignore_errors(run); });
    return a;
}

void list_window::ligar_popup(QMenu* menu) {
    lista_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(lista_, &QWidget::customContextMenuRequested, menu,
            [this, menu](const QPoint& at) { menu->popup(lista_->viewport()->mapToGlobal(at)); });
}

QAction* list_window::botao(const QString& key) const {
    for (QAction* a : tbrbarra->actions())
        if (a->objectName() == key) return a;
    return nullptr;
}

void list_window::carregar_fundo() {
    QPixmap fundo;
    if (!fundo.load(store::program_path(QStringLiteral("\\fundo.gif")))) return;
    QPalette p = lista_->viewport()->palette();
    p.setBrush(QPalette::Base, QBrush(fundo));
    lista_->viewport()->setPalette(p);
    lista_->viewport()->setAutoFillBackground(true);
}

void list_window::txt() {
    const saida s = textos_saida();
    output::salvar_arquivo(s.titulo_txt, s.filtro_txt, barra_.get(), [&](QIODevice& file) {
        output::write_text_list(file, s.moldura, lista_, relatorio_);
    });
}

void list_window::HTML() {
    const saida s = textos_saida();
    output::salvar_arquivo(s.titulo_html, s.filtro_html, barra_.get(), [&](QIODevice& file) {
        output::write_html_list(file, s.moldura, lista_, relatorio_);
    });
}

void list_window::Imprimir() {
    try {
        const saida s = textos_saida();
        output::list_report r = output::nova_impressao(output::report_form::rlt_ListView, lista_);
        r.rpf_Titulo = s.titulo_impressao;
        r.lblfiltro = s.lblfiltro;
        r.lblestatus = s.lblestatus;
        r.lblsumario1 = s.lblsumario1;
        r.lblsumario2 = s.lblsumario2;
        output::Executar(r);
    } catch (...) {
        output::modimpressao::erro_impressao();
    }
}
