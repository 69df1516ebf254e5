// Scoring templates: the shipped files read without faults, the composite
// rules, and the checker's warnings on scored "+" lines.
#include <gtest/gtest.h>

#include <algorithm>

#include "check_helper.h"
#include "transcript/scoring_template.h"

namespace tavi {
namespace {

const std::string kTemplates = std::string(TAVI_SOURCE_DIR) + "/data/templates/";

TEST(ScoringTemplates, ShippedFilesReadWithoutFaultsInMenuOrder) {
    std::vector<std::string> faults;
    TemplateSet set = loadTemplateFolder(kTemplates, &faults);
    EXPECT_TRUE(faults.empty()) << faults.front();
    std::vector<std::string> keys;
    for (const ScoringTemplate& t : set.all())
        keys.push_back(t.key);
    EXPECT_EQ(keys, (std::vector<std::string>{"NSS", "ESS", "PSS", "CQ", "FCB", "ONQ", "ONC"}));
    const ScoringTemplate* nss = set.find("NSS");
    ASSERT_NE(nss, nullptr);
    EXPECT_EQ(nss->components.size(), 7u);
    EXPECT_EQ(nss->maxComposite(), 35);
    EXPECT_EQ(nss->keyword(nss->components[1]), "NSS Character Development");
    EXPECT_EQ(set.find("CQ")->variable, "CQ Total");
    EXPECT_EQ(set.find("CQ")->maxComposite(), 10);
    // Every component has a variable of its own across all templates.
    std::vector<std::string> variables;
    for (const ScoringTemplate& t : set.all())
        for (const TemplateComponent& c : t.components) {
            EXPECT_FALSE(c.description.empty()) << c.variable;
            EXPECT_LT(c.minScore, c.maxScore) << c.variable;
            variables.push_back(c.variable);
        }
    std::ranges::sort(variables);
    EXPECT_EQ(std::ranges::adjacent_find(variables), variables.end());
}

TEST(ScoringTemplates, FileFaultsAreReportedWithTheirLines) {
    ParsedTemplate p = parseScoringTemplate("NAME Odd\nCOMPOSITE MEAN\nCOMPONENT A\nSCORE x bad\n"
                                            "COMPONENT B\nSCORE 2 two\nSCORE 0 none\nWHAT\n");
    ASSERT_EQ(p.faults.size(), 5u);
    EXPECT_EQ(p.faults[0].line, 2); // composite rule
    EXPECT_EQ(p.faults[1].line, 4); // score not a number
    EXPECT_EQ(p.faults[2].line, 8); // unknown line
    EXPECT_EQ(p.faults[3].message, "the template has no KEY line");
    EXPECT_EQ(p.faults[4].message, "component A has no SCORE lines");
    EXPECT_EQ(p.scoring.components[1].maxScore, 2);
    EXPECT_EQ(p.scoring.components[1].levels.front().meaning, "two"); // highest first
}

ScoringTemplate threeQuestions() {
    return parseScoringTemplate("KEY CQ\nVARIABLE CQ Total\nCOMPOSITE CORRECT\n"
                                "COMPONENT Q1\nSCORE 1 right\nSCORE 0 wrong\n"
                                "COMPONENT Q2\nSCORE 2 right\nSCORE 1 half\nSCORE 0 wrong\n"
                                "COMPONENT Q3\nSCORE 1 right\nSCORE 0 wrong\n")
        .scoring;
}

TEST(ScoringTemplates, CompositesFollowTheRuleOverScoredComponents) {
    ScoringTemplate cq = threeQuestions();
    std::vector<HeaderLine> headers{{"cq q1", "1", 2}, {"CQ Q2", "1", 3}, {"CQ Q3", "?", 4}};
    TemplateScores s = readTemplateScores(cq, headers);
    EXPECT_TRUE(s.present);
    EXPECT_EQ(s.scored(), 2);
    EXPECT_EQ(s.composite(), 1); // Q2 was half right: not counted as correct
    cq.rule = CompositeRule::Sum;
    EXPECT_EQ(readTemplateScores(cq, headers).composite(), 2);
    EXPECT_FALSE(readTemplateScores(cq, {{"Name", "Nora", 2}}).present);
}

TEST(ScoringTemplates, CheckerWarnsAboutUnscoredOutOfRangeAndMissingLines) {
    CheckOptions options;
    options.templates = std::make_shared<const TemplateSet>(std::vector{threeQuestions()});
    EXPECT_EQ(test::listingAfterSpeakers("+ CQ Q1: 3\n+ CQ Q2:\n+ Name: Nora\nC hi.\n", options),
              (test::Lines{"Warning #3 on entry 2: missing + CQ Q3: header line.",
                           "Warning #9 on entry 2: + CQ Q1: score (3) is not a whole number from "
                           "0 to 1.",
                           "Warning #10 on entry 3: + CQ Q2: header line has no score."}));
    EXPECT_EQ(test::listingAfterSpeakers("+ CQ Q1: 1\n+ CQ Q2: two\n+ CQ Q3: 0\nC hi.\n", options),
              (test::Lines{"Warning #9 on entry 3: + CQ Q2: score (two) is not a whole number "
                           "from 0 to 2."}));
    // A transcript without the template's lines is not asked for them.
    EXPECT_TRUE(test::listingAfterSpeakers("+ Name: Nora\nC hi.\n", options).empty());
}

} // namespace
} // namespace tavi
