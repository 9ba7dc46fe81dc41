// What the account and movement windows check and write, against tests/data/banks/texts.txt.
#include "banks/account_record.h"
#include "banks/balance.h"
#include "banks/movimento_bancario.h"
#include "platform/sql/jet_dialect.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;

namespace {

QString or_none(const QString& s) {
    return s.isEmpty() ? u"(none)"_s : s;
}

QStringList run(const QString& line) {
    const QString what = line.section(u' ', 0, 0);
    const QStringList b = support::bracketed(line);
    try {
        if (what == u"account_fields"_s) return {or_none(banks::account_fields_message(b[0], b[1]))};
        if (what == u"account_statement"_s) return {sql::without_marks(banks::account_statement(b[0]))};
        if (what == u"info_column"_s) return {u'[' + banks::info_column(b[0]) + u']'};
        if (what == u"opening_balance_text"_s) return {banks::opening_balance_text(b[0])};
        if (what == u"saldo_to_write"_s) return {banks::saldo_to_write(b[0], b[1], b[2])};
        if (what == u"list_amount_text"_s) return {banks::list_amount_text(b[0])};
        if (what == u"rounded_amount"_s) {
            const auto v = banks::rounded_amount(b[0]);
            return {v ? u"raw "_s + QString::number(v->raw()) : u"(no amount)"_s};
        }
        if (what == u"movement_blank"_s) {
            const auto& twin =
                line.section(u' ', 1, 1) == u"adicionar"_s ? banks::twin_adicionar() : banks::twin_editar();
            return {or_none(banks::blank_field_message(twin, b[0], b[1]))};
        }
        if (what == u"shows_destino"_s) return {banks::shows_destino(b[0]) ? u"shown"_s : u"hidden"_s};
        if (what == u"movement_columns"_s) {
            QStringList out;
            for (const auto& [column, text] :
                 banks::movement_columns({b[0], b[1], b[2], b[3], b[4], b[5], b[6]}))
                out << column + u"=["_s + text + u']';
            return out;
        }
        if (what == u"movement_by_code"_s) return {banks::movement_by_code(b[0].toDouble())};
        if (what == u"balance"_s) {
            const auto p = b.size() > 1 ? std::optional(banks::period{b[1], b[2]}) : std::nullopt;
            const auto s = banks::balance_statements(b[0], p);
            QStringList out;
            for (const QString& x : s)
                out << sql::without_marks(x);
            return out;
        }
    } catch (const std::exception& e) {
        return {u"throws "_s + QString::fromUtf8(e.what())};
    }
    return {u"(unknown input)"_s};
}

} // namespace

TEST(bank_texts, checks_columns_and_statements_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"banks/texts.txt"_s, run));
}
