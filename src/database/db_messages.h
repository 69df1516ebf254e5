// The system's messages about database files, word for word. Formats take
// the file name, record key or value with tavi::format.
#pragma once

namespace tavi::db::msg {

// Reading and writing the file.
inline constexpr const char* kMissingVersion = "Incorrect format: %s is missing version number";
inline constexpr const char* kWrongVersion = "Incompatible version: %s has wrong version number";
inline constexpr const char* kMissingFirst =
    "Incorrect format: %s is missing index of first transcript data";
inline constexpr const char* kMissingLast =
    "Incorrect format: %s is missing index of last transcript data";
inline constexpr const char* kMissingContextIn = "Incorrect format: %s is missing sampling context";
inline constexpr const char* kMissingContext = "Missing sampling context";
inline constexpr const char* kHeaderCorrupted =
    "Problem writing database header information - database may be corrupted";
inline constexpr const char* kHeaderWriteSettings = "Problem writing to database file (%s)";
inline constexpr const char* kIncorrectFormat = "Incorrect format: %s contains incorrect format";
inline constexpr const char* kSeekRead = "Problem seeking to read database file";
inline constexpr const char* kRead = "Problem reading database file";
inline constexpr const char* kSeekWrite = "Problem seeking to write database file";
inline constexpr const char* kWrite = "Problem writing database file";
inline constexpr const char* kRecordSeek = "Problem seeking transcript information record";
inline constexpr const char* kRecordRead = "Problem reading transcript information record";
inline constexpr const char* kRecordWrite = "Problem writing transcript information record";
inline constexpr const char* kAppendRecord =
    "Problem writing transcript sd2 record - database may be corrupted";
inline constexpr const char* kAppendData =
    "Problem writing transcript entries - database may be corrupted";
inline constexpr const char* kEmptyDatabase = "Empty database";
inline constexpr const char* kReadOnly =
    "%s is opened for READ ONLY - you cannot edit the contents unless you run the software as an "
    "administrator or move the database files to an unprotected folder.";
inline constexpr const char* kReadOnlyTitle = " - READ ONLY";
inline constexpr const char* kBusy =
    "%s is being changed by another program - try again when it has finished";
inline constexpr const char* kRestricted = "This database has restricted access. You must know the "
                                           "password in order to access the data.";

// Converting the older three-file format.
inline constexpr const char* kConvertQuestion =
    "%s is an older database format. Would you like to convert it?";
inline constexpr const char* kAssumeEmpty =
    "%s could not be opened - assume no transcripts stored in database";
inline constexpr const char* kConvertWrongVersion =
    "Incorrect version: %s contains incorrect version (%d) - not converted";
inline constexpr const char* kConvertCannotOpen = "%s could not be opened - database not converted";
inline constexpr const char* kConvertCannotCreate =
    "%s could not be created - database not converted";
inline constexpr const char* kConvertWriteFailed = "Problem writing to %s - database not converted";
inline constexpr const char* kCouldNotConvert = "%s could not be converted";
inline constexpr const char* kEntriesSeek = "Problem seeking transcript entries";
inline constexpr const char* kEntriesRead = "Problem reading transcript entries";
inline constexpr const char* kEntriesWrite = "Problem writing transcript entries";

// Building.
inline constexpr const char* kNotOpened = "%s could not be opened - not stored";
inline constexpr const char* kHasErrors = "%s contains errors - not stored";
inline constexpr const char* kDuplicate = "Duplicate record for %s - not stored";
inline constexpr const char* kNonMatchingContext = "Non-matching context for %s - stored as %s";
inline constexpr const char* kNonMatchingSubgroup = "Non-matching subgroup for %s - stored as %s";
inline constexpr const char* kNonMatchingEthnicity = "Non-matching ethnicity for %s - stored as %s";
inline constexpr const char* kNonMatchingLocation = "Non-matching location for %s - stored as %s";
inline constexpr const char* kNonMatchingSelect =
    "Non-matching +Select value for %s - stored as %s";
inline constexpr const char* kRemoveQuestion = "Remove record %s?";
inline constexpr const char* kRemoveFailed = "Problem removing record from list - not removed";
inline constexpr const char* kBuilderTitle = "Build Reference Database";

} // namespace tavi::db::msg
