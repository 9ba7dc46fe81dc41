// The value helper and the SQL dialect on any value and any statement. A value reaches the
// statement exactly as typed or makes it fail; the rewriting of `name like 'text'` finds the very
// same rows as the statement as written.
#include "fuzz_check.h"
#include "platform/sql/connection.h"
#include "platform/sql/jet_dialect.h"

#include <QDir>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

int steps = 0;

int stop_long_runs(void*) {
    return ++steps > 2000 ? 1 : 0; // a statement that runs away (joins, recursion) is left
}

// Only reading: nothing the fuzzer writes may change the rows, attach files or set pragmas.
int read_only(void*, int action, const char*, const char*, const char*, const char*) {
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

sql::connection& db() {
    static QTemporaryDir dir;
    static const std::shared_ptr<sql::connection> c = [] {
        auto conn = sql::connection::create(dir.path() + QStringLiteral("/f.qntbd"), "k");
        conn->execute_script(R"(
            CREATE TABLE pagar ("código" INTEGER PRIMARY KEY AUTOINCREMENT, estatus TEXT, origem TEXT,
                                fornecedor TEXT, data TEXT, descricao TEXT, Valor TEXT, vencimento TEXT);
            CREATE INDEX pagar_origem ON pagar (quintara_fold(origem));
            INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, Valor, vencimento) VALUES
              ('Pendente', 'Itaú', 'Ana', '2026/11/16', 'Energia', '120,00', '2026/11/30'),
              ('Concluído', 'ITAÚ', 'ana', '2026/10/01', 'energia', '1.234,56', '16/11/2026'),
              ('Pendente', 'Caixa', 'Zé', '2025/01/31', 'Ação', '0,01', '2025/02/28'),
              ('pendente', '-', NULL, '2026/11/23', '12', '12', NULL),
              ('Pendente', 'Caixa', 'Ελλάδα', '2026/11/23', 'ΣΊΣΥΦΟΣ', 'x', '2026/12/01');
        )");
        sqlite3_progress_handler(conn->handle(), 100, stop_long_runs, nullptr);
        sqlite3_set_authorizer(conn->handle(), read_only, nullptr);
        return conn;
    }();
    return *c;
}

// The rows of a statement in a fixed order, or nothing when it does not run to its end.
std::optional<std::vector<std::string>> rows_of(const QString& statement) {
    const QByteArray text = statement.toUtf8();
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db().handle(), text.constData(), int(text.size()), &st, nullptr) != SQLITE_OK ||
        !st) {
        sqlite3_finalize(st);
        return std::nullopt;
    }
    steps = 0;
    std::vector<std::string> out;
    int rc;
    while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
        if (out.size() == 1000) break; // too many to compare in any order
        std::string row;
        for (int i = 0; i < sqlite3_column_count(st); ++i) {
            row += char('0' + sqlite3_column_type(st, i));
            const auto* p = static_cast<const char*>(sqlite3_column_blob(st, i));
            row.append(p ? p : "", std::size_t(sqlite3_column_bytes(st, i)));
            row += '\x1f';
        }
        out.push_back(std::move(row));
    }
    const bool read_only_statement = sqlite3_stmt_readonly(st);
    sqlite3_finalize(st);
    if (rc != SQLITE_DONE || !read_only_statement) return std::nullopt;
    std::sort(out.begin(), out.end());
    return out;
}

bool has_lone_surrogate(const QString& s) {
    for (qsizetype i = 0; i < s.size(); ++i) {
        if (s[i].isHighSurrogate() && i + 1 < s.size() && s[i + 1].isLowSurrogate())
            ++i;
        else if (s[i].isSurrogate())
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString all = fuzz::text_of(data, size);
    // the first line is a value, the rest a statement with '@' where the value goes
    const qsizetype nl = all.indexOf(QLatin1Char('\n'));
    const QString v = nl < 0 ? all : all.left(nl);
    QString statement =
        nl < 0 ? QStringLiteral("SELECT * FROM pagar where(descricao like '@')") : all.mid(nl + 1);
    const bool has_slot = statement.contains(QLatin1Char('@'));

    const QString joined = sql::value(v);
    const bool apostrophe = v.contains(QLatin1Char('\''));
    fuzz::require(apostrophe || joined == v, "a value was altered on its way in", v, joined);
    fuzz::require(!apostrophe || sql::has_poisoned_value(joined), "an apostrophe was not marked", v);
    fuzz::require(sql::without_marks(joined) == v, "the marks do not come off", v);
    statement.replace(QLatin1Char('@'), joined);

    const bool must_fail = has_slot && (apostrophe || has_lone_surrogate(v));
    fuzz::require(sql::has_poisoned_value(statement) == (must_fail || has_lone_surrogate(statement)),
                  "the statement's mark disagrees with its value", statement);
    (void)sql::jet_dialect(statement);
    try {
        steps = 0;
        (void)db().prepare(statement); // finalized on the way out
        fuzz::require(!must_fail, "a statement with an apostrophe in a value compiled", statement);
    } catch (const sql::error&) {
    }
    if (must_fail) return 0;

    // without wildcards LIKE is equality of the folded texts: the rewriting changes no row
    const QString folded = sql::fold_like_literals(statement);
    if (folded == statement) return 0;
    const auto before = rows_of(statement);
    if (!before) return 0;
    const auto after = rows_of(folded);
    if (!after && steps > 2000) return 0;
    fuzz::require(after.has_value(), "the rewritten statement does not run", statement, folded);
    fuzz::require(*before == *after, "the rewritten statement finds other rows", statement, folded);
    return 0;
}
