// The payable list on a file of 100,000 expenses: the statement, the open, the walk into display
// rows, the whole load, and beside them a bare SQLCipher scan of the same statement (the floor).
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "platform/sql/recordset.h"
#include "shell/filter_state.h"
#include "shell/ledger_load.h"
#include "shell/ledger_statement.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>

namespace {

constexpr int rows_in_file = 100000;
const QDate hoje(2026, 11, 23);

QString consulta() {
    return shell::entry_statement(shell::ledger::pagar, shell::default_entry_filters(shell::ledger::pagar),
                                  hoje, {})
        .consulta;
}

void BM_statement(benchmark::State& state) {
    const shell::entry_filters f{QStringLiteral("Pendentes"),  QStringLiteral("Mês anterior"),
                                 QStringLiteral("Vencimento"), QStringLiteral("Itaú"),
                                 QStringLiteral("Aluguel"),    QStringLiteral("Papelaria Central Ltda")};
    for (auto _ : state)
        benchmark::DoNotOptimize(shell::entry_statement(shell::ledger::pagar, f, hoje, {}));
}
BENCHMARK(BM_statement);

// The floor: the same statement stepped through SQLCipher, every column's bytes touched. The
// argument is the page cache in KiB (0: the connection's own setting), to show what the cache
// does to a scan in date order over a file larger than it.
void BM_bare_scan(benchmark::State& state) {
    store::conectarbanco();
    if (state.range(0) > 0)
        store::conexao->execute(QStringLiteral("PRAGMA cache_size = -%1").arg(state.range(0)));
    const QString text = consulta();
    std::int64_t rows = 0;
    for (auto _ : state) {
        const sql::statement_ptr owned = store::conexao->prepare(text);
        sqlite3_stmt* st = owned.get();
        const int n = sqlite3_column_count(st);
        std::size_t bytes = 0;
        rows = 0;
        while (sqlite3_step(st) == SQLITE_ROW) {
            for (int c = 0; c < n; ++c) {
                benchmark::DoNotOptimize(sqlite3_column_text(st, c));
                bytes += std::size_t(sqlite3_column_bytes(st, c));
            }
            ++rows;
        }
        benchmark::DoNotOptimize(bytes);
    }
    state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(BM_bare_scan)->ArgName("cache_kib")->Arg(0)->Arg(32768)->Unit(benchmark::kMillisecond);
// conectarbanco and the record set's open (the platform's share of a load).
void BM_open(benchmark::State& state) {
    const QString text = consulta();
    for (auto _ : state) {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(text, store::conexao, sql::keyset, sql::read_only);
        benchmark::DoNotOptimize(rs.record_count());
    }
}
BENCHMARK(BM_open)->Unit(benchmark::kMillisecond);

// The walk alone: record set rows into display rows, totals and label.
void BM_load_rows(benchmark::State& state) {
    store::conectarbanco();
    sql::recordset rs;
    rs.open(consulta(), store::conexao, sql::keyset, sql::read_only);
    for (auto _ : state) {
        rs.move_first();
        shell::ledger_view v = shell::load_rows(shell::ledger::pagar, rs);
        benchmark::DoNotOptimize(v.rows.size());
    }
    state.SetItemsProcessed(state.iterations() * rs.record_count());
}
BENCHMARK(BM_load_rows)->Unit(benchmark::kMillisecond);

// carregarpagar without the widgets: statement, connection, open, walk.
void BM_carregarpagar(benchmark::State& state) {
    std::size_t n = 0;
    for (auto _ : state) {
        const auto s = shell::entry_statement(shell::ledger::pagar,
                                              shell::default_entry_filters(shell::ledger::pagar), hoje, {});
        shell::ledger_view v = shell::load_ledger(shell::ledger::pagar, s.consulta);
        n = v.rows.size();
        benchmark::DoNotOptimize(v.rows.size());
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t(n));
    state.counters["linhas"] = double(n);
}
BENCHMARK(BM_carregarpagar)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    if (!dir.isValid()) return 1;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    platform::fixed_clock clock(QDateTime(hoje, QTime(10, 0)));
    platform::set_clock(&clock);
    try {
        store::create_data_file(store::program_path(store::arquivo_dados));
        generator::options o;
        o.despesas = rows_in_file;
        o.receitas = 0;
        o.movimentos = 0;
        o.hoje = hoje;
        generator::fill_file(store::program_path(store::arquivo_dados), o);
    } catch (const sql::error& e) {
        std::fprintf(stderr, "bench_ledger: %s\n", qPrintable(e.description()));
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    store::conexao.reset();
    platform::set_clock(nullptr);
    return 0;
}
