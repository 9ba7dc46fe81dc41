// The e-mail window against a real SMTP server on this machine (tests/mail/smtp_server.py).
#include "mail_fixture.h"
#include "store/config.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>

namespace {

QString python() {
    // Debian's own interpreter carries python3-aiosmtpd
    return QFileInfo::exists(QStringLiteral("/usr/bin/python3")) ? QStringLiteral("/usr/bin/python3")
                                                                 : QStringLiteral("python3");
}

class sending : public mail_test::fixture {
protected:
    void TearDown() override {
        if (server_.state() != QProcess::NotRunning) {
            server_.kill();
            server_.waitForFinished();
        }
        mail_test::fixture::TearDown();
    }
    // Starts the server in a mode and points the program's mailer at it; "" when it did not start.
    QString start(const char* mode) {
        QStringList args = {QStringLiteral(QUINTARA_TEST_DATA_DIR "/../mail/smtp_server.py"),
                            QString::fromLatin1(mode), received_.path()};
        platform::curl_mailer::options o;
        o.connect_timeout_s = 3;
        o.response_timeout_s = 3;
        if (QByteArray(mode) == "starttls") {
            const QString cert = received_.filePath(QStringLiteral("cert.pem")),
                          key = received_.filePath(QStringLiteral("key.pem"));
            const int made = QProcess::execute(QStringLiteral("openssl"),
                                               {"req", "-x509", "-newkey", "ec", "-pkeyopt",
                                                "ec_paramgen_curve:prime256v1", "-nodes", "-keyout", key,
                                                "-out", cert, "-days", "1", "-subj", "/CN=127.0.0.1",
                                                "-addext", "subjectAltName=IP:127.0.0.1"});
            if (made != 0) return {};
            args << cert << key;
            o.ca_file = cert;
        }
        curl_ = std::make_unique<platform::curl_mailer>(o);
        platform::set_mailer(curl_.get());
        server_.setProcessChannelMode(QProcess::SeparateChannels);
        server_.start(python(), args);
        if (!server_.waitForStarted()) return {};
        while (!server_.canReadLine() && server_.waitForReadyRead(10000)) {
        }
        const QByteArray line = server_.readLine().trimmed();
        return line.startsWith("PORT ") ? QStringLiteral("127.0.0.1:") + QString::fromLatin1(line.mid(5))
                                        : QString();
    }
    // The mails the server kept, in order.
    std::vector<QJsonObject> received() {
        std::vector<QJsonObject> out;
        for (int n = 1; QFile::exists(received_.filePath(QString::number(n) + QStringLiteral(".json"))); ++n)
            out.push_back(
                QJsonDocument::fromJson(mail_test::fixture::ler_arquivo(
                                            received_.filePath(QString::number(n) + QStringLiteral(".json")))
                                            .toUtf8())
                    .object());
        return out;
    }
    // One send through the window; the boxes it ended with.
    std::vector<platform::scripted_prompts::record> send(const char* item, const QString& servidor) {
        frmviaemail* w = abrir(item, servidor);
        if (!w) return {};
        (QByteArray(item) == "mnuretviaemail" ? w->cmdenviarret : w->cmdenviar2)->click();
        return prompts_.boxes();
    }
    static void expect_failure(const std::vector<platform::scripted_prompts::record>& boxes) {
        ASSERT_EQ(boxes.size(), 1u);
        EXPECT_EQ(boxes[0].title, QStringLiteral("Erro"));
        EXPECT_EQ(boxes[0].text,
                  QStringLiteral(
                      "Não foi possível enviaro e-mail verifique se os dados foram digitados corretamente!"));
        EXPECT_EQ(boxes[0].style, platform::exclamation);
        EXPECT_EQ(frmviaemail::aberta(), nullptr);
    }
    void login(const char* user, const char* pass) {
        store::save_setting(store::secao_config, QStringLiteral("email-login"), QString::fromLatin1(user));
        store::save_setting(store::secao_config, QStringLiteral("email-senha"), QString::fromLatin1(pass));
    }

    QProcess server_;
    QTemporaryDir received_;
    std::unique_ptr<platform::curl_mailer> curl_;
};

TEST_F(sending, the_server_receives_the_report_with_its_headers_body_and_attachment) {
    const QString server = start("plain");
    ASSERT_FALSE(server.isEmpty());
    const auto boxes = send("mnuretviaemail", server);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, QStringLiteral("Via e-mail"));
    const auto mails = received();
    ASSERT_EQ(mails.size(), 1u);
    const QJsonObject m = mails[0];
    EXPECT_EQ(m[QStringLiteral("mail_from")].toString(), QStringLiteral("ana@quintara.test"));
    EXPECT_EQ(m[QStringLiteral("rcpt_tos")].toArray(), QJsonArray{QStringLiteral("ana@quintara.test")});
    const QJsonObject h = m[QStringLiteral("headers")].toObject();
    EXPECT_EQ(h[QStringLiteral("From")].toString(), QStringLiteral("<ana@quintara.test>"));
    EXPECT_EQ(h[QStringLiteral("To")].toString(), QStringLiteral("<ana@quintara.test>"));
    EXPECT_EQ(h[QStringLiteral("Subject")].toString(), QStringLiteral("Relatorio do Quintara"));
    // the program's clock, with the zone's offset (-0300 in São Paulo)
    const int off = QDateTime(QDate(2026, 11, 23), QTime(10, 0)).offsetFromUtc() / 60;
    EXPECT_EQ(h[QStringLiteral("Date")].toString(), QStringLiteral("Mon, 23 Nov 2026 10:00:00 %1%2%3")
                                                        .arg(off < 0 ? '-' : '+')
                                                        .arg(qAbs(off) / 60, 2, 10, QLatin1Char('0'))
                                                        .arg(qAbs(off) % 60, 2, 10, QLatin1Char('0')));
    EXPECT_TRUE(h[QStringLiteral("Message-ID")].toString().endsWith(QStringLiteral("@quintara.test>")));

    const QJsonArray parts = m[QStringLiteral("parts")].toArray();
    ASSERT_EQ(parts.size(), 2);
    const QJsonObject body = parts[0].toObject(), file = parts[1].toObject();
    EXPECT_EQ(body[QStringLiteral("type")].toString(), QStringLiteral("text/html"));
    mail::pagina p;
    p.nome = QStringLiteral("Ana");
    EXPECT_EQ(body[QStringLiteral("text")].toString(),
              mail::corpo_relatorio(p, mail::tipo_ret::todos, false));
    EXPECT_EQ(file[QStringLiteral("disposition")].toString(), QStringLiteral("attachment"));
    EXPECT_EQ(file[QStringLiteral("filename")].toString(), QStringLiteral("relatório via-email.txt"));
    EXPECT_EQ(file[QStringLiteral("text")].toString(),
              ler_arquivo(QStringLiteral(QUINTARA_TEST_DATA_DIR "/mail/relatorio_via_email.txt")));
}

TEST_F(sending, the_stored_login_opens_the_server_and_a_wrong_or_empty_one_fails) {
    const QString server = start("auth");
    ASSERT_FALSE(server.isEmpty());
    expect_failure(send("mnuestviaemail", server)); // no login stored
    prompts_.clear();
    login("quintara", "errada");
    expect_failure(send("mnuestviaemail", server));
    prompts_.clear();
    login("quintara", "s3nha");
    ASSERT_EQ(send("mnuestviaemail", server).size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Via e-mail"));
    const auto mails = received();
    ASSERT_EQ(mails.size(), 1u);
    EXPECT_EQ(mails[0][QStringLiteral("auth")].toString(), QStringLiteral("quintara"));
    EXPECT_EQ(mails[0][QStringLiteral("headers")].toObject()[QStringLiteral("Subject")].toString(),
              QStringLiteral("Estatisticas do Quintara"));
    EXPECT_EQ(mails[0][QStringLiteral("parts")].toArray().size(), 1);
}

TEST_F(sending, starttls_is_taken_when_offered_and_the_login_goes_inside_it) {
    const QString server = start("starttls");
    ASSERT_FALSE(server.isEmpty());
    login("quintara", "s3nha");
    ASSERT_EQ(send("mnuretviaemail", server).size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Via e-mail"));
    const auto mails = received();
    ASSERT_EQ(mails.size(), 1u);
    EXPECT_TRUE(mails[0][QStringLiteral("tls")].toBool());
    EXPECT_EQ(mails[0][QStringLiteral("auth")].toString(), QStringLiteral("quintara"));
}

TEST_F(sending, a_server_that_is_gone_silent_or_refuses_the_address_ends_in_the_failure_box) {
    const QString nobody = start("plain");
    ASSERT_FALSE(nobody.isEmpty());
    server_.kill();
    server_.waitForFinished(); // nothing listens there now
    expect_failure(send("mnuretviaemail", nobody));
    prompts_.clear();
    const QString plain = start("plain");
    ASSERT_FALSE(plain.isEmpty());

    // an address without a domain is refused by the server
    frmviaemail* w = abrir("mnuestviaemail", plain);
    w->txtemail2->setText(QStringLiteral("ana.quintara.test"));
    w->cmdenviar2->click();
    expect_failure(prompts_.boxes());
    EXPECT_TRUE(received().empty());
    server_.kill();
    server_.waitForFinished();

    for (const char* mode : {"drop", "silent"}) {
        prompts_.clear();
        const QString s = start(mode);
        ASSERT_FALSE(s.isEmpty()) << mode;
        QElapsedTimer t;
        t.start();
        expect_failure(send("mnuretviaemail", s));
        // the time-outs are three seconds here: nothing waits for ever
        EXPECT_LT(t.elapsed(), 20000) << mode;
        server_.kill();
        server_.waitForFinished();
    }
}

} // namespace
