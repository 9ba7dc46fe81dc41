#include "banks/ui/frmestbanco.h"

#include "banks/print/estatisticas_print.h"
#include "banks/ui/report_dialogs.h"
#include "output/report_frame.h"
#include "output/ui/frmreport_window.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"

#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

namespace {

QPointer<frmestbanco> the_window;

QPlainTextEdit* caixa_de_texto(const char* name) {
    auto* t = named(new QPlainTextEdit, name);
    t->setReadOnly(true);
    return t;
}

QGroupBox* moldura(const QString& titulo, QWidget* dentro) {
    auto* g = new QGroupBox(titulo);
    auto* l = new QVBoxLayout(g);
    l->addWidget(dentro);
    return g;
}

} // namespace

frmestbanco* frmestbanco::instance() {
    if (!the_window) the_window = new frmestbanco();
    return the_window;
}

frmestbanco* frmestbanco::aberto() {
    return the_window.data();
}

frmestbanco::frmestbanco() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("frmestbanco"));
    setWindowTitle(QStringLiteral("Estatisticas de Caixa/Banco por périodo"));
    setAttribute(Qt::WA_DeleteOnClose);
    lstcaixabanco = named(new list_view, "lstcaixabanco");
    lstcaixabanco->add_column(QStringLiteral("Banco/Caixa"), 2800);
    lstcaixabanco->add_column(QStringLiteral("Saldo(no período)"), 1900, list_view::tag_number);
    lstcaixabanco->add_column(QStringLiteral("Informações"), 3400);
    lstcaixabanco->add_column(QStringLiteral("Saldo(Inicial)"), 1900, list_view::tag_number);
    txtresucaixa = caixa_de_texto("txtresucaixa");
    txtest = caixa_de_texto("txtest");
    txtresumohtml = caixa_de_texto("txtresumohtml");
    txtesthtml = caixa_de_texto("txtesthtml");
    txtresumohtml->hide();
    txtesthtml->hide();
    barraprogresso = named(new QProgressBar, "barraprogresso");
    barraprogresso->setRange(0, 100);
    barraprogresso->hide();
    cmdimprimir = named(new QPushButton(QStringLiteral("&Imprimir")), "cmdimprimir");
    cmdtxt = named(new QPushButton(QStringLiteral("Salvar em &TXT")), "cmdtxt");
    cmdhtml = named(new QPushButton(QStringLiteral("Salvar em &HTML")), "cmdhtml");
    cmdsair = named(new QPushButton(QStringLiteral("&Sair")), "cmdsair");

    auto* v = new QVBoxLayout(this);
    v->addWidget(moldura(QStringLiteral("Bancos / Caixas"), lstcaixabanco), 3);
    auto* textos = new QHBoxLayout;
    textos->addWidget(moldura(QStringLiteral("Resumo"), txtresucaixa));
    textos->addWidget(moldura(QStringLiteral("Estatísticas"), txtest));
    v->addLayout(textos, 2);
    v->addWidget(txtresumohtml);
    v->addWidget(txtesthtml);
    v->addWidget(barraprogresso);
    auto* botoes = new QHBoxLayout;
    for (QPushButton* b : {cmdimprimir, cmdtxt, cmdhtml})
        botoes->addWidget(b);
    botoes->addStretch(1);
    botoes->addWidget(cmdsair);
    v->addLayout(botoes);

    connect(cmdimprimir, &QPushButton::clicked, this, &frmestbanco::imprimir);
    connect(cmdtxt, &QPushButton::clicked, this, &frmestbanco::salvartxt);
    connect(cmdhtml, &QPushButton::clicked, this, &frmestbanco::salvarhtml);
    connect(cmdsair, &QPushButton::clicked, this, &QWidget::close);

    barra_ = std::make_unique<output::barra_progresso>(barraprogresso);
    relatorio_.set_Progresbar(barra_.get());
    output::set_relatorio(&relatorio_);
}

QSize frmestbanco::sizeHint() const {
    return {list_view::twips_to_pixels(11000, this), list_view::twips_to_pixels(8000, this)};
}

frmestbanco::~frmestbanco() {
    if (output::relatorio() == &relatorio_) output::set_relatorio(nullptr);
}

void frmestbanco::mostrar(
    const std::function<banks::estatisticas(const banks::account_rows_hooks&)>& calcular) {
    for (QPlainTextEdit* t : {txtresucaixa, txtresumohtml, txtest, txtesthtml})
        t->clear();
    lstcaixabanco->clear_rows();
    std::optional<waiting_window> espera;
    banks::account_rows_hooks hooks;
    hooks.before_walk = [&](int contas) {
        espera.emplace(
            this, QStringLiteral("Atualizando saldo bancario ...\nCarregando caixas e banco ..."),
            QStringLiteral("Aguarde enquanto o software carrega os bancos e caixas cadastros e atualiza "
                           "o saldo disponível em cada banco, este processo pode demorar dependendo do "
                           "tamanho do banco de dados."));
        espera->set_range(0, contas);
    };
    hooks.progress = [&](int feitas) {
        if (espera) espera->set_value(feitas);
    };
    banks::estatisticas e;
    platform::ignore_errors([&] { e = calcular(hooks); });
    espera.reset(); // lets events through, then unloads it
    lstcaixabanco->add_rows(std::move(e.linhas));
    txtresucaixa->setPlainText(e.resumo);
    txtresumohtml->setPlainText(e.resumo_html);
    txtest->setPlainText(e.est);
    txtesthtml->setPlainText(e.est_html);
}

void frmestbanco::geral(const QString& data1, const QString& data2) {
    mostrar([&](const banks::account_rows_hooks& h) { return banks::geral(data1, data2, h); });
}

void frmestbanco::nodia(const QString& data) {
    mostrar([&](const banks::account_rows_hooks& h) { return banks::nodia(data, h); });
}

void frmestbanco::salvartxt() {
    const QString resumo = txtresucaixa->toPlainText(), est = txtest->toPlainText();
    banks::salvar_arquivo(banks::titulo_txt_estatisticas, banks::filtro_txt_estatisticas, barra_.get(),
                          [&](QIODevice& f) { banks::write_estatisticas_txt(f, resumo, est); });
}

void frmestbanco::salvarhtml() {
    const QString resumo = txtresumohtml->toPlainText(), est = txtesthtml->toPlainText();
    banks::salvar_arquivo(banks::titulo_html_estatisticas, banks::filtro_html_estatisticas, barra_.get(),
                          [&](QIODevice& f) { banks::write_estatisticas_html(f, resumo, est); });
}

void frmestbanco::imprimir() {
    std::vector<QStringList> linhas;
    for (int r = 0; r < lstcaixabanco->row_count(); ++r) {
        QStringList l;
        for (int c = 0; c < lstcaixabanco->column_count(); ++c)
            l << lstcaixabanco->text(r, c);
        linhas.push_back(l);
    }
    banks::imprimir_estatisticas(linhas, txtresucaixa->toPlainText(), txtest->toPlainText(), barra_.get());
}
