// A layout file grown to 12 MB (another program, or a hostile user, filled it): loading and saving
// the column layout at start and close, in one pass, against reading it key by key.
#include "platform/settings.h"
#include "shell/column_layout.h"
#include "store/program_dir.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

struct big_layout {
    QTemporaryDir dir;
    QString file;
    big_layout() {
        store::set_program_dir(dir.path());
        file = store::program_path(shell::traits(shell::ledger::pagar).layout);
        QByteArray bytes = "[TAMANHO]\ndata=1319,811\n[POSICAO]\nposicao1=1\n[LIXO]\n";
        for (int i = 0; bytes.size() < 12 * 1024 * 1024; ++i)
            bytes += "chave" + QByteArray::number(i) + "=um valor qualquer de um arquivo que cresceu\n";
        QFile f(file);
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
    }
};

big_layout& layout_file() {
    static big_layout b;
    return b;
}

void read_layout_12mb(benchmark::State& state) {
    layout_file();
    for (auto _ : state)
        benchmark::DoNotOptimize(shell::read_layout(shell::ledger::pagar));
}
BENCHMARK(read_layout_12mb)->Unit(benchmark::kMillisecond);

void write_layout_12mb(benchmark::State& state) {
    layout_file();
    const shell::column_layout l = shell::default_layout(shell::ledger::pagar);
    for (auto _ : state)
        shell::write_layout(shell::ledger::pagar, l);
}
BENCHMARK(write_layout_12mb)->Unit(benchmark::kMillisecond);

// What loading cost before: each of the 20 keys read the whole file again.
void read_key_by_key_12mb(benchmark::State& state) {
    const QString file = layout_file().file;
    const auto& cols = shell::ledger_columns(shell::ledger::pagar);
    for (auto _ : state)
        for (std::size_t i = 0; i < cols.size(); ++i) {
            benchmark::DoNotOptimize(
                platform::lerini(QStringLiteral("TAMANHO"), cols[i].key, QString(), file));
            benchmark::DoNotOptimize(platform::lerini(
                QStringLiteral("POSICAO"), QStringLiteral("posicao%1").arg(i + 1), QString(), file));
        }
}
BENCHMARK(read_key_by_key_12mb)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
