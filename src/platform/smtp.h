#pragma once
// One mail out through an SMTP server: an HTML body and at most one attached file. The windows
// fill a message and wait for the outcome; the libcurl implementation does the talking, and tests
// put a recording one in its place.

#include <QString>

#include <deque>
#include <mutex>
#include <vector>

namespace platform {

struct mail_message {
    // "host", "host:port" (587 when none; 465 means TLS from the start) or a full smtp:// or
    // smtps:// address.
    QString server;
    QString from; // "<address>"
    QString to;   // "<address>"
    QString subject;
    QString html_body;
    QString login;      // given to the server whenever it asks for authentication
    QString password;   // idem
    QString attachment; // path of the file to attach, or empty
};

struct mail_result {
    bool sent = false;
    QString error; // what went wrong, for the curious; the windows show their own text
};

class mailer {
public:
    virtual ~mailer() = default;
    // Blocks until the outcome is known; never throws. May run on any thread.
    virtual mail_result send(const mail_message& m) = 0;
};

// The mailer in use: libcurl unless a test put another.
mailer& correio();
void set_mailer(mailer* m); // nullptr restores the libcurl one

// Sends on a worker thread while the calling thread keeps handling window events, so the
// windows repaint and the waiting window shows; returns when the outcome is known.
mail_result send_while_responsive(mailer& m, const mail_message& msg);

class curl_mailer : public mailer {
public:
    struct options {
        int connect_timeout_s = 30;
        // A server that stops answering, or a transfer that stalls, ends the attempt after this.
        int response_timeout_s = 60;
        // Certificates to trust instead of the system's (tests with a self-signed server).
        QString ca_file;
    };
    curl_mailer();
    explicit curl_mailer(options o);
    mail_result send(const mail_message& m) override;

    // The address libcurl is given for a server text.
    static QString server_url(const QString& server);
    // The message's own header lines (Date, From, To, Subject, Message-ID).
    static std::vector<QByteArray> header_lines(const mail_message& m);

private:
    options options_;
};

// Keeps what was sent and answers from a queue (empty queue: sent).
class recording_mailer : public mailer {
public:
    mail_result send(const mail_message& m) override;
    void answer(mail_result r);
    std::vector<mail_message> sent() const;

private:
    mutable std::mutex mutex_;
    std::vector<mail_message> sent_;
    std::deque<mail_result> answers_;
};

} // namespace platform
