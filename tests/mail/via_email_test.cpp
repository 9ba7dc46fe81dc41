#include "mail/ui/frmconfloginemail.h"
#include "mail_fixture.h"
#include "platform/widgets/date_field.h"
#include "store/config.h"
#include "support/golden.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>

namespace {

using mail::pagina;
using mail::tipo_ret;

class via_email : public mail_test::fixture {
protected:
    QString anexo(const pagina& p, tipo_ret t) {
        const QString arquivo = tmp_.filePath(QStringLiteral("a.txt"));
        EXPECT_TRUE(mail::escrever_anexo(arquivo, p, t));
        return ler_arquivo(arquivo);
    }
    QTemporaryDir tmp_;
};

TEST_F(via_email, the_dates_then_the_blank_fields_stop_a_send) {
    const QDate d(2026, 11, 1);
    const struct {
        bool por_data;
        QDate inicio, fim;
        const char *servidor, *nome, *email, *erro;
    } casos[] = {
        {false, {}, {}, "", "", "", "Os campos Servidor Seu Nome Seu E-mail  devem ser preenchidos."},
        {false, {}, {}, "smtp", "   ", "  ", "Os campos Seu Nome Seu E-mail  devem ser preenchidos."},
        {true, {}, {}, "", "", "", "A data inicial e a data final devem ser preenchidas!"},
        {true, d, {}, "smtp", "Ana", "a@b", ""},
        {false, {}, {}, " smtp ", "Ana", "a@b", ""},
    };
    for (const auto& c : casos) {
        pagina p;
        p.por_data = c.por_data, p.inicio = c.inicio, p.fim = c.fim;
        p.servidor = QString::fromUtf8(c.servidor), p.nome = QString::fromUtf8(c.nome);
        p.email = QString::fromUtf8(c.email);
        EXPECT_EQ(mail::erro_envio(p), QString::fromUtf8(c.erro)) << c.erro;
    }
}

TEST_F(via_email, the_attachment_holds_the_ticked_ledgers_and_loses_the_filtered_sections) {
    pagina todos;
    EXPECT_TRUE(support::matches_golden(QStringLiteral("mail/relatorio_via_email.txt"),
                                        anexo(todos, tipo_ret::todos)));

    const QString primeira = QStringLiteral("RELATÓRIO ENVIADO POR E-MAIL\r\n\r\n");
    const QString ultimas =
        QStringLiteral("\r\nGerado dia: segunda-feira, 23 de novembro de 2026\r\n\r\nQuintara\r\n"
                       "https://www.quintara.com.br\r\n");
    pagina nenhum;
    nenhum.incluir = {false, false, false};
    EXPECT_EQ(anexo(nenhum, tipo_ret::todos), primeira + ultimas);
    // the status statements are refused by the engine, alone or joined to the dates
    EXPECT_EQ(anexo(todos, tipo_ret::pendentes), primeira + ultimas);
    pagina datas = todos;
    datas.por_data = true;
    datas.inicio = QDate(2026, 11, 1);
    datas.fim = QDate(2026, 11, 3);
    EXPECT_EQ(anexo(datas, tipo_ret::concluidos), primeira + ultimas);

    const QString so_datas = anexo(datas, tipo_ret::todos);
    EXPECT_TRUE(so_datas.contains(QStringLiteral("Papel A4")));
    EXPECT_FALSE(so_datas.contains(QStringLiteral("Conta de luz")));
    EXPECT_FALSE(so_datas.contains(QStringLiteral("CONTAS A RECEBER"))); // none in those days
    EXPECT_TRUE(
        so_datas.contains(QStringLiteral("Total depósito: R$ 1.000,00 - Total retirada: R$ 0,00 - Total "
                                         "transferência: R$ 200,00\r\nValor total: R$ 1.200,00")));
}

TEST_F(via_email, the_report_body_states_the_filters_and_takes_its_date_line_from_the_statistics_box) {
    pagina p;
    p.nome = QStringLiteral("Ana");
    p.inicio = QDate(2026, 11, 1);
    p.incluir = {true, false, true};
    p.por_data = true; // the report page's own box does not bring the line
    const QString sem = mail::corpo_relatorio(p, tipo_ret::pendentes, false);
    EXPECT_TRUE(support::matches_golden(QStringLiteral("mail/corpo_relatorio.html"), sem));
    const QString com = mail::corpo_relatorio(p, tipo_ret::todos, true);
    EXPECT_TRUE(
        com.contains(QStringLiteral("filtrados:<br><br><b>Filtrados entre as datas:</b> 01/11/2026 e <br>"
                                    "<b>Filtrados por estatus:</b> Todas as contas (concluídas e "
                                    "pendentes)<br>")));
    EXPECT_TRUE(mail::corpo_relatorio(p, tipo_ret::concluidos, false)
                    .contains(QStringLiteral("Somente contas Concluídas<br>")));
}

TEST_F(via_email, the_statistics_body_counts_statuses_whatever_their_case) {
    pagina p;
    p.nome = QStringLiteral("Ana");
    EXPECT_TRUE(
        support::matches_golden(QStringLiteral("mail/corpo_estatisticas.html"), mail::corpo_estatisticas(p)));
    p.por_data = true;
    p.inicio = QDate(2026, 11, 1);
    p.fim = QDate(2026, 11, 30);
    p.incluir = {false, true, false};
    const QString filtrado = mail::corpo_estatisticas(p);
    EXPECT_TRUE(
        filtrado.contains(QStringLiteral("Filtrados entre as datas: 01/11/2026 e 30/11/2026<br><br>> Dados "
                                         "incluídos:<br><br>Contas a receber<br><br><br><hr>")));
    EXPECT_FALSE(filtrado.contains(QStringLiteral("> Contas a pagar")));
}

TEST_F(via_email, a_report_goes_to_the_typed_address_with_the_stored_login_and_its_file) {
    store::save_setting(store::secao_config, QStringLiteral("email-login"), QStringLiteral("ana"));
    store::save_setting(store::secao_config, QStringLiteral("email-senha"), QStringLiteral("segredo"));
    frmviaemail* w = abrir("mnuretviaemail");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->paginas->currentWidget(), w->picret);
    w->cmdenviarret->click();
    QCoreApplication::processEvents();

    // sender, recipient, subject and file as the server gets them: sending_test.cpp
    ASSERT_EQ(mailer_.sent().size(), 1u);
    const platform::mail_message m = mailer_.sent()[0];
    EXPECT_EQ(m.server, QStringLiteral("smtp.example.com"));
    EXPECT_EQ(m.login, QStringLiteral("ana"));
    EXPECT_EQ(m.password, QStringLiteral("segredo"));
    EXPECT_EQ(m.attachment, path(QStringLiteral("relatório via-email.txt")));
    EXPECT_TRUE(QFile::exists(m.attachment)); // it stays until the next send
    EXPECT_EQ(store::setting(store::secao_config, QStringLiteral("email-nome"), QString()),
              QStringLiteral("Ana"));

    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Via e-mail"));
    EXPECT_EQ(prompts_.boxes()[0].text,
              QStringLiteral("O e-mail foi enviado com sucesso para o endereço especificado!"));
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_EQ(frmviaemail::aberta(), nullptr);

    // the next send removes the file first, even when a blank field stops it
    w = abrir("mnuestviaemail");
    w->txtnome2->clear();
    w->cmdenviar2->click();
    EXPECT_FALSE(QFile::exists(m.attachment));
    EXPECT_EQ(prompts_.boxes().back().text, QStringLiteral("Os campos Seu Nome  devem ser preenchidos."));
    EXPECT_EQ(prompts_.boxes().back().style, platform::exclamation);
    EXPECT_EQ(mailer_.sent().size(), 1u);
}

TEST_F(via_email, the_page_choices_are_written_as_clicked_and_read_at_the_next_opening) {
    frmviaemail* w = abrir("mnuretviaemail");
    ASSERT_TRUE(w);
    EXPECT_FALSE(w->cboinicioret->isEnabled());
    for (QCheckBox* c : {w->chkreceber, w->chkpordata, w->chkbancarioest, w->chkpordatasest})
        c->click();
    w->optconcluidosret->click();
    EXPECT_TRUE(w->cboinicioret->isEnabled());
    EXPECT_TRUE(w->cbodata2est->isEnabled());
    const auto s = [](const char* k) {
        return store::setting(store::secao_config, QString::fromLatin1(k), QStringLiteral("?"));
    };
    EXPECT_EQ(s("email-receber"), QStringLiteral("0"));
    EXPECT_EQ(s("email-entredatas"), QStringLiteral("1"));
    EXPECT_EQ(s("email-bancario2"), QStringLiteral("0"));
    EXPECT_EQ(s("email-entredatas2"), QStringLiteral("1"));
    EXPECT_EQ(s("email-tiporet"), QStringLiteral("Concluidos"));
    EXPECT_EQ(s("email-nome"), QStringLiteral("?")); // only a send writes the sender
    w->cmdaviso->click();
    EXPECT_EQ(prompts_.boxes().back().title, QStringLiteral("Aviso"));

    w->cmdlogin1->click();
    auto* login = qobject_cast<frmconfloginemail*>(QApplication::activeModalWidget());
    if (!login) login = w->findChild<frmconfloginemail*>();
    ASSERT_TRUE(login);
    login->txtnome->setText(QStringLiteral("ana"));
    login->txtsenha->setText(QStringLiteral("s3nha"));
    login->cmdsalvar->click();
    EXPECT_EQ(s("email-login"), QStringLiteral("ana"));
    EXPECT_EQ(s("email-senha"), QStringLiteral("s3nha"));

    delete w;
    w = abrir("mnuretviaemail");
    EXPECT_FALSE(w->chkreceber->isChecked());
    EXPECT_TRUE(w->chkpagar->isChecked());
    EXPECT_TRUE(w->optconcluidosret->isChecked());
    EXPECT_TRUE(w->chkpordatasest->isChecked());
    EXPECT_TRUE(w->cbofinalret->isEnabled());
}

} // namespace
