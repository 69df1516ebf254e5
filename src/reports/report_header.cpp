// Header lines and the short names of the analysis set and word base.
#include "reports/report_header.h"

#include "base/format.h"
#include "reports/line_format.h"

namespace tavi {

std::string analysisSetName(const AnalysisSet& set, const LabelSource& labels) {
    const bool complete = set.excludeIncomplete != 0;
    const bool intelligible = set.excludeUnintelligible != 0;
    const bool verbal = set.excludeNonverbal != 0;
    const char* key = complete ? (intelligible ? (verbal ? "RL_ASCIV" : "RL_ASCI")
                                               : (verbal ? "RL_ASCV" : "RL_ASC"))
                               : (intelligible ? "RL_ASI" : (verbal ? "RL_ASTV" : "RL_AST"));
    std::string name = labels(key);
    // Further exclusions, in the marks of the analysis-set dialog.
    const std::pair<std::int32_t, const char*> types[] = {
        {set.excludeQuestionResponses, " -Q"}, {set.excludeYesNoResponses, " -Y"},
        {set.excludePromptResponses, " -P"},   {set.excludeImitations, " -I"},
        {set.excludeOneWord, " -O"},
    };
    for (const auto& [on, mark] : types)
        if (on)
            name += mark;
    if (!set.excludeCodes.empty())
        name += " -[" + set.excludeCodes + "]";
    if (set.includeOnly && !set.includeCodes.empty())
        name += " +[" + set.includeCodes + "]";
    return name;
}

std::string wordBaseDescription(const WordBase& base, const LabelSource& labels) {
    std::string text = labels("RL_MAINBODY");
    if (!base.excludeParenthetical)
        text += " +( )";
    if (!base.includeMode && !base.excludeCodes.empty())
        text += " -[" + base.excludeCodes + "]";
    if (base.includeMode && !base.includeCodes.empty())
        text += " +[" + base.includeCodes + "]";
    return text;
}

std::vector<LabelledLine> reportHeader(const TranscriptReportContext& context,
                                       const LabelSource& labels) {
    std::vector<LabelledLine> lines;
    lines.push_back({"", "", "", context.transcriptName});
    const std::string position = labels(context.speaker == 1 ? "RL_SPK2ND" : "RL_SPK1ST");
    const std::string speaker =
        context.speakerLabel.empty()
            ? position
            : format("%s (%s)", context.speakerLabel.c_str(), position.c_str());
    lines.push_back({"", labels("RL_SPEAKER"), ":  ", speaker});
    lines.push_back({"", labels("RL_BASEDON"), ":  ", context.analysisSetName});
    lines.push_back({"", labels("RL_WORDBASE"), ":  ", context.wordBase});
    lines.push_back({"", labels("RL_TRANCUT"), ":  ", context.cutDescription});
    TimeWords words{labels("RL_MINUTES"), labels("RL_SECONDS"), labels("RL_RPMISSING")};
    lines.push_back(elapsedTimeLine("", labels("RL_TIMEMIN"), context.elapsedSeconds, words));
    return lines;
}

} // namespace tavi
