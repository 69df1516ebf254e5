#include "import/chat_morphology.h"

#include <algorithm>
#include <array>
#include <optional>

#include "analysis/gc_dictionary.h"

namespace tavi {

namespace {

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lower(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = lowerAscii(c);
    return out;
}

bool endsWith(std::string_view s, std::string_view tail) {
    return s.size() > tail.size() && lower(s.substr(s.size() - tail.size())) == tail;
}

bool isAsciiLetters(std::string_view s) {
    return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    });
}

MorPart parsePart(std::string_view text) {
    MorPart part;
    size_t bar = text.find('|');
    if (bar == std::string_view::npos) {
        part.lemma = text;
        return part;
    }
    part.pos = text.substr(0, bar);
    // Prefixes ("un#v|do") and compound marks ("+n|ice") are not needed here.
    if (size_t hash = part.pos.rfind('#'); hash != std::string::npos)
        part.pos.erase(0, hash + 1);
    std::string_view rest = text.substr(bar + 1);
    size_t cut = rest.find_first_of("-&");
    part.lemma = rest.substr(0, cut);
    while (cut != std::string_view::npos) {
        char kind = rest[cut];
        size_t next = rest.find_first_of("-&", cut + 1);
        std::string piece(rest.substr(
            cut + 1, next == std::string_view::npos ? std::string_view::npos : next - cut - 1));
        (kind == '-' ? part.suffixes : part.fusions).push_back(std::move(piece));
        cut = next;
    }
    return part;
}

bool has(const std::vector<std::string>& list, std::string_view what) {
    return std::find(list.begin(), list.end(), what) != list.end();
}

enum class Ending { None, Plural, Third, Past, Participle, Progressive };

// The regular ending a host part names.
Ending endingOf(const MorPart& p) {
    const auto& s = p.suffixes;
    // Older convention: the suffix itself.
    if (has(s, "PL"))
        return Ending::Plural;
    if (has(s, "3S"))
        return Ending::Third;
    if (has(s, "PAST"))
        return Ending::Past;
    if (has(s, "PASTP"))
        return Ending::Participle;
    if (has(s, "PRESP"))
        return Ending::Progressive;
    // Newer convention: features, "irr" marking an irregular form.
    if (has(s, "irr"))
        return Ending::None;
    bool noun = p.pos == "noun" || p.pos == "propn";
    bool verb = p.pos == "verb";
    if (noun && has(s, "Plur"))
        return Ending::Plural;
    if ((verb || noun) && has(s, "Ger"))
        return Ending::Progressive;
    if (!verb)
        return Ending::None;
    if (has(s, "Part"))
        return has(s, "Pres") ? Ending::Progressive
                              : (has(s, "Past") ? Ending::Participle : Ending::None);
    if (has(s, "Fin") && has(s, "Past"))
        return Ending::Past;
    if (has(s, "Fin") && has(s, "Pres") && has(s, "S3"))
        return Ending::Third;
    return Ending::None;
}

size_t commonPrefix(std::string_view a, std::string_view b) {
    size_t n = 0;
    while (n < a.size() && n < b.size() && lowerAscii(a[n]) == lowerAscii(b[n]))
        ++n;
    return n;
}

// "lemma/ending" with the case of the written form's first letter, when the
// written form shows the ending on a regular stem; empty otherwise.
std::string regular(std::string_view surface, std::string_view lemma, Ending ending) {
    if (!isAsciiLetters(lemma) || !isAsciiLetters(surface) || lemma.size() < 2)
        return {};
    std::string_view tail;
    switch (ending) {
    case Ending::Plural:
    case Ending::Third:
        tail = "s";
        break;
    case Ending::Past:
        tail = "d";
        break;
    case Ending::Participle:
        tail = endsWith(surface, "en") ? "en" : "d";
        break;
    case Ending::Progressive:
        tail = "ing";
        break;
    case Ending::None:
        return {};
    }
    if (!endsWith(surface, tail) || surface.size() <= lemma.size() ||
        commonPrefix(surface, lemma) + 1 < lemma.size())
        return {};
    std::string root(lemma);
    if (surface[0] >= 'A' && surface[0] <= 'Z' && root[0] >= 'a' && root[0] <= 'z')
        root[0] = static_cast<char>(root[0] - 'a' + 'A');
    switch (ending) {
    case Ending::Plural:
        return root + "/s";
    case Ending::Third:
        return root + "/3s";
    case Ending::Past:
        return root + "/ed";
    case Ending::Participle:
        return root + (tail == "en" ? "/en" : "/ed");
    default:
        return root + "/ing";
    }
}

// Split at the apostrophe: "did/n't", "can/'t", "he/'s" (or "dog/z" when
// `possessive`), "let/'us". Nothing when the word is no known contraction.
std::optional<std::pair<std::string, std::string>> contraction(std::string_view w,
                                                               bool possessive) {
    std::string l = lower(w);
    if (l == "let's")
        return std::pair{std::string(w.substr(0, 3)), std::string("/'us")};
    if (l.size() > 3 && l.ends_with("n't")) {
        std::string host(w.substr(0, w.size() - 3));
        std::string lh = lower(host);
        if (lh == "ca" || lh == "wo" || lh == "sha" || lh == "ai")
            return std::pair{host + "n", std::string("/'t")};
        return std::pair{host, std::string("/n't")};
    }
    size_t p = w.rfind('\'');
    if (p == std::string_view::npos || p == 0)
        return std::nullopt;
    std::string suffix = lower(w.substr(p));
    static constexpr std::array<std::string_view, 6> kVerbForms = {"'s", "'ll", "'re",
                                                                   "'m", "'ve", "'d"};
    if (std::find(kVerbForms.begin(), kVerbForms.end(), suffix) == kVerbForms.end())
        return std::nullopt;
    std::string host(w.substr(0, p));
    if (suffix == "'s" && possessive)
        return std::pair{host, std::string("/z")};
    return std::pair{host, "/" + std::string(w.substr(p))};
}

bool isPossessiveClitic(const MorPart& c) {
    return c.pos == "poss" || (c.pos == "part" && c.lemma == "s");
}

std::optional<std::string_view> entry(const GcDictionary& d, std::string_view w) {
    if (auto e = d.lookup(w))
        return e;
    return d.lookup(lower(w));
}

bool hasCategory(std::string_view entryText, std::string_view category) {
    return entryText.find("[GC:" + std::string(category) + "]") != std::string_view::npos;
}

bool openClass(std::string_view e) {
    return hasCategory(e, "NOUN") || hasCategory(e, "VERB") || hasCategory(e, "ADJ") ||
           hasCategory(e, "ADV");
}

// -s, -ing, -ed from spelling, checked against the dictionary.
std::string spelledEnding(std::string_view w, const GcDictionary& d) {
    if (!isAsciiLetters(w) || w.size() < 4)
        return std::string(w);
    if (auto self = entry(d, w); self && !openClass(*self))
        return std::string(w); // "this", "his", "was": closed-class words stay whole
    auto stemWith = [&](std::string_view stem, bool verbOnly) -> std::optional<std::string_view> {
        if (stem.size() < 2)
            return std::nullopt;
        auto e = entry(d, stem);
        if (!e || !(verbOnly ? hasCategory(*e, "VERB") : openClass(*e)))
            return std::nullopt;
        return e;
    };
    auto candidates = [&](size_t cut, std::string_view add) {
        std::vector<std::string> out{std::string(w.substr(0, w.size() - cut)) + std::string(add)};
        return out;
    };
    std::string l = lower(w);
    if (l.ends_with("ing") || l.ends_with("ed")) {
        bool ing = l.ends_with("ing");
        size_t cut = ing ? 3 : 2;
        std::vector<std::string> stems = candidates(cut, "");
        stems.push_back(stems[0] + "e"); // make -> making, like -> liked
        if (stems[0].size() >= 3 && stems[0].back() == stems[0][stems[0].size() - 2])
            stems.push_back(stems[0].substr(0, stems[0].size() - 1)); // stopped, running
        if (!ing && l.ends_with("ied"))
            stems.push_back(std::string(w.substr(0, w.size() - 3)) + "y"); // tried
        for (const std::string& s : stems)
            if (stemWith(s, true))
                return s + (ing ? "/ing" : "/ed");
        return std::string(w);
    }
    if (l.ends_with("s") && !l.ends_with("ss")) {
        std::vector<std::string> stems = candidates(1, "");
        if (l.ends_with("es"))
            stems.push_back(std::string(w.substr(0, w.size() - 2)));
        if (l.ends_with("ies"))
            stems.push_back(std::string(w.substr(0, w.size() - 3)) + "y");
        for (const std::string& s : stems) {
            if (auto e = stemWith(s, false)) {
                // A stem read first as a verb takes the third person ending.
                bool verbFirst = e->find("[GC:") == e->find("[GC:VERB]");
                return s + (verbFirst ? "/3s" : "/s");
            }
        }
    }
    return std::string(w);
}

bool closedHost(std::string_view host, const GcDictionary* d) {
    static constexpr std::array<std::string_view, 13> kHosts = {
        "he",  "she",   "it",  "that", "what", "there", "here",
        "who", "where", "how", "this", "when", "why"};
    std::string l = lower(host);
    if (std::find(kHosts.begin(), kHosts.end(), l) != kHosts.end())
        return true;
    if (d)
        if (auto e = entry(*d, host))
            return !openClass(*e);
    return false;
}

} // namespace

MorItem parseMorItem(std::string_view item) {
    MorItem out;
    size_t start = 0;
    bool first = true;
    for (;;) {
        size_t tilde = item.find('~', start);
        std::string_view piece = item.substr(
            start, tilde == std::string_view::npos ? std::string_view::npos : tilde - start);
        if (first)
            out.host = parsePart(piece);
        else
            out.clitics.push_back(parsePart(piece));
        first = false;
        if (tilde == std::string_view::npos)
            return out;
        start = tilde + 1;
    }
}

std::vector<std::string_view> morWordItems(std::string_view tier) {
    std::vector<std::string_view> items;
    size_t i = 0;
    while (i < tier.size()) {
        while (i < tier.size() && (tier[i] == ' ' || tier[i] == '\t'))
            ++i;
        size_t end = tier.find_first_of(" \t", i);
        if (end == std::string_view::npos)
            end = tier.size();
        std::string_view item = tier.substr(i, end - i);
        i = end;
        if (item.empty())
            continue;
        size_t bar = item.find('|');
        if (bar == std::string_view::npos)
            continue; // terminator, tag marks
        std::string_view pos = item.substr(0, bar);
        if (pos == "cm" || pos == "end" || pos == "beg" || pos == "bq" || pos == "eq" ||
            pos == "punct")
            continue;
        items.push_back(item);
    }
    return items;
}

std::string wordFromMor(std::string_view surface, const MorItem& item) {
    std::string_view host = surface;
    std::string clitic;
    if (!item.clitics.empty()) {
        bool possessive = std::any_of(item.clitics.begin(), item.clitics.end(), isPossessiveClitic);
        if (auto c = contraction(surface, possessive)) {
            std::string hostForm = regular(c->first, item.host.lemma, endingOf(item.host));
            return (hostForm.empty() ? c->first : hostForm) + c->second;
        }
        return std::string(surface);
    }
    if (has(item.host.suffixes, "POSS")) {
        if (auto c = contraction(surface, true))
            return c->first + c->second;
    }
    std::string form = regular(host, item.host.lemma, endingOf(item.host));
    return form.empty() ? std::string(surface) + clitic : form;
}

std::string wordFromSpelling(std::string_view surface, const GcDictionary* dictionary) {
    if (surface.find('\'') != std::string_view::npos) {
        size_t p = surface.rfind('\'');
        bool possessive =
            lower(surface.substr(p)) == "'s" && !closedHost(surface.substr(0, p), dictionary);
        if (auto c = contraction(surface, possessive))
            return c->first + c->second;
        return std::string(surface);
    }
    if (!dictionary)
        return std::string(surface);
    return spelledEnding(surface, *dictionary);
}

} // namespace tavi
