// Opening the data file: what every action pays before its first row.
#include "platform/settings.h"
#include "platform/sql/recordset.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

struct program_folder {
    QTemporaryDir dir;
    program_folder() {
        store::create_data_file(dir.path() + QStringLiteral("/dados.qntbd"));
        store::set_program_dir(dir.path());
        platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    }
};

program_folder& folder() {
    static program_folder f;
    return f;
}

// conectarbanco, then the first row of a statement: the start of every action.
void conectarbanco_to_first_row(benchmark::State& state) {
    folder();
    for (auto _ : state) {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM login_inicia"), store::conexao, sql::keyset, sql::read_only);
        benchmark::DoNotOptimize(rs.text(QStringLiteral("exigirlogin")));
    }
}
BENCHMARK(conectarbanco_to_first_row)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

// The same open when the pass-phrase is given to the file every time: the key derivation the
// program avoids.
void passphrase_open_to_first_row(benchmark::State& state) {
    const QByteArray path = QFile::encodeName(folder().dir.path() + QStringLiteral("/dados.qntbd"));
    const QByteArray key = store::senha_dados.toUtf8();
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_key(db, key.constData(), int(key.size()));
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db, "SELECT * FROM login_inicia", -1, &st, nullptr);
        benchmark::DoNotOptimize(sqlite3_step(st));
        sqlite3_finalize(st);
        sqlite3_close(db);
    }
}
BENCHMARK(passphrase_open_to_first_row)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
