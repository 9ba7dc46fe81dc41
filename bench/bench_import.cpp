// A 10,000-line OFX statement against an account of a file holding 100,000 bank movements: the
// file read, the preview (the account's rows read and compared), the window filled, and the
// writing of every line.
#include "banks/statement_import.h"
#include "banks/ui/frmimportarextrato.h"
#include "generator/data_generator.h"
#include "platform/settings.h"
#include "platform/widgets/list_view.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int linhas = 10000;

struct program_folder {
    QTemporaryDir dir;
    QString ofx;
    QString conta;
    program_folder() {
        const QString dados = dir.path() + QStringLiteral("/dados.qntbd");
        store::create_data_file(dados);
        generator::options o;
        o.movimentos = 100000;
        generator::fill_file(dados, o);
        store::set_program_dir(dir.path());
        platform::set_settings_root(dir.path() + QStringLiteral("/config"));
        conta = generator::bank_names().front();
        ofx = dir.path() + QStringLiteral("/extrato.ofx");
        QByteArray t =
            "OFXHEADER:100\r\nDATA:OFXSGML\r\nVERSION:102\r\nSECURITY:NONE\r\nENCODING:USASCII\r\n"
            "CHARSET:1252\r\nCOMPRESSION:NONE\r\nOLDFILEUID:NONE\r\nNEWFILEUID:NONE\r\n\r\n"
            "<OFX>\r\n<SIGNONMSGSRSV1>\r\n<SONRS>\r\n<STATUS>\r\n<CODE>0\r\n<SEVERITY>INFO\r\n</STATUS>\r\n"
            "<DTSERVER>20261120\r\n<LANGUAGE>POR\r\n</SONRS>\r\n</"
            "SIGNONMSGSRSV1>\r\n<BANKMSGSRSV1>\r\n<STMTTRNRS>\r\n<TRNUID>1\r\n<STATUS>\r\n<CODE>0\r\n<"
            "SEVERITY>INFO\r\n"
            "</STATUS>\r\n<STMTRS>\r\n<CURDEF>BRL\r\n<BANKACCTFROM>\r\n<BANKID>0341\r\n<ACCTID>12345-6\r\n"
            "<ACCTTYPE>CHECKING\r\n</BANKACCTFROM>\r\n<BANKTRANLIST>\r\n<DTSTART>20260101\r\n"
            "<DTEND>20261120\r\n";
        for (int i = 0; i < linhas; ++i) {
            const QDate d = QDate(2026, 1, 1).addDays(i % 320);
            t +=
                QStringLiteral("<STMTTRN>\r\n<TRNTYPE>%1\r\n<DTPOSTED>%2\r\n<TRNAMT>%3%4.%5\r\n<FITID>F%6\r\n"
                               "<MEMO>COMPRA NO CARTÃO %6\r\n</STMTTRN>\r\n")
                    .arg(i % 3 ? QStringLiteral("DEBIT") : QStringLiteral("CREDIT"), d.toString(u"yyyyMMdd"),
                         i % 3 ? QStringLiteral("-") : QString())
                    .arg(1 + i % 900)
                    .arg(i % 100, 2, 10, QLatin1Char('0'))
                    .arg(i)
                    .toLatin1();
        }
        t += "</BANKTRANLIST>\r\n<LEDGERBAL>\r\n<BALAMT>0.00\r\n<DTASOF>20261120\r\n</LEDGERBAL>\r\n</"
             "STMTRS>\r\n</STMTTRNRS>\r\n</BANKMSGSRSV1>\r\n</OFX>\r\n";
        QFile f(ofx);
        f.open(QIODevice::WriteOnly);
        f.write(t);
    }
};

program_folder& folder() {
    static program_folder f;
    return f;
}

void remove_imported() {
    store::conectarbanco();
    store::conexao->execute(QStringLiteral("DELETE FROM bancario WHERE id_extrato IS NOT NULL"));
}

// libofx reading the file into lines.
void ofx_read(benchmark::State& state) {
    folder();
    for (auto _ : state)
        if (banks::read_ofx(folder().ofx).linhas.size() != std::size_t(linhas))
            state.SkipWithError("lines lost");
}
BENCHMARK(ofx_read)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly(true);

// The file read, the account's rows read and every line compared with them.
void preview(benchmark::State& state) {
    folder();
    for (auto _ : state) {
        const auto f = banks::read_ofx(folder().ofx);
        benchmark::DoNotOptimize(banks::build_preview(f.linhas, banks::read_existing(folder().conta)).size());
    }
}
BENCHMARK(preview)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly(true);

// The window: the file opened as from the dialog, the preview list filled.
void preview_window(benchmark::State& state) {
    folder();
    frmimportarextrato* w = frmimportarextrato::instance();
    w->cboconta->setCurrentIndex(w->cboconta->findText(folder().conta));
    for (auto _ : state) {
        w->abrir_arquivo(folder().ofx);
        benchmark::DoNotOptimize(w->lstprevia->row_count());
    }
    if (w->lstprevia->row_count() != linhas) state.SkipWithError(w->erro().toStdString().c_str());
    delete w;
}
BENCHMARK(preview_window)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly(true);

// Every line written as a new movement.
void write_all(benchmark::State& state) {
    folder();
    const auto previa =
        banks::build_preview(banks::read_ofx(folder().ofx).linhas, banks::read_existing(folder().conta));
    for (auto _ : state) {
        state.PauseTiming();
        remove_imported();
        state.ResumeTiming();
        const auto r = banks::write_import(folder().conta, previa);
        if (r.gravados != linhas)
            state.SkipWithError(
                QStringLiteral("%1 lines written: %2").arg(r.gravados).arg(r.erro).toStdString().c_str());
    }
    remove_imported();
}
BENCHMARK(write_all)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
