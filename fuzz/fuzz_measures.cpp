// Any text through segmentation and the whole measure computation, with a cut
// and analysis set chosen by the first bytes: no crash, no hang, no read
// outside the input.
#include <cstddef>
#include <cstdint>
#include <string>

#include "analysis/gc_dictionary.h"
#include "analysis/measures.h"
#include "analysis/word_lists.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace {

tavi::TranscriptCut cutFrom(const std::uint8_t* d) {
    tavi::TranscriptCut c;
    c.startType = d[0] % 4;
    c.endType = d[1] % 7;
    c.startSpeaker = d[2] % 2;
    c.endSpeaker = d[2] / 2 % 3;
    c.startUtterance = d[3] % 8;
    c.endValue = d[4] % 16;
    c.startBase = d[5] % 2;
    c.endBase = d[5] / 2 % 2;
    c.wordArea = d[5] / 4 % 2;
    c.startTime = d[6] % 4 * 30;
    c.endTime = d[7] % 4 * 30;
    c.startCode = "A";
    c.endCode = "B";
    return c;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 9)
        return 0;
    static const tavi::StandardWordLists lists =
        tavi::StandardWordLists::parse("P_YESNO yes\nP_FPAUSE um\nP_QUES wh*\nP_SAUX $ have to\n");
    static const tavi::GcDictionary dictionary = [] {
        tavi::GcDictionary d(101);
        d.insert("go [GC:VERB]");
        d.insert("the [GC:DET]");
        return d;
    }();
    tavi::MeasureOptions o;
    o.cut = cutFrom(data);
    o.analysisSet.excludeQuestionResponses = data[8] & 1;
    o.analysisSet.excludeImitations = data[8] >> 1 & 1;
    o.analysisSet.includeOnly = data[8] >> 2 & 1;
    o.analysisSet.includeCodes = "A*";
    o.wordBase.excludeParenthetical = data[8] >> 3 & 1;
    o.window = 10 + data[8] % 7;
    o.distributionInMorphemes = data[8] >> 4 & 1;
    o.wordLists = &lists;
    o.dictionary = &dictionary;
    std::string text(reinterpret_cast<const char*>(data + 9), size - 9);
    tavi::SegmentedTranscript t = tavi::segmentTranscript(tavi::splitTranscriptLines(text));
    tavi::computeMeasures(t, o);
    return 0;
}
