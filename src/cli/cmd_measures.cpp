// `tavi measures`: every measure of one speaker of one transcript, as
// identifier/value lines or as one JSON object.
#include <algorithm>
#include <charconv>
#include <optional>
#include <ostream>
#include <string>

#include "base/format.h"
#include "base/json_text.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"
#include "transcript/time_value.h"

namespace {

using namespace tavi;
using tavi::jsonNumber;
using tavi::jsonString;

std::string jsonValue(const Value& v) {
    if (v.isMissing())
        return "null";
    if (v.isText())
        return jsonString(v.asText());
    if (v.isCount())
        return format("%d", v.asCount());
    return jsonNumber(v.asReal());
}

// The values of the scoring templates the transcript holds and the number
// of SI-coded utterances, after the measures: names and values.
std::vector<std::pair<std::string, const Value*>> macroValues(const SpeakerMeasures& m) {
    std::vector<std::pair<std::string, const Value*>> values;
    for (const MacroScore& s : m.macro) {
        if (!measureIdByName(s.variable))
            values.emplace_back(s.variable, &s.composite);
        values.emplace_back(s.key + " Rated", &s.rated);
        for (const MacroComponent& c : s.components)
            values.emplace_back(c.variable, &c.score);
    }
    if (m.si.coded > 0 || m.si.awaitingReview > 0)
        values.emplace_back("SI Coded", &m.si.codedValue);
    return values;
}

void printText(const SpeakerMeasures& m, std::ostream& out) {
    for (size_t i = 0; i < kMeasureCount; ++i)
        out << kMeasureInfo[i].name << '\t' << m.formatted(static_cast<MeasureId>(i)) << '\n';
    for (const auto& [name, value] : macroValues(m))
        out << name << '\t' << formatValue(*value, MeasureFormat::Count) << '\n';
}

void printJson(const SpeakerMeasures& m, std::ostream& out) {
    out << '{';
    for (size_t i = 0; i < kMeasureCount; ++i)
        out << (i ? ",\n  " : "\n  ") << jsonString(kMeasureInfo[i].name) << ": "
            << jsonValue(m[static_cast<MeasureId>(i)]);
    for (const auto& [name, value] : macroValues(m))
        out << ",\n  " << jsonString(name) << ": " << jsonValue(*value);
    out << "\n}\n";
}

std::optional<int> wholeNumber(const std::string& s) {
    int n = 0;
    auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), n);
    if (ec != std::errc() || p != s.data() + s.size())
        return std::nullopt;
    return n;
}

std::optional<int> seconds(const std::string& s) {
    TimeValue t = readTimeValue(s);
    if (!t.valid || !t.given)
        return std::nullopt;
    return t.elapsed();
}

// The flags that override the analysis set for this run.
void applyAnalysisSetFlags(const cli::Args& a, AnalysisSet& set) {
    auto flag = [&](const char* name, std::int32_t& field, std::int32_t value) {
        if (a.has(name))
            field = value;
    };
    flag("--include-incomplete", set.excludeIncomplete, 0);
    flag("--include-unintelligible", set.excludeUnintelligible, 0);
    flag("--include-nonverbal", set.excludeNonverbal, 0);
    flag("--exclude-questions", set.excludeQuestionResponses, 1);
    flag("--exclude-yes-no", set.excludeYesNoResponses, 1);
    flag("--exclude-prompts", set.excludePromptResponses, 1);
    flag("--exclude-imitations", set.excludeImitations, 1);
    flag("--exclude-one-word", set.excludeOneWord, 1);
    if (auto v = a.value("--exclude-codes"))
        set.excludeCodes = *v;
    if (auto v = a.value("--include-only")) {
        set.includeOnly = 1;
        set.includeCodes = *v;
    }
}

// The flags that override the cut; returns an error text, or empty.
std::string applyCutFlags(const cli::Args& a, TranscriptCut& cut) {
    if (a.has("--entire"))
        cut = TranscriptCut{};
    auto number = [&](const char* name, std::int32_t& field) -> bool {
        auto v = a.value(name);
        if (!v)
            return false;
        auto n = wholeNumber(*v);
        if (!n)
            throw std::string(name) + " needs a whole number";
        field = *n;
        return true;
    };
    auto time = [&](const char* name, std::int32_t& field) -> bool {
        auto v = a.value(name);
        if (!v)
            return false;
        auto s = seconds(*v);
        if (!s)
            throw std::string(name) + " needs a time such as 4:15";
        field = *s;
        return true;
    };
    try {
        if (number("--from-utt", cut.startUtterance))
            cut.startType = TranscriptCut::FromUtterance;
        if (time("--from-time", cut.startTime))
            cut.startType = TranscriptCut::FromTiming;
        if (auto v = a.value("--from-code")) {
            cut.startType = TranscriptCut::FromCode;
            cut.startCode = *v;
        }
        if (number("--to-utt", cut.endValue))
            cut.endType = TranscriptCut::ToUtterance;
        if (time("--to-time", cut.endTime))
            cut.endType = TranscriptCut::ToTiming;
        if (auto v = a.value("--to-code")) {
            cut.endType = TranscriptCut::ToCode;
            cut.endCode = *v;
        }
        if (number("--words", cut.endValue))
            cut.endType = TranscriptCut::ToWordCount;
        if (number("--utts", cut.endValue))
            cut.endType = TranscriptCut::ToUtteranceCount;
        if (time("--elapsed", cut.endTime))
            cut.endType = TranscriptCut::ToElapsedTime;
    } catch (const std::string& e) {
        return e;
    }
    if (auto v = a.value("--cut-speaker")) {
        if (*v != "1" && *v != "2" && *v != "either")
            return "--cut-speaker takes 1, 2 or either";
        cut.startSpeaker = *v == "2" ? 1 : 0;
        cut.endSpeaker = *v == "either" ? 2 : *v == "2" ? 1 : 0;
    }
    if (auto v = a.value("--cut-base")) {
        if (*v != "total" && *v != "aset")
            return "--cut-base takes total or aset";
        cut.startBase = cut.endBase = *v == "total" ? 1 : 0;
    }
    if (a.has("--with-mazes"))
        cut.wordArea = 1;
    return {};
}

int usage(cli::CommandContext& ctx, const std::string& message) {
    ctx.err << "tavi measures: " << message << '\n';
    return cli::kExitUsage;
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args,
                   {"--speaker", "--window", "--exclude-codes", "--include-only", "--from-utt",
                    "--from-time", "--from-code", "--to-utt", "--to-time", "--to-code", "--words",
                    "--utts", "--elapsed", "--cut-speaker", "--cut-base", "--word-lists"},
                   {"--json", "--include-incomplete", "--include-unintelligible",
                    "--include-nonverbal", "--exclude-questions", "--exclude-yes-no",
                    "--exclude-prompts", "--exclude-imitations", "--exclude-one-word", "--entire",
                    "--with-mazes", cli::kIncludeErrors});
    if (!args.ok())
        return usage(ctx, args.error());
    if (args.positional().size() != 1)
        return usage(ctx, "give exactly one transcript");
    const std::string speakerText = args.value("--speaker").value_or("1");
    if (speakerText != "1" && speakerText != "2")
        return usage(ctx, "--speaker takes 1 or 2");

    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    std::optional<cli::CommandAnalysis> prepared = cli::prepareAnalysis(ctx, prompter);
    if (!prepared)
        return cli::kExitUsage;
    MeasureOptions& options = prepared->context.measures;
    applyAnalysisSetFlags(args, options.analysisSet);
    if (std::string e = applyCutFlags(args, options.cut); !e.empty())
        return usage(ctx, e);
    if (auto w = args.value("--window")) {
        auto n = wholeNumber(*w);
        if (!n || *n < kMinWindow || *n > kMaxWindow)
            return usage(ctx, format("Enter a number between %d and %d.", kMinWindow, kMaxWindow));
        options.window = *n;
    }
    if (auto set = args.value("--word-lists")) {
        const std::string names[] = {"primary", "alt1", "alt2", "other"};
        auto it = std::find(std::begin(names), std::end(names), *set);
        if (it == std::end(names))
            return usage(ctx, "--word-lists takes primary, alt1, alt2 or other");
        options.wordListSet = static_cast<int>(it - std::begin(names));
    }

    AnalysisRequest request;
    request.speaker = speakerText == "2" ? 1 : 0;
    request.bothSpeakers = false;
    cli::CommandOutcome outcome =
        cli::analyseForCommand(ctx, "measures", args.positional().front(), prepared->context,
                               request, args.has(cli::kIncludeErrors), prompter);
    if (!outcome.analysis)
        return outcome.exitStatus;
    if (args.has("--json"))
        printJson(outcome.analysis->measures(), ctx.out);
    else
        printText(outcome.analysis->measures(), ctx.out);
    return cli::kExitOk;
}

const cli::CommandRegistrar reg{
    {"measures", "every measure of one speaker of a transcript",
     "Usage: tavi measures [--speaker 1|2] [--json] [options] FILE\n\n"
     "Prints every measure of the 1st (default) or 2nd speaker, one line each:\n"
     "identifier, a tab, the value as the reports print it (\"   ---\" when it\n"
     "cannot be computed). --json prints one object keyed by the identifiers,\n"
     "numbers unrounded, texts as strings, missing values as null.\n"
     "A transcript scored with templates adds their components' columns (NSS_Intro,\n"
     "...) and the number scored (NSS Rated); one with SI codes adds \"SI Coded\".\n\n"
     "The analysis set, word base, transcript cut, moving-average window and code\n"
     "lists come from the settings (see tavi settings); these flags override them\n"
     "for this run only:\n"
     "  --include-incomplete, --include-unintelligible, --include-nonverbal\n"
     "                      keep abandoned/interrupted, unintelligible, nonverbal\n"
     "                      utterances in the analysis set\n"
     "  --exclude-questions, --exclude-yes-no, --exclude-prompts,\n"
     "  --exclude-imitations, --exclude-one-word\n"
     "                      leave out response types Q, Y, P, I, O\n"
     "  --exclude-codes LIST   leave out utterances with any of these codes (EW,EO*)\n"
     "  --include-only LIST    keep only utterances with one of these codes\n"
     "  --entire               no transcript cut\n"
     "  --from-utt N | --from-time M:SS | --from-code CODE     start of the cut\n"
     "  --to-utt N | --to-time M:SS | --to-code CODE           end of the cut\n"
     "  --words N | --utts N | --elapsed M:SS                  content target\n"
     "  --cut-speaker 1|2|either   speaker the cut counts (default 1)\n"
     "  --cut-base total|aset      utterances the cut counts (default total)\n"
     "  --with-mazes               --words counts maze words too\n"
     "  --window N                 moving-average window, 10 to 999\n"
     "  --word-lists primary|alt1|alt2|other   standard word list set\n"
     "  --include-errors           measure a transcript that has errors as it stands\n\n"
     "The transcript is checked first. When it has errors, its problems go to\n"
     "stderr and nothing is measured (exit status 1) unless --include-errors is\n"
     "given. Cut messages (\"Final cut marker not found - end of transcript\n"
     "used\" ...) go to stderr too.\n\n"
     "Exit status: 0 measured, 1 the transcript has errors, 2 bad usage, settings\n"
     "that cannot be loaded or a file that cannot be read.\n",
     run}};

} // namespace
