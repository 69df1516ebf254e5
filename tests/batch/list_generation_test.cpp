// List generation over transcripts the tests write: which words, endings and
// codes are read (speaker, analysis set, mazes, codes), how they are counted
// across transcripts, the settings lines, the outputs and `tavi lists`.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_io.h"
#include "base/progress.h"
#include "batch/list_generation.h"
#include "settings/settings.h"
#include "support/tavi_process.h"

namespace tavi {

void PrintTo(const ListEntry& e, std::ostream* os) {
    *os << e.item << " " << e.total << "/" << e.transcripts;
}

namespace {

namespace fs = std::filesystem;

const char* kPark = "$ Child, Examiner\n"
                    "C I like the dog/s.\n"
                    "C (um the) the dog/s run/ed [EW:ran] home [EU].\n"
                    "E do you like cat/s?\n"
                    "C I XX.\n";
const char* kZoo = "$ Child, Examiner\n"
                   "C my Dog jump/ed.\n"
                   "E the lion/s sleep/ing.\n";

struct Folder {
    fs::path dir;
    explicit Folder(const char* name) : dir(fs::temp_directory_path() / name) {
        fs::remove_all(dir);
        fs::create_directories(dir / "settings");
        writeFileAtomic(dir / "park.tvi", kPark);
        writeFileAtomic(dir / "zoo.tvi", kZoo);
        writeFileAtomic(dir / "broken.tvi", "$ Child, Examiner\nC no end\n");
    }
    ~Folder() { fs::remove_all(dir); }
    std::vector<fs::path> files() const { return {dir / "park.tvi", dir / "zoo.tvi"}; }
};

struct Lister {
    AnalysisContext context = analysisContext(Settings{}, nullptr);
    NoProgress progress;
    GeneratedList operator()(ListKind kind, const ListOptions& options,
                             const std::vector<fs::path>& files, int speaker = 0) {
        return generateList(kind, options, files, context, speaker, false, progress);
    }
};

std::vector<std::string> items(const GeneratedList& list) {
    std::vector<std::string> out;
    for (const ListEntry& e : list.entries)
        out.push_back(e.item);
    return out;
}

TEST(ListGeneration, WordsOfTheSpeakerWithTotalsAndTranscripts) {
    Folder f("tavi_lists_words");
    Lister run;
    GeneratedList words = run(ListKind::Words, {}, f.files());
    EXPECT_EQ(words.transcripts, 2);
    // Roots in lower case; the maze words, the examiner's words and the
    // utterance the analysis set leaves out ("C I XX.") are not read.
    EXPECT_EQ(words.entries, (std::vector<ListEntry>{{"dog", 3, 2},
                                                     {"home", 1, 1},
                                                     {"i", 1, 1},
                                                     {"jump", 1, 1},
                                                     {"like", 1, 1},
                                                     {"my", 1, 1},
                                                     {"run", 1, 1},
                                                     {"the", 2, 1}}));
    ListOptions mazes;
    mazes.area = WordArea::Mazes;
    EXPECT_EQ(items(run(ListKind::Words, mazes, f.files())),
              (std::vector<std::string>{"the", "um"}));
    ListOptions both;
    both.bothSpeakers = true;
    both.countFirst = true;
    GeneratedList all = run(ListKind::Words, both, f.files());
    EXPECT_EQ(all.entries.front(), (ListEntry{"dog", 3, 2}));
    EXPECT_EQ(all.entries[1], (ListEntry{"the", 3, 2}));
    EXPECT_NE(std::find(items(all).begin(), items(all).end(), "lion"), items(all).end());
    // Every utterance, also the partly unintelligible one the analysis set leaves out.
    ListOptions total;
    total.analysisSetOnly = false;
    EXPECT_EQ(run(ListKind::Words, total, f.files()).entries[2], (ListEntry{"i", 2, 1}));
    // The 2nd speaker alone.
    EXPECT_EQ(items(run(ListKind::Words, {}, {f.dir / "zoo.tvi"}, 1)),
              (std::vector<std::string>{"lion", "sleep", "the"}));
}

TEST(ListGeneration, EndingsCodesAndCodeChoices) {
    Folder f("tavi_lists_codes");
    Lister run;
    EXPECT_EQ(run(ListKind::BoundMorphemes, {}, f.files()).entries,
              (std::vector<ListEntry>{{"/ed", 2, 2}, {"/s", 2, 1}}));
    EXPECT_EQ(run(ListKind::Codes, {}, f.files()).entries,
              (std::vector<ListEntry>{{"[EU]", 1, 1}, {"[EW:ran]", 1, 1}}));
    ListOptions onlyErrors;
    onlyErrors.includeCodes = "[EW]";
    EXPECT_EQ(items(run(ListKind::Codes, onlyErrors, f.files())),
              (std::vector<std::string>{"[EW:ran]"}));
    // Words with a code chosen, and words without.
    EXPECT_EQ(items(run(ListKind::Words, onlyErrors, f.files())),
              (std::vector<std::string>{"run"}));
    ListOptions noErrors;
    noErrors.excludeCodes = "EW";
    auto rest = items(run(ListKind::Words, noErrors, f.files()));
    EXPECT_EQ(std::find(rest.begin(), rest.end(), "run"), rest.end());
    EXPECT_EQ(rest.size(), 7u);
}

TEST(ListGeneration, TranscriptsLeftOutAreNamed) {
    Folder f("tavi_lists_left_out");
    Lister run;
    GeneratedList list =
        run(ListKind::Words, {}, {f.dir / "broken.tvi", f.dir / "none.tvi", f.dir / "zoo.tvi"});
    EXPECT_EQ(list.transcripts, 1);
    EXPECT_EQ(list.messages,
              (std::vector<std::string>{
                  (f.dir / "broken.tvi").string() + " contains errors - not included",
                  (f.dir / "none.tvi").string() + " could not be opened - not included"}));
}

TEST(ListGeneration, SettingsLinesAndOutputs) {
    ListOptions options;
    options.bothSpeakers = true;
    options.analysisSetOnly = false;
    options.area = WordArea::MainBodyAndMazes;
    options.percentTranscripts = true;
    options.countFirst = true;
    options.includeCodes = "[EW] [EO]";
    std::vector<std::string> lines = listOptionLines(ListKind::Codes, options);
    EXPECT_EQ(lines.front(), "GENCODELIST EITHER_YES");
    std::vector<KeywordLine> parsed;
    for (const std::string& line : lines)
        parsed.push_back(parseKeywordLine(line));
    EXPECT_EQ(listOptionsFromLines(parsed), options);
    EXPECT_EQ(listOptionsFromLines({}), ListOptions{});

    GeneratedList list;
    list.kind = ListKind::Words;
    list.transcripts = 4;
    list.entries = {{"dog", 5, 3}, {"cat", 1, 1}};
    EXPECT_EQ(listFileText(list), "dog\ncat\n");
    EXPECT_EQ(listTableText(list, options),
              "Word\tTotal\tTranscripts\t% Transcripts\ndog\t5\t3\t75.0\ncat\t1\t1\t25.0\n"
              "4 transcripts\n");
    list.kind = ListKind::Codes;
    list.entries = {{"[EW:ran]", 1, 1}, {"[EU]", 1, 1}};
    EXPECT_EQ(codeListText(list), "[EW:ran] [EU]");
}

TEST(ListGeneration, TaviLists) {
    Folder f("tavi_lists_cli");
    std::string files =
        "'" + (f.dir / "park.tvi").string() + "' '" + (f.dir / "zoo.tvi").string() + "'";
    test::TaviRun words = test::runTavi(f.dir / "settings", "lists words " + files);
    EXPECT_EQ(words.status, 0) << words.err;
    EXPECT_EQ(words.out, "dog\nhome\ni\njump\nlike\nmy\nrun\nthe\n");

    fs::path lst = f.dir / "codes.LST";
    test::TaviRun codes =
        test::runTavi(f.dir / "settings", "lists codes -o '" + lst.string() + "' " + files);
    EXPECT_EQ(codes.status, 0) << codes.err;
    EXPECT_EQ(codes.out, "");
    std::string written;
    ASSERT_TRUE(readFile(lst, written));
    EXPECT_EQ(written, "[EU]\n[EW:ran]\n");

    test::TaviRun table = test::runTavi(f.dir / "settings",
                                        "lists morphemes --table --by-count --area both " + files);
    EXPECT_EQ(table.out, "Bound Morpheme\tTotal\tTranscripts\n/ed\t2\t2\n/s\t2\t1\n"
                         "2 transcripts\n");

    test::TaviRun broken = test::runTavi(
        f.dir / "settings", "lists words '" + (f.dir / "broken.tvi").string() + "' " + files);
    EXPECT_EQ(broken.status, 1);
    EXPECT_NE(broken.err.find("tavi lists: " + (f.dir / "broken.tvi").string() +
                              " contains errors - not included"),
              std::string::npos)
        << broken.err;
    EXPECT_EQ(test::runTavi(f.dir / "settings", "lists nouns " + files).status, 2);
    EXPECT_EQ(test::runTavi(f.dir / "settings", "lists words --area top " + files).status, 2);
}

} // namespace
} // namespace tavi
