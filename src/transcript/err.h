// One checker problem. Problems in a transcript are values, never exceptions:
// the checker collects them in line order and the front ends print them.
#pragma once

#include <cstdint>
#include <string>

namespace tavi {

struct err {
    std::int32_t code = 0;       // negative: a warning; zero or positive: an error
    std::int32_t line = 0;       // 1-based line; whole-transcript problems use line 1
    std::int32_t transcript = 0; // which transcript of the run the line belongs to
    std::string message;

    bool isWarning() const { return code < 0; }
    bool isError() const { return code >= 0; }
};

} // namespace tavi
