#include "platform/smtp.h"

#include "platform/clock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrl>

#include <curl/curl.h>

#include <future>
#include <memory>
#include <thread>

namespace platform {

namespace {

mailer* current = nullptr;

void global_init() {
    // not thread-safe in every libcurl: done once, before the first worker thread
    static const bool done = (curl_global_init(CURL_GLOBAL_DEFAULT), true);
    (void)done;
}

bool ascii_text(const QString& s) {
    for (QChar c : s)
        if (c.unicode() < 0x20 || c.unicode() > 0x7E) return false;
    return true;
}

// A header value that may hold accents, as an encoded word when it does.
QByteArray header_text(const QString& s) {
    if (ascii_text(s)) return s.toLatin1();
    return "=?UTF-8?B?" + s.toUtf8().toBase64() + "?=";
}

// A line break inside a header would let a typed text add headers of its own.
bool has_line_break(const QString& s) {
    return s.contains(QLatin1Char('\r')) || s.contains(QLatin1Char('\n'));
}

QString address_domain(const QString& address) {
    QString a = address;
    a.remove(QLatin1Char('<')).remove(QLatin1Char('>'));
    const qsizetype at = a.lastIndexOf(QLatin1Char('@'));
    const QString d = at < 0 ? QString() : a.mid(at + 1).trimmed();
    return d.isEmpty() || !ascii_text(d) ? QStringLiteral("quintara.localhost") : d;
}

QByteArray rfc5322_date(const QDateTime& t) {
    const int off = t.offsetFromUtc() / 60;
    const QString zone = QStringLiteral("%1%2%3")
                             .arg(off < 0 ? QLatin1Char('-') : QLatin1Char('+'))
                             .arg(qAbs(off) / 60, 2, 10, QLatin1Char('0'))
                             .arg(qAbs(off) % 60, 2, 10, QLatin1Char('0'));
    return (QLocale::c().toString(t, QStringLiteral("ddd, dd MMM yyyy HH:mm:ss ")) + zone).toLatin1();
}

struct easy_deleter {
    void operator()(CURL* c) const { curl_easy_cleanup(c); }
};
struct mime_deleter {
    void operator()(curl_mime* m) const { curl_mime_free(m); }
};
struct slist_deleter {
    void operator()(curl_slist* l) const { curl_slist_free_all(l); }
};
using slist_ptr = std::unique_ptr<curl_slist, slist_deleter>;

void append(slist_ptr& list, const QByteArray& line) {
    curl_slist* l = curl_slist_append(list.get(), line.constData());
    if (!l) throw std::bad_alloc();
    (void)list.release();
    list.reset(l);
}

mail_result failure(const QString& why) {
    return {false, why};
}

} // namespace

mailer& correio() {
    static curl_mailer standard;
    return current ? *current : standard;
}

void set_mailer(mailer* m) {
    current = m;
}

mail_result send_while_responsive(mailer& m, const mail_message& msg) {
    global_init();
    std::packaged_task<mail_result()> task([&m, msg] {
        try {
            return m.send(msg);
        } catch (const std::exception& e) {
            return failure(QString::fromUtf8(e.what()));
        } catch (...) {
            return failure(QStringLiteral("falha desconhecida"));
        }
    });
    std::future<mail_result> outcome = task.get_future();
    std::thread worker(std::move(task));
    if (QCoreApplication::instance()) {
        QEventLoop loop;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
            if (outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready) loop.quit();
        });
        poll.start(15);
        // the loop may also end early when the program is quitting: the worker is still waited
        // for below, and its time-outs bound that wait
        if (outcome.wait_for(std::chrono::seconds(0)) != std::future_status::ready) loop.exec();
    }
    worker.join();
    return outcome.get();
}

curl_mailer::curl_mailer() : curl_mailer(options{}) {}

curl_mailer::curl_mailer(options o) : options_(std::move(o)) {
    global_init();
}

QString curl_mailer::server_url(const QString& server) {
    const QString s = server.trimmed();
    if (s.contains(QStringLiteral("://"))) return s;
    const qsizetype colon = s.lastIndexOf(QLatin1Char(':'));
    bool numeric = false;
    const int port = colon < 0 ? 0 : s.mid(colon + 1).toInt(&numeric);
    if (!numeric) return QStringLiteral("smtp://") + s + QStringLiteral(":587");
    if (port == 465) return QStringLiteral("smtps://") + s;
    return QStringLiteral("smtp://") + s;
}

std::vector<QByteArray> curl_mailer::header_lines(const mail_message& m) {
    const QDateTime when = now();
    const QByteArray id = QByteArray::number(when.toMSecsSinceEpoch()) + '.' +
                          QByteArray::number(QRandomGenerator::global()->generate64(), 36);
    return {"Date: " + rfc5322_date(when), "From: " + m.from.toUtf8(), "To: " + m.to.toUtf8(),
            "Subject: " + header_text(m.subject),
            "Message-ID: <" + id + '@' + address_domain(m.from).toLatin1() + '>'};
}

mail_result curl_mailer::send(const mail_message& m) {
    for (const QString* s : {&m.server, &m.from, &m.to, &m.subject, &m.login, &m.password})
        if (has_line_break(*s)) return failure(QStringLiteral("quebra de linha num campo do cabeçalho"));
    if (!m.attachment.isEmpty() && !QFileInfo(m.attachment).isReadable())
        return failure(QStringLiteral("anexo não encontrado: ") + m.attachment);

    std::unique_ptr<CURL, easy_deleter> curl(curl_easy_init());
    if (!curl) return failure(QStringLiteral("libcurl não iniciou"));
    CURL* c = curl.get();
    char errbuf[CURL_ERROR_SIZE] = {};

    const QByteArray url = server_url(m.server).toUtf8();
    const QByteArray from = m.from.toUtf8();
    const QByteArray login = m.login.toUtf8();
    const QByteArray password = m.password.toUtf8();
    const QByteArray ca = QFile::encodeName(options_.ca_file);
    slist_ptr recipients;
    append(recipients, m.to.toUtf8());
    slist_ptr headers;
    for (const QByteArray& h : header_lines(m))
        append(headers, h);

    std::unique_ptr<curl_mime, mime_deleter> mime(curl_mime_init(c));
    curl_mimepart* body = curl_mime_addpart(mime.get());
    const QByteArray html = m.html_body.toUtf8();
    curl_mime_data(body, html.constData(), size_t(html.size()));
    curl_mime_type(body, "text/html; charset=UTF-8");
    curl_mime_encoder(body, "quoted-printable");

    slist_ptr attachment_headers;
    if (!m.attachment.isEmpty()) {
        const QString name = QFileInfo(m.attachment).fileName();
        curl_mimepart* part = curl_mime_addpart(mime.get());
        curl_mime_filedata(part, QFile::encodeName(m.attachment).constData());
        curl_mime_filename(part, nullptr); // the disposition below names it, accents and all
        append(attachment_headers,
               "Content-Type: text/plain; charset=UTF-8; name=\"" + header_text(name) + '"');
        append(attachment_headers,
               "Content-Disposition: attachment; filename*=UTF-8''" + QUrl::toPercentEncoding(name));
        curl_mime_headers(part, attachment_headers.get(), 0);
        curl_mime_encoder(part, "base64");
    }

    curl_easy_setopt(c, CURLOPT_URL, url.constData());
    curl_easy_setopt(c, CURLOPT_ERRORBUFFER, errbuf);
    curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(c, CURLOPT_MAIL_FROM, from.constData());
    curl_easy_setopt(c, CURLOPT_MAIL_RCPT, recipients.get());
    curl_easy_setopt(c, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(c, CURLOPT_MIMEPOST, mime.get());
    // the stored login goes along always: a server that asks for one gets it, right or wrong
    curl_easy_setopt(c, CURLOPT_USERNAME, login.constData());
    curl_easy_setopt(c, CURLOPT_PASSWORD, password.constData());
    curl_easy_setopt(c, CURLOPT_USE_SSL, long(CURLUSESSL_TRY));
    if (!ca.isEmpty()) curl_easy_setopt(c, CURLOPT_CAINFO, ca.constData());
    curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, long(options_.connect_timeout_s));
    curl_easy_setopt(c, CURLOPT_SERVER_RESPONSE_TIMEOUT, long(options_.response_timeout_s));
    curl_easy_setopt(c, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(c, CURLOPT_LOW_SPEED_TIME, long(options_.response_timeout_s));

    const CURLcode r = curl_easy_perform(c);
    if (r == CURLE_OK) return {true, {}};
    return failure(QString::fromUtf8(errbuf[0] ? errbuf : curl_easy_strerror(r)));
}

mail_result recording_mailer::send(const mail_message& m) {
    std::lock_guard<std::mutex> lock(mutex_);
    sent_.push_back(m);
    if (answers_.empty()) return {true, {}};
    mail_result r = answers_.front();
    answers_.pop_front();
    return r;
}

void recording_mailer::answer(mail_result r) {
    std::lock_guard<std::mutex> lock(mutex_);
    answers_.push_back(std::move(r));
}

std::vector<mail_message> recording_mailer::sent() const {
    std::lock_guard<std::mutex> lock(mutex_);
    return sent_;
}

} // namespace platform
