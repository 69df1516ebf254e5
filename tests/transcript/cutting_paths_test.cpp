// An all-ASCII line is cut straight from its bytes (through the plain-line
// shortcut when it holds plain words only, and passing over the characters
// each step has no rule for), every other line from its decoded code points,
// looking at every character. Lines made up and mutated from the notation's
// characters must give the same problems and the same record either way, and
// checking a line must report what cutting it reports.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "transcript/segmenter.h"

namespace tavi {
namespace {

struct Collected : ProblemSink {
    std::string text;
    void problem(Problem id, std::string message) override {
        text += "problem " + std::to_string(static_cast<int>(id)) + " " + message + "\n";
    }
    void pause(const Pause& p) override {
        text += "pause " + std::to_string(p.timed) + " " + std::to_string(p.seconds) + "\n";
    }
};

void describeWord(std::string& out, const Word& w) {
    out += "word [" + std::string(w.text()) + "] root [" + std::string(w.root()) + "]";
    for (auto kind : {w.prefixes(), w.boundMorphemes(), w.omittedBoundMorphemes(), w.clitics(),
                      w.omittedClitics()}) {
        out += " |";
        for (std::string_view piece : kind)
            out += " " + std::string(piece);
    }
    out += " id [" + std::string(w.rootIdentification()) + "] flags ";
    for (bool flag :
         {bool(w.omitted), bool(w.omittedBoundMorpheme), bool(w.omittedClitic),
          bool(w.idiosyncratic), bool(w.inMaze), bool(w.inParenthetical), bool(w.inOverlap),
          bool(w.linked), bool(w.unintelligible), bool(w.incomplete)})
        out += flag ? '1' : '0';
    out += w.parts() ? " parted\n" : " plain\n";
}

// Everything the record holds, written out.
std::string describe(const Utterance& u) {
    std::string out = "speaker " + std::to_string(u.speakerId) + " group " +
                      std::to_string(u.speakerGroup) + " line " + std::to_string(u.line) +
                      " terminator " + std::to_string(static_cast<int>(u.terminator)) + " " +
                      std::to_string(u.terminatorChar()) + " intelligibility " +
                      std::to_string(static_cast<int>(u.intelligibility)) + " flags " +
                      std::to_string(u.hasComment) + std::to_string(u.hasQuotation) +
                      std::to_string(u.hasOverlap) + std::to_string(u.hasTerminator) +
                      std::to_string(u.nonverbal) + std::to_string(u.arabicQuestionMark) + "\n";
    for (const Word& w : u.words)
        describeWord(out, w);
    for (const Code& c : u.codes())
        out += "code [" + std::string(c.text) + "] " + std::to_string(c.word) + " " +
               std::to_string(c.precedingWord) + "\n";
    for (const Maze& m : u.mazes()) {
        out += "maze";
        for (int w : m.words)
            out += " " + std::to_string(w);
        out += "\n";
    }
    for (std::string_view remark : u.parentheticals())
        out += "remark [" + std::string(remark) + "]\n";
    for (const Word& w : u.parentheticalWords())
        describeWord(out, w);
    for (const Pause& p : u.pauses())
        out += "pause " + std::to_string(p.timed) + " " + std::to_string(p.seconds) + "\n";
    return out;
}

// Cuts `line` with the problems reported, and checks it, the way given.
std::string cutBy(UtteranceSegmenter& segmenter, const std::string& line, TranscriptStore& store) {
    std::string_view kept = store.keepText(line);
    Collected cut, checked;
    Utterance u;
    segmenter.segment(kept, 3, 1, store, u, &cut);
    segmenter.check(kept, 3, 1, checked);
    EXPECT_EQ(cut.text, checked.text) << line;
    return cut.text + describe(u);
}

std::string cutBy(UtteranceSegmenter& segmenter, const std::string& line) {
    TranscriptStore store;
    return cutBy(segmenter, line, store);
}

// Pieces of the notation, right and wrong, to build lines from.
const std::vector<std::string> kPieces = {"go",          "dog/s",
                                          "ran/*ed",     "he+'s",
                                          "she+*s",      "*the",
                                          "%goed",       "un\\tie",
                                          "x",           "XX",
                                          "xxxx",        "went|go",
                                          "a|b|c",       "ice_",
                                          "_cream",      "_",
                                          "a_b",         "[EW:x]",
                                          "[EU]",        "[E W]",
                                          "[@]",         "{laughs}",
                                          "((hmm, ok))", "((a (b) c))",
                                          "(um)",        "(",
                                          ")",           "((",
                                          "))",          "<",
                                          ">",           "<the>",
                                          ":05",         ":",
                                          "1:30",        "2::3",
                                          ":0",          "\"hi\"",
                                          ",",           ".",
                                          "?",           "!",
                                          "~",           "^",
                                          "=",           "@",
                                          "$",           ";",
                                          "-",           "&",
                                          "#",           "\\",
                                          "/",           "+",
                                          "*",           "%",
                                          "|",           "ba*",
                                          "'s",          "go[EW:x]ing",
                                          "+s",          "dog/",
                                          "*/s",         "%",
                                          "\t",          "  ",
                                          "\x01",        "\x1C",
                                          "\x7F",        "\xC3\xA9t\xC3\xA9",
                                          "\xC2\xBF",    "\xE2\x80\x9Cyes\xE2\x80\x9D",
                                          "\xD8\x9F",    "\xC2\x85"};

// Single characters to mutate lines with.
const std::string kCharacters = "aZ9'x_/+*%|\\[]{}()<>:.!?~^=;-$@&#,\" \t\x01\x7F";

std::string makeLine(std::mt19937& rng) {
    std::string line(1, "CEcx+ ;("[rng() % 8]);
    if (rng() % 10 != 0)
        line += ' ';
    for (int k = 0, n = static_cast<int>(rng() % 10); k < n; ++k) {
        line += kPieces[rng() % kPieces.size()];
        if (rng() % 4 != 0)
            line += ' ';
    }
    if (rng() % 8 != 0)
        line += ".!?~^>"[rng() % 6];
    if (rng() % 8 == 0)
        line += " go.";
    for (int k = 0, n = static_cast<int>(rng() % 4); k < n && !line.empty(); ++k) {
        size_t at = rng() % line.size();
        switch (rng() % 3) {
        case 0:
            line.insert(at, 1, kCharacters[rng() % kCharacters.size()]);
            break;
        case 1:
            line.erase(at, 1);
            break;
        default:
            line[at] = kCharacters[rng() % kCharacters.size()];
            break;
        }
    }
    return line;
}

TEST(CuttingPaths, BytesAndCodePointsAgree) {
    UtteranceSegmenter bytes, codePoints;
    codePoints.setCodePointsOnly(true);
    std::mt19937 rng(11);
    int ascii = 0;
    for (int n = 0; n < 20000; ++n) {
        std::string line = makeLine(rng);
        ascii += std::all_of(line.begin(), line.end(),
                             [](char c) { return static_cast<unsigned char>(c) < 0x80; });
        ASSERT_EQ(cutBy(bytes, line), cutBy(codePoints, line)) << line;
    }
    EXPECT_GT(ascii, 5000); // most lines do take the byte path
}

// The steps pass over bytes eight at a time: every ASCII character, alone or
// next to another, at every place of a long line, must be seen as the
// code-point cut sees it.
TEST(CuttingPaths, EveryCharacterAtEveryPlaceAgrees) {
    UtteranceSegmenter bytes, codePoints;
    codePoints.setCodePointsOnly(true);
    const std::string filler = "C the dog and Yuri went by the big farm at noon";
    std::mt19937 rng(7);
    for (int c = 1; c < 128; ++c) {
        for (size_t at = 1; at < filler.size(); ++at) {
            std::string line = filler;
            line[at] = static_cast<char>(c);
            if (rng() % 2)
                line[1 + rng() % (line.size() - 1)] = kCharacters[rng() % kCharacters.size()];
            line += ".!?"[rng() % 3];
            ASSERT_EQ(cutBy(bytes, line), cutBy(codePoints, line)) << line;
        }
    }
}

// Lines at the edge of the plain-line shortcut: plain words, apostrophes,
// blanks and tabs, other white space after the terminator, and one character
// of the notation or outside ASCII put in now and then.
std::string makeNearPlainLine(std::mt19937& rng) {
    static const std::vector<std::string> words = {"go", "I", "don't", "'s", "'",   "''",
                                                   "a'", "9", "x",     "XX", "dog", "x'x"};
    static const std::vector<std::string> blanks = {" ", "  ", "\t", " \t"};
    static const std::vector<std::string> after = {"", " ", "\t", " \t ", "\v", " \f", "\t\v "};
    static const std::string odd = ",(/)_[]{}<>:*%|\\+&#\"=;-$@.!?~^\x01\x7F\v";
    std::string line(1, "CEx+ ;9'"[rng() % 8]);
    if (rng() % 12 != 0)
        line += blanks[rng() % blanks.size()];
    for (int k = 0, n = static_cast<int>(rng() % 8); k < n; ++k) {
        if (k > 0)
            line += blanks[rng() % blanks.size()];
        line += words[rng() % words.size()];
    }
    if (rng() % 6 != 0)
        line += ".!?~^>"[rng() % 6];
    line += after[rng() % after.size()];
    if (rng() % 3 == 0 && !line.empty()) {
        size_t at = rng() % line.size();
        if (rng() % 5 == 0)
            line.insert(at, "\xC3\xA9");
        else
            line.insert(at, 1, odd[rng() % odd.size()]);
    }
    return line;
}

TEST(CuttingPaths, NearPlainLinesAgree) {
    UtteranceSegmenter bytes, codePoints;
    codePoints.setCodePointsOnly(true);
    std::mt19937 rng(5);
    for (int n = 0; n < 20000; ++n) {
        std::string line = makeNearPlainLine(rng);
        ASSERT_EQ(cutBy(bytes, line), cutBy(codePoints, line)) << line;
    }
}

// A segmenter keeps how it split each word of bytes and rebuilds a word met
// again from that, or within one store takes the record kept the first time.
// Lines that repeat words, right and faulty, cut by one segmenter (into one
// store, the way a transcript's lines share theirs, and now and then into a
// store of their own) must give what a new segmenter gives, faults reported
// each time.
TEST(CuttingPaths, WordsMetAgainAgreeWithFirstCut) {
    static const std::vector<std::string> words = {
        "run/ing", "dog/s", "ran/*ed", "he+'s", "she+*s", "*the",    "%goed", "un\\tie",
        "XX/s",    "x",     "went|go", "a|b|c", "ba*",    "dog/",    "+s",    "*/s",
        "%",       "go",    "a&b",     "#",     "w/s/ed", "a\\b\\c", "*x/s",  "he+s+*ll"};
    UtteranceSegmenter warm;
    TranscriptStore shared;
    std::mt19937 rng(23);
    for (int n = 0; n < 4000; ++n) {
        std::string line = n % 2 ? "C" : "E";
        for (int k = 0, count = 1 + static_cast<int>(rng() % 8); k < count; ++k) {
            line += ' ';
            if (rng() % 9 == 0)
                line += "(um) ";
            line += words[rng() % words.size()];
        }
        line += ".";
        UtteranceSegmenter fresh;
        const std::string first = cutBy(fresh, line);
        ASSERT_EQ(rng() % 5 ? cutBy(warm, line, shared) : cutBy(warm, line), first) << line;
    }
}

// The words of a line without codes or word links are cut in a pass of their
// own; a code set apart at the end of the line sends the same words through
// the general word pass, which must cut them alike.
TEST(CuttingPaths, LoneWordsCutAsByTheGeneralPass) {
    static const std::vector<std::string> words = {
        "go",   "run/ing", "dog/s", "ran/*ed", "*the", "%goed", "x",  "XXX",  "went|go", "ba*",
        "dog/", "+s",      "*/s",   "%",       "a&b",  "(um)",  "<a", "b>",   "((hm))",  ":05",
        ",",    "\"hi\"",  "'s",    "\t",      "=",    "9",     "@",  "w/s+s"};
    auto wordLines = [](const std::string& described) {
        std::string out;
        size_t at = 0;
        while (at < described.size()) {
            size_t end = described.find('\n', at);
            std::string line = described.substr(at, end - at);
            if (line.rfind("word ", 0) == 0 || line.rfind("maze", 0) == 0)
                out += line + "\n";
            at = end == std::string::npos ? described.size() : end + 1;
        }
        return out;
    };
    UtteranceSegmenter segmenter;
    std::mt19937 rng(31);
    for (int n = 0; n < 6000; ++n) {
        std::string body = "C";
        for (int k = 0, count = static_cast<int>(rng() % 9); k < count; ++k)
            body += " " + words[rng() % words.size()];
        // Now and then no terminator: the last word runs to the end of the
        // line, and the code goes first so as not to end the utterance early.
        static const std::vector<std::string> ends = {".", "?", "!", ".", "", " ", "\t"};
        const std::string end = ends[rng() % ends.size()];
        std::string lone = cutBy(segmenter, body + end);
        std::string general =
            cutBy(segmenter, end.size() == 1 && end[0] > ' ' ? body + " [EU]" + end
                                                             : "C [EU]" + body.substr(1) + end);
        ASSERT_EQ(wordLines(lone), wordLines(general)) << body;
    }
}

} // namespace
} // namespace tavi
