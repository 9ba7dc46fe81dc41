#include "entries/juros.h"

#include "platform/text/vb_text.h"

#include <QDateTime>

#include <cmath>

namespace entries {

namespace {

const QString real = QStringLiteral("R$ ");

// Dates as the old runtime counted them: days from 30/12/1899, the time in the fraction.
const QDate dia_zero(1899, 12, 30);
constexpr double primeiro_dia = -657434.0;       // 01/01/100
constexpr double ultimo_dia = 2958465.999994213; // 31/12/9999 23:59:59

struct data_invalida {};

double serial(const QDate& d) {
    return double(dia_zero.daysTo(d));
}

// CStr of a date: the day, and the time when there is one.
QString texto_data(double s) {
    if (!(s >= primeiro_dia && s <= ultimo_dia)) throw data_invalida();
    const double dias = std::trunc(s);
    const long long segundos = std::llround(std::fabs(s - dias) * 86400.0);
    const QDate d = dia_zero.addDays(qint64(dias));
    if (segundos == 0 || segundos >= 86400) return vb::dmy(d);
    return vb::format_datetime(QDateTime(d, QTime(0, 0).addSecs(int(segundos))),
                               QStringLiteral("dd/mm/yyyy hh:nn:ss"));
}

// The counter of the instalments is a 16-bit integer: a count it cannot reach fails at once.
constexpr double maior_contador = 32767.0;

} // namespace

juros_desconto calcular_juros_desconto(const QString& total, const QString& porcentagem, bool juros) {
    juros_desconto r;
    try {
        const vb::currency t = vb::ccur_number(vb::val(total));
        const vb::currency p = vb::ccur_number(vb::val(porcentagem));
        const vb::currency resultado = vb::ccur_number(vb::cdbl_of(vb::multiply(t, p)) / 100.0);
        r.resultado = real + vb::format_money(resultado);
        // the amount is read again for the new value
        const vb::currency novo_total = vb::ccur_number(vb::val(total));
        r.novovalor = real + vb::format_money(juros ? novo_total + resultado : novo_total - resultado);
    } catch (const vb::overflow_error&) {
        r.erro = true;
    }
    return r;
}

parcelamento calcular_parcelas(const QString& valor, const QString& parcelas, const QString& dias,
                               const QDate& data, const QString& juros, bool fixo) {
    parcelamento r;
    const double n = vb::val(parcelas);
    const double v = vb::val(valor);
    const double d = vb::val(dias);
    const double j = vb::val(juros);
    if (!data.isValid()) {
        r.erro = true;
        return r;
    }
    const double jf = j * v / 100.0;
    const double tf = v + jf;
    const double jm = j * n * v / 100.0;
    const double tm = v + jm;
    r.limpa = true;
    try {
        if (n >= maior_contador + 0.5) throw data_invalida();
        double dia = serial(data);
        for (int i = 1; i <= n; ++i) {
            // the first instalment falls d days after the starting date
            dia += d;
            parcela p;
            p.numero = QString::number(i) + QStringLiteral("ª");
            p.vencimento = texto_data(dia);
            p.valor = real + vb::cstr(vb::ccur_number((fixo ? tf : tm) / n));
            r.parcelas.push_back(std::move(p));
        }
        r.totaljuros = vb::cstr(vb::ccur_number(fixo ? tf : tm));
        r.valorjuros = vb::cstr(vb::ccur_number(fixo ? jf : jm));
    } catch (const data_invalida&) {
        r.erro = true;
    } catch (const vb::overflow_error&) {
        r.erro = true;
    }
    return r;
}

} // namespace entries
