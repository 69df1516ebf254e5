// One line of a transcript as the checker and the analysis see it.
#pragma once

#include <string>
#include <vector>

namespace tavi {

struct tranLine {
    std::string text; // UTF-8, without the line end
    int line = 0;     // 1-based line number in the transcript
};

using TranLines = std::vector<tranLine>;

} // namespace tavi
