#include "entries/recibo.h"

#include "platform/errors.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

namespace entries {

namespace {

const QString seu_nome = QStringLiteral("Seu nome e ou empresa");

// Format(text, fmt) on an amount text: a text that is no amount (or none the currency holds)
// stays as it is.
QString formatar_valor(const QString& texto, const QString& prefixo) {
    try {
        if (const auto v = vb::ccur(texto)) return vb::format_money_prefixed(*v, prefixo);
    } catch (const vb::overflow_error&) {
    }
    return texto;
}

} // namespace

QString legenda_recibo(shell::ledger which) {
    return which == shell::ledger::pagar ? QStringLiteral("Recibo de contas a pagar")
                                         : QStringLiteral("Recibo de contas a receber");
}

recibo_campos ler_recibo(shell::ledger which, double codigo, const QDate& hoje) {
    const bool pagar = which == shell::ledger::pagar;
    recibo_campos r;
    sql::recordset rs;
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(shell::entry_by_code(which, codigo), store::conexao, sql::keyset, sql::read_only);
    });
    // every assignment on its own: a missing row fails the ones that read it, not the others
    const auto ler = [&rs](const QString& coluna, std::optional<QString>& campo) {
        platform::ignore_errors([&] {
            if (rs.is_open() && !rs.eof()) campo = rs.text(coluna);
        });
    };
    if (pagar) {
        ler(store::coluna::fornecedor, r.pagamento);
        r.recibo = seu_nome;
    } else {
        r.pagamento = seu_nome;
        ler(store::coluna::cliente, r.recibo);
    }
    ler(store::coluna::descricao, r.referente);
    r.data = vb::dmy(hoje);
    ler(store::coluna::valor, r.valor);
    // the expense receipt shows its amount plain, the income receipt with the prefix
    if (r.valor) r.valor = formatar_valor(*r.valor, pagar ? QString() : QStringLiteral("R$ "));
    platform::ignore_errors([&] { rs.close(); });
    return r;
}

QStringList linhas_recibo(const recibo_texto& r) {
    const QString cinco = QString(5, QLatin1Char(' '));
    return {
        r.legenda + QLatin1Char(' '),
        QLatin1Char(' ') + QString(77, QLatin1Char('_')),
        QStringLiteral(" "),
        QStringLiteral("  Pagamento para:") + cinco + r.pagamento,
        QString(),
        QStringLiteral("  Recibo de:") + cinco + r.recibo,
        QString(),
        QStringLiteral("  Referênte a:") + cinco + r.referente,
        QStringLiteral(" "),
        // the amount is read from the text, so a prefix typed or shown there is not doubled
        QStringLiteral("  Valor:") + QStringLiteral("     R$ ") + formatar_valor(r.valor, QString()),
        QString(),
        QStringLiteral("  Data:") + cinco + r.data,
        QStringLiteral(" "),
        QString(60, QLatin1Char(' ')) + QStringLiteral("Assinatura") + QString(8, QLatin1Char(' ')),
        QString(37, QLatin1Char(' ')) + QString(42, QLatin1Char('_')),
        QLatin1Char(' ') + QString(78, QLatin1Char('_')),
    };
}

} // namespace entries
