#include "store/conexao.h"
#include "support/fixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class column_types : public support::fixture {};

// Amount columns take what the locale reads as an amount and refuse the rest, whoever writes.
TEST_F(column_types, amount_columns_refuse_text_that_is_no_amount) {
    const struct {
        const char* table;
        const char* column;
        const char* value;
        bool stored;
    } cases[] = {
        {"pagar", "Valor", "1.234,56", true},  {"receber", "valor", "R$ 5,00", true},
        {"bancario", "Valor", "1234,5", true}, {"banco", "saldo", "-12", true},
        {"pagar", "Valor", "1,234.56", false}, {"pagar", "Valor", "12x", false},
        {"receber", "Valor", "", false},       {"bancario", "Valor", "99999999999999999999", false},
        {"banco", "saldo", "abc", false},      {"pagar", "descricao", "1,234.56", true},
    };
    for (const auto& c : cases) {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(QString::fromUtf8(c.table), store::conexao, sql::keyset, sql::pessimistic);
        rs.add_new();
        rs.set(QString::fromUtf8(c.column), QString::fromUtf8(c.value));
        if (c.stored) {
            EXPECT_NO_THROW(rs.update()) << c.value;
        } else {
            try {
                rs.update();
                ADD_FAILURE() << c.value << " was stored";
            } catch (const sql::error& e) {
                EXPECT_TRUE(e.description().contains(QString::fromUtf8(c.value)))
                    << e.description().toStdString();
            }
        }
    }
    EXPECT_EQ(rows(u"SELECT count(*) FROM pagar"_s), QStringList{u"2"_s});
    EXPECT_EQ(rows(u"SELECT Valor FROM pagar ORDER BY 1"_s), (QStringList{u""_s, u"1.234,56"_s}));
    EXPECT_EQ(rows(u"SELECT count(*) FROM bancario"_s), QStringList{u"1"_s});
}

} // namespace
