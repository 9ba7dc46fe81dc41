#pragma once
// Periods and dates as the analysis windows use them: today as the texts that LIKE patterns match
// in the stored "yyyy/mm/dd" dates, the month captions of the month selectors, a month word and a
// year read back into a date, the days of a month, and signed day differences. Long date, long
// time and "mmmm" stay in platform/text/vb_text.h.

#include <QDate>
#include <QString>
#include <QStringList>

namespace analysis {

enum class periodo { dia, mes, ano, tudo };

// "2026/11/23", "2026/11", "2026"; empty for tudo.
QString valor_periodo(periodo p, const QDate& hoje);
inline QString texto_dia(const QDate& d) {
    return valor_periodo(periodo::dia, d);
}
inline QString texto_mes(const QDate& d) {
    return valor_periodo(periodo::mes, d);
}
inline QString texto_ano(const QDate& d) {
    return valor_periodo(periodo::ano, d);
}
// "0#": 3 -> "03".
QString dois_digitos(int n);

// The twelve captions of a month selector, January first ("Janeiro"...). Some windows carry July
// as "julho", in lower case: julho_minusculo.
QStringList nomes_meses(bool julho_minusculo = false);
// 1..12 for a month word in any case, with or without its accents, whole or its first three
// letters, or a number 1..12; 0 when it is none of these.
int numero_mes(const QString& palavra);
// A month word (or number) and a year, as "Março/2024" or "julho/2024" are read: the first day of
// that month. Invalid when either part is not understood.
QDate data_do_mes(const QString& mes, const QString& ano);
// The last day's number of the date's month (28..31); 0 for an invalid date.
int dias_no_mes(const QDate& d);
// b less a in whole days, with its sign and without counting the last day: the same day gives 0.
// An invalid date gives 0.
qint64 dias_entre(const QDate& a, const QDate& b);
// The entries of a year selector: primeiro..ultimo as text.
QStringList anos(int primeiro, int ultimo);

} // namespace analysis
