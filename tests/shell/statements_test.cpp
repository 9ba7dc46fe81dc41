// The statements and texts of the main window's lists, against tests/data/shell/statements.txt:
// each input line there is followed by what it gives.
#include "platform/sql/jet_dialect.h"
#include "shell/column_layout.h"
#include "shell/due_alerts.h"
#include "shell/filter_state.h"
#include "shell/ledger_load.h"
#include "shell/ledger_statement.h"
#include "shell/list_actions.h"
#include "shell/tips.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

ledger ledger_of(const QString& s) {
    return s == u"receber"_s ? ledger::receber : s == u"bancario"_s ? ledger::bancario : ledger::pagar;
}

// "pagar 2026-03-15 | filtro | tipo | baseado [| banco | centro | contato | anterior]", and the
// other forms: the first word names what is asked, the rest are its arguments, split on " | " when
// there is one, else on blanks.
QStringList run(const QString& line) {
    const QString what = line.section(u' ', 0, 0);
    const QString rest = line.section(u' ', 1);
    const QStringList a = rest.contains(u" | "_s) ? rest.split(u" | "_s) : rest.split(u' ');
    const auto day = [](const QString& s) { return QDate::fromString(s, u"yyyy-MM-dd"_s); };
    if (what == u"pagar"_s || what == u"receber"_s) {
        shell::entry_filters f = shell::default_entry_filters(ledger_of(what));
        QString* fields[] = {nullptr, &f.filtro, &f.tipo, &f.baseado, &f.banco, &f.centro, &f.contato};
        for (qsizetype i = 1; i < std::min<qsizetype>(a.size(), 7); ++i)
            *fields[i] = a[i];
        const auto s = shell::entry_statement(ledger_of(what), f, day(a[0]), a.value(7, u"anterior"_s));
        return {u"sqlatual: "_s + sql::without_marks(s.sqlatual),
                u"consulta: "_s + sql::without_marks(s.consulta)};
    }
    if (what == u"bancario"_s) {
        const auto s =
            shell::movement_statement({a[2], a[1], a[3], a[4] == u"asc"_s}, day(a[0]), u"anterior"_s);
        return {s.sqlatual + (s.consulta == s.sqlatual ? QString() : u" (opens: "_s + s.consulta + u')')};
    }
    if (what == u"date_serial"_s)
        return {shell::date_serial(a[0].toInt(), a[1].toInt(), a[2].toInt()).toString(u"yyyy-MM-dd"_s)};
    if (what == u"boxes"_s) {
        QStringList out;
        for (const auto& b : shell::distinct_boxes(ledger_of(a[0])))
            out << b.statement + u" | "_s + b.column + u" | "_s + b.first;
        return out;
    }
    if (what == u"header_order"_s)
        return {
            shell::header_order(ledger_of(a[0]), a[1].toInt(), a[2] == u"asc"_s).value_or(u"(nothing)"_s)};
    if (what == u"delete"_s) return {shell::delete_statement(ledger_of(a[0]), a[1].toDouble())};
    if (what == u"entry_by_code"_s) return {shell::entry_by_code(ledger_of(a[0]), a[1].toDouble())};
    if (what == u"delete_bank"_s) return {sql::without_marks(shell::delete_bank_statement(rest))};
    if (what == u"due"_s) return {shell::due_statement(ledger_of(a[0]), day(a[1]))};
    if (what == u"remove_question"_s) return {shell::remove_question(ledger_of(a[0]))};
    if (what == u"remove_bank_question"_s) return {shell::remove_bank_question(a[0], a[1])};
    if (what == u"settle_question"_s) return {shell::settle_question(ledger_of(a[0]))};
    if (what == u"view_notice_year"_s) return {shell::view_notice_year(day(a[0]))};
    if (what == u"view_notice_month"_s) return {shell::view_notice_month(day(a[0]))};
    if (what == u"empty_label"_s) return {shell::empty_label(ledger_of(a[0]))};
    if (what == u"pick_tip"_s)
        return {QString::number(shell::pick_tip(a[0].toInt(), [&] { return a[1].toDouble(); }))};
    if (what == u"single_text"_s) return {shell::single_text(a[0].toDouble())};
    if (what == u"read_single"_s) {
        const auto v = shell::read_single(rest);
        return {v ? QString::number(*v, 'g', 10) : u"(no number)"_s};
    }
    return {u"(unknown input)"_s};
}

} // namespace

TEST(statements, the_lists_statements_and_texts_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"shell/statements.txt"_s, run));
}

TEST(statements, box_values_enter_through_the_value_helper) {
    shell::entry_filters f = shell::default_entry_filters(ledger::pagar);
    f.banco = u"Banco D'Ávila"_s;
    EXPECT_TRUE(
        sql::has_poisoned_value(shell::entry_statement(ledger::pagar, f, QDate(2026, 3, 15), {}).consulta));
    EXPECT_TRUE(sql::has_poisoned_value(shell::delete_bank_statement(u"x') or (1=1"_s)));
}
