// Word forms used for comparing words.
#include "analysis/word_forms.h"

#include "base/text.h"

namespace tavi {

namespace {

void lowerInPlace(std::string& s) {
    for (char& c : s)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c + 32);
}

// The root without the marks of a part word ("ba*") and of bound prefixes ("re\do").
std::string plainRoot(const Word& w) {
    std::string r(w.root());
    if (w.incomplete && !r.empty() && r.back() == '*')
        r.pop_back();
    if (r.find('\\') != std::string::npos)
        std::erase(r, '\\');
    return r;
}

} // namespace

std::string rootKey(const Word& w) {
    std::string r = plainRoot(w);
    lowerInPlace(r);
    return r;
}

std::string surfaceForm(const Word& w) {
    return surfaceForm(w, rootKey(w));
}

std::string surfaceForm(const Word& w, std::string_view rootKey) {
    size_t extra = 0;
    for (std::string_view m : w.boundMorphemes())
        extra += m.size() + 1;
    for (std::string_view c : w.clitics())
        extra += c.size();
    std::string s;
    s.reserve(rootKey.size() + extra);
    s = rootKey;
    for (std::string_view m : w.boundMorphemes()) {
        // Endings written by their grammar rather than their spelling.
        if (equalsIgnoreCase(m, "3s"))
            s += "s";
        else if (equalsIgnoreCase(m, "z"))
            s += "'s";
        else
            s += m;
    }
    for (std::string_view c : w.clitics())
        s += c;
    lowerInPlace(s); // the root part is lower case already
    return s;
}

int mainBodyWordCount(const Utterance& u) {
    int n = 0;
    for (const Word& w : u.words)
        n += w.isMainBodyWord() ? 1 : 0;
    return n;
}

} // namespace tavi
