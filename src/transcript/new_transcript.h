// The text of a new transcript, composed from the values the user entered:
// the "$" line, one "+" line per header field that has a value, and the
// starting time.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tavi {

// Values entered for a new transcript; empty means "no value".
struct NewTranscriptValues {
    std::string targetSpeaker; // e.g. "Child"
    std::string secondSpeaker; // e.g. "Examiner"
    std::string participantId, name, gender, dob, doe, ca, grade, ethnicity, parentEduc, examiner,
        transcriber, location, collect, context, subgroup, language, bilingual, bilSubgroup, mode;
    std::string startTime; // e.g. "0:00"; empty: no timing line
};

// The words written into a new transcript, in the interface language.
struct NewTranscriptLabels {
    // Header keywords in the order the lines are written.
    std::string participantId = "ParticipantId", name = "Name", gender = "Gender", dob = "DOB",
                doe = "DOE", ca = "CA", grade = "Grade", ethnicity = "Ethnicity",
                parentEduc = "ParentEduc", examiner = "Examiner", transcriber = "Transcriber",
                location = "Location", collect = "Collect", context = "Context",
                subgroup = "Subgroup", language = "Language", bilingual = "Bilingual",
                bilSubgroup = "BilSubgroup", mode = "MODE";
    // Display names of the stored context values "Con", "Play", "Nar", "Expo",
    // "Pers", "Fable", and of the gender values "M", "F", "N".
    std::vector<std::pair<std::string, std::string>> contexts = {
        {"Con", "Conversation"}, {"Play", "Play"},       {"Nar", "Narrative"},
        {"Expo", "Expository"},  {"Pers", "Persuasive"}, {"Fable", "Fable"}};
    std::vector<std::pair<std::string, std::string>> genders = {
        {"M", "Male"}, {"F", "Female"}, {"N", "Not specified"}};
};

// Every line ends with "\n".
std::string composeNewTranscript(const NewTranscriptValues& values,
                                 const NewTranscriptLabels& labels = {});

} // namespace tavi
