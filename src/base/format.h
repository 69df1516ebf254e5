// The system's printed numbers follow printf formats ("%0.2f", "%d:0%d"): this
// helper produces them exactly, in one place.
#pragma once

#include <string>

namespace tavi {

// printf-style formatting into a std::string.
[[gnu::format(printf, 1, 2)]] std::string format(const char* fmt, ...);

// The texts of format("%d", n) and format("%0.*f", places, x), made without
// reading a format: for tables of many numbers (batch rows).
std::string formatInteger(long long n);
std::string formatFixed(double x, int places);

} // namespace tavi
