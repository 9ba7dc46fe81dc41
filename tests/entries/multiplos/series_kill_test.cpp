// A series killed part-way, as a user who ends the program from the task manager would: the file
// must open with integrity_check ok and every row written before must be whole.
#include "entries/instalments.h"
#include "store/conexao.h"
#include "support/fixture.h"

#include <QFile>
#include <QRegularExpression>

#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class series_kill : public support::fixture {
protected:
    entries::entry_fields campos() const {
        entries::entry_fields f;
        f.estatus = u"Pendente"_s;
        f.origem = u"Caixa"_s;
        f.nome = u"Fulano"_s;
        f.data = u"23/11/2026"_s;
        f.descricao = u"Aluguel"_s;
        f.documento = u"NF 1"_s;
        f.informacoes = u"obs"_s;
        f.valor = u"99,90"_s;
        f.moeda = u"R$"_s;
        return f;
    }
    qsizetype count() { return rows(u"SELECT \"código\" FROM pagar"_s).size(); }
};

TEST_F(series_kill, a_series_killed_part_way_keeps_every_earlier_row_whole) {
    const QString journal = path(u"dados.qntbd-journal"_s);
    int mid_transaction = 0;
    // the kill lands at once, or a few milliseconds into the row (journal written, pages being written)
    const struct {
        qsizetype target;
        int delay_us;
    } kills[] = {{1, 0}, {150, 2000}, {420, 6000}};
    for (const auto [target, delay_us] : kills) {
        support::copy_fresh_data_file(path(u"dados.qntbd"_s));
        entries::series_plan plan;
        plan.parcelas = 600;
        plan.inicio = QDate(2026, 11, 23);
        int progress[2];
        ASSERT_EQ(pipe(progress), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            try {
                // each instalment's number goes to the parent before its row is written
                entries::write_series(shell::ledger::pagar, campos(), plan,
                                      [&](double i) { (void)!write(progress[1], &i, sizeof i); });
            } catch (...) {
            }
            _exit(0);
        }
        close(progress[1]);
        // at the target's instalment, kill while its row is being written (its journal is there)
        double parcela = 0;
        while (parcela < double(target) && read(progress[0], &parcela, sizeof parcela) == sizeof parcela) {
        }
        for (int spins = 0; spins < 100000 && !QFile::exists(journal); ++spins) {
        }
        usleep(useconds_t(delay_us));
        kill(child, SIGKILL);
        close(progress[0]);
        int status = 0;
        waitpid(child, &status, 0);
        const bool hot = QFile::exists(journal);
        mid_transaction += hot ? 1 : 0;

        // the next open rolls the broken row back; the file is sound and holds rows 1..k, each whole
        EXPECT_EQ(rows(u"PRAGMA integrity_check"_s), QStringList{u"ok"_s}) << target;
        const QStringList got = rows(u"SELECT estatus, origem, fornecedor, data, descricao, documento, "
                                     u"informacoes, Valor, vencimento, "
                                     u"moeda FROM pagar ORDER BY \"código\""_s);
        // a fast disk may finish a few more rows within the delay, never the series
        EXPECT_GE(got.size(), target - 1);
        EXPECT_LT(got.size(), 600);
        for (qsizetype i = 0; i < got.size(); ++i) {
            const QString due = vb::ymd(plan.inicio.addMonths(int(i) + 1));
            EXPECT_EQ(
                got[i],
                u"Pendente|Caixa|Fulano|2026/11/23|Aluguel|NF 1 |obs  - Parcela %1 de 600|99,90|%2|R$"_s.arg(
                    QString::number(i + 1), due));
        }
        std::printf("killed after %lld of 600 rows%s\n", static_cast<long long>(got.size()),
                    hot ? ", in the middle of a row" : "");
        // another series goes on writing into the recovered file
        plan.parcelas = 2;
        EXPECT_NO_THROW(entries::write_series(shell::ledger::pagar, campos(), plan));
        EXPECT_EQ(count(), got.size() + 2);
    }
    RecordProperty("kills_in_the_middle_of_a_row", mid_transaction);
}

} // namespace
