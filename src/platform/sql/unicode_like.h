#pragma once
#include <string>
#include <string_view>

namespace sql {

// LIKE as the old database had it: '%' any run, '_' one character, no escape character,
// letters compared without regard to case over all of Unicode ('ITAÚ' LIKE 'itaú').
// Both texts are UTF-8.
bool unicode_like(std::string_view text, std::string_view pattern);

// The SQL function quintara_fold gives a text as LIKE compares it (each character case-folded, as
// a UTF-8 blob; null for null); every connection of the process has it, so an index on it serves
// `name like 'text'` without wildcards.

} // namespace sql
