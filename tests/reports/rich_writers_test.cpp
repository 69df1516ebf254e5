// RTF and HTML renderings of a report: read back, they hold the same texts as
// the plain text, with headings bold, tables as rows, and special characters
// escaped so word processors and the report view show them.
#include <gtest/gtest.h>

#include "base/text.h"
#include "reports/html_writer.h"
#include "reports/rtf_writer.h"

namespace tavi {
namespace {

Report sampleReport() {
    Report report;
    report.title = "Résumé {of} C:\\talk";
    report.header.push_back({"", "", "", "Story.tvi"});
    report.header.push_back({"", "Speaker", ":  ", "Child"});
    ReportSection section{"SEMANTICS", {}};
    section.items.push_back(LabelledLine{"# ", "MLU in Words", ":  ", "4.44"});
    section.items.push_back(LabelledLine{"  ", "Words & <Mazes>", ":  ", "   ---"});
    ReportTable table;
    table.headings = {"Number", "Percent"};
    table.rows.push_back({"Statements (.)", {"3", "100%"}});
    section.items.push_back(table);
    report.sections.push_back(section);
    report.footnotes.push_back("# Calculations based on current analysis set");
    return report;
}

// A small RTF reader: the visible text, one line per paragraph, cells
// separated by " | ". Fails the test on unbalanced groups.
std::string rtfVisibleText(const std::string& rtf) {
    std::string text;
    int depth = 0;
    std::vector<bool> skipStack{false};
    for (size_t i = 0; i < rtf.size(); ++i) {
        const char c = rtf[i];
        if (c == '{') {
            ++depth;
            skipStack.push_back(skipStack.back());
        } else if (c == '}') {
            --depth;
            skipStack.pop_back();
            EXPECT_GE(depth, 0);
        } else if (c == '\\') {
            const char next = rtf[i + 1];
            if (next == '\\' || next == '{' || next == '}') {
                if (!skipStack.back())
                    text += next;
                ++i;
                continue;
            }
            size_t end = i + 1;
            while (end < rtf.size() && std::isalpha(static_cast<unsigned char>(rtf[end])))
                ++end;
            std::string word = rtf.substr(i + 1, end - i - 1);
            size_t numEnd = end;
            if (numEnd < rtf.size() && rtf[numEnd] == '-')
                ++numEnd;
            while (numEnd < rtf.size() && std::isdigit(static_cast<unsigned char>(rtf[numEnd])))
                ++numEnd;
            const std::string number = rtf.substr(end, numEnd - end);
            if (numEnd < rtf.size() && rtf[numEnd] == ' ')
                ++numEnd;
            i = numEnd - 1;
            if (word == "fonttbl" || word == "info")
                skipStack.back() = true;
            else if (skipStack.back())
                continue;
            else if (word == "par" || word == "row")
                text += "\n";
            else if (word == "cell")
                text += " | ";
            else if (word == "u") {
                appendUtf8(text,
                           static_cast<char32_t>(static_cast<std::uint16_t>(std::stoi(number))));
                ++i; // the "?" stand-in
            }
        } else if (c != '\n' && !skipStack.back()) {
            text += c;
        }
    }
    EXPECT_EQ(depth, 0);
    return text;
}

TEST(RtfWriter, ReadsBackAsTheReportsTextsWithRowsAndEscapes) {
    const std::string rtf = reportToRtf(sampleReport());
    EXPECT_EQ(rtf.rfind("{\\rtf1\\ansi", 0), 0u);
    EXPECT_NE(rtf.find("\\b\\fs32"), std::string::npos) << "bold large title";
    EXPECT_NE(rtf.find("\\trowd"), std::string::npos) << "lines and tables are table rows";
    EXPECT_EQ(rtfVisibleText(rtf), "Résumé {of} C:\\talk\n"
                                   "Story.tvi\n"
                                   "Speaker:  Child\n"
                                   "SEMANTICS\n"
                                   "# MLU in Words | 4.44 | \n"
                                   "  Words & <Mazes> |    --- | \n"
                                   " | Number | Percent | \n"
                                   "Statements (.) | 3 | 100% | \n"
                                   "# Calculations based on current analysis set\n");
}

TEST(RtfWriter, EscapesNonAsciiAsSignedUtf16Units) {
    EXPECT_EQ(rtfEscape("é"), "\\u233?");
    EXPECT_EQ(rtfEscape("\xEF\xBC\x9F"), "\\u-225?"); // U+FF1F above 0x7FFF
    EXPECT_EQ(rtfEscape("😀"), "\\u-10179?\\u-8704?"); // a surrogate pair
    EXPECT_EQ(rtfEscape("a\\b{c}"), "a\\\\b\\{c\\}");
}

TEST(HtmlWriter, EscapesMarkupKeepsIndentationAndBuildsTables) {
    const std::string html = reportToHtml(sampleReport());
    EXPECT_NE(html.find("<h1 align=\"center\">Résumé {of} C:\\talk</h1>"), std::string::npos);
    EXPECT_NE(html.find("<h2>SEMANTICS</h2>"), std::string::npos);
    EXPECT_NE(html.find("<td align=\"left\">&nbsp;&nbsp;Words &amp; &lt;Mazes&gt;:&nbsp;&nbsp;</td>"
                        "<td align=\"right\">&nbsp;&nbsp;&nbsp;---</td>"),
              std::string::npos);
    EXPECT_NE(html.find("<th align=\"right\">Percent</th>"), std::string::npos);
    EXPECT_NE(html.find("<p><b>Speaker:</b>&nbsp;&nbsp;Child</p>"), std::string::npos);
    EXPECT_NE(html.find("<small># Calculations based on current analysis set</small>"),
              std::string::npos);
}

} // namespace
} // namespace tavi
