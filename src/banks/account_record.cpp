#include "banks/account_record.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"

namespace banks {

using vb::trim_blanks;

QString account_fields_message(const QString& valor, const QString& nome) {
    if (trim_blanks(valor).isEmpty()) return QStringLiteral("O campo valor deve ser preenchido!");
    if (trim_blanks(nome).isEmpty()) return QStringLiteral("O campo nome deve ser preenchido!");
    return {};
}

QString account_statement(const QString& nome) {
    return QStringLiteral("SELECT * FROM banco where(banco like '") + sql::value(nome) + QStringLiteral("')");
}

QString info_column(const QString& txtinfo) {
    return trim_blanks(txtinfo) + QLatin1Char(' ');
}

QString opening_balance_text(const QString& saldo) {
    const auto c = vb::ccur(saldo);
    return c ? vb::format_money_prefixed(*c) : saldo;
}

QString saldo_to_write(const QString& saldoselecionado, const QString& txtvalor, const QString& txtvalorini) {
    const bool unchanged = vb::ccur_or_throw(saldoselecionado) == vb::ccur_or_throw(txtvalor);
    return vb::reformat_money_checked(unchanged ? txtvalorini : txtvalor);
}

} // namespace banks
