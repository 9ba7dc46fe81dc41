// The e-mail report on a full file: 100,000 expenses, 100,000 incomes and 100,000 bank movements.
// The attachment with all three ledgers, and the statistics body over the same rows.
#include "generator/data_generator.h"
#include "mail/via_email.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

QString attachment;

// The floor: the three statements opened and walked, nothing made of the rows.
void BM_statements_only(benchmark::State& state) {
    long rows = 0;
    for (auto _ : state) {
        rows = 0;
        for (const char* t : {"pagar", "receber", "bancario"}) {
            store::conectarbanco();
            sql::recordset rs;
            rs.open(QStringLiteral("select * from ") + QLatin1String(t), store::conexao);
            for (; !rs.eof(); rs.move_next())
                ++rows;
        }
    }
    state.counters["rows"] = double(rows);
}
BENCHMARK(BM_statements_only)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_attachment_three_ledgers(benchmark::State& state) {
    mail::pagina p; // all three ticked, no filter
    for (auto _ : state)
        mail::escrever_anexo(attachment, p, mail::tipo_ret::todos, [](int, int) {});
    state.counters["MB"] = double(QFile(attachment).size()) / 1e6;
}
BENCHMARK(BM_attachment_three_ledgers)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_statistics_body_three_ledgers(benchmark::State& state) {
    mail::pagina p;
    p.nome = QStringLiteral("Ana");
    for (auto _ : state)
        benchmark::DoNotOptimize(mail::corpo_estatisticas(p));
}
BENCHMARK(BM_statistics_body_three_ledgers)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    platform::fixed_clock clock{QDateTime(QDate(2026, 11, 23), QTime(10, 0))};
    platform::set_clock(&clock);
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    store::create_data_file(file);
    generator::options o;
    o.despesas = 100000;
    o.receitas = 100000;
    o.movimentos = 100000;
    generator::fill_file(file, o);
    attachment = mail::caminho_anexo();
    ::benchmark::Initialize(&argc, argv);
    ::benchmark::RunSpecifiedBenchmarks();
    ::benchmark::Shutdown();
    return 0;
}
