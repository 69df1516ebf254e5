// Collecting words, bound morphemes and codes over transcripts.
#include "batch/list_generation.h"

#include <algorithm>
#include <set>

#include "analysis/code_lists.h"
#include "analysis/word_forms.h"
#include "base/format.h"
#include "base/progress.h"
#include "base/text.h"

namespace tavi {

namespace {

struct FlagKey {
    const char* key;
    bool ListOptions::*flag;
};

constexpr FlagKey kFlags[] = {
    {"EITHER", &ListOptions::bothSpeakers},       {"CNTTRAN", &ListOptions::countTranscripts},
    {"PCTRAN", &ListOptions::percentTranscripts}, {"CNTTOTAL", &ListOptions::countTotal},
    {"CNTFIRST", &ListOptions::countFirst},
};

constexpr std::pair<const char*, WordArea> kAreas[] = {{"MBODY", WordArea::MainBody},
                                                       {"MAZE", WordArea::Mazes},
                                                       {"MBMAZE", WordArea::MainBodyAndMazes}};

// The codes written on word `w` of the utterance.
template <class F> void forEachWordCode(const Utterance& u, int w, F&& f) {
    for (const Code& code : u.codes())
        if (code.word == w)
            f(code.text);
}

bool anyMatches(const Utterance& u, int w, const CodeMatcher& matcher) {
    bool found = false;
    forEachWordCode(u, w, [&](std::string_view code) { found = found || matcher.matches(code); });
    return found;
}

// Items ordered alphabetically without regard to case, ties by their bytes.
bool alphabetical(const ListEntry& a, const ListEntry& b) {
    std::string la = toLowerAscii(a.item), lb = toLowerAscii(b.item);
    return la != lb ? la < lb : a.item < b.item;
}

} // namespace

std::string_view listSectionKeyword(ListKind kind) {
    switch (kind) {
    case ListKind::Words:
        return "GENVOC";
    case ListKind::BoundMorphemes:
        return "GENBM";
    case ListKind::Codes:
        return "GENCODELIST";
    }
    return "GENVOC";
}

ListOptions listOptionsFromLines(const std::vector<KeywordLine>& lines) {
    ListOptions options;
    for (const KeywordLine& line : lines) {
        if (keyIs(line.subKey, "INCODES")) {
            options.includeCodes = line.rest;
            continue;
        }
        if (keyIs(line.subKey, "EXCODES")) {
            options.excludeCodes = line.rest;
            continue;
        }
        auto flag = splitFlagSubKey(line.subKey);
        if (!flag)
            continue;
        for (const FlagKey& f : kFlags)
            if (keyIs(flag->name, f.key))
                options.*f.flag = flag->value;
        if (flag->value && keyIs(flag->name, "ASET"))
            options.analysisSetOnly = true;
        if (flag->value && keyIs(flag->name, "TOTAL"))
            options.analysisSetOnly = false;
        for (const auto& [key, area] : kAreas)
            if (flag->value && keyIs(flag->name, key))
                options.area = area;
    }
    return options;
}

std::vector<std::string> listOptionLines(ListKind kind, const ListOptions& options) {
    std::string keyword(listSectionKeyword(kind));
    auto yesNo = [](bool on) { return on ? "_YES" : "_NO"; };
    std::vector<std::string> lines;
    lines.push_back(keyword + " EITHER" + yesNo(options.bothSpeakers));
    lines.push_back(keyword + " ASET" + yesNo(options.analysisSetOnly));
    lines.push_back(keyword + " TOTAL" + yesNo(!options.analysisSetOnly));
    for (const auto& [key, area] : kAreas)
        lines.push_back(keyword + " " + key + yesNo(options.area == area));
    for (const FlagKey& f : kFlags)
        if (std::string_view(f.key) != "EITHER")
            lines.push_back(keyword + " " + f.key + yesNo(options.*f.flag));
    lines.push_back(keyword + " INCODES " + options.includeCodes);
    lines.push_back(keyword + " EXCODES " + options.excludeCodes);
    return lines;
}

ListCollector::ListCollector(ListKind kind, ListOptions options)
    : kind_(kind), options_(std::move(options)) {}

void ListCollector::add(const TranscriptAnalysis& analysis) {
    const SegmentedTranscript& t = analysis.check.segmented;
    const Selection& selection = analysis.result.selection;
    CodeMatcher include(options_.includeCodes), exclude(options_.excludeCodes);
    std::set<std::string> inThis; // the items this transcript uses
    auto use = [&](std::string item) {
        if (item.empty())
            return;
        ListEntry& e = entries_[item];
        if (e.item.empty())
            e.item = item;
        ++e.total;
        if (inThis.insert(std::move(item)).second)
            ++e.transcripts;
    };
    auto wordWanted = [&](const Utterance& u, int w) {
        const Word& word = u.words[static_cast<std::size_t>(w)];
        bool inArea = options_.area == WordArea::MainBody ? word.isMainBodyWord()
                      : options_.area == WordArea::Mazes
                          ? isMazeWord(word)
                          : word.isMainBodyWord() || isMazeWord(word);
        if (!inArea)
            return false;
        if (!include.empty() && !anyMatches(u, w, include))
            return false;
        return exclude.empty() || !anyMatches(u, w, exclude);
    };
    for (int s = 0; s < 2; ++s) {
        if (!options_.bothSpeakers && s != analysis.speaker)
            continue;
        const SpeakerSelection& chosen = selection.speakers[static_cast<std::size_t>(s)];
        for (int i : options_.analysisSetOnly ? chosen.analysisSet : chosen.total) {
            const Utterance& u = t.utterances[static_cast<std::size_t>(i)];
            if (kind_ == ListKind::Codes) {
                for (const Code& code : u.codes()) {
                    if ((!include.empty() && !include.matches(code.text)) ||
                        (!exclude.empty() && exclude.matches(code.text)))
                        continue;
                    use("[" + std::string(code.text) + "]");
                }
                continue;
            }
            for (int w = 0; w < static_cast<int>(u.words.size()); ++w) {
                if (!wordWanted(u, w))
                    continue;
                const Word& word = u.words[static_cast<std::size_t>(w)];
                if (kind_ == ListKind::Words)
                    use(rootKey(word));
                else
                    for (std::string_view ending : word.boundMorphemes())
                        use("/" + toLowerAscii(ending));
            }
        }
    }
    ++transcripts_;
}

GeneratedList ListCollector::result() const {
    GeneratedList list;
    list.kind = kind_;
    list.transcripts = transcripts_;
    for (const auto& [item, entry] : entries_)
        list.entries.push_back(entry);
    std::sort(list.entries.begin(), list.entries.end(), alphabetical);
    if (options_.countFirst)
        std::stable_sort(list.entries.begin(), list.entries.end(),
                         [](const ListEntry& a, const ListEntry& b) { return a.total > b.total; });
    return list;
}

GeneratedList generateList(ListKind kind, const ListOptions& options,
                           const std::vector<std::filesystem::path>& files,
                           const AnalysisContext& context, int speaker, bool includeErrors,
                           Progress& progress) {
    ListCollector collector(kind, options);
    std::vector<std::string> messages;
    bool cancelled = false;
    progress.start(static_cast<int>(files.size()), "Generating list");
    AnalysisRequest request;
    request.speaker = speaker;
    for (const std::filesystem::path& file : files) {
        if (progress.cancelled()) {
            cancelled = true;
            break;
        }
        TranscriptAnalysis analysis = analyseFile(file, context, request);
        if (analysis.load != LoadStatus::Ok)
            messages.push_back(format("%s could not be opened - not included", file.c_str()));
        else if (analysis.hasErrors() && !includeErrors)
            messages.push_back(format("%s contains errors - not included", file.c_str()));
        else
            collector.add(analysis);
        progress.step();
    }
    progress.finish();
    GeneratedList list = collector.result();
    list.messages = std::move(messages);
    list.cancelled = cancelled;
    return list;
}

std::string listFileText(const GeneratedList& list) {
    std::string text;
    for (const ListEntry& e : list.entries)
        text += e.item + "\n";
    return text;
}

std::string listTableText(const GeneratedList& list, const ListOptions& options) {
    const char* heading = list.kind == ListKind::Words            ? "Word"
                          : list.kind == ListKind::BoundMorphemes ? "Bound Morpheme"
                                                                  : "Code";
    std::string text = heading;
    if (options.countTotal)
        text += "\tTotal";
    if (options.countTranscripts)
        text += "\tTranscripts";
    if (options.percentTranscripts)
        text += "\t% Transcripts";
    text += "\n";
    for (const ListEntry& e : list.entries) {
        text += e.item;
        if (options.countTotal)
            text += format("\t%d", e.total);
        if (options.countTranscripts)
            text += format("\t%d", e.transcripts);
        if (options.percentTranscripts)
            text += format("\t%.1f",
                           list.transcripts > 0 ? 100.0 * e.transcripts / list.transcripts : 0.0);
        text += "\n";
    }
    text +=
        format(list.transcripts == 1 ? "%d transcript\n" : "%d transcripts\n", list.transcripts);
    return text;
}

std::string codeListText(const GeneratedList& list) {
    std::string text;
    for (const ListEntry& e : list.entries)
        text += (text.empty() ? "" : " ") + e.item;
    return text;
}

} // namespace tavi
