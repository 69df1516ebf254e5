// Code insertion and deletion, separate transcripts and the guarded save.
#include "explore/explore_edit.h"

#include <algorithm>
#include <map>
#include <system_error>

#include "analysis/code_lists.h"
#include "base/text.h"
#include "transcript/transcript_file.h"

namespace tavi {

namespace {

// A line of the text with its line end, numbered as splitTranscriptLines numbers them.
struct RawLine {
    std::string_view body;
    std::string_view end; // "\n", "\r\n", "\r" or empty at the end of the text
};

std::vector<RawLine> rawLines(std::string_view text) {
    std::vector<RawLine> lines;
    size_t start = 0;
    while (start < text.size()) {
        size_t stop = text.find_first_of("\r\n", start);
        if (stop == std::string_view::npos) {
            lines.push_back({text.substr(start), {}});
            break;
        }
        size_t endSize =
            text[stop] == '\r' && stop + 1 < text.size() && text[stop + 1] == '\n' ? 2 : 1;
        lines.push_back({text.substr(start, stop - start), text.substr(stop, endSize)});
        start = stop + endSize;
    }
    return lines;
}

std::string bracketed(std::string_view code) {
    code = trim(code);
    if (!code.empty() && code.front() == '[' && code.back() == ']')
        return std::string(code);
    return "[" + std::string(code) + "]";
}

bool isTerminator(char c) {
    return c == '.' || c == '!' || c == '?' || c == '~' || c == '>' || c == '^';
}

// Where the terminator of an utterance line stands: the last terminator
// character after the last word; npos when it has none.
size_t terminatorAt(std::string_view body) {
    std::string_view trimmed = trimRight(body);
    size_t at = trimmed.size();
    // Codes or a comment may follow the terminator: step back over them.
    while (at > 0) {
        char c = trimmed[at - 1];
        if (isTerminator(c))
            return at - 1;
        if (c == ']' || c == '}') {
            size_t open = trimmed.rfind(c == ']' ? '[' : '{', at - 1);
            if (open == std::string_view::npos)
                return std::string_view::npos;
            at = trimRight(trimmed.substr(0, open)).size();
            continue;
        }
        break;
    }
    if (size_t q = trimmed.rfind("\xD8\x9F");
        q != std::string_view::npos && q + 2 == trimmed.size())
        return q;
    return std::string_view::npos;
}

std::string joinLines(const std::vector<RawLine>& lines,
                      const std::map<int, std::string>& replaced) {
    std::string out;
    for (size_t i = 0; i < lines.size(); ++i) {
        auto it = replaced.find(static_cast<int>(i) + 1);
        if (it != replaced.end())
            out += it->second;
        else
            out += lines[i].body;
        out += lines[i].end;
    }
    return out;
}

} // namespace

CodeEdit insertExploreCode(std::string_view text, const std::vector<ExploreMatch>& matches,
                           std::string_view code, CodePlace place) {
    const std::string mark = bracketed(code);
    const std::vector<RawLine> lines = rawLines(text);
    std::map<int, std::string> replaced;
    CodeEdit edit;
    for (const ExploreMatch& m : matches) {
        if (m.line < 1 || static_cast<size_t>(m.line) > lines.size())
            continue;
        std::string body(lines[static_cast<size_t>(m.line) - 1].body);
        if (place == CodePlace::Utterance) {
            size_t at = terminatorAt(body);
            if (at == std::string_view::npos)
                body = std::string(trimRight(body)) + " " + mark;
            else
                body.insert(at, " " + mark);
            ++edit.changed;
        } else {
            std::vector<size_t> at;
            for (int w : m.words)
                if (w >= 0 && static_cast<size_t>(w) < m.wordEnds.size() &&
                    m.wordEnds[static_cast<size_t>(w)] != std::string_view::npos)
                    at.push_back(m.wordEnds[static_cast<size_t>(w)]);
            std::sort(at.rbegin(), at.rend());
            at.erase(std::unique(at.begin(), at.end()), at.end());
            for (size_t p : at) {
                body.insert(p, mark);
                ++edit.changed;
            }
        }
        replaced[m.line] = std::move(body);
    }
    edit.text = joinLines(lines, replaced);
    return edit;
}

CodeEdit deleteExploreCode(std::string_view text, const std::vector<int>& lineNumbers,
                           std::string_view item) {
    std::string_view wanted = trim(item);
    if (wanted.size() >= 2 && wanted.front() == '[' && wanted.back() == ']')
        wanted = trim(wanted.substr(1, wanted.size() - 2));
    const std::vector<RawLine> lines = rawLines(text);
    std::map<int, std::string> replaced;
    CodeEdit edit;
    for (int n : lineNumbers) {
        if (n < 1 || static_cast<size_t>(n) > lines.size() || replaced.count(n))
            continue;
        std::string body(lines[static_cast<size_t>(n) - 1].body);
        size_t at = 0;
        bool changed = false;
        while ((at = body.find('[', at)) != std::string::npos) {
            size_t close = body.find(']', at);
            if (close == std::string::npos)
                break;
            std::string_view inner = std::string_view(body).substr(at + 1, close - at - 1);
            if (!codeMatchesItem(inner, wanted)) {
                at = close + 1;
                continue;
            }
            size_t from = at > 0 && isBlank(body[at - 1]) ? at - 1 : at;
            body.erase(from, close + 1 - from);
            at = from;
            ++edit.changed;
            changed = true;
        }
        if (changed)
            replaced[n] = std::move(body);
    }
    edit.text = joinLines(lines, replaced);
    return edit;
}

std::vector<int> utteranceLines(const SegmentedTranscript& t) {
    std::vector<int> lines;
    lines.reserve(t.utterances.size());
    for (const Utterance& u : t.utterances)
        lines.push_back(u.line);
    return lines;
}

std::vector<int> matchLines(const std::vector<ExploreMatch>& matches) {
    std::vector<int> lines;
    for (const ExploreMatch& m : matches)
        lines.push_back(m.line);
    return lines;
}

std::string separateTranscriptText(const TranLines& lines, const std::vector<ExploreMatch>& matches,
                                   const SeparateOptions& options) {
    std::vector<int> found = matchLines(matches);
    std::sort(found.begin(), found.end());
    std::string out;
    for (const tranLine& l : lines) {
        char first = l.text.empty() ? ' ' : l.text.front();
        bool keep = std::binary_search(found.begin(), found.end(), l.line) || first == '$' ||
                    (first == '+' && options.plusLines) || (first == '-' && options.timing) ||
                    ((first == ':' || first == ';') && options.pauses) ||
                    (first == '=' && options.comments);
        if (keep)
            out += l.text + "\n";
    }
    return out;
}

std::vector<std::string> separateOptionLines(std::string_view keyword, const SeparateOptions& o) {
    const std::string k(keyword);
    auto yn = [](bool on) { return on ? "YES" : "NO"; };
    return {k + " SAVEASINCLHEADER" + yn(true),        k + " SAVEASINCLPLUS" + yn(o.plusLines),
            k + " SAVEASINCLTIME" + yn(o.timing),      k + " SAVEASINCLPAUSE" + yn(o.pauses),
            k + " SAVEASINCLCOMMENT" + yn(o.comments), k + " PREFIX " + o.prefix};
}

void applySeparateOptionLine(const KeywordLine& line, SeparateOptions& o) {
    const std::string key = toUpperAscii(line.subKey);
    auto flag = [&](std::string_view name, bool& target) {
        if (key.rfind(name, 0) == 0 && key.size() > name.size())
            target = key.substr(name.size()) == "YES";
    };
    flag("SAVEASINCLPLUS", o.plusLines);
    flag("SAVEASINCLTIME", o.timing);
    flag("SAVEASINCLPAUSE", o.pauses);
    flag("SAVEASINCLCOMMENT", o.comments);
    if (key == "PREFIX")
        o.prefix = line.rest;
}

std::string codeErrorsQuestion(std::string_view name) {
    return std::string(name) + " contains errors. Would you like it coded?";
}

std::string decodeErrorsQuestion(std::string_view name) {
    return std::string(name) + " contains errors. Would you like it de-coded?";
}

std::string separateErrorsQuestion(std::string_view name) {
    return std::string(name) +
           " contains errors. Would you like the selections from this transcript saved as a "
           "transcript?";
}

EditWriteStatus writeEditedTranscript(const std::filesystem::path& path, std::string_view text,
                                      const std::filesystem::path& backupFolder) {
    std::string present;
    if (readFile(path, present)) {
        std::error_code ec;
        std::filesystem::create_directories(backupFolder, ec);
        if (writeFileAtomic(backupPath(path, backupFolder), present) != WriteStatus::Ok)
            return EditWriteStatus::BackupFailed;
    }
    return saveTranscript(path, text) == WriteStatus::Ok ? EditWriteStatus::Ok
                                                         : EditWriteStatus::WriteFailed;
}

} // namespace tavi
