// Load, check, speaker choice and measures, in one place.
#include "session/analysis_session.h"

#include "analysis/selection.h"
#include "transcript/transcript_file.h"

namespace tavi {

namespace {

constexpr std::string_view kNoSecondSpeaker =
    "Current transcript does not have a 2nd speaker. Speaker setting has been reset.";

// The speaker choice and measures after the check.
void measure(TranscriptAnalysis& analysis, const AnalysisContext& context,
             const AnalysisRequest& request) {
    analysis.speaker = request.speaker == 1 ? 1 : 0;
    if (analysis.speaker == 1 && !analysis.check.speakers.hasSecondSpeaker()) {
        analysis.speakerReset = true;
        analysis.speaker = 0;
    }
    if (!request.measure)
        return;
    const MeasuredSpeakers which = request.bothSpeakers    ? MeasuredSpeakers::Both
                                   : analysis.speaker == 1 ? MeasuredSpeakers::Second
                                                           : MeasuredSpeakers::First;
    analysis.result = computeMeasures(analysis.check.segmented, context.measures, which);
}

CheckOptions keepingSegmentation(const AnalysisContext& context, const AnalysisRequest& request) {
    CheckOptions options = context.check;
    options.keepSegmentation = options.keepSegmentation || request.measure;
    return options;
}

} // namespace

std::string_view speakerResetMessage() {
    return kNoSecondSpeaker;
}

std::string_view TranscriptAnalysis::cutMessage() const {
    return cutOutcomeMessage(result.selection.outcome);
}

std::vector<std::string> TranscriptAnalysis::messages() const {
    std::vector<std::string> said;
    if (speakerReset)
        said.emplace_back(speakerResetMessage());
    if (std::string_view cut = cutMessage(); !cut.empty())
        said.emplace_back(cut);
    return said;
}

AnalysisContext AnalysisContext::withSettings(const Settings& settings) const {
    return analysisContext(settings, resources);
}

AnalysisContext analysisContext(const Settings& settings,
                                std::shared_ptr<const MeasureResources> resources) {
    AnalysisContext context;
    context.check = checkOptionsFrom(settings);
    context.measures = measureOptionsFrom(settings);
    context.encoding = settings.language.textEncoding;
    context.resources = std::move(resources);
    if (context.resources)
        context.resources->attach(context.measures);
    context.measures.templates = context.check.templates.get();
    return context;
}

AnalysisContext analysisContext(const Settings& settings, Prompter& prompter) {
    return analysisContext(settings, std::make_shared<const MeasureResources>(
                                         loadMeasureResources(settings, prompter)));
}

TranscriptAnalysis analyseTranscript(const TranLines& lines, const AnalysisContext& context,
                                     const AnalysisRequest& request) {
    TranscriptAnalysis analysis;
    analysis.check = checkTranscript(lines, keepingSegmentation(context, request));
    measure(analysis, context, request);
    return analysis;
}

TranscriptAnalysis analyseText(std::string_view text, const AnalysisContext& context,
                               const AnalysisRequest& request) {
    TranscriptAnalysis analysis;
    analysis.check = checkText(text, keepingSegmentation(context, request));
    measure(analysis, context, request);
    return analysis;
}

TranscriptAnalysis analyseFile(const std::filesystem::path& path, const AnalysisContext& context,
                               const AnalysisRequest& request) {
    TranscriptAnalysis analysis;
    std::error_code ec;
    std::string text;
    if (std::filesystem::is_directory(path, ec) ||
        !readTranscriptText(path, text, context.encoding)) {
        analysis.load = LoadStatus::CannotOpen;
        return analysis;
    }
    if (request.measure && text.find('\0') != std::string::npos) {
        analysis.load = LoadStatus::Corrupted;
        return analysis;
    }
    // The segmentation keeps the text itself rather than a copy of its lines.
    analysis.check = checkOwnedText(std::move(text), keepingSegmentation(context, request));
    measure(analysis, context, request);
    return analysis;
}

} // namespace tavi
