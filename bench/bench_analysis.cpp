// Every period summary, chart and statistics member on a file of 100,000 expenses, 100,000 income
// rows and 100,000 bank movements: from the menu item to its window filled and painted
// (offscreen). Message boxes answer at once (scripted). Windows are closed between rounds.
#include "analysis/period_summary.h"
#include "analysis/register_summary.h"
#include "analysis/ui/actions.h"
#include "analysis/ui/frmconfgrafico.h"
#include "analysis/ui/frmgrafico.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/print/printer.h"
#include "platform/prompts.h"
#include "platform/settings.h"
#include "shell/principal_api.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

void fechar_janelas() {
    std::vector<QPointer<QWidget>> abertas;
    for (QWidget* w : QApplication::topLevelWidgets())
        abertas.emplace_back(w);
    for (const auto& w : abertas)
        delete w.data();
    QCoreApplication::processEvents();
}

void pintar() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible()) w->repaint();
    QCoreApplication::processEvents();
}

void BM_member(benchmark::State& state, QString item) {
    for (auto _ : state) {
        shell::run_action(item);
        pintar();
        state.PauseTiming();
        fechar_janelas();
        state.ResumeTiming();
    }
}

// A ledger panel of frmconfgrafico with no criterion ticked: every row of the ledger.
void BM_chart_panel(benchmark::State& state, const char* item, const char* botao) {
    for (auto _ : state) {
        state.PauseTiming();
        shell::run_action(QString::fromLatin1(item));
        frmconfgrafico* w = frmconfgrafico::aberto();
        state.ResumeTiming();
        w->findChild<QPushButton*>(QString::fromLatin1(botao))->click();
        pintar();
        state.PauseTiming();
        fechar_janelas();
        state.ResumeTiming();
    }
}

// The chart's picture and its printed page, into a PDF file.
void BM_print_chart(benchmark::State& state, QString pdf) {
    static platform::pdf_target target(pdf);
    platform::set_print_destination(&target);
    for (auto _ : state) {
        state.PauseTiming();
        shell::run_action(QStringLiteral("mnugraanualdesp"));
        pintar();
        state.ResumeTiming();
        frmgrafico::aberto()->cmdimprimir->click();
        state.PauseTiming();
        fechar_janelas();
        state.ResumeTiming();
    }
    platform::set_print_destination(nullptr);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    store::set_program_dir(dir.path());
    platform::set_settings_root(dir.path() + QStringLiteral("/config"));
    platform::fixed_clock relogio(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    platform::set_clock(&relogio);
    platform::scripted_prompts respostas;
    platform::set_prompts(&respostas);
    const QString file = dir.path() + QStringLiteral("/dados.qntbd");
    store::create_data_file(file);
    generator::options o;
    o.despesas = 100000;
    o.receitas = 100000;
    o.movimentos = 100000;
    QElapsedTimer t;
    t.start();
    const generator::summary s = generator::fill_file(file, o);
    std::printf(
        "file: %d expenses, %d income, %d movements, %d suppliers, %d clients, %d + %d centres (%.1f s)\n",
        s.despesas, s.receitas, s.movimentos, s.fornecedores, s.clientes, s.centros_custo, s.centros_lucro,
        t.elapsed() / 1000.0);
    analysis::register_actions();

    QStringList itens;
    for (const analysis::membro& m : analysis::membros())
        itens << m.nome;
    for (const analysis::estatistica_cadastro& e : analysis::estatisticas_cadastro())
        itens << e.nome;
    itens << QStringLiteral("mnuretcliente") << QStringLiteral("mnuretfornecedor")
          << QStringLiteral("mnuestsoftware");
    for (const QString& i : itens)
        benchmark::RegisterBenchmark(i.toStdString().c_str(), [i](benchmark::State& st) { BM_member(st, i); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
    const std::pair<const char*, const char*> paineis[] = {{"mnugrapagar", "cmdnatelap"},
                                                           {"mnugrareceber", "cmdnatelar"},
                                                           {"mnugrabancario", "cmdnatelab"},
                                                           {"mnugradesprec", "cmdgradr"}};
    for (const auto& [item, botao] : paineis)
        benchmark::RegisterBenchmark((std::string(item) + "/" + botao).c_str(),
                                     [item, botao](benchmark::State& st) { BM_chart_panel(st, item, botao); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(3);
    const QString pdf = dir.path() + QStringLiteral("/grafico.pdf");
    benchmark::RegisterBenchmark("print_chart_page", [pdf](benchmark::State& st) { BM_print_chart(st, pdf); })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    platform::set_prompts(nullptr);
    platform::set_clock(nullptr);
    return 0;
}
