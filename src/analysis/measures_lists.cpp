// Standard word lists and grammatical categories (types and totals), and the
// verb measures that read the categories.
#include <algorithm>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "analysis/gc_dictionary.h"
#include "analysis/grammatical_categories.h"
#include "analysis/measure_context.h"
#include "analysis/word_forms.h"
#include "analysis/word_lists.h"
#include "transcript/bound_morphemes.h"

namespace tavi {

namespace {

using Id = MeasureId;

// Counts of several lists or categories, with the words each has seen.
template <size_t N> struct Tally {
    std::array<WordCount, N>& counts;
    std::array<std::unordered_set<std::string>, N> seen{};

    // One occurrence of `word`; a new word adds a type.
    void add(int k, const std::string& word) {
        ++counts[k].total;
        if (seen[k].insert(word).second) {
            counts[k].words.push_back(word);
            ++counts[k].types;
        }
    }
};

// The words of an utterance in the word-list area, as surface forms and roots.
// The words of an utterance in the word-list area, as surface forms and
// roots; the main body's come straight from the facts, others are built in
// `forms` and `roots`.
struct AreaWords {
    const std::vector<std::string>* forms;
    const std::vector<std::string>* roots;
};

AreaWords areaWords(const SpeakerView& v, int i, WordArea area, std::vector<std::string>& forms,
                    std::vector<std::string>& roots) {
    const UtteranceFacts& f = v.facts(i);
    if (area == WordArea::MainBody)
        return {&f.forms, &f.roots};
    forms.clear();
    roots.clear();
    for (const Word& w : v.utt(i).words) {
        bool maze = isMazeWord(w);
        bool body = !maze && std::find(f.words.begin(), f.words.end(), &w) != f.words.end();
        if ((body && area != WordArea::Mazes) || (maze && area != WordArea::MainBody)) {
            forms.push_back(surfaceForm(w));
            roots.push_back(rootKey(w));
        }
    }
    return {&forms, &roots};
}

bool phraseMatchesAt(const WordListEntry& e, const std::vector<std::string>& forms, size_t at) {
    if (at + e.words.size() > forms.size())
        return false;
    for (size_t k = 0; k < e.words.size(); ++k)
        if (!wordMatchesPattern(forms[at + k], e.words[k]))
            return false;
    return true;
}

void countPhrases(const StandardWordLists& lists, int set, const std::vector<std::string>& forms,
                  Tally<kWordListKinds>& tally) {
    for (const auto& [kind, entry] : lists.phrases(set))
        for (size_t at = 0; at < forms.size(); ++at)
            if (phraseMatchesAt(entry, forms, at)) {
                std::string text = forms[at];
                for (size_t k = 1; k < entry.words.size(); ++k)
                    text += " " + forms[at + k];
                tally.add(kind, text);
            }
}

bool isVerbCategory(int c) {
    return c == GcVerb || c == GcCop || c == GcAxMod || c == GcAxOp;
}

} // namespace

void fillWordLists(const SpeakerView& v, SpeakerMeasures& m) {
    const MeasureOptions& o = v.c.options;
    if (!o.wordLists)
        return;
    const int set = o.wordListSet;
    std::vector<std::string> forms, roots;
    Tally<kWordListKinds> tally{m.wordLists};
    // The lists of each root number, looked up once; kNotLooked until then.
    constexpr std::uint32_t kNotLooked = ~0u;
    std::vector<std::uint32_t> rootKinds(static_cast<size_t>(v.c.rootIds.size()), kNotLooked);
    for (int i : o.wordListsOnAnalysisSet ? v.analysisSet : v.total) {
        const AreaWords words = areaWords(v, i, o.wordListArea, forms, roots);
        const std::vector<std::string>& form = *words.forms;
        const bool numbered = o.wordListArea == WordArea::MainBody;
        for (size_t k = 0; k < form.size(); ++k) {
            const std::string& root = (*words.roots)[k];
            std::uint32_t kinds = 0;
            if (numbered) {
                std::uint32_t& known = rootKinds[v.facts(i).rootIds[k]];
                if (known == kNotLooked)
                    known = o.wordLists->kindMask(set, root);
                kinds = known;
            } else {
                kinds = o.wordLists->kindMask(set, root);
            }
            if (root != form[k])
                kinds |= o.wordLists->kindMask(set, form[k]);
            for (int kind = 0; kinds != 0; ++kind, kinds >>= 1)
                if (kinds & 1u)
                    tally.add(kind, form[k]);
        }
        countPhrases(*o.wordLists, set, form, tally);
    }
    for (int k = 0; k < kWordListKinds; ++k) {
        m[*measureIdByName(kStandardWordLists[k].totalColumn)] = Value::count(m.wordLists[k].total);
        m[*measureIdByName(kStandardWordLists[k].typesColumn)] = Value::count(m.wordLists[k].types);
    }
}

void fillCategoriesAndVerbs(const SpeakerView& v, SpeakerMeasures& m) {
    const GcDictionary* dictionary = v.c.options.dictionary;
    if (!dictionary)
        return;
    const size_t roots = static_cast<size_t>(v.c.rootIds.size());
    int verbs = 0, uttsWithVerb = 0;
    // Per root number: one bit per category in which the root was counted,
    // and the dictionary's entry, looked up once (by the root as first written).
    std::vector<std::uint32_t> counted(roots, 0);
    std::vector<std::optional<std::vector<int>>> entries(roots);
    for (int i : v.analysisSet) {
        int here = 0;
        const UtteranceFacts& f = v.facts(i);
        for (size_t k = 0; k < f.words.size(); ++k) {
            const WordTraits& t = f.traits[k];
            if (t.skipped)
                continue;
            const int id = f.rootIds[k];
            if (!entries[id])
                entries[id] = dictionaryCategories(f.words[k]->root(), *dictionary);
            std::vector<int> guessed;
            if (entries[id]->empty())
                guessed = guessCategories(f.roots[k], t.endingGroups);
            const std::vector<int>& cats = entries[id]->empty() ? guessed : *entries[id];
            for (int c : cats) {
                WordCount& count = m.categories[c];
                ++count.total;
                if (!(counted[id] & (1u << c))) {
                    counted[id] |= 1u << c;
                    ++count.types;
                    count.words.push_back(f.roots[k]);
                }
            }
            here += (!cats.empty() && isVerbCategory(cats.front()) ? 1 : 0) + t.contractedVerbs;
        }
        verbs += here;
        uttsWithVerb += here > 0 ? 1 : 0;
    }
    for (int c = 0; c < kGrammaticalCategories; ++c) {
        m[*measureIdByName(kGrammaticalCategoryTable[c].totalColumn)] =
            Value::count(m.categories[c].total);
        m[*measureIdByName(kGrammaticalCategoryTable[c].typesColumn)] =
            Value::count(m.categories[c].types);
    }
    const double aset = static_cast<double>(v.analysisSet.size());
    m[Id::PctUtWVerb] = m[Id::PCUttWithVerbs] = Value::ratio(uttsWithVerb, aset, 100);
    m[Id::VPU] = m[Id::MeanVerbsPerUtt] = Value::ratio(verbs, aset);
}

} // namespace tavi
