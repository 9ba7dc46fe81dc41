// How the main window's lists and the account balances grow with the file: for each size N a file
// of N expenses, N/2 income and N/5 movements (made once and kept under --dir), the bare scans
// beside the loads, the memory the loaded payable list holds, and the main window filled as at
// start.
//   bench_scale [--sizes=100000,1000000] [--dir=/tmp/quintara-scale] [benchmark flags]
//   bench_scale --sizes=N --dump=out.txt   writes what the user sees (rows, labels, balances)
#include "banks/balance.h"
#include "generator/data_generator.h"
#include "platform/settings.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/sql/row_stream.h"
#include "platform/widgets/list_view.h"
#include "shell/ledger_load.h"
#include "shell/ledger_statement.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <cstdio>

namespace {

using shell::ledger;

long rss_kib() {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLong();
    return 0;
}

QString size_dir(const QString& root, int n) {
    return root + QStringLiteral("/") + QString::number(n);
}

// The file of size n, made when missing.
void ensure_file(const QString& root, int n) {
    const QString dir = size_dir(root, n);
    QDir().mkpath(dir);
    store::set_program_dir(dir);
    const QString file = store::program_path(store::arquivo_dados);
    if (QFile::exists(file)) return;
    QElapsedTimer t;
    t.start();
    store::create_data_file(file + QStringLiteral(".novo"));
    generator::options o;
    o.despesas = n;
    o.receitas = n / 2;
    o.movimentos = n / 5;
    generator::fill_file(file + QStringLiteral(".novo"), o);
    QFile::rename(file + QStringLiteral(".novo"), file);
    std::printf("file of %d expenses, %d income, %d movements made in %.1f s\n", n, n / 2, n / 5,
                double(t.elapsed()) / 1000.0);
}

void use_file(const QString& root, int n) {
    store::fecharconexao();
    store::set_program_dir(size_dir(root, n));
}

void paint(list_view* l) {
    l->viewport()->repaint();
    QCoreApplication::processEvents();
}

const QString list_statement = QStringLiteral("SELECT * FROM pagar where (estatus like '%%') order by data");

long bare_scan(const QString& text, bool all_columns) {
    const sql::statement_ptr owned = store::conexao->prepare(text);
    sqlite3_stmt* st = owned.get();
    const int n = sqlite3_column_count(st);
    long rows = 0;
    while (sqlite3_step(st) == SQLITE_ROW) {
        for (int c = 0; c < (all_columns ? n : 1); ++c)
            benchmark::DoNotOptimize(sqlite3_column_text(st, c));
        ++rows;
    }
    return rows;
}

QStringList account_names() {
    QStringList out;
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT banco FROM banco"), store::conexao);
    for (; !rs.eof(); rs.move_next())
        out << rs.text(0);
    return out;
}

void register_size(const QString& root, int n) {
    const std::string s = std::to_string(n);
    benchmark::RegisterBenchmark(("BM_bare_list_scan/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     long rows = 0;
                                     for (auto _ : state) {
                                         store::conectarbanco();
                                         rows = bare_scan(list_statement, true);
                                     }
                                     state.counters["rows"] = double(rows);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    // the same rows as the store reads them: in table order, then put in the statement's order
    benchmark::RegisterBenchmark(("BM_bare_list_read/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     long rows = 0;
                                     for (auto _ : state) {
                                         store::conectarbanco();
                                         sql::row_stream rs(store::conexao, list_statement);
                                         rows = 0;
                                         while (rs.next()) {
                                             for (int c = 0; c < 11; ++c)
                                                 benchmark::DoNotOptimize(rs.raw(c).data());
                                             ++rows;
                                         }
                                         benchmark::DoNotOptimize(rs.order());
                                     }
                                     state.counters["rows"] = double(rows);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    benchmark::RegisterBenchmark(("BM_carregarpagar/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     frmprincipal* p = frmprincipal::instance();
                                     p->lstpagar->clear_rows();
                                     malloc_trim(0);
                                     const long before = rss_kib();
                                     for (auto _ : state) {
                                         p->carregarpagar();
                                         paint(p->lstpagar);
                                         if (state.iterations() == 0)
                                             state.counters["list_MiB"] = double(rss_kib() - before) / 1024.0;
                                     }
                                     state.counters["rows"] = p->lstpagar->row_count();
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    // the settled rows of every account as its balance asks for them, one connection
    benchmark::RegisterBenchmark(("BM_bare_balance_scan/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     long rows = 0;
                                     for (auto _ : state) {
                                         store::conectarbanco();
                                         rows = 0;
                                         for (const QString& nome : account_names())
                                             for (const QString& text : banks::balance_statements(nome))
                                                 rows += bare_scan(text, false);
                                     }
                                     state.counters["rows"] = double(rows);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    benchmark::RegisterBenchmark(("BM_carregarbancos/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     frmprincipal* p = frmprincipal::instance();
                                     for (auto _ : state) {
                                         p->carregarbancos();
                                         paint(p->lstcaixabanco);
                                     }
                                     state.counters["accounts"] = p->lstcaixabanco->row_count();
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);

    // what the window loads at start, and the accounts tab
    benchmark::RegisterBenchmark(("BM_all_tabs/" + s).c_str(),
                                 [root, n](benchmark::State& state) {
                                     use_file(root, n);
                                     frmprincipal* p = frmprincipal::instance();
                                     for (auto _ : state) {
                                         p->carregarpagar();
                                         p->dadospagar();
                                         p->carregarreceber();
                                         p->dadosreceber();
                                         p->carregarbancario();
                                         p->carregarbancos();
                                         paint(p->lstpagar);
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(2);
}

// Everything the lists and balances show, one line per row, for comparing two builds.
void dump(const QString& out_path) {
    QFile f(out_path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
    QTextStream out(&f);
    const auto list = [&](const char* name, list_view* l) {
        out << "== " << name << " " << l->row_count() << "\n";
        for (int r = 0; r < l->row_count(); ++r) {
            QStringList cells;
            for (int c = 0; c < l->column_count(); ++c)
                cells << l->text(r, c);
            out << cells.join(QLatin1Char('\t')) << "\n";
        }
    };
    frmprincipal* p = frmprincipal::instance();
    p->carregarpagar();
    p->carregarreceber();
    p->carregarbancario();
    p->carregarbancos();
    list("lstpagar", p->lstpagar);
    out << p->lblpagarest->text() << "\n";
    list("lstreceber", p->lstreceber);
    out << p->lblreceberest->text() << "\n";
    list("lstmovimento", p->lstmovimento);
    out << p->lblmovimentoest->text() << "\n";
    list("lstcaixabanco", p->lstcaixabanco);
    out << p->txtresucaixa->toPlainText() << "\n";

    // the filters of both entry lists, and an account's figures over a period
    const QDate hoje(2026, 11, 23);
    const char* const filtros[] = {"Todos os dados",  "Apenas deste ano", "Apenas deste mês",
                                   "Ultimos 15 dias", "Próximos 15 dias", "Mês anterior",
                                   "Próximo mês"};
    const char* const tipos[] = {"Pendentes e concluídos", "Pendentes", "Concluídos"};
    const char* const bases[] = {"Data cadastro", "Data vencimento"};
    for (ledger w : {ledger::pagar, ledger::receber})
        for (const char* filtro : filtros)
            for (const char* tipo : tipos)
                for (const char* base : bases) {
                    shell::entry_filters fl;
                    fl.filtro = QString::fromUtf8(filtro);
                    fl.tipo = QString::fromUtf8(tipo);
                    fl.baseado = QString::fromUtf8(base);
                    fl.banco = shell::todos_bancos;
                    fl.centro = shell::traits(w).todos_centros;
                    fl.contato = shell::traits(w).todos_contatos;
                    const auto st = shell::entry_statement(w, fl, hoje, QString());
                    const shell::ledger_view v = shell::load_ledger(w, st.consulta);
                    // the rows in order, as one digest: the lists above are written out in full
                    QCryptographicHash h(QCryptographicHash::Sha1);
                    for (std::size_t r = 0; r < v.rows.size(); ++r)
                        h.addData(v.rows.row(r).join(QLatin1Char('\t')).append(QLatin1Char('\n')).toUtf8());
                    out << st.consulta << "\t" << v.rows.size() << "\t" << h.result().toHex() << "\t"
                        << v.label << "\n";
                }
    store::conectarbanco();
    for (const QString& nome : account_names()) {
        const auto b =
            banks::compute_balance(store::conexao, nome, QStringLiteral("100,00"),
                                   banks::period{QStringLiteral("2025/01/01"), QStringLiteral("2025/12/31")});
        out << nome << "\t" << vb::format_money(b.total) << "\t" << vb::format_money(b.despesas) << "\t"
            << vb::format_money(b.receitas) << "\t" << vb::format_money(b.depositos) << "\t"
            << vb::format_money(b.retiradas) << "\t" << vb::format_money(b.transferido) << "\t"
            << vb::format_money(b.recebido) << "\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QList<int> sizes = {100000, 1000000};
    QString root = QStringLiteral("/tmp/quintara-scale");
    QString dump_to;
    QString plan_of;
    std::vector<char*> rest = {argv[0]};
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        if (a.startsWith(QStringLiteral("--sizes="))) {
            sizes.clear();
            for (const QString& n : a.mid(8).split(QLatin1Char(',')))
                sizes << n.toInt();
        } else if (a.startsWith(QStringLiteral("--dir="))) {
            root = a.mid(6);
        } else if (a.startsWith(QStringLiteral("--plan="))) {
            plan_of = a.mid(7);
        } else if (a.startsWith(QStringLiteral("--dump="))) {
            dump_to = a.mid(7);
        } else {
            rest.push_back(argv[i]);
        }
    }
    QTemporaryDir settings;
    platform::set_settings_root(settings.path());
    for (int n : sizes)
        ensure_file(root, n);
    frmprincipal* p = frmprincipal::instance();
    p->resize(1200, 800);
    p->show();
    QCoreApplication::processEvents();
    if (!plan_of.isEmpty()) {
        use_file(root, sizes.value(0));
        store::conectarbanco();
        const sql::statement_ptr st =
            store::conexao->prepare_native(QStringLiteral("EXPLAIN QUERY PLAN ") + sql::jet_dialect(plan_of));
        while (st && sqlite3_step(st.get()) == SQLITE_ROW)
            std::printf("%s\n", reinterpret_cast<const char*>(sqlite3_column_text(st.get(), 3)));
        return 0;
    }
    if (!dump_to.isEmpty()) {
        use_file(root, sizes.value(0));
        dump(dump_to);
        return 0;
    }
    for (int n : sizes)
        register_size(root, n);
    int rc = int(rest.size());
    benchmark::Initialize(&rc, rest.data());
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
