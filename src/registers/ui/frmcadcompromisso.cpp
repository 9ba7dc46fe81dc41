#include "registers/ui/frmcadcompromisso.h"

#include "platform/clock.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "registers/ui/frmcompromisso.h"
#include "store/conexao.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>

namespace {
QPointer<frmcadcompromisso> the_form;
const QString legenda_adicionar = QStringLiteral("&Adicionar compromisso");
} // namespace

frmcadcompromisso* frmcadcompromisso::instance() {
    if (!the_form) the_form = new frmcadcompromisso();
    return the_form;
}

frmcadcompromisso* frmcadcompromisso::carregada() {
    return the_form.data();
}

frmcadcompromisso::frmcadcompromisso()
    : QWidget(nullptr, Qt::Window), cbodata(named(new date_field, "cbodata")),
      txthora(named(new QLineEdit, "txthora")), txttitulo(named(new QLineEdit, "txttitulo")),
      txtlocal(named(new QLineEdit, "txtlocal")), txtdescricao(named(new QPlainTextEdit, "txtdescricao")),
      cmdok(named(new QPushButton, "cmdok")),
      cmdsair(named(new QPushButton(QStringLiteral("&Cancelar")), "cmdsair")) {
    setObjectName(QStringLiteral("frmcadcompromisso"));
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Cadastrar novo compromisso"));
    cmdok->setText(legenda_adicionar);
    txtdescricao->setTabChangesFocus(true);

    auto* g = new QGridLayout;
    g->addWidget(new QLabel(QStringLiteral("Data:")), 0, 0);
    g->addWidget(cbodata, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Hora:")), 0, 2);
    g->addWidget(txthora, 0, 3);
    g->addWidget(new QLabel(QStringLiteral("Título:")), 1, 0);
    g->addWidget(txttitulo, 1, 1, 1, 3);
    g->addWidget(new QLabel(QStringLiteral("Local:")), 2, 0);
    g->addWidget(txtlocal, 2, 1, 1, 3);
    g->addWidget(new QLabel(QStringLiteral("Descrição:")), 3, 0, Qt::AlignTop);
    g->addWidget(txtdescricao, 3, 1, 1, 3);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdok);
    botoes->addWidget(cmdsair);
    auto* v = new QVBoxLayout(this);
    v->addLayout(g);
    v->addLayout(botoes);
    resize(460, 300);

    install_field_conduct_all(this);
    // the calendar drops down over a window that is no longer on top
    connect(cbodata, &date_field::calendar_opened, this,
            [this] { sempretopo(QStringLiteral("desativo"), this); });
    connect(cbodata, &date_field::calendar_closed, this,
            [this] { sempretopo(QStringLiteral("ativo"), this); });
    auto* a = new atalhos(this);
    a->add(QLatin1Char('C'), [this] { cmdsair->click(); }).add(QLatin1Char('I'), [this] { cmdok->click(); });
    connect(cmdok, &QPushButton::clicked, this, [this] { cmdok_click(); });
    connect(cmdsair, &QPushButton::clicked, this, [this] { close(); });
    sempretopo(QStringLiteral("ativo"), this);
}

frmcadcompromisso::~frmcadcompromisso() {
    if (the_form == this) the_form = nullptr;
}

void frmcadcompromisso::adicionar_novo() {
    titulo_aberto_.clear();
    setWindowTitle(QStringLiteral("Cadastrar novo compromisso"));
    cmdok->setText(legenda_adicionar);
    cbodata->set_date(platform::today());
    for (QLineEdit* t : {txthora, txttitulo, txtlocal})
        t->clear();
    txtdescricao->clear();
    show_form(this);
    cbodata->setFocus();
}

void frmcadcompromisso::editar_existente(const QString& titulo, const registers::compromisso& c) {
    titulo_aberto_ = titulo;
    setWindowTitle(QStringLiteral("Editar compromisso"));
    cmdok->setText(QStringLiteral("&Editar compromisso"));
    txtdescricao->setPlainText(c.descricao);
    txthora->setText(c.hora);
    txtlocal->setText(c.local);
    if (c.data.isValid())
        cbodata->set_date(c.data);
    else
        cbodata->clear();
    txttitulo->setText(c.titulo);
    show_form(this);
    cbodata->setFocus();
}

registers::compromisso frmcadcompromisso::campos() const {
    return {cbodata->date(), txthora->text(), txttitulo->text(), txtlocal->text(),
            txtdescricao->toPlainText()};
}

void frmcadcompromisso::erro(const QString& texto) {
    msgbox_over(this, texto, platform::exclamation, QStringLiteral("Erro"));
}

void frmcadcompromisso::cmdok_click() {
    if (cmdok->text().toUpper() == QLatin1String("&ADICIONAR COMPROMISSO"))
        adicionar();
    else
        editar();
}

void frmcadcompromisso::concluir() {
    close();
    if (frmcompromisso* l = frmcompromisso::carregada()) l->Carregartudo();
}

void frmcadcompromisso::adicionar() {
    try {
        store::conectarbanco();
        registers::adicionar(campos());
    } catch (const sql::error& e) {
        erro(registers::erro_cadastrar + e.description());
        return;
    } catch (const std::exception& e) {
        erro(registers::erro_cadastrar + platform::error_text(e));
        return;
    }
    concluir();
}

void frmcadcompromisso::editar() {
    try {
        store::conectarbanco();
        registers::editar(titulo_aberto_, campos());
    } catch (const sql::error& e) {
        erro(registers::erro_editar + e.description());
        return;
    } catch (const std::exception& e) {
        erro(registers::erro_editar + platform::error_text(e));
        return;
    }
    concluir();
}
