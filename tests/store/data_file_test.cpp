#include "store/data_file.h"

#include "banks/balance.h"
#include "store/names.h"
#include "support/fixture.h"

#include <sqlite3.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class data_file : public support::fixture {
protected:
    sql::connection_ptr open() {
        return sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
    }
    static QString plan(const sql::connection_ptr& c, const QString& statement) {
        const sql::statement_ptr st = c->prepare_native(u"EXPLAIN QUERY PLAN "_s + statement);
        QString out;
        while (st && sqlite3_step(st.get()) == SQLITE_ROW)
            out += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st.get(), 3)));
        return out;
    }
    static QString figures(const banks::account_balance& b) {
        return QStringList{vb::format_money(b.total),     vb::format_money(b.despesas),
                           vb::format_money(b.receitas),  vb::format_money(b.depositos),
                           vb::format_money(b.retiradas), vb::format_money(b.transferido),
                           vb::format_money(b.recebido)}
            .join(u' ');
    }
};

// A file written before the account indexes held the summed columns gets them on the next open;
// the balances read the same, now from the indexes alone.
TEST_F(data_file, an_older_files_indexes_are_made_again_once) {
    auto c = open();
    EXPECT_EQ(store::update_indexes(c), QStringList()) << "a new file already has them";
    c->execute(u"DROP INDEX pagar_origem_dobrada"_s);
    c->execute(
        u"CREATE INDEX pagar_origem_dobrada ON pagar (quintara_fold(origem), quintara_fold(estatus), data)"_s);
    c->execute(u"DROP INDEX receber_descricao_dobrada"_s);
    const char* const rows[] = {"'Concluído', 'Itaú', '10,50'", "'concluído', 'ITAÚ', '2,25'",
                                "'Pendente', 'Itaú', '100,00'", "'Concluído', 'Caixa', '7,00'"};
    for (const char* r : rows)
        c->execute(u"INSERT INTO pagar (estatus, origem, Valor, data) VALUES ("_s + QString::fromUtf8(r) +
                   u", '2026/11/02')"_s);
    c->execute(
        u"INSERT INTO bancario (estatus, origem, destino, movimento, Valor, data) VALUES ('Concluído', "
        u"'Caixa', 'Itaú', 'Transferência entre contas', '3,00', '2026/11/03')"_s);
    const QString before = figures(banks::compute_balance(c, u"Itaú"_s, u"100,00"_s));
    const QString statement = u"SELECT valor FROM pagar WHERE quintara_fold(origem) = quintara_fold('Itaú') "
                              u"AND quintara_fold(estatus) = quintara_fold('Concluído')"_s;
    EXPECT_FALSE(plan(c, statement).contains(u"COVERING"_s));

    EXPECT_EQ(store::update_indexes(c),
              (QStringList{u"pagar_origem_dobrada"_s, u"receber_descricao_dobrada"_s}));
    EXPECT_TRUE(plan(c, statement).contains(u"COVERING INDEX pagar_origem_dobrada"_s))
        << qPrintable(plan(c, statement));
    EXPECT_EQ(figures(banks::compute_balance(c, u"Itaú"_s, u"100,00"_s)), before);
    EXPECT_EQ(before, u"90,25 12,75 0,00 0,00 0,00 0,00 3,00"_s);
    EXPECT_EQ(store::update_indexes(open()), QStringList());
}

} // namespace
