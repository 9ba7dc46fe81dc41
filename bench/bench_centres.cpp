// A full file (100,000 expenses, 100,000 income rows, 50,000 bank movements): renaming a cost centre
// that 20,000 expenses bear, the summary of every cost centre, and the integrated report over the
// three ledgers, alone and shown in its window.
#include "analysis/integrated_report.h"
#include "analysis/ui/frmrelatorioint.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "platform/widgets/list_view.h"
#include "registers/centres.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

const QDate hoje(2026, 11, 23);
const QString em_uso = QStringLiteral("Centro em uso");
const QString renomeado = QStringLiteral("Centro renomeado");

void BM_renomear_centro(benchmark::State& state) {
    bool ida = true;
    for (auto _ : state) {
        registers::renomear(registers::centro::custo, ida ? em_uso : renomeado, ida ? renomeado : em_uso);
        ida = !ida;
    }
    // every entry went along
    sql::recordset rs;
    store::conectarbanco();
    rs.open(
        QStringLiteral("SELECT \"código\" FROM pagar WHERE descricao = '%1'").arg(ida ? em_uso : renomeado),
        store::conexao);
    state.counters["entradas"] = double(rs.record_count());
}
BENCHMARK(BM_renomear_centro)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(6);

void BM_resumo_centros_custo(benchmark::State& state) {
    std::size_t n = 0;
    for (auto _ : state) {
        const registers::resumo r = registers::calcular_resumo(registers::centro::custo, QDate(), QDate());
        n = r.linhas.size();
    }
    state.counters["centros"] = double(n);
}
BENCHMARK(BM_resumo_centros_custo)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

analysis::filtros_integrados tudo() {
    analysis::filtros_integrados f;
    f.pagar = f.receber = f.bancario = true;
    return f;
}

void BM_relatorio_integrado(benchmark::State& state) {
    std::size_t n = 0;
    for (auto _ : state) {
        const analysis::relatorio_integrado r = analysis::gerar(tudo());
        n = r.linhas.size();
    }
    state.counters["linhas"] = double(n);
}
BENCHMARK(BM_relatorio_integrado)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// What the user waits for: the rows generated, put into the list and painted.
void BM_relatorio_integrado_na_janela(benchmark::State& state) {
    frmrelatorioint* w = frmrelatorioint::instance();
    w->resize(1200, 800);
    w->show();
    for (auto _ : state) {
        w->preencher(analysis::gerar(tudo()));
        w->lstrelatorio->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    state.counters["linhas"] = double(w->lstrelatorio->row_count());
}
BENCHMARK(BM_relatorio_integrado_na_janela)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    if (!dir.isValid()) return 1;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    platform::fixed_clock clock(QDateTime(hoje, QTime(10, 0)));
    platform::set_clock(&clock);
    try {
        const QString file = store::program_path(store::arquivo_dados);
        store::create_data_file(file);
        generator::options o;
        o.despesas = 100000;
        o.receitas = 100000;
        o.movimentos = 50000;
        o.hoje = hoje;
        generator::fill_file(file, o);
        // one centre borne by every fifth expense: 20,000 rows
        store::conectarbanco();
        store::conexao->execute(
            QStringLiteral("INSERT INTO pcontapagar (descricao) VALUES ('%1')").arg(em_uso));
        store::conexao->execute(
            QStringLiteral("UPDATE pagar SET descricao = '%1' WHERE \"código\" % 5 = 0").arg(em_uso));
        store::fecharconexao();
    } catch (const sql::error& e) {
        std::fprintf(stderr, "bench_centres: %s\n", qPrintable(e.description()));
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    delete frmrelatorioint::aberto();
    store::conexao.reset();
    platform::set_clock(nullptr);
    return 0;
}
