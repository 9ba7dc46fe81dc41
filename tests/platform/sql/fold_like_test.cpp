#include "banks/balance.h"
#include "platform/sql/jet_dialect.h"
#include "support/fixture.h"

using namespace Qt::StringLiterals;

namespace {

TEST(fold_like, literal_likes_become_equalities_of_folded_texts) {
    const struct {
        const char* statement;
        const char* expected; // nullptr: left as it is
    } cases[] = {
        {"Select * from pagar WHERE estatus like ('Concluído') AND origem like ('Itaú')",
         "Select * from pagar WHERE (quintara_fold(estatus) = quintara_fold('Concluído')) AND "
         "(quintara_fold(origem) = quintara_fold('Itaú'))"},
        {"SELECT * FROM pagar where(código like '12')",
         "SELECT * FROM pagar where((quintara_fold(código) = quintara_fold('12')))"},
        {"select * from banco order by [banco]", nullptr},
        {"SELECT * FROM [pagar] where [origem] like 'Itaú' AND [estatus] like 'Concluído' order by data",
         "SELECT * FROM [pagar] where (quintara_fold([origem]) = quintara_fold('Itaú')) AND "
         "(quintara_fold([estatus]) = quintara_fold('Concluído')) order by data"},
        // two folded columns beside an OR are never merged into one IN list (which loses rows)
        {"select * from [bancario] where (origem like 'Itaú' OR [destino] like 'Itaú') AND [estatus] like "
         "'X'",
         "select * from [bancario] where ((quintara_fold(origem) = quintara_fold('Itaú') AND 1) OR "
         "(quintara_fold([destino]) = quintara_fold('Itaú') AND 1)) AND (quintara_fold([estatus]) = "
         "quintara_fold('X') AND 1)"},
        // wildcards keep LIKE
        {"SELECT * FROM pagar where(data like '%2026%')", nullptr},
        {"SELECT * FROM pagar where(descricao like 'a_c')", nullptr},
        // what binds tighter than LIKE, a negation, a text that only looks like a comparison
        {"SELECT * FROM banco WHERE banco not like 'x'", nullptr},
        {"SELECT * FROM banco WHERE banco like 'x' || 'y'", nullptr},
        {"SELECT * FROM banco WHERE informacoes || banco like 'x'", nullptr},
        {"SELECT * FROM banco WHERE informacoes = 'a like ' AND banco like 'b'",
         "SELECT * FROM banco WHERE informacoes = 'a like ' AND (quintara_fold(banco) = quintara_fold('b'))"},
        // removals and changes run as written
        {"Delete FROM banco where (banco like 'Itaú')", nullptr},
        {"UPDATE pagar SET descricao='Luz' where(descricao like 'Energia')", nullptr},
    };
    for (const auto& c : cases) {
        const QString s = QString::fromUtf8(c.statement);
        EXPECT_EQ(sql::fold_like_literals(s), c.expected ? QString::fromUtf8(c.expected) : s) << c.statement;
    }
}

class fold_like_rows : public support::fixture {
protected:
    QStringList found(const QString& pattern, bool rewritten) {
        // like(pattern, name) is the function itself, which the rewrite never touches
        return rows(
            rewritten ? u"SELECT rowid FROM banco WHERE banco like '"_s + pattern + u"' ORDER BY rowid"_s
                      : u"SELECT rowid FROM banco WHERE like('"_s + pattern + u"', banco) ORDER BY rowid"_s);
    }
};

TEST_F(fold_like_rows, the_rewritten_form_finds_exactly_what_like_finds) {
    for (const char* nome :
         {"Itaú", "ITAÚ", "itau", "Caixa", "Caixa interno", "K", "k", "\u212A", "ß", "SS", ""})
        exec(u"INSERT INTO banco (banco) VALUES ('"_s + QString::fromUtf8(nome) + u"')"_s);
    exec(u"INSERT INTO banco (banco) VALUES (NULL)"_s);
    exec(u"INSERT INTO banco (banco) VALUES (12)"_s);
    // bytes that are no proper UTF-8: LIKE reads C1 89 as "I", and so must the folding
    exec(u"INSERT INTO banco (banco) VALUES (CAST(X'C1897461C3BA' AS TEXT))"_s);
    exec(u"INSERT INTO banco (banco) VALUES (CAST(X'C3' AS TEXT))"_s);
    const char* patterns[] = {"Itaú", "itaú", "ITAU", "caixa", "CAIXA INTERNO", "k", "K", "ß",
                              "ss",   "",     "12",   "Ã"};
    for (bool indexed : {false, true}) {
        if (indexed) exec(u"CREATE INDEX banco_dobrado ON banco (quintara_fold(banco))"_s);
        for (const char* p : patterns) {
            const QString pattern = QString::fromUtf8(p);
            EXPECT_EQ(found(pattern, true), found(pattern, false)) << p << (indexed ? " (indexed)" : "");
        }
    }
    EXPECT_EQ(found(u"itaú"_s, true).size(), 3); // Itaú, ITAÚ and the odd bytes
    // rows written after the index are folded on their way in
    exec(u"INSERT INTO banco (banco) VALUES ('iTaÚ')"_s);
    EXPECT_EQ(found(u"itaú"_s, true).size(), 4);
    EXPECT_EQ(found(u"itaú"_s, true), found(u"itaú"_s, false));
}

TEST_F(fold_like_rows, an_index_on_the_folded_name_serves_the_balance_statements) {
    exec(u"CREATE INDEX pagar_dobrado ON pagar (quintara_fold(origem), quintara_fold(estatus))"_s);
    const auto statements = banks::balance_statements(u"Itaú"_s);
    const QStringList plan = rows(u"EXPLAIN QUERY PLAN "_s + sql::fold_like_literals(statements[0]));
    ASSERT_FALSE(plan.isEmpty());
    EXPECT_TRUE(plan.join(u'\n').contains(u"pagar_dobrado"_s)) << plan.join(u'\n').toStdString();
}

} // namespace
