// Report output of a 100,000-row list: the text and HTML tables with their frame, and the printed
// list report into a PDF file.

#include "output/c_relatorios.h"
#include "output/print/list_report.h"
#include "output/report_frame.h"
#include "platform/clock.h"
#include "platform/print/printer.h"
#include "platform/settings.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// A payable list as the report window holds it.
class ledger : public platform::table_source {
public:
    explicit ledger(int rows) {
        const char* status[] = {"Pendente", "Concluído"};
        const char* banks[] = {"Caixa", "Banco do Brasil", "Itaú", "Bradesco"};
        rows_.reserve(std::size_t(rows));
        for (int i = 0; i < rows; ++i) {
            const QString d = QStringLiteral("%1/%2/2026")
                                  .arg(i % 28 + 1, 2, 10, QLatin1Char('0'))
                                  .arg(i % 12 + 1, 2, 10, QLatin1Char('0'));
            rows_.push_back(
                {d, QStringLiteral("Despesa número %1 do mês").arg(i), QStringLiteral("NF %1").arg(i * 7),
                 QStringLiteral("Fornecedor %1 Ltda.").arg(i % 500), d,
                 QStringLiteral("R$ %1,%2").arg(i % 9000 + 10).arg(i % 100, 2, 10, QLatin1Char('0')),
                 QString::fromUtf8(status[i % 2]), QString::fromUtf8(banks[i % 4]),
                 i % 3 ? QString() : QStringLiteral("Observação %1").arg(i)});
        }
    }
    int column_count() const override { return 9; }
    QString column_text(int c) const override {
        static const char* h[] = {"Data",       "Descrição", "Doc.",
                                  "Fornecedor", "Venc.",     "Valor",
                                  "Estatus",    "Origem",    "Informações adicionais"};
        return QString::fromUtf8(h[c]);
    }
    double column_width(int c) const override {
        static const double w[] = {1320, 4190, 1840, 2340, 1320, 1239, 1320, 2140, 3240};
        return w[c];
    }
    int row_count() const override { return int(rows_.size()); }
    QString text(int r, int c) const override { return rows_[std::size_t(r)][c]; }

private:
    std::vector<QStringList> rows_;
};

const ledger& big() {
    static const ledger l(100000);
    return l;
}

struct environment {
    QTemporaryDir dir;
    platform::fixed_clock clock{QDateTime(QDate(2026, 11, 23), QTime(10, 0))};
    environment() {
        platform::set_settings_root(dir.path());
        platform::set_clock(&clock);
    }
};

environment& env() {
    static environment e;
    return e;
}

output::report_texts texts() {
    output::report_texts t;
    t.caption = QStringLiteral("Relatório de movimento anual (despesas)");
    t.tipo = QStringLiteral("CONTAS A PAGAR");
    t.subtitulo = QStringLiteral("Ano de 2026");
    t.totais = QStringLiteral("Total de cadastros: 100000");
    return t;
}

void write_file(benchmark::State& state, output::formato_relatorio f) {
    const ledger& l = big();
    const QString path = env().dir.filePath(f == output::formato_relatorio::txt ? QStringLiteral("r.txt")
                                                                                : QStringLiteral("r.html"));
    qint64 size = 0;
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        output::c_relatorios c;
        if (f == output::formato_relatorio::txt)
            output::write_text_report(file, texts(), &l, c);
        else
            output::write_html_report(file, texts(), &l, c);
        file.close();
        size = file.size();
    }
    state.counters["MB"] = double(size) / 1e6;
    state.SetItemsProcessed(state.iterations() * l.row_count());
}

void BM_export_txt_100k(benchmark::State& state) {
    write_file(state, output::formato_relatorio::txt);
}
void BM_export_html_100k(benchmark::State& state) {
    write_file(state, output::formato_relatorio::html);
}

void BM_print_pdf_100k(benchmark::State& state) {
    const ledger& l = big();
    platform::pdf_target target(env().dir.filePath(QStringLiteral("r.pdf")));
    int pages = 0;
    for (auto _ : state) {
        platform::printer p;
        output::list_report r = output::nova_impressao(output::report_form::rlt_impressao, &l);
        r.rpf_Titulo = QStringLiteral("CONTAS A PAGAR");
        r.lblfiltro = QStringLiteral("Ano de 2026");
        r.lblestatus = QStringLiteral("Total de cadastros: 100000");
        p.begin(r.rpf_Titulo, {QPageSize::A4, QPageLayout::Landscape, QMarginsF(20, 10, 40, 10)}, target);
        output::draw_list_report(p, r);
        pages = p.pages();
        p.EndDoc();
    }
    state.counters["pages"] = pages;
    state.counters["MB"] = double(QFile(target.path()).size()) / 1e6;
}

BENCHMARK(BM_export_txt_100k)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_export_html_100k)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_print_pdf_100k)->Unit(benchmark::kMillisecond)->Iterations(2);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
