#include "analysis/status_tally.h"

#include "platform/errors.h"
#include "store/names.h"

#include <limits>

namespace analysis {

namespace {

const QString pendente_maiusculo = store::palavra::pendente.toUpper();
const QString concluido_maiusculo = store::palavra::concluido.toUpper();
const QString pendente_minusculo = store::palavra::pendente.toLower();

} // namespace

classe classificar(const QString& estatus, classes modo) {
    switch (modo) {
    case classes::exato:
        return estatus == store::palavra::pendente ? classe::pendente : classe::concluido;
    case classes::minusculas:
        return estatus.toLower() == pendente_minusculo ? classe::pendente : classe::concluido;
    case classes::tres_vias: {
        if (estatus == store::palavra::pendente) return classe::pendente;
        if (estatus == store::palavra::concluido) return classe::concluido;
        const QString u = estatus.toUpper();
        if (u == pendente_maiusculo) return classe::pendente;
        if (u == concluido_maiusculo) return classe::concluido;
        return classe::outro;
    }
    }
    return classe::outro;
}

std::optional<vb::currency> valor_formatado(const QString& stored) {
    std::optional<vb::currency> c;
    // a text past the currency's range reads as no amount
    platform::ignore_errors([&] { c = vb::ccur(stored); });
    if (!c) return std::nullopt;
    const std::int64_t raw = c->raw();
    // at the very edge of the range the rounded text would not read back
    constexpr std::int64_t borda = std::numeric_limits<std::int64_t>::max() - 100;
    if (raw > borda || raw < -borda) return std::nullopt;
    const std::int64_t mag = raw < 0 ? -raw : raw;
    const std::int64_t cents = mag / 100 + ((mag % 100) >= 50 ? 1 : 0);
    return vb::currency::from_raw((raw < 0 ? -cents : cents) * 100);
}

QString texto_valor(const QString& stored) {
    const auto v = valor_formatado(stored);
    return v ? vb::format_money(*v) : stored;
}

classe status_tally::add(const QString& estatus, const QString& valor) {
    return add(estatus, soma_ == soma::bruta ? std::nullopt : valor_formatado(valor), valor);
}

classe status_tally::add(const QString& estatus, const std::optional<vb::currency>& formatado,
                         const QString& valor) {
    const classe c = classificar(estatus, classes_);
    ++n_total_;
    somar(total_, formatado, valor);
    parcela& p = parte(c);
    ++p.n;
    somar(p, formatado, valor);
    return c;
}

void status_tally::somar(parcela& p, const std::optional<vb::currency>& formatado, const QString& valor) {
    switch (soma_) {
    case soma::moeda:
        // the old sum skipped an addition that overflowed
        if (formatado) platform::ignore_errors([&] { p.moeda += *formatado; });
        return;
    case soma::dupla:
        if (formatado) p.dupla += formatado->to_double();
        return;
    case soma::bruta:
        if (const auto d = vb::cdbl(valor)) p.dupla += *d;
        return;
    }
}

QString status_tally::texto(const parcela& p) const {
    return soma_ == soma::moeda ? vb::format_money(p.moeda) : vb::format_money(p.dupla);
}

} // namespace analysis
