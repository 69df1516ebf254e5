// Standard word lists and grammatical categories (types and totals), and the
// verb measures that read the categories.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "analysis/gc_dictionary.h"
#include "analysis/grammatical_categories.h"
#include "analysis/measure_context.h"
#include "analysis/verb_list.h"
#include "analysis/word_forms.h"
#include "analysis/word_lists.h"
#include "transcript/bound_morphemes.h"

namespace tavi {

namespace {

using Id = MeasureId;

struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
};

// Counts of several lists or categories, with the words each has seen.
template <size_t N> struct Tally {
    std::array<WordCount, N>& counts;
    std::array<std::unordered_set<std::string, TextHash, std::equal_to<>>, N> seen{};
    // Per kind, the numbered forms already added (their text is in `seen`).
    std::array<std::vector<bool>, N> seenForms{};

    // One occurrence of `word`; a new word adds a type.
    void add(int k, std::string_view word) {
        ++counts[k].total;
        if (seen[k].find(word) == seen[k].end()) {
            seen[k].emplace(word);
            counts[k].words.emplace_back(word);
            ++counts[k].types;
        }
    }
    // The same for a numbered surface form: its text is looked up once.
    void addForm(int k, int form, std::string_view word) {
        std::vector<bool>& known = seenForms[k];
        if (static_cast<size_t>(form) < known.size() && known[static_cast<size_t>(form)]) {
            ++counts[k].total;
            return;
        }
        if (known.size() <= static_cast<size_t>(form))
            known.resize(static_cast<size_t>(form) + 1, false);
        known[static_cast<size_t>(form)] = true;
        add(k, word);
    }
};

// The words of an utterance in a word-list area other than the main body
// (whose words are numbered), as surface forms and roots built in `built`.
void areaWords(const SpeakerView& v, int i, WordArea area, std::vector<std::string_view>& forms,
               std::vector<std::string_view>& roots, std::deque<std::string>& built) {
    forms.clear();
    roots.clear();
    built.clear();
    const std::span<const Word> words = v.utt(i).words;
    for (size_t k = 0; k < words.size(); ++k) {
        const Word& w = words[k];
        bool maze = isMazeWord(w);
        bool body =
            !maze && isCountedWord(v.utt(i), static_cast<int>(k), v.c.options.wordBase, v.c.codes);
        if ((body && area != WordArea::Mazes) || (maze && area != WordArea::MainBody)) {
            forms.push_back(built.emplace_back(surfaceForm(w)));
            roots.push_back(built.emplace_back(rootKey(w)));
        }
    }
}

bool phraseMatchesAt(const WordListEntry& e, const std::vector<std::string_view>& forms,
                     size_t at) {
    if (at + e.words.size() > forms.size())
        return false;
    for (size_t k = 0; k < e.words.size(); ++k)
        if (!wordMatchesPattern(forms[at + k], e.words[k]))
            return false;
    return true;
}

void addPhrase(const WordListEntry& e, int kind, const std::vector<std::string_view>& forms,
               size_t at, Tally<kWordListKinds>& tally) {
    std::string text(forms[at]);
    for (size_t k = 1; k < e.words.size(); ++k) {
        text += " ";
        text += forms[at + k];
    }
    tally.add(kind, text);
}

void countPhrases(const StandardWordLists& lists, int set,
                  const std::vector<std::string_view>& forms, Tally<kWordListKinds>& tally) {
    for (const auto& [kind, entry] : lists.phrases(set))
        for (size_t at = 0; at < forms.size(); ++at)
            if (phraseMatchesAt(entry, forms, at))
                addPhrase(entry, kind, forms, at, tally);
}

// What the word lists say of each numbered surface form, found once: its
// lists (kindMask) and the phrase entries whose first word it matches.
struct FormLookups {
    static constexpr std::uint64_t kNotLooked = ~std::uint64_t{0};
    std::vector<std::uint32_t> kinds;
    std::vector<bool> kindsKnown;
    std::vector<std::uint64_t> phraseStarts; // bit p: phrase entry p, when 64 or fewer

    explicit FormLookups(size_t forms)
        : kinds(forms, 0), kindsKnown(forms, false), phraseStarts(forms, kNotLooked) {}
};

// The phrase entries (64 or fewer) whose first word numbered form `form`
// matches, as bits; looked up once per form.
std::uint64_t phraseStartsOf(const StandardWordLists& lists, int set, int form, const FactTables& t,
                             FormLookups& look) {
    std::uint64_t& starts = look.phraseStarts[static_cast<size_t>(form)];
    if (starts == FormLookups::kNotLooked) {
        const auto& phrases = lists.phrases(set);
        starts = 0;
        for (size_t p = 0; p < phrases.size(); ++p)
            if (wordMatchesPattern(t.forms.view(form), phrases[p].second.words.front()))
                starts |= std::uint64_t{1} << p;
    }
    return starts;
}

// countPhrases for numbered forms: only the phrases whose first word matches
// somewhere (`any`, phraseStartsOf of the words) are tried, and only where
// it matches; in the order countPhrases finds them: phrase by phrase.
void countPhrasesNumbered(const StandardWordLists& lists, int set, std::uint64_t any,
                          const std::vector<std::string_view>& forms,
                          std::span<const CountedWord> counted, const FactTables& t,
                          FormLookups& look, Tally<kWordListKinds>& tally) {
    const auto& phrases = lists.phrases(set);
    for (size_t p = 0; any != 0; ++p, any >>= 1) {
        if (!(any & 1u))
            continue;
        const auto& [kind, entry] = phrases[p];
        for (size_t at = 0; at < forms.size(); ++at)
            if ((look.phraseStarts[static_cast<size_t>(t.spelling(counted[at]).form)] >> p) & 1u &&
                phraseMatchesAt(entry, forms, at))
                addPhrase(entry, kind, forms, at, tally);
    }
}

// The total and types identifiers of each entry of a table of lists or
// categories, found while compiling.
template <auto& Table> constexpr auto columnIds() {
    std::array<std::pair<MeasureId, MeasureId>, Table.size()> ids{};
    for (size_t k = 0; k < Table.size(); ++k)
        ids[k] = {measureIdNamed(Table[k].totalColumn), measureIdNamed(Table[k].typesColumn)};
    return ids;
}
constexpr auto kWordListIds = columnIds<kStandardWordLists>();
constexpr auto kCategoryIds = columnIds<kGrammaticalCategoryTable>();

bool isVerbCategory(int c) {
    return c == GcVerb || c == GcCop || c == GcAxMod || c == GcAxOp;
}

} // namespace

namespace {

// The lists of the main body's words: each spelling's lists (its root's and
// its surface form's) and each form's phrase starts are looked up once; the
// forms of an utterance are listed only when a phrase may start in it.
void countMainBodyLists(const SpeakerView& v, const std::vector<int>& utts,
                        Tally<kWordListKinds>& tally) {
    const StandardWordLists& lists = *v.c.options.wordLists;
    const int set = v.c.options.wordListSet;
    const FactTables& t = v.c.tables;
    const auto& phrases = lists.phrases(set);
    const bool fewPhrases = phrases.size() <= 64;
    constexpr std::uint32_t kNotLooked = ~0u;
    std::vector<std::uint32_t> rootKinds(static_cast<size_t>(t.roots.size()), kNotLooked);
    // Per spelling, what its words add: their lists and the phrases that may
    // start at them.
    struct SpellingLists {
        bool looked = false;
        std::uint32_t kinds = 0;
        std::uint64_t starts = 0;
    };
    std::vector<SpellingLists> bySpelling(t.spellingList.size());
    FormLookups look(static_cast<size_t>(t.forms.size()));
    auto listsOf = [&](const CountedWord& w) -> const SpellingLists& {
        SpellingLists& known = bySpelling[w.spelling];
        if (known.looked)
            return known;
        known.looked = true;
        const SpellingFacts& s = t.spelling(w);
        const std::string_view root = t.roots.view(s.root), form = t.forms.view(s.form);
        std::uint32_t& byRoot = rootKinds[static_cast<size_t>(s.root)];
        if (byRoot == kNotLooked)
            byRoot = lists.kindMask(set, root);
        known.kinds = byRoot;
        if (root != form) {
            const size_t f = static_cast<size_t>(s.form);
            if (!look.kindsKnown[f]) {
                look.kinds[f] = lists.kindMask(set, form);
                look.kindsKnown[f] = true;
            }
            known.kinds |= look.kinds[f];
        }
        if (fewPhrases && !phrases.empty())
            known.starts = phraseStartsOf(lists, set, s.form, t, look);
        return known;
    };
    std::vector<std::string_view> forms;
    for (int i : utts) {
        const std::span<const CountedWord> counted = v.words(i);
        std::uint64_t starts = 0;
        for (const CountedWord& w : counted) {
            const SpellingLists& known = listsOf(w);
            starts |= known.starts;
            if (known.kinds == 0)
                continue;
            const int form = t.spelling(w).form;
            for (std::uint32_t kinds = known.kinds; kinds != 0; kinds &= kinds - 1)
                tally.addForm(std::countr_zero(kinds), form, t.forms.view(form));
        }
        if (phrases.empty() || (fewPhrases && starts == 0))
            continue;
        forms.clear();
        for (const CountedWord& w : counted)
            forms.push_back(t.forms.view(t.spelling(w).form));
        if (fewPhrases)
            countPhrasesNumbered(lists, set, starts, forms, counted, t, look, tally);
        else
            countPhrases(lists, set, forms, tally);
    }
}

// The lists of the words of another area, whose words are built.
void countAreaLists(const SpeakerView& v, const std::vector<int>& utts,
                    Tally<kWordListKinds>& tally) {
    const MeasureOptions& o = v.c.options;
    const int set = o.wordListSet;
    std::vector<std::string_view> form, roots;
    std::deque<std::string> built;
    for (int i : utts) {
        areaWords(v, i, o.wordListArea, form, roots, built);
        for (size_t k = 0; k < form.size(); ++k) {
            std::uint32_t kinds = o.wordLists->kindMask(set, roots[k]);
            if (roots[k] != form[k])
                kinds |= o.wordLists->kindMask(set, form[k]);
            for (int kind = 0; kinds != 0; ++kind, kinds >>= 1)
                if (kinds & 1u)
                    tally.add(kind, form[k]);
        }
        countPhrases(*o.wordLists, set, form, tally);
    }
}

} // namespace

void fillWordLists(const SpeakerView& v, SpeakerMeasures& m) {
    const MeasureOptions& o = v.c.options;
    if (!o.wordLists)
        return;
    Tally<kWordListKinds> tally{m.wordLists};
    const std::vector<int>& utts = o.wordListsOnAnalysisSet ? v.analysisSet : v.total;
    if (o.wordListArea == WordArea::MainBody)
        countMainBodyLists(v, utts, tally);
    else
        countAreaLists(v, utts, tally);
    for (int k = 0; k < kWordListKinds; ++k) {
        m[kWordListIds[k].first] = Value::count(m.wordLists[k].total);
        m[kWordListIds[k].second] = Value::count(m.wordLists[k].types);
    }
}

void fillCategoriesAndVerbs(const SpeakerView& v, SpeakerMeasures& m) {
    const GcDictionary* dictionary = v.c.options.dictionary;
    const VerbList* verbFile = v.c.options.verbs;
    if (!dictionary)
        return;
    const FactTables& tables = v.c.tables;
    // Per spelling: its categories (the root's entry, else the guess from the
    // root and the spelling's endings), worked out at its first use and kept
    // in one run, and how often it is used. The counts are made per spelling
    // once every word is seen: the spellings in order of first use give the
    // roots of each category in order of first use.
    struct SpellingCategories {
        int uses = 0;
        int verbs = 0;                     // verbs each use adds to its utterance
        std::uint32_t from = 0, count = 0; // in `runs`
    };
    std::vector<SpellingCategories> bySpelling(tables.spellingList.size());
    std::vector<std::uint32_t> firstUsed; // counted spellings, in order of first use
    std::vector<int> runs;
    // Per root number: the dictionary's entry, looked up once (by the root as first written).
    std::vector<std::optional<std::vector<int>>> entries(static_cast<size_t>(tables.roots.size()));
    auto categoriesOf = [&](const SpellingFacts& spelling, SpellingCategories& known) {
        const int id = spelling.root;
        if (!entries[id]) {
            entries[id] = dictionaryCategories(spelling.word->root(), *dictionary);
            // A verb of the verb file that the dictionary lacks.
            if (entries[id]->empty() && verbFile && verbFile->contains(tables.roots.name(id)))
                entries[id] = std::vector<int>{GcVerb};
        }
        const std::vector<int> cats =
            entries[id]->empty()
                ? guessCategories(tables.roots.name(id), spelling.traits.endingGroups)
                : *entries[id];
        known.from = static_cast<std::uint32_t>(runs.size());
        known.count = static_cast<std::uint32_t>(cats.size());
        known.verbs = (!cats.empty() && isVerbCategory(cats.front()) ? 1 : 0) +
                      spelling.traits.contractedVerbs;
        runs.insert(runs.end(), cats.begin(), cats.end());
    };
    int verbs = 0, uttsWithVerb = 0;
    for (int i : v.analysisSet) {
        int here = 0;
        for (const CountedWord& w : v.words(i)) {
            SpellingCategories& known = bySpelling[w.spelling];
            if (known.uses++ == 0) {
                const SpellingFacts& spelling = v.spelling(w);
                if (spelling.traits.skipped)
                    continue; // never counted: its uses stay unread
                firstUsed.push_back(w.spelling);
                categoriesOf(spelling, known);
            }
            here += known.verbs;
        }
        verbs += here;
        uttsWithVerb += here > 0 ? 1 : 0;
    }
    // Per root number: one bit per category in which the root was counted.
    std::vector<std::uint32_t> counted(static_cast<size_t>(tables.roots.size()), 0);
    for (std::uint32_t id : firstUsed) {
        const SpellingCategories& known = bySpelling[id];
        const int root = tables.spellingList[id].root;
        for (std::uint32_t k = known.from; k < known.from + known.count; ++k) {
            const int c = runs[k];
            WordCount& count = m.categories[c];
            count.total += known.uses;
            if (!(counted[root] & (1u << c))) {
                counted[root] |= 1u << c;
                ++count.types;
                count.words.push_back(tables.roots.name(root));
            }
        }
    }
    for (int c = 0; c < kGrammaticalCategories; ++c) {
        m[kCategoryIds[c].first] = Value::count(m.categories[c].total);
        m[kCategoryIds[c].second] = Value::count(m.categories[c].types);
    }
    const double aset = static_cast<double>(v.analysisSet.size());
    m[Id::PctUtWVerb] = m[Id::PCUttWithVerbs] = Value::ratio(uttsWithVerb, aset, 100);
    m[Id::VPU] = m[Id::MeanVerbsPerUtt] = Value::ratio(verbs, aset);
}

} // namespace tavi
