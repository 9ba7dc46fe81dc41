// The payable list of the main window on a file of 100,000 expenses: from the statement to the
// painted list, beside a bare SQLCipher scan of the same rows, and the memory the loaded list holds.
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/settings.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

long rss_kib(const char* field) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field))).trimmed().split(' ').first().toLong();
    return 0;
}

const QString statement = QStringLiteral("SELECT * FROM pagar where (estatus like '%%') order by data");

void BM_bare_scan(benchmark::State& state) {
    for (auto _ : state) {
        store::conectarbanco();
        const sql::statement_ptr owned = store::conexao->prepare(statement);
        sqlite3_stmt* st = owned.get();
        const int n = sqlite3_column_count(st);
        long rows = 0;
        while (sqlite3_step(st) == SQLITE_ROW) {
            for (int c = 0; c < n; ++c)
                benchmark::DoNotOptimize(sqlite3_column_text(st, c));
            ++rows;
        }
        state.counters["rows"] = double(rows);
    }
}
BENCHMARK(BM_bare_scan)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_carregarpagar_painted(benchmark::State& state) {
    frmprincipal* p = frmprincipal::instance();
    for (auto _ : state) {
        p->carregarpagar();
        p->lstpagar->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    state.counters["rows"] = p->lstpagar->row_count();
}
BENCHMARK(BM_carregarpagar_painted)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    store::create_data_file(file);
    generator::options o;
    o.despesas = 100000;
    o.receitas = 0;
    o.movimentos = 0;
    generator::fill_file(file, o);
    frmprincipal* p = frmprincipal::instance();
    p->resize(1200, 800);
    p->show();
    QCoreApplication::processEvents();
    const long before = rss_kib("VmRSS:");
    p->carregarpagar();
    p->lstpagar->viewport()->repaint();
    QCoreApplication::processEvents();
    const long after = rss_kib("VmRSS:");
    std::printf(
        "memory: %ld KiB before the load, %ld KiB after (list holds %d rows): +%.1f MiB; peak %ld KiB\n",
        before, after, p->lstpagar->row_count(), (after - before) / 1024.0, rss_kib("VmHWM:"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
