// RTF reports opened by a real reader: LibreOffice (headless) converts them
// to text, and that text holds the same words, in the same order, as the
// report's plain text. Also why RTF files carry no byte order mark: the
// reader takes such a file for plain text. Skipped where soffice is absent.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "base/file_io.h"
#include "reports/rtf_writer.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSample = "$ Child, Examiner\n"
                                "- 0:00\n"
                                "E what did you do?\n"
                                "C I (um) went to the park.\n"
                                "C the dog ran[EW:run] fast [EU].\n"
                                "E did you like it?\n"
                                "C yes.\n"
                                "- 1:00\n";

bool haveSoffice() {
    return std::system("command -v soffice >/dev/null 2>&1") == 0;
}

// The words of a text: split at blanks (any Unicode space the reader puts
// between a label and its value included), with colons and a byte order mark
// dropped, as a table's cells lose the colon the text form writes.
std::vector<std::string> words(std::string text) {
    for (const std::string mark : {"\xEF\xBB\xBF", "\xE2\x80\x86", "\xE2\x80\x82", "\xE2\x80\x83",
                                   "\xC2\xA0", "\xE2\x80\x89"})
        for (size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
            text.replace(at, mark.size(), " ");
    std::vector<std::string> out;
    std::string word;
    for (char c : text) {
        if (c == ':')
            continue;
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            if (!word.empty())
                out.push_back(std::move(word));
            word.clear();
        } else {
            word += c;
        }
    }
    if (!word.empty())
        out.push_back(word);
    return out;
}

class RtfReader : public ::testing::Test {
protected:
    void SetUp() override {
        if (!haveSoffice())
            GTEST_SKIP() << "soffice (LibreOffice) is not installed";
        dir_ = fs::temp_directory_path() / ("tavi_rtf_reader_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "out");
    }
    void TearDown() override {
        if (!dir_.empty())
            fs::remove_all(dir_);
    }

    // Converts the files to text in one run of the reader, with a private profile.
    void convert(const std::vector<std::string>& names) {
        std::string command = "cd '" + dir_.string() +
                              "' && soffice --headless -env:UserInstallation=file://" +
                              (dir_ / "profile").string() + " --convert-to txt:Text --outdir out";
        for (const std::string& name : names)
            command += " '" + name + "'";
        command += " >/dev/null 2>&1";
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
    }
    std::string converted(const std::string& stem) {
        std::string text;
        EXPECT_TRUE(readFile(dir_ / "out" / (stem + ".txt"), text)) << stem;
        return text;
    }

    fs::path dir_;
};

TEST_F(RtfReader, ReportsReadBackAsTheirTextAndABomMakesThemPlainText) {
    Settings settings;
    const TranscriptAnalysis analysis = analyseText(kSample, analysisContext(settings, nullptr));
    ASSERT_FALSE(analysis.hasErrors());
    const std::vector<std::string> kinds = {"smr", "syntax-summary", "utterance-distribution",
                                            "code-summary"};
    std::vector<std::string> files;
    std::vector<std::string> texts;
    for (const std::string& kind : kinds) {
        TranscriptReportRequest request;
        request.kind = kind;
        request.transcriptName = "sample.tvi";
        const Report report = buildTranscriptReport(analysis, settings, request);
        ASSERT_EQ(writeFileAtomic(dir_ / (kind + ".rtf"), reportToRtf(report)), WriteStatus::Ok);
        files.push_back(kind + ".rtf");
        texts.push_back(reportToText(report));
        if (kind == "smr") {
            ASSERT_EQ(writeFileAtomic(dir_ / "bom.rtf", "\xEF\xBB\xBF" + reportToRtf(report)),
                      WriteStatus::Ok);
            files.push_back("bom.rtf");
        }
    }
    convert(files);
    for (size_t i = 0; i < kinds.size(); ++i) {
        SCOPED_TRACE(kinds[i]);
        const std::string read = converted(kinds[i]);
        EXPECT_EQ(words(read), words(texts[i])) << read;
    }
    // Preceded by the UTF-8 byte order mark, the file is read as plain text:
    // the reader shows the RTF source instead of the report.
    const std::string bom = converted("bom");
    EXPECT_NE(bom.find("{\\rtf1"), std::string::npos) << bom;
}

} // namespace
} // namespace tavi
