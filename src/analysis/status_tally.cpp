#include "analysis/status_tally.h"

#include "store/names.h"

#include <limits>

namespace analysis {

namespace {

const QString pendente_maiusculo = store::palavra::pendente.toUpper();
const QString concluido_maiusculo = store::palavra::concluido.toUpper();

void add_to(vb::currency& sum, vb::currency v) {
    try {
        sum += v;
    } catch (const vb::overflow_error&) {
    }
}

} // namespace

std::optional<vb::currency> rounded_amount(const QString& stored) {
    std::optional<vb::currency> c;
    try {
        c = vb::ccur(stored);
    } catch (const vb::overflow_error&) {
        return std::nullopt;
    }
    if (!c) return std::nullopt;
    const std::int64_t raw = c->raw();
    constexpr std::int64_t edge = std::numeric_limits<std::int64_t>::max() - 100;
    if (raw > edge || raw < -edge) return std::nullopt;
    // half away from zero at the cent, as the format rounds
    const std::int64_t mag = raw < 0 ? -raw : raw;
    const std::int64_t cents = mag / 100 + ((mag % 100) >= 50 ? 1 : 0);
    return vb::currency::from_raw((raw < 0 ? -cents : cents) * 100);
}

bool status_tally::is_pending(const QString& estatus) const {
    if (rule == status_rule::exact_pending) return estatus == store::palavra::pendente;
    return estatus.toUpper() == pendente_maiusculo;
}

void status_tally::add(const QString& estatus, std::optional<vb::currency> v) {
    ++count;
    const double d = v ? v->to_double() : 0.0;
    if (v) add_to(total, *v);
    total_d += d;
    if (is_pending(estatus)) {
        ++pending_count;
        if (v) add_to(pending, *v);
        pending_d += d;
    } else if (rule == status_rule::exact_pending || estatus.toUpper() == concluido_maiusculo) {
        ++concluded_count;
        if (v) add_to(concluded, *v);
        concluded_d += d;
    }
}

} // namespace analysis
