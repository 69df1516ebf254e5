// Selecting database samples and recalculating their measures.
#include "database/peer_selection.h"

#include <atomic>
#include <cmath>
#include <fstream>
#include <limits>
#include <thread>

#include "base/format.h"
#include "base/text.h"
#include "database/db_messages.h"
#include "database/sample_info.h"
#include "transcript/transcript_file.h"

namespace tavi::db {

namespace {

constexpr const char* kMissingDatabaseName = "Missing database name";
constexpr const char* kSpanRange = "Enter an age plus or minus value between %d and %d.";
constexpr const char* kMissingRange = "Missing age range values";
constexpr const char* kMissingFrom = "Missing age range FROM value";
constexpr const char* kMissingTo = "Missing age range TO value";
constexpr const char* kIncorrectFrom = "Incorrect age range FROM value";
constexpr const char* kIncorrectTo = "Incorrect age range TO value";
constexpr const char* kMissingGrade = "Missing grade value";
constexpr const char* kMissingGender = "Missing gender value";
constexpr const char* kIncorrectGender = "Incorrect gender value - enter M, F, or N";
constexpr const char* kProblemOpening = "Problem opening database file";
constexpr const char* kUnknownTargetAge =
    "The transcript does not give the target speaker's age (DOB and DOE, or CA) - enter an age "
    "range instead of an age plus or minus value";
constexpr const char* kGenderMismatch = "Warning: Selected gender does not match target speaker";
constexpr const char* kNoMatch = "No samples match the criteria you selected.";
constexpr const char* kCalculating = "Calculating database values... ";
constexpr const char* kSelecting = "Selecting database samples... ";

bool isAll(std::string_view value) {
    return value.empty() || value == kAllValues;
}

// A text criterion against the record's text, without regard to case or
// surrounding blanks.
bool textMatches(std::string_view chosen, std::string_view recordText) {
    return isAll(chosen) || equalsIgnoreCase(trim(chosen), trim(recordText));
}

std::int16_t chosenGender(std::string_view text) {
    text = trim(text);
    if (text.size() != 1)
        return -1;
    switch (text.front()) {
    case 'M':
    case 'm':
        return kGenderMale;
    case 'F':
    case 'f':
        return kGenderFemale;
    case 'N':
    case 'n':
        return kGenderNonBinary;
    default:
        return -1;
    }
}

const char* genderWord(std::int16_t code) {
    switch (code) {
    case kGenderMale:
        return ", Male";
    case kGenderFemale:
        return ", Female";
    case kGenderNonBinary:
        return ", Non-binary";
    default:
        return "";
    }
}

} // namespace

int sampleSpeaker(const sd2& record) {
    if (record.buildOption1 == 2)
        return 1;
    std::size_t semicolon = record.key.rfind(';');
    return semicolon != std::string::npos && record.key.substr(semicolon + 1) == "2" ? 1 : 0;
}

PeerSelection newPeerSelection(const std::filesystem::path& database,
                               const DescriptiveHeader& header, const Settings& settings) {
    PeerSelection selection;
    selection.database = database;
    selection.ageSpan = header.ageSpan >= kMinAgeSpan && header.ageSpan <= kMaxAgeSpan
                            ? header.ageSpan
                            : kDefaultAgeSpan;
    auto interval = settings.databaseDefaults.find("SDINT");
    selection.sdInterval = interval == settings.databaseDefaults.end()
                               ? kDefaultSdInterval
                               : sdIntervalFromText(interval->second);
    return selection;
}

PeerTarget peerTarget(std::string name, const TranLines& lines, const TranscriptAnalysis& analysis,
                      const AnalysisContext& context) {
    PeerTarget target;
    target.name = std::move(name);
    SampleInfo info = sampleInfo(lines, context.check.dateFormat.order);
    target.ageMonths = info.ageMonths;
    target.gender = info.gender;
    target.grade = info.grade;
    target.secondSpeaker = analysis.check.speakers.hasSecondSpeaker();
    const SpeakerMeasures& m = analysis.measures();
    auto count = [&](MeasureId id) {
        auto n = m[id].number();
        return n ? static_cast<int>(*n) : 0;
    };
    target.amount.totalWords = count(MeasureId::NTW);
    target.amount.analysisSetUtterances = count(MeasureId::TotASetUt);
    target.amount.elapsedSeconds = analysis.result.selection.elapsedSeconds;
    return target;
}

std::optional<float> parseAgeYears(std::string_view text) {
    std::string s(trim(text));
    if (s.empty())
        return std::nullopt;
    auto whole = [](std::string_view part, int& out) {
        if (part.empty() || part.size() > 3)
            return false;
        out = 0;
        for (char c : part) {
            if (c < '0' || c > '9')
                return false;
            out = out * 10 + (c - '0');
        }
        return true;
    };
    if (std::size_t semi = s.find(';'); semi != std::string::npos) {
        int years = 0, months = 0;
        if (!whole(std::string_view(s).substr(0, semi), years) ||
            !whole(std::string_view(s).substr(semi + 1), months) || months > 11)
            return std::nullopt;
        return static_cast<float>(years) + static_cast<float>(months) / 12.0f;
    }
    for (char c : s)
        if ((c < '0' || c > '9') && c != '.')
            return std::nullopt;
    char* end = nullptr;
    float years = std::strtof(s.c_str(), &end);
    if (end != s.c_str() + s.size() || !std::isfinite(years) || years < 0.0f || years > 150.0f)
        return std::nullopt;
    return years;
}

int ageYearsToMonths(float years) {
    return static_cast<int>(years * 12.0f + 0.5f);
}

std::string formatAgeMonths(int months) {
    return format("%d;%d", months / 12, months % 12);
}

bool checkPeerSelection(PeerSelection& selection, const PeerTarget& target, Prompter& prompter) {
    auto fail = [&](const std::string& text) {
        prompter.inform(text);
        return false;
    };
    if (selection.database.empty())
        return fail(kMissingDatabaseName);
    if (selection.age == AgeCriterion::Span) {
        if (selection.ageSpan < kMinAgeSpan || selection.ageSpan > kMaxAgeSpan)
            return fail(format(kSpanRange, kMinAgeSpan, kMaxAgeSpan));
        if (target.ageMonths < 0)
            return fail(kUnknownTargetAge);
    }
    if (selection.age == AgeCriterion::Range) {
        const bool noFrom = trim(selection.ageFrom).empty(), noTo = trim(selection.ageTo).empty();
        if (noFrom && noTo)
            return fail(kMissingRange);
        if (noFrom)
            return fail(kMissingFrom);
        if (noTo)
            return fail(kMissingTo);
        if (!parseAgeYears(selection.ageFrom))
            return fail(kIncorrectFrom);
        if (!parseAgeYears(selection.ageTo))
            return fail(kIncorrectTo);
    }
    if (selection.useGrade && trim(selection.grade).empty())
        return fail(kMissingGrade);
    if (selection.useGender) {
        if (trim(selection.gender).empty())
            return fail(kMissingGender);
        if (chosenGender(selection.gender) < 0)
            return fail(kIncorrectGender);
    }
    std::error_code ec;
    if (!std::filesystem::is_regular_file(selection.database, ec) ||
        !std::ifstream(selection.database, std::ios::binary))
        return fail(kProblemOpening);
    if (selection.speaker == 1 && !target.secondSpeaker) {
        prompter.inform(speakerResetMessage());
        selection.speaker = 0;
    }
    if (selection.useGender && target.gender != kGenderUnknown &&
        chosenGender(selection.gender) != target.gender)
        prompter.inform(kGenderMismatch);
    return true;
}

std::optional<AgeBounds> ageBounds(const PeerSelection& selection, const PeerTarget& target) {
    switch (selection.age) {
    case AgeCriterion::Span:
        if (target.ageMonths < 0)
            return std::nullopt;
        return AgeBounds{target.ageMonths - selection.ageSpan,
                         target.ageMonths + selection.ageSpan};
    case AgeCriterion::Range: {
        auto from = parseAgeYears(selection.ageFrom), to = parseAgeYears(selection.ageTo);
        if (!from || !to)
            return std::nullopt;
        int low = ageYearsToMonths(*from), high = ageYearsToMonths(*to);
        if (low > high)
            std::swap(low, high);
        return AgeBounds{low, high};
    }
    case AgeCriterion::None:
        break;
    }
    return std::nullopt;
}

bool recordMatches(const sd2& record, const PeerSelection& selection,
                   const std::optional<AgeBounds>& bounds) {
    if (!textMatches(selection.subgroup, record.subgroup) ||
        !textMatches(selection.ethnicity, record.ethnicity) ||
        !textMatches(selection.select, record.select) ||
        !textMatches(selection.location, record.location))
        return false;
    if (selection.age != AgeCriterion::None) {
        if (!bounds || record.ageMonths < 0 || record.ageMonths < bounds->low ||
            record.ageMonths > bounds->high)
            return false;
    }
    if (selection.useGrade && !equalsIgnoreCase(trim(record.grade), trim(selection.grade)))
        return false;
    if (selection.useGender && record.gender != chosenGender(selection.gender))
        return false;
    return true;
}

std::string criteriaLine(const PeerSelection& selection, const PeerTarget& target) {
    std::string line;
    auto add = [&](const std::string& part) {
        if (!line.empty())
            line += ", ";
        line += part;
    };
    std::optional<AgeBounds> bounds = ageBounds(selection, target);
    if (selection.age == AgeCriterion::Span && bounds)
        add("Age " + format("+/- %d %s (%s - %s)", selection.ageSpan,
                            selection.ageSpan == 1 ? "month" : "months",
                            formatAgeMonths(bounds->low).c_str(),
                            formatAgeMonths(bounds->high).c_str()));
    else if (selection.age == AgeCriterion::Range && bounds)
        add("Age " + format("%s - %s", formatAgeMonths(bounds->low).c_str(),
                            formatAgeMonths(bounds->high).c_str()));
    if (selection.useGrade)
        line += (line.empty() ? "Grade " : ", Grade ") + std::string(trim(selection.grade));
    if (selection.useGender) {
        std::string word = genderWord(chosenGender(selection.gender));
        line += line.empty() && !word.empty() ? word.substr(2) : word;
    }
    if (!isAll(selection.subgroup))
        add("Subgroup " + selection.subgroup);
    if (!isAll(selection.ethnicity))
        add("Ethnicity " + selection.ethnicity);
    if (!isAll(selection.location))
        add("Location " + selection.location);
    if (!isAll(selection.select))
        add("+Select " + selection.select);
    if (selection.equating == EquatingMethod::ElapsedTime && target.amount.elapsedSeconds) {
        int m = *target.amount.elapsedSeconds / 60, s = *target.amount.elapsedSeconds % 60;
        line += s < 10 ? format(", Time: %d:0%d", m, s) : format(", Time: %d:%d", m, s);
    }
    if (line.starts_with(", "))
        line.erase(0, 2);
    return line.empty() ? "All samples" : line;
}

std::string selectionTitle(std::string_view transcriptName) {
    return "Select Database Samples for " + std::string(transcriptName);
}

std::unique_ptr<PeerDatabase> PeerDatabase::open(const std::filesystem::path& path,
                                                 Prompter& prompter) {
    auto database = openDatabase(path, OpenFor::Reading, prompter);
    if (!database)
        return nullptr;
    auto records = database->records(prompter);
    if (!records)
        return nullptr;
    auto peers = std::unique_ptr<PeerDatabase>(new PeerDatabase());
    peers->database_ = std::move(database);
    peers->records_ = std::move(*records);
    peers->texts_.resize(peers->records_.size());
    return peers;
}

const std::string* PeerDatabase::transcript(std::size_t index, Prompter& prompter) {
    if (index >= records_.size())
        return nullptr;
    if (!texts_[index]) {
        texts_[index] = database_->readTranscript(records_[index], prompter);
        if (!texts_[index])
            return nullptr;
    }
    return &*texts_[index];
}

std::optional<SampleMatch> matchSamples(const PeerDatabase& database,
                                        const PeerSelection& selection, const PeerTarget& target,
                                        const std::vector<std::string>& exclude, Prompter& prompter,
                                        Progress& progress) {
    const std::vector<sd2>& records = database.records();
    if (records.empty()) {
        prompter.inform(msg::kEmptyDatabase);
        return std::nullopt;
    }
    SampleMatch match;
    match.records = static_cast<int>(records.size());
    const std::optional<AgeBounds> bounds = ageBounds(selection, target);
    int timed = 0;
    progress.start(match.records, kSelecting);
    for (std::size_t i = 0; i < records.size(); ++i) {
        progress.step();
        const sd2& record = records[i];
        if (!recordMatches(record, selection, bounds))
            continue;
        bool excluded = false;
        for (const std::string& key : exclude)
            excluded = excluded || key == record.key;
        if (excluded)
            continue;
        match.selected.push_back(i);
        ++match.genderCounts[record.gender >= 0 && record.gender <= 3 ? record.gender : 0];
        timed += (record.flags & kFlagTimed) ? 1 : 0;
    }
    progress.finish();
    if (match.selected.empty()) {
        prompter.inform(kNoMatch);
        return std::nullopt;
    }
    const int n = static_cast<int>(match.selected.size());
    match.timing = timed == n   ? DatabaseTiming::All
                   : timed == 0 ? DatabaseTiming::None
                                : DatabaseTiming::Some;
    return match;
}

EquatingMethod resolveEquating(EquatingMethod chosen, const TranscriptAmount& amount,
                               DatabaseTiming timing, Prompter& prompter) {
    const EquatingMethod methods[] = {EquatingMethod::TotalWords, EquatingMethod::ElapsedTime,
                                      EquatingMethod::AnalysisSetUtterances};
    bool any = false;
    for (EquatingMethod m : methods)
        any = any || equatingAvailable(m, amount, timing);
    if (chosen == EquatingMethod::EntireTranscript)
        return chosen;
    if (!any) {
        prompter.inform(kNoEquatingMethods);
        return EquatingMethod::EntireTranscript;
    }
    if (!equatingAvailable(chosen, amount, timing)) {
        std::string_view reset = equatingResetMessage(chosen, amount, timing);
        prompter.inform(reset.empty() ? equatingOptionText(chosen, amount, timing, "")
                                      : std::string(reset));
        return EquatingMethod::EntireTranscript;
    }
    if (chosen == EquatingMethod::ElapsedTime && timing == DatabaseTiming::Some)
        prompter.inform(kSomeSamplesUntimed);
    return chosen;
}

PeerValueCache::Key PeerValueCache::keyOf(const std::array<AnalysisContext, 2>& contexts) {
    const MeasureOptions& m = contexts[0].measures;
    const CheckOptions& c = contexts[0].check;
    Key key;
    key.analysisSet = m.analysisSet;
    key.wordBase = m.wordBase;
    key.cuts = {contexts[0].measures.cut, contexts[1].measures.cut};
    key.window = m.window;
    key.codeLists = m.codeLists;
    key.wordLists = m.wordLists;
    key.wordListSet = m.wordListSet;
    key.wordListsOnAnalysisSet = m.wordListsOnAnalysisSet;
    key.wordListArea = m.wordListArea;
    key.dictionary = m.dictionary;
    key.distributionInMorphemes = m.distributionInMorphemes;
    key.distributionOnAnalysisSet = m.distributionOnAnalysisSet;
    key.dateOrder = c.dateFormat.order;
    key.dateKeywords = c.dobKeyword + '\n' + c.doeKeyword + '\n' + c.caKeyword;
    return key;
}

void PeerValueCache::use(const Key& key) {
    if (key_ && *key_ == key)
        return;
    key_ = key;
    values_.clear();
}

const SampleValues* PeerValueCache::find(std::int64_t recordPosition) const {
    auto it = values_.find(recordPosition);
    return it == values_.end() ? nullptr : &it->second;
}

void PeerValueCache::store(std::int64_t recordPosition, const SampleValues& values) {
    values_[recordPosition] = values;
}

std::optional<std::vector<SampleValues>>
peerSampleValues(PeerDatabase& database, const SampleMatch& match, const AnalysisContext& context,
                 EquatingMethod equating, const TranscriptAmount& amount, bool applyCut,
                 Prompter& prompter, Progress& progress, int threads) {
    const std::size_t n = match.selected.size();
    // One context per sample speaker: the equating cut counts that speaker.
    std::array<AnalysisContext, 2> contexts{context, context};
    for (int speaker = 0; speaker < 2; ++speaker)
        contexts[speaker].measures.cut =
            equatingCut(equating, amount, context.measures.cut, applyCut, speaker);
    PeerValueCache& cache = database.cache();
    cache.use(PeerValueCache::keyOf(contexts));

    std::vector<SampleValues> values(n);
    std::vector<std::size_t> missing; // positions in `values` still to calculate
    std::vector<const std::string*> texts(n);
    for (std::size_t i = 0; i < n; ++i) {
        const sd2& record = database.records()[match.selected[i]];
        if (const SampleValues* cached = cache.find(record.dataPosition)) {
            values[i] = *cached;
            continue;
        }
        texts[i] = database.transcript(match.selected[i], prompter);
        if (!texts[i])
            return std::nullopt;
        missing.push_back(i);
    }
    std::atomic<std::size_t> next{0};
    auto work = [&] {
        for (std::size_t j = next++; j < missing.size(); j = next++) {
            const std::size_t i = missing[j];
            const int speaker = sampleSpeaker(database.records()[match.selected[i]]);
            AnalysisRequest request;
            request.speaker = speaker;
            const TranscriptAnalysis analysis =
                analyseTranscript(splitTranscriptLines(*texts[i]), contexts[speaker], request);
            const SpeakerMeasures& m = analysis.result.speakers[speaker];
            for (std::size_t k = 0; k < kMeasureCount; ++k) {
                auto x = m.values[k].number();
                values[i][k] = x ? static_cast<float>(*x) : std::numeric_limits<float>::quiet_NaN();
            }
        }
    };
    progress.start(static_cast<int>(n), kCalculating);
    std::vector<std::thread> helpers;
    for (int t = 1; t < threads && static_cast<std::size_t>(t) < missing.size(); ++t)
        helpers.emplace_back(work);
    work();
    for (std::thread& helper : helpers)
        helper.join();
    for (std::size_t i : missing)
        cache.store(database.records()[match.selected[i]].dataPosition, values[i]);
    for (std::size_t i = 0; i < n; ++i)
        progress.step();
    progress.finish();
    return values;
}

std::array<PeerStat, kMeasureCount> peerStatistics(const std::vector<SampleValues>& values) {
    std::array<PeerStat, kMeasureCount> stats{};
    for (std::size_t k = 0; k < kMeasureCount; ++k) {
        PeerStatAccumulator sum;
        for (const SampleValues& sample : values)
            if (!std::isnan(sample[k]))
                sum.add(sample[k]);
        stats[k] = sum.result(measureCarriesSd(static_cast<MeasureId>(k)));
    }
    return stats;
}

std::optional<PeerComparison> PeerSnapshot::compare(MeasureId id,
                                                    std::optional<double> value) const {
    return compareWithPeers(value, stats[static_cast<std::size_t>(id)], sdInterval);
}

std::string PeerSnapshot::databaseLine() const {
    if (database.empty())
        return "Database: NONE";
    return "Database: " + database + "     Sampling context: " + context;
}

std::string PeerSnapshot::countLine() const {
    return format("%d/%d samples selected", selected, records);
}

std::vector<std::string> PeerSnapshot::sourceLines(std::string_view date) const {
    return {format("TAVI %s, %s", TAVI_VERSION, std::string(date).c_str()),
            databaseLine(),
            "SELECT DATABASE SAMPLES - " + criteria,
            countLine(),
            equatingText,
            "SD interval: " + shortestFloat(sdInterval)};
}

std::optional<PeerSnapshot> comparePeers(PeerDatabase& database, PeerSelection& selection,
                                         const PeerTarget& target, const AnalysisContext& context,
                                         const std::vector<std::string>& exclude,
                                         Prompter& prompter, Progress& progress) {
    std::optional<SampleMatch> match =
        matchSamples(database, selection, target, exclude, prompter, progress);
    if (!match)
        return std::nullopt;
    PeerSnapshot snapshot;
    snapshot.database = std::filesystem::path(database.name()).filename().string();
    snapshot.context = database.info().context;
    snapshot.records = match->records;
    snapshot.selected = static_cast<int>(match->selected.size());
    snapshot.genderCounts = match->genderCounts;
    snapshot.sdInterval = selection.sdInterval;
    snapshot.equating = resolveEquating(selection.equating, target.amount, match->timing, prompter);
    selection.equating = snapshot.equating;
    snapshot.equatingText = equatingOptionText(snapshot.equating, target.amount, match->timing,
                                               analysisSetName(context.measures.analysisSet));
    snapshot.criteria = criteriaLine(selection, target);
    auto values = peerSampleValues(database, *match, context, snapshot.equating, target.amount,
                                   selection.applyCut, prompter, progress);
    if (!values)
        return std::nullopt;
    snapshot.stats = peerStatistics(*values);
    for (std::size_t i : match->selected)
        snapshot.keys.push_back(database.records()[i].key);
    snapshot.selectedRecords = match->selected;
    snapshot.sampleValues = std::move(*values);
    snapshot.amount = target.amount;
    snapshot.applyCut = selection.applyCut;
    return snapshot;
}

} // namespace tavi::db
