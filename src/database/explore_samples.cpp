// Counting the explore reports' items in the stored samples.
#include "database/explore_samples.h"

#include "analysis/explore_items.h"
#include "transcript/transcript_file.h"

namespace tavi::db {

std::map<std::string, PeerStat> exploreItemStats(PeerDatabase& database,
                                                 const PeerSnapshot& snapshot,
                                                 const AnalysisContext& context,
                                                 const std::vector<std::string>& items,
                                                 Prompter& prompter, Progress& progress) {
    std::array<AnalysisContext, 2> contexts{context, context};
    for (int speaker = 0; speaker < 2; ++speaker)
        contexts[speaker].measures.cut = equatingCut(
            snapshot.equating, snapshot.amount, context.measures.cut, snapshot.applyCut, speaker);
    std::vector<PeerStatAccumulator> sums(items.size());
    progress.start(static_cast<int>(snapshot.selectedRecords.size()), kCalculatingVocabulary);
    for (std::size_t record : snapshot.selectedRecords) {
        progress.step();
        const std::string* text = database.transcript(record, prompter);
        if (!text)
            continue;
        const int speaker = sampleSpeaker(database.records()[record]);
        AnalysisRequest request;
        request.speaker = speaker;
        const TranscriptAnalysis analysis =
            analyseTranscript(splitTranscriptLines(*text), contexts[speaker], request);
        const auto& utterances = analysis.result.selection.speakers[speaker].total;
        for (std::size_t i = 0; i < items.size(); ++i)
            sums[i].add(
                static_cast<float>(countItem(analysis.check.segmented, utterances, items[i])));
    }
    progress.finish();
    std::map<std::string, PeerStat> stats;
    for (std::size_t i = 0; i < items.size(); ++i)
        stats[items[i]] = sums[i].result();
    return stats;
}

std::map<std::string, PeerStat> explorePlusLineStats(PeerDatabase& database,
                                                     const PeerSnapshot& snapshot,
                                                     const std::vector<std::string>& keywords,
                                                     Prompter& prompter, Progress& progress) {
    std::vector<PeerStatAccumulator> sums(keywords.size());
    AnalysisContext plain;
    plain.check.keepSegmentation = true;
    AnalysisRequest checkOnly;
    checkOnly.measure = false;
    progress.start(static_cast<int>(snapshot.selectedRecords.size()), kCalculatingPlusLines);
    for (std::size_t record : snapshot.selectedRecords) {
        progress.step();
        const std::string* text = database.transcript(record, prompter);
        if (!text)
            continue;
        const TranscriptAnalysis analysis = analyseText(*text, plain, checkOnly);
        for (std::size_t i = 0; i < keywords.size(); ++i)
            if (auto value = plusLineValue(analysis.check.segmented, keywords[i]))
                sums[i].add(static_cast<float>(*value));
    }
    progress.finish();
    std::map<std::string, PeerStat> stats;
    for (std::size_t i = 0; i < keywords.size(); ++i)
        stats[keywords[i]] = sums[i].result();
    return stats;
}

} // namespace tavi::db
