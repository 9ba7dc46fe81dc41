// The windows of the diary and of the dues on full files: frmvencimento over 100,000 expenses, and
// the appointment list and its report over 100,000 appointments, each filled and painted.
#include "analysis/ui/frmvencimento.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "platform/widgets/list_view.h"
#include "registers/ui/frmcompromisso.h"
#include "registers/ui/frmretcompromisso.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

void painted(list_view* l) {
    l->viewport()->repaint();
    QCoreApplication::processEvents();
}

void BM_vencimentopagar(benchmark::State& state) {
    frmvencimento* w = frmvencimento::instance();
    for (auto _ : state) {
        store::conectarbanco();
        w->vencimentopagar();
        painted(w->lstmes);
    }
    state.counters["mes"] = w->lstmes->row_count();
    state.counters["dia"] = w->lstdia->row_count();
}
BENCHMARK(BM_vencimentopagar)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_frmcompromisso_Carregartudo(benchmark::State& state) {
    frmcompromisso* w = frmcompromisso::mostrar();
    for (auto _ : state) {
        w->Carregartudo();
        painted(w->lstcompromisso);
    }
    state.counters["rows"] = w->lstcompromisso->row_count();
}
BENCHMARK(BM_frmcompromisso_Carregartudo)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_mnuretcompgeral(benchmark::State& state) {
    frmretcompromisso* w = frmretcompromisso::instance();
    for (auto _ : state) {
        w->preencher(registers::relatorio_compromissos::geral);
        painted(w->lstcompromisso);
    }
    state.counters["rows"] = w->lstcompromisso->row_count();
}
BENCHMARK(BM_mnuretcompgeral)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    platform::fixed_clock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    platform::set_clock(&clock);
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    store::create_data_file(file);
    generator::options o;
    o.despesas = 100000;
    o.receitas = 0;
    o.movimentos = 0;
    generator::fill_file(file, o);
    {
        // 100,000 appointments over six years around today
        store::conectarbanco();
        store::conexao->execute(QStringLiteral("BEGIN"));
        for (int i = 0; i < 100000; ++i) {
            const QDate d = QDate(2023, 1, 1).addDays(i % 2190);
            store::conexao->execute(
                QStringLiteral("INSERT INTO compromisso (data, hora, Titulo, local, descricao) VALUES "
                               "('%1', '%2:00', 'Compromisso %3', 'Sala %4', 'Pauta da reunião')")
                    .arg(d.toString(QStringLiteral("yyyy/MM/dd")))
                    .arg(8 + i % 10)
                    .arg(i)
                    .arg(i % 40));
        }
        store::conexao->execute(QStringLiteral("COMMIT"));
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
