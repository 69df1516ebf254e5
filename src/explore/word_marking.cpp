// Root identifications and grammatical-category codes written into a transcript.
#include "explore/word_marking.h"

#include <algorithm>

#include "analysis/selection.h"
#include "base/text.h"
#include "explore/explore.h"
#include "transcript/transcript_file.h"

namespace tavi {

namespace {

const tranLine* lineOf(const TranLines& lines, int number) {
    auto at = std::lower_bound(lines.begin(), lines.end(), number,
                               [](const tranLine& l, int n) { return l.line < n; });
    return at != lines.end() && at->line == number ? &*at : nullptr;
}

bool takesRoot(const Word& w) {
    if (w.omitted || w.unintelligible || w.idiosyncratic || w.linked || w.incomplete)
        return false;
    if (!w.rootIdentification().empty() || !w.prefixes().empty())
        return false;
    return w.text().find('|') == std::string_view::npos;
}

bool isCategoryCode(std::string_view code) {
    return startsWithIgnoreCase(trim(code), "GC:");
}

std::string bracketed(std::string_view code) {
    code = trim(code);
    if (code.empty() || (code.front() == '[' && code.back() == ']'))
        return std::string(code);
    return "[" + std::string(code) + "]";
}

} // namespace

std::vector<RootCandidate> rootCandidates(const SegmentedTranscript& transcript,
                                          const TranLines& lines, const RifWords& words) {
    std::vector<RootCandidate> candidates;
    for (const Utterance& u : transcript.utterances) {
        const tranLine* line = lineOf(lines, u.line);
        if (!line)
            continue;
        const std::vector<size_t> ends = wordEnds(line->text, u);
        for (size_t i = 0; i < u.words.size() && i < ends.size(); ++i) {
            const Word& w = u.words[i];
            if (ends[i] == std::string_view::npos || !takesRoot(w))
                continue;
            std::string_view form = w.root();
            std::vector<RootChoice> choices = rootChoices(words, form);
            if (choices.empty())
                continue;
            RootCandidate c;
            c.line = u.line;
            c.utterance = u.index;
            c.lineText = line->text;
            c.wordEnd = ends[i];
            c.wordStart = ends[i] - w.text().size();
            c.formStart = c.wordStart + static_cast<size_t>(form.data() - w.text().data());
            c.formEnd = c.formStart + form.size();
            c.form = std::string(form);
            c.choices = std::move(choices);
            candidates.push_back(std::move(c));
        }
    }
    return candidates;
}

LineChange rootChange(const RootCandidate& candidate, const RootChoice& choice) {
    return {candidate.line, candidate.formStart, candidate.formEnd, choice.text};
}

std::string applyLineChanges(std::string_view text, std::vector<LineChange> changes) {
    // Within a line the last change comes first, so earlier offsets stay valid.
    std::map<int, std::vector<LineChange>> byLine;
    for (LineChange& c : changes)
        byLine[c.line].push_back(std::move(c));
    for (auto& [line, list] : byLine)
        std::sort(list.begin(), list.end(),
                  [](const LineChange& a, const LineChange& b) { return a.from > b.from; });
    std::string out;
    out.reserve(text.size());
    int number = 0;
    size_t start = 0;
    while (start < text.size()) {
        size_t stop = text.find_first_of("\r\n", start);
        if (stop == std::string_view::npos)
            stop = text.size();
        size_t endSize = stop == text.size() ? 0
                         : text[stop] == '\r' && stop + 1 < text.size() && text[stop + 1] == '\n'
                             ? 2
                             : 1;
        std::string body(text.substr(start, stop - start));
        if (auto it = byLine.find(++number); it != byLine.end())
            for (const LineChange& c : it->second)
                if (c.from <= c.to && c.to <= body.size())
                    body.replace(c.from, c.to - c.from, c.text);
        out += body;
        out += text.substr(stop, endSize);
        start = stop + endSize;
    }
    return out;
}

std::array<std::string, kGrammaticalCategoryTable.size()>
categoryCodesToUse(const std::map<int, std::string>& gcCodes) {
    std::array<std::string, kGrammaticalCategoryTable.size()> codes;
    for (size_t c = 0; c < codes.size(); ++c) {
        if (gcCodes.empty()) {
            codes[c] = std::string(kGrammaticalCategoryTable[c].code);
            continue;
        }
        auto it = gcCodes.find(static_cast<int>(c));
        if (it == gcCodes.end())
            continue;
        std::string_view text = trim(it->second);
        codes[c] = text.empty() ? std::string(kGrammaticalCategoryTable[c].code) : bracketed(text);
    }
    return codes;
}

CodeEdit insertCategoryCodes(std::string_view text, const TranscriptAnalysis& analysis,
                             const GcDictionary* dictionary, const CategoryCodeOptions& options) {
    const SegmentedTranscript& t = analysis.check.segmented;
    const Selection& sel = analysis.result.selection;
    const TranLines lines = splitTranscriptLines(text);
    std::vector<LineChange> changes;
    for (int s = 0; s < 2; ++s) {
        if (options.speaker != 2 && options.speaker != s)
            continue;
        for (int index : sel.speakers[static_cast<size_t>(s)].analysisSet) {
            const Utterance& u = t.utterances[static_cast<size_t>(index)];
            const tranLine* line = lineOf(lines, u.line);
            if (!line)
                continue;
            const std::vector<size_t> ends = wordEnds(line->text, u);
            for (size_t i = 0; i < u.words.size() && i < ends.size(); ++i) {
                const Word& w = u.words[i];
                if (!w.isMainBodyWord() || ends[i] == std::string_view::npos)
                    continue;
                if (options.skipCoded &&
                    std::any_of(u.codes().begin(), u.codes().end(), [&](const Code& c) {
                        return c.word == static_cast<int>(i) && isCategoryCode(c.text);
                    }))
                    continue;
                for (int category : wordCategories(w, dictionary)) {
                    const std::string& code = options.codes[static_cast<size_t>(category)];
                    if (code.empty())
                        continue;
                    changes.push_back({u.line, ends[i], ends[i], bracketed(code)});
                    break;
                }
            }
        }
    }
    CodeEdit edit;
    edit.changed = static_cast<int>(changes.size());
    edit.text = applyLineChanges(text, std::move(changes));
    return edit;
}

} // namespace tavi
