// libFuzzer target: arbitrary bytes through the transcript reader, the
// checker (which segments every utterance line) and segmentation alone. The
// checker with and without keeping the segmentation must agree.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "transcript/checker.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    tavi::LoadedTranscript t = tavi::decodeTranscript(bytes);
    tavi::CheckOptions options;
    options.keepSegmentation = true;
    options.requiredHeader = "Name";
    options.analysedLine = [](int line) { return line % 3 != 0; };
    tavi::CheckResult result = tavi::checkTranscript(t.lines, options);
    for (size_t i = 1; i < result.problems.size(); ++i)
        if (result.problems[i - 1].line > result.problems[i].line)
            __builtin_trap();
    // Checking alone (words checked, not kept) must find exactly the same.
    options.keepSegmentation = false;
    tavi::CheckResult checkedOnly = tavi::checkText(t.text, options);
    if (checkedOnly.problems.size() != result.problems.size())
        __builtin_trap();
    for (size_t i = 0; i < result.problems.size(); ++i)
        if (checkedOnly.problems[i].message != result.problems[i].message ||
            checkedOnly.problems[i].line != result.problems[i].line)
            __builtin_trap();
    tavi::TranscriptStore store;
    for (const tavi::tranLine& line : t.lines) {
        tavi::Utterance u = tavi::segmentUtterance(line.text, line.line, result.speakers, store);
        for (const tavi::Code& c : u.codes())
            if (c.word >= static_cast<int>(u.words.size()))
                __builtin_trap();
    }
    return 0;
}
