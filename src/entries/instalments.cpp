#include "entries/instalments.h"

#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <cmath>
#include <optional>

namespace entries {

namespace {

const QDate serial_zero(1899, 12, 30);
// 01/01/100 and the last instant of 31/12/9999, the range of the old date type.
constexpr double first_serial = -657434.0;
constexpr double last_serial = 2958466.0;

void check_range(double serial) {
    if (!std::isfinite(serial) || serial < first_serial || serial >= last_serial) throw vb::overflow_error();
}

double add_month(double running) {
    // the date passes through its "dd/mm/yyyy" text first: the fraction of a day falls away
    const QDate next = date_of_serial(running).addMonths(1);
    if (next.year() > 9999) throw vb::overflow_error();
    return serial_of_date(next);
}

} // namespace

QString series_blank_message(const entry_fields& f) {
    entry_fields sem_vencimento = f;
    sem_vencimento.vencimento = QStringLiteral("-");
    return blank_fields_message(sem_vencimento);
}

double read_count(const QString& text) {
    const double v = vb::val(text);
    if (!std::isfinite(v)) throw vb::overflow_error();
    return v;
}

QString count_message(double parcelas, double dias) {
    if (parcelas < 1) return QStringLiteral("O número de parcelas não pode ser menor que 1!");
    if (dias < 1) return QStringLiteral("Os dias entre as parcelas não pode ser menor que 1!");
    return {};
}

double serial_of_date(const QDate& d) {
    return double(serial_zero.daysTo(d));
}

QDate date_of_serial(double serial) {
    check_range(serial);
    // before 1899 the day is still the whole part, toward zero, and the fraction the time
    return serial_zero.addDays(qint64(std::trunc(serial)));
}

double next_due(double running, const series_plan& p, double i) {
    if (p.agenda == schedule::periodo) {
        const double next = running + p.dias;
        check_range(next);
        return next;
    }
    if (p.data_inicial && i == 1) return running;
    return add_month(running);
}

QString instalment_info(const QString& notes, double i, double n) {
    return trim_blanks(notes) + QStringLiteral(" ") + QStringLiteral(" - Parcela ") + vb::cstr(i) +
           QStringLiteral(" de ") + vb::cstr(n);
}

void write_instalment(sql::recordset& rs, ledger k, const entry_fields& f, double i, double n,
                      const QDate& due) {
    write_row(rs, k, f, instalment_info(f.informacoes, i, n), f.valor, vb::ymd(due));
}

void write_series(ledger k, const entry_fields& f, const series_plan& p,
                  const std::function<void(double)>& progress) {
    store::conectarbanco();
    const bool despesa = k == ledger::pagar;
    std::optional<sql::recordset> rs;
    const auto abrir = [&] {
        rs.emplace();
        rs->open(shell::traits(k).tabela, store::conexao, sql::keyset, sql::pessimistic);
    };
    if (despesa) abrir();
    double running = serial_of_date(p.inicio);
    for (double i = 1; i <= p.parcelas; i += 1) {
        if (progress) progress(i);
        running = next_due(running, p, i);
        if (!despesa) abrir();
        rs->add_new();
        write_instalment(*rs, k, f, i, p.parcelas, date_of_serial(running));
        rs->update();
    }
    if (rs) rs->close();
}

dress dress_for_series(ledger k) {
    if (k == ledger::pagar)
        return {QStringLiteral("Adicionar Contas a pagar / multiplas contas"), true,
                QStringLiteral("&Inserir despesa")};
    return {QStringLiteral("Adicionar Contas a receber / multiplas contas"), false,
            QStringLiteral("&Inserir receita")};
}

QString series_title() {
    return QStringLiteral("Adicionando parcelas ...");
}

QString series_text() {
    return QStringLiteral("Aguarde enquanto o software adicionar os dados ao banco de dados, este processo "
                          "pode demorar dependendo da quantidade de parcelas que forem adicionadas.");
}

} // namespace entries
