#pragma once
// Chance, the one place the program draws a random number; tests fix what it gives.

#include <functional>

namespace platform {

// A number in [0, 1), as the old Rnd gave it.
using random_source = std::function<double()>;

// The next number of the source in use: the process's own generator unless one was set.
double rnd();
// nullptr (an empty source) restores the process's generator.
void set_random_source(random_source source);

} // namespace platform
