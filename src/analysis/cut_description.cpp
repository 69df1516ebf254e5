// The transcript cut as text, for report headers and batch output.
#include <string>

#include "analysis/selection.h"
#include "analysis/value.h"
#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

std::string startPart(const TranscriptCut& c, const std::string& setWord) {
    switch (c.startType) {
    case TranscriptCut::FromUtterance:
        if (c.startBase == 1)
            return format("From Spk %d Utt %d", c.startSpeaker + 1, c.startUtterance);
        return format("From Spk %d %s %d", c.startSpeaker + 1, setWord.c_str(), c.startUtterance);
    case TranscriptCut::FromTiming:
        return format("From Timing Line %s", formatMinutesSeconds(c.startTime).c_str());
    case TranscriptCut::FromCode:
        return format("From %s", c.startCode.c_str());
    default:
        return "From Beginning";
    }
}

std::string speakerText(int endSpeaker) {
    return endSpeaker == 0 ? " Spk 1" : endSpeaker == 1 ? " Spk 2" : "";
}

std::string wordsPart(const TranscriptCut& c, const std::string& s, bool fromStart,
                      const std::string& sets) {
    const char* noun = c.wordArea == 0 ? "Main Body Words" : "Words";
    std::string spk = speakerText(c.endSpeaker);
    if (c.endBase != 1)
        return fromStart ? format("%d%s %s from %s", c.endValue, spk.c_str(), noun, sets.c_str())
                         : format("%s, Contains %d%s %s from %s", s.c_str(), c.endValue,
                                  spk.c_str(), noun, sets.c_str());
    return fromStart ? format("%d%s %s", c.endValue, spk.c_str(), noun)
                     : format("%s, Contains %d%s %s", s.c_str(), c.endValue, spk.c_str(), noun);
}

std::string utterancesPart(const TranscriptCut& c, const std::string& s, bool fromStart,
                           const std::string& sets) {
    std::string spk = speakerText(c.endSpeaker);
    if (c.endBase != 1)
        return fromStart ? format("%d%s %s", c.endValue, spk.c_str(), sets.c_str())
                         : format("%s, Contains %d%s %s", s.c_str(), c.endValue, spk.c_str(),
                                  sets.c_str());
    return fromStart ? format("%d%s Utterances", c.endValue, spk.c_str())
                     : format("%s, Contains %d%s Utts", s.c_str(), c.endValue, spk.c_str());
}

std::string wholeText(const TranscriptCut& c, const std::string& setWord) {
    if (c.isEntireTranscript())
        return "Entire Transcript";
    const std::string s = startPart(c, setWord);
    const std::string sets = setWord + "s";
    const bool fromStart = c.startType == TranscriptCut::FromBeginning;
    switch (c.endType) {
    case TranscriptCut::ToUtterance:
        if (c.startType == TranscriptCut::FromUtterance && c.startBase == c.endBase &&
            c.startSpeaker == c.endSpeaker)
            return format("%s to %d", s.c_str(), c.endValue);
        if (c.endBase == 1)
            return format("%s to Spk %d Utt %d", s.c_str(), c.endSpeaker + 1, c.endValue);
        return format("%s to Spk %d %s %d", s.c_str(), c.endSpeaker + 1, setWord.c_str(),
                      c.endValue);
    case TranscriptCut::ToTiming:
        if (c.startType == TranscriptCut::FromTiming)
            return format("%s to %s", s.c_str(), formatMinutesSeconds(c.endTime).c_str());
        return format("%s to Timing Line %s", s.c_str(), formatMinutesSeconds(c.endTime).c_str());
    case TranscriptCut::ToCode:
        return format("%s to %s", s.c_str(), c.endCode.c_str());
    case TranscriptCut::ToWordCount:
        return wordsPart(c, s, fromStart, sets);
    case TranscriptCut::ToUtteranceCount:
        return utterancesPart(c, s, fromStart, sets);
    case TranscriptCut::ToElapsedTime:
        if (fromStart)
            return format("Elapsed Time %s", formatMinutesSeconds(c.endTime).c_str());
        return format("%s, Contains Elapsed Time %s", s.c_str(),
                      formatMinutesSeconds(c.endTime).c_str());
    default:
        return format("%s to End", s.c_str());
    }
}

// The first `max` characters (UTF-16 code units) of `text`.
std::string keepBeginning(const std::string& text, std::size_t max) {
    std::u16string wide = toUtf16(text);
    if (wide.size() <= max)
        return text;
    wide.resize(max);
    return fromUtf16(wide);
}

} // namespace

std::string describeCut(const TranscriptCut& cut, std::size_t maxLength, std::string_view setWord) {
    return keepBeginning(wholeText(cut, std::string(setWord)), maxLength);
}

} // namespace tavi
