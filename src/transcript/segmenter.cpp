// Utterance segmentation (work in progress).
#include "transcript/segmenter.h"

namespace tavi {

void UtteranceSegmenter::segment(std::string_view, int lineNumber, int speakerGroup, Utterance& out,
                                 ProblemSink*) {
    out = Utterance{};
    out.line = lineNumber;
    out.speakerGroup = speakerGroup;
}

Utterance segmentUtterance(std::string_view line, int lineNumber, int speakerGroup,
                           ProblemSink* sink) {
    UtteranceSegmenter segmenter;
    Utterance u;
    segmenter.segment(line, lineNumber, speakerGroup, u, sink);
    return u;
}

} // namespace tavi
