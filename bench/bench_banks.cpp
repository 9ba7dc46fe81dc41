// The accounts list on a full file: 50 accounts over about 300,000 settled rows of pagar, receber
// and bancario. The balance of one account, the rows of the whole list, and the main window's
// carregarbancos with its summary; each with and without the indexes on the folded account names.
// Then the accounts' statistics over a year and up to a day, and the statement of one account.
#include "banks/balance.h"
#include "banks/statement.h"
#include "banks/statistics.h"
#include "banks/ui/frmestbanco.h"
#include "banks/ui/frmextrato.h"
#include "generator/data_generator.h"
#include "platform/clock.h"
#include "platform/settings.h"
#include "platform/sql/recordset.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/data_file.h"
#include "store/program_dir.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

const QDate hoje(2026, 11, 23);
constexpr int contas = 50;

const char* const fold_indexes[] = {
    "CREATE INDEX IF NOT EXISTS pagar_origem_dobrada ON pagar (quintara_fold(origem), "
    "quintara_fold(estatus), data)",
    "CREATE INDEX IF NOT EXISTS receber_origem_dobrada ON receber (quintara_fold(origem), "
    "quintara_fold(estatus), data)",
    "CREATE INDEX IF NOT EXISTS bancario_origem_dobrada ON bancario (quintara_fold(origem), "
    "quintara_fold(estatus), quintara_fold(movimento), data)",
    "CREATE INDEX IF NOT EXISTS bancario_destino_dobrada ON bancario (quintara_fold(destino), "
    "quintara_fold(estatus), quintara_fold(movimento), data)",
};
const char* const fold_index_names[] = {"pagar_origem_dobrada", "receber_origem_dobrada",
                                        "bancario_origem_dobrada", "bancario_destino_dobrada"};

void set_indexes(bool on) {
    store::conectarbanco();
    for (std::size_t i = 0; i < std::size(fold_indexes); ++i)
        store::conexao->execute(on ? QString::fromLatin1(fold_indexes[i])
                                   : QStringLiteral("DROP INDEX IF EXISTS ") +
                                         QString::fromLatin1(fold_index_names[i]));
}

// The seven accounts of the generator and 43 more; the rows are spread over all fifty.
void spread_over_fifty_accounts() {
    auto c = sql::connection::open(store::program_path(store::arquivo_dados), store::senha_dados.toUtf8());
    c->execute(QStringLiteral("BEGIN"));
    const char* const extra[] = {"Sicredi",           "Sicoob",   "Banrisul",        "Inter",   "C6 Bank",
                                 "BTG Pactual",       "Safra",    "Mercado Pago",    "PagBank", "Cora",
                                 "Banco do Nordeste", "Banestes", "Caixa da loja 2", "Cofre"};
    int n = generator::bank_names().size();
    for (int i = 0; n < contas; ++i, ++n) {
        const QString nome = QString::fromUtf8(extra[i % std::size(extra)]) +
                             (i >= int(std::size(extra)) ? QStringLiteral(" %1").arg(i) : QString());
        c->execute(
            QStringLiteral("INSERT INTO banco (banco, informacoes, saldo) VALUES ('%1', 'Conta %2 ', '%3')")
                .arg(nome)
                .arg(i)
                .arg(vb::format_money(vb::currency::from_cents(100000 + 7919 * i))));
    }
    // each row to the account of its number; transfers keep a target other than their source (a CASE:
    // the engine evaluates a subquery whose OFFSET names the outer row only once)
    QStringList nomes;
    {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT banco FROM banco ORDER BY rowid"), c);
        for (; !rs.eof(); rs.move_next())
            nomes << rs.text(0);
    }
    const auto conta_de = [&](const QString& numero) {
        QString e = QStringLiteral("CASE (") + numero + QStringLiteral(") % 50");
        for (int i = 0; i < int(nomes.size()); ++i)
            e += QStringLiteral(" WHEN %1 THEN '%2'").arg(i).arg(nomes[i]);
        return e + QStringLiteral(" END");
    };
    for (const char* t : {"pagar", "receber", "bancario"})
        c->execute(QStringLiteral("UPDATE %1 SET origem = %2 WHERE origem <> '-'")
                       .arg(QString::fromLatin1(t), conta_de(QStringLiteral("\"código\" * 7"))));
    c->execute(QStringLiteral("UPDATE bancario SET destino = %1 WHERE destino <> ' - '")
                   .arg(conta_de(QStringLiteral("\"código\" * 7 + 1 + \"código\" % 13"))));
    c->execute(QStringLiteral("COMMIT"));
}

void BM_compute_balance(benchmark::State& state) {
    set_indexes(state.range(0) != 0);
    store::conectarbanco();
    const QString nome = QStringLiteral("Itaú");
    for (auto _ : state) {
        const banks::account_balance b =
            banks::compute_balance(store::conexao, nome, QStringLiteral("8.730,45"));
        benchmark::DoNotOptimize(b.total);
    }
}
BENCHMARK(BM_compute_balance)->ArgName("indices")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The list's rows without the widgets: connection, accounts, five statements each.
void BM_account_rows(benchmark::State& state) {
    set_indexes(state.range(0) != 0);
    std::size_t n = 0;
    for (auto _ : state) {
        const auto rows = banks::account_rows(true);
        n = rows.size();
        benchmark::DoNotOptimize(rows.data());
    }
    state.counters["contas"] = double(n);
}
BENCHMARK(BM_account_rows)->ArgName("indices")->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);
// without them every statement reads its whole table: one pass is enough to see it
BENCHMARK(BM_account_rows)->ArgName("indices")->Arg(0)->Unit(benchmark::kMillisecond)->Iterations(1);

// All fifty balances on one connection with a given page cache (MB; 0 keeps the default).
void BM_balances_cache(benchmark::State& state) {
    set_indexes(state.range(0) != 0);
    store::conectarbanco();
    if (state.range(1) > 0)
        store::conexao->execute(QStringLiteral("PRAGMA cache_size = -%1").arg(state.range(1) * 1024));
    std::vector<std::pair<QString, QString>> accounts;
    {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM banco"), store::conexao);
        for (; !rs.eof(); rs.move_next())
            accounts.emplace_back(rs.text(QStringLiteral("banco")), rs.text(QStringLiteral("saldo")));
    }
    for (auto _ : state)
        for (const auto& [nome, saldo] : accounts)
            benchmark::DoNotOptimize(banks::compute_balance(store::conexao, nome, saldo).total);
}
BENCHMARK(BM_balances_cache)
    ->ArgNames({"indices", "cache_mb"})
    ->Args({1, 0})
    ->Args({1, 128})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

// A filter no index serves (the status alone): the folded comparison against LIKE itself, which the
// rewrite leaves alone when written as a function call.
void BM_unindexed_filter(benchmark::State& state) {
    set_indexes(true);
    store::conectarbanco();
    const QString text = state.range(0)
                             ? QStringLiteral("SELECT * FROM pagar WHERE estatus like 'Concluído'")
                             : QStringLiteral("SELECT * FROM pagar WHERE like('Concluído', estatus)");
    long n = 0;
    for (auto _ : state) {
        sql::recordset rs;
        rs.open(text, store::conexao);
        n = rs.record_count();
    }
    state.counters["linhas"] = double(n);
}
BENCHMARK(BM_unindexed_filter)->ArgName("dobrado")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The main window's routine, waiting window and summary included.
void BM_carregarbancos(benchmark::State& state) {
    set_indexes(state.range(0) != 0);
    frmprincipal* p = frmprincipal::instance();
    for (auto _ : state)
        p->carregarbancos();
    state.counters["contas"] = double(p->lstcaixabanco->row_count());
}
BENCHMARK(BM_carregarbancos)->ArgName("indices")->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);

// The statistics of the fifty accounts: the figures alone, and the window with its list and texts.
void BM_estatisticas(benchmark::State& state) {
    set_indexes(true);
    const bool janela = state.range(1) != 0;
    const QString inicio = state.range(0) ? QStringLiteral("2025/11/24") : banks::inicio_do_dia;
    for (auto _ : state) {
        if (janela)
            frmestbanco::instance()->geral(inicio, QStringLiteral("2026/11/23"));
        else
            benchmark::DoNotOptimize(banks::geral(inicio, QStringLiteral("2026/11/23")).soma_periodo);
    }
}
BENCHMARK(BM_estatisticas)
    ->ArgNames({"um_ano", "janela"})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Args({0, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

// The statement of one account over a year (or the whole file), with the transfers into it or not;
// the figures alone, and the window with its three lists.
void BM_extrato(benchmark::State& state) {
    set_indexes(true);
    const QString inicio = state.range(0) ? QStringLiteral("2025/11/24") : QStringLiteral("2000/01/01");
    const bool destino = state.range(1) != 0, janela = state.range(2) != 0;
    std::size_t linhas = 0;
    for (auto _ : state) {
        if (janela) {
            frmextrato::instance()->carregar(QStringLiteral("Itaú"), inicio, QStringLiteral("2026/11/23"),
                                             destino, QString());
        } else {
            const banks::extrato e = banks::carregar_extrato(QStringLiteral("Itaú"), inicio,
                                                             QStringLiteral("2026/11/23"), destino);
            linhas = e.pagar.size() + e.receber.size() + e.movimento.size();
        }
    }
    state.counters["linhas"] = double(linhas);
}
BENCHMARK(BM_extrato)
    ->ArgNames({"um_ano", "destino", "janela"})
    ->Args({1, 0, 0})
    ->Args({1, 1, 0})
    ->Args({1, 1, 1})
    ->Args({0, 1, 0})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

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
        store::create_data_file(store::program_path(store::arquivo_dados));
        generator::options o;
        // about 80% of the entries and 93% of the movements end up settled: ~300,000 rows
        o.despesas = 150000;
        o.receitas = 150000;
        o.movimentos = 75000;
        o.hoje = hoje;
        generator::fill_file(store::program_path(store::arquivo_dados), o);
        spread_over_fifty_accounts();
        auto c =
            sql::connection::open(store::program_path(store::arquivo_dados), store::senha_dados.toUtf8());
        long settled = 0;
        for (const char* t : {"pagar", "receber", "bancario"}) {
            sql::recordset rs;
            rs.open(QStringLiteral("SELECT \"código\" FROM %1 WHERE estatus = 'Concluído'")
                        .arg(QString::fromLatin1(t)),
                    c);
            settled += rs.record_count();
        }
        std::fprintf(stderr, "bench_banks: %d accounts, %ld settled rows\n", contas, settled);
    } catch (const sql::error& e) {
        std::fprintf(stderr, "bench_banks: %s\n", qPrintable(e.description()));
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    delete frmprincipal::instance();
    delete frmestbanco::aberto();
    delete frmextrato::instance();
    store::conexao.reset();
    platform::set_clock(nullptr);
    return 0;
}
