// Sentences of the Performance Report and the goal bank.
#include "reports/performance_report.h"

#include <cmath>

#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

using M = MeasureId;

std::optional<double> valueOf(const PerformanceInputs& in, M id) {
    return (*in.measures)[id].number();
}

int countOf(const PerformanceInputs& in, M id) {
    auto v = valueOf(in, id);
    return v ? static_cast<int>(std::lround(*v)) : 0;
}

const PeerStat* statOf(const PerformanceInputs& in, M id) {
    if (!in.peers)
        return nullptr;
    const PeerStat& s = in.peers->stats[static_cast<std::size_t>(id)];
    return s.n > 0 ? &s : nullptr;
}

std::optional<PeerComparison> comparisonOf(const PerformanceInputs& in, M id) {
    const PeerStat* s = statOf(in, id);
    if (!s)
        return std::nullopt;
    return compareWithPeers(valueOf(in, id), *s, in.peers->sdInterval);
}

std::string peersText(const PerformanceInputs& in) {
    return format("%d", in.peers ? in.peers->samples : 0);
}

// Where more is better: "... which was" followed by this.
std::string moreIsBetter(const PerformanceInputs& in, M id, const PeerComparison& c) {
    switch (c.standing) {
    case PeerStanding::Above:
        return format(" a strength at %s above the normal range compared to %s database peers.",
                      c.distance.c_str(), peersText(in).c_str());
    case PeerStanding::Below:
        return format(" %s below the database mean of %0.2f.", c.distance.c_str(),
                      static_cast<double>(statOf(in, id)->mean));
    case PeerStanding::Comparable:
        break;
    }
    return format(" within the normal range compared to %s database peers.", peersText(in).c_str());
}

// Where less is better: "..., which " followed by this.
std::string lessIsBetter(const PerformanceInputs& in, const PeerComparison& c) {
    switch (c.standing) {
    case PeerStanding::Below:
        return format("was a strength at %s lower than the database mean.", c.distance.c_str());
    case PeerStanding::Above:
        return format("was %s higher than the database mean.", c.distance.c_str());
    case PeerStanding::Comparable:
        break;
    }
    return format("was comparable to %s database peers.", peersText(in).c_str());
}

// A sentence whose stem states a value where more is better: the comparison
// follows ", which was", or the stem simply ends.
std::string moreSentence(const PerformanceInputs& in, M id, const std::string& stem) {
    if (auto c = comparisonOf(in, id))
        return stem + ", which was" + moreIsBetter(in, id, *c);
    return stem + ".";
}

std::string lessSentence(const PerformanceInputs& in, M id, const std::string& stem) {
    if (auto c = comparisonOf(in, id))
        return stem + ", which " + lessIsBetter(in, *c);
    return stem + ".";
}

std::string plural(int n) {
    return n == 1 ? "" : "s";
}

std::string elapsedWords(int seconds) {
    const int m = seconds / 60, s = seconds % 60;
    std::string text = m ? format("%d minute%s", m, plural(m).c_str()) : std::string();
    if (s || !m)
        text += format("%s%d second%s", m ? " " : "", s, plural(s).c_str());
    return text;
}

std::string elicitation(const PerformanceInputs& in) {
    const std::string& c = in.elicitationContext;
    const std::string other = in.otherSpeaker.empty() ? "the examiner" : "the " + in.otherSpeaker;
    auto is = [&](std::string_view a, std::string_view b) {
        if (a.size() < 3 || b.size() < 3)
            return false;
        for (std::size_t i = 0; i < 3; ++i)
            if (std::tolower(static_cast<unsigned char>(a[i])) !=
                std::tolower(static_cast<unsigned char>(b[i])))
                return false;
        return true;
    };
    if (is(c, "Con"))
        return "a conversational sample with " + other;
    if (is(c, "Nar"))
        return "a narrative task";
    if (is(c, "Exp"))
        return "an expository task";
    if (is(c, "Per"))
        return "a persuasive task";
    if (is(c, "Pla"))
        return "a play-based sample with " + other;
    return "a language sample";
}

constexpr const char* kSpeaker = "The speaker";
constexpr const char* kSpeakerLower = "the speaker";
constexpr const char* kPossessive = "'s";

std::string elicitationSection(const PerformanceInputs& in) {
    std::string text = format("%s completed %s.", kSpeaker, elicitation(in).c_str());
    if (in.peers)
        text += format(" %s%s sample was compared with %d sample%s of the %s database (%s), "
                       "selected by %s.",
                       kSpeaker, kPossessive, in.peers->samples, plural(in.peers->samples).c_str(),
                       in.peers->database.c_str(), in.peers->context.c_str(),
                       in.peers->criteria.c_str());
    return text;
}

std::string lengthSection(const PerformanceInputs& in) {
    const int utts = countOf(in, M::TotNumUt), words = countOf(in, M::NTW);
    auto utt = comparisonOf(in, M::TotNumUt), wd = comparisonOf(in, M::NTW);
    if (utt && wd && !utt->differs() && !wd->differs())
        return format("%s produced %d utterances using a total of %d words, which were both "
                      "within normal limits for this task.",
                      kSpeaker, utts, words);
    auto seconds = valueOf(in, M::TimeSec);
    std::string text = format("%s%s sample contained a total of %d utterances using %d words",
                              kSpeaker, kPossessive, utts, words);
    if (seconds && !in.measures->timingMissing)
        text += format(" produced in %s",
                       elapsedWords(static_cast<int>(std::lround(*seconds))).c_str());
    const auto& decisive = wd && wd->differs() ? wd : utt;
    if (decisive && decisive->differs())
        text += format(", resulting in a %s sample than %s database peers completing the same "
                       "task",
                       decisive->standing == PeerStanding::Above ? "longer" : "shorter",
                       peersText(in).c_str());
    return text + ".";
}

std::string intelligibilitySection(const PerformanceInputs& in) {
    std::string text;
    auto below = [&](M id) {
        auto c = comparisonOf(in, id);
        return c && c->standing == PeerStanding::Below ? c : std::nullopt;
    };
    if (auto v = valueOf(in, M::PctIntelUt)) {
        if (auto c = below(M::PctIntelUt))
            text += format("%s produced %0.1f%% intelligible utterances in %s sample, which was "
                           "%s below the database mean.",
                           kSpeaker, *v, "the", c->distance.c_str());
        else
            text += format("%s produced %0.1f%% intelligible utterances in %s sample%s", kSpeaker,
                           *v, "the", in.peers ? ", which was within normal limits." : ".");
    }
    if (auto v = valueOf(in, M::PctIntelWd)) {
        if (auto c = below(M::PctIntelWd))
            text += format(" At the word level %s was %0.1f%% intelligible, which was %s below "
                           "the database mean.",
                           kSpeakerLower, *v, c->distance.c_str());
        else
            text += format(" At the word level %s was %0.1f%% intelligible%s", kSpeakerLower, *v,
                           in.peers ? ", which was within normal limits." : ".");
    }
    if (countOf(in, M::PartOrAllUnintUt) > 0)
        text += " Only intelligible utterances were used when calculating most language measures.";
    return text;
}

// Utterances with verbs and verbs per utterance, joined.
std::string verbsSentence(const PerformanceInputs& in) {
    auto pct = valueOf(in, M::PctUtWVerb), vpu = valueOf(in, M::VPU);
    if (!pct || !vpu)
        return "";
    std::string text =
        format(" %0.1f%% of %s%s utterances contained verbs", *pct, kSpeakerLower, kPossessive) +
        format(" with an average of %0.2f verbs per utterance.", *vpu);
    auto a = comparisonOf(in, M::PctUtWVerb), b = comparisonOf(in, M::VPU);
    if (!a || !b)
        return text;
    const bool aLow = a->standing == PeerStanding::Below, bLow = b->standing == PeerStanding::Below;
    auto by = [](const PeerComparison& c) {
        return c.distance == "more than 3 SD" ? std::string(" more than 3 SD")
                                              : " by " + c.distance;
    };
    if (!aLow && !bLow)
        return text + " These values were both" + " within normal limits.";
    if (aLow && bLow)
        return text + format(" These values were lower than the database mean by %s and %s, "
                             "respectively.",
                             a->distance.c_str(), b->distance.c_str());
    if (aLow)
        return text + " The percentage of utterances with verbs was lower than the database mean" +
               by(*a) + "," +
               " while the average number of verbs per utterance was within normal "
               "limits.";
    return text + " The percentage of utterances with verbs was" +
           " within normal limits while the average number of verbs per utterance was" +
           " lower than the database mean" + by(*b) + ".";
}

// One paragraph per scoring scheme the transcript is scored with.
std::string macroSection(const PerformanceInputs& in) {
    static constexpr std::pair<const char*, const char*> kSchemes[] = {
        {"NSS", "Narrative Scoring Scheme"},
        {"ESS", "Expository Scoring Scheme"},
        {"ONQ", "Oral Narrative Quality"},
        {"PSS", "Persuasion Scoring Scheme"}};
    static constexpr const char* kSampleKind[] = {"narrative", "exposition", "narrative",
                                                  "persuasive sample"};
    std::string text;
    for (size_t i = 0; i < std::size(kSchemes); ++i) {
        const MacroScore* s = in.measures ? in.measures->macroScore(kSchemes[i].first) : nullptr;
        if (!s)
            continue;
        text += format("%sThe %s was used to assess the structure and content of %s%s %s.",
                       text.empty() ? "" : " ", kSchemes[i].second, kSpeakerLower, kPossessive,
                       kSampleKind[i]);
        text += format(" %s%s composite score was %d out of a possible %d points.", kSpeaker,
                       kPossessive, s->composite.asCount(), s->maxComposite);
    }
    return text;
}

// The comprehension questions: how many were asked and answered correctly.
std::string comprehensionSection(const PerformanceInputs& in) {
    const MacroScore* s = in.measures ? in.measures->macroScore("CQ") : nullptr;
    if (!s)
        return {};
    const int asked = static_cast<int>(s->components.size());
    const int right = s->composite.asCount();
    std::string text = format(
        "After listening to the story for the first time, %s was asked %d comprehension questions.",
        kSpeakerLower, asked);
    if (right == asked)
        return text + format(" %s answered all of them correctly.", kSpeaker);
    return text + moreSentence(in, M::CQTotal,
                               format(" %s answered %d of them correctly", kSpeaker, right));
}

std::string syntaxSection(const PerformanceInputs& in) {
    std::string text;
    if (auto v = valueOf(in, M::MLUw))
        text += moreSentence(in, M::MLUw,
                             format("%s%s mean length of utterance (MLU) in words was %0.2f",
                                    kSpeaker, kPossessive, *v));
    if (auto v = valueOf(in, M::MLUm))
        text += moreSentence(in, M::MLUm, format(" %s MLU in morphemes was %0.2f", "The", *v));
    text += verbsSentence(in);
    if (auto v = valueOf(in, M::SI))
        text += moreSentence(in, M::SI, format(" %s yielded an SI score of %0.2f", kSpeaker, *v));
    return text;
}

std::string semanticsSection(const PerformanceInputs& in) {
    const int ndw = countOf(in, M::NDW);
    std::string text = format("%s used %d different word%s (NDW) within an analysis set of %d "
                              "total words.",
                              kSpeaker, ndw, plural(ndw).c_str(), countOf(in, M::NTW));
    if (auto v = valueOf(in, M::MA_NDW))
        text += moreSentence(
            in, M::MA_NDW,
            format(" The moving-average NDW, the mean number of different words in every "
                   "window of %d words, was %0.2f",
                   countOf(in, M::MA_NTW), *v));
    return text;
}

std::string discourseSection(const PerformanceInputs& in) {
    std::string text;
    const std::string other =
        in.otherSpeaker.empty() ? "the other speaker" : "the " + in.otherSpeaker;
    if (auto v = valueOf(in, M::PctRespQues))
        text += moreSentence(in, M::PctRespQues,
                             format("%s responded to %0.1f%% of questions asked by %s", kSpeaker,
                                    *v, other.c_str()));
    const int questions = countOf(in, M::Questions), statements = countOf(in, M::Statements);
    text += format(" %s asked %d question%s and made %d statement%s.", kSpeaker, questions,
                   plural(questions).c_str(), statements, plural(statements).c_str());
    text += format(" %s interrupted %s %s.", kSpeaker, other.c_str(),
                   timesWord(countOf(in, M::IntrOthSpk)).c_str());
    if (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    return text;
}

std::string verbalFacilitySection(const PerformanceInputs& in) {
    std::string text;
    if (auto wpm = valueOf(in, M::WPM)) {
        auto c = comparisonOf(in, M::WPM);
        if (c && c->standing == PeerStanding::Above)
            text += format("%s%s rate of speech, at %0.0f words per minute, was faster than the "
                           "database mean by %s.",
                           kSpeaker, kPossessive, *wpm, c->distance.c_str());
        else if (c && c->standing == PeerStanding::Below)
            text += format("%s%s rate of speech, at %0.0f words per minute, was slower than the "
                           "database mean by %s.",
                           kSpeaker, kPossessive, *wpm, c->distance.c_str());
        else if (c)
            text += format("%s%s rate of speech, at %0.0f words per minute, was within the normal "
                           "range.",
                           kSpeaker, kPossessive, *wpm);
        else
            text += format("%s%s rate of speech was %0.0f words per minute.", kSpeaker, kPossessive,
                           *wpm);
    }
    const int pauses = countOf(in, M::NumPauseWiUt);
    if (pauses > 0) {
        std::string pauseText =
            format(" %s produced", kSpeaker) +
            format(" %d within-utterance pause%s", pauses, plural(pauses).c_str());
        auto total = valueOf(in, M::PauseTimeWiUt);
        auto average = valueOf(in, M::AvgPauseWiUt);
        if (total && average && *total > 0)
            pauseText += format(" for a total time of %s,",
                                elapsedWords(static_cast<int>(std::lround(*total))).c_str()) +
                         format(" with an average pause time of %0.2f seconds", *average);
        text += lessSentence(in, M::AvgPauseWiUt, pauseText);
    }
    if (auto mz = valueOf(in, M::PctMzWds))
        text += lessSentence(
            in, M::PctMzWds,
            format(" Maze words made up %0.1f%% of %s%s words", *mz, kSpeakerLower, kPossessive));
    if (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    return text;
}

std::string errorsSection(const PerformanceInputs& in) {
    auto pct = valueOf(in, M::PctUtWErrors);
    if (!pct)
        return "";
    std::string stem = *pct > 0 ? format("%0.1f%% of %s%s utterances contained errors, which ",
                                         *pct, kSpeakerLower, kPossessive)
                                : format("None of %s%s utterances contained errors, which ",
                                         kSpeakerLower, kPossessive);
    if (auto c = comparisonOf(in, M::PctUtWErrors))
        return stem + lessIsBetter(in, *c);
    // Without a database: the clause ends with the value alone.
    stem.erase(stem.size() - std::string_view(", which ").size());
    return stem + ".";
}

bool differs(const PerformanceInputs& in, M id) {
    auto c = comparisonOf(in, id);
    return c && c->differs();
}

std::vector<std::string> relevantReports(const PerformanceInputs& in) {
    std::vector<std::string> list{"Standard Measures Report"};
    if (differs(in, M::MLUw) || differs(in, M::MLUm) || differs(in, M::PctUtWVerb) ||
        differs(in, M::VPU) || !in.peers)
        list.insert(list.end(), {"Syntax/Morphology Summary", "Utterance Distribution Tables"});
    if (differs(in, M::MA_NDW) || differs(in, M::NDW) || !in.peers)
        list.insert(list.end(), {"Semantics Summary", "Standard Word Lists"});
    if (differs(in, M::PctRespQues) || !in.peers)
        list.push_back("Discourse Summary");
    if (differs(in, M::WPM) || differs(in, M::AvgPauseWiUt) || differs(in, M::PctMzWds) ||
        !in.peers)
        list.insert(list.end(), {"Verbal Facility Summary", "Maze Distribution Tables"});
    if (differs(in, M::PctUtWErrors) || !in.peers)
        list.insert(list.end(), {"Errors Summary", "Omissions and Error Codes"});
    return list;
}

} // namespace

PerformanceInputs performanceInputs(const TranscriptAnalysis& analysis, const TranLines& lines) {
    PerformanceInputs in;
    in.measures = &analysis.measures();
    if (analysis.check.ageMonths >= 0)
        in.ageMonths = analysis.check.ageMonths;
    for (const tranLine& line : lines) {
        std::string_view text = line.text;
        if (text.empty() || text.front() != '+')
            continue;
        const std::size_t colon = text.find(':');
        if (colon == std::string_view::npos)
            continue;
        const std::string_view keyword = trim(text.substr(1, colon - 1));
        const std::string value(trim(text.substr(colon + 1)));
        if (equalsIgnoreCase(keyword, "Grade"))
            in.grade = value;
        else if (equalsIgnoreCase(keyword, "DOE"))
            in.elicitationDate = value;
        else if (equalsIgnoreCase(keyword, "Context"))
            in.elicitationContext = value;
    }
    const auto& groups = analysis.check.segmented.speakers.groups;
    const std::size_t other = analysis.speaker == 1 ? 0 : 1;
    if (other < groups.size() && !groups[other].labels.empty())
        in.otherSpeaker = toLowerAscii(groups[other].labels.front());
    return in;
}

std::string timesWord(int count) {
    static constexpr const char* kWords[] = {
        "zero times", "once",        "twice",       "three times", "four times", "five times",
        "six times",  "seven times", "eight times", "nine times",  "ten times"};
    if (count >= 0 && count <= 10)
        return kWords[count];
    return format("%d times", count);
}

std::string_view performanceReportKey(const PerformanceInputs& inputs) {
    return inputs.peers ? kPerformanceKeyDatabase : kPerformanceKeyAnalysis;
}

Report buildPerformanceReport(const PerformanceInputs& in) {
    Report report;
    report.title = "Performance Report";
    if (in.ageMonths && *in.ageMonths >= 0)
        report.header.push_back(
            {"", "", "", format("%sAge: %d;%d", "", *in.ageMonths / 12, *in.ageMonths % 12)});
    if (!in.grade.empty())
        report.header.push_back({"", "", "", format("%sGrade: %s", "", in.grade.c_str())});
    if (!in.elicitationDate.empty())
        report.header.push_back(
            {"", "", "", format("%sElicitation date: %s", "", in.elicitationDate.c_str())});
    report.header.push_back({"", "", "", ""});
    report.header.push_back({"", "", "", "Language Sample Analysis with TAVI Software"});
    auto section = [&](const char* title, const std::string& text) {
        if (!text.empty())
            report.sections.push_back({format("%s%s", "", title), {TextLine{text}}});
    };
    section(in.peers ? "Elicitation Task and Database Overview" : "Elicitation Task",
            elicitationSection(in));
    section("Transcript Length", lengthSection(in));
    section("Intelligibility", intelligibilitySection(in));
    section("Macro Analysis", macroSection(in));
    section("Comprehension", comprehensionSection(in));
    section("Syntax/Morphology", syntaxSection(in));
    section("Semantics", semanticsSection(in));
    section("Discourse", discourseSection(in));
    section("Verbal Facility", verbalFacilitySection(in));
    section("Errors", errorsSection(in));
    ReportSection relevant{"RELEVANT REPORTS:", {}};
    for (const std::string& name : relevantReports(in))
        relevant.items.push_back(TextLine{name});
    report.sections.push_back(std::move(relevant));
    if (in.peers)
        report.footnotes = in.peers->sources;
    return report;
}

namespace {

struct GoalDef {
    M id;
    bool lessIsBetter;
    const char* what; // the measure in the goal's words
    const char* valueFormat;
};

constexpr GoalDef kGoals[] = {
    {M::MLUw, false, "mean length of utterance in words", "%0.2f"},
    {M::MLUm, false, "mean length of utterance in morphemes", "%0.2f"},
    {M::NDW, false, "the number of different words (NDW)", "%0.0f"},
    {M::MA_NDW, false, "the moving-average number of different words", "%0.2f"},
    {M::PctUtWVerb, false, "the percentage of utterances with verbs", "%0.1f%%"},
    {M::PctRespQues, false, "the percentage of responses to questions", "%0.1f%%"},
    {M::PctIntelUt, false, "the percentage of intelligible utterances", "%0.1f%%"},
    {M::WPM, false, "the rate of speech in words per minute", "%0.0f"},
    {M::PctMzWds, true, "the percentage of words in mazes", "%0.1f%%"},
    {M::PctUtWErrors, true, "the percentage of utterances with errors", "%0.1f%%"},
};

} // namespace

Report buildGoalBank(const PerformanceInputs& in) {
    Report report;
    report.title = "GOAL BANK Based on Transcript";
    const std::string given = elicitation(in);
    ReportSection goals{"", {}};
    for (const GoalDef& g : kGoals) {
        auto value = valueOf(in, g.id);
        if (!value)
            continue;
        const std::string from = format(g.valueFormat, *value);
        const char* verb = g.lessIsBetter ? "decrease" : "increase";
        if (!in.peers) {
            goals.items.push_back(
                TextLine{format("Given %s, %s will %s %s from %s to ____.", given.c_str(),
                                kSpeakerLower, verb, g.what, from.c_str())});
            continue;
        }
        auto c = comparisonOf(in, g.id);
        const PeerStanding needs = g.lessIsBetter ? PeerStanding::Above : PeerStanding::Below;
        if (!c || c->standing != needs)
            continue;
        const PeerStat& s = *statOf(in, g.id);
        const double edge = static_cast<double>(in.peers->sdInterval) * s.sd;
        const double target = g.lessIsBetter ? s.mean + edge : s.mean - edge;
        goals.items.push_back(
            TextLine{format("Given %s, %s will %s %s from %s to %s.", given.c_str(), kSpeakerLower,
                            verb, g.what, from.c_str(), format(g.valueFormat, target).c_str())});
    }
    if (goals.items.empty())
        goals.items.push_back(
            TextLine{"No measure lies below the database: no goals are proposed."});
    report.sections.push_back(std::move(goals));
    if (in.peers) {
        report.footnotes.push_back(format(
            "Each target is the nearest value within normal limits: the database mean less %s SD, "
            "or plus %s SD for measures where less is better.",
            shortestFloat(in.peers->sdInterval).c_str(),
            shortestFloat(in.peers->sdInterval).c_str()));
        for (const std::string& line : in.peers->sources)
            report.footnotes.push_back(line);
    }
    return report;
}

} // namespace tavi
