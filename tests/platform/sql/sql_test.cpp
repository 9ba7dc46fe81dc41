#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/sql/unicode_like.h"
#include "store/names.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// "like [text] [pattern]", "dialect [statement]", "value [text]", against
// tests/data/platform/sql_texts.txt.
TEST(sql_texts, like_the_dialect_and_values_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"platform/sql_texts.txt"_s, [](const QString& line) {
        const QStringList b = support::bracketed(line);
        if (line.startsWith(u"like"_s))
            return QStringList{sql::unicode_like(b[0].toStdString(), b[1].toStdString()) ? u"matches"_s
                                                                                         : u"no match"_s};
        if (line.startsWith(u"dialect"_s)) return QStringList{sql::jet_dialect(b[0])};
        const QString v = sql::value(b[0]);
        return QStringList{sql::has_poisoned_value(v) ? u"marked: "_s + sql::without_marks(v) : v};
    }));
    EXPECT_EQ(sql::value(12.0), u"12"_s);
}

class sql_store : public support::fixture {
protected:
    sql::connection_ptr open() {
        return sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
    }
};

// Every statement form the program runs, in tests/data/platform/sql_forms.txt, on a file holding a
// few rows: a query gives its rows, a change the rows left in its table.
TEST_F(sql_store, every_statement_form_runs_as_written) {
    auto c = open();
    c->execute(QStringLiteral(
        "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, Valor, vencimento) "
        "VALUES ('Pendente', 'Itaú', 'Light', '2026/11/16', 'Energia', '120,00', '2026/11/30')"));
    c->execute(u"INSERT INTO banco (banco, informacoes, saldo) VALUES ('Itaú', ' ', '1.000,00')"_s);
    c->execute(QStringLiteral(
        "INSERT INTO compromisso (data, hora, Titulo) VALUES ('2026/11/23', '10:00', 'Reunião')"));
    c->execute(u"INSERT INTO pcontapagar (descricao) VALUES ('Energia')"_s);
    c->execute(u"INSERT INTO login (nome, senha) VALUES ('ana', 'x')"_s);
    EXPECT_TRUE(support::matches_baseline(u"platform/sql_forms.txt"_s, [&](const QString& form) {
        try {
            if (!form.startsWith(QLatin1String("select"), Qt::CaseInsensitive)) {
                c->execute(form);
                static const QRegularExpression table(u"(?:from|update)\\s+(\\w+)"_s,
                                                      QRegularExpression::CaseInsensitiveOption);
                const QString name = table.match(form).captured(1);
                return QStringList{u"%1 rows left"_s.arg(rows("SELECT * FROM " + name).size())};
            }
            sql::recordset rs;
            rs.open(form, c);
            return QStringList{u"%1 rows"_s.arg(rs.record_count())};
        } catch (const sql::error& e) {
            return QStringList{u"error: "_s + e.description()};
        }
    }));
}

TEST_F(sql_store, codigo_like_matches_the_whole_number_only) {
    auto c = open();
    c->execute(
        QStringLiteral("INSERT INTO pagar (estatus) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                       "FROM n WHERE i < 120) SELECT 'Pendente' FROM n"));
    sql::recordset rs;
    rs.open(u"SELECT * FROM pagar where(código like '"_s + sql::value(12.0) + u"')"_s, c);
    ASSERT_EQ(rs.record_count(), 1);
    EXPECT_EQ(rs.text(u"CÓDIGO"_s), u"12"_s);
}

TEST_F(sql_store, a_name_with_an_apostrophe_fails_the_statement_and_touches_nothing) {
    auto c = open();
    c->execute(u"INSERT INTO banco (banco, saldo) VALUES ('Caixa', '10,00')"_s);
    const QString evil = u"x' OR banco like '%"_s;
    sql::recordset rs;
    try {
        rs.open(u"SELECT * FROM banco where(banco like '"_s + sql::value(evil) + u"')"_s, c);
        FAIL() << "the statement ran";
    } catch (const sql::error& e) {
        EXPECT_FALSE(e.description().isEmpty());
    }
    EXPECT_THROW(c->execute(u"Delete FROM banco where (banco like '"_s + sql::value(evil) + u"')"_s),
                 sql::error);
    EXPECT_EQ(rows(u"SELECT banco FROM banco"_s), QStringList{u"Caixa"_s});
}

TEST_F(sql_store, only_the_first_statement_of_a_text_runs) {
    auto c = open();
    c->execute(u"INSERT INTO pcontapagar (descricao) VALUES ('a'); DROP TABLE pagar"_s);
    EXPECT_NO_THROW(rows(u"SELECT * FROM pagar"_s));
}

TEST_F(sql_store, recordset_adds_and_edits_rows_of_tables_without_a_key) {
    auto c = open();
    {
        sql::recordset rs;
        rs.open(u"banco"_s, c, sql::keyset, sql::pessimistic);
        rs.add_new();
        rs.set(u"banco"_s, u"Itaú"_s);
        rs.set(u"informacoes"_s, u" "_s);
        rs.set(u"SALDO"_s, u"1.234,56"_s);
        rs.update();
        EXPECT_EQ(rs.text(u"saldo"_s), u"1.234,56"_s);
        rs.close();
    }
    {
        sql::recordset rs;
        rs.open(u"SELECT * FROM banco where(banco like 'itaú')"_s, c, sql::keyset, sql::pessimistic);
        ASSERT_FALSE(rs.eof());
        rs.set(u"saldo"_s, u"99,00"_s);
        rs.update();
    }
    EXPECT_EQ(rows(u"SELECT banco, saldo FROM banco"_s), QStringList{u"Itaú|99,00"_s});
    // a new row of a keyed table gets its generated number at once
    sql::recordset rs;
    rs.open(u"pagar"_s, c, sql::keyset, sql::pessimistic);
    rs.add_new();
    rs.set(u"estatus"_s, u"Pendente"_s);
    rs.update();
    EXPECT_EQ(rs.text(u"código"_s), u"1"_s);
}

TEST_F(sql_store, read_only_sets_refuse_writes_and_missing_fields_are_errors) {
    auto c = open();
    sql::recordset rs;
    rs.open(u"SELECT * FROM login_inicia"_s, c);
    ASSERT_EQ(rs.record_count(), 1);
    EXPECT_EQ(rs.text(u"ExigirLogin"_s), u"1"_s);
    EXPECT_THROW(rs.set(u"exigirlogin"_s, u"0"_s), sql::error);
    EXPECT_THROW(rs.text(u"nada"_s), sql::error);
    rs.move_next();
    EXPECT_TRUE(rs.eof());
    EXPECT_THROW(rs.move_next(), sql::error);
    sql::recordset closed;
    EXPECT_THROW(closed.open(u"SELECT * FROM pagar"_s, nullptr), sql::error);
}

TEST_F(sql_store, files_that_are_not_data_files_are_refused) {
    const QString junk = path(u"junk.qntbd"_s);
    QFile f(junk);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(4096, 'x'));
    f.close();
    EXPECT_THROW(sql::connection::open(junk, store::senha_dados.toUtf8()), sql::error);
    EXPECT_THROW(sql::connection::open(path(u"nada.qntbd"_s), store::senha_dados.toUtf8()), sql::error);
    EXPECT_THROW(sql::connection::open(path(u"dados.qntbd"_s), QByteArray("outra")), sql::error);
}

TEST_F(sql_store, the_key_is_derived_once_per_file) {
    open();
    const int before = sql::key_derivations();
    for (int i = 0; i < 5; ++i)
        open();
    EXPECT_EQ(sql::key_derivations(), before);
}

} // namespace
