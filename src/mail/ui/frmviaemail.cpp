#include "mail/ui/frmviaemail.h"

#include "mail/ui/frmconfloginemail.h"
#include "mail/ui/frmenviando.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/frmcarregando.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

QPointer<frmviaemail> frmviaemail::aberta_;

namespace {

const QString um = u"1"_s;

bool marcado(const QString& chave, const QString& padrao) {
    return mail::ler(chave, padrao) == um;
}

// A box that writes its setting when the user clicks it.
QCheckBox* caixa(const char* nome, const char* texto, const QString& chave, QWidget* dono) {
    auto* c = named(new QCheckBox(QString::fromUtf8(texto)), nome);
    QObject::connect(c, &QCheckBox::clicked, dono,
                     [chave](bool v) { mail::gravar(chave, v ? u"1"_s : u"0"_s); });
    return c;
}

QLabel* titulo(const QString& texto) {
    auto* l = new QLabel(texto);
    QFont f = l->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    l->setFont(f);
    return l;
}

} // namespace

frmviaemail* frmviaemail::aberta() {
    return aberta_.data();
}

frmviaemail* frmviaemail::mostrar(pagina p) {
    frmviaemail* w = aberta_;
    if (!w) w = new frmviaemail;
    if (p == pagina::relatorio) {
        w->ler_relatorio();
        w->paginas->setCurrentWidget(w->picret);
    } else {
        w->ler_estatisticas();
        w->paginas->setCurrentWidget(w->picestatisticas);
    }
    show_form(w);
    return w;
}

frmviaemail::frmviaemail() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"frmviaemail"_s);
    setWindowTitle(u"Via e-mail"_s);
    setProperty("quintara_form", true);
    setAttribute(Qt::WA_DeleteOnClose);
    aberta_ = this;

    paginas = named(new QStackedWidget, "paginas");
    picret = named(montar_pagina(true), "picret");
    picestatisticas = named(montar_pagina(false), "picestatisticas");
    paginas->addWidget(picret);
    paginas->addWidget(picestatisticas);
    cmdaviso = named(new QPushButton(u"Aviso"_s), "cmdaviso");
    connect(cmdaviso, &QPushButton::clicked, this, &frmviaemail::cmdaviso_click);
    auto* rodape = new QHBoxLayout;
    rodape->addWidget(cmdaviso);
    rodape->addStretch();
    auto* v = new QVBoxLayout(this);
    v->addWidget(paginas);
    v->addLayout(rodape);

    for (QLineEdit* t : {txtnome, txtemail, txtservidor, txtnome2, txtemail2, txtservidor2})
        install_field_conduct(t);
    // the report's body asks the statistics page too, so both pages are read at the opening
    ler_relatorio();
    ler_estatisticas();
}

QWidget* frmviaemail::montar_pagina(bool ret) {
    using namespace mail;
    auto* page = new QWidget;
    auto* v = new QVBoxLayout(page);
    v->addWidget(titulo(ret ? u"Relatório via e-mail"_s : u"Estatísticas via e-mail"_s));

    auto* dados = new QGroupBox(u"Dados a serem enviado:"_s);
    auto* dv = new QVBoxLayout(dados);
    QCheckBox* pagar = caixa(ret ? "chkpagar" : "chkpagarest", "Incluír contas a pagar",
                             ret ? chave::pagar : chave::pagar2, this);
    QCheckBox* receber = caixa(ret ? "chkreceber" : "chkreceberest", "Incluír contas a receber",
                               ret ? chave::receber : chave::receber2, this);
    QCheckBox* bancario = caixa(ret ? "chkbancario" : "chkbancarioest", "Incluír  movimento bancário",
                                ret ? chave::bancario : chave::bancario2, this);
    QCheckBox* pordata = caixa(ret ? "chkpordata" : "chkpordatasest", "Filtrar por datas",
                               ret ? chave::entredatas : chave::entredatas2, this);
    auto* data1 = named(new date_field, ret ? "cboinicioret" : "cbodata1est");
    auto* data2 = named(new date_field, ret ? "cbofinalret" : "cbodata2est");
    connect(pordata, &QCheckBox::clicked, this, [data1, data2](bool v) {
        data1->setEnabled(v);
        data2->setEnabled(v);
    });
    for (QCheckBox* c : {pagar, receber, bancario})
        dv->addWidget(c);
    dv->addWidget(pordata);
    auto* datas = new QHBoxLayout;
    datas->addWidget(new QLabel(u"Entre:"_s));
    datas->addWidget(data1);
    datas->addWidget(new QLabel(u"e"_s));
    datas->addWidget(data2);
    datas->addStretch();
    dv->addLayout(datas);
    v->addWidget(dados);

    if (ret) {
        auto* tipos = new QGroupBox;
        auto* tv = new QVBoxLayout(tipos);
        opttodosret = named(new QRadioButton(u"Enviar todos os dados"_s), "opttodosret");
        optpendentesret = named(new QRadioButton(u"Apenas Pendentes"_s), "optpendentesret");
        optconcluidosret = named(new QRadioButton(u"Apenas Concluídos"_s), "optconcluidosret");
        const std::pair<QRadioButton*, tipo_ret> opcoes[] = {{opttodosret, tipo_ret::todos},
                                                             {optpendentesret, tipo_ret::pendentes},
                                                             {optconcluidosret, tipo_ret::concluidos}};
        for (const auto& opcao : opcoes) {
            const tipo_ret t = opcao.second;
            tv->addWidget(opcao.first);
            connect(opcao.first, &QRadioButton::clicked, this,
                    [t] { gravar(chave::tiporet, texto_tipo(t)); });
        }
        v->addWidget(tipos);
    }

    v->addWidget(new QLabel(u"Configurações:"_s));
    auto* seus = new QGroupBox(u"Seus dados"_s);
    auto* form = new QFormLayout(seus);
    auto* nome = named(new QLineEdit, ret ? "txtnome" : "txtnome2");
    auto* email = named(new QLineEdit, ret ? "txtemail" : "txtemail2");
    auto* servidor = named(new QLineEdit, ret ? "txtservidor" : "txtservidor2");
    servidor->setToolTip(
        u"Nome do servidor de envio; a porta pode seguir o nome (smtp.exemplo.com.br:587)"_s);
    form->addRow(u"Seu Nome:"_s, nome);
    form->addRow(u"Seu e-mail:"_s, email);
    form->addRow(u"Servidor de e-mail:"_s, servidor);
    v->addWidget(seus);

    auto* enviar = named(new QPushButton(u"Enviar"_s), ret ? "cmdenviarret" : "cmdenviar2");
    auto* login = named(new QPushButton(u"Dados de login"_s), ret ? "cmdlogin1" : "cmdlogin2");
    connect(login, &QPushButton::clicked, this, &frmviaemail::cmdlogin_click);
    connect(enviar, &QPushButton::clicked, this,
            ret ? &frmviaemail::cmdenviarret_click : &frmviaemail::cmdenviar2_click);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(login);
    botoes->addStretch();
    botoes->addWidget(enviar);
    v->addLayout(botoes);
    v->addStretch();

    if (ret) {
        chkpagar = pagar, chkreceber = receber, chkbancario = bancario, chkpordata = pordata;
        cboinicioret = data1, cbofinalret = data2;
        txtnome = nome, txtemail = email, txtservidor = servidor;
        cmdenviarret = enviar, cmdlogin1 = login;
    } else {
        chkpagarest = pagar, chkreceberest = receber, chkbancarioest = bancario, chkpordatasest = pordata;
        cbodata1est = data1, cbodata2est = data2;
        txtnome2 = nome, txtemail2 = email, txtservidor2 = servidor;
        cmdenviar2 = enviar, cmdlogin2 = login;
    }
    return page;
}

void frmviaemail::ler_relatorio() {
    using namespace mail;
    chkpagar->setChecked(marcado(chave::pagar, um));
    chkreceber->setChecked(marcado(chave::receber, um));
    chkbancario->setChecked(marcado(chave::bancario, um));
    chkpordata->setChecked(marcado(chave::entredatas, u"0"_s));
    cboinicioret->setEnabled(chkpordata->isChecked());
    cbofinalret->setEnabled(chkpordata->isChecked());
    switch (tipo_de(ler(chave::tiporet, u"Todos"_s))) {
    case tipo_ret::pendentes:
        optpendentesret->setChecked(true);
        break;
    case tipo_ret::concluidos:
        optconcluidosret->setChecked(true);
        break;
    default:
        opttodosret->setChecked(true);
    }
    txtnome->setText(ler(chave::nome, QString()));
    txtemail->setText(ler(chave::email, padrao_email));
    txtservidor->setText(ler(chave::servidor, padrao_servidor));
}

void frmviaemail::ler_estatisticas() {
    using namespace mail;
    chkpagarest->setChecked(marcado(chave::pagar2, um));
    chkreceberest->setChecked(marcado(chave::receber2, um));
    chkbancarioest->setChecked(marcado(chave::bancario2, um));
    chkpordatasest->setChecked(marcado(chave::entredatas2, u"0"_s));
    cbodata1est->setEnabled(chkpordatasest->isChecked());
    cbodata2est->setEnabled(chkpordatasest->isChecked());
    txtnome2->setText(ler(chave::nome, QString()));
    txtemail2->setText(ler(chave::email, padrao_email));
    txtservidor2->setText(ler(chave::servidor, padrao_servidor));
}

mail::pagina frmviaemail::dados_relatorio() const {
    mail::pagina p;
    p.incluir = {chkpagar->isChecked(), chkreceber->isChecked(), chkbancario->isChecked()};
    p.por_data = chkpordata->isChecked();
    p.inicio = cboinicioret->date();
    p.fim = cbofinalret->date();
    p.nome = txtnome->text();
    p.email = txtemail->text();
    p.servidor = txtservidor->text();
    return p;
}

mail::pagina frmviaemail::dados_estatisticas() const {
    mail::pagina p;
    p.incluir = {chkpagarest->isChecked(), chkreceberest->isChecked(), chkbancarioest->isChecked()};
    p.por_data = chkpordatasest->isChecked();
    p.inicio = cbodata1est->date();
    p.fim = cbodata2est->date();
    p.nome = txtnome2->text();
    p.email = txtemail2->text();
    p.servidor = txtservidor2->text();
    return p;
}

bool frmviaemail::preparar(const mail::pagina& p) {
    // the file of the last send goes first, whatever this one becomes
    platform::ignore_errors([] { QFile::remove(mail::caminho_anexo()); });
    const QString erro = mail::erro_envio(p);
    if (!erro.isEmpty()) {
        platform::msgbox(erro, platform::exclamation, u"Erro"_s);
        return false;
    }
    mail::gravar(mail::chave::nome, p.nome);
    mail::gravar(mail::chave::email, p.email);
    mail::gravar(mail::chave::servidor, p.servidor);
    return true;
}

void frmviaemail::cmdenviarret_click() {
    if (enviando_) return;
    const mail::pagina p = dados_relatorio();
    if (!preparar(p)) return;
    const mail::tipo_ret tipo = optpendentesret->isChecked()    ? mail::tipo_ret::pendentes
                                : optconcluidosret->isChecked() ? mail::tipo_ret::concluidos
                                                                : mail::tipo_ret::todos;
    const QString anexo = mail::caminho_anexo();
    {
        waiting_window espera(this, u"Relatório via e-mail"_s,
                              u"Por favor aguarde enquanto o software carrega os dados, este processo pode "
                              u"demorar dependendo do tamanho do banco de dados."_s);
        QElapsedTimer desde;
        desde.start();
        platform::ignore_errors([&] {
            mail::escrever_anexo(anexo, p, tipo, [&](int valor, int maximo) {
                espera.set_range(0, maximo);
                espera.set_value(valor);
                if (desde.elapsed() > 50) {
                    waiting_window::yield();
                    desde.restart();
                }
            });
        });
    }
    const QString corpo = mail::corpo_relatorio(p, tipo, chkpordatasest->isChecked());
    enviar(
        mail::mensagem(p, mail::assunto_relatorio, corpo, anexo), u"Relatório via e-mail"_s,
        u"Enviado relatório via e-mail, este processo pode demorar dependendo do tamanho dos dados a serem "
        u"enviados e da velocidade de conexão."_s);
}

void frmviaemail::cmdenviar2_click() {
    if (enviando_) return;
    const mail::pagina p = dados_estatisticas();
    if (!preparar(p)) return;
    QString corpo;
    {
        waiting_window espera(this, u"Estatísticas via e-mail"_s,
                              u"Por favor aguarde enquanto o software carrega os dados, este processo pode "
                              u"demorar dependendo do tamanho do banco de dados."_s);
        espera.set_range(0, 0);
        corpo = mail::corpo_estatisticas(p);
    }
    enviar(mail::mensagem(p, mail::assunto_estatisticas, corpo, QString()), u"Estatísticas via e-mail"_s,
           u"Enviado estatísticas via e-mail, este processo pode demorar dependendo do tamanho dos dados a "
           u"serem enviados e da velocidade de conexão."_s);
}

void frmviaemail::enviar(const platform::mail_message& m, const QString& titulo, const QString& texto) {
    enviando_ = true;
    setEnabled(false);
    auto* aviso = new frmenviando(titulo, texto, this);
    aviso->show();
    waiting_window::yield();
    const platform::mail_result r = platform::send_while_responsive(platform::correio(), m);
    aviso->close();
    if (r.sent)
        platform::msgbox(u"O e-mail foi enviado com sucesso para o endereço especificado!"_s,
                         platform::information, u"Via e-mail"_s);
    else
        platform::msgbox(
            u"Não foi possível enviaro e-mail verifique se os dados foram digitados corretamente!"_s,
            platform::exclamation, u"Erro"_s);
    enviando_ = false;
    setEnabled(true);
    close();
}

void frmviaemail::cmdaviso_click() {
    platform::msgbox(
        u"É recomendável enviar pequenas quantidade de dados por e-mail, pois este processo pode ser "
        u"extremamente lento se enviado todo o banco de dados, você pode filtrar os dados entre datas "
        u"para que o envio seja mais rápido."_s,
        platform::ok_only, u"Aviso"_s);
}

void frmviaemail::cmdlogin_click() {
    frmconfloginemail::mostrar(this);
}

void frmviaemail::closeEvent(QCloseEvent* e) {
    // the window waits for the send it started
    if (enviando_) {
        e->ignore();
        return;
    }
    // a closed window waits for its deletion; the menu opens a new one meanwhile
    if (aberta_ == this) aberta_ = nullptr;
    QWidget::closeEvent(e);
}
