#pragma once
// Counts and sums of rows by their status word, in the ways the windows class them: the lists
// take exactly "Pendente" as pending and everything else as settled; the charts and statistics
// compare upper-cased words and leave any other status in the total only.

#include "platform/text/vb_text.h"

#include <QString>

#include <optional>

namespace analysis {

enum class status_rule {
    exact_pending, // "Pendente" is pending, any other text concluded
    case_blind,    // "PENDENTE" / "CONCLUÍDO" whatever the case; other words count in the total only
};

// A stored amount as it enters a sum: read by the locale and rounded to cents as the format
// "##,##0.00" rounds. Empty when the text is no amount (the row then adds nothing).
std::optional<vb::currency> rounded_amount(const QString& stored);

struct status_tally {
    explicit status_tally(status_rule r = status_rule::exact_pending) : rule(r) {}

    status_rule rule;
    long count = 0, pending_count = 0, concluded_count = 0;
    // Rounded at cents, in the currency type and, for the views that summed doubles, in doubles.
    vb::currency total, pending, concluded;
    double total_d = 0, pending_d = 0, concluded_d = 0;

    // One row. A sum past the currency's range stops growing; the counts go on.
    void add(const QString& estatus, const QString& valor) { add(estatus, rounded_amount(valor)); }
    // The same with the amount already read (empty: no amount).
    void add(const QString& estatus, std::optional<vb::currency> valor);
    bool is_pending(const QString& estatus) const;
};

} // namespace analysis
