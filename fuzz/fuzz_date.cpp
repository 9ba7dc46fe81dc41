// The date conversions on any text and any format: no crash, and a date read back from the forms
// the file stores is the same date, with text order kept.
#include "fuzz_check.h"
#include "platform/text/vb_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString all = fuzz::text_of(data, size);
    // the first line is a format, the rest a date text
    const qsizetype nl = all.indexOf(QLatin1Char('\n'));
    const QString fmt = nl < 0 ? QStringLiteral("dd/mm/yyyy") : all.left(nl);
    const QString text = nl < 0 ? all : all.mid(nl + 1);

    const QDate d = vb::cdate(text);
    const QDateTime dt = vb::cdatetime(text);
    fuzz::require(dt.isValid() == d.isValid() && (!d.isValid() || dt.date() == d),
                  "cdatetime and cdate disagree", text);
    (void)vb::format_date_text(text, fmt);
    if (d.isValid()) {
        const QString stored = vb::ymd(d);
        fuzz::require(stored.size() == 10, "a stored date is not ten characters", stored);
        fuzz::require(vb::cdate(stored) == d, "yyyy/mm/dd does not read back", stored);
        fuzz::require(vb::cdate(vb::dmy(d)) == d, "dd/mm/yyyy does not read back", vb::dmy(d));
        // text order is date order against a fixed day
        const QDate ref(2026, 11, 23);
        fuzz::require((stored < vb::ymd(ref)) == (d < ref), "text order is not date order", stored);
        (void)vb::format_datetime(dt, fmt);
        (void)vb::long_date(d);
        (void)vb::weekday_name(d, true);
    }
    return 0;
}
