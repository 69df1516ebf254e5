// Builds segmented transcripts by hand for the analysis tests, so the measures
// can be tested apart from segmentation. Utterances are written in a small
// shorthand: blank-separated tokens, the last one the terminator.
//   dog/s      word with bound morpheme "s"; "he+'s" clitic; "go/*ed" omitted ending
//   *the       omitted word;   X, XX, XXX  unintelligible marks
//   (um uh)    a maze (parentheses around one or more tokens)
//   <ok>       word in an overlap;  [EW:went] code on the word before (on the
//              utterance when it comes first or after the last word)
//   :  :3      untimed / timed (3 s) pause;  {c}  comment;  "  quotation
//   ((aside))  parenthetical remark
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transcript/segmented_transcript.h"

namespace tavi::test {

class TranscriptBuilder {
public:
    TranscriptBuilder() {
        t_.speakers.groups[0].labels = {"Child"};
        t_.speakers.groups[1].labels = {"Examiner"};
        t_.speakers.groups[2].labels = {"Other"};
    }
    // Adds an utterance of group 0 ("C"), 1 ("E") or 2 ("O").
    TranscriptBuilder& c(std::string_view text) { return utt(0, text); }
    TranscriptBuilder& e(std::string_view text) { return utt(1, text); }
    TranscriptBuilder& o(std::string_view text) { return utt(2, text); }
    TranscriptBuilder& utt(int group, std::string_view text);
    TranscriptBuilder& timing(int seconds, std::vector<std::string> codes = {});
    TranscriptBuilder& pause(int seconds, std::vector<std::string> codes = {});
    TranscriptBuilder& begin();
    TranscriptBuilder& end();
    const SegmentedTranscript& get() const { return t_; }
    operator const SegmentedTranscript&() const { return t_; }

private:
    int nextLine() { return ++line_; }
    EntryCodes keepCodes(const std::vector<std::string>& codes);
    SegmentedTranscript t_;
    int line_ = 1; // line 1 is the "$" line
};

// Splits one shorthand word ("dog/s+'s") into a Word kept in `store`.
Word makeWord(std::string_view token, TranscriptStore& store);

} // namespace tavi::test
