// The maze tables of the analysed speaker: mazes by kind, by the length of
// their utterance and by their own length.
#include "reports/maze_distribution_report.h"

#include <array>

#include "base/format.h"
#include "reports/line_format.h"
#include "reports/report_header.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

namespace {

struct KindRow {
    std::string_view measureId;
    std::string_view kindKey; // revisions, repetitions, filled pauses
    std::string_view sizeKey; // part word, word, phrase, single or multiple words
};

constexpr std::array<KindRow, 8> kKinds{{
    {"MzRevPartWd", "RL_MZREV", "RL_MZPW"},
    {"MzRevWd", "RL_MZREV", "RL_MZWD"},
    {"MzRevPhr", "RL_MZREV", "RL_MZPHR"},
    {"MzRepPartWd", "RL_MZREP", "RL_MZPW"},
    {"MzRepWd", "RL_MZREP", "RL_MZWD"},
    {"MzRepPhr", "RL_MZREP", "RL_MZPHR"},
    {"MzFPSingleWd", "RL_MZFP", "RL_SINGLEWORD"},
    {"MzFPMultWd", "RL_MZFP", "RL_MULTWORDS"},
}};

} // namespace

Report buildMazeDistributionReport(const ReportInputs& in) {
    const SpeakerMeasures& measures = in.analysis.measures();
    auto value = [&](const std::string& id) -> std::optional<double> {
        const Value* v = measures.find(id);
        return v ? v->number() : std::nullopt;
    };
    Report report;
    report.title = in.labels("RL_MDHEAD");
    report.header = reportHeader(in.context, in.labels);
    const std::string number = in.labels("RL_RPNUM");
    const std::string total = in.labels("RL_TOTAL");
    const std::optional<double> mazes = value("Tot#Mz");

    ReportTable kinds;
    kinds.labelHeading = in.labels("RL_MAZES");
    kinds.headings = {number, "Percent"};
    for (const KindRow& row : kKinds) {
        const std::optional<double> count = value(std::string(row.measureId));
        kinds.rows.push_back({in.labels(row.kindKey) + ", " + in.labels(row.sizeKey),
                              {formatCount(count), formatPercent(percentOfTotal(count, mazes))}});
    }
    kinds.rows.push_back(
        {total, {formatCount(mazes), formatPercent(percentOfTotal(mazes, mazes))}});
    report.sections.push_back({in.labels("RL_NUMMZ"), {std::move(kinds)}});

    ReportTable byUtterance;
    byUtterance.labelHeading = in.labels("RL_WMULW");
    byUtterance.headings = {in.labels("RL_PCUTTWITHMZ"), in.labels("RL_NUMMZ")};
    for (int n = 1; n <= 15; ++n)
        byUtterance.rows.push_back({n == 15 ? format("%d+", n) : format("%d", n),
                                    {formatPercent(value(format("%%UtWMzByUL%d", n))),
                                     formatCount(value(format("MzByUL%d", n)))}});
    byUtterance.rows.push_back(
        {total, {formatPercent(value("%UtWMzByULTot")), formatCount(value("MzByULTot"))}});
    report.sections.push_back({in.labels("RL_MDMUL"), {std::move(byUtterance)}});

    ReportTable byLength;
    byLength.labelHeading = "Maze Length in Words";
    byLength.headings = {number, "Percent"};
    const std::optional<double> lengthTotal = value("MzByMLTot");
    for (int n = 1; n <= 15; ++n) {
        const std::optional<double> count = value(format("MzByML%d", n));
        byLength.rows.push_back(
            {n == 15 ? format("%d+", n) : format("%d", n),
             {formatCount(count), formatPercent(percentOfTotal(count, lengthTotal))}});
    }
    byLength.rows.push_back(
        {total,
         {formatCount(lengthTotal), formatPercent(percentOfTotal(lengthTotal, lengthTotal))}});
    report.sections.push_back({in.labels("RL_MDMML"), {std::move(byLength)}});
    return report;
}

} // namespace tavi
