// The report windows on a file of 100,000 expenses, 100,000 income rows and 100,000 bank
// movements: from the menu item, through the controls a user sets (the widest useful choice), to
// the window filled and painted (offscreen). Message boxes answer at once (scripted) and are
// counted; so are the rows of the lists left in view. Windows are closed between rounds.
#include "analysis/ui/forecast_actions.h"
#include "analysis/ui/frmcomparacao.h"
#include "analysis/ui/frmconfrelatorio.h"
#include "analysis/ui/frmconfrelatorio2.h"
#include "analysis/ui/frmfluxo.h"
#include "analysis/ui/frmgerenciamento.h"
#include "analysis/ui/frmprojecao.h"
#include "analysis/ui/report_actions.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "platform/settings.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/list_view.h"
#include "platform/widgets/money_field.h"
#include "shell/principal_api.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <functional>
#include <set>

namespace {

platform::scripted_prompts respostas;

const QDate inicio(2020, 1, 1), fim(2027, 12, 31); // every row of the file

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

long linhas_em_vista() {
    long n = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible())
            for (const list_view* l : w->findChildren<list_view*>())
                if (l->isVisible()) n += l->row_count();
    return n;
}

template <class W> W* filho(QWidget* w, const char* nome) {
    W* c = w->findChild<W*>(QString::fromLatin1(nome));
    if (!c) std::fprintf(stderr, "missing control %s\n", nome);
    return c;
}

void BM_janela(benchmark::State& state, const std::function<void()>& passos) {
    long linhas = 0;
    std::size_t caixas = 0;
    std::set<QString> textos;
    for (auto _ : state) {
        respostas.clear();
        passos();
        pintar();
        state.PauseTiming();
        linhas = linhas_em_vista();
        caixas = respostas.boxes().size();
        for (const auto& b : respostas.boxes())
            textos.insert(b.text);
        fechar_janelas();
        state.ResumeTiming();
    }
    state.counters["rows"] = double(linhas);
    state.counters["boxes"] = double(caixas);
    for (const QString& t : textos)
        std::fprintf(stderr, "  box: %s\n", qPrintable(t));
}

// frmconfrelatorio: nothing ticked, every row of the ledger.
std::function<void()> personalizado(const char* item, char pagina) {
    return [item, pagina] {
        shell::run_action(QString::fromLatin1(item));
        filho<QPushButton>(frmconfrelatorio::aberto(), (QByteArray("cmdnatela") + pagina).constData())
            ->click();
    };
}

// frmconfrelatorio2: the whole span of the file for the name the page leaves selected (the last
// one of its list). A page other than the centres' is reached through the window's own menu. The
// last payment form of a new file is one no generated entry uses, so "Pix" is picked there.
std::function<void()> consolidado(const char* item, const char* menu, const char* d1, const char* d2,
                                  const char* botao, int tabela = -1) {
    return [=] {
        shell::run_action(QString::fromLatin1(item));
        frmconfrelatorio2* w = frmconfrelatorio2::instance();
        if (menu) filho<QAction>(w, menu)->trigger();
        filho<date_field>(w, d1)->set_date(inicio);
        filho<date_field>(w, d2)->set_date(fim);
        if (tabela >= 0) {
            w->cbopagamento->setCurrentIndex(w->cbopagamento->findText(QStringLiteral("Pix")));
            w->cbotabela->setCurrentIndex(tabela);
        }
        filho<QPushButton>(w, botao)->click();
    };
}

// frmgerenciamento: "all entries".
std::function<void()> gerencia(const char* item, bool pagar) {
    return [item, pagar] {
        shell::run_action(QString::fromLatin1(item));
        frmgerenciamento* w = frmgerenciamento::instance();
        (pagar ? w->opttodasdesp : w->opttodoslucros)->setChecked(true);
        (pagar ? w->cmdconsultardesp : w->cmdconsultarlucros)->click();
    };
}

// frmconfluxo: the whole year, every bank, pending and settled.
std::function<void()> fluxo(const char* item) {
    return [item] {
        shell::run_action(QString::fromLatin1(item));
        frmconfluxo* w = frmconfluxo::aberto();
        w->cbodata1->set_date(QDate(2026, 1, 1));
        w->cbodata2->set_date(QDate(2026, 12, 31));
        w->cbobanco->setCurrentIndex(0);
        w->cboestatus->setCurrentIndex(0);
        w->cmdnatela->click();
    };
}

// frmprojecao: the current month against a target.
std::function<void()> projecao(const char* item, bool despesas) {
    return [item, despesas] {
        shell::run_action(QString::fromLatin1(item));
        frmprojecao* w = frmprojecao::aberto();
        frmprojecao::painel& p = despesas ? w->desp : w->rec;
        p.txtvalor->setText(QStringLiteral("R$ 100.000,00"));
        p.cmdverificar->click();
    };
}

// frmcomparadesp / frmcompararec: 2025 against 2026, or November 2025 against November 2026.
std::function<void()> comparacao(const char* item, bool despesas, bool anos) {
    return [item, despesas, anos] {
        shell::run_action(QString::fromLatin1(item));
        comparacao_window* w = despesas ? static_cast<comparacao_window*>(frmcomparadesp::aberto())
                                        : static_cast<comparacao_window*>(frmcompararec::aberto());
        if (anos) {
            w->cboano1->setEditText(QStringLiteral("2025"));
            w->cboano2->setEditText(QStringLiteral("2026"));
            w->cmdok->click();
        } else {
            w->cboanomes1->setEditText(QStringLiteral("2025"));
            w->cboanomes2->setEditText(QStringLiteral("2026"));
            w->cmdmes->click();
        }
    };
}

std::function<void()> so_menu(const char* item) {
    return [item] { shell::run_action(QString::fromLatin1(item)); };
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
    analysis::register_report_actions();
    analysis::register_forecast_actions();

    const std::pair<const char*, std::function<void()>> janelas[] = {
        {"mnuretpagar/cmdnatelap", personalizado("mnuretpagar", 'p')},
        {"mnuretreceber/cmdnatelar", personalizado("mnuretreceber", 'r')},
        {"mnuretbancario/cmdnatelab", personalizado("mnuretbancario", 'b')},
        {"mnuretcentrocusto/cmdcentrocusto",
         consolidado("mnuretcentrocusto", nullptr, "cbodata1c", "cbodata2c", "cmdcentrocusto")},
        {"mnuretcentrolucro/cmdcentrolucro",
         consolidado("mnuretcentrolucro", nullptr, "cbodata1l", "cbodata2l", "cmdcentrolucro")},
        {"mnurelfornecedor/cmdfornecedor",
         consolidado("mnuretcentrocusto", "mnurelfornecedor", "cbodata1f", "cbodata2f", "cmdfornecedor")},
        {"mnurelcliente/cmdcliente",
         consolidado("mnuretcentrocusto", "mnurelcliente", "cbodata1cl", "cbodata2cl", "cmdcliente")},
        {"mnurelpagamento/cmdpagamento/Despesas",
         consolidado("mnuretcentrocusto", "mnurelpagamento", "cbodata1pg", "cbodata2pg", "cmdpagamento", 0)},
        {"mnurelpagamento/cmdpagamento/Receitas",
         consolidado("mnuretcentrocusto", "mnurelpagamento", "cbodata1pg", "cbodata2pg", "cmdpagamento", 1)},
        {"mnugerendesp/cmdconsultardesp", gerencia("mnugerendesp", true)},
        {"mnugerenlucros/cmdconsultarlucros", gerencia("mnugerenlucros", false)},
        {"mnuviscontmespagar", so_menu("mnuviscontmespagar")},
        {"mnuviscontmesreceber", so_menu("mnuviscontmesreceber")},
        {"mnuvisvencpagar", so_menu("mnuvisvencpagar")},
        {"mnuvisvencreceber", so_menu("mnuvisvencreceber")},
        {"mnuretfxgeral/cmdnatela", fluxo("mnuretfxgeral")},
        {"mnuretfxpagar/cmdnatela", fluxo("mnuretfxpagar")},
        {"mnuretfxreceber/cmdnatela", fluxo("mnuretfxreceber")},
        {"mnumetadesp/cmdverificar", projecao("mnumetadesp", true)},
        {"mnumetarec/cmdverificar", projecao("mnumetarec", false)},
        {"mnucompdesp/cmdok", comparacao("mnucompdesp", true, true)},
        {"mnucompdesp/cmdmes", comparacao("mnucompdesp", true, false)},
        {"mnucomprec/cmdok", comparacao("mnucomprec", false, true)},
        {"mnucomprec/cmdmes", comparacao("mnucomprec", false, false)},
    };
    for (const auto& [nome, passos] : janelas) {
        const std::function<void()> f = passos;
        benchmark::RegisterBenchmark(nome, [f](benchmark::State& st) { BM_janela(st, f); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MeasureProcessCPUTime()
            ->Iterations(3);
    }

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    platform::set_prompts(nullptr);
    platform::set_clock(nullptr);
    return 0;
}
