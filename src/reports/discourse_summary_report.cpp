// Lines of the Discourse Summary.
#include "reports/discourse_summary_report.h"

#include <array>

#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

namespace {

constexpr std::array kTurns{
    SummaryLine{"MeanTurnUt", "RL_MEANTL", "(utterances)"},
    SummaryLine{"MedTurnUt", "RL_MEDIANTL", "(utterances)"},
    SummaryLine{"MeanTurnWd", "RL_MEANTL", "(words)"},
    SummaryLine{"MedTurnWd", "RL_MEDIANTL", "(words)"},
};

constexpr std::array kQuestions{
    SummaryLine{"OtherSpkQues", "RL_DCNOSQ"},    SummaryLine{"RespToQues", "RL_ULRQ"},
    SummaryLine{"%RespToQues", "RL_PCRQU"},      SummaryLine{"YNRespToQues", "RL_DCYNR"},
    SummaryLine{"ReqClarRespToQues", "RL_DCRC"}, SummaryLine{"OthRespToQues", "RL_DCOR"},
};

constexpr std::array kPrompts{
    SummaryLine{"OtherSpkIntPrmpt", "RL_DCNOSIP"},
    SummaryLine{"RespToIntPrmpt", "RL_ULRIP"},
    SummaryLine{"%RespToIntPrmpt", "RL_ULRIP", {}, false, true},
};

constexpr std::array kImitations{
    SummaryLine{"Imitations", "RL_ULIMIT"},
    SummaryLine{"ExactImit", "RL_DCEIMIT"},
    SummaryLine{"ReducedImit", "RL_DCRIMIT"},
};

constexpr std::array kSpontaneous{
    SummaryLine{"SponUt", "RL_ULSPON"},       SummaryLine{"SponStmt", "RL_ULSTMT"},
    SummaryLine{"SponExcl", "RL_ULEXMK"},     SummaryLine{"SponQues", "RL_ULQUES"},
    SummaryLine{"SponIntPrmpt", "RL_ULPRMT"}, SummaryLine{"SponAban", "RL_ABANUTT"},
    SummaryLine{"SponInter", "RL_ULINTR"},
};

constexpr std::array kOther{
    SummaryLine{"UtWOverlap", "RL_DCUWOV"},
    SummaryLine{"%UtWOverlap", "RL_PCULOV"},
    SummaryLine{"IntrOthSpk", "Utterances Interrupting the Other Speaker"},
    SummaryLine{"%IntrOthSpk", "RL_PCINTROS"},
    SummaryLine{"WdsMention1st", "RL_DC1ST", {}, true},
    SummaryLine{"%WdsMention1st", "RL_DC1ST", {}, true, true},
};

constexpr std::array kSections{
    SummarySection{"RL_HEADTTL", kTurns},      SummarySection{"RL_ULRQ", kQuestions},
    SummarySection{"RL_ULRIP", kPrompts},      SummarySection{"RL_ULIMIT", kImitations},
    SummarySection{"RL_ULSPON", kSpontaneous}, SummarySection{"RL_HEADOTHER", kOther},
};

} // namespace

Report buildDiscourseSummaryReport(const ReportInputs& in) {
    return buildSummaryReport(in, "RL_DCTITLE", kSections);
}

} // namespace tavi
