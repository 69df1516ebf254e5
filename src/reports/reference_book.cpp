// Putting the user documents together into the reference book.
#include "reference_book.h"

#include <algorithm>
#include <set>

namespace tavi {
namespace {

std::string_view trim(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t' || s.front() == '\r'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

std::vector<std::string_view> lines(std::string_view text) {
    std::vector<std::string_view> out;
    size_t start = 0;
    while (start <= text.size()) {
        const size_t end = text.find('\n', start);
        if (end == std::string_view::npos) {
            if (start < text.size())
                out.push_back(text.substr(start));
            break;
        }
        out.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return out;
}

char lowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowerCase(std::string_view s) {
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(), lowerAscii);
    return out;
}

// A line that opens or closes a fenced code block.
bool isFence(std::string_view line) {
    size_t indent = 0;
    while (indent < line.size() && indent < 4 && line[indent] == ' ')
        ++indent;
    if (indent > 3)
        return false;
    line.remove_prefix(indent);
    return line.starts_with("```") || line.starts_with("~~~");
}

// "## Title ##" -> level 2 and "Title"; level 0 when the line is no heading.
std::pair<int, std::string_view> atxHeading(std::string_view line) {
    size_t indent = 0;
    while (indent < line.size() && line[indent] == ' ')
        ++indent;
    if (indent > 3)
        return {0, {}};
    line.remove_prefix(indent);
    int level = 0;
    while (level < static_cast<int>(line.size()) && line[static_cast<size_t>(level)] == '#')
        ++level;
    if (level == 0 || level > 6)
        return {0, {}};
    std::string_view rest = line.substr(static_cast<size_t>(level));
    if (!rest.empty() && rest.front() != ' ' && rest.front() != '\t')
        return {0, {}};
    rest = trim(rest);
    // A closing run of "#" preceded by a blank is not part of the text.
    size_t hashes = rest.size();
    while (hashes > 0 && rest[hashes - 1] == '#')
        --hashes;
    if (hashes == 0)
        rest = {};
    else if (hashes < rest.size() && (rest[hashes - 1] == ' ' || rest[hashes - 1] == '\t'))
        rest = trim(rest.substr(0, hashes));
    return {level, rest};
}

// Inline Markdown as it reads: link targets, code and emphasis marks, escapes
// and the common entities removed.
std::string plainText(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\\' && i + 1 < text.size()) {
            out += text[++i];
        } else if (c == ']' && i + 1 < text.size() && text[i + 1] == '(') {
            const size_t close = text.find(')', i + 2);
            if (close == std::string_view::npos)
                out += c;
            else
                i = close;
        } else if (c == '[' || c == '`' || c == '*') {
            continue;
        } else if (c == '&') {
            static constexpr std::pair<std::string_view, char> kEntities[] = {
                {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
            bool replaced = false;
            for (const auto& [entity, ch] : kEntities) {
                if (text.substr(i).starts_with(entity)) {
                    out += ch;
                    i += entity.size() - 1;
                    replaced = true;
                    break;
                }
            }
            if (!replaced)
                out += c;
        } else {
            out += c;
        }
    }
    return std::string(trim(out));
}

// The text without HTML comments (notes for the documents' writers, not for
// readers), outside fenced code. A line that held only a comment is dropped.
std::string withoutComments(std::string_view markdown) {
    std::string out;
    bool inCode = false;
    bool inComment = false;
    for (std::string_view line : lines(markdown)) {
        if (!inComment && isFence(line)) {
            inCode = !inCode;
        } else if (!inCode) {
            std::string kept;
            size_t pos = 0;
            while (pos <= line.size()) {
                if (inComment) {
                    const size_t end = line.find("-->", pos);
                    if (end == std::string_view::npos) {
                        pos = line.size() + 1;
                        break;
                    }
                    inComment = false;
                    pos = end + 3;
                } else {
                    const size_t start = line.find("<!--", pos);
                    kept.append(line.substr(pos, start == std::string_view::npos ? line.npos
                                                                                 : start - pos));
                    if (start == std::string_view::npos)
                        break;
                    inComment = true;
                    pos = start + 4;
                }
            }
            if (kept.size() != line.size() && trim(kept).empty())
                continue;
            out += kept;
            out += '\n';
            continue;
        }
        out += line;
        out += '\n';
    }
    return out;
}

struct ChapterScan {
    std::string title;
    std::string anchor;
    std::vector<BookHeading> headings;
    std::map<std::string, std::string, std::less<>> localToBook; // the document's own anchors
};

// The text after "](" up to ")": a link target, rewritten when it leads to
// another chapter or into this one.
std::string rewriteLinks(std::string_view text, const ChapterScan& self,
                         const std::map<std::string, const ChapterScan*, std::less<>>& byFile) {
    std::string out;
    size_t pos = 0;
    while (true) {
        const size_t open = text.find("](", pos);
        if (open == std::string_view::npos)
            break;
        const size_t close = text.find(')', open + 2);
        if (close == std::string_view::npos)
            break;
        out.append(text.substr(pos, open + 2 - pos));
        std::string_view target = text.substr(open + 2, close - open - 2);
        const size_t hash = target.find('#');
        std::string_view path = target.substr(0, hash);
        const std::string_view fragment =
            hash == std::string_view::npos ? std::string_view() : target.substr(hash + 1);
        const ChapterScan* chapter = nullptr;
        if (path.empty() && hash != std::string_view::npos) {
            chapter = &self;
        } else if (path.find("://") == std::string_view::npos) {
            const size_t slash = path.rfind('/');
            const std::string_view name =
                slash == std::string_view::npos ? path : path.substr(slash + 1);
            const auto found = byFile.find(name);
            if (found != byFile.end())
                chapter = found->second;
        }
        if (chapter) {
            const auto local = chapter->localToBook.find(fragment);
            out += '#';
            out += local != chapter->localToBook.end() ? local->second : chapter->anchor;
        } else {
            out.append(target);
        }
        out += ')';
        pos = close + 1;
    }
    out.append(text.substr(pos));
    return out;
}

// The bold terms of one line: "**term**" pairs, read left to right.
std::vector<std::string> boldTerms(std::string_view line) {
    std::vector<std::string> terms;
    size_t pos = 0;
    while (true) {
        const size_t open = line.find("**", pos);
        if (open == std::string_view::npos)
            break;
        const size_t close = line.find("**", open + 2);
        if (close == std::string_view::npos)
            break;
        const std::string_view raw = line.substr(open + 2, close - open - 2);
        pos = close + 2;
        if (raw.empty() || raw.front() == ' ' || raw.back() == ' ')
            continue;
        std::string term = plainText(raw);
        while (!term.empty() && std::string_view(":.,;").find(term.back()) != std::string::npos)
            term.pop_back();
        if (term.size() >= 2 && term.size() <= 60)
            terms.push_back(term);
    }
    return terms;
}

// Text shown as it is, whatever marks it holds.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (std::string_view("\\`*_[]<>#").find(c) != std::string_view::npos)
            out += '\\';
        out += c;
    }
    return out;
}

// A heading as an index term: without its section number ("2.1 Words" -> "Words").
std::string withoutSectionNumber(const std::string& heading) {
    size_t i = 0;
    while (i < heading.size() && ((heading[i] >= '0' && heading[i] <= '9') || heading[i] == '.'))
        ++i;
    if (i == 0 || i >= heading.size() || heading[i] != ' ' ||
        !(heading[0] >= '0' && heading[0] <= '9'))
        return heading;
    return std::string(trim(std::string_view(heading).substr(i)));
}

bool startsWithLetter(std::string_view term) {
    const char c = term.empty() ? ' ' : term.front();
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string letterOf(std::string_view term) {
    const char c = term.empty() ? ' ' : term.front();
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
        return std::string(1, static_cast<char>(c >= 'a' ? c - 'a' + 'A' : c));
    return "Symbols and numbers";
}

} // namespace

std::string headingSlug(std::string_view text) {
    std::string slug;
    for (const char c : text) {
        const auto u = static_cast<unsigned char>(c);
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || u >= 0x80)
            slug += c;
        else if (c >= 'A' && c <= 'Z')
            slug += lowerAscii(c);
        else if (c == ' ' || c == '-')
            slug += '-';
    }
    return slug.empty() ? std::string("section") : slug;
}

std::string AnchorNamer::next(std::string_view headingText) {
    std::string name = headingSlug(headingText);
    int& count = used_[name];
    if (count > 0)
        name += "-" + std::to_string(count);
    ++count;
    return name;
}

std::vector<std::string> bookOrder(std::string_view indexMarkdown,
                                   const std::vector<std::string>& files) {
    std::vector<std::string> order;
    const std::set<std::string, std::less<>> present(files.begin(), files.end());
    auto add = [&](std::string_view name) {
        if (present.contains(name) && std::find(order.begin(), order.end(), name) == order.end())
            order.emplace_back(name);
    };
    add("index.md");
    size_t pos = 0;
    while ((pos = indexMarkdown.find("](", pos)) != std::string_view::npos) {
        const size_t close = indexMarkdown.find(')', pos + 2);
        if (close == std::string_view::npos)
            break;
        std::string_view target = indexMarkdown.substr(pos + 2, close - pos - 2);
        target = target.substr(0, target.find('#'));
        const size_t slash = target.rfind('/');
        add(slash == std::string_view::npos ? target : target.substr(slash + 1));
        pos = close;
    }
    std::vector<std::string> rest;
    for (const std::string& f : files)
        if (std::find(order.begin(), order.end(), f) == order.end())
            rest.push_back(f);
    std::sort(rest.begin(), rest.end());
    order.insert(order.end(), rest.begin(), rest.end());
    return order;
}

std::vector<BookHeading> markdownHeadings(std::string_view markdown, AnchorNamer& namer) {
    std::vector<BookHeading> headings;
    bool inCode = false;
    for (std::string_view line : lines(markdown)) {
        if (isFence(line)) {
            inCode = !inCode;
            continue;
        }
        if (inCode)
            continue;
        const auto [level, text] = atxHeading(line);
        if (level == 0)
            continue;
        BookHeading heading;
        heading.level = level;
        heading.text = plainText(text);
        heading.anchor = namer.next(heading.text);
        headings.push_back(std::move(heading));
    }
    return headings;
}

ReferenceBook buildReferenceBook(const std::vector<BookChapter>& given, std::string_view title) {
    std::vector<BookChapter> chapters = given;
    for (BookChapter& chapter : chapters)
        chapter.markdown = withoutComments(chapter.markdown);
    ReferenceBook book;
    AnchorNamer namer;
    namer.next(title);
    namer.next("Contents");

    // First pass: every chapter's headings and anchors, so links can be
    // rewritten in any direction.
    std::vector<ChapterScan> scans(chapters.size());
    std::map<std::string, const ChapterScan*, std::less<>> byFile;
    for (size_t c = 0; c < chapters.size(); ++c) {
        ChapterScan& scan = scans[c];
        scan.headings = markdownHeadings(chapters[c].markdown, namer);
        AnchorNamer local;
        for (const BookHeading& h : scan.headings)
            scan.localToBook.emplace(local.next(h.text), h.anchor);
        if (!scan.headings.empty()) {
            scan.title = scan.headings.front().text;
            scan.anchor = scan.headings.front().anchor;
        } else {
            scan.title = chapters[c].file;
            scan.anchor = headingSlug(chapters[c].file);
        }
        byFile.emplace(chapters[c].file, &scan);
    }

    // The index: headings and bold terms, each under the heading it follows.
    std::map<std::string, BookIndexEntry> entries;
    auto addTerm = [&](const std::string& term, const std::string& chapter,
                       const BookHeading& under) {
        BookIndexEntry& entry = entries[lowerCase(term)];
        if (entry.term.empty())
            entry.term = term;
        for (const BookIndexPlace& p : entry.places)
            if (p.section.anchor == under.anchor)
                return;
        entry.places.push_back({chapter, under});
    };

    std::string body;
    for (size_t c = 0; c < chapters.size(); ++c) {
        const ChapterScan& scan = scans[c];
        size_t next = 0; // the next heading of this chapter
        BookHeading under{1, scan.title, scan.anchor};
        bool inCode = false;
        for (std::string_view line : lines(chapters[c].markdown)) {
            if (isFence(line)) {
                inCode = !inCode;
            } else if (!inCode) {
                if (atxHeading(line).first > 0 && next < scan.headings.size()) {
                    under = scan.headings[next++];
                    addTerm(withoutSectionNumber(under.text), scan.title, under);
                } else {
                    for (const std::string& term : boldTerms(line))
                        addTerm(term, scan.title, under);
                }
            }
            body += inCode ? std::string(line) : rewriteLinks(line, scan, byFile);
            body += '\n';
        }
        body += '\n';
        for (const BookHeading& h : scan.headings)
            if (h.level <= 2)
                book.contents.push_back(h);
    }

    std::string& out = book.markdown;
    out += "# ";
    out += title;
    out += "\n\nEvery document of TAVI's documentation in one book: the contents come first, "
           "the index of terms at the end.\n\n## Contents\n\n";
    int number = 0;
    for (const BookHeading& h : book.contents) {
        if (h.level == 1)
            out += "- [" + std::to_string(++number) + ". " + escaped(h.text) + "](#" + h.anchor +
                   ")\n";
        else
            out += "  - [" + escaped(h.text) + "](#" + h.anchor + ")\n";
    }
    out += "\n";
    out += body;

    for (auto& [key, entry] : entries)
        book.index.push_back(std::move(entry));
    // Terms that begin with a mark or a digit come first, then A to Z.
    std::stable_partition(book.index.begin(), book.index.end(),
                          [](const BookIndexEntry& e) { return !startsWithLetter(e.term); });
    out += "# Index\n";
    std::string letter;
    for (const BookIndexEntry& entry : book.index) {
        if (letterOf(entry.term) != letter) {
            letter = letterOf(entry.term);
            out += "\n## " + letter + "\n\n";
        }
        std::string term = escaped(entry.term);
        if (const size_t dot = term.find_first_not_of("0123456789");
            dot > 0 && dot != std::string::npos && (term[dot] == '.' || term[dot] == ')'))
            term.insert(dot, "\\");
        out += "- " + term + ": ";
        for (size_t i = 0; i < entry.places.size(); ++i) {
            const BookIndexPlace& p = entry.places[i];
            out += i == 0 ? "" : "; ";
            out += "[" + escaped(p.chapter);
            if (p.section.text != p.chapter && withoutSectionNumber(p.section.text) != entry.term)
                out += " \xE2\x80\xBA " + escaped(p.section.text);
            out += "](#" + p.section.anchor + ")";
        }
        out += "\n";
    }
    return book;
}

} // namespace tavi
