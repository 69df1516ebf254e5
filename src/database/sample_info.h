// What a stored sample's record says about its speaker, taken from the
// transcript's header lines: age in months, gender code, grade, context,
// subgroup, location, ethnicity and "+Select" value; and the names the
// builder gives a transcript file (full path, base name, record key).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "transcript/date_format.h"
#include "transcript/tran_line.h"

namespace tavi::db {

struct SampleInfo {
    std::int16_t ageMonths = -1; // -1: unknown
    std::int16_t gender = 0;     // 0 unknown, 1 M, 2 F, 3 N
    std::string grade;
    std::string context;
    std::string subgroup;
    std::string location;
    std::string ethnicity;
    std::string select;
    bool timed = false;         // a "-" timing line is present
    bool secondSpeaker = false; // the "$" line names a second main speaker
    bool sections = false;      // "@begin"/"@end" lines are present
};

// The age comes from "DOB" and "DOE" when both are readable, else from "CA".
SampleInfo sampleInfo(const TranLines& lines, DateOrder order);

// The transcript text without what names the speaker or dates the sample:
// the "+ Name:", "+ ParticipantId:", "+ DOB:" and "+ DOE:" header lines go.
// When the age is known (`ageMonths` >= 0, worked out from the dates first),
// it stays as one "+ CA: years;months" line where the first dropped line (or
// the first "CA" line) was; otherwise any "CA" line is kept as it is. The
// other lines and the line ends are kept byte for byte.
std::string deidentifiedText(std::string_view text, int ageMonths);

// Whether a transcript's value matches the database's: equal without regard
// to case, a context abbreviation ("Con") also matching its name
// ("Conversation").
bool valuesMatch(std::string_view value, std::string_view databaseValue);

// Age in months from "CA" (years;months); -1 when unreadable.
int ageFromCa(std::string_view value);
// Age in months between two header dates; -1 when either is unreadable.
int ageFromDates(std::string_view dob, std::string_view doe, DateOrder order);
std::int16_t genderCode(std::string_view value);

// A name without a folder is placed in the transcript folder.
std::string fullTranscriptPath(std::string_view name, std::string_view folder);
// The file name without folder, cut before its first ".": "x.y.tvi" gives "x".
std::string baseName(std::string_view path);
// "%s;%d" of the base name and the speaker number (from 1), cut to 39 characters.
std::string recordKey(std::string_view base, int speaker);

} // namespace tavi::db
