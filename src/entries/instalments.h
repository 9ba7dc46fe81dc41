#pragma once
// A series of instalments of one expense or one income: the counts read from their boxes and
// refused below 1, the due date of each instalment by month or by a period of days, the notes
// that number them, and the rows written one by one (no transaction: what was written stays).

#include "entries/entry_record.h"

#include <QDate>
#include <QString>

#include <functional>

namespace entries {

enum class schedule {
    dia_fixo, // optdia: one calendar month after the previous instalment
    periodo,  // optperiodo: a number of days after the previous instalment
};

struct series_plan {
    schedule agenda = schedule::dia_fixo;
    bool data_inicial = false; // chkDataInicial: the first instalment falls on the starting date
    double parcelas = 1;       // n, may be fractional: instalments 1, 2, ... up to n
    double dias = 30;          // d, may be fractional
    QDate inicio;
};

// The blank-field message of the four fields this screen requires (it has no due date).
QString series_blank_message(const entry_fields& f);

// The leading number of a count box: "12x" 12, "2.5" 2.5, "2,5" 2, "abc" 0. A number past the
// range of a double throws vb::overflow_error.
double read_count(const QString& text);

// The refusal of the counts, instalments first; empty when both are 1 or more. The days are
// checked in both schedules.
QString count_message(double parcelas, double dias);

// Dates as the old runtime held them: days since 30/12/1899, the fraction being the time of day.
double serial_of_date(const QDate& d);
// The day of a serial, the fraction dropped. Outside 01/01/100 .. 31/12/9999 throws
// vb::overflow_error.
QDate date_of_serial(double serial);

// The running date after the step of instalment i. A month is added to the previous date and
// keeps its day unless the month is shorter, so a day once cut back stays cut back.
double next_due(double running, const series_plan& p, double i);

// informacoes of instalment i of n: the notes trimmed, " ", " - Parcela ", i, " de ", n.
QString instalment_info(const QString& notes, double i, double n);

// Sets the ten columns of one instalment in their fixed order. Unlike a single entry, the amount
// goes as typed and an empty account stays empty.
void write_instalment(sql::recordset& rs, ledger k, const entry_fields& f, double i, double n,
                      const QDate& vencimento);

// Writes the whole series into pagar or receber. progress(i) runs at each instalment before its
// date moves. An expense opens its table once for the series, an income once per instalment.
// Throws sql::error or vb::overflow_error; the rows written before stay.
void write_series(ledger k, const entry_fields& f, const series_plan& p,
                  const std::function<void(double)>& progress = {});

// The window as the main window's openers dress it.
dress dress_for_series(ledger k);

// The waiting window's texts.
QString series_title();
QString series_text();

} // namespace entries
