// The reference book: the user documents (Markdown files) put together into
// one document with a table of contents and an alphabetical index, for the
// desktop program to show, print and save as PDF.
//
// Anchors: every heading of the book gets a name made from its text (lower
// case, letters and digits kept, blanks as "-", other marks dropped); a name
// already used gets "-1", "-2" ... in document order. The desktop program
// names the headings of the rendered book with the same AnchorNamer, so the
// contents and index links lead to them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

// The anchor name of a heading's text, before making it unique.
std::string headingSlug(std::string_view text);

class AnchorNamer {
public:
    // The next heading's unique name.
    std::string next(std::string_view headingText);

private:
    std::map<std::string, int, std::less<>> used_;
};

struct BookChapter {
    std::string file;     // the document's file name, e.g. "measures.md"
    std::string markdown; // its text
};

struct BookHeading {
    int level = 1;
    std::string text;   // as shown, without Markdown marks
    std::string anchor; // unique in the book
};

struct BookIndexPlace {
    std::string chapter; // the chapter's title
    BookHeading section; // the heading the term stands under
};

struct BookIndexEntry {
    std::string term;
    std::vector<BookIndexPlace> places; // in book order, each heading once
};

struct ReferenceBook {
    std::string markdown;              // the whole book
    std::vector<BookHeading> contents; // chapter titles (level 1) and their sections (level 2)
    std::vector<BookIndexEntry> index; // sorted without regard to case
};

// The order of the chapters: "index.md" first, then the documents in the
// order "index.md" first links to them, then the rest by file name.
std::vector<std::string> bookOrder(std::string_view indexMarkdown,
                                   const std::vector<std::string>& files);

// The headings of a Markdown text (ATX headings "# ..." outside fenced code),
// with anchors from `namer`.
std::vector<BookHeading> markdownHeadings(std::string_view markdown, AnchorNamer& namer);

// The book: the title, "Contents", every chapter in the given order (links
// between the documents lead into the book), then "Index": every heading and
// every bold term, with links to the headings they stand under.
ReferenceBook buildReferenceBook(const std::vector<BookChapter>& chapters, std::string_view title);

} // namespace tavi
