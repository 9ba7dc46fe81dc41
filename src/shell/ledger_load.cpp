#include "shell/ledger_load.h"

#include "platform/errors.h"
#include "platform/sql/row_stream.h"
#include "shell/ledger_statement.h"
#include "store/conexao.h"
#include "store/names.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include <exception>
#include <limits>
#include <numeric>
#include <utility>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

const QString fmt_dmy = u"dd/mm/yyyy"_s;

// Stored text that is not UTF-8 shows as the decoder reads it, piece by piece.
QByteArrayView valid_utf8(QByteArrayView bytes, QByteArray& keep) {
    if (bytes.isValidUtf8()) return bytes;
    keep = QString::fromUtf8(bytes).toUtf8();
    return keep;
}

// The two forms of a date the file holds, as the lists show it ("dd/mm/yyyy"); nothing for
// anything else, which goes through the date format.
std::optional<std::array<char, 10>> quick_display_date(const char* p, qsizetype n) {
    if (n != 10) return std::nullopt;
    const auto all_digits = [p](std::initializer_list<int> at) {
        for (int i : at)
            if (p[i] < '0' || p[i] > '9') return false;
        return true;
    };
    const auto number = [p](int from, int len) {
        int v = 0;
        for (int i = from; i < from + len; ++i)
            v = v * 10 + (p[i] - '0');
        return v;
    };
    if (p[4] == '/' && p[7] == '/' && all_digits({0, 1, 2, 3, 5, 6, 8, 9})) {
        const int y = number(0, 4), m = number(5, 2), d = number(8, 2);
        if (y >= 1000 && QDate::isValid(y, m, d))
            return std::array<char, 10>{p[8], p[9], '/', p[5], p[6], '/', p[0], p[1], p[2], p[3]};
    } else if (p[2] == '/' && p[5] == '/' && all_digits({0, 1, 3, 4, 6, 7, 8, 9})) {
        const int d = number(0, 2), m = number(3, 2), y = number(6, 4);
        if (y >= 1000 && QDate::isValid(y, m, d))
            return std::array<char, 10>{p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9]};
    }
    return std::nullopt;
}

// The display text of a stored amount and what it adds to a total: the text through
// "##,##0.00", and the sum takes that formatted value, so each addend is rounded to cents.
// Text that cannot be read shows as it is and adds nothing.
struct amount {
    QString text;
    vb::currency addend;
    bool counts = false;
};

amount read_amount(const QString& stored) {
    const std::optional<vb::currency> c = vb::ccur(stored);
    if (!c) return {stored, {}, false};
    const std::int64_t raw = c->raw();
    // at the edge of the range the formatted text would not read back: shown, not summed
    constexpr std::int64_t edge = std::numeric_limits<std::int64_t>::max() - 100;
    if (raw > edge || raw < -edge) return {vb::format_money(*c), {}, false};
    const vb::currency shown = vb::round_to_cents(*c);
    return {vb::format_money(shown), shown, true};
}

// "N cadastros  -  Total de despesas: R$ ...", and the receber twin's words.
QString entry_label(ledger which, const QString& n, const QString& total, const QString& baixado,
                    const QString& pendente) {
    const ledger_traits& t = traits(which);
    return n + t.cadastros + u"  -  "_s + t.total_de + u": "_s + total + u"  -  "_s + t.total_baixado +
           u": "_s + baixado + u"  -  Total pendente: "_s + pendente;
}

QString entry_label(ledger which, const ledger_view& v) {
    const auto money = [](vb::currency c) { return u"R$ "_s + vb::format_money(c); };
    return entry_label(which, QString::number(v.rows.size()), money(v.total), money(v.pago),
                       money(v.pendente));
}

QString movement_label(const ledger_view& v) {
    return u"Depósitos: R$ "_s + vb::format_money(v.depositos) + u" ("_s + QString::number(v.n_depositos) +
           u" cad.) - Retiradas: R$ "_s + vb::format_money(v.retiradas) + u" ("_s +
           QString::number(v.n_retiradas) + u" cad.) - Transferência: R$ "_s +
           vb::format_money(v.transferencias) + u" ("_s + QString::number(v.n_transferencias) + u" cad.)"_s;
}

// What a row adds to the label's sums; they are added up once the rows stand in their final
// order, so that a sum kept at the edge of the range keeps the same addends as before.
struct tally {
    vb::currency addend;
    bool counts = false;
    std::uint8_t bucket = 0; // entries: 0 settled, 1 pending; movements: 0 deposit, 1 withdrawal, 2 transfer
};

// The rows of a walk in reading order, and what each adds.
struct walked {
    platform::row_table rows;
    std::vector<tally> tallies;
};

// The record set as a source of rows, from its current row on.
class recordset_rows {
public:
    explicit recordset_rows(sql::recordset& rs) : rs_(rs) {}
    bool next() {
        if (started_) rs_.move_next();
        started_ = true;
        return !rs_.eof();
    }
    int index_of(const QString& name) const { return rs_.index_of(name); }
    QByteArrayView raw(int index) const { return rs_.raw(index); }

private:
    sql::recordset& rs_;
    bool started_ = false;
};

template <class Source> inline QByteArrayView stored(const Source& src, int index) {
    return index < 0 ? QByteArrayView() : src.raw(index);
}

// Builds one cell from pieces, reusing its buffer from row to row.
class cell_text {
public:
    cell_text& clear() {
        buf_.clear();
        return *this;
    }
    cell_text& add(QByteArrayView bytes) {
        const QByteArrayView b = valid_utf8(bytes, keep_);
        buf_.append(b.data(), std::size_t(b.size()));
        return *this;
    }
    cell_text& add(const QString& text) {
        keep_ = text.toUtf8();
        buf_.append(keep_.constData(), std::size_t(keep_.size()));
        return *this;
    }
    cell_text& date(QByteArrayView stored) {
        if (const auto quick = quick_display_date(stored.data(), stored.size()))
            buf_.append(quick->data(), quick->size());
        else
            add(display_date(QString::fromUtf8(stored)));
        return *this;
    }
    QByteArrayView bytes() const { return {buf_.data(), qsizetype(buf_.size())}; }

private:
    std::string buf_;
    QByteArray keep_;
};

template <class Source> void walk_entries(ledger which, Source& rs, walked& w) {
    const int i_codigo = rs.index_of(store::coluna::codigo);
    const int i_data = rs.index_of(store::coluna::data);
    const int i_descricao = rs.index_of(store::coluna::descricao);
    const int i_documento = rs.index_of(store::coluna::documento);
    const int i_contato = rs.index_of(traits(which).contato);
    const int i_vencimento = rs.index_of(store::coluna::vencimento);
    const int i_moeda = rs.index_of(store::coluna::moeda);
    const int i_valor = rs.index_of(store::coluna::valor);
    const int i_estatus = rs.index_of(store::coluna::estatus);
    const int i_origem = rs.index_of(store::coluna::origem);
    const int i_informacoes = rs.index_of(store::coluna::informacoes);
    const QByteArray pendente = store::palavra::pendente.toUtf8();
    platform::row_table& t = w.rows;
    cell_text cell;

    while (rs.next()) {
        const amount a = read_amount(QString::fromUtf8(stored(rs, i_valor)));
        const QByteArrayView estatus = stored(rs, i_estatus);
        t.add_cell(stored(rs, i_codigo));
        t.add_cell(cell.clear().date(stored(rs, i_data)).bytes());
        t.add_cell(stored(rs, i_descricao));
        t.add_cell(cell.clear().add(stored(rs, i_documento)).add(QByteArrayView(" ")).bytes());
        t.add_cell(stored(rs, i_contato));
        t.add_cell(cell.clear().date(stored(rs, i_vencimento)).bytes());
        t.add_cell(cell.clear().add(stored(rs, i_moeda)).add(QByteArrayView(" ")).add(a.text).bytes());
        t.add_cell(estatus);
        t.add_cell(stored(rs, i_origem));
        t.add_cell(cell.clear().add(stored(rs, i_informacoes)).add(QByteArrayView(" ")).bytes());
        t.end_row();
        w.tallies.push_back({a.addend, a.counts, std::uint8_t(estatus == pendente ? 1 : 0)});
    }
}

template <class Source> void walk_movements(Source& rs, walked& w) {
    const int i_codigo = rs.index_of(store::coluna::codigo);
    const int i_data = rs.index_of(store::coluna::data);
    const int i_movimento = rs.index_of(store::coluna::movimento);
    const int i_origem = rs.index_of(store::coluna::origem);
    const int i_destino = rs.index_of(store::coluna::destino);
    const int i_valor = rs.index_of(store::coluna::valor);
    const int i_estatus = rs.index_of(store::coluna::estatus);
    const int i_informacoes = rs.index_of(store::coluna::informacoes);
    const QString deposito_upper = store::palavra::deposito.toUpper();
    const QString retirada_upper = store::palavra::retirada.toUpper();
    // kinds compare in upper case; anything else counts as a transfer
    const auto bucket_of = [&](const QString& movimento) -> std::uint8_t {
        if (movimento == store::palavra::deposito ||
            (movimento != store::palavra::retirada && movimento.toUpper() == deposito_upper))
            return 0;
        if (movimento == store::palavra::retirada || movimento.toUpper() == retirada_upper) return 1;
        return 2;
    };
    // a column of few words: the kind of the last word seen is kept
    std::string last_kind;
    std::uint8_t last_bucket = 0;
    bool any_kind = false;
    platform::row_table& t = w.rows;
    cell_text cell;

    while (rs.next()) {
        const amount a = read_amount(QString::fromUtf8(stored(rs, i_valor)));
        const QByteArrayView movimento = stored(rs, i_movimento);
        const std::string_view kind(movimento.data(), std::size_t(movimento.size()));
        if (!any_kind || kind != last_kind) {
            last_kind.assign(kind);
            last_bucket = bucket_of(QString::fromUtf8(movimento));
            any_kind = true;
        }
        t.add_cell(stored(rs, i_codigo));
        t.add_cell(cell.clear().date(stored(rs, i_data)).bytes());
        t.add_cell(movimento);
        t.add_cell(stored(rs, i_origem));
        t.add_cell(stored(rs, i_destino));
        t.add_cell(cell.clear().add(QByteArrayView("R$ ")).add(a.text).bytes());
        t.add_cell(stored(rs, i_estatus));
        t.add_cell(stored(rs, i_informacoes));
        t.end_row();
        w.tallies.push_back({a.addend, a.counts, last_bucket});
    }
}

// The rows in the given order, the sums and the label.
ledger_view finish(ledger which, walked&& w, std::vector<std::uint32_t> order) {
    ledger_view v;
    const auto add = [&](const tally& t) {
        if (which != ledger::bancario) {
            if (!t.counts) return;
            vb::add_or_keep(v.total, t.addend);
            vb::add_or_keep(t.bucket == 1 ? v.pendente : v.pago, t.addend);
            return;
        }
        vb::currency* sums[] = {&v.depositos, &v.retiradas, &v.transferencias};
        long* counts[] = {&v.n_depositos, &v.n_retiradas, &v.n_transferencias};
        if (t.counts) vb::add_or_keep(*sums[t.bucket], t.addend);
        ++*counts[t.bucket];
    };
    v.rows = std::move(w.rows);
    v.rows.set_order(std::move(order));
    for (const std::uint32_t i : v.rows.order())
        add(w.tallies[i]);
    v.label = which == ledger::bancario ? movement_label(v) : entry_label(which, v);
    return v;
}

template <class Source> walked walk(ledger which, Source& src, std::size_t expected) {
    walked w;
    w.tallies.reserve(expected);
    // the loop ends where it failed; what was read stays
    platform::ignore_errors([&] {
        if (which == ledger::bancario)
            walk_movements(src, w);
        else
            walk_entries(which, src, w);
    });
    return w;
}

} // namespace

QString display_date(const QString& stored) {
    if (stored.size() == 10) {
        char ascii[10];
        bool narrow = true;
        for (int i = 0; i < 10 && narrow; ++i) {
            narrow = stored[i].unicode() < 0x80;
            ascii[i] = char(stored[i].unicode());
        }
        if (narrow)
            if (const auto quick = quick_display_date(ascii, 10))
                return QString::fromLatin1(quick->data(), 10);
    }
    return vb::format_date_text(stored, fmt_dmy);
}

ledger_view load_rows(ledger which, sql::recordset& rs) {
    const long n = rs.record_count() - rs.absolute_position();
    recordset_rows src(rs);
    walked w = walk(which, src, n > 0 ? std::size_t(n) : 0);
    std::vector<std::uint32_t> order(w.rows.stored());
    std::iota(order.begin(), order.end(), 0u);
    return finish(which, std::move(w), order);
}

ledger_view load_ledger(ledger which, const QString& consulta, const std::function<void()>& before_walk) {
    try {
        store::conectarbanco();
        // the rows go straight from the engine into display texts: a long list is never held twice
        sql::row_stream src(store::conexao, bounds_in_order(consulta));
        if (!src.next()) {
            ledger_view v;
            v.label = empty_label(which);
            return v;
        }
        if (before_walk) before_walk();
        // the first row is already read; an engine that fails mid-way fails the whole load, as
        // when every row was read before the first was shown
        struct from_first {
            sql::row_stream& s;
            bool first = true;
            bool failed = false;
            bool next() {
                if (std::exchange(first, false)) return true;
                try {
                    return s.next();
                } catch (...) {
                    failed = true;
                    throw;
                }
            }
            int index_of(const QString& name) const { return s.index_of(name); }
            QByteArrayView raw(int index) const { return s.raw(index); }
        } rows{src};
        walked w = walk(which, rows, 0);
        if (rows.failed) throw sql::error(store::conexao->last_error());
        // the pages of a long list are not read again soon; the list holds what it needs
        store::conexao->release_memory();
        return finish(which, std::move(w), src.order());
    } catch (const std::exception&) {
        ledger_view v;
        v.label = empty_label(which);
        return v;
    }
}

std::array<QStringList, 3> load_boxes(ledger which) {
    const auto boxes = distinct_boxes(which);
    std::array<QStringList, 3> out;
    platform::ignore_errors([] { store::conectarbanco(); });
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        out[i] << boxes[i].first;
        platform::ignore_errors([&] {
            sql::recordset rs;
            rs.open(boxes[i].statement, store::conexao, sql::keyset, sql::read_only);
            const int col = rs.index_of(boxes[i].column);
            for (; !rs.eof(); rs.move_next()) {
                // a null cannot be added to a box; the old routine skipped it
                const QVariant v = rs.value(col);
                if (!v.isNull()) out[i] << v.toString();
            }
        });
    }
    return out;
}

QString empty_label(ledger which) {
    // the totals of an empty result are joined as plain zeros, without the money format
    if (which != ledger::bancario) return entry_label(which, u"0"_s, u"0"_s, u"0"_s, u"0"_s);
    return movement_label(ledger_view{});
}

QString waiting_text() {
    return u"Por favor aguarde enquanto o software carrega os dados, este processo pode demorar dependendo "
           u"do "
           u"tamanho do banco de dados."_s;
}

} // namespace shell
