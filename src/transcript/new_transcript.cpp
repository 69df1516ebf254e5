// Composition of a new transcript's text.
#include "transcript/new_transcript.h"

namespace tavi {

namespace {

// A comma typed inside a label becomes a blank; runs of blanks become one, so
// "Examiner, Adult" is written "Examiner Adult".
std::string withoutCommas(const std::string& label) {
    std::string out;
    for (char c : label) {
        if (c == ',')
            c = ' ';
        if (c == ' ' && (out.empty() || out.back() == ' '))
            continue;
        out.push_back(c);
    }
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

const std::string& displayName(const std::string& stored,
                               const std::vector<std::pair<std::string, std::string>>& names) {
    for (const auto& [value, name] : names)
        if (value == stored)
            return name;
    return stored;
}

void addHeader(std::string& text, const std::string& keyword, const std::string& value) {
    if (value.empty())
        return;
    text += "+ " + keyword + ": " + value + "\n";
}

} // namespace

std::string composeNewTranscript(const NewTranscriptValues& v, const NewTranscriptLabels& l) {
    std::string text =
        "$ " + withoutCommas(v.targetSpeaker) + ", " + withoutCommas(v.secondSpeaker) + "\n";
    addHeader(text, l.participantId, v.participantId);
    addHeader(text, l.name, v.name);
    addHeader(text, l.gender, displayName(v.gender, l.genders));
    addHeader(text, l.dob, v.dob);
    addHeader(text, l.doe, v.doe);
    addHeader(text, l.ca, v.ca);
    addHeader(text, l.grade, v.grade);
    addHeader(text, l.ethnicity, v.ethnicity);
    addHeader(text, l.parentEduc, v.parentEduc);
    addHeader(text, l.examiner, v.examiner);
    addHeader(text, l.transcriber, v.transcriber);
    addHeader(text, l.location, v.location);
    addHeader(text, l.collect, v.collect);
    addHeader(text, l.context, displayName(v.context, l.contexts));
    addHeader(text, l.subgroup, v.subgroup);
    addHeader(text, l.language, v.language);
    addHeader(text, l.bilingual, v.bilingual);
    addHeader(text, l.bilSubgroup, v.bilSubgroup);
    addHeader(text, l.mode, v.mode);
    if (!v.startTime.empty())
        text += "- " + v.startTime + "\n";
    return text;
}

} // namespace tavi
