// Building checker and measure options and resources from the settings.
#include "settings/measure_settings.h"

#include "base/file_io.h"
#include "base/prompter.h"
#include "base/text.h"
#include "settings/word_list_settings.h"

namespace tavi {

namespace {

// The bracketed items of a code-list section; empty when the section has none.
std::string codeListOf(const Settings& s, std::string_view keyword, std::string fallback) {
    std::string list;
    for (const KeywordLine& line : s.sectionLines(keyword))
        if (!line.value.empty() && line.value.front() == '[')
            list += line.value;
    return list.empty() ? fallback : list;
}

void applyDistribution(const Settings& s, MeasureOptions& o) {
    for (const KeywordLine& line : s.sectionLines("DIST")) {
        if (equalsIgnoreCase(line.subKey, "WORD"))
            o.distributionInMorphemes = false;
        else if (equalsIgnoreCase(line.subKey, "MORPH"))
            o.distributionInMorphemes = true;
        else if (equalsIgnoreCase(line.subKey, "TOTAL"))
            o.distributionOnAnalysisSet = false;
        else if (equalsIgnoreCase(line.subKey, "ASET"))
            o.distributionOnAnalysisSet = true;
    }
}

void applyWordListSettings(const Settings& s, MeasureOptions& o) {
    for (const KeywordLine& line : s.sectionLines("SWL")) {
        if (equalsIgnoreCase(line.subKey, "TOTAL"))
            o.wordListsOnAnalysisSet = false;
        else if (equalsIgnoreCase(line.subKey, "ASET"))
            o.wordListsOnAnalysisSet = true;
        else if (equalsIgnoreCase(line.subKey, "MBODY"))
            o.wordListArea = WordArea::MainBody;
        else if (equalsIgnoreCase(line.subKey, "MAZE"))
            o.wordListArea = WordArea::Mazes;
        else if (equalsIgnoreCase(line.subKey, "MBMAZE"))
            o.wordListArea = WordArea::MainBodyAndMazes;
    }
}

} // namespace

CheckOptions checkOptionsFrom(const Settings& s) {
    CheckOptions o;
    o.dateFormat.order = s.language.monthFirst ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
    o.dateFormat.separator = s.language.dateSeparator;
    auto keyword = [&](std::string_view key, std::string& field) {
        if (const std::string& text = s.labels.get(LanguageSlot::Primary, key); !text.empty())
            field = text;
    };
    keyword("PL_PLUSDOB", o.dobKeyword);
    keyword("PL_PLUSDOE", o.doeKeyword);
    keyword("PL_PLUSCA", o.caKeyword);
    o.templates =
        std::make_shared<const TemplateSet>(loadTemplateFolder(s.folders.templates, nullptr));
    return o;
}

MeasureOptions measureOptionsFrom(const Settings& s) {
    MeasureOptions o;
    o.analysisSet = s.analysisSet;
    o.wordBase = s.wordBase;
    o.cut = s.transcriptCut;
    o.window = s.movingAverageWindow;
    o.subtractStartTime = s.timingLines.subtract;
    const CodeLists defaults;
    o.codeLists.errors = codeListOf(s, "OMITERR", defaults.errors);
    o.codeLists.fluency = codeListOf(s, "FLUENCY", defaults.fluency);
    o.codeLists.nonmainstream = codeListOf(s, "NONMAINSTREAM", defaults.nonmainstream);
    o.codeLists.codeSwitch = codeListOf(s, "CODESWITCH", defaults.codeSwitch);
    applyDistribution(s, o);
    applyWordListSettings(s, o);
    return o;
}

void MeasureResources::attach(MeasureOptions& options) const {
    options.wordLists = wordListsFound ? &wordLists : nullptr;
    options.dictionary = dictionary.get();
    options.verbs = verbs.get();
}

std::string dictionaryPath(const Settings& s) {
    return s.folders.sharedData + "GC/GCDictionaryFile.txt";
}

std::string verbFilePath(const Settings& s) {
    return s.folders.sharedData + "verbs.txt";
}

MeasureResources loadMeasureResources(const Settings& s, Prompter& prompter) {
    MeasureResources r;
    r.wordListsFound = wordListsAvailable(s);
    if (r.wordListsFound) {
        std::string text;
        for (const std::string& line : wordListLinesInForce(s))
            text += line + "\n";
        r.wordLists = StandardWordLists::parse(text);
    } else {
        prompter.inform("Unable to open standard word list file (" + s.folders.sharedData +
                        "TaviSWL.txt)");
    }
    auto dictionary = std::make_unique<GcDictionary>();
    if (dictionary->loadFile(dictionaryPath(s), prompter))
        r.dictionary = std::move(dictionary);
    if (std::string text; readFile(verbFilePath(s), text))
        r.verbs = std::make_unique<VerbList>(VerbList::parse(text));
    else
        prompter.inform("Unable to open RIF verb file");
    return r;
}

} // namespace tavi
