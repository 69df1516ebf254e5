// Word forms used for comparing words.
#include "analysis/word_forms.h"

#include "base/text.h"

namespace tavi {

std::string rootKey(const Word& w) {
    return toLowerAscii(w.root);
}

std::string surfaceForm(const Word& w) {
    std::string s = w.root;
    for (const std::string& m : w.boundMorphemes) {
        // Endings written by their grammar rather than their spelling.
        if (equalsIgnoreCase(m, "3s"))
            s += "s";
        else if (equalsIgnoreCase(m, "z"))
            s += "'s";
        else
            s += m;
    }
    for (const std::string& c : w.clitics)
        s += c;
    return toLowerAscii(s);
}

int mainBodyWordCount(const Utterance& u) {
    int n = 0;
    for (const Word& w : u.words)
        n += w.isMainBodyWord() ? 1 : 0;
    return n;
}

} // namespace tavi
