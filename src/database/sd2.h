// The transcript information record: 1584 bytes per stored speaker sample,
// little-endian, text fields UTF-16LE. The record carries what matching needs
// without reading the sample (key, age, gender, grade, context, subgroup,
// location, ethnicity, "+Select") and the chain positions of the file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavi::db {

inline constexpr std::size_t kRecordSize = 1584;
inline constexpr std::size_t kMaxAnalysisSets = 10;
inline constexpr std::size_t kKeyUnits = 40;
inline constexpr std::size_t kTextUnits = 40;
inline constexpr std::size_t kEthnicityUnits = 20;
inline constexpr std::size_t kGradeUnits = 9;
inline constexpr std::int16_t kUnknownAge = -1;

// Bits of the flag word.
inline constexpr std::uint16_t kFlagTimed = 0x0001;         // elapsed time is marked
inline constexpr std::uint16_t kFlagValues = 0x0002;        // analysis-set values are filled in
inline constexpr std::uint16_t kFlagSecondSpeaker = 0x0004; // the sample has a second speaker
inline constexpr std::uint16_t kFlagSections = 0x0008;      // the sample has @begin/@end sections

// Gender codes.
inline constexpr std::int16_t kGenderUnknown = 0;
inline constexpr std::int16_t kGenderMale = 1;
inline constexpr std::int16_t kGenderFemale = 2;
inline constexpr std::int16_t kGenderNonBinary = 3;

// The values kept per analysis set (the 12-byte entries at 428).
struct SetValues {
    std::int32_t totalWords = 0;     // NTW of the target speaker
    std::int32_t setUtterances = 0;  // analysis-set utterances of the target speaker
    std::int32_t elapsedSeconds = 0; // elapsed time of the sample, 0 when not marked

    bool operator==(const SetValues&) const = default;
};

struct sd2 {
    std::string key; // "%s;%d": base name and speaker number
    std::uint16_t flags = 0;
    std::int16_t ageMonths = kUnknownAge;
    std::int16_t gender = kGenderUnknown;
    std::uint16_t setCount = 0; // analysis sets whose values are stored (at 86)
    std::string context;
    std::string subgroup;
    std::string location;
    std::uint16_t speakerValue = 0;                              // at 328
    std::array<std::uint16_t, kMaxAnalysisSets> setUtterances{}; // at 330
    std::uint16_t transcriptValue = 0;                           // at 350
    std::int64_t dataPosition = 0;
    std::int64_t dataEnd = 0;
    std::string ethnicity;
    std::string grade;
    std::array<SetValues, kMaxAnalysisSets> sets{}; // at 428
    std::int32_t buildOption1 = 0;                  // target speaker number
    std::int32_t buildOption2 = 0;                  // match-enforcement switches, one bit each
    std::uint16_t stored = 1;
    std::int64_t position = 0;
    std::int64_t previous = 0;
    std::string select; // "+Select" value

    bool operator==(const sd2&) const = default;
};

// The 1584 bytes of a record, field by field.
std::string encodeRecord(const sd2& record);
// Reads a record from exactly 1584 bytes.
sd2 decodeRecord(std::string_view bytes);

} // namespace tavi::db
