// The transcript checker: one walk over the lines that reports every violation
// of the notation (through `ErrList`, in line order) and gathers what the
// analysis needs on the way: the speaker table, the timing list, the pause
// tallies and the age from the header lines.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "transcript/date_format.h"
#include "transcript/err.h"
#include "transcript/scoring_template.h"
#include "transcript/segmented_transcript.h"
#include "transcript/tran_line.h"

namespace tavi {

struct CheckOptions {
    int transcriptIndex = 0; // stored in every record
    DateFormat dateFormat;
    // Header keywords in the interface language.
    std::string dobKeyword = "DOB";
    std::string doeKeyword = "DOE";
    std::string caKeyword = "CA";
    // The header line that must be present ("missing + %s: header line.");
    // empty: none is required.
    std::string requiredHeader;
    // Within-utterance pauses are tallied (and a pause of a minute or more is
    // warned about) only for utterances of the main speakers on lines for which
    // this answers true: the part of the transcript being analysed. Empty: all.
    std::function<bool(int line)> analysedLine;
    // Keep the segmented transcript in the result (one walk for both).
    bool keepSegmentation = false;
    // The scoring templates whose "+" lines are checked; null: none.
    std::shared_ptr<const TemplateSet> templates;
};

enum class SpeakerTableState { NotYetSeen, Good, Bad };

struct TimingEntry {
    int seconds = 0;        // elapsed time of the timing line
    int utterancesSeen = 0; // utterances read before the timing line
    int line = 0;           // 0 for the assumed starting time 0:00
};

struct PauseTally {
    int untimed = 0;
    int timed = 0;
    std::int64_t timedSeconds = 0; // a pause may be up to 10^9 seconds: 64-bit sums
};

struct PauseTallies {
    std::array<PauseTally, 2> pauseLines;      // ":" lines (0) and ";" lines (1)
    std::array<PauseTally, 2> withinUtterance; // main speakers 0 and 1
    int firstTimedLine = 0;                    // 0: none
    int firstUntimedLine = 0;                  // 0: none
};

struct CheckResult {
    std::vector<err> problems; // in line order
    bool hasErrors = false;
    bool hasWarnings = false;
    int errorCount() const;
    int warningCount() const;

    SpeakerTableState speakerState = SpeakerTableState::NotYetSeen;
    SpeakerTable speakers;
    std::vector<TimingEntry> timings;
    PauseTallies pauses;
    int utteranceCount = 0;
    int elapsedSeconds = 0; // last timing minus first; 0 without timing lines
    int ageMonths = -1;     // from DOB and DOE, else from CA; -1 when unknown

    SegmentedTranscript segmented; // filled when CheckOptions::keepSegmentation
};

// Checks a whole transcript.
CheckResult checkTranscript(const TranLines& lines, const CheckOptions& options = {});

// The same for a whole text (UTF-8, lines ended by LF, CR LF or CR), without
// building line records first: the cheapest way for very large files.
CheckResult checkText(std::string_view text, const CheckOptions& options = {});

// The same for a text the result may keep: the segmentation views the text
// instead of copying its utterance lines.
CheckResult checkOwnedText(std::string text, const CheckOptions& options = {});

// The same walk line by line, for callers that produce lines as they go.
class Checker {
public:
    explicit Checker(CheckOptions options = {});
    ~Checker();
    Checker(const Checker&) = delete;
    Checker& operator=(const Checker&) = delete;

    void checkLine(std::string_view text, int line);
    // Room for the segmentation of about `lines` lines (when it is kept).
    void reserve(size_t lines);
    // Hands `text` to the segmentation (when it is kept) and returns a view of
    // it; lines checked from that view are kept without a copy.
    std::string_view adoptText(std::string text);
    // Runs the end-of-transcript checks and hands out the result; the checker
    // is then empty and ready for the next transcript.
    CheckResult finish();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tavi
