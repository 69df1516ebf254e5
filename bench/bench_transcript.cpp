// Speed of checking and segmenting large transcripts (MB/s), at several sizes
// to show that time grows linearly with the size of the transcript.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "transcript/checker.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace {

// A realistic conversation: two speakers, mazes, codes, bound morphemes,
// overlaps, pauses, timing lines and comments.
std::string generateTranscript(size_t bytes) {
    static const char* const kChild[] = {
        "C (um) I go/ed to the park with my mom/z friend.",
        "C and then we saw a big dog [EW:doggy] :03 that was run/ing.",
        "C <I want> ice_ _cream and he+'s *the best.",
        "C XXX.",
        "C {nods}.",
        "C we (we we) play/ed on the swing/s and the slide ((laughs)) today!",
        "C my brother %goed to school but I did/n't>",
        "C I don't know what you mean?",
    };
    static const char* const kExaminer[] = {
        "E what did you do?",
        "E tell me more about that~",
        "E <oh> really?",
        "E that sounds like fun.",
    };
    std::mt19937 rng(42);
    std::string text = "$ Child, Examiner\n+ Name: Sam\n+ DOB: 05-12-2018\n+ DOE: 06-01-2023\n"
                       "+ CA: 5;0\n- 0:00\n";
    int minute = 0;
    while (text.size() < bytes) {
        for (int i = 0; i < 20; ++i) {
            text += kExaminer[rng() % std::size(kExaminer)];
            text += '\n';
            text += kChild[rng() % std::size(kChild)];
            text += '\n';
        }
        text += ": 0:02\n";
        text += "- " + std::to_string(++minute) + ":00\n";
    }
    return text;
}

void BM_CheckTranscript(benchmark::State& state) {
    std::string text = generateTranscript(static_cast<size_t>(state.range(0)) << 20);
    tavi::LoadedTranscript t = tavi::decodeTranscript(text);
    for (auto _ : state) {
        tavi::CheckResult r = tavi::checkTranscript(t.lines);
        benchmark::DoNotOptimize(r.problems.size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void BM_SegmentTranscript(benchmark::State& state) {
    std::string text = generateTranscript(static_cast<size_t>(state.range(0)) << 20);
    tavi::LoadedTranscript t = tavi::decodeTranscript(text);
    for (auto _ : state) {
        tavi::SegmentedTranscript s = tavi::segmentTranscript(t.lines);
        benchmark::DoNotOptimize(s.utterances.size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

// Reading from bytes to lines as well: the whole path of `tavi check`.
void BM_ReadAndCheck(benchmark::State& state) {
    std::string text = generateTranscript(static_cast<size_t>(state.range(0)) << 20);
    for (auto _ : state) {
        tavi::LoadedTranscript t = tavi::decodeTranscript(text);
        tavi::CheckResult r = tavi::checkTranscript(t.lines);
        benchmark::DoNotOptimize(r.problems.size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

// One utterance line of N "(um) go" groups, checked with its words kept (as
// the analysis does): the time per group must not grow with N.
void BM_SegmentLongMazeLine(benchmark::State& state) {
    std::string text = "$ Child, Examiner\nC";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += " (um) go";
    text += ".\n";
    tavi::LoadedTranscript t = tavi::decodeTranscript(text);
    tavi::CheckOptions options;
    options.keepSegmentation = true;
    for (auto _ : state) {
        tavi::CheckResult r = tavi::checkTranscript(t.lines, options);
        benchmark::DoNotOptimize(r.segmented.utterances.size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

} // namespace

BENCHMARK(BM_CheckTranscript)->Arg(4)->Arg(16)->Arg(64)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SegmentTranscript)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadAndCheck)->Arg(16)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SegmentLongMazeLine)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
