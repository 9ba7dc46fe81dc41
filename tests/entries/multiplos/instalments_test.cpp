#include "entries/instalments.h"
#include "platform/text/vb_text.h"
#include "support/fixture.h"

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

TEST_F(instalments, the_schedules_give_these_due_dates) {
    const struct {
        const char* caso;
        schedule agenda;
        bool inicial;
        double n, d;
        QDate inicio;
        QStringList esperado;
    } casos[] = {
        {"cut back day stays cut back",
         schedule::dia_fixo,
         true,
         4,
         30,
         {2026, 1, 31},
         {u"2026/01/31|Loja  - Parcela 1 de 4"_s, u"2026/02/28|Loja  - Parcela 2 de 4"_s,
          u"2026/03/28|Loja  - Parcela 3 de 4"_s, u"2026/04/28|Loja  - Parcela 4 de 4"_s}},
        {"check box off starts a month later",
         schedule::dia_fixo,
         false,
         3,
         30,
         {2026, 1, 31},
         {u"2026/02/28|Loja  - Parcela 1 de 3"_s, u"2026/03/28|Loja  - Parcela 2 de 3"_s,
          u"2026/04/28|Loja  - Parcela 3 de 3"_s}},
        {"leap year",
         schedule::dia_fixo,
         true,
         3,
         30,
         {2028, 1, 31},
         {u"2028/01/31|Loja  - Parcela 1 de 3"_s, u"2028/02/29|Loja  - Parcela 2 de 3"_s,
          u"2028/03/29|Loja  - Parcela 3 de 3"_s}},
        {"one instalment, one month on",
         schedule::dia_fixo,
         false,
         1,
         30,
         {2026, 11, 23},
         {u"2026/12/23|Loja  - Parcela 1 de 1"_s}},
        {"days between have no say by month",
         schedule::dia_fixo,
         false,
         2,
         7,
         {2026, 12, 15},
         {u"2027/01/15|Loja  - Parcela 1 de 2"_s, u"2027/02/15|Loja  - Parcela 2 de 2"_s}},
        {"fractional count: two rows, the total as it stands",
         schedule::dia_fixo,
         false,
         2.5,
         30,
         {2026, 11, 23},
         {u"2026/12/23|Loja  - Parcela 1 de 2,5"_s, u"2027/01/23|Loja  - Parcela 2 de 2,5"_s}},
        {"period of days, first one after the start",
         schedule::periodo,
         true,
         2,
         30,
         {2026, 11, 23},
         {u"2026/12/23|Loja  - Parcela 1 de 2"_s, u"2027/01/22|Loja  - Parcela 2 de 2"_s}},
        {"fractional days add up, the day shown",
         schedule::periodo,
         false,
         3,
         1.5,
         {2026, 11, 23},
         {u"2026/11/24|Loja  - Parcela 1 de 3"_s, u"2026/11/26|Loja  - Parcela 2 de 3"_s,
          u"2026/11/27|Loja  - Parcela 3 de 3"_s}},
    };
    for (const auto& c : casos) {
        exec(u"DELETE FROM pagar"_s);
        entries::write_series(shell::ledger::pagar, campos(), plano(c.agenda, c.inicial, c.n, c.d, c.inicio));
        EXPECT_EQ(vencimentos(), c.esperado) << c.caso;
    }
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

TEST_F(instalments, counts_are_read_by_their_leading_number_and_refused_below_one) {
    const struct {
        const char* parcelas;
        const char* dias;
        double n, d;
        const char* recusa;
    } casos[] = {
        {"12x", "30", 12, 30, ""},
        {"2.5", "1.5", 2.5, 1.5, ""},
        {"2,5", " 7 dias", 2, 7, ""},
        {"0,5", "30", 0, 30, "O número de parcelas não pode ser menor que 1!"},
        {"0.5", "0", 0.5, 0, "O número de parcelas não pode ser menor que 1!"},
        {"doze", "30", 0, 30, "O número de parcelas não pode ser menor que 1!"},
        {"3", "0", 3, 0, "Os dias entre as parcelas não pode ser menor que 1!"},
        {"3", "0.99", 3, 0.99, "Os dias entre as parcelas não pode ser menor que 1!"},
        {"-4", "30", -4, 30, "O número de parcelas não pode ser menor que 1!"},
    };
    for (const auto& c : casos) {
        const double n = entries::read_count(QString::fromUtf8(c.parcelas));
        const double d = entries::read_count(QString::fromUtf8(c.dias));
        EXPECT_EQ(n, c.n) << c.parcelas;
        EXPECT_EQ(d, c.d) << c.dias;
        EXPECT_EQ(entries::count_message(n, d), QString::fromUtf8(c.recusa)) << c.parcelas << " " << c.dias;
    }
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
