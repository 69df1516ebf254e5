// The transcript information record, serialized at fixed offsets.
#include "database/sd2.h"

#include "database/db_fields.h"

namespace tavi::db {

namespace {

// Offsets in the record.
constexpr std::size_t kKey = 0, kFlags = 80, kAge = 82, kGender = 84, kSetCount = 86;
constexpr std::size_t kContext = 88, kSubgroup = 168, kLocation = 248;
constexpr std::size_t kSpeakerValue = 328, kSetUtterances = 330, kTranscriptValue = 350;
constexpr std::size_t kDataPosition = 352, kDataEnd = 360;
constexpr std::size_t kEthnicity = 370, kGrade = 410, kSets = 428, kSetEntry = 12;
constexpr std::size_t kOption1 = 548, kOption2 = 552, kStored = 556;
constexpr std::size_t kPosition = 568, kPrevious = 576, kSelect = 584;

void putText(std::string& out, std::size_t offset, std::string_view text, std::size_t units) {
    out.replace(offset, units * 2, encodeFixedText(text, units));
}

std::string getText(std::string_view in, std::size_t offset, std::size_t units) {
    return decodeFixedText(in.substr(offset, units * 2));
}

} // namespace

std::string encodeRecord(const sd2& r) {
    std::string out(kRecordSize, '\0');
    putText(out, kKey, r.key, kKeyUnits);
    putU16(out, kFlags, r.flags);
    putU16(out, kAge, static_cast<std::uint16_t>(r.ageMonths));
    putU16(out, kGender, static_cast<std::uint16_t>(r.gender));
    putU16(out, kSetCount, r.setCount);
    putText(out, kContext, r.context, kTextUnits);
    putText(out, kSubgroup, r.subgroup, kTextUnits);
    putText(out, kLocation, r.location, kTextUnits);
    putU16(out, kSpeakerValue, r.speakerValue);
    for (std::size_t i = 0; i < kMaxAnalysisSets; ++i)
        putU16(out, kSetUtterances + 2 * i, r.setUtterances[i]);
    putU16(out, kTranscriptValue, r.transcriptValue);
    putI64(out, kDataPosition, r.dataPosition);
    putI64(out, kDataEnd, r.dataEnd);
    putText(out, kEthnicity, r.ethnicity, kEthnicityUnits);
    putText(out, kGrade, r.grade, kGradeUnits);
    for (std::size_t i = 0; i < kMaxAnalysisSets; ++i) {
        std::size_t at = kSets + kSetEntry * i;
        putU32(out, at, static_cast<std::uint32_t>(r.sets[i].totalWords));
        putU32(out, at + 4, static_cast<std::uint32_t>(r.sets[i].setUtterances));
        putU32(out, at + 8, static_cast<std::uint32_t>(r.sets[i].elapsedSeconds));
    }
    putU32(out, kOption1, static_cast<std::uint32_t>(r.buildOption1));
    putU32(out, kOption2, static_cast<std::uint32_t>(r.buildOption2));
    putU16(out, kStored, r.stored);
    putI64(out, kPosition, r.position);
    putI64(out, kPrevious, r.previous);
    putText(out, kSelect, r.select, kTextUnits);
    return out;
}

sd2 decodeRecord(std::string_view in) {
    sd2 r;
    r.key = getText(in, kKey, kKeyUnits);
    r.flags = getU16(in, kFlags);
    r.ageMonths = static_cast<std::int16_t>(getU16(in, kAge));
    r.gender = static_cast<std::int16_t>(getU16(in, kGender));
    r.setCount = getU16(in, kSetCount);
    r.context = getText(in, kContext, kTextUnits);
    r.subgroup = getText(in, kSubgroup, kTextUnits);
    r.location = getText(in, kLocation, kTextUnits);
    r.speakerValue = getU16(in, kSpeakerValue);
    for (std::size_t i = 0; i < kMaxAnalysisSets; ++i)
        r.setUtterances[i] = getU16(in, kSetUtterances + 2 * i);
    r.transcriptValue = getU16(in, kTranscriptValue);
    r.dataPosition = getI64(in, kDataPosition);
    r.dataEnd = getI64(in, kDataEnd);
    r.ethnicity = getText(in, kEthnicity, kEthnicityUnits);
    r.grade = getText(in, kGrade, kGradeUnits);
    for (std::size_t i = 0; i < kMaxAnalysisSets; ++i) {
        std::size_t at = kSets + kSetEntry * i;
        r.sets[i].totalWords = static_cast<std::int32_t>(getU32(in, at));
        r.sets[i].setUtterances = static_cast<std::int32_t>(getU32(in, at + 4));
        r.sets[i].elapsedSeconds = static_cast<std::int32_t>(getU32(in, at + 8));
    }
    r.buildOption1 = static_cast<std::int32_t>(getU32(in, kOption1));
    r.buildOption2 = static_cast<std::int32_t>(getU32(in, kOption2));
    r.stored = getU16(in, kStored);
    r.position = getI64(in, kPosition);
    r.previous = getI64(in, kPrevious);
    r.select = getText(in, kSelect, kTextUnits);
    return r;
}

} // namespace tavi::db
