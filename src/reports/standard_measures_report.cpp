// The eight sections of the Standard Measures Report and their lines.
#include "reports/standard_measures_report.h"

#include <cmath>

#include "base/format.h"
#include "base/text.h"
#include "reports/line_format.h"

namespace tavi {

namespace {

using K = SmrValueKind;

constexpr std::array<SmrLineDef, kSmrLineCount> kLines{{
    // TRANSCRIPT LENGTH
    {"TotNumUt", "RL_NUMUTTT", "", false, false, K::Count},
    {"TotASetUt", "RL_NUMUTTA", "", false, true, K::Count},
    {"AllWords", "RL_ALLWDSINCLMZ", "", false, false, K::Count},
    {"TimeMin", "RL_TIMEMIN", "", false, false, K::ElapsedTime},
    // INTELLIGIBILITY
    {"%IntelUt", "RL_PCINTEL", "", false, false, K::Percent},
    {"%IntelWd", "RL_PCINTELWDS", "", false, false, K::Percent},
    // MACRO ANALYSIS
    {"NSS", "RL_NSSSCORE", "", false, false, K::Count},
    {"ESS", "RL_ESSSCORE", "", false, false, K::Count},
    {"PSS", "RL_PSSSCORE", "", false, false, K::Count},
    {"ONQ", "RL_HCONQ", "", false, false, K::Count},
    {"ONC", "RL_ONC", "", false, false, K::Count},
    // SYNTAX/MORPHOLOGY
    {"MLUw", "RL_MLUW", "", false, true, K::Mean},
    {"MLUm", "RL_MLUM", "", false, true, K::Mean},
    {"%UtWVerb", "RL_GCPCVERBS", "", false, true, K::Percent},
    {"VPU", "RL_GCVERBS", "", false, true, K::Mean},
    {"%UtWNMForms", "RL_PCNMFC", "", false, true, K::Percent},
    {"SI", "RL_SISCORE", "", false, true, K::Mean},
    // SEMANTICS
    {"NTW", "RL_NTW", "", false, true, K::Count},
    {"NDW", "RL_NDW", "", false, true, K::Count},
    {"MA_NTW", "RL_MOVEAVE", "RL_NTWINITIALS", false, true, K::Count},
    {"MA_NDW", "RL_MOVEAVE", "RL_NDWINITIALS", false, true, K::Mean},
    {"MA_TTR", "RL_MOVEAVE", "RL_TTRINITIALS", false, true, K::Mean},
    // DISCOURSE
    {"MeanTurnUt", "RL_MEAN", "RL_DCTLU", false, false, K::Mean},
    {"MeanTurnWd", "RL_MEAN", "RL_DCTLW", false, false, K::Mean},
    {"%RespQues", "RL_PCRQU", "", false, false, K::Percent},
    {"%RespPrmpt", "RL_ULRIP", "", true, false, K::Percent},
    {"%UtWOverlap", "RL_PCULOV", "", false, false, K::Percent},
    {"%IntrOthSpk", "RL_PCINTROS", "", false, false, K::Percent},
    // VERBAL FACILITY
    {"WPM", "RL_RPWDPERMIN", "", false, false, K::Mean},
    {"%PauseTime", "RL_PCPZTIME", "", false, false, K::Percent},
    {"%MzWds", "RL_MZWDSPCTOT", "", false, false, K::Percent},
    {"%AbanUt", "RL_PCABANUTT", "", false, false, K::Percent},
    {"%UtWFluencyCd", "RL_ULFLCODE", "", true, false, K::Percent},
    {"%UtWCSwitchCd", "RL_ULCSCODE", "", true, false, K::Percent},
    // ERRORS
    {"%UtWErrors", "RL_PCERRORS", "", false, false, K::Percent},
    {"%WordErrors", "RL_PCWDERRORS", "", false, false, K::Percent},
}};

constexpr std::array<SmrSectionDef, 8> kSections{{
    {"RL_HEADTL", 0, 4},
    {"RL_HEADINT", 4, 2},
    {"RL_MACROANAL", 6, 5},
    {"RL_HEADSM", 11, 6},
    {"RL_HEADSEM", 17, 5},
    {"RL_HEADDC", 22, 6},
    {"RL_VERBFAC", 28, 6},
    {"RL_ERRORS", 34, 2}, // "Errors" elsewhere: upper-cased as a section title
}};

std::string lineLabel(const SmrLineDef& line, const LabelSource& labels) {
    std::string label = labels(line.labelKey);
    if (!line.suffixKey.empty())
        label += " " + labels(line.suffixKey);
    return line.percentOfLabel ? percentLabel(label) : label;
}

std::string formatValue(SmrValueKind kind, std::optional<double> value) {
    switch (kind) {
    case K::Count:
        return formatCount(value);
    case K::Mean:
        return formatMean(value);
    case K::Percent:
        return formatPercent(value);
    case K::ElapsedTime:
        break;
    }
    return formatElapsedCell(value ? std::optional<int>(static_cast<int>(std::lround(*value * 60)))
                                   : std::nullopt);
}

// Elapsed seconds: "TimeSec" when the measures have it, else from "TimeMin".
std::optional<int> elapsedSeconds(const MeasureSource& measures) {
    if (auto seconds = measures("TimeSec"))
        return static_cast<int>(std::lround(*seconds));
    if (auto minutes = measures("TimeMin"))
        return static_cast<int>(std::lround(*minutes * 60));
    return std::nullopt;
}

LabelledLine makeLine(const SmrLineDef& def, const TranscriptReportContext& context,
                      const MeasureSource& measures, const LabelSource& labels,
                      const MeasureSource& databaseMeans, const SmrDatabase* database) {
    const std::string prefix(smrLinePrefix(def));
    std::optional<SmrDatabaseColumn> column;
    if (database && database->columns)
        column = database->columns(def.measureId);
    bool hasMean = column.has_value();
    double mean = column ? column->mean : 0.0;
    if (!database && databaseMeans)
        if (std::optional<double> m = databaseMeans(def.measureId)) {
            hasMean = true;
            mean = *m;
        }
    if (def.kind == K::ElapsedTime && !hasMean) {
        TimeWords words{labels("RL_MINUTES"), labels("RL_SECONDS"), labels("RL_RPMISSING")};
        return elapsedTimeLine(prefix, lineLabel(def, labels), elapsedSeconds(measures), words);
    }
    std::string value = def.kind == K::ElapsedTime ? formatElapsedCell(elapsedSeconds(measures))
                                                   : formatValue(def.kind, measures(def.measureId));
    if (def.measureId == "%PauseTime" && context.pausesUntimed && !measures(def.measureId))
        value = labels("RL_RPALLNOTIME");
    if (hasMean)
        value = formatWithMean(value, mean);
    if (column) {
        value += column->sd ? format("     %0.2f", *column->sd) : std::string("         ");
        if (column->differs)
            value += "  " + std::string(kSmrDifferenceMark);
    }
    return {prefix, lineLabel(def, labels), ":  ", value};
}

Report buildReport(const TranscriptReportContext& context, const MeasureSource& measures,
                   const SmrVariables& variables, const LabelSource& labels,
                   const MeasureSource& databaseMeans, const SmrDatabase* database) {
    Report report;
    report.title = labels("RL_SMRTITLE");
    report.header = reportHeader(context, labels);
    if (database) {
        for (const std::string& line : database->sourceLines)
            report.header.push_back({"", "", "", line});
        report.header.push_back({"", "", "", "(Value)     Database Mean     SD"});
    }
    bool anyAnalysisSetLine = false;
    bool pauseLine = false;
    for (const auto& sectionDef : kSections) {
        ReportSection section{toUpperAscii(labels(sectionDef.titleKey)), {}};
        for (size_t i = sectionDef.firstLine; i < sectionDef.firstLine + sectionDef.lineCount;
             ++i) {
            if (!variables.chosen[i])
                continue;
            section.items.push_back(
                makeLine(kLines[i], context, measures, labels, databaseMeans, database));
            pauseLine = pauseLine || kLines[i].measureId == "%PauseTime";
            anyAnalysisSetLine = anyAnalysisSetLine || kLines[i].analysisSet;
        }
        if (!section.items.empty())
            report.sections.push_back(std::move(section));
    }
    if (anyAnalysisSetLine)
        report.footnotes.push_back(labels("RL_ITALICSNOTE2"));
    if (pauseLine && context.somePausesUntimed)
        report.footnotes.push_back(labels("RL_RPSOMENOTIME"));
    if (database)
        report.footnotes.push_back(format("%s Value at or beyond %s SD from the database mean",
                                          std::string(kSmrDifferenceMark).c_str(),
                                          database->sdInterval.c_str()));
    return report;
}

} // namespace

const std::array<SmrLineDef, kSmrLineCount>& smrLines() {
    return kLines;
}
const std::array<SmrSectionDef, 8>& smrSections() {
    return kSections;
}

SmrVariables SmrVariables::defaults() {
    SmrVariables variables;
    variables.selectAll();
    for (size_t i = 6; i < 11; ++i) // macro analysis: scoring-scheme composites
        variables.chosen[i] = false;
    variables.chosen[16] = false; // SI Composite Score
    return variables;
}

SmrVariables smrVariablesFor(const SmrVariables& chosen, const MeasureSource& measures) {
    SmrVariables shown = chosen;
    for (size_t i : {6, 7, 8, 9, 10, 16})
        if (!shown.chosen[i] && measures && measures(kLines[i].measureId))
            shown.chosen[i] = true;
    return shown;
}

std::string_view smrLinePrefix(const SmrLineDef& line) {
    return line.analysisSet ? "# " : "  ";
}

Report buildStandardMeasuresReport(const TranscriptReportContext& context,
                                   const MeasureSource& measures, const SmrVariables& variables,
                                   const LabelSource& labels, const MeasureSource& databaseMeans) {
    return buildReport(context, measures, variables, labels, databaseMeans, nullptr);
}

Report buildStandardMeasuresReport(const TranscriptReportContext& context,
                                   const MeasureSource& measures, const SmrVariables& variables,
                                   const LabelSource& labels, const SmrDatabase& database) {
    return buildReport(context, measures, variables, labels, nullptr, &database);
}

} // namespace tavi
