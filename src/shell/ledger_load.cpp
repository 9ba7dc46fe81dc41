#include "shell/ledger_load.h"

#include "platform/errors.h"
#include "shell/ledger_statement.h"
#include "store/conexao.h"
#include "store/names.h"

#include <QHash>

#include <exception>
#include <limits>

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

// A field by index, empty when the statement did not bring the column.
inline QString field(const sql::recordset& rs, int index) {
    return index < 0 ? QString() : rs.text(index);
}

// Ledgers repeat their words, names, dates and blanks from row to row: equal texts of a column
// share one string, which spares most of the memory of a long list and the time to free it.
class shared_texts {
public:
    // The display text of a stored text, made once per distinct stored text.
    template <class F> QString get(QString&& stored, F&& make) {
        const auto it = seen_.constFind(stored);
        if (it != seen_.constEnd()) return *it;
        QString shown = make(stored);
        // a column of unique texts stops growing the table
        if (seen_.size() < limit) seen_.emplace(std::move(stored), shown);
        return shown;
    }
    QString get(QString&& stored) {
        return get(std::move(stored), [](const QString& s) { return s; });
    }

private:
    static constexpr qsizetype limit = 8192;
    QHash<QString, QString> seen_;
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

void walk_entries(ledger which, sql::recordset& rs, ledger_view& v) {
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

    for (; !rs.eof(); rs.move_next()) {
        const amount a = read_amount(field(rs, i_valor));
        QString estatus = estatus_.get(field(rs, i_estatus));
        const QString moeda = moedas.get(field(rs, i_moeda), with_blank);
        QString valor;
        valor.reserve(moeda.size() + a.text.size());
        valor.append(moeda).append(a.text);
        QStringList row;
        row.reserve(10);
        row.append(field(rs, i_codigo));
        row.append(datas.get(field(rs, i_data), display_date));
        row.append(descricoes.get(field(rs, i_descricao)));
        row.append(documentos.get(field(rs, i_documento), with_blank));
        row.append(contatos.get(field(rs, i_contato)));
        row.append(datas.get(field(rs, i_vencimento), display_date));
        row.append(std::move(valor));
        if (a.counts) {
            vb::add_or_keep(v.total, a.addend);
            vb::add_or_keep(estatus == pendente ? v.pendente : v.pago, a.addend);
        }
        row.append(std::move(estatus));
        row.append(origens.get(field(rs, i_origem)));
        row.append(informacoes.get(field(rs, i_informacoes), with_blank));
        v.rows.push_back(std::move(row));
    }
}

void walk_movements(sql::recordset& rs, ledger_view& v) {
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

    for (; !rs.eof(); rs.move_next()) {
        const amount a = read_amount(field(rs, i_valor));
        QString movimento = movimentos.get(field(rs, i_movimento));
        QStringList row;
        row.reserve(8);
        row.append(field(rs, i_codigo));
        row.append(datas.get(field(rs, i_data), display_date));
        // kinds compare in upper case; anything else counts as a transfer
        const bool deposito =
            movimento == store::palavra::deposito ||
            (movimento != store::palavra::retirada && movimento.toUpper() == deposito_upper);
        vb::currency* sum = &v.transferencias;
        long* count = &v.n_transferencias;
        if (deposito) {
            sum = &v.depositos;
            count = &v.n_depositos;
        } else if (movimento == store::palavra::retirada || movimento.toUpper() == retirada_upper) {
            sum = &v.retiradas;
            count = &v.n_retiradas;
        }
        if (a.counts) vb::add_or_keep(*sum, a.addend);
        ++*count;
        QString valor;
        valor.reserve(rs_prefix.size() + a.text.size());
        valor.append(rs_prefix).append(a.text);
        row.append(std::move(movimento));
        row.append(contas.get(field(rs, i_origem)));
        row.append(contas.get(field(rs, i_destino)));
        row.append(std::move(valor));
        row.append(estatus.get(field(rs, i_estatus)));
        row.append(informacoes.get(field(rs, i_informacoes)));
        v.rows.push_back(std::move(row));
    }
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
    ledger_view v;
    const long n = rs.record_count() - rs.absolute_position();
    if (n > 0) v.rows.reserve(std::size_t(n));
    // the loop ends where it failed; what was read stays
    platform::ignore_errors([&] {
        if (which == ledger::bancario)
            walk_movements(rs, v);
        else
            walk_entries(which, rs, v);
    });
    v.label = which == ledger::bancario ? movement_label(v) : entry_label(which, v);
    return v;
}

ledger_view load_ledger(ledger which, const QString& consulta, const std::function<void()>& before_walk) {
    try {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(bounds_in_order(consulta), store::conexao, sql::keyset, sql::read_only);
        if (rs.eof()) {
            ledger_view v;
            v.label = empty_label(which);
            return v;
        }
        if (before_walk) before_walk();
        return load_rows(which, rs);
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
