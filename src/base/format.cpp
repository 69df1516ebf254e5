// printf-style formatting into std::string, through vsnprintf; plain numbers
// through std::to_chars, which writes them as printf does.
#include "base/format.h"

#include <charconv>
#include <cstdarg>
#include <cstdio>

namespace tavi {

std::string format(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    va_list copy;
    va_copy(copy, args);
    char small[256];
    int needed = std::vsnprintf(small, sizeof small, fmt, args);
    va_end(args);
    std::string out;
    if (needed < 0) {
        va_end(copy);
        return out;
    }
    if (static_cast<size_t>(needed) < sizeof small) {
        out.assign(small, static_cast<size_t>(needed));
    } else {
        out.resize(static_cast<size_t>(needed) + 1);
        std::vsnprintf(out.data(), out.size(), fmt, copy);
        out.resize(static_cast<size_t>(needed));
    }
    va_end(copy);
    return out;
}

std::string formatInteger(long long n) {
    char text[24];
    return {text, std::to_chars(text, text + sizeof text, n).ptr};
}

std::string formatFixed(double x, int places) {
    char text[64];
    auto [end, error] =
        std::to_chars(text, text + sizeof text, x, std::chars_format::fixed, places);
    if (error != std::errc())
        return format("%0.*f", places, x); // too long for the buffer
    return {text, end};
}

} // namespace tavi
