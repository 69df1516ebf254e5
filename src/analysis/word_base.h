// The word base: which words every analysis counts. Saved as "WBASE".
#pragma once

#include <string>

namespace tavi {

struct WordBase {
    bool excludeParenthetical = true; // words of parenthetical remarks are left out
    bool includeMode = false;         // false: exclude words with `codes`; true: only those
    std::string excludeCodes;         // comma-separated
    std::string includeCodes;         // comma-separated

    bool operator==(const WordBase&) const = default;
};

} // namespace tavi
