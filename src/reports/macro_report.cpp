// Template and Subordination Index reports.
#include "reports/macro_report.h"

#include "base/format.h"
#include "reports/line_format.h"

namespace tavi {

namespace {

// Labels of a template's report: title, component column, composite line.
struct TemplateLabels {
    std::string_view key;
    std::string_view title;     // a label key, or the text itself when no key exists
    std::string_view category;  // the same
    std::string_view composite; // the same
};

constexpr TemplateLabels kTemplateLabels[] = {
    {"NSS", "RL_HCNSS", "RL_NSSCATEG", "RL_NSSSCORE"},
    {"ESS", "RL_HCESS", "RL_ESSCATEG", "RL_ESSSCORE"},
    {"PSS", "RL_HCPSS", "RL_PSSCATEG", "RL_PSSSCORE"},
    {"ONQ", "RL_HCONQ", "RL_ONQCATEG", "RL_ONQSCORE"},
    {"CQ", "RL_HCCQ", "RL_CQCATEG", "RL_CQSCORE"},
    {"ONC", "RL_ONC", "Question", "ONC Score"},
    {"FCB", "RL_FLPLUSLINES", "Behavior", "Total Rating"},
};

const TemplateLabels& labelsOf(std::string_view key) {
    for (const TemplateLabels& l : kTemplateLabels)
        if (l.key == key)
            return l;
    return kTemplateLabels[0];
}

std::string text(const LabelSource& labels, std::string_view keyOrText) {
    return keyOrText.starts_with("RL_") ? labels(keyOrText) : std::string(keyOrText);
}

std::string range(const MacroComponent& c) {
    return format("%d-%d", c.minScore, c.maxScore);
}

// "Database mean: 21.40 (SD 4.10)" lines for one measure.
void addDatabaseLines(std::vector<ReportItem>& items, std::string_view id,
                      const SmrDatabase* database) {
    if (!database || !database->columns)
        return;
    std::optional<SmrDatabaseColumn> column = database->columns(id);
    LabelledLine mean{"", "Database Mean", ":  ", std::string(kMissingMark)};
    LabelledLine sd{"", "Database SD", ":  ", std::string(kMissingMark)};
    if (column) {
        mean.value =
            formatMean(column->mean) + (column->differs ? std::string(kSmrDifferenceMark) : "");
        sd.value = formatMean(column->sd);
    }
    items.push_back(std::move(mean));
    items.push_back(std::move(sd));
}

} // namespace

ReportSection templateSection(std::string_view key, const SpeakerMeasures& measures,
                              const LabelSource& labels) {
    const TemplateLabels& l = labelsOf(key);
    ReportSection section;
    section.title = text(labels, l.title);
    const MacroScore* score = measures.macroScore(key);
    if (!score) {
        section.items.push_back(TextLine{"The transcript has no " + text(labels, l.title) +
                                         " lines for this speaker."});
        return section;
    }
    ReportTable table;
    table.labelHeading = text(labels, l.category);
    table.headings = {labels("RL_SCORE"), "Range"};
    for (const MacroComponent& c : score->components)
        table.rows.push_back({c.name, {formatCount(c.score.number()), range(c)}});
    section.items.push_back(std::move(table));
    LabelledLine composite{"", text(labels, l.composite), ":  ",
                           format("%d of %d", score->composite.asCount(), score->maxComposite)};
    section.items.push_back(std::move(composite));
    const int components = static_cast<int>(score->components.size());
    if (score->scored < components)
        section.items.push_back(
            TextLine{format("%d of %d components scored.", score->scored, components)});
    return section;
}

Report buildTemplateReport(std::string_view key, const TranscriptReportContext& context,
                           const SpeakerMeasures& measures, const LabelSource& labels,
                           const SmrDatabase* database) {
    Report report;
    report.title = text(labels, labelsOf(key).title);
    report.header = reportHeader(context, labels);
    if (database)
        for (const std::string& line : database->sourceLines)
            report.header.push_back({"", "", "", line});
    ReportSection scores = templateSection(key, measures, labels);
    scores.title.clear();
    if (const MacroScore* score = measures.macroScore(key))
        addDatabaseLines(scores.items, score->variable, database);
    report.sections.push_back(std::move(scores));
    // What each score given means and what each component looks at, from
    // the template.
    if (const MacroScore* score = measures.macroScore(key)) {
        ReportSection given{"Scores Given", {}};
        for (const MacroComponent& c : score->components)
            given.items.push_back(
                TextLine{c.name + ": " + (c.score.isMissing() ? "not scored" : c.meaning)});
        report.sections.push_back(std::move(given));
        ReportSection about{"Components", {}};
        for (const MacroComponent& c : score->components)
            about.items.push_back(TextLine{c.name + ": " + c.description});
        report.sections.push_back(std::move(about));
    }
    return report;
}

Report buildSubordinationIndexReport(const TranscriptReportContext& context,
                                     const SpeakerMeasures& measures, const LabelSource& labels,
                                     const SmrDatabase* database) {
    Report report;
    report.title = labels("RL_HCSI");
    report.header = reportHeader(context, labels);
    if (database)
        for (const std::string& line : database->sourceLines)
            report.header.push_back({"", "", "", line});
    const SiSummary& si = measures.si;
    ReportSection section;
    if (si.awaitingReview > 0)
        section.items.push_back(
            TextLine{format("%d suggested SI codes await review (remove the \"?\" to count them).",
                            si.awaitingReview)});
    if (si.coded == 0) {
        section.items.push_back(
            TextLine{"No analysis-set utterance of this speaker carries an SI code."});
        report.sections.push_back(std::move(section));
        return report;
    }
    ReportTable table;
    table.labelHeading = labels("RL_SICODE");
    table.headings = {labels("RL_UTTS"), "Percent"};
    for (size_t n = 0; n < si.byClauseCount.size(); ++n) {
        const int count = si.byClauseCount[n];
        table.rows.push_back({format("SI-%d", static_cast<int>(n)),
                              {formatCount(count), formatPercent(count * 100.0 / si.coded)}});
    }
    table.rows.push_back({labels("RL_TOTAL"), {formatCount(si.coded), formatPercent(100.0)}});
    section.items.push_back(std::move(table));
    section.items.push_back(
        LabelledLine{"# ", labels("RL_SISCORE"), ":  ", formatMean(si.index().number())});
    addDatabaseLines(section.items, "SI", database);
    report.sections.push_back(std::move(section));
    report.footnotes.push_back(labels("RL_ITALICSNOTE2"));
    return report;
}

} // namespace tavi
