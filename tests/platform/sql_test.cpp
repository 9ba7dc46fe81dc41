#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/sql/unicode_like.h"
#include "store/names.h"
#include "support/fixture.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

TEST(unicode_like, wildcards_and_case_over_unicode) {
    struct {
        const char* text;
        const char* pattern;
        bool match;
    } cases[] = {
        {"ITAÚ", "itaú", true},
        {"Itaú", "ITAU", false}, // accents count, only case is folded
        {"Concluído", "concluído", true},
        {"2026/11/16", "%2026/%", true},
        {"16/11/2026", "%2026/%", false}, // a settled date no longer matches the year form
        {"16/11/2026", "%/11/%", true},
        {"12", "12", true},
        {"112", "12", false},
        {"120", "12", false},
        {"abc", "a_c", true},
        {"ac", "a_c", false},
        {"", "%%", true},
        {"Ação", "%ÇÃ%", true},
        {"100%", "100%", true},
        {"Pendente", "Pendente%x", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sql::unicode_like(c.text, c.pattern), c.match) << c.text << " LIKE " << c.pattern;
}

TEST(jet_dialect, rewrites_what_sqlite_reads_otherwise) {
    EXPECT_EQ(sql::jet_dialect(QStringLiteral("Delete * from login where(nome like 'x')")),
              QStringLiteral("DELETE FROM login where(nome like 'x')"));
    EXPECT_EQ(sql::jet_dialect(
                  QStringLiteral("SELECT * FROM pagar WHERE data BETWEEN '2026/11/30' AND '2026/11/23' ")),
              QStringLiteral("SELECT * FROM pagar WHERE data BETWEEN '2026/11/23' AND '2026/11/30' "));
    const QString in_order =
        QStringLiteral("SELECT * FROM pagar WHERE data BETWEEN '2026/01/01' AND '2026/02/31'");
    EXPECT_EQ(sql::jet_dialect(in_order), in_order);
}

TEST(jet_dialect, a_value_with_an_apostrophe_never_changes_the_statement_shape) {
    const QString v = sql::value(QStringLiteral("x') OR 1=1 --"));
    EXPECT_TRUE(sql::has_poisoned_value(QStringLiteral("... '") + v + QStringLiteral("'")));
    EXPECT_EQ(sql::value(QStringLiteral("Banco do Brasil")), QStringLiteral("Banco do Brasil"));
    EXPECT_EQ(sql::value(12.0), QStringLiteral("12"));
}

class sql_store : public support::fixture {
protected:
    sql::connection_ptr open() {
        return sql::connection::open(path(QStringLiteral("dados.qntbd")), store::senha_dados.toUtf8());
    }
};

TEST_F(sql_store, every_statement_form_runs_as_written) {
    auto c = open();
    c->execute(QStringLiteral(
        "INSERT INTO pagar (estatus, origem, fornecedor, data, descricao, Valor, vencimento) "
        "VALUES ('Pendente', 'Itaú', 'Light', '2026/11/16', 'Energia', '120,00', '2026/11/30')"));
    c->execute(
        QStringLiteral("INSERT INTO banco (banco, informacoes, saldo) VALUES ('Itaú', ' ', '1.000,00')"));
    c->execute(QStringLiteral(
        "INSERT INTO compromisso (data, hora, Titulo) VALUES ('2026/11/23', '10:00', 'Reunião')"));
    c->execute(QStringLiteral("INSERT INTO pcontapagar (descricao) VALUES ('Energia')"));
    c->execute(QStringLiteral("INSERT INTO login (nome, senha) VALUES ('ana', 'x')"));
    const char* forms[] = {
        "SELECT * FROM pagar where(código like '1')",
        "SELECT * FROM receber where(código like '1')",
        "SELECT * FROM bancario where(código like '1')",
        "SELECT * FROM cliente where(código like '1')",
        "SELECT * FROM fornecedor where(código like '1')",
        "SELECT * FROM banco where(banco like 'ITAÚ')",
        "select * from compromisso where(titulo like 'reunião')",
        "SELECT * FROM pagar where(data like '%2026%')",
        "SELECT * FROM pagar where(data like '%2026/%') ",
        "SELECT * FROM pagar where(data like '%/11/%' AND data like '%2026/%') ",
        "SELECT * FROM pagar where(data like '2026/11/16')",
        "SELECT * FROM pagar WHERE Data BETWEEN '2026/11/30' AND '2026/11/01'",
        "SELECT DISTINCT descricao FROM pagar order by descricao ASC",
        "SELECT DISTINCT origem FROM receber order by origem ASC",
        "SELECT * FROM CamposEtiqueta",
        "SELECT * FROM fpagamento",
    };
    for (const char* f : forms) {
        sql::recordset rs;
        EXPECT_NO_THROW(rs.open(QString::fromUtf8(f), c)) << f;
    }
    const char* changes[] = {
        "UPDATE pcontapagar SET descricao='Luz' where(descricao like 'Energia')",
        "UPDATE pagar SET descricao='Luz' where(descricao like 'Energia')",
        "Delete FROM pagar where(código like '1')",
        "Delete FROM banco where (banco like 'itaú')",
        "Delete FROM compromisso where(titulo like 'Reunião')",
        "Delete FROM pcontapagar where(descricao like 'Luz')",
        "Delete * from login where(nome like 'ANA')",
    };
    for (const char* f : changes)
        EXPECT_NO_THROW(c->execute(QString::fromUtf8(f))) << f;
    EXPECT_TRUE(rows(QStringLiteral("SELECT * FROM pagar")).isEmpty());
    EXPECT_TRUE(rows(QStringLiteral("SELECT * FROM banco")).isEmpty());
    EXPECT_TRUE(rows(QStringLiteral("SELECT * FROM login")).isEmpty());
    EXPECT_TRUE(rows(QStringLiteral("SELECT * FROM compromisso")).isEmpty());
}

TEST_F(sql_store, codigo_like_matches_the_whole_number_only) {
    auto c = open();
    c->execute(
        QStringLiteral("INSERT INTO pagar (estatus) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                       "FROM n WHERE i < 120) SELECT 'Pendente' FROM n"));
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM pagar where(código like '") + sql::value(12.0) +
                QStringLiteral("')"),
            c);
    ASSERT_EQ(rs.record_count(), 1);
    EXPECT_EQ(rs.text(QStringLiteral("CÓDIGO")), QStringLiteral("12"));
}

TEST_F(sql_store, a_name_with_an_apostrophe_fails_the_statement_and_touches_nothing) {
    auto c = open();
    c->execute(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Caixa', '10,00')"));
    const QString evil = QStringLiteral("x' OR banco like '%");
    sql::recordset rs;
    try {
        rs.open(QStringLiteral("SELECT * FROM banco where(banco like '") + sql::value(evil) +
                    QStringLiteral("')"),
                c);
        FAIL() << "the statement ran";
    } catch (const sql::error& e) {
        EXPECT_FALSE(e.description().isEmpty());
    }
    EXPECT_THROW(c->execute(QStringLiteral("Delete FROM banco where (banco like '") + sql::value(evil) +
                            QStringLiteral("')")),
                 sql::error);
    EXPECT_EQ(rows(QStringLiteral("SELECT banco FROM banco")), QStringList{QStringLiteral("Caixa")});
}

TEST_F(sql_store, only_the_first_statement_of_a_text_runs) {
    auto c = open();
    c->execute(QStringLiteral("INSERT INTO pcontapagar (descricao) VALUES ('a'); DROP TABLE pagar"));
    EXPECT_NO_THROW(rows(QStringLiteral("SELECT * FROM pagar")));
}

TEST_F(sql_store, recordset_adds_and_edits_rows_of_tables_without_a_key) {
    auto c = open();
    {
        sql::recordset rs;
        rs.open(QStringLiteral("banco"), c, sql::keyset, sql::pessimistic);
        rs.add_new();
        rs.set(QStringLiteral("banco"), QStringLiteral("Itaú"));
        rs.set(QStringLiteral("informacoes"), QStringLiteral(" "));
        rs.set(QStringLiteral("SALDO"), QStringLiteral("1.234,56"));
        rs.update();
        EXPECT_EQ(rs.text(QStringLiteral("saldo")), QStringLiteral("1.234,56"));
        rs.close();
    }
    {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM banco where(banco like 'itaú')"), c, sql::keyset,
                sql::pessimistic);
        ASSERT_FALSE(rs.eof());
        rs.set(QStringLiteral("saldo"), QStringLiteral("99,00"));
        rs.update();
    }
    EXPECT_EQ(rows(QStringLiteral("SELECT banco, saldo FROM banco")),
              QStringList{QStringLiteral("Itaú|99,00")});
    // a new row of a keyed table gets its generated number at once
    sql::recordset rs;
    rs.open(QStringLiteral("pagar"), c, sql::keyset, sql::pessimistic);
    rs.add_new();
    rs.set(QStringLiteral("estatus"), QStringLiteral("Pendente"));
    rs.update();
    EXPECT_EQ(rs.text(QStringLiteral("código")), QStringLiteral("1"));
}

TEST_F(sql_store, read_only_sets_refuse_writes_and_missing_fields_are_errors) {
    auto c = open();
    sql::recordset rs;
    rs.open(QStringLiteral("SELECT * FROM login_inicia"), c);
    ASSERT_EQ(rs.record_count(), 1);
    EXPECT_EQ(rs.text(QStringLiteral("ExigirLogin")), QStringLiteral("1"));
    EXPECT_THROW(rs.set(QStringLiteral("exigirlogin"), QStringLiteral("0")), sql::error);
    EXPECT_THROW(rs.text(QStringLiteral("nada")), sql::error);
    rs.move_next();
    EXPECT_TRUE(rs.eof());
    EXPECT_THROW(rs.move_next(), sql::error);
    sql::recordset closed;
    EXPECT_THROW(closed.open(QStringLiteral("SELECT * FROM pagar"), nullptr), sql::error);
}

TEST_F(sql_store, files_that_are_not_data_files_are_refused) {
    const QString junk = path(QStringLiteral("junk.qntbd"));
    QFile f(junk);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(4096, 'x'));
    f.close();
    EXPECT_THROW(sql::connection::open(junk, store::senha_dados.toUtf8()), sql::error);
    EXPECT_THROW(sql::connection::open(path(QStringLiteral("nada.qntbd")), store::senha_dados.toUtf8()),
                 sql::error);
    EXPECT_THROW(sql::connection::open(path(QStringLiteral("dados.qntbd")), QByteArray("outra")), sql::error);
}

TEST_F(sql_store, the_key_is_derived_once_per_file) {
    open();
    const int before = sql::key_derivations();
    for (int i = 0; i < 5; ++i)
        open();
    EXPECT_EQ(sql::key_derivations(), before);
}

} // namespace
