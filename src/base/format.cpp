// printf-style formatting into std::string, through vsnprintf.
#include "base/format.h"

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

} // namespace tavi
