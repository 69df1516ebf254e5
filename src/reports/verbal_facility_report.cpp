// Lines of the Verbal Facility Summary. The elapsed time is worded as in the
// Standard Measures Report; pause lines say when the pauses were not timed.
#include "reports/verbal_facility_report.h"

#include <array>

#include "base/text.h"
#include "reports/line_format.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

namespace {

constexpr std::array kRate{
    SummaryLine{"WPM", "RL_RPWDPERMIN"},
    SummaryLine{"UtPerMin", "RL_RPUTTPERMIN"},
};

constexpr std::array kPauses{
    SummaryLine{"NumPauseWiUt", "RL_PZWNUM"},
    SummaryLine{"PauseTimeWiUt", "RL_RPPAUSETIME", "(seconds), Within Utterances"},
    SummaryLine{"AvgPauseWiUt", "RL_RPAVE", "Pause Time (seconds), Within Utterances"},
    SummaryLine{"NumPauseBtUt", "RL_PZBNUM"},
    SummaryLine{"PauseTimeBtUt", "RL_RPPAUSETIME", "(seconds), Between Utterances"},
    SummaryLine{"AvgPauseBtUt", "RL_RPAVE", "Pause Time (seconds), Between Utterances"},
    SummaryLine{"%PauseTime", "RL_PCPZTIME"},
};

constexpr std::array kMazes{
    SummaryLine{"UtWMaze", "RL_UTTWMZ"},      SummaryLine{"%UtWMaze", "RL_PCUTTWITHMZ"},
    SummaryLine{"Tot#Mz", "RL_MZTOT"},        SummaryLine{"MzWds", "RL_MZTOTMZWDS"},
    SummaryLine{"%MzWds", "RL_MZWDSPCTOT"},   SummaryLine{"AvgWdPerMz", "RL_MZAVEWDSPER"},
    SummaryLine{"AvgMzPerUt", "RL_MZPERUTT"},
};

constexpr std::array kOther{
    SummaryLine{"AbanUtt", "RL_NUMABANUTT"}, SummaryLine{"%AbanUtt", "RL_PCABANUTT"},
    SummaryLine{"UttwFC", "RL_NUTTWFCODE"},  SummaryLine{"%UttwFC", "RL_ULFLCODE", {}, false, true},
    SummaryLine{"UttwCS", "RL_NUTTWCSCODE"}, SummaryLine{"%UttwCS", "RL_ULCSCODE", {}, false, true},
};

constexpr std::array kSections{
    SummarySection{"RL_HEADRATE", kRate},
    SummarySection{"RL_HEADPAUSE", kPauses},
    SummarySection{"RL_HEADMAZE", kMazes},
    SummarySection{"RL_HEADOTHER", kOther},
};

} // namespace

Report buildVerbalFacilityReport(const ReportInputs& in) {
    Report report = buildSummaryReport(in, "RL_VERBFACSMRY", kSections);
    // The elapsed time leads the rate section, worded as everywhere else.
    TimeWords words{in.labels("RL_MINUTES"), in.labels("RL_SECONDS"), in.labels("RL_RPMISSING")};
    report.sections.front().items.insert(
        report.sections.front().items.begin(),
        elapsedTimeLine("  ", in.labels("RL_TIMEMIN"), in.context.elapsedSeconds, words));
    ReportSection& pauses = report.sections[1];
    if (in.context.pausesUntimed)
        pauses.items.emplace_back(TextLine{in.labels("RL_RPALLNOTIME")});
    else if (in.context.somePausesUntimed)
        pauses.items.emplace_back(TextLine{in.labels("RL_RPSOMENOTIME")});
    return report;
}

} // namespace tavi
