// The transcript checker (work in progress).
#include "transcript/checker.h"

#include "base/format.h"
#include "base/text.h"
#include "transcript/err_list.h"
#include "transcript/segmenter.h"
#include "transcript/speaker_line.h"

namespace tavi {

std::string DateFormat::text() const {
    return order == DateOrder::MonthDayYear ? format("MM%cDD%cYY", separator, separator)
                                            : format("DD%cMM%cYY", separator, separator);
}

int CheckResult::errorCount() const {
    int n = 0;
    for (const err& e : problems)
        n += e.isError() ? 1 : 0;
    return n;
}

int CheckResult::warningCount() const {
    return static_cast<int>(problems.size()) - errorCount();
}

struct Checker::State {
    CheckOptions options;
    ErrList list;
};

Checker::Checker(CheckOptions options) : state_(std::make_unique<State>()) {
    state_->options = std::move(options);
}

Checker::~Checker() = default;

void Checker::checkLine(std::string_view, int) {}

CheckResult Checker::finish() {
    CheckResult result;
    result.problems = state_->list.records();
    return result;
}

CheckResult checkTranscript(const TranLines& lines, const CheckOptions& options) {
    Checker checker(options);
    for (const tranLine& l : lines)
        checker.checkLine(l.text, l.line);
    return checker.finish();
}

Utterance segmentUtterance(std::string_view line, int lineNumber, const SpeakerTable& speakers) {
    size_t pos = 0;
    int group = 2;
    if (!line.empty()) {
        int g = speakerGroupOf(speakers, nextCodePoint(line, pos));
        if (g >= 0)
            group = g;
    }
    return segmentUtterance(line, lineNumber, group);
}

SegmentedTranscript segmentTranscript(const TranLines& lines) {
    CheckOptions options;
    options.keepSegmentation = true;
    return checkTranscript(lines, options).segmented;
}

} // namespace tavi
