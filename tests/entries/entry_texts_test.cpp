// What the entry screens say and how they are dressed, against tests/data/entries/entry_texts.txt.
#include "entries/instalments.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

ledger ledger_of(const QString& s) {
    return s == u"receber"_s ? ledger::receber : ledger::pagar;
}

QString dressed(const entries::dress& d) {
    return d.titulo + u" | "_s + (d.despesa ? u"PIC1"_s : u"PIC2"_s) + u" | "_s + d.botao;
}

QStringList run(const QString& line) {
    const QString what = line.section(u' ', 0, 0);
    const QString word = line.section(u' ', 1, 1);
    const QStringList b = support::bracketed(line);
    if (what == u"blank"_s || what == u"series_blank"_s) {
        entries::entry_fields f;
        f.descricao = b[0], f.nome = b[1], f.valor = b[2], f.data = b[3], f.vencimento = b.value(4);
        const QString m =
            what == u"blank"_s ? entries::blank_fields_message(f) : entries::series_blank_message(f);
        return m.isEmpty() ? QStringList{u"(none)"_s} : m.split(u'\n');
    }
    if (what == u"count"_s) {
        const double n = entries::read_count(b[0]), d = entries::read_count(b[1]);
        return {u"%1 parcelas, %2 dias: "_s.arg(n).arg(d) + entries::count_message(n, d)};
    }
    if (what == u"dress"_s) {
        const ledger k = ledger_of(line.section(u' ', 2, 2));
        return {dressed(word == u"adding"_s    ? entries::dress_for_adding(k)
                        : word == u"editing"_s ? entries::dress_for_editing(k)
                                               : entries::dress_for_series(k))};
    }
    if (what == u"saved_message"_s) return {entries::saved_message(ledger_of(word))};
    if (what == u"kind_of_caption"_s)
        return {entries::kind_of_caption(b[0], b[1]) == ledger::pagar ? u"pagar"_s : u"receber"_s};
    if (what == u"entry_statement"_s) return {entries::entry_statement(ledger_of(word), b[0])};
    if (what == u"instalment_info"_s)
        return {entries::instalment_info(b[0], b[1].toDouble(), b[2].toDouble())};
    if (what == u"sources"_s) {
        QStringList out;
        for (const auto& s : {entries::banks_for_adding(), entries::banks_for_editing(), entries::suppliers(),
                              entries::clients(), entries::cost_centres(), entries::profit_centres()})
            out << s.statement + u" | "_s + s.column;
        return out;
    }
    return {u"(unknown input)"_s};
}

} // namespace

TEST(entry_texts, messages_dress_and_statements_as_the_baseline_gives_them) {
    EXPECT_TRUE(support::matches_baseline(u"entries/entry_texts.txt"_s, run));
}
