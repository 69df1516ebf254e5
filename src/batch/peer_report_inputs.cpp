// The reports' view of a database comparison.
#include "batch/peer_report_inputs.h"

#include <chrono>

#include <algorithm>
#include <map>
#include <memory>

#include "analysis/explore_items.h"
#include "base/format.h"
#include "database/explore_samples.h"
#include "reports/explore_db_reports.h"

namespace tavi {

std::string todayText(const AnalysisContext& context) {
    const auto today = std::chrono::year_month_day(
        std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    const int y = static_cast<int>(today.year());
    const unsigned m = static_cast<unsigned>(today.month()), d = static_cast<unsigned>(today.day());
    const DateFormat& f = context.check.dateFormat;
    return f.order == DateOrder::DayMonthYear
               ? format("%u%c%u%c%d", d, f.separator, m, f.separator, y)
               : format("%u%c%u%c%d", m, f.separator, d, f.separator, y);
}

SmrDatabase smrDatabase(const db::PeerSnapshot& snapshot, const SpeakerMeasures& measures,
                        const std::string& date) {
    SmrDatabase database;
    database.sourceLines = snapshot.sourceLines(date);
    database.sdInterval = shortestFloat(snapshot.sdInterval);
    database.columns = [&snapshot,
                        &measures](std::string_view name) -> std::optional<SmrDatabaseColumn> {
        std::optional<MeasureId> id = measureIdByName(name);
        if (!id)
            return std::nullopt;
        const PeerStat& stat = snapshot.stats[static_cast<std::size_t>(*id)];
        if (stat.n == 0)
            return std::nullopt;
        SmrDatabaseColumn column;
        column.mean = stat.mean;
        if (stat.hasSd)
            column.sd = stat.sd;
        column.min = stat.min;
        column.max = stat.max;
        column.n = stat.n;
        column.value = measures[*id].number();
        auto comparison = snapshot.compare(*id, column.value);
        column.differs = comparison && comparison->differs();
        if (comparison)
            column.standing = comparison->standing;
        return column;
    };
    return database;
}

ExploreNeeds exploreNeeds(std::string_view kind, const ReportChoices& choices) {
    auto wants = [&](std::string_view name) {
        return kind == name || (kind == "db-custom-pdf" &&
                                std::ranges::find(choices.kinds, name) != choices.kinds.end());
    };
    return {wants("explore-words-codes"), wants("explore-plus-lines")};
}

namespace {

SmrDatabaseColumn exploreColumn(const PeerStat& stat, std::optional<double> value,
                                float sdInterval) {
    SmrDatabaseColumn column;
    column.mean = stat.mean;
    column.sd = stat.sd;
    column.min = stat.min;
    column.max = stat.max;
    column.n = stat.n;
    column.value = value;
    if (auto comparison = compareWithPeers(value, stat, sdInterval)) {
        column.standing = comparison->standing;
        column.differs = comparison->differs();
    }
    return column;
}

} // namespace

void addExploreColumns(SmrDatabase& database, db::PeerDatabase& peers,
                       const db::PeerSnapshot& snapshot, const TranscriptAnalysis& analysis,
                       const AnalysisContext& context, const ReportChoices& choices,
                       ExploreNeeds needs, Prompter& prompter, Progress& progress) {
    auto columns = std::make_shared<std::map<std::string, SmrDatabaseColumn>>();
    const SegmentedTranscript& transcript = analysis.check.segmented;
    if (needs.items && !choices.exploreItems.empty()) {
        const auto& utterances =
            analysis.result.selection.speakers[analysis.speaker == 1 ? 1 : 0].total;
        auto stats = db::exploreItemStats(peers, snapshot, context, choices.exploreItems, prompter,
                                          progress);
        for (const auto& [item, stat] : stats)
            (*columns)[exploreItemKey(item)] =
                exploreColumn(stat, countItem(transcript, utterances, item), snapshot.sdInterval);
    }
    if (needs.plusLines) {
        const std::vector<std::string> keywords =
            choices.plusLines.empty() ? numericPlusLines(transcript) : choices.plusLines;
        auto stats = db::explorePlusLineStats(peers, snapshot, keywords, prompter, progress);
        for (const auto& [keyword, stat] : stats)
            (*columns)[explorePlusLineKey(keyword)] =
                exploreColumn(stat, plusLineValue(transcript, keyword), snapshot.sdInterval);
    }
    database.extra = [columns](std::string_view key) -> std::optional<SmrDatabaseColumn> {
        auto it = columns->find(std::string(key));
        if (it == columns->end())
            return std::nullopt;
        return it->second;
    };
}

PerformancePeers performancePeers(const db::PeerSnapshot& snapshot, const std::string& date) {
    PerformancePeers peers;
    peers.stats = snapshot.stats;
    peers.sdInterval = snapshot.sdInterval;
    peers.samples = snapshot.selected;
    peers.database = snapshot.database;
    peers.context = snapshot.context;
    peers.criteria = snapshot.criteria;
    peers.sources = snapshot.sourceLines(date);
    return peers;
}

} // namespace tavi
