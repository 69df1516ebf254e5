// The database builder: adds checked transcripts to a database as records
// with their transcript data, enforces the database's context, subgroup,
// ethnicity, location and "+Select" values when asked, counts what happened
// and sums it up in one message; removes records; checks before closing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/progress.h"
#include "base/prompter.h"
#include "base/text.h"
#include "database/database_file.h"
#include "database/sample_info.h"
#include "transcript/checker.h"
#include "transcript/tran_line.h"

namespace tavi::db {

// Field order of the switches, in the descriptive header and record bits.
enum EnforcedField {
    EnforceContext = 0,
    EnforceSubgroup,
    EnforceEthnicity,
    EnforceLocation,
    EnforceSelect,
    kEnforcedFields
};

struct BuildOptions {
    int speaker = 1; // the target speaker whose sample is stored, 1 or 2
    bool enforce[kEnforcedFields] = {false, false, false, false, false};
    // Database values of subgroup, ethnicity, location and "+Select" (the
    // context's value is the database's sampling context).
    std::string values[kEnforcedFields];
    std::string transcriptFolder; // where names without a folder are found
    DateOrder dateOrder = DateOrder::MonthDayYear;
    // How transcripts without a byte order mark are read (the language settings).
    TextEncoding encoding = TextEncoding::Utf8;
    // Store the transcript without the speaker's name, identifier and dates,
    // the age kept as "CA" (see deidentifiedText); the record never holds them.
    bool deidentify = false;
    // Called with each added record's list line as soon as the record is
    // stored, so a listing shows every committed record even if the run is
    // stopped; may be empty.
    std::function<void(const std::string&)> recordAdded;
};

// The switches and values as the descriptive header keeps them (items 9, 10).
BuildOptions buildOptionsFromHeader(const DescriptiveHeader& info);
void storeBuildOptions(const BuildOptions& options, DescriptiveHeader& info);

struct BuildCounters {
    std::int32_t added = 0;
    std::int32_t duplicates = 0;
    std::int32_t withErrors = 0;
    std::int32_t nonMatching[kEnforcedFields] = {0, 0, 0, 0, 0};
};

// The builder's list line of a record: "%s - %s" of the key and context, the
// subgroup in brackets, then "; %s" for each of ethnicity, location and
// "+Select" value that is not empty.
std::string recordListLine(const sd2& record);

// "3 records added (1 duplicate records, 2 with errors)".
std::string buildSummary(const BuildCounters& counters);

// True when the checker reports errors in the transcript.
using TranscriptChecker = std::function<bool(const TranLines&)>;
// The transcript checker with the given options (date format, keywords).
TranscriptChecker standardChecker(CheckOptions options = {});
// Fills the record's analysis values (set counts and entries) when the
// analysis engine is at hand; may be empty.
using SampleValuesFiller = std::function<void(const TranLines&, int speaker, sd2&)>;

struct BuildResult {
    BuildCounters counters;
    std::vector<std::string> listLines; // the builder's list line of each added record
    std::string summary;                // the summary message, also shown
    bool stopped = false;               // cancelled, or a write failed
};

// Adds the files in order. Every message is shown with OK and Cancel; Cancel
// stops after the current file and keeps what was written.
BuildResult addTranscripts(Database& database, const std::vector<std::string>& files,
                           const BuildOptions& options, const TranscriptChecker& checker,
                           const SampleValuesFiller& fillValues, Prompter& prompter,
                           Progress& progress);

// Asks "Remove record %s?" and removes the record when confirmed.
bool removeRecord(Database& database, const std::string& key, Prompter& prompter);

// Closing the builder: the sampling context must be there; a changed
// descriptive header is written.
bool closeBuilder(Database& database, const DescriptiveHeader& edited, Prompter& prompter);

} // namespace tavi::db
