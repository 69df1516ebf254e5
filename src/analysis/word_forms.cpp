// Word forms used for comparing words.
#include "analysis/word_forms.h"

#include "base/text.h"

namespace tavi {

namespace {

// The root without the marks of a part word ("ba*") and of bound prefixes ("re\do").
std::string plainRoot(const Word& w) {
    std::string r = w.root;
    if (w.incomplete && !r.empty() && r.back() == '*')
        r.pop_back();
    if (r.find('\\') != std::string::npos)
        std::erase(r, '\\');
    return r;
}

} // namespace

std::string rootKey(const Word& w) {
    return toLowerAscii(plainRoot(w));
}

std::string surfaceForm(const Word& w) {
    std::string s = plainRoot(w);
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
