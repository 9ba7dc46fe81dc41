#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/sql/row_stream.h"
#include "platform/sql/sorted_read.h"
#include "store/names.h"
#include "support/fixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class sorted_read : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        conn = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
        // equal days, a null, numbers beside texts, a text longer than sixteen bytes, accents
        const char* const datas[] = {"2026/11/02",
                                     "2026/11/01",
                                     "2026/11/02",
                                     nullptr,
                                     "2026/11/01",
                                     "7",
                                     "2026/11/02",
                                     "10",
                                     "2026/11/01 ainda mais tarde",
                                     "2026/11/01 ainda mais cedo",
                                     "Ábaco",
                                     "2026/11/02"};
        conn->execute(u"BEGIN"_s);
        int n = 0;
        for (const char* d : datas) {
            const QString data = d ? u"'"_s + QString::fromUtf8(d) + u"'"_s : u"NULL"_s;
            conn->execute(u"INSERT INTO pagar (data, estatus, origem, Valor) VALUES ("_s + data + u", '"_s +
                          (n % 3 ? u"Pendente"_s : u"Concluído"_s) + u"', 'Itaú', '"_s + QString::number(n) +
                          u",00')"_s);
            ++n;
        }
        // numbers stored as numbers: the column's affinity would turn them into text
        conn->execute(
            u"INSERT INTO pagar (data, estatus, Valor) VALUES (CAST(3 AS BLOB), 'Pendente', '1')"_s);
        conn->execute(u"COMMIT"_s);
    }
    // the Valor column of each row, in the order the record set gives them
    QStringList valores(const QString& statement) {
        sql::recordset rs;
        rs.open(statement, conn, sql::keyset, sql::read_only);
        QStringList out;
        for (; !rs.eof(); rs.move_next())
            out << rs.text(u"Valor"_s);
        return out;
    }
    QStringList streamed(const QString& statement) {
        sql::row_stream rs(conn, statement);
        const int valor = rs.index_of(u"valor"_s);
        QStringList read;
        while (rs.next())
            read << QString::fromUtf8(rs.raw(valor));
        QStringList out;
        for (const std::uint32_t i : rs.order())
            out << read[int(i)];
        return out;
    }
    sql::connection_ptr conn;
};

TEST_F(sorted_read, only_whole_table_walks_of_an_index_on_the_column_are_read_in_table_order) {
    const struct {
        const char16_t* statement;
        bool taken;
    } cases[] = {
        {u"SELECT * FROM pagar where (estatus like '%%') order by data", true},
        {u"SELECT * FROM pagar where(vencimento like '%2026/%')  order by vencimento DESC", true},
        {u"select * from [pagar] order by [data] asc", true},
        // a range the index serves, a sort on a column without an index, two columns, a join
        {u"SELECT * FROM pagar WHERE data BETWEEN '2026/11/01' AND '2026/11/02' order by data", false},
        {u"SELECT * FROM pagar order by descricao", false},
        {u"SELECT * FROM pagar order by data, valor", false},
        {u"SELECT * FROM pagar, receber order by data", false},
        {u"SELECT valor FROM pagar order by data", false},
        {u"SELECT * FROM pagar where estatus like 'x order by data' order by data limit 3", false},
    };
    for (const auto& c : cases) {
        const QString s = QString::fromUtf16(c.statement);
        EXPECT_EQ(sql::plan_sorted_read(conn, s).has_value(), c.taken) << qPrintable(s);
    }
    // a name with an apostrophe fails the statement as written
    const QString marked =
        u"SELECT * FROM pagar where (origem like '"_s + sql::value(u"D'Ávila"_s) + u"') order by data"_s;
    EXPECT_FALSE(sql::plan_sorted_read(conn, marked).has_value());
}

TEST_F(sorted_read, rows_come_in_the_order_the_engine_gives_them) {
    // the engine's own sort on the column and then the rowid is the order of an index walk
    const struct {
        const char16_t* statement;
        const char16_t* reference;
    } cases[] = {
        {u"SELECT * FROM pagar order by data", u"SELECT * FROM pagar ORDER BY data, rowid"},
        {u"SELECT * FROM pagar order by data desc", u"SELECT * FROM pagar ORDER BY data DESC, rowid DESC"},
        {u"SELECT * FROM pagar where (estatus like 'pendente') order by data",
         u"SELECT * FROM pagar where (estatus like 'pendente') ORDER BY data, rowid"},
    };
    for (const auto& c : cases) {
        const QString s = QString::fromUtf16(c.statement);
        ASSERT_TRUE(sql::plan_sorted_read(conn, s).has_value()) << qPrintable(s);
        const QStringList expected = valores(QString::fromUtf16(c.reference));
        ASSERT_FALSE(expected.isEmpty());
        EXPECT_EQ(valores(s), expected) << qPrintable(s);
        EXPECT_EQ(streamed(s), expected) << qPrintable(s);
    }
}

TEST_F(sorted_read, a_stream_reads_other_statements_in_their_own_order) {
    const QString s = u"SELECT * FROM pagar WHERE data BETWEEN '2026/11/01' AND '2026/11/02' order by data"_s;
    sql::row_stream rs(conn, s);
    EXPECT_FALSE(rs.reordered());
    EXPECT_EQ(streamed(s), valores(s));
    EXPECT_THROW(sql::row_stream(conn, u"SELECT * FROM nada"_s), sql::error);
    EXPECT_THROW(sql::row_stream(nullptr, s), sql::error);
}

} // namespace
