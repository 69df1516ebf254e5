// Category codes to category indices.
#include "analysis/grammatical_categories.h"

#include "base/text.h"

namespace tavi {

std::optional<int> categoryOfCode(std::string_view code) {
    if (code.size() >= 2 && code.front() == '[' && code.back() == ']')
        code = code.substr(1, code.size() - 2);
    if (startsWithIgnoreCase(code, "GC:"))
        code = code.substr(3);
    for (size_t i = 0; i < kGrammaticalCategoryTable.size(); ++i) {
        std::string_view c = kGrammaticalCategoryTable[i].code; // "[GC:NOUN]"
        // Sizes first: most names differ in size, and are passed over without a call.
        if (c.size() - 5 == code.size() && equalsIgnoreCase(c.substr(4, c.size() - 5), code))
            return static_cast<int>(i);
    }
    return std::nullopt;
}

} // namespace tavi
