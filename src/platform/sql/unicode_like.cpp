#include "platform/sql/unicode_like.h"

#include <QChar>

#include <string>

namespace sql {

namespace {

bool is_ascii(std::string_view s) {
    for (unsigned char c : s)
        if (c >= 0x80) return false;
    return true;
}

template <class Ch, class Fold>
bool wildcard(const Ch* t, std::size_t tn, const Ch* p, std::size_t pn, Fold fold) {
    std::size_t ti = 0, pi = 0;
    std::size_t star = std::string::npos, mark = 0;
    while (ti < tn) {
        if (pi < pn && p[pi] == Ch('%')) {
            star = pi++;
            mark = ti;
        } else if (pi < pn && (p[pi] == Ch('_') || fold(p[pi]) == fold(t[ti]))) {
            ++pi;
            ++ti;
        } else if (star != std::string::npos) {
            pi = star + 1;
            ti = ++mark;
        } else {
            return false;
        }
    }
    while (pi < pn && p[pi] == Ch('%'))
        ++pi;
    return pi == pn;
}

void decode(std::string_view s, std::u32string& out) {
    out.clear();
    const auto* b = reinterpret_cast<const unsigned char*>(s.data());
    const std::size_t n = s.size();
    for (std::size_t i = 0; i < n;) {
        char32_t c = b[i];
        int extra = c < 0x80 ? 0 : c < 0xE0 ? 1 : c < 0xF0 ? 2 : 3;
        if (extra) c &= (0x3F >> extra);
        ++i;
        for (int k = 0; k < extra && i < n; ++k, ++i)
            c = (c << 6) | (b[i] & 0x3F);
        out += c;
    }
}

} // namespace

bool unicode_like(std::string_view text, std::string_view pattern) {
    if (is_ascii(text) && is_ascii(pattern)) {
        auto fold = [](char c) { return (c >= 'A' && c <= 'Z') ? char(c + 32) : c; };
        return wildcard(text.data(), text.size(), pattern.data(), pattern.size(), fold);
    }
    thread_local std::u32string t, p;
    decode(text, t);
    decode(pattern, p);
    auto fold = [](char32_t c) { return QChar::toCaseFolded(c); };
    return wildcard(t.data(), t.size(), p.data(), p.size(), fold);
}

} // namespace sql
