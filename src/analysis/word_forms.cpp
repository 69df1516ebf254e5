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

} // namespace

// The root without the marks of a part word ("ba*") and of bound prefixes
// ("re\do"), in lower case.
void rootKeyInto(const Word& w, std::string& out) {
    std::string_view r = w.root();
    if (w.incomplete && !r.empty() && r.back() == '*')
        r.remove_suffix(1);
    out.assign(r);
    if (r.find('\\') != std::string_view::npos)
        std::erase(out, '\\');
    lowerInPlace(out);
}

std::string rootKey(const Word& w) {
    std::string r;
    rootKeyInto(w, r);
    return r;
}

std::string surfaceForm(const Word& w) {
    return surfaceForm(w, rootKey(w));
}

std::string surfaceForm(const Word& w, std::string_view rootKey) {
    std::string s;
    surfaceFormInto(w, rootKey, s);
    return s;
}

void surfaceFormInto(const Word& w, std::string_view rootKey, std::string& s) {
    s.assign(rootKey);
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
}

int mainBodyWordCount(const Utterance& u) {
    int n = 0;
    for (const Word& w : u.words)
        n += w.isMainBodyWord() ? 1 : 0;
    return n;
}

} // namespace tavi
