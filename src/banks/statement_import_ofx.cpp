// OFX statements through libofx. Its interface is C callbacks over one context; this file turns
// what they report into plain statement lines, and nothing else in the program sees libofx.

#include "banks/statement_import.h"

#include <QDateTime>
#include <QFile>
#include <QSet>

#include <libofx/libofx.h>

#include <exception>

namespace banks {

namespace {

struct ofx_reading {
    statement_file file;
    QSet<QString> contas;
    bool fora_da_faixa = false;
    QString id_fora_da_faixa;
    int sem_data = 0;
};

QString text_of(const char* s, int valid) {
    return valid ? QString::fromUtf8(s).simplified() : QString();
}

int on_account(const OfxAccountData data, void* user) {
    auto* r = static_cast<ofx_reading*>(user);
    if (data.account_id_valid) r->contas.insert(QString::fromUtf8(data.account_id).simplified());
    return 0;
}

int on_transaction(const OfxTransactionData data, void* user) {
    auto* r = static_cast<ofx_reading*>(user);
    if (!data.amount_valid || r->fora_da_faixa) return 0;
    statement_line l;
    l.id = text_of(data.fi_id, data.fi_id_valid);
    try {
        l.valor = vb::round_to_cents(vb::currency::from_double(data.amount));
    } catch (const std::exception&) {
        r->fora_da_faixa = true;
        r->id_fora_da_faixa = l.id;
        return 0;
    }
    if (l.valor.raw() == 0) return 0; // no money moved
    if (!data.date_posted_valid) {
        ++r->sem_data;
        return 0;
    }
    l.data = QDateTime::fromSecsSinceEpoch(qint64(data.date_posted)).date();
    const QString nome = text_of(data.name, data.name_valid);
    const QString memo = text_of(data.memo, data.memo_valid);
    l.memo = nome.isEmpty() || nome == memo ? memo
             : memo.isEmpty()               ? nome
                                            : nome + QStringLiteral(" - ") + memo;
    r->file.linhas.push_back(std::move(l));
    return 0;
}

} // namespace

bool looks_like_ofx(const QByteArray& head) {
    const QByteArray h = head.left(4096).toUpper();
    return h.contains("OFXHEADER") || h.contains("<OFX>");
}

statement_file read_ofx(const QString& path) {
    ofx_reading r;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        r.file.erro =
            QStringLiteral("Não foi possível abrir o arquivo \"%1\": %2").arg(path, f.errorString());
        return r.file;
    }
    const QByteArray head = f.read(4096);
    f.close();
    if (!looks_like_ofx(head)) {
        r.file.erro = QStringLiteral("O arquivo escolhido não é um extrato OFX.");
        return r.file;
    }
    // libofx writes its parser's notes to the terminal unless told not to
    ofx_PARSER_msg = ofx_DEBUG_msg = ofx_DEBUG1_msg = ofx_DEBUG2_msg = ofx_DEBUG3_msg = ofx_DEBUG4_msg =
        ofx_DEBUG5_msg = ofx_STATUS_msg = ofx_INFO_msg = ofx_WARNING_msg = ofx_ERROR_msg = 0;
    LibofxContextPtr ctx = libofx_get_new_context();
    ofx_set_account_cb(ctx, on_account, &r);
    ofx_set_transaction_cb(ctx, on_transaction, &r);
    const int rc = libofx_proc_file(ctx, QFile::encodeName(path).constData(), OFX);
    libofx_free_context(ctx);

    auto falha = [&](const QString& msg) {
        r.file.linhas.clear();
        r.file.erro = msg;
        return r.file;
    };
    if (rc != 0)
        return falha(
            QStringLiteral("O extrato OFX está incompleto ou danificado; nada foi importado. Baixe o "
                           "extrato do banco novamente."));
    if (r.contas.isEmpty()) return falha(QStringLiteral("O arquivo não traz nenhum extrato de conta."));
    if (r.contas.size() > 1)
        return falha(
            QStringLiteral("O arquivo traz extratos de %1 contas; importe um arquivo para cada conta.")
                .arg(r.contas.size()));
    if (r.fora_da_faixa)
        return falha(
            QStringLiteral("O valor da transação %1 passa do maior valor que o sistema aceita; nada foi "
                           "importado.")
                .arg(r.id_fora_da_faixa));
    if (r.sem_data > 0)
        return falha(
            QStringLiteral("%1 transação(ões) do extrato não têm data; nada foi importado.").arg(r.sem_data));
    r.file.conta = *r.contas.cbegin();
    if (r.file.linhas.empty()) return falha(QStringLiteral("O extrato não traz nenhum movimento."));
    return r.file;
}

} // namespace banks
