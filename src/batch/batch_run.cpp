// The batch run: analysis of each transcript on the worker threads, questions
// and rows in order on the calling thread.
#include "batch/batch_run.h"

#include "analysis/equating.h"
#include "analysis/selection.h"
#include "base/format.h"
#include "base/progress.h"
#include "base/prompter.h"
#include "batch/batch_columns.h"
#include "batch/ordered_pipeline.h"

namespace tavi {

namespace {

constexpr size_t kCutDescriptionLength = 200;

// What a worker hands back for one transcript: the rows it would add and what
// the person must be asked before they are added.
struct TranscriptOutcome {
    enum class Status { Ok, CannotOpen, Corrupted } status = Status::Ok;
    bool hasErrors = false;
    CutOutcome cut = CutOutcome::Complete;
    std::vector<std::vector<std::string>> rows;
};

// Texts shared by every row of the run.
struct RunTexts {
    std::string analysisSet;
    std::string wordBase;
    std::string cut;
};

std::string fileStem(const std::filesystem::path& file) {
    std::string name = file.filename().string();
    return name.substr(0, name.find('.'));
}

TranscriptOutcome analyse(const std::filesystem::path& path, const BatchRunOptions& options,
                          const std::vector<BatchColumn>& columns, const RunTexts& texts) {
    TranscriptOutcome out;
    // A run for the 1st speaker alone needs no record of the 2nd (the 2nd is
    // measured as it stands, without the session's fall back to the 1st).
    AnalysisRequest request;
    request.bothSpeakers = options.selections.speaker != 0;
    const TranscriptAnalysis analysis = analyseFile(path, options.analysis, request);
    if (analysis.load != LoadStatus::Ok) {
        out.status = analysis.load == LoadStatus::CannotOpen ? TranscriptOutcome::Status::CannotOpen
                                                             : TranscriptOutcome::Status::Corrupted;
        return out;
    }
    const CheckResult& checked = analysis.check;
    const MeasureResult& measured = analysis.result;
    out.hasErrors = checked.hasErrors;
    out.cut = measured.selection.outcome;

    int speaker = options.selections.speaker;
    for (int s = 0; s < 2; ++s) {
        if (speaker != BatchSelections::kBothSpeakers && speaker != s)
            continue;
        RowSource src;
        src.fileName = path.filename().string();
        src.transcript = &checked.segmented;
        src.ageMonths = checked.ageMonths;
        src.speaker = s;
        src.measures = &measured.speakers[static_cast<size_t>(s)];
        src.analysisSet = texts.analysisSet;
        src.wordBase = texts.wordBase;
        src.cut = texts.cut;
        if (anyExploreCount(options.selections.explore))
            tallyExplore(analysis, options.selections.explore, src);
        out.rows.push_back(batchRow(columns, src, options.selections));
    }
    return out;
}

// The question about a missing cut marker, or an empty text when none is due.
std::string cutQuestion(CutOutcome outcome, const std::string& name) {
    switch (outcome) {
    case CutOutcome::NoMarkers:
    case CutOutcome::BeginNotFound:
        return name + " - begin cut marker not found. Would you like this transcript included?";
    case CutOutcome::NoTiming:
    case CutOutcome::EndBeforeFinal:
    case CutOutcome::FinalNotFound:
        return name + " - final cut marker not found. Would you like this transcript included?";
    case CutOutcome::Complete:
        break;
    }
    return {};
}

enum class Decision { Include, LeaveOut, Cancel };

Decision decide(const TranscriptOutcome& t, const std::string& name, bool cutInForce,
                Prompter& prompter) {
    using Status = TranscriptOutcome::Status;
    if (t.status == Status::CannotOpen) {
        prompter.inform(format("%s could not be opened", name.c_str()));
        return Decision::LeaveOut;
    }
    if (t.status == Status::Corrupted) {
        prompter.inform(format("%s corrupted", name.c_str()));
        return Decision::LeaveOut;
    }
    std::vector<std::string> questions;
    if (t.hasErrors)
        questions.push_back(
            format("%s contains errors. Would you like it included?", name.c_str()));
    if (cutInForce && !cutQuestion(t.cut, name).empty())
        questions.push_back(cutQuestion(t.cut, name));
    for (const std::string& question : questions) {
        Answer a = prompter.ask(question);
        if (a == Answer::Cancel)
            return Decision::Cancel;
        if (a == Answer::No)
            return Decision::LeaveOut;
    }
    return Decision::Include;
}

Grid keyGrid(const std::vector<BatchColumn>& columns, const BatchRunOptions& options) {
    Grid key;
    key.title = keyGridTitle(options.selectionFile);
    key.addColumn("Variable", 100);
    key.addColumn("Description", 500);
    key.addColumn("Category", 100);
    for (const BatchColumn& c : columns)
        key.addRow({c.heading(), c.description(), c.category()});
    return key;
}

} // namespace

std::string wordBaseText(const WordBase& base) {
    std::string text;
    auto add = [&](const std::string& part) { text += (text.empty() ? "" : "; ") + part; };
    if (base.excludeParenthetical)
        add("Excluding Parenthetical Remarks");
    if (base.includeMode && !base.includeCodes.empty())
        add("Only Words with Codes " + base.includeCodes);
    if (!base.includeMode && !base.excludeCodes.empty())
        add("Excluding Words with Codes " + base.excludeCodes);
    return text.empty() ? "All Words" : text;
}

std::string dataGridTitle(const std::optional<std::filesystem::path>& selectionFile) {
    return selectionFile ? fileStem(*selectionFile) + "_RDF" : "RDF";
}

std::string keyGridTitle(const std::optional<std::filesystem::path>& selectionFile) {
    return selectionFile ? fileStem(*selectionFile) + "_RDFKey" : "RDF Key";
}

std::filesystem::path batchKeyFilePath(const std::filesystem::path& out) {
    std::filesystem::path key = out;
    key.replace_filename(out.stem().string() + "_RDFKey" + out.extension().string());
    return key;
}

std::optional<BatchResult> runBatch(const std::vector<std::filesystem::path>& transcripts,
                                    const BatchRunOptions& options, Prompter& prompter,
                                    Progress& progress) {
    if (std::optional<MissingValueProblem> problem = validateMissingValues(options.selections)) {
        prompter.inform(problem->message);
        return std::nullopt;
    }
    if (transcripts.empty()) {
        prompter.inform("No transcripts selected");
        return std::nullopt;
    }
    const std::vector<BatchColumn> columns =
        batchColumns(options.selections, VariableCatalogue::standard());
    if (columns.empty()) {
        prompter.inform("No variables selected");
        return std::nullopt;
    }

    RunTexts texts{analysisSetName(options.analysis.measures.analysisSet),
                   wordBaseText(options.analysis.measures.wordBase),
                   describeCut(options.analysis.measures.cut, kCutDescriptionLength)};
    BatchResult result;
    result.data.title = dataGridTitle(options.selectionFile);
    for (const BatchColumn& c : columns)
        result.data.addColumn(c.heading(), 50);
    result.key = keyGrid(columns, options);

    const bool cutInForce = !options.analysis.measures.cut.isEntireTranscript();
    const unsigned threads = threadCount(options.threads);
    bool cancelled = false;
    progress.start(static_cast<int>(transcripts.size()), "Batch");
    runInOrder<TranscriptOutcome>(
        transcripts.size(), threads, 4 * static_cast<size_t>(threads),
        [&](size_t i) { return analyse(transcripts[i], options, columns, texts); },
        [&](size_t i, TranscriptOutcome& t) {
            Decision d = decide(t, transcripts[i].string(), cutInForce, prompter);
            progress.step();
            if (d == Decision::Cancel || progress.cancelled()) {
                cancelled = true;
                return false;
            }
            if (d == Decision::LeaveOut) {
                ++result.leftOut;
                return true;
            }
            ++result.transcripts;
            for (std::vector<std::string>& row : t.rows)
                result.data.addRow(std::move(row));
            return true;
        });
    progress.finish();
    if (cancelled)
        return std::nullopt;
    return result;
}

} // namespace tavi
