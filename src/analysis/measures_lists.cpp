// Standard word lists and grammatical categories (types and totals), and the
// verb measures that read the categories.
#include <algorithm>
#include <cstdint>
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

constexpr int kContractedVerbGroup = 7; // "/'LL,/'M,/'D,/'RE,/'S,..."

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
void areaWords(const SpeakerView& v, int i, WordArea area, std::vector<std::string>& forms,
               std::vector<std::string>& roots) {
    const UtteranceFacts& f = v.facts(i);
    if (area == WordArea::MainBody) {
        forms = f.forms;
        roots.assign(f.roots.begin(), f.roots.begin() + static_cast<long>(f.words.size()));
        return;
    }
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

// Verbs in one word: its own (by its most likely category) plus each
// contracted verb form it carries ("he/'s", "I/'ll").
int verbsIn(const Word& w, const std::vector<int>& cats) {
    int n = !cats.empty() && isVerbCategory(cats.front()) ? 1 : 0;
    for (const std::string& e : w.boundMorphemes)
        n += boundMorphemeGroup(e) == kContractedVerbGroup ? 1 : 0;
    return n;
}

} // namespace

void fillWordLists(const SpeakerView& v, SpeakerMeasures& m) {
    const MeasureOptions& o = v.c.options;
    if (!o.wordLists)
        return;
    const int set = o.wordListSet;
    std::vector<std::string> forms, roots;
    Tally<kWordListKinds> tally{m.wordLists};
    for (int i : o.wordListsOnAnalysisSet ? v.analysisSet : v.total) {
        areaWords(v, i, o.wordListArea, forms, roots);
        for (size_t k = 0; k < forms.size(); ++k) {
            std::vector<int> kinds = o.wordLists->kindsOf(set, forms[k]);
            if (roots[k] != forms[k])
                for (int kind : o.wordLists->kindsOf(set, roots[k]))
                    if (std::find(kinds.begin(), kinds.end(), kind) == kinds.end())
                        kinds.push_back(kind);
            for (int kind : kinds)
                tally.add(kind, forms[k]);
        }
        countPhrases(*o.wordLists, set, forms, tally);
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
    int verbs = 0, uttsWithVerb = 0;
    // Per root number, one bit per category in which the root was counted.
    std::vector<std::uint32_t> counted(static_cast<size_t>(v.c.rootIds.size()), 0);
    std::unordered_map<std::string, std::vector<int>> known; // dictionary entries by root
    for (int i : v.analysisSet) {
        int here = 0;
        const UtteranceFacts& f = v.facts(i);
        for (size_t k = 0; k < f.words.size(); ++k) {
            const Word* w = f.words[k];
            if (isSkippedCategoryToken(w->text))
                continue;
            auto it = known.find(w->root);
            if (it == known.end())
                it = known.emplace(w->root, dictionaryCategories(w->root, *dictionary)).first;
            std::vector<int> guessed;
            if (it->second.empty())
                guessed = guessCategories(*w);
            const std::vector<int>& cats = it->second.empty() ? guessed : it->second;
            for (int c : cats) {
                WordCount& count = m.categories[c];
                ++count.total;
                if (!(counted[f.rootIds[k]] & (1u << c))) {
                    counted[f.rootIds[k]] |= 1u << c;
                    ++count.types;
                    count.words.push_back(f.roots[k]);
                }
            }
            here += verbsIn(*w, cats);
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
