// The reference book: chapter order, anchors that the contents, index and
// cross-document links share, headings in code blocks left alone, and the
// index of headings and bold terms.
#include <gtest/gtest.h>

#include "reports/reference_book.h"

namespace tavi {
namespace {

TEST(ReferenceBook, ChaptersFollowTheIndexDocumentThenTheRestByName) {
    const std::string index = "# Docs\n- [B](b.md)\n- [A](a.md#part) and [again](b.md)\n"
                              "- [site](https://example.org/c.md)\n";
    EXPECT_EQ(bookOrder(index, {"z.md", "a.md", "b.md", "index.md", "c.md"}),
              (std::vector<std::string>{"index.md", "b.md", "a.md", "c.md", "z.md"}));
    // Without an index document: by name.
    EXPECT_EQ(bookOrder("", {"b.md", "a.md"}), (std::vector<std::string>{"a.md", "b.md"}));
}

TEST(ReferenceBook, AnchorsAreUniqueAndMadeFromTheVisibleText) {
    EXPECT_EQ(headingSlug("Measures: `NTW` & NDW (words)"), "measures-ntw--ndw-words");
    EXPECT_EQ(headingSlug("?!"), "section");
    AnchorNamer namer;
    EXPECT_EQ(namer.next("Overview"), "overview");
    EXPECT_EQ(namer.next("overview"), "overview-1");
    EXPECT_EQ(namer.next("Overview"), "overview-2");

    AnchorNamer headings;
    const std::vector<BookHeading> found =
        markdownHeadings("# Title #\n"
                         "text # not a heading\n"
                         "```\n# in code\n```\n"
                         "    # indented code\n"
                         "#nospace\n"
                         "### [Linked](x.md) **bold** &amp; more\n",
                         headings);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].text, "Title");
    EXPECT_EQ(found[0].level, 1);
    EXPECT_EQ(found[1].text, "Linked bold & more");
    EXPECT_EQ(found[1].anchor, "linked-bold--more");
}

TEST(ReferenceBook, ContentsIndexAndLinksLeadToTheHeadingsOfTheBook) {
    const std::vector<BookChapter> chapters = {
        {"index.md", "# Start\n\nSee [the measures](measures.md#21-word-counts) and "
                     "[all of it](measures.md).\n\n## Overview\n\nA **Transcript** is typed.\n"},
        {"measures.md", "# Measures\n\n## Overview\n\nThe **NTW:** and **transcript** terms.\n"
                        "```\n**not a term**\n## Not a heading\n```\n"
                        "## 2.1 Word counts\n\n**NDW** counts [roots](#overview); "
                        "see [Start](index.md).\n"
                        "<!-- a note for writers\n   on two lines -->\n"
                        "Kept <!-- dropped --> text.\n"}};
    const ReferenceBook book = buildReferenceBook(chapters, "TAVI Reference Book");

    // Anchors in book order: the title and "Contents" come before the chapters,
    // and the second "Overview" is numbered.
    ASSERT_EQ(book.contents.size(), 5u);
    EXPECT_EQ(book.contents[0].anchor, "start");
    EXPECT_EQ(book.contents[1].anchor, "overview");
    EXPECT_EQ(book.contents[3].anchor, "overview-1");
    EXPECT_EQ(book.contents[4].anchor, "21-word-counts");
    // The anchors the desktop program gives the rendered headings, in order.
    AnchorNamer rendered;
    const std::vector<BookHeading> all = markdownHeadings(book.markdown, rendered);
    ASSERT_GE(all.size(), 7u);
    EXPECT_EQ(all[0].text, "TAVI Reference Book");
    EXPECT_EQ(all[1].text, "Contents");
    EXPECT_EQ(all[2].anchor, "start");
    EXPECT_EQ(all[5].anchor, "overview-1");

    const std::string& md = book.markdown;
    EXPECT_NE(
        md.find("- [1. Start](#start)\n  - [Overview](#overview)\n- [2. Measures](#measures)"),
        std::string::npos);
    // Links between documents and inside one lead into the book.
    EXPECT_NE(md.find("[the measures](#21-word-counts)"), std::string::npos);
    EXPECT_NE(md.find("[all of it](#measures)"), std::string::npos);
    EXPECT_NE(md.find("[roots](#overview-1)"), std::string::npos);
    EXPECT_NE(md.find("[Start](#start)"), std::string::npos);
    // Comments are notes for the writers: left out.
    EXPECT_EQ(md.find("note for writers"), std::string::npos);
    EXPECT_EQ(md.find("two lines"), std::string::npos);
    EXPECT_NE(md.find("see [Start](#start).\nKept  text.\n"), std::string::npos);
    // Code blocks are kept as written.
    EXPECT_NE(md.find("```\n**not a term**\n## Not a heading\n```\n"), std::string::npos);

    // The index: headings and bold terms, without regard to case, each place once.
    std::vector<std::string> terms;
    for (const BookIndexEntry& e : book.index)
        terms.push_back(e.term);
    EXPECT_EQ(terms, (std::vector<std::string>{"Measures", "NDW", "NTW", "Overview", "Start",
                                               "Transcript", "Word counts"}));
    const BookIndexEntry& transcript = book.index[5];
    ASSERT_EQ(transcript.places.size(), 2u);
    EXPECT_EQ(transcript.places[0].section.anchor, "overview");
    EXPECT_EQ(transcript.places[1].chapter, "Measures");
    EXPECT_EQ(transcript.places[1].section.anchor, "overview-1");
    EXPECT_NE(md.find("# Index\n\n## M\n\n- Measures: [Measures](#measures)\n"), std::string::npos);
    // A heading stands in the index without its number, linked by its chapter.
    EXPECT_NE(md.find("- Word counts: [Measures](#21-word-counts)\n"), std::string::npos);
    EXPECT_NE(md.find("- Transcript: [Start \xE2\x80\xBA Overview](#overview); "
                      "[Measures \xE2\x80\xBA Overview](#overview-1)\n"),
              std::string::npos);
}

} // namespace
} // namespace tavi
