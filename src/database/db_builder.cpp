// Adding transcripts to a database, in the builder's order of steps.
#include "database/db_builder.h"

#include <set>

#include "base/format.h"
#include "base/text.h"
#include "database/db_fields.h"
#include "database/db_messages.h"
#include "session/analysis_session.h"
#include "transcript/transcript_file.h"

namespace tavi::db {

namespace {

constexpr const char* kNonMatchingMessages[kEnforcedFields] = {
    msg::kNonMatchingContext, msg::kNonMatchingSubgroup, msg::kNonMatchingEthnicity,
    msg::kNonMatchingLocation, msg::kNonMatchingSelect};
constexpr const char* kNonMatchingCounts[kEnforcedFields] = {
    "%d non-matching context", "%d non-matching subgroup", "%d non-matching ethnicity",
    "%d non-matching location", "%d non-matching +Select value"};

// One build: the counters, the keys already stored and the cancel state.
class Build {
public:
    Build(Database& db, const BuildOptions& options, const TranscriptChecker& checker,
          const SampleValuesFiller& fill, Prompter& prompter)
        : db_(db), options_(options), checker_(checker), fill_(fill), prompter_(prompter) {}

    BuildResult result;
    std::set<std::string> keys;

    // False when the build must stop after this file.
    bool addFile(const std::string& name) {
        std::string path = fullTranscriptPath(name, options_.transcriptFolder);
        std::string base = baseName(path);
        LoadedTranscript transcript = loadTranscript(path, options_.encoding);
        if (!transcript.ok)
            return tell(format(msg::kNotOpened, path.c_str()));
        const TranLines& lines = transcript.lines;
        if (checker_ && checker_(lines)) {
            ++result.counters.withErrors;
            return tell(format(msg::kHasErrors, path.c_str()));
        }
        sd2 record;
        record.key = recordKey(base, options_.speaker);
        if (keys.count(record.key) != 0) {
            ++result.counters.duplicates;
            return tell(format(msg::kDuplicate, record.key.c_str()));
        }
        bool goOn = fillRecord(record, lines);
        std::string deidentified;
        if (options_.deidentify)
            deidentified = deidentifiedText(transcript.text, record.ageMonths);
        if (!db_.append(record, options_.deidentify ? deidentified : transcript.text, prompter_)) {
            result.stopped = true;
            return false;
        }
        keys.insert(record.key);
        ++result.counters.added;
        result.listLines.push_back(recordListLine(record));
        if (options_.recordAdded)
            options_.recordAdded(result.listLines.back());
        return goOn;
    }

private:
    // Shows a message with OK and Cancel; false when cancelled.
    bool tell(const std::string& text) {
        bool ok = prompter_.confirm(text);
        if (!ok)
            result.stopped = true;
        return ok;
    }

    bool fillRecord(sd2& r, const TranLines& lines) {
        SampleInfo info = sampleInfo(lines, options_.dateOrder);
        r.ageMonths = info.ageMonths;
        r.gender = info.gender;
        r.grade = cutToUnits(info.grade, kGradeUnits - 1);
        r.flags = static_cast<std::uint16_t>((info.timed ? kFlagTimed : 0) |
                                             (info.secondSpeaker ? kFlagSecondSpeaker : 0) |
                                             (info.sections ? kFlagSections : 0));
        r.buildOption1 = options_.speaker;
        for (int f = 0; f < kEnforcedFields; ++f)
            r.buildOption2 |= options_.enforce[f] ? (1 << f) : 0;
        if (fill_)
            fill_(lines, options_.speaker, r);

        std::string* fields[kEnforcedFields] = {&info.context, &info.subgroup, &info.ethnicity,
                                                &info.location, &info.select};
        bool goOn = true;
        for (int f = 0; f < kEnforcedFields; ++f) {
            const std::string& wanted =
                f == EnforceContext ? db_.info().context : options_.values[f];
            if (!options_.enforce[f] || wanted.empty() || valuesMatch(*fields[f], wanted))
                continue;
            ++result.counters.nonMatching[f];
            goOn = tell(format(kNonMatchingMessages[f], r.key.c_str(), wanted.c_str())) && goOn;
            *fields[f] = wanted;
        }
        r.context = cutToUnits(info.context, kTextUnits - 1);
        r.subgroup = cutToUnits(info.subgroup, kTextUnits - 1);
        r.ethnicity = cutToUnits(info.ethnicity, kEthnicityUnits - 1);
        r.location = cutToUnits(info.location, kTextUnits - 1);
        r.select = cutToUnits(info.select, kTextUnits - 1);
        return goOn;
    }

    Database& db_;
    const BuildOptions& options_;
    const TranscriptChecker& checker_;
    const SampleValuesFiller& fill_;
    Prompter& prompter_;
};

} // namespace

std::string recordListLine(const sd2& r) {
    std::string line = format("%s - %s", r.key.c_str(), r.context.c_str());
    if (!r.subgroup.empty())
        line += format(" (%s)", r.subgroup.c_str());
    for (const std::string* text : {&r.ethnicity, &r.location, &r.select})
        if (!text->empty())
            line += format("; %s", text->c_str());
    return line;
}

TranscriptChecker standardChecker(CheckOptions options) {
    AnalysisContext context;
    context.check = std::move(options);
    return [context = std::move(context)](const TranLines& lines) {
        AnalysisRequest checkOnly;
        checkOnly.measure = false;
        return analyseTranscript(lines, context, checkOnly).hasErrors();
    };
}

BuildOptions buildOptionsFromHeader(const DescriptiveHeader& info) {
    BuildOptions options;
    for (int f = 0; f < kEnforcedFields; ++f)
        options.enforce[f] = f < int(info.enforcement.size()) &&
                             (info.enforcement[f] == 'Y' || info.enforcement[f] == 'y');
    std::string_view values = info.enforcedValues;
    for (int f = EnforceSubgroup; f < kEnforcedFields && !values.empty(); ++f) {
        std::size_t tab = values.find('\t');
        options.values[f] = std::string(values.substr(0, tab));
        values = tab == std::string_view::npos ? std::string_view() : values.substr(tab + 1);
    }
    return options;
}

void storeBuildOptions(const BuildOptions& options, DescriptiveHeader& info) {
    info.enforcement.clear();
    for (bool on : options.enforce)
        info.enforcement += on ? 'Y' : 'N';
    info.enforcedValues.clear();
    bool any = false;
    for (int f = EnforceSubgroup; f < kEnforcedFields; ++f)
        any = any || !options.values[f].empty();
    for (int f = EnforceSubgroup; any && f < kEnforcedFields; ++f)
        info.enforcedValues += (f > EnforceSubgroup ? "\t" : "") + options.values[f];
}

std::string buildSummary(const BuildCounters& c) {
    std::string text = c.added > 0 ? format("%d records added", c.added) : "No records added";
    std::vector<std::string> parts;
    if (c.duplicates > 0)
        parts.push_back(format("%d duplicate records", c.duplicates));
    if (c.withErrors > 0)
        parts.push_back(format("%d with errors", c.withErrors));
    for (int f = 0; f < kEnforcedFields; ++f)
        if (c.nonMatching[f] > 0)
            parts.push_back(format(kNonMatchingCounts[f], c.nonMatching[f]));
    for (std::size_t i = 0; i < parts.size(); ++i)
        text += (i == 0 ? " (" : ", ") + parts[i];
    if (!parts.empty())
        text += ")";
    return text;
}

BuildResult addTranscripts(Database& database, const std::vector<std::string>& files,
                           const BuildOptions& options, const TranscriptChecker& checker,
                           const SampleValuesFiller& fillValues, Prompter& prompter,
                           Progress& progress) {
    Build build(database, options, checker, fillValues, prompter);
    if (!database.readHeader(prompter)) {
        build.result.stopped = true;
        return build.result;
    }
    if (database.readOnly()) {
        prompter.inform(format(msg::kReadOnly, database.name().c_str()));
        build.result.stopped = true;
        return build.result;
    }
    // The switches and values used are the database's from now on: a later
    // build (or the builder opened again) starts from them.
    DescriptiveHeader withOptions = database.info();
    storeBuildOptions(options, withOptions);
    if (withOptions != database.info() &&
        !database.rewrite(
            withOptions, [](const sd2&) { return true; },
            format(msg::kHeaderWriteSettings, database.name().c_str()), prompter)) {
        build.result.stopped = true;
        return build.result;
    }
    auto stored = database.records(prompter);
    if (!stored) {
        build.result.stopped = true;
        return build.result;
    }
    for (const sd2& record : *stored)
        build.keys.insert(record.key);

    progress.start(static_cast<int>(files.size()), msg::kBuilderTitle);
    for (const std::string& file : files) {
        bool goOn = build.addFile(file);
        progress.step();
        if (!goOn)
            break;
    }
    progress.finish();
    if (!database.writeHeader())
        prompter.inform(msg::kHeaderCorrupted);
    build.result.summary = buildSummary(build.result.counters);
    prompter.inform(build.result.summary);
    return build.result;
}

bool removeRecord(Database& database, const std::string& key, Prompter& prompter) {
    if (!prompter.confirm(format(msg::kRemoveQuestion, key.c_str())))
        return false;
    auto list = database.records(prompter);
    bool present = false;
    if (list)
        for (const sd2& record : *list)
            present = present || record.key == key;
    if (!present) {
        prompter.inform(msg::kRemoveFailed);
        return false;
    }
    return database.rewrite(
        database.info(), [&](const sd2& record) { return record.key != key; }, msg::kRemoveFailed,
        prompter);
}

bool closeBuilder(Database& database, const DescriptiveHeader& edited, Prompter& prompter) {
    if (trim(edited.context).empty()) {
        prompter.inform(msg::kMissingContext);
        return false;
    }
    if (edited == database.info())
        return true;
    return database.rewrite(
        edited, [](const sd2&) { return true; },
        format(msg::kHeaderWriteSettings, database.name().c_str()), prompter);
}

} // namespace tavi::db
