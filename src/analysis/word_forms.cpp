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

bool InlineForm::add(char c) {
    if (size_ == buf_.size())
        return false;
    buf_[size_++] = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return true;
}

bool InlineForm::addLower(std::string_view s) {
    for (char c : s)
        if (!add(c))
            return false;
    return true;
}

bool InlineForm::addRoot(const Word& w) {
    std::string_view r = w.root();
    if (w.incomplete && !r.empty() && r.back() == '*')
        r.remove_suffix(1);
    for (char c : r)
        if (c != '\\' && !add(c))
            return false;
    return true;
}

InlineForm InlineForm::root(const Word& w) {
    InlineForm f;
    if (!f.addRoot(w))
        f.long_ = rootKey(w);
    return f;
}

InlineForm InlineForm::surface(const Word& w) {
    InlineForm f;
    bool fits = f.addRoot(w);
    for (std::string_view m : w.boundMorphemes()) {
        if (!fits)
            break;
        if (equalsIgnoreCase(m, "3s"))
            fits = f.add('s');
        else if (equalsIgnoreCase(m, "z"))
            fits = f.addLower("'s");
        else
            fits = f.addLower(m);
    }
    for (std::string_view c : w.clitics())
        fits = fits && f.addLower(c);
    if (!fits)
        f.long_ = surfaceForm(w);
    return f;
}

namespace {

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

// Steps through a text, a character at a time, in lower case.
class FormReader {
public:
    explicit FormReader(std::string_view text) : text_(text) {}
    bool take(char c) {
        if (at_ == text_.size() || lowerAscii(text_[at_]) != lowerAscii(c))
            return false;
        ++at_;
        return true;
    }
    bool takeAll(std::string_view s) {
        for (char c : s)
            if (!take(c))
                return false;
        return true;
    }
    bool done() const { return at_ == text_.size(); }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

} // namespace

// Follows InlineForm::surface piece by piece, so that most words that differ
// are told apart at their first letter.
bool surfaceIs(const Word& w, std::string_view text) {
    FormReader form(text);
    std::string_view r = w.root();
    if (w.incomplete && !r.empty() && r.back() == '*')
        r.remove_suffix(1);
    for (char c : r)
        if (c != '\\' && !form.take(c))
            return false;
    if (!w.parts())
        return form.done();
    for (std::string_view m : w.boundMorphemes()) {
        std::string_view said = equalsIgnoreCase(m, "3s")  ? "s"
                                : equalsIgnoreCase(m, "z") ? "'s"
                                                           : m;
        if (!form.takeAll(said))
            return false;
    }
    for (std::string_view c : w.clitics())
        if (!form.takeAll(c))
            return false;
    return form.done();
}

int mainBodyWordCount(const Utterance& u) {
    int n = 0;
    for (const Word& w : u.words)
        n += (w.inMaze | w.omitted | w.unintelligible) ? 0 : 1; // isMainBodyWord, branch-free
    return n;
}

} // namespace tavi
