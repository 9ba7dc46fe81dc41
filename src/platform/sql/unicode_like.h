#pragma once
#include <string_view>

namespace sql {

// LIKE as the old database had it: '%' any run, '_' one character, no escape character,
// letters compared without regard to case over all of Unicode ('ITAÚ' LIKE 'itaú').
// Both texts are UTF-8.
bool unicode_like(std::string_view text, std::string_view pattern);

} // namespace sql
