#include "entries/instalments.h"
#include "platform/text/vb_text.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class instalments : public support::fixture {
protected:
    static entries::entry_fields campos() {
        return {u"Pendente"_s, u"Itaú"_s, u"Fulano"_s, u"23/11/2026"_s, u"Aluguel"_s,
                u" NF 12 "_s,  u"Loja"_s, u"150,00"_s, QString(),       u"R$"_s};
    }
    static entries::series_plan plano(entries::schedule s, bool inicial, double n, double d, QDate inicio) {
        entries::series_plan p;
        p.agenda = s;
        p.data_inicial = inicial;
        p.parcelas = n;
        p.dias = d;
        p.inicio = inicio;
        return p;
    }
    QStringList vencimentos(const QString& tabela = u"pagar"_s) {
        return rows(u"SELECT vencimento, informacoes FROM %1 ORDER BY \"código\""_s.arg(tabela));
    }
};

using entries::schedule;

// "<schedule> <first on the start: inicial or -> <instalments> <days> <start>", against
// tests/data/entries/instalments.txt: the due date and the note of each row written.
TEST_F(instalments, the_schedules_give_the_due_dates_of_the_baseline) {
    EXPECT_TRUE(support::matches_baseline(u"entries/instalments.txt"_s, [this](const QString& line) {
        const QStringList a = line.split(u' ');
        exec(u"DELETE FROM pagar"_s);
        entries::write_series(shell::ledger::pagar, campos(),
                              plano(a[0] == u"periodo"_s ? schedule::periodo : schedule::dia_fixo,
                                    a[1] == u"inicial"_s, a[2].toDouble(), a[3].toDouble(),
                                    QDate::fromString(a[4], u"yyyy-MM-dd"_s)));
        return vencimentos();
    }));
}

TEST_F(instalments, every_column_of_an_income_row) {
    entries::entry_fields f = campos();
    f.origem.clear();
    f.valor = u"1.234,5"_s;
    f.informacoes = u"   "_s;
    f.documento.clear();
    f.estatus = u"Concluído"_s;
    f.moeda = u"€"_s;
    entries::write_series(shell::ledger::receber, f,
                          plano(schedule::dia_fixo, false, 2, 30, QDate(2026, 11, 23)));
    // the amount unformatted, the account left empty, blank notes still numbered
    EXPECT_EQ(
        rows(u"SELECT estatus, origem, cliente, data, descricao, documento, informacoes, Valor, "
             u"vencimento, moeda FROM receber ORDER BY \"código\""_s),
        (QStringList{u"Concluído||Fulano|2026/11/23|Aluguel| |  - Parcela 1 de 2|1.234,5|2026/12/23|€"_s,
                     u"Concluído||Fulano|2026/11/23|Aluguel| |  - Parcela 2 de 2|1.234,5|2027/01/23|€"_s}));
    EXPECT_TRUE(rows(u"SELECT * FROM pagar"_s).isEmpty());
}

TEST(instalment_counts, a_count_past_the_range_of_a_double_is_an_overflow) {
    EXPECT_THROW(entries::read_count(u"1e400"_s), vb::overflow_error);
}

TEST_F(instalments, a_long_series_reports_each_instalment_and_is_written_whole) {
    std::vector<double> vistos;
    entries::write_series(shell::ledger::pagar, campos(),
                          plano(schedule::dia_fixo, false, 600, 30, QDate(2026, 11, 23)),
                          [&](double i) { vistos.push_back(i); });
    ASSERT_EQ(vistos.size(), 600u);
    for (std::size_t k = 0; k < vistos.size(); ++k)
        ASSERT_EQ(vistos[k], double(k + 1));
    const QStringList r = vencimentos();
    ASSERT_EQ(r.size(), 600);
    EXPECT_EQ(r.back(), u"2076/11/23|Loja  - Parcela 600 de 600"_s);
}

TEST_F(instalments, rows_written_before_a_failure_stay) {
    for (const auto k : {shell::ledger::pagar, shell::ledger::receber}) {
        const QString tabela = shell::traits(k).tabela;
        exec(u"CREATE TRIGGER recusa BEFORE INSERT ON %1 WHEN (SELECT count(*) FROM %1) >= 2 "
             u"BEGIN SELECT RAISE(ABORT, 'disco cheio'); END"_s.arg(tabela));
        EXPECT_THROW(
            entries::write_series(k, campos(), plano(schedule::periodo, false, 5, 10, QDate(2026, 11, 23))),
            sql::error);
        EXPECT_EQ(vencimentos(tabela), (QStringList{u"2026/12/03|Loja  - Parcela 1 de 5"_s,
                                                    u"2026/12/13|Loja  - Parcela 2 de 5"_s}))
            << tabela.toStdString();
        exec(u"DROP TRIGGER recusa"_s);
    }
}

TEST_F(instalments, a_date_past_the_year_9999_is_an_error_after_the_rows_before_it) {
    EXPECT_THROW(entries::write_series(shell::ledger::pagar, campos(),
                                       plano(schedule::dia_fixo, true, 3, 30, QDate(9999, 11, 30))),
                 vb::overflow_error);
    EXPECT_EQ(vencimentos(),
              (QStringList{u"9999/11/30|Loja  - Parcela 1 de 3"_s, u"9999/12/30|Loja  - Parcela 2 de 3"_s}));
    EXPECT_THROW(entries::write_series(shell::ledger::pagar, campos(),
                                       plano(schedule::periodo, false, 1, 1e300, QDate(2026, 1, 1))),
                 vb::overflow_error);
}

} // namespace
