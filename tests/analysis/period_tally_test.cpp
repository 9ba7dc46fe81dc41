// The period helpers and the status tally: the pieces every summary of the ledgers counts with.

#include "analysis/period.h"
#include "analysis/status_tally.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace analysis;

TEST(period, today_as_the_texts_the_patterns_match) {
    const QDate d(2026, 3, 5);
    EXPECT_EQ(valor_periodo(periodo::dia, d), u"2026/03/05"_s);
    EXPECT_EQ(valor_periodo(periodo::mes, d), u"2026/03"_s);
    EXPECT_EQ(valor_periodo(periodo::ano, d), u"2026"_s);
    EXPECT_EQ(valor_periodo(periodo::tudo, d), QString());
    EXPECT_EQ(dois_digitos(7), u"07"_s);
}

TEST(period, month_words_and_years_read_back_into_dates) {
    const struct {
        QString mes, ano;
        QDate esperado;
    } casos[] = {
        {u"Março"_s, u"2024"_s, QDate(2024, 3, 1)},
        {u"julho"_s, u"2024"_s, QDate(2024, 7, 1)},
        {u"MARCO"_s, u"2024"_s, QDate(2024, 3, 1)},
        {u"novembro"_s, u"2026"_s, QDate(2026, 11, 1)},
        {u"fev"_s, u"2023"_s, QDate(2023, 2, 1)},
        {u"12"_s, u"2030"_s, QDate(2030, 12, 1)},
        {u" Dezembro "_s, u" 2150 "_s, QDate(2150, 12, 1)},
        {u"13"_s, u"2024"_s, QDate()},
        {u"Marte"_s, u"2024"_s, QDate()},
        {u"Maio"_s, u"dois mil"_s, QDate()},
        {QString(), u"2024"_s, QDate()},
    };
    for (const auto& c : casos)
        EXPECT_EQ(data_do_mes(c.mes, c.ano), c.esperado) << c.mes.toStdString() << "/" << c.ano.toStdString();
}

TEST(period, days_of_a_month_and_signed_differences) {
    EXPECT_EQ(dias_no_mes(QDate(2024, 2, 10)), 29);
    EXPECT_EQ(dias_no_mes(QDate(2023, 2, 1)), 28);
    EXPECT_EQ(dias_no_mes(QDate(2026, 11, 23)), 30);
    EXPECT_EQ(dias_no_mes(QDate()), 0);
    EXPECT_EQ(dias_entre(QDate(2026, 11, 23), QDate(2026, 11, 23)), 0);
    EXPECT_EQ(dias_entre(QDate(2026, 11, 1), QDate(2026, 12, 2)), 31);
    EXPECT_EQ(dias_entre(QDate(2026, 12, 2), QDate(2026, 11, 1)), -31);
    EXPECT_EQ(dias_entre(QDate(), QDate(2026, 11, 1)), 0);
}

TEST(period, month_captions_keep_july_as_each_window_has_it) {
    const QStringList a = nomes_meses(), b = nomes_meses(true);
    ASSERT_EQ(a.size(), 12);
    EXPECT_EQ(a[0], u"Janeiro"_s);
    EXPECT_EQ(a[2], u"Março"_s);
    EXPECT_EQ(a[6], u"Julho"_s);
    EXPECT_EQ(b[6], u"julho"_s);
    EXPECT_EQ(anos(2000, 2150).size(), 151);
    EXPECT_EQ(anos(2000, 2500).back(), u"2500"_s);
}

TEST(status_tally, the_three_ways_of_classing_a_status) {
    const struct {
        const char* estatus;
        classe exato, tres_vias, minusculas;
    } casos[] = {
        {"Pendente", classe::pendente, classe::pendente, classe::pendente},
        {"pendente", classe::concluido, classe::pendente, classe::pendente},
        {"PENDENTE", classe::concluido, classe::pendente, classe::pendente},
        {"Concluído", classe::concluido, classe::concluido, classe::concluido},
        {"CONCLUÍDO", classe::concluido, classe::concluido, classe::concluido},
        {"Concluido", classe::concluido, classe::outro, classe::concluido},
        {"Cancelado", classe::concluido, classe::outro, classe::concluido},
        {"", classe::concluido, classe::outro, classe::concluido},
        {"Pendente ", classe::concluido, classe::outro, classe::concluido},
    };
    for (const auto& c : casos) {
        const QString e = QString::fromUtf8(c.estatus);
        EXPECT_EQ(classificar(e, classes::exato), c.exato) << c.estatus;
        EXPECT_EQ(classificar(e, classes::tres_vias), c.tres_vias) << c.estatus;
        EXPECT_EQ(classificar(e, classes::minusculas), c.minusculas) << c.estatus;
    }
}

TEST(status_tally, amounts_enter_rounded_to_the_cent_and_bad_ones_count_unsummed) {
    EXPECT_EQ(valor_formatado(u"10,005"_s)->raw(), 100100);
    EXPECT_EQ(valor_formatado(u"-10,005"_s)->raw(), -100100);
    EXPECT_EQ(valor_formatado(u"1.234,564"_s)->raw(), 12345600);
    EXPECT_EQ(valor_formatado(u"R$ 7,5"_s)->raw(), 75000);
    EXPECT_FALSE(valor_formatado(u"abc"_s));
    EXPECT_EQ(texto_valor(u"1234,5"_s), u"1.234,50"_s);
    EXPECT_EQ(texto_valor(u"abc"_s), u"abc"_s);

    status_tally lista(classes::exato, soma::moeda);
    status_tally grafico(classes::tres_vias, soma::dupla);
    status_tally bruta(classes::tres_vias, soma::bruta);
    const std::pair<const char*, const char*> linhas[] = {
        {"Pendente", "1.000,00"}, {"Concluído", "10,005"}, {"pendente", "5,00"},
        {"Cancelado", "7,00"},    {"Pendente", "abc"},
    };
    for (auto* t : {&lista, &grafico, &bruta})
        for (const auto& [e, v] : linhas)
            t->add(QString::fromUtf8(e), QString::fromUtf8(v));
    EXPECT_EQ(lista.n(), 5);
    EXPECT_EQ(lista.n(classe::pendente), 2);
    EXPECT_EQ(lista.texto(classe::pendente), u"1.000,00"_s);
    EXPECT_EQ(lista.texto(classe::concluido), u"22,01"_s);
    EXPECT_EQ(lista.texto_total(), u"1.022,01"_s);
    EXPECT_EQ(grafico.n(classe::pendente), 3);
    EXPECT_EQ(grafico.n(classe::concluido), 1);
    EXPECT_EQ(grafico.n(classe::outro), 1);
    EXPECT_EQ(grafico.texto(classe::pendente), u"1.005,00"_s);
    EXPECT_EQ(grafico.texto(classe::concluido), u"10,01"_s);
    EXPECT_EQ(grafico.texto_total(), u"1.022,01"_s);
    // raw: the amount as read, the half cent kept until the text is made
    EXPECT_DOUBLE_EQ(bruta.soma_de(classe::concluido), 10.005);
}

TEST(status_tally, an_overflowing_addition_is_skipped) {
    status_tally t(classes::exato, soma::moeda);
    t.add(u"Pendente"_s, u"900.000.000.000.000,00"_s);
    t.add(u"Pendente"_s, u"900.000.000.000.000,00"_s);
    t.add(u"Pendente"_s, u"1,00"_s);
    EXPECT_EQ(t.n(), 3);
    EXPECT_EQ(t.texto(classe::pendente), u"900.000.000.000.001,00"_s);
}
