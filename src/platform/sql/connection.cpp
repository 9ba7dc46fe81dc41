#include "platform/sql/connection.h"

#include "platform/sql/jet_dialect.h"
#include "platform/sql/unicode_like.h"

#include <QFile>
#include <QHash>
#include <QMutex>

#include <openssl/evp.h>
#include <sqlite3.h>

namespace sql {

namespace {

// The format of the files this program writes (SQLCipher 3): PBKDF2-HMAC-SHA1, 64000 rounds,
// 256-bit key, the salt in the first 16 bytes of the file.
constexpr int kdf_iterations = 64000;
constexpr int key_bytes = 32;
constexpr int salt_bytes = 16;

QMutex key_mutex;
QHash<QByteArray, QByteArray> derived_keys; // passphrase + salt -> raw key
int derivations = 0;

QByteArray raw_key_for(const QByteArray& passphrase, const QByteArray& salt) {
    QMutexLocker lock(&key_mutex);
    const QByteArray id = passphrase + '\0' + salt;
    auto it = derived_keys.constFind(id);
    if (it != derived_keys.constEnd()) return *it;
    QByteArray key(key_bytes, '\0');
    PKCS5_PBKDF2_HMAC_SHA1(passphrase.constData(), int(passphrase.size()),
                           reinterpret_cast<const unsigned char*>(salt.constData()), int(salt.size()),
                           kdf_iterations, key_bytes, reinterpret_cast<unsigned char*>(key.data()));
    ++derivations;
    derived_keys.insert(id, key);
    return key;
}

void like_function(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
    // LIKE(pattern, text) is how SQLite calls its like function
    if (argc < 2 || sqlite3_value_type(argv[0]) == SQLITE_NULL ||
        sqlite3_value_type(argv[1]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const auto* p = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    const int pn = sqlite3_value_bytes(argv[0]);
    const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(argv[1]));
    const int tn = sqlite3_value_bytes(argv[1]);
    sqlite3_result_int(
        ctx, unicode_like(std::string_view(t, std::size_t(tn)), std::string_view(p, std::size_t(pn))));
}

QString describe(sqlite3* db) {
    if (!db) return QStringLiteral("Não foi possível abrir o arquivo de dados.");
    return QString::fromUtf8(sqlite3_errmsg(db));
}

sqlite3* open_handle(const QString& path, int flags) {
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags, nullptr);
    if (rc != SQLITE_OK) {
        const QString why = db ? describe(db) : QStringLiteral("out of memory");
        sqlite3_close(db);
        throw error(QStringLiteral("Não foi possível encontrar o arquivo '%1'. (%2)").arg(path, why));
    }
    return db;
}

void setup(sqlite3* db) {
    sqlite3_busy_timeout(db, 3000);
    // lists walk a date index across the table: a larger cache spares decrypting the same pages again
    sqlite3_exec(db, "PRAGMA cache_size = -32768", nullptr, nullptr, nullptr);
    sqlite3_create_function(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like_function,
                            nullptr, nullptr);
}

void check_readable(sqlite3* db, const QString& path) {
    char* msg = nullptr;
    const int rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, &msg);
    if (rc != SQLITE_OK) {
        const QString why = msg ? QString::fromUtf8(msg) : describe(db);
        sqlite3_free(msg);
        sqlite3_close(db);
        throw error(
            QStringLiteral("Não é possível abrir '%1': o arquivo não é um arquivo de dados válido ou a "
                           "senha está incorreta. (%2)")
                .arg(path, why));
    }
}

} // namespace

int key_derivations() {
    QMutexLocker lock(&key_mutex);
    return derivations;
}

std::shared_ptr<connection> connection::open(const QString& path, const QByteArray& passphrase) {
    QFile f(path);
    if (!f.exists()) throw error(QStringLiteral("Não foi possível encontrar o arquivo '%1'.").arg(path));
    if (!f.open(QIODevice::ReadOnly))
        throw error(QStringLiteral("Não foi possível abrir o arquivo '%1': %2").arg(path, f.errorString()));
    const QByteArray salt = f.read(salt_bytes);
    f.close();
    if (salt.size() != salt_bytes)
        throw error(QStringLiteral("Não é possível abrir '%1': o arquivo não é um arquivo de dados válido.")
                        .arg(path));
    const QByteArray key = raw_key_for(passphrase, salt);
    const QByteArray raw = "x'" + key.toHex() + salt.toHex() + "'";
    // a connection is used by one thread at a time: no lock around every call
    sqlite3* db = open_handle(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    sqlite3_key(db, raw.constData(), int(raw.size()));
    check_readable(db, path);
    setup(db);
    return std::shared_ptr<connection>(new connection(db));
}

std::shared_ptr<connection> connection::create(const QString& path, const QByteArray& passphrase) {
    if (QFile::exists(path)) throw error(QStringLiteral("O arquivo '%1' já existe.").arg(path));
    sqlite3* db = open_handle(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    sqlite3_key(db, passphrase.constData(), int(passphrase.size()));
    // writing the first page fixes the salt
    char* msg = nullptr;
    if (sqlite3_exec(db, "CREATE TABLE quintara_init(x); DROP TABLE quintara_init;", nullptr, nullptr,
                     &msg) != SQLITE_OK) {
        const QString why = QString::fromUtf8(msg ? msg : "");
        sqlite3_free(msg);
        sqlite3_close(db);
        throw error(why);
    }
    setup(db);
    return std::shared_ptr<connection>(new connection(db));
}

void connection::release_memory() {
    sqlite3_db_release_memory(db_);
}

connection::~connection() {
    sqlite3_close_v2(db_);
}

QString connection::last_error() const {
    return describe(db_);
}

void statement_finalizer::operator()(sqlite3_stmt* st) const {
    sqlite3_finalize(st);
}

namespace {

// Only the first statement of the text is ever compiled. False when SQLite refused it; st stays
// empty for a text that holds no statement.
bool compile(sqlite3* db, const QString& text, statement_ptr& st) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_stmt* raw = nullptr;
    const int rc = sqlite3_prepare_v2(db, utf8.constData(), int(utf8.size()), &raw, nullptr);
    st.reset(raw);
    return rc == SQLITE_OK;
}

} // namespace

statement_ptr connection::prepare_native(const QString& text) {
    statement_ptr st;
    if (!compile(db_, text, st)) st.reset();
    return st;
}

statement_ptr connection::prepare(const QString& statement) {
    if (has_poisoned_value(statement))
        throw error(QStringLiteral("Erro de sintaxe (operador faltando) na expressão de consulta '%1'.")
                        .arg(without_marks(statement)));
    statement_ptr st;
    if (!compile(db_, jet_dialect(statement), st)) throw error(describe(db_));
    if (!st) throw error(QStringLiteral("Instrução SQL inválida: '%1'.").arg(statement));
    return st;
}

void connection::execute(const QString& statement) {
    const statement_ptr st = prepare(statement);
    int rc;
    while ((rc = sqlite3_step(st.get())) == SQLITE_ROW) {
    }
    if (rc != SQLITE_DONE) throw error(describe(db_));
}

void connection::execute_script(const QByteArray& script) {
    char* msg = nullptr;
    if (sqlite3_exec(db_, script.constData(), nullptr, nullptr, &msg) != SQLITE_OK) {
        const QString why = QString::fromUtf8(msg ? msg : "");
        sqlite3_free(msg);
        throw error(why);
    }
}

} // namespace sql
