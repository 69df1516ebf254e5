// Clause counts from verbs.
#include "analysis/si_suggest.h"

#include <algorithm>
#include <array>

#include "analysis/gc_dictionary.h"
#include "base/file_io.h"
#include "base/text.h"

namespace tavi {

namespace {

std::string lower(std::string_view s) {
    std::string out(s);
    std::ranges::transform(out, out.begin(), [](unsigned char c) {
        return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    });
    return out;
}

template <size_t N> bool among(const std::array<std::string_view, N>& set, std::string_view w) {
    return std::ranges::find(set, w) != set.end();
}

// Forms of "be", "have" and "do", the modals and the catenatives: they carry
// the verb that follows them.
constexpr std::array<std::string_view, 32> kAuxiliaries = {
    "be",     "am",   "is",    "are",   "was",   "were",  "been", "being", "have",  "has",    "had",
    "having", "do",   "does",  "did",   "will",  "would", "can",  "could", "shall", "should", "may",
    "might",  "must", "gonna", "wanna", "gotta", "hafta", "get",  "got",   "let",   "lets"};

constexpr std::array<std::string_view, 10> kModals = {"will",   "would", "can",   "could", "shall",
                                                      "should", "may",   "might", "must",  "gonna"};

// Words after which a verb form is a noun or an adjective.
constexpr std::array<std::string_view, 18> kNounMarkers = {
    "a",     "an",   "the",   "my",    "your", "his",   "her",  "its", "our",
    "their", "this", "these", "those", "some", "every", "each", "no",  "another"};

// Words the verb file holds that stand far more often for something else.
constexpr std::array<std::string_view, 12> kRarelyVerbs = {
    "like", "so", "well", "back", "there", "then", "out", "up", "down", "mean", "kind", "still"};

} // namespace

int suggestClauseCount(const std::vector<std::string>& words, const VerbList& verbs,
                       const GcDictionary* dictionary) {
    auto lexical = [&](size_t i) {
        const std::string& w = words[i];
        if (among(kAuxiliaries, w))
            return false;
        if (among(kRarelyVerbs, w) && !(i > 0 && words[i - 1] == "to"))
            return false;
        bool verb = verbs.contains(w);
        if (dictionary)
            if (std::optional<std::string_view> gc = dictionary->lookup(w))
                verb = gc->find("[GC:VERB]") != std::string_view::npos;
        if (!verb)
            return false;
        return i == 0 || !among(kNounMarkers, words[i - 1]);
    };
    // A verb after "to" that follows a verb shares that verb's clause
    // ("wanted to go"); "told him to go" has a clause of its own.
    auto isVerb = [&](size_t i) {
        if (!lexical(i))
            return false;
        return !(i >= 2 && words[i - 1] == "to" &&
                 (lexical(i - 2) || among(kAuxiliaries, words[i - 2])));
    };
    int clauses = 0;
    for (size_t i = 0; i < words.size(); ++i) {
        if (isVerb(i)) {
            ++clauses;
            continue;
        }
        if (!among(kAuxiliaries, words[i]))
            continue;
        // An auxiliary with a verb (or another auxiliary) within the next
        // three words belongs to it; else it is the clause's verb ("it was
        // red", "I can").
        bool carries = false;
        for (size_t j = i + 1; j < words.size() && j <= i + 3 && !carries; ++j)
            carries = lexical(j) || among(kAuxiliaries, words[j]);
        if (!carries && !among(kModals, words[i]))
            ++clauses;
        else if (!carries && i + 1 == words.size())
            ++clauses; // "yes I can."
    }
    return clauses;
}

int suggestClauseCount(const Utterance& u, const VerbList& verbs, const GcDictionary* dictionary) {
    std::vector<std::string> words;
    for (const Word& w : u.words) {
        if (w.inMaze || w.omitted || w.unintelligible)
            continue;
        words.push_back(lower(w.root()));
        // "it/'s", "they/'re": the clitic stands for a word of its own.
        auto spell = [&](std::string_view piece) {
            static constexpr std::pair<std::string_view, std::string_view> kClitics[] = {
                {"'s", "is"},    {"'re", "are"},  {"'m", "am"},
                {"'ll", "will"}, {"'ve", "have"}, {"'d", "would"}};
            for (const auto& [clitic, word] : kClitics)
                if (lower(piece) == clitic)
                    words.emplace_back(word);
        };
        for (std::string_view piece : w.clitics())
            spell(piece);
        for (std::string_view piece : w.boundMorphemes())
            spell(piece);
    }
    return suggestClauseCount(words, verbs, dictionary);
}

std::string suggestedSiCode(int clauses, std::string_view prefix) {
    return "[" + std::string(prefix) + std::to_string(clauses) + "?]";
}

SiInsertion insertSiCodes(std::string_view text, const SegmentedTranscript& t,
                          const std::vector<int>& utterances, const VerbList& verbs,
                          const GcDictionary* dictionary, std::string_view prefix) {
    std::vector<std::string> lines;
    for (std::string_view line : splitLines(text))
        lines.emplace_back(line);
    SiInsertion out;
    for (int i : utterances) {
        const Utterance& u = t.utterances[i];
        bool hasCode = std::ranges::any_of(u.codes(), [&](const Code& c) {
            return c.text.size() > prefix.size() &&
                   equalsIgnoreCase(c.text.substr(0, prefix.size()), prefix);
        });
        if (hasCode || u.line < 1 || u.line > static_cast<int>(lines.size()))
            continue;
        std::string& line = lines[u.line - 1];
        const std::string code = suggestedSiCode(suggestClauseCount(u, verbs, dictionary), prefix);
        size_t end = line.find_last_not_of(" \t");
        if (end == std::string::npos)
            continue;
        if (u.hasTerminator && std::string_view(".!?~>^").find(line[end]) != std::string::npos)
            line.insert(end, " " + code);
        else
            line.insert(end + 1, " " + code);
        ++out.coded;
    }
    for (const std::string& line : lines)
        out.text += line + "\n";
    return out;
}

} // namespace tavi
