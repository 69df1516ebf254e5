// The reports' view of a database comparison.
#include "batch/peer_report_inputs.h"

#include <chrono>

#include "base/format.h"

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
