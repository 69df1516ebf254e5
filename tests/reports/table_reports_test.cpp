// The Analyze menu's lists and tables built from a real analysis of a
// transcript written here: their totals agree with the measure record (the
// values the Standard Measures Report and the batch columns print), the
// choices change what they show, and every report of the table is written in
// every text format.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "../support/recording_prompter.h"
#include "analysis/grammatical_categories.h"
#include "analysis/word_lists.h"
#include "base/file_io.h"
#include "base/text.h"
#include "reports/grid_writer.h"
#include "reports/html_writer.h"
#include "reports/report_grid.h"
#include "reports/rtf_writer.h"
#include "reports/table_reports.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

const fs::path kData = fs::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data";

constexpr std::string_view kSample = "$ Child, Examiner\n"
                                     "E what do you see?\n"
                                     "C the dog/s run/ing[EW:runned] home.\n"
                                     "E and then?\n"
                                     "C he/'s *is eat/ing the cake/s.\n"
                                     "C (um) I (w*) want the big dog [CS:es].\n"
                                     "E do you like dogs?\n"
                                     "C no [FL] [FL].\n"
                                     "E ok~\n"
                                     "C [EU] she go/ed to the dog+'s park.\n"
                                     "C the dog/s jump/ed and the cat/*s ran.\n"
                                     "C what is that?\n"
                                     "E what is that?\n"
                                     "C what is that?\n"
                                     "C XX.\n";

Settings sampleSettings(bool withWordLists) {
    Settings settings;
    settings.folders.sharedData = kData.string() + "/";
    if (withWordLists) {
        std::string text;
        readFile(kData / "TaviSWL.txt", text);
        for (std::string_view line : splitLines(text))
            settings.standardWordListLines.emplace_back(line);
        settings.standardWordListFound = true;
    }
    return settings;
}

class TableReports : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        test::RecordingPrompter prompter;
        resources_ = std::make_shared<MeasureResources>(
            loadMeasureResources(sampleSettings(true), prompter));
    }
    static void TearDownTestSuite() { resources_.reset(); }

    void analyse(bool withWordLists = true, std::string_view text = kSample, int speaker = 0) {
        settings_ = sampleSettings(withWordLists);
        auto resources = resources_;
        if (!withWordLists) {
            auto without = std::make_shared<MeasureResources>();
            without->dictionary = nullptr;
            resources = without;
        }
        AnalysisRequest request;
        request.speaker = speaker;
        analysis_ = analyseText(text, analysisContext(settings_, resources), request);
        lines_ = splitTranscriptLines(text);
    }
    Report build(std::string_view kind, ReportChoices choices = {}, bool withLines = true) {
        if (!analysis_)
            analyse();
        TranscriptReportRequest request;
        request.kind = kind;
        request.transcriptName = "sample.tvi";
        request.choices = std::move(choices);
        request.lines = withLines ? &lines_ : nullptr;
        return buildTranscriptReport(*analysis_, settings_, request);
    }
    int value(std::string_view id) const {
        const Value* v = analysis_->measures().find(id);
        EXPECT_NE(v, nullptr) << id;
        return v && v->number() ? static_cast<int>(*v->number()) : -1;
    }

    static std::shared_ptr<const MeasureResources> resources_;
    Settings settings_;
    std::optional<TranscriptAnalysis> analysis_;
    TranLines lines_;
};

std::shared_ptr<const MeasureResources> TableReports::resources_;

ReportChoices alphabetical() {
    ReportChoices choices;
    choices.sortAlphabetically = true;
    return choices;
}

ReportChoices withMazes() {
    ReportChoices choices;
    choices.includeMazes = true;
    return choices;
}

ReportChoices lists(std::vector<std::string> keys) {
    ReportChoices choices;
    choices.utteranceLists = std::move(keys);
    return choices;
}

// The one table of a report's sections.
ReportTable tableOf(const Report& report) {
    for (const ReportSection& section : report.sections)
        for (const ReportItem& item : section.items)
            if (const auto* table = std::get_if<ReportTable>(&item))
                return *table;
    throw std::logic_error("no table in " + report.title);
}

const ReportTable::Row* rowOf(const ReportTable& table, std::string_view label) {
    auto it = std::ranges::find(table.rows, label, &ReportTable::Row::label);
    return it == table.rows.end() ? nullptr : &*it;
}

int cellNumber(const ReportTable& table, std::string_view label, size_t cell = 0) {
    const ReportTable::Row* row = rowOf(table, label);
    EXPECT_NE(row, nullptr) << label;
    return row ? std::stoi(row->cells.at(cell)) : -1;
}

std::vector<std::string> rowLabels(const ReportTable& table) {
    std::vector<std::string> labels;
    for (const auto& row : table.rows)
        labels.push_back(row.label);
    return labels;
}

// The labelled line of a report by its label, as "label:  value".
std::string lineValue(const Report& report, std::string_view label) {
    for (const ReportSection& section : report.sections)
        for (const ReportItem& item : section.items)
            if (const auto* line = std::get_if<LabelledLine>(&item); line && line->label == label)
                return line->value;
    return "(none)";
}

const ReportSection* sectionStarting(const Report& report, std::string_view title) {
    for (const ReportSection& section : report.sections)
        if (section.title.rfind(title, 0) == 0)
            return &section;
    return nullptr;
}

TEST_F(TableReports, BoundMorphemeAndCliticTotalsEqualTheirMeasures) {
    const ReportTable& morphemes = tableOf(build("bound-morphemes"));
    EXPECT_EQ(cellNumber(morphemes, "Total"), value("BoundMorphs"));
    EXPECT_EQ(static_cast<int>(morphemes.rows.size()) - 1, value("DiffBM"));
    // By frequency: "/s" of dog/s (twice) and cake/s first, with the words;
    // the omitted "/*s" is not counted.
    EXPECT_EQ(morphemes.rows.front().label, "/s");
    EXPECT_EQ(morphemes.rows.front().cells, (std::vector<std::string>{"3", "dogs, cakes"}));
    EXPECT_EQ(cellNumber(morphemes, "/ing"), 2);
    EXPECT_EQ(cellNumber(morphemes, "/'s"), 1);

    const ReportTable& alpha = tableOf(build("bound-morphemes", alphabetical()));
    EXPECT_EQ(rowLabels(alpha), (std::vector<std::string>{"/'s", "/ed", "/ing", "/s", "Total"}));

    const ReportTable& clitics = tableOf(build("bound-clitics"));
    EXPECT_EQ(cellNumber(clitics, "Total"), value("BoundClitics"));
    EXPECT_EQ(clitics.rows.front().cells, (std::vector<std::string>{"1", "dog's"}));
}

TEST_F(TableReports, WordRootTotalIsNtwAndItsRowsNdw) {
    const ReportTable& roots = tableOf(build("word-roots"));
    EXPECT_EQ(cellNumber(roots, "Total"), value("NTW"));
    EXPECT_EQ(static_cast<int>(roots.rows.size()) - 1, value("NDW"));
    EXPECT_EQ(cellNumber(roots, "dog"), 4);
    EXPECT_EQ(rowOf(roots, "um"), nullptr);

    const ReportTable& mazes = tableOf(build("word-roots", withMazes()));
    EXPECT_EQ(cellNumber(mazes, "Total"), value("NTW") + value("MzWds"));
    EXPECT_EQ(cellNumber(mazes, "um"), 1);
    const ReportTable& alpha = tableOf(build("word-roots", alphabetical()));
    EXPECT_TRUE(std::ranges::is_sorted(alpha.rows.begin(), alpha.rows.end() - 1, {},
                                       &ReportTable::Row::label));
}

TEST_F(TableReports, WordListRowsAreTheBatchColumns) {
    const ReportTable& lists = tableOf(build("word-lists"));
    ASSERT_EQ(lists.rows.size(), 2 * kStandardWordLists.size());
    for (size_t k = 0; k < kStandardWordLists.size(); ++k) {
        SCOPED_TRACE(kStandardWordLists[k].label);
        EXPECT_EQ(std::stoi(lists.rows[2 * k].cells[0]), value(kStandardWordLists[k].typesColumn));
        EXPECT_EQ(std::stoi(lists.rows[2 * k + 1].cells[0]),
                  value(kStandardWordLists[k].totalColumn));
    }
    EXPECT_EQ(lists.rows[4].label, "Conjunctions (Type)");
    EXPECT_EQ(lists.rows[5].label, "Conjunctions (Total)");
    EXPECT_EQ(lists.rows[0].label, "Question Words (Types)");
    EXPECT_EQ(cellNumber(lists, "Question Words (Total)"), 2);
    EXPECT_EQ(rowOf(lists, "Question Words (Types)")->cells[1], "what");
    EXPECT_NE(rowOf(lists, "Extra List 1 (Types)"), nullptr);

    // An extra list the user has named shows its name, here and in the
    // Semantics Summary.
    settings_.swlSettingsLines = {"TITLE P_EXTRA1 Feelings"};
    EXPECT_NE(rowOf(tableOf(build("word-lists")), "Feelings (Types)"), nullptr);
    const std::string semantics = reportToText(build("semantics-summary"));
    EXPECT_NE(semantics.find("Feelings"), std::string::npos) << semantics;
    EXPECT_NE(semantics.find("Extra List 2"), std::string::npos);
}

TEST_F(TableReports, CategoryTablesEqualTheMeasureRecord) {
    const ReportTable& table = tableOf(build("grammatical-categories"));
    ASSERT_EQ(table.rows.size(), kGrammaticalCategoryTable.size());
    for (const GrammaticalCategory& c : kGrammaticalCategoryTable) {
        SCOPED_TRACE(c.label);
        EXPECT_EQ(cellNumber(table, c.label, 0), value(c.typesColumn));
        EXPECT_EQ(cellNumber(table, c.label, 1), value(c.totalColumn));
    }
    const Report lists = build("category-lists");
    ASSERT_EQ(lists.sections.size(), kGrammaticalCategoryTable.size());
    const ReportSection* nouns = sectionStarting(lists, "Nouns");
    ASSERT_NE(nouns, nullptr);
    const auto& words = std::get<TextLine>(nouns->items.back()).text;
    EXPECT_NE(words.find("dog"), std::string::npos);
    EXPECT_NE(words.find("cake"), std::string::npos);
}

TEST_F(TableReports, CodeListCountsEqualTheMeasures) {
    struct List {
        const char* kind;
        const char* utterances;
        const char* onWords;
        const char* onUtterance;
    };
    for (const List& list :
         {List{"omissions-errors", "UtWErrCode", "ErrCodesWd", "ErrCodesUt"},
          List{"fluency-codes", "UtWFLuencyCode", "FlCodesWd", "FlCodesUt"},
          List{"nonmainstream-codes", "UtWNMFormCode", "NMFormCodesWd", "NMFormCodesUt"},
          List{"code-switch-codes", "UtWCSwitchCode", "CSwitchCodesWd", "CSwitchCodesUt"}}) {
        SCOPED_TRACE(list.kind);
        const Report report = build(list.kind);
        const ReportSection* codes = sectionStarting(report, "CODES");
        ASSERT_NE(codes, nullptr);
        ASSERT_EQ(codes->items.size(), 3u);
        EXPECT_EQ(std::stoi(std::get<LabelledLine>(codes->items[0]).value), value(list.utterances));
        EXPECT_EQ(std::stoi(std::get<LabelledLine>(codes->items[1]).value), value(list.onWords));
        EXPECT_EQ(std::stoi(std::get<LabelledLine>(codes->items[2]).value),
                  value(list.onUtterance));
    }
    const Report errors = build("omissions-errors");
    EXPECT_EQ(std::stoi(lineValue(errors, "Omitted Words")), value("OmitWd"));
    EXPECT_EQ(std::stoi(lineValue(errors, "Omitted Bound Morphemes")), value("OmitBm"));
    EXPECT_EQ(std::stoi(lineValue(errors, "Omitted Bound Clitics")), value("OmitCl"));
    // Each error code with the utterances that carry it, as written.
    const ReportSection* runned = sectionStarting(errors, "[EW:runned] (1)");
    ASSERT_NE(runned, nullptr);
    EXPECT_EQ(std::get<LabelledLine>(runned->items.at(0)).text(),
              "3:  C the dog/s run/ing[EW:runned] home.");
    const Report fluencyReport = build("fluency-codes");
    const ReportSection* fluency = sectionStarting(fluencyReport, "[FL] (2)");
    ASSERT_NE(fluency, nullptr);
    EXPECT_EQ(fluency->items.size(), 1u); // one utterance with two codes
}

TEST_F(TableReports, CodeTablesCountWordAndUtteranceCodesApart) {
    const Report words = build("word-codes");
    EXPECT_EQ(std::stoi(lineValue(words, "Utterances with Word Codes")), value("UttwWdCode"));
    const ReportTable& wordTable = tableOf(words);
    EXPECT_EQ(rowOf(wordTable, "[EW:runned]")->cells, (std::vector<std::string>{"1", "run/ing"}));
    const Report utterances = build("utterance-codes");
    EXPECT_EQ(std::stoi(lineValue(utterances, "Utterances with Utterance Codes")),
              value("UttwUtCode"));
    const ReportTable& uttTable = tableOf(utterances);
    EXPECT_EQ(rowOf(uttTable, "[FL]")->cells, (std::vector<std::string>{"2", "8"}));
    EXPECT_EQ(cellNumber(uttTable, "Total"), 4); // [CS:es], [FL] twice, [EU]
}

TEST_F(TableReports, UtteranceListsShowTheChosenListsWithTheirEntries) {
    const Report all = build("utterance-lists");
    EXPECT_EQ(all.sections.size(), static_cast<size_t>(kUtteranceLists));
    const Report chosen = build("utterance-lists", lists({"pques", "PIMIT"}));
    ASSERT_EQ(chosen.sections.size(), 2u);
    const SpeakerMeasures& m = analysis_->measures();
    EXPECT_EQ(chosen.sections[0].title,
              "Questions (" + std::to_string(m.utteranceLists[17].size()) + ")");
    EXPECT_EQ(chosen.sections[0].items.size(), 2u);
    EXPECT_EQ(std::get<LabelledLine>(chosen.sections[0].items[0]).text(), "12:  C what is that?");
    EXPECT_EQ(chosen.sections[1].title, "Imitations (1)");
    EXPECT_EQ(std::get<LabelledLine>(chosen.sections[1].items[0]).text(), "14:  C what is that?");
    EXPECT_EQ(value("Questions"), 2);
    // An unknown key is said; the known ones are shown.
    const Report typo = build("utterance-lists", lists({"PQUES", "PQUEST"}));
    ASSERT_EQ(typo.sections.size(), 2u);
    EXPECT_EQ(std::get<TextLine>(typo.sections[0].items[0]).text,
              "Unknown utterance lists: PQUEST (the lists are PRIP to PINTR)");
    EXPECT_EQ(typo.sections[1].title, "Questions (2)");
    // Without the transcript's lines the utterance is put back together.
    const Report rebuilt = build("utterance-lists", lists({"PQUES"}), false);
    EXPECT_EQ(std::get<LabelledLine>(rebuilt.sections[0].items[0]).text(), "12:  C what is that?");
    // With the word lists at hand the responses need no note.
    const ReportSection* responses = sectionStarting(all, "Responses to Questions");
    ASSERT_NE(responses, nullptr);
    EXPECT_FALSE(std::holds_alternative<TextLine>(responses->items.front()));
}

TEST_F(TableReports, MissingResourcesAreSaidInTheReports) {
    analyse(false);
    const Report report = build("utterance-lists", lists({"PRIP"}));
    const ReportSection* responses = sectionStarting(report, "Responses");
    ASSERT_NE(responses, nullptr);
    EXPECT_EQ(std::get<TextLine>(responses->items.front()).text,
              "Yes/no responses not determined - list not available.");
    EXPECT_EQ(std::get<TextLine>(build("word-lists").sections[0].items[0]).text,
              "Standard word lists not available.");
    EXPECT_EQ(std::get<TextLine>(build("grammatical-categories").sections[0].items[0]).text,
              "Grammatical categories not determined - dictionary not available.");
}

// The same agreements on the bundled samples, for both speakers.
TEST_F(TableReports, TotalsAgreeWithTheMeasuresOnTheSamples) {
    for (const char* name : {"conversation-age5", "story-age7", "expository-age10"}) {
        std::string text;
        ASSERT_TRUE(readFile(kData / "samples" / (std::string(name) + ".tvi"), text));
        for (int speaker : {0, 1}) {
            SCOPED_TRACE(std::string(name) + " speaker " + std::to_string(speaker + 1));
            analyse(true, text, speaker);
            const ReportTable morphemes = tableOf(build("bound-morphemes"));
            EXPECT_EQ(cellNumber(morphemes, "Total"), value("BoundMorphs"));
            EXPECT_EQ(static_cast<int>(morphemes.rows.size()) - 1, value("DiffBM"));
            EXPECT_EQ(cellNumber(tableOf(build("bound-clitics")), "Total"), value("BoundClitics"));
            const ReportTable roots = tableOf(build("word-roots"));
            EXPECT_EQ(cellNumber(roots, "Total"), value("NTW"));
            EXPECT_EQ(static_cast<int>(roots.rows.size()) - 1, value("NDW"));
            const Report errors = build("omissions-errors");
            EXPECT_EQ(std::stoi(lineValue(errors, "Utterances with Error Codes")),
                      value("UtWErrCode"));
            EXPECT_EQ(std::stoi(lineValue(errors, "Word-level Error Codes")), value("ErrCodesWd"));
            EXPECT_EQ(std::stoi(lineValue(errors, "Omitted Words")), value("OmitWd"));
            EXPECT_EQ(std::stoi(lineValue(build("word-codes"), "Utterances with Word Codes")),
                      value("UttwWdCode"));
            const ReportTable lists = tableOf(build("word-lists"));
            for (size_t k = 0; k < kStandardWordLists.size(); ++k)
                EXPECT_EQ(std::stoi(lists.rows[2 * k + 1].cells[0]),
                          value(kStandardWordLists[k].totalColumn));
        }
    }
}

// Every report of the table, written in every text format: nothing throws,
// the title reaches each, and the grid has the report's rows.
TEST_F(TableReports, EveryReportIsWrittenInEveryTextFormat) {
    for (const ReportDefinition& definition : reportDefinitions()) {
        if (definition.database == DatabaseUse::Required)
            continue;
        SCOPED_TRACE(definition.name);
        const Report report = build(definition.name);
        EXPECT_FALSE(report.title.empty());
        EXPECT_NE(reportToText(report).find(report.title), std::string::npos);
        EXPECT_NE(reportToRtf(report).find("{\\rtf1"), std::string::npos);
        EXPECT_NE(reportToHtml(report).find("</html>"), std::string::npos);
        const Grid grid = reportGrid(report);
        EXPECT_NE(gridFileBytes(grid, ',').find(report.title), std::string::npos);
        EXPECT_NE(gridFileBytes(grid, '\t').find(report.title), std::string::npos);
    }
}

} // namespace
} // namespace tavi
