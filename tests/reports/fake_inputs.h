// Test inputs for the report builders: the label texts the reports expect in
// the PRIMARY slot, and a measure record given as a map of identifiers.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "reports/labels.h"
#include "reports/measure_source.h"

namespace tavi::testing {

inline std::map<std::string, std::string, std::less<>> primaryLabels() {
    return {
        {"RL_SMRTITLE", "Standard Measures Report"},
        {"RL_SOFUTTYPE", "Summary of Utterance Types"},
        {"RL_HEADTL", "TRANSCRIPT LENGTH"},
        {"RL_HEADINT", "INTELLIGIBILITY"},
        {"RL_MACROANAL", "MACRO ANALYSIS"},
        {"RL_HEADSM", "SYNTAX/MORPHOLOGY"},
        {"RL_HEADSEM", "SEMANTICS"},
        {"RL_HEADDC", "DISCOURSE"},
        {"RL_VERBFAC", "VERBAL FACILITY"},
        {"RL_ERRORS", "Errors"},
        {"RL_NUMUTTT", "Total Utterances"},
        {"RL_NUMUTTA", "Analysis Set Utterances"},
        {"RL_ALLWDSINCLMZ", "All Words Including Mazes"},
        {"RL_TIMEMIN", "Elapsed Time (minutes)"},
        {"RL_PCINTEL", "% Intelligible Utterances"},
        {"RL_PCINTELWDS", "% Intelligible Words"},
        {"RL_NSSSCORE", "NSS Composite Score"},
        {"RL_ESSSCORE", "ESS Composite Score"},
        {"RL_PSSSCORE", "PSS Composite Score"},
        {"RL_HCONQ", "Oral Narrative Quality"},
        {"RL_ONC", "Oral Narrative Comprehension"},
        {"RL_MLUW", "MLU in Words"},
        {"RL_MLUM", "MLU in Morphemes"},
        {"RL_GCPCVERBS", "% Utterances with Verbs"},
        {"RL_GCVERBS", "Mean Verbs/Utterance"},
        {"RL_PCNMFC", "% Utts with Nonmainstream Forms"},
        {"RL_SISCORE", "SI Composite Score"},
        {"RL_NTW", "Number Total Words (NTW)"},
        {"RL_NDW", "Number Different Words (NDW)"},
        {"RL_MOVEAVE", "Moving-Average"},
        {"RL_NTWINITIALS", "NTW"},
        {"RL_NDWINITIALS", "NDW"},
        {"RL_TTRINITIALS", "TTR"},
        {"RL_MEAN", "Mean"},
        {"RL_DCTLU", "Turn Length (utterances)"},
        {"RL_DCTLW", "Turn Length (words)"},
        {"RL_PCULOV", "% Utts with Overlapping Speech"},
        {"RL_PCINTROS", "% Utts Interrupted Other Speaker"},
        {"RL_RPWDPERMIN", "Words/Minute"},
        {"RL_PCPZTIME", "Pause Time as % of Total Time"},
        {"RL_MZWDSPCTOT", "Maze Words as % of Total Words"},
        {"RL_ABANUTT", "Abandoned Utterances"},
        {"RL_ULFLCODE", "Utterances with Fluency Codes"},
        {"RL_PCABANUTT", "% Abandoned Utterances"},
        {"RL_PCRQU", "% Responses to Questions"},
        {"RL_ULCSCODE", "Utterances with Code-switch Codes"},
        {"RL_PCERRORS", "% Utterances with Errors"},
        {"RL_PCWDERRORS", "% Word Errors"},
        {"RL_ULSTMT", "Statements"},
        {"RL_ULEXMK", "Exclamations"},
        {"RL_ULQUES", "Questions"},
        {"RL_ULPRMT", "Intonation Prompts"},
        {"RL_ULINTR", "Interrupted Utterances"},
        {"RL_TSUI", "Unintelligible Utterances"},
        {"RL_TSPI", "Partly Intelligible Utterances"},
        {"RL_ULRQ", "Responses to Questions"},
        {"RL_ULYN", "Yes/No Responses to Questions"},
        {"RL_ULRIP", "Responses to Intonation Prompts"},
        {"RL_ULIMIT", "Imitations"},
        {"RL_ULONEWD", "One-word Utterances"},
        {"RL_UTTWMZ", "Utterances with Mazes"},
        {"RL_ULPAUS", "Utterances with Pauses"},
        {"RL_ULOMIT", "Utterances with Omissions"},
        {"RL_TSUWC", "Utterances with Word Codes"},
        {"RL_TSUUC", "Utterances with Utterance Codes"},
        {"RL_TSUXC", "Utterances with Excluding Codes"},
        {"RL_SPEAKER", "Speaker"},
        {"RL_SPK1ST", "1st Speaker"},
        {"RL_SPK2ND", "2nd Speaker"},
        {"RL_BASEDON", "Based on"},
        {"RL_WORDBASE", "Word Base"},
        {"RL_TRANCUT", "Transcript Cut"},
        {"RL_RPMISSING", "Timing information was not provided."},
        {"RL_RPALLNOTIME", "Pauses were not timed."},
        {"RL_RPSOMENOTIME", "Some pauses were not timed."},
        {"RL_MINUTES", "Minutes"},
        {"RL_SECONDS", "Seconds"},
        {"RL_MAINBODY", "Main Body"},
        {"RL_ITALICSNOTE2", "# Calculations based on current analysis set"},
        {"RL_ASCIV", "C&I Verbal Utts"},
        {"RL_ASCI", "C&I Utts"},
        {"RL_ASCV", "Completed Verbal Utts"},
        {"RL_ASC", "Completed Utts"},
        {"RL_ASI", "Intelligible Utts"},
        {"RL_ASTV", "Total Verbal Utts"},
        {"RL_AST", "Total Utts"},
    };
}

// A label source over a map; an unknown key shows as "?KEY" so tests see it.
inline LabelSource labelSource(std::map<std::string, std::string, std::less<>> texts) {
    return [texts = std::move(texts)](std::string_view key) {
        auto it = texts.find(key);
        return it == texts.end() ? "?" + std::string(key) : it->second;
    };
}

using MeasureMap = std::map<std::string, double, std::less<>>;

inline MeasureSource measureSource(MeasureMap values) {
    return [values = std::move(values)](std::string_view id) -> std::optional<double> {
        auto it = values.find(id);
        if (it == values.end())
            return std::nullopt;
        return it->second;
    };
}

} // namespace tavi::testing
