// List generation: the distinct words, bound morphemes or codes of one or
// many transcripts with how often each is used and by how many transcripts,
// for the Tools menu's list generators and `tavi lists`. Each transcript
// comes through the analysis session, so its speaker, analysis set, word base
// and transcript cut are those of every other analysis.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/measures.h"
#include "session/analysis_session.h"
#include "settings/keyword_file.h"

namespace tavi {

class Progress;

enum class ListKind { Words, BoundMorphemes, Codes };

// The settings section that keeps a kind's choices: "GENVOC", "GENBM", "GENCODELIST".
std::string_view listSectionKeyword(ListKind kind);

struct ListOptions {
    bool bothSpeakers = false;          // "EITHER": both main speakers, else the target speaker
    bool analysisSetOnly = true;        // "ASET" (true) / "TOTAL": the utterances read
    WordArea area = WordArea::MainBody; // "MBODY" / "MAZE" / "MBMAZE": where words are read
    bool countTranscripts = true;       // "CNTTRAN": a column of transcripts using the item
    bool percentTranscripts = false;    // "PCTRAN": the same as a percentage of transcripts
    bool countTotal = true;             // "CNTTOTAL": a column of uses in all transcripts
    bool countFirst = false;            // "CNTFIRST": most used first, else alphabetical
    std::string includeCodes;           // "INCODES": only words or codes with these codes
    std::string excludeCodes;           // "EXCODES": never words or codes with these codes

    bool operator==(const ListOptions&) const = default;
};

// The options a section's lines hold; what they leave out keeps its default.
ListOptions listOptionsFromLines(const std::vector<KeywordLine>& lines);
// The section's lines for the options, each beginning with the keyword.
std::vector<std::string> listOptionLines(ListKind kind, const ListOptions& options);

struct ListEntry {
    std::string item;    // a word root, "/ed" for a bound morpheme, "[EW:went]" for a code
    int total = 0;       // uses in all transcripts read
    int transcripts = 0; // transcripts that use it

    bool operator==(const ListEntry&) const = default;
};

struct GeneratedList {
    ListKind kind = ListKind::Words;
    std::vector<ListEntry> entries; // in the options' order
    int transcripts = 0;            // transcripts read
    // What was said about the transcripts left out ("x.tvi could not be
    // opened - not included", "x.tvi contains errors - not included").
    std::vector<std::string> messages;
    bool cancelled = false;
};

// Collects the items of analysed transcripts one by one.
class ListCollector {
public:
    ListCollector(ListKind kind, ListOptions options);
    // Adds a measured transcript's items (its analysed speaker, or both).
    void add(const TranscriptAnalysis& analysis);
    // The items in order (alphabetical without regard to case, or most used first).
    GeneratedList result() const;

private:
    ListKind kind_;
    ListOptions options_;
    std::map<std::string, ListEntry, std::less<>> entries_;
    int transcripts_ = 0;
};

// Analyses each file under the context for `speaker` (0 the 1st main
// speaker, 1 the 2nd) and collects its items. A file that cannot be read is
// left out, and so is one with errors unless `includeErrors`; each is named in
// the messages. The progress can stop the run between files.
GeneratedList generateList(ListKind kind, const ListOptions& options,
                           const std::vector<std::filesystem::path>& files,
                           const AnalysisContext& context, int speaker, bool includeErrors,
                           Progress& progress);

// A "*.LST" word list: one item per line, LF line ends.
std::string listFileText(const GeneratedList& list);
// A text table: a heading line, then one line per item with the columns the
// options choose, separated by tabs, and a closing line with the count of
// transcripts read.
std::string listTableText(const GeneratedList& list, const ListOptions& options);
// The codes of a code list as one list of the insert-code lists: "[A] [B]".
std::string codeListText(const GeneratedList& list);

} // namespace tavi
