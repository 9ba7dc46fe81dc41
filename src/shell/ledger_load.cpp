#include "shell/ledger_load.h"

#include "platform/errors.h"
#include "platform/sql/row_stream.h"
#include "shell/ledger_statement.h"
#include "store/conexao.h"
#include "store/names.h"

#include <string>
#include <string_view>
#include <unordered_map>

#include <exception>
#include <limits>
#include <numeric>
#include <utility>

namespace shell {

using namespace Qt::StringLiterals;

namespace {

const QString fmt_dmy = u"dd/mm/yyyy"_s;

inline bool is_digit(QChar c) {
    return c.unicode() >= '0' && c.unicode() <= '9';
}

inline int digits(const QChar* p, int n) {
    int v = 0;
    for (int i = 0; i < n; ++i)
        v = v * 10 + (p[i].unicode() - '0');
    return v;
}

// Ledgers repeat their words, names, dates and blanks from row to row: equal texts of a column
// share one string, which spares most of the memory of a long list and the time to free it. The
// stored bytes are the key, so a repeated text is neither decoded nor hashed as UTF-16 again.
class shared_texts {
public:
    // The display text of a stored text, made once per distinct stored text.
    template <class F> QString get(QByteArrayView bytes, F&& make) {
        const std::string_view key(bytes.data(), std::size_t(bytes.size()));
        const auto it = seen_.find(key);
        if (it != seen_.end()) return it->second;
        QString shown = make(QString::fromUtf8(bytes));
        // a column of unique texts stops growing the table
        if (seen_.size() < limit) seen_.emplace(std::string(key), shown);
        return shown;
    }
    QString get(QByteArrayView bytes) {
        return get(bytes, [](const QString& s) { return s; });
    }

private:
    struct hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>()(s); }
    };
    static constexpr std::size_t limit = 8192;
    std::unordered_map<std::string, QString, hash, std::equal_to<>> seen_;
};

QString with_blank(const QString& s) {
    QString out;
    out.reserve(s.size() + 1);
    out.append(s).append(QLatin1Char(' '));
    return out;
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
    std::vector<QStringList> rows;
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
    const QString& pendente = store::palavra::pendente;
    shared_texts datas, descricoes, documentos, contatos, moedas, estatus_, origens, informacoes;

    while (rs.next()) {
        const amount a = read_amount(QString::fromUtf8(stored(rs, i_valor)));
        QString estatus = estatus_.get(stored(rs, i_estatus));
        const QString moeda = moedas.get(stored(rs, i_moeda), with_blank);
        QString valor;
        valor.reserve(moeda.size() + a.text.size());
        valor.append(moeda).append(a.text);
        QStringList row;
        row.reserve(10);
        row.append(QString::fromUtf8(stored(rs, i_codigo)));
        row.append(datas.get(stored(rs, i_data), display_date));
        row.append(descricoes.get(stored(rs, i_descricao)));
        row.append(documentos.get(stored(rs, i_documento), with_blank));
        row.append(contatos.get(stored(rs, i_contato)));
        row.append(datas.get(stored(rs, i_vencimento), display_date));
        row.append(std::move(valor));
        w.tallies.push_back({a.addend, a.counts, std::uint8_t(estatus == pendente ? 1 : 0)});
        row.append(std::move(estatus));
        row.append(origens.get(stored(rs, i_origem)));
        row.append(informacoes.get(stored(rs, i_informacoes), with_blank));
        w.rows.push_back(std::move(row));
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
    const QString rs_prefix = u"R$ "_s;
    const QString deposito_upper = store::palavra::deposito.toUpper();
    const QString retirada_upper = store::palavra::retirada.toUpper();
    shared_texts datas, movimentos, contas, estatus, informacoes;

    while (rs.next()) {
        const amount a = read_amount(QString::fromUtf8(stored(rs, i_valor)));
        QString movimento = movimentos.get(stored(rs, i_movimento));
        QStringList row;
        row.reserve(8);
        row.append(QString::fromUtf8(stored(rs, i_codigo)));
        row.append(datas.get(stored(rs, i_data), display_date));
        // kinds compare in upper case; anything else counts as a transfer
        const bool deposito =
            movimento == store::palavra::deposito ||
            (movimento != store::palavra::retirada && movimento.toUpper() == deposito_upper);
        std::uint8_t bucket = 2;
        if (deposito)
            bucket = 0;
        else if (movimento == store::palavra::retirada || movimento.toUpper() == retirada_upper)
            bucket = 1;
        w.tallies.push_back({a.addend, a.counts, bucket});
        QString valor;
        valor.reserve(rs_prefix.size() + a.text.size());
        valor.append(rs_prefix).append(a.text);
        row.append(std::move(movimento));
        row.append(contas.get(stored(rs, i_origem)));
        row.append(contas.get(stored(rs, i_destino)));
        row.append(std::move(valor));
        row.append(estatus.get(stored(rs, i_estatus)));
        row.append(informacoes.get(stored(rs, i_informacoes)));
        w.rows.push_back(std::move(row));
    }
}

// The rows in the given order, the sums and the label.
ledger_view finish(ledger which, walked&& w, const std::vector<std::uint32_t>& order) {
    ledger_view v;
    v.rows.reserve(w.rows.size());
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
    for (const std::uint32_t i : order) {
        // a walk stopped by an error may have keyed a row it did not finish
        if (i >= w.rows.size()) continue;
        add(w.tallies[i]);
        v.rows.push_back(std::move(w.rows[i]));
    }
    v.label = which == ledger::bancario ? movement_label(v) : entry_label(which, v);
    return v;
}

template <class Source> walked walk(ledger which, Source& src, std::size_t expected) {
    walked w;
    w.rows.reserve(expected);
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
    // The two forms the file holds take a short road; anything else goes through the format.
    if (stored.size() == 10) {
        const QChar* p = stored.constData();
        const auto all_digits = [p](std::initializer_list<int> at) {
            for (int i : at)
                if (!is_digit(p[i])) return false;
            return true;
        };
        if (p[4] == QLatin1Char('/') && p[7] == QLatin1Char('/') && all_digits({0, 1, 2, 3, 5, 6, 8, 9})) {
            const int y = digits(p, 4), m = digits(p + 5, 2), d = digits(p + 8, 2);
            if (y >= 1000 && QDate::isValid(y, m, d)) {
                QString out(10, Qt::Uninitialized);
                QChar* o = out.data();
                o[0] = p[8], o[1] = p[9], o[2] = QLatin1Char('/'), o[3] = p[5], o[4] = p[6];
                o[5] = QLatin1Char('/'), o[6] = p[0], o[7] = p[1], o[8] = p[2], o[9] = p[3];
                return out;
            }
        } else if (p[2] == QLatin1Char('/') && p[5] == QLatin1Char('/') &&
                   all_digits({0, 1, 3, 4, 6, 7, 8, 9})) {
            const int d = digits(p, 2), m = digits(p + 3, 2), y = digits(p + 6, 4);
            if (y >= 1000 && QDate::isValid(y, m, d)) return stored;
        }
    }
    return vb::format_date_text(stored, fmt_dmy);
}

ledger_view load_rows(ledger which, sql::recordset& rs) {
    const long n = rs.record_count() - rs.absolute_position();
    recordset_rows src(rs);
    walked w = walk(which, src, n > 0 ? std::size_t(n) : 0);
    std::vector<std::uint32_t> order(w.rows.size());
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
