// Lookups in the bound-morpheme and contraction tables.
#include "transcript/bound_morphemes.h"

#include "base/text.h"

namespace tavi {

int boundMorphemeGroup(std::string_view ending) {
    if (ending.starts_with('/'))
        ending.remove_prefix(1);
    for (int row = 0; row < 9; ++row) {
        std::string_view list = kBoundMorphemeGroups[row].endings;
        while (!list.empty()) {
            size_t comma = list.find(',');
            std::string_view item = list.substr(0, comma);
            item.remove_prefix(1); // the "/"
            if (equalsIgnoreCase(item, ending))
                return row;
            list = comma == std::string_view::npos ? std::string_view() : list.substr(comma + 1);
        }
    }
    return 9;
}

std::optional<std::string_view> expandNegativeContraction(std::string_view word) {
    for (const NegativeContraction& c : kNegativeContractions)
        if (equalsIgnoreCase(c.word, word))
            return c.expanded;
    return std::nullopt;
}

std::optional<std::string> contractionToBoundForm(std::string_view word) {
    size_t at = word.find('@');
    if (at == std::string_view::npos || at == 0)
        return std::nullopt;
    std::string_view host = word.substr(0, at);
    std::string_view form = word.substr(at);
    if (equalsIgnoreCase(host, "let") &&
        (equalsIgnoreCase(form, "@'s") || equalsIgnoreCase(form, "@us")))
        return std::string(host) + "/'us";
    for (const ContractionForm& c : kContractionForms)
        if (equalsIgnoreCase(c.at, form))
            return std::string(host) + std::string(c.bound);
    return std::nullopt;
}

} // namespace tavi
