// Texts a hostile user types or leaves in a shared file: each must come out exactly, or fail as
// the program's own rules say, and quickly.
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/list_view.h"
#include "store/names.h"
#include "support/fixture.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr long long overflow = -2; // marks "overflow" in the table below
constexpr long long unreadable = -1;

TEST(hostile_text, amounts_with_any_exponent_convert_at_once) {
    const struct {
        const char* text;
        long long raw;
    } cases[] = {
        {"1E-3000000", 0},
        {"5E-2147483647", 0},
        {"1,5E2147483647", overflow},
        {"1E99999999999999999999", overflow},
        {"0E99999999999999999999", 0},
        {"-0,0E2147483647", 0},
        {"9E14", 9'000'000'000'000'000'000},
        {"1E15", overflow},
        {"123456E-2", 12'345'600},
        {"1,5E2", 1'500'000},
        {"1E-4", 1},
        {"5E-5", 0},  // half to even: zero
        {"15E-5", 2}, // half to even: two
        {"5,1E-5", 1},
        {"1E", unreadable},
        {"1E+-2", unreadable},
    };
    for (const auto& c : cases) {
        const QString t = QString::fromUtf8(c.text);
        if (c.raw == overflow) {
            EXPECT_THROW(vb::ccur_or_throw(t), vb::overflow_error) << c.text;
            EXPECT_FALSE(vb::ccur(t).has_value()) << c.text;
            EXPECT_EQ(vb::money_of(t).raw(), 0) << c.text;
        } else if (c.raw == unreadable) {
            EXPECT_THROW(vb::ccur_or_throw(t), vb::type_mismatch) << c.text;
        } else {
            const auto r = vb::ccur(t);
            ASSERT_TRUE(r.has_value()) << c.text;
            EXPECT_EQ(r->raw(), c.raw) << c.text;
        }
    }
    EXPECT_EQ(vb::cdbl(u"1E-3000000"_s), 0.0);
    EXPECT_DOUBLE_EQ(vb::val(u"&H"_s + QString(40, u'F')), std::pow(16.0, 40));
}

TEST(hostile_text, years_are_written_with_four_digits_so_text_order_is_date_order) {
    EXPECT_EQ(vb::format_date_text(u"01/01/0100"_s, u"yyyy/mm/dd"_s), u"0100/01/01"_s);
    EXPECT_EQ(vb::dmy(QDate(100, 1, 1)), u"01/01/0100"_s);
    EXPECT_EQ(vb::cdate(u"0100/01/01"_s), QDate(100, 1, 1));
    const QDate dates[] = {QDate(100, 1, 1), QDate(999, 12, 31), QDate(1000, 1, 1), QDate(2026, 11, 23)};
    for (std::size_t i = 1; i < std::size(dates); ++i)
        EXPECT_LT(vb::ymd(dates[i - 1]), vb::ymd(dates[i])) << vb::ymd(dates[i - 1]).toStdString();
}

TEST(hostile_text, like_after_the_and_of_a_between_stays_as_written) {
    const QString fold = u"(quintara_fold(origem) = quintara_fold('x'))"_s;
    const struct {
        QString in, out;
    } cases[] = {
        {u"SELECT * FROM pagar WHERE Valor BETWEEN 0 AND origem like 'x'"_s, {}},
        {u"SELECT * FROM pagar WHERE data BETWEEN '1' AND '2' AND origem like 'x'"_s,
         u"SELECT * FROM pagar WHERE data BETWEEN '1' AND '2' AND "_s + fold},
        {u"SELECT * FROM pagar WHERE (a BETWEEN 1 AND 2) AND origem like ('x')"_s,
         u"SELECT * FROM pagar WHERE (a BETWEEN 1 AND 2) AND "_s + fold},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sql::fold_like_literals(c.in), c.out.isEmpty() ? c.in : c.out);
}

TEST(hostile_text, any_width_of_a_layout_file_becomes_a_pixel_width) {
    const struct {
        double twips;
        int pixels;
    } cases[] = {{1440, 96}, {1319.811, 88}, {0, 0}, {3.4e38, 100000}, {-3.4e38, -100000}};
    for (const auto& c : cases)
        EXPECT_EQ(list_view::twips_to_pixels(c.twips), c.pixels) << c.twips;
}

class hostile_sql : public support::fixture {};

TEST_F(hostile_sql, every_value_reaches_the_store_as_typed_or_its_statement_fails) {
    auto c = sql::connection::open(path(u"dados.qntbd"_s), store::senha_dados.toUtf8());
    const QString names[] = {u"Caixa"_s,       u"Caixa\uE000"_s, u"\uE000"_s,
                             u"Cai\uE000xa"_s, u"Caixa 😀"_s,     u"\U00100000"_s};
    for (const QString& n : names) {
        sql::recordset rs;
        rs.open(u"banco"_s, c, sql::keyset, sql::pessimistic);
        rs.add_new();
        rs.set(u"banco"_s, n);
        rs.update();
    }
    // each is found alone, and removing it leaves every other
    for (std::size_t i = 0; i < std::size(names); ++i) {
        const QString v = sql::value(names[i]);
        EXPECT_EQ(v, names[i]);
        sql::recordset rs;
        rs.open(u"SELECT * FROM banco where(banco like '"_s + v + u"')"_s, c);
        ASSERT_EQ(rs.record_count(), 1) << i;
        EXPECT_EQ(rs.text(u"banco"_s), names[i]);
        c->execute(u"Delete FROM banco where (banco like '"_s + v + u"')"_s);
        EXPECT_EQ(rows(u"SELECT banco FROM banco"_s).size(), qsizetype(std::size(names) - i - 1)) << i;
    }
    // an apostrophe, or a lone half of a surrogate pair (no UTF-8 text holds one), fails
    const QString refused[] = {u"O'Brien"_s, u"Caixa"_s + QChar(char16_t(0xD800)),
                               QChar(char16_t(0xDC00)) + u"'"_s};
    for (const QString& n : refused)
        EXPECT_THROW(c->execute(u"INSERT INTO banco (banco) VALUES ('"_s + sql::value(n) + u"')"_s),
                     sql::error);
    EXPECT_TRUE(rows(u"SELECT banco FROM banco"_s).isEmpty());
    // the message shows the statement as written, characters whose half looks like a mark included
    const QString shown = u"\U00100000'"_s;
    try {
        c->execute(u"SELECT * FROM banco where(banco like '"_s + sql::value(shown) + u"')"_s);
        ADD_FAILURE() << "ran";
    } catch (const sql::error& e) {
        EXPECT_TRUE(e.description().contains(u"like '"_s + shown + u"')"_s));
    }
}

} // namespace
