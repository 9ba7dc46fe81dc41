#include "platform/sql/unicode_like.h"

#include <QChar>

#include <sqlite3.h>

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

// UTF-8 read leniently: a bad sequence still gives a character, the same for LIKE and for folding.
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

// Any value up to 21 bits, one way only, so equal output means equal characters.
void encode(char32_t c, std::string& out) {
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | ((c >> 18) & 0x07));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

void fold_into(std::string_view text, std::string& out) {
    out.clear();
    out.reserve(text.size());
    bool ascii = true;
    for (unsigned char c : text)
        ascii = ascii && c < 0x80;
    if (ascii) {
        for (char c : text)
            out += (c >= 'A' && c <= 'Z') ? char(c + 32) : c;
        return;
    }
    thread_local std::u32string chars;
    decode(text, chars);
    for (char32_t c : chars)
        encode(QChar::toCaseFolded(c), out);
}

void fold_function(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    const int n = sqlite3_value_bytes(argv[0]);
    // called once per row when no index serves it: the buffer is reused
    thread_local std::string folded;
    fold_into(std::string_view(t ? t : "", std::size_t(t ? n : 0)), folded);
    sqlite3_result_blob(ctx, folded.data(), int(folded.size()), SQLITE_TRANSIENT);
}

int add_fold_function(sqlite3* db, char**, const sqlite3_api_routines*) {
    sqlite3_create_function(db, "quintara_fold", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                            fold_function, nullptr, nullptr);
    return SQLITE_OK;
}

// Every connection of the process gets the function, also one opened without this program's setup
// (an index on it must be usable by every writer of the table).
[[maybe_unused]] const bool fold_function_registered = [] {
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(add_fold_function));
    return true;
}();

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
