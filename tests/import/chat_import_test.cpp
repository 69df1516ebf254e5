// The CHAT import, rule by rule: each case is a small CHAT file written here,
// imported and checked; the imported transcript must check without errors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "import/chat_import.h"
#include "transcript/checker.h"

namespace tavi {
namespace {

constexpr std::string_view kHead = "@UTF8\n@Begin\n@Languages:\teng\n"
                                   "@Participants:\tCHI Target_Child, INV Investigator\n"
                                   "@ID:\teng|test|CHI|5;03.10|female|TD||Target_Child|||\n"
                                   "@ID:\teng|test|INV|||||Investigator|||\n";

ChatImport import(std::string_view body, const ChatImportOptions& options = {}) {
    std::string chat(kHead);
    chat += body;
    chat += "@End\n";
    ChatImport result = importChat(chat, options);
    EXPECT_TRUE(result.ok) << result.problem;
    CheckResult check = checkText(result.text);
    EXPECT_EQ(check.errorCount(), 0) << result.text;
    return result;
}

std::vector<std::string> lines(const std::string& text, char first) {
    std::vector<std::string> out;
    size_t pos = 0;
    while (pos < text.size()) {
        size_t end = text.find('\n', pos);
        std::string line = text.substr(pos, end - pos);
        if (!line.empty() && line[0] == first)
            out.push_back(line);
        pos = end == std::string::npos ? text.size() : end + 1;
    }
    return out;
}

// The child's utterance of a one-utterance file, without "C ".
std::string child(std::string_view mainTier, std::string_view tiers = "",
                  const ChatImportOptions& options = {}) {
    std::string body = "*CHI:\t" + std::string(mainTier) + "\n" + std::string(tiers);
    auto found = lines(import(body, options).text, 'C');
    return found.empty() ? "" : found[0].substr(2);
}

TEST(ChatImport, TerminatorsIncludingTrailingOffAndInterruption) {
    EXPECT_EQ(child("I go ."), "I go.");
    EXPECT_EQ(child("I go ?"), "I go?");
    EXPECT_EQ(child("I go !"), "I go!");
    EXPECT_EQ(child("and then +..."), "and then>");
    EXPECT_EQ(child("and then +..?"), "and then>");
    EXPECT_EQ(child("and then +//."), "and then>");
    EXPECT_EQ(child("and then +/."), "and then^");
    EXPECT_EQ(child("and then +/?"), "and then^");
    EXPECT_EQ(child("and he said +\"/."), "and he said.");
    EXPECT_EQ(child("+\" can I play ?"), "can I play?");
    EXPECT_EQ(child("I go"), "I go."); // none given
}

TEST(ChatImport, RetracingsRepetitionsAndFillersBecomeMazes) {
    EXPECT_EQ(child("<I want> [/] I want a cookie ."), "(I want) I want a cookie.");
    EXPECT_EQ(child("the [//] a dog ."), "(the) a dog.");
    EXPECT_EQ(child("<a eating> [//] no a place ."), "(a eating) no a place.");
    EXPECT_EQ(child("&-um I go ."), "(um) I go.");
    EXPECT_EQ(child("I &-uh &+sh she went ."), "I (uh sh*) she went.");
    EXPECT_EQ(child("the &~gaga dog ."), "the (gaga) dog.");
    // A maze word is counted as said, without endings or codes.
    EXPECT_EQ(child("<he goed [: went] [*]> [//] he went ."), "(he goed) he went.");
}

TEST(ChatImport, UnintelligibleAndUntranscribed) {
    EXPECT_EQ(child("xxx ."), "XXX.");
    EXPECT_EQ(child("xxx xxx ."), "XXX.");
    EXPECT_EQ(child("I want xxx ."), "I want X.");
    EXPECT_EQ(child("yyy dog ."), "X dog.");
    EXPECT_EQ(child("www ."), "{untranscribed}.");
    EXPECT_EQ(child("0 ."), "{no speech}.");
}

TEST(ChatImport, OmissionsReplacementsAndErrors) {
    EXPECT_EQ(child("he 0is going ."), "he *is going.");
    // A replacement with an error mark keeps what was said, with the target in the code.
    EXPECT_EQ(child("he goed [: went] [* m:=ed] ."), "he goed[EO:went].");
    EXPECT_EQ(child("the mouses [: mice] [*] ran ."), "the mouses[EW:mice] ran.");
    EXPECT_EQ(child("I wanna [: want to] [*] go ."), "I wanna[EW:want_to] go.");
    // Without an error mark the target is kept: it is what the transcriber counts.
    EXPECT_EQ(child("dis [: this] one ."), "this one.");
    EXPECT_EQ(child("I wanna [: want to] go ."), "I want to go.");
    EXPECT_EQ(child("him [*] go ."), "him[EW] go.");
    EXPECT_EQ(child("he walk [* m:0ed] ."), "he walk/*ed.");
    EXPECT_EQ(child("<him go> [*] ."), "him go[EW].");
}

TEST(ChatImport, EventsPostcodesAndExplanations) {
    EXPECT_EQ(child("&=laughs I go ."), "{laughs} I go.");
    EXPECT_EQ(child("I go &=laughs_loudly ."), "I go {laughs loudly}.");
    EXPECT_EQ(child("there's no more . [+ bch]"), "there/'s no more [bch].");
    EXPECT_EQ(child("that one [= the red ball] ."), "that one {the red ball}.");
    EXPECT_EQ(child("I go [^ high pitched] ."), "I go {high pitched}.");
    EXPECT_EQ(child("I &*INV:yeah go ."), "I {INV: yeah} go.");
    EXPECT_EQ(child("&=nods ."), "{nods}.");
}

TEST(ChatImport, OverlapsPausesAndLinkedWords) {
    EXPECT_EQ(child("do you want <a cookie> [>] ?"), "do you want <a cookie>?");
    EXPECT_EQ(child("<cookie> [<] !"), "<cookie>!");
    EXPECT_EQ(child("I (.) want (..) a (...) cookie ."), "I : want : a : cookie.");
    EXPECT_EQ(child("I (2.5) want (0.2) it ."), "I :3 want :1 it.");
    EXPECT_EQ(child("a_lot of ice+cream ."), "a_ _lot of ice_ _cream.");
    EXPECT_EQ(child("(be)cause gumma@c no::: ."), "because gumma no.");
}

TEST(ChatImport, BoundMorphemesFromTheNewerMorphologyTier) {
    EXPECT_EQ(child("the dogs walked and jumping .",
                    "%mor:\tdet|the-Def-Art noun|dog-Plur verb|walk-Fin-Ind-Past-S3 cconj|and "
                    "verb|jump-Part-Pres-S .\n"),
              "the dog/s walk/ed and jump/ing.");
    EXPECT_EQ(child("he wants cookies .",
                    "%mor:\tpron|he-Prs-Nom-S3 verb|want-Fin-Ind-Pres-S3 noun|cookie-Plur .\n"),
              "he want/3s cookie/s.");
    // Irregular forms stay whole.
    EXPECT_EQ(child("the children went .",
                    "%mor:\tdet|the-Def-Art noun|child-Plur verb|go-Fin-Ind-Past-S3-irr .\n"),
              "the children went.");
    EXPECT_EQ(child("he's trying .",
                    "%mor:\tpron|he-Prs-Nom-S3~aux|be-Fin-Ind-Pres-S3 verb|try-Part-Pres-S .\n"),
              "he/'s try/ing.");
    EXPECT_EQ(child("the dog's bone .", "%mor:\tdet|the-Def-Art noun|dog~part|s noun|bone .\n"),
              "the dog/z bone.");
    EXPECT_EQ(child("I can't and didn't .",
                    "%mor:\tpron|I aux|can~part|not cconj|and aux|do-Fin~part|not .\n"),
              "I can/'t and did/n't.");
    // Retraced words, fillers and pauses have no item; the comma item is left out.
    EXPECT_EQ(child("&-um <the dog> [/] the dogs , yes .",
                    "%mor:\tdet|the noun|dog-Plur cm|cm intj|yes .\n"),
              "(um the dog) the dog/s yes.");
}

TEST(ChatImport, BoundMorphemesFromTheOlderMorphologyTier) {
    EXPECT_EQ(child("play checkers .", "%mor:\tn|play n|checker-PL .\n"), "play checker/s.");
    EXPECT_EQ(child("he walked and went .", "%mor:\tpro|he v|walk-PAST conj|and v|go&PAST .\n"),
              "he walk/ed and went.");
    EXPECT_EQ(child("he goes running .", "%mor:\tpro|he v|go-3S part|run-PRESP .\n"),
              "he go/3s run/ing.");
    EXPECT_EQ(child("Adam's drum .", "%mor:\tn:prop|Adam~poss|s n|drum .\n"), "Adam/z drum.");
    EXPECT_EQ(child("doggie's .", "%mor:\tn|dog-DIM-POSS .\n"), "doggie/z.");
    EXPECT_EQ(child("it's big .", "%mor:\tpro|it~cop|be&3S adj|big .\n"), "it/'s big.");
}

TEST(ChatImport, EndingsFromTheSpellingUseTheDictionary) {
    GcDictionary dictionary(1009);
    for (const char* line :
         {"dog [GC:NOUN]", "bus [GC:NOUN]", "this [GC:DET] [GC:OPRON]", "walk [GC:VERB] [GC:NOUN]",
          "jump [GC:VERB]", "make [GC:VERB]", "morn [GC:NOUN]", "try [GC:VERB]",
          "stop [GC:VERB] [GC:NOUN]", "he [GC:SPRON]"})
        ASSERT_TRUE(dictionary.insert(line));
    ChatImportOptions options;
    options.dictionary = &dictionary;
    EXPECT_EQ(child("this bus dogs walked .", "", options), "this bus dog/s walk/ed.");
    EXPECT_EQ(child("he jumps making tried stopped .", "", options),
              "he jump/3s make/ing try/ed stop/ed.");
    EXPECT_EQ(child("morning thing .", "", options), "morning thing.");
    EXPECT_EQ(child("he's the dog's .", "", options), "he/'s the dog/z.");
    // Without a dictionary only contractions are split.
    EXPECT_EQ(child("he's dogs ."), "he/'s dogs.");
    // A %mor tier that does not line up gives way to the spelling.
    std::string chat = std::string(kHead) + "*CHI:\tthe dogs .\n%mor:\tnoun|dog-Plur .\n@End\n";
    ChatImport r = importChat(chat, options);
    EXPECT_EQ(r.morFallbacks, 1);
    EXPECT_EQ(lines(r.text, 'C').at(0), "C the dog/s.");
}

TEST(ChatImport, HeaderLinesFromIdDatesAndTypes) {
    ChatImportOptions options;
    options.dateFormat.order = DateOrder::DayMonthYear;
    options.dateFormat.separator = '.';
    ChatImport r = import("@Comment:\tBirth of CHI is 16-OCT-1991\n@Date:\t10-MAY-2000\n"
                          "@Types:\tcross, narrative, TD\n*CHI:\thi .\n",
                          options);
    auto h = lines(r.text, '+');
    EXPECT_EQ(h, (std::vector<std::string>{"+ Gender: F", "+ DOB: 16.10.1991", "+ DOE: 10.5.2000",
                                           "+ CA: 8;6", "+ Subgroup: TD", "+ Context: Nar",
                                           "+ Language: English"}));
    // The group from @Types when @ID has none.
    std::string noId = "@Begin\n@Participants:\tCHI Target_Child\n@Types:\tcross, narrative, TD\n"
                       "*CHI:\thi .\n@End\n";
    EXPECT_EQ(lines(importChat(noId, {}).text, '+'),
              (std::vector<std::string>{"+ Subgroup: TD", "+ Context: Nar"}));
    // Without dates the age comes from @ID.
    r = import("*CHI:\thi .\n");
    h = lines(r.text, '+');
    EXPECT_NE(std::find(h.begin(), h.end(), "+ CA: 5;3"), h.end());
    // Everything else is kept as comment lines; story boundaries where they fall.
    r = import("@Situation:\tat home\n*INV:\tgo ahead .\n@G:\tA1\n*CHI:\tonce .\n@Bg:\tplay\n"
               "*CHI:\tdone .\n%com:\tpoints\n@Eg:\tplay\n");
    std::string t = r.text;
    EXPECT_NE(t.find("= @Situation: at home\n"), std::string::npos);
    EXPECT_NE(
        t.find(
            "I go ahead.\n= @G: A1\nC once.\n= @Bg: play\nC done.\n= %com: points\n= @Eg: play\n"),
        std::string::npos)
        << t;
}

TEST(ChatImport, SpeakersTargetMainAdultOthersWithDistinctLetters) {
    std::string chat = "@Begin\n@Participants:\tCHI Target_Child, MOT Mother, URS Ursula_Bellugi "
                       "Investigator, RIC Investigator, COL Colin_Fraser Investigator, "
                       "CAR Carol Investigator, INV Investigator\n"
                       "*CHI:\thi .\n*URS:\thello .\n*MOT:\tyes .\n*MOT:\tno .\n*COL:\tok .\n"
                       "*CAR:\tok .\n*RIC:\tok .\n*INV:\tok .\n@End\n";
    ChatImport r = importChat(chat, {});
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(checkText(r.text).errorCount(), 0) << r.text;
    // "Colin" beside the child's "C" and a second "Investigator" get letters of their own.
    EXPECT_EQ(lines(r.text, '$').at(0),
              "$ Child, Mother, Ursula Investigator O_Colin A_Carol N_Investigator");
    EXPECT_EQ(lines(r.text, 'N').at(0), "N ok.");
    ASSERT_EQ(r.speakers.size(), 7u);
    EXPECT_EQ(r.speakers[1].code, "MOT"); // the most utterances after the child
    EXPECT_EQ(r.speakers[1].group, 1);
    EXPECT_EQ(r.speakers[2].group, 2);
    EXPECT_NE(
        r.text.find("= Imported from CHAT. Speakers: Child = CHI (Target_Child); Mother = MOT"),
        std::string::npos);
    ChatImportOptions target;
    target.target = "INV";
    r = importChat(std::string(kHead) + "*INV:\ta .\n*CHI:\tb .\n@End\n", target);
    EXPECT_EQ(lines(r.text, '$').at(0), "$ Investigator, Child");
    target.target = "FAT";
    r = importChat(std::string(kHead) + "*INV:\ta .\n@End\n", target);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.problem, "no speaker FAT in the file");
}

TEST(ChatImport, TimeBulletsBecomeIncreasingTimingLines) {
    ChatImport r = import("*INV:\tgo . \x15"
                          "1000_2500\x15\n*CHI:\tonce . \x15"
                          "65200_66000\x15\n"
                          "*CHI:\tthen . \x15"
                          "64000_64300\x15\n*CHI:\tend .\n");
    EXPECT_EQ(lines(r.text, '-'),
              (std::vector<std::string>{"- 0:00", "- 0:01", "- 1:05", "- 1:06"}));
    ASSERT_FALSE(r.dropped.empty());
    EXPECT_EQ(droppedSummary(r), "dropped 1 time bullets that do not move forward");
}

TEST(ChatImport, WhatIsDroppedIsCounted) {
    ChatImport r = import("*CHI:\tI [!] go , home@c ++ now [?] . \n%gra:\t1|2|X\n%wor:\tI\n"
                          "*CHI:\tno:: .\n%gra:\t1|1|ROOT\n");
    EXPECT_EQ(
        droppedSummary(r),
        "dropped 2 %gra tier lines, 1 %wor tier lines, 1 utterance linkers (+\" +, ++ +< +^), "
        "1 separators (, ; and tag marks), 2 stress and best-guess marks ([!] [!!] [?]), "
        "1 form markers (@c, @l, @s ...), 1 symbols inside words (: ^ and segment repetitions)");
    EXPECT_EQ(r.droppedTotal(), 9);
    EXPECT_FALSE(importChat("@Begin\n@End\n", {}).ok);
}

} // namespace
} // namespace tavi
