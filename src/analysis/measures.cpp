// Computes the measure record of each main speaker.
#include "analysis/measures.h"

#include "analysis/measure_context.h"
#include "analysis/word_lists.h"

namespace tavi {

const Value* SpeakerMeasures::find(std::string_view name) const {
    if (auto id = measureIdByName(name))
        return &values[static_cast<int>(*id)];
    for (const MacroScore& s : macro) {
        if (s.variable == name)
            return &s.composite;
        if (name.size() == s.key.size() + 6 && name.starts_with(s.key) && name.ends_with(" Rated"))
            return &s.rated;
        for (const MacroComponent& c : s.components)
            if (c.variable == name)
                return &c.score;
    }
    if (name == "SI Coded")
        return &si.codedValue;
    return nullptr;
}

const MacroScore* SpeakerMeasures::macroScore(std::string_view key) const {
    for (const MacroScore& s : macro)
        if (s.key == key)
            return &s;
    return nullptr;
}

std::string SpeakerMeasures::formatted(MeasureId id) const {
    return formatValue((*this)[id], measureFormat(id));
}

CodeMatchers codeMatchersFor(const MeasureOptions& o) {
    CodeMatchers m;
    m.errors = CodeMatcher(o.codeLists.errors);
    m.fluency = CodeMatcher(o.codeLists.fluency);
    m.nonmainstream = CodeMatcher(o.codeLists.nonmainstream);
    m.codeSwitch = CodeMatcher(o.codeLists.codeSwitch);
    m.excludeSet = CodeMatcher(o.analysisSet.excludeCodes);
    m.wordBase =
        CodeMatcher(o.wordBase.includeMode ? o.wordBase.includeCodes : o.wordBase.excludeCodes);
    return m;
}

namespace {

YesNoTest yesNoTest(const MeasureOptions& o) {
    if (!o.wordLists || o.wordLists->empty(o.wordListSet, kYesNoList))
        return {};
    return WordTest(*o.wordLists, o.wordListSet, kYesNoList);
}

} // namespace

MeasureResult computeMeasures(const SegmentedTranscript& transcript, const MeasureOptions& options,
                              MeasuredSpeakers which) {
    MeasureResult result;
    result.selection =
        selectUtterances(transcript, options.analysisSet, options.cut, yesNoTest(options));
    if (!options.subtractStartTime && result.selection.elapsedSeconds)
        *result.selection.elapsedSeconds += result.selection.elapsedStart;
    result.wordListsAvailable = static_cast<bool>(yesNoTest(options));
    result.categoriesAvailable = options.dictionary != nullptr;

    MeasureContext c{transcript, options, result.selection, {}, 0, codeMatchersFor(options), {}, {},
                     {},         {}};
    // Room for every word, remark word and code record: a run that doubles as
    // it grows needs thrice.
    c.tables.words.reserve(result.selection.words);
    c.tables.remarkRoots.reserve(result.selection.remarkWords);
    c.tables.codeFacts.reserve(result.selection.withCodes + 1);
    const std::array<bool, 2> measured = {which != MeasuredSpeakers::Second,
                                          which != MeasuredSpeakers::First};
    walkUtterances(c, measured);
    countPausesBetween(c);

    for (int s = 0; s < 2; ++s) {
        SpeakerMeasures& m = result.speakers[s];
        m.speaker = s;
        if (!measured[static_cast<size_t>(s)])
            continue;
        const SpeakerSelection& sel = result.selection.speakers[s];
        SpeakerView v{c, s, sel.total, sel.analysisSet};
        fillUtteranceKinds(v, m);
        fillLengthAndVocabulary(v, m);
        fillDiscourse(v, m);
        fillTimingAndPauses(v, m);
        fillMazes(v, m);
        fillCodesAndErrors(v, m);
        fillDistributions(v, m);
        fillWordLists(v, m);
        fillCategoriesAndVerbs(v, m);
        fillUtteranceLists(v, m);
        fillMacroAnalysis(v, m);
    }
    return result;
}

} // namespace tavi
