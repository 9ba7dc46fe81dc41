// The document windows on full files: the bank slip's client box over 100,000 clients, the receipt
// of one of 100,000 expenses, the instalment table at its largest, and 100,000 mailing labels laid
// out to PDF (reading the rows, and drawing them).
#include "entries/ui/frmjurosparcelado.h"
#include "entries/ui/frmrecibo.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/print/printer.h"
#include "platform/prompts.h"
#include "platform/settings.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "registers/print/labels_print.h"
#include "registers/ui/frmboleto.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

QString pasta;

void BM_frmboleto_open(benchmark::State& state) {
    for (auto _ : state) {
        frmboleto* f = frmboleto::instance();
        f->show();
        f->carregar();
        QCoreApplication::processEvents();
        state.counters["clientes"] = f->cbocliente->count();
        delete f;
    }
}
BENCHMARK(BM_frmboleto_open)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_nomes_clientes(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(registers::nomes_clientes());
}
BENCHMARK(BM_nomes_clientes)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_recibopagar(benchmark::State& state) {
    frmrecibo* f = frmrecibo::instance();
    for (auto _ : state) {
        f->abrir(shell::ledger::pagar, 99999);
        QCoreApplication::processEvents();
    }
    state.SetLabel(f->txtreferente->text().toStdString());
}
BENCHMARK(BM_recibopagar)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(10);

void BM_frmjurosparcelado_32767(benchmark::State& state) {
    frmjurosparcelado* f = frmjurosparcelado::instance();
    f->show();
    f->txtvalor->setText(QStringLiteral("100000"));
    f->txtparcelas->setText(QStringLiteral("32767"));
    f->txtdias->setText(QStringLiteral("30"));
    f->txtjurosmes->setText(QStringLiteral("1"));
    for (auto _ : state) {
        f->cmdcalcular_click();
        f->lstmeses->viewport()->repaint();
    }
    state.counters["rows"] = f->lstmeses->row_count();
}
BENCHMARK(BM_frmjurosparcelado_32767)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

void BM_labels_100000_to_pdf(benchmark::State& state) {
    platform::pdf_target pdf(pasta + QStringLiteral("/etiquetas.pdf"));
    platform::set_print_destination(&pdf);
    for (auto _ : state) {
        registers::rlt_Etiquetas r;
        const auto f = registers::carregarmodelo(QStringLiteral("Pimaco 6080/6180"));
        r.set_Altura(f.Altura);
        r.set_Largura(f.Largura);
        r.set_MargemEsquerda(f.MargemEsquerda);
        r.set_MargemSuperior(f.MargemSuperior);
        r.set_MargemInferior(f.MargemInferior);
        r.set_Colunas(int(f.Colunas));
        if (!r.imprimir(QStringLiteral("Select * from cliente"))) state.SkipWithError("not printed");
    }
    state.counters["MB"] = double(QFileInfo(pdf.path()).size()) / 1e6;
    platform::set_print_destination(nullptr);
}
BENCHMARK(BM_labels_100000_to_pdf)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    pasta = dir.path();
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    platform::fixed_clock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    platform::set_clock(&clock);
    platform::scripted_prompts prompts;
    platform::set_prompts(&prompts);
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    // BENCH_DOCUMENTS_FILE keeps the filled file between runs (filling it takes minutes)
    const QString guardado = qEnvironmentVariable("BENCH_DOCUMENTS_FILE");
    if (guardado.isEmpty() || !QFile::copy(guardado, file)) {
        store::create_data_file(file);
        generator::options o;
        o.despesas = 100000;
        o.receitas = 0;
        o.movimentos = 0;
        o.clientes = 100000;
        generator::fill_file(file, o);
        if (!guardado.isEmpty()) QFile::copy(file, guardado);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const auto& b : prompts.boxes())
        fprintf(stderr, "box: %s\n", qPrintable(b.text));
    return 0;
}
