// The transcript cut: the stretch of a transcript that an analysis reads.
// Saved as the "TCUT" settings section; times are minutes x 60 + seconds.
#pragma once

#include <cstdint>
#include <string>

namespace tavi {

struct TranscriptCut {
    enum StartType : std::int32_t {
        FromBeginning = 0,
        FromUtterance = 1,
        FromTiming = 2,
        FromCode = 3
    };
    enum EndType : std::int32_t {
        ToEnd = 0,
        ToUtterance = 1,
        ToTiming = 2,
        ToCode = 3,
        ToWordCount = 4,
        ToUtteranceCount = 5,
        ToElapsedTime = 6,
    };

    std::int32_t startType = FromBeginning;
    std::int32_t endType = ToEnd;
    std::int32_t startSpeaker = 0;   // 0 1st, 1 2nd (utterance-number start)
    std::int32_t endSpeaker = 0;     // 0 1st, 1 2nd, 2 either (counts)
    std::int32_t startUtterance = 1; // utterance number at which the cut starts
    std::int32_t endValue = 0;       // end utterance number, or words / utterances to contain
    std::int32_t startBase = 1;      // 1 total utterances; otherwise analysis-set utterances
    std::int32_t endBase = 1;        // 1 total utterances; otherwise analysis-set utterances
    std::int32_t wordArea = 0;       // 0 main body; otherwise main body and mazes
    std::int32_t startTime = 0;      // seconds
    std::int32_t endTime = 0;        // seconds
    std::string startCode;
    std::string endCode;

    bool isEntireTranscript() const { return startType == FromBeginning && endType == ToEnd; }
    bool operator==(const TranscriptCut&) const = default;
};

} // namespace tavi
