#include "banks/balance.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/sql/row_stream.h"
#include "store/conexao.h"
#include "store/config.h"

namespace banks {

namespace {

const QString concluido_e_origem = QStringLiteral("WHERE estatus like ('Concluído') AND origem like ('");
const QString transferencia = QStringLiteral("') and movimento like ('Transferência entre contas')");
const QString line = QStringLiteral("\n");

enum class effect { less, more, by_kind };

} // namespace

std::array<QString, 5> balance_statements(const QString& nome, const std::optional<period>& periodo) {
    const QString n = sql::value(nome);
    std::array<QString, 5> s = {
        QStringLiteral("Select * from pagar ") + concluido_e_origem + n + QStringLiteral("')"),
        QStringLiteral("Select * from receber ") + concluido_e_origem + n + QStringLiteral("')"),
        QStringLiteral("Select * from bancario ") + concluido_e_origem + n + QStringLiteral("')"),
        QStringLiteral("Select * from bancario ") + concluido_e_origem + n + transferencia,
        QStringLiteral("Select * from bancario WHERE estatus like ('Concluído') AND destino like ('") + n +
            transferencia,
    };
    if (periodo) {
        const QString tail = QStringLiteral(" AND data BETWEEN ('") + sql::value(periodo->de) +
                             QStringLiteral("') AND ('") + sql::value(periodo->ate) + QStringLiteral("')");
        for (QString& x : s)
            x += tail;
    }
    return s;
}

std::optional<vb::currency> rounded_amount(const QString& stored) {
    const auto c = vb::ccur(stored);
    if (!c) return std::nullopt;
    return vb::round_to_cents(*c);
}

int walk_account(const sql::connection_ptr& conn, const QString& nome, const std::optional<period>& periodo,
                 const std::array<int, 5>& ordem, const std::function<void(const statement_row&)>& visit) {
    // taken as given: a first day after the last finds nothing, whatever the dialect makes of it
    if (periodo && QString::compare(periodo->de, periodo->ate, Qt::CaseSensitive) > 0) return 0;
    const auto statements = balance_statements(nome, periodo);
    int falhas = 0;
    statement_row row;
    for (const int i : ordem) {
        try {
            // only the columns the sums read: the account indexes hold them, and the rows are
            // read from the index alone
            const bool movimentos = i == consulta_movimentos;
            QString text = statements[std::size_t(i)];
            text.replace(0, 8,
                         movimentos ? QStringLiteral("Select valor, movimento")
                                    : QStringLiteral("Select valor"));
            // every row is read before the first counts, so a statement that fails counts nothing
            std::vector<std::pair<QString, QString>> rows;
            sql::row_stream rs(conn, text);
            while (rs.next())
                rows.emplace_back(QString::fromUtf8(rs.raw(0)),
                                  movimentos ? QString::fromUtf8(rs.raw(1)) : QString());
            row.statement = i;
            for (auto& [valor, movimento] : rows) {
                row.valor = std::move(valor);
                row.movimento = std::move(movimento);
                visit(row);
            }
        } catch (const sql::error&) {
            ++falhas;
        }
    }
    return falhas;
}

account_balance compute_balance(const sql::connection_ptr& conn, const QString& nome, const QString& saldo,
                                const std::optional<period>& periodo) {
    account_balance b;
    b.inicial = rounded_amount(saldo).value_or(vb::currency());
    b.total = b.inicial;
    const effect effects[5] = {effect::less, effect::more, effect::by_kind, effect::less, effect::more};
    vb::currency* sums[5] = {&b.despesas, &b.receitas, nullptr, &b.transferido, &b.recebido};
    b.falhas = walk_account(conn, nome, periodo, ordem_do_saldo, [&](const statement_row& r) {
        const auto v = rounded_amount(r.valor);
        if (!v) return;
        effect e = effects[r.statement];
        vb::currency* sum = sums[r.statement];
        if (e == effect::by_kind) {
            if (r.movimento == store::palavra::deposito) {
                e = effect::more;
                sum = &b.depositos;
            } else if (r.movimento == store::palavra::retirada) {
                e = effect::less;
                sum = &b.retiradas;
            } else {
                return;
            }
        }
        vb::add_or_keep(*sum, *v);
        if (e == effect::more)
            vb::add_or_keep(b.total, *v);
        else
            vb::subtract_or_keep(b.total, *v);
    });
    return b;
}

QString list_amount(vb::currency v) {
    return QStringLiteral("R$ ") + vb::format_money(v);
}

QString list_amount_text(const QString& stored) {
    return QStringLiteral("R$ ") + vb::reformat_money_text(stored);
}

bool atualizar_saldo() {
    return vb::val(store::setting(store::secao_config, QStringLiteral("AtualizarSaldo"),
                                  QStringLiteral("1"))) != 0.0;
}

std::vector<QStringList> account_rows(bool atualizar, const account_rows_hooks& hooks) {
    std::vector<QStringList> rows;
    store::conectarbanco();
    // errors ignored: what was read stays
    platform::ignore_errors([&] {
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT * FROM banco"), store::conexao, sql::keyset, sql::read_only);
        const int banco = rs.index_of(store::coluna::banco);
        const int informacoes = rs.index_of(store::coluna::informacoes);
        const int saldo = rs.index_of(store::coluna::saldo);
        if (rs.eof()) return;
        if (atualizar && hooks.before_walk) hooks.before_walk(int(rs.record_count()));
        rows.reserve(std::size_t(rs.record_count()));
        int feitas = 0;
        for (; !rs.eof(); rs.move_next()) {
            const QString nome = rs.text(banco);
            const QString inicial = rs.text(saldo);
            const QString info = rs.text(informacoes);
            if (!atualizar) {
                const QString shown = list_amount_text(inicial);
                rows.push_back({nome, shown, info, shown});
                continue;
            }
            const account_balance b = compute_balance(store::conexao, nome, inicial);
            rows.push_back({nome, list_amount(b.total), info, list_amount_text(inicial)});
            if (hooks.progress) hooks.progress(++feitas);
        }
    });
    return rows;
}

QString resumo_caixa(const std::vector<QStringList>& rows) {
    QString out;
    vb::currency soma_inicial, soma_atual, soma_movimento;
    for (const QStringList& row : rows) {
        const auto cell = [&row](int i) { return i < row.size() ? row[i] : QString(); };
        const vb::currency inicial = vb::money_of(cell(3));
        const vb::currency atual = vb::money_of(cell(1));
        vb::currency movimento = atual;
        if (!vb::subtract_or_keep(movimento, inicial)) movimento = {};
        vb::add_or_keep(soma_inicial, inicial);
        vb::add_or_keep(soma_atual, atual);
        vb::add_or_keep(soma_movimento, movimento);
        out += QStringLiteral("Caixa/Banco: ") + cell(0) + QLatin1Char('(') + cell(2) + QLatin1Char(')') +
               line + QStringLiteral("O saldo neste banco inicio com R$ ") + vb::cstr(inicial) + line +
               QStringLiteral("O saldo atual é R$ ") + vb::format_money(atual) + line +
               QStringLiteral("Movimentação de R$ ") + vb::format_money(movimento) + line + QLatin1Char('.') +
               line;
    }
    out += line + QLatin1Char('.') + line + QStringLiteral(" > REFERÊNCIAS RÁPIDAS");
    const struct {
        const char16_t* titulo;
        vb::currency soma;
    } totais[] = {{u"Valor total em caixa/banco", soma_atual},
                  {u"Valor total de inicio em caixa/banco", soma_inicial},
                  {u"Saldo total de movimentação ", soma_movimento}};
    for (const auto& t : totais)
        out += QString::fromUtf16(t.titulo) + line + QStringLiteral("R$ ") + vb::format_money(t.soma) + line +
               line;
    return out;
}

} // namespace banks
