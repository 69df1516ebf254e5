// The whole path of one large transcript, as `tavi measures` runs it: the
// file is read, checked and segmented, then every measure is computed. Prints
// the processor time of each step, MB/s and the peak memory of the process (getrusage)
// beside the transcript's size. One path per process, so the peak belongs to
// it alone.
//
//   bench_pipeline [MB] [lines|text]    default: 100 MB, text
//     lines: the file read into line records, checked line by line
//     text:  the file's text handed to the check as one text (no line records), as
//            tavi measures does
//   bench_pipeline --write FILE [MB]    only writes the generated transcript
//
// Run from the source tree (or set TAVI_DATA_GROUP) to use the real word
// lists and dictionary.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

#include "analysis/gc_dictionary.h"
#include "analysis/measures.h"
#include "analysis/word_lists.h"
#include "base/file_io.h"
#include "base/prompter.h"
#include "transcript/checker.h"
#include "transcript/transcript_file.h"

#include "bench_support.h"

namespace {

using namespace tavi;
using namespace tavi::bench;
namespace fs = std::filesystem;

// Processor time of the process: on a shared machine it is steadier than
// the time on the wall, and it is what one core spends.
double cpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

} // namespace

int main(int argc, char** argv) {
    if (argc >= 3 && std::string_view(argv[1]) == "--write") {
        size_t mb = argc >= 4 ? static_cast<size_t>(std::atol(argv[3])) : 100;
        std::ofstream(argv[2], std::ios::binary) << makeTranscript(mb << 20);
        return 0;
    }
    size_t mb = argc >= 2 ? static_cast<size_t>(std::atol(argv[1])) : 100;
    bool lines = argc >= 3 && std::string_view(argv[2]) == "lines";

    GcDictionary dictionary;
    StandardWordLists lists;
    {
        SilentPrompter p;
        std::string folder = dataFolder(), text;
        if (!folder.empty())
            dictionary.loadFile(folder + "GC/GCDictionaryFile.txt", p);
        if (!folder.empty() && readFile(folder + "TaviSWL.txt", text))
            lists = StandardWordLists::parse(text);
    }
    fs::path file =
        fs::temp_directory_path() / ("tavi_bench_pipeline_" + std::to_string(mb) + ".tvi");
    { std::ofstream(file, std::ios::binary) << makeTranscript(mb << 20); }
    const double size = static_cast<double>(fs::file_size(file)) / (1 << 20);
    const double before = peakMegabytes();

    double start = cpuSeconds();
    // The text path reads the file as one text, as analyseFile does; the
    // line path builds line records as well.
    LoadedTranscript loaded;
    if (lines)
        loaded = loadTranscript(file);
    else
        readTranscriptText(file, loaded.text);
    const double load = cpuSeconds() - start;
    CheckOptions checkOptions;
    checkOptions.keepSegmentation = true;
    start = cpuSeconds();
    // The text path hands the text to the segmentation, as analyseFile does.
    CheckResult check = lines ? checkTranscript(loaded.lines, checkOptions)
                              : checkOwnedText(std::move(loaded.text), checkOptions);
    const double checked = cpuSeconds() - start;
    const double peakChecked = peakMegabytes();
    MeasureOptions options;
    options.dictionary = &dictionary;
    options.wordLists = &lists;
    start = cpuSeconds();
    MeasureResult result = computeMeasures(check.segmented, options);
    const double measured = cpuSeconds() - start;
    const double peak = peakMegabytes();
    fs::remove(file);

    std::printf("transcript            %8.1f MB (%zu utterances, %s path)\n", size,
                check.segmented.utterances.size(), lines ? "line records" : "one text");
    std::printf("read                  %8.2f s  %8.1f MB/s\n", load, size / load);
    std::printf("check and segment     %8.2f s  %8.1f MB/s\n", checked, size / checked);
    std::printf("measures              %8.2f s  %8.1f MB/s\n", measured, size / measured);
    std::printf("whole path            %8.2f s  %8.1f MB/s\n", load + checked + measured,
                size / (load + checked + measured));
    std::printf("peak RSS              %8.1f MB  (%.1f x the transcript; %.1f MB before reading, "
                "%.1f x without it)\n",
                peak, peak / size, before, (peak - before) / size);
    const SegmentedTranscript& st = check.segmented;
    std::printf("after checking        %8.1f MB  (segmented: store %.1f MB, utterances %.1f MB, "
                "entries %.1f MB)\n",
                peakChecked, static_cast<double>(st.store->bytes()) / (1 << 20),
                static_cast<double>(st.utterances.capacity() * sizeof(Utterance)) / (1 << 20),
                static_cast<double>(st.entries.capacity() * sizeof(Entry)) / (1 << 20));
    std::printf("MLU (speaker 1)       %s\n",
                result.speakers[0].formatted(MeasureId::MLUw).c_str());
    return 0;
}
