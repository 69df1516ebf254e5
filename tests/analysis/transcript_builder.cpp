// The hand-made transcripts of the analysis tests.
#include "transcript_builder.h"

#include "base/text.h"

namespace tavi::test {

namespace {

Terminator terminatorOf(char c) {
    switch (c) {
    case '!':
        return Terminator::Exclamation;
    case '?':
        return Terminator::Question;
    case '~':
        return Terminator::Prompt;
    case '>':
        return Terminator::Abandoned;
    case '^':
        return Terminator::Interrupted;
    default:
        return Terminator::Statement;
    }
}

std::vector<std::string> split(std::string_view text) {
    std::vector<std::string> out;
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && text[i] == ' ')
            ++i;
        size_t s = i;
        if (i < text.size() && text.compare(i, 2, "((") == 0) {
            size_t close = text.find("))", i);
            i = close + 2;
        } else {
            while (i < text.size() && text[i] != ' ')
                ++i;
        }
        if (i > s)
            out.emplace_back(text.substr(s, i - s));
    }
    return out;
}

bool isUnintelligibleMark(std::string_view root) {
    std::string r = toUpperAscii(root);
    return r == "X" || r == "XX" || r == "XXX";
}

// Pieces of a word after its root, each starting with "/" or "+".
void addEndings(Word& w, std::string_view rest) {
    while (!rest.empty()) {
        char mark = rest[0];
        size_t next = rest.find_first_of("/+", 1);
        std::string piece(
            rest.substr(1, next == std::string_view::npos ? rest.size() - 1 : next - 1));
        bool omitted = !piece.empty() && piece[0] == '*';
        if (omitted)
            piece.erase(0, 1);
        if (mark == '/')
            (omitted ? w.omittedBoundMorphemes : w.boundMorphemes).push_back(piece);
        else
            (omitted ? w.omittedClitics : w.clitics).push_back(piece);
        rest = next == std::string_view::npos ? std::string_view() : rest.substr(next);
    }
    w.omittedBoundMorpheme = !w.omittedBoundMorphemes.empty();
    w.omittedClitic = !w.omittedClitics.empty();
}

} // namespace

Word makeWord(std::string_view token) {
    Word w;
    w.text = std::string(token);
    if (!token.empty() && token[0] == '*') {
        w.omitted = true;
        token.remove_prefix(1);
    }
    size_t end = token.find_first_of("/+");
    w.root = std::string(token.substr(0, end));
    w.unintelligible = isUnintelligibleMark(w.root);
    w.incomplete = w.root.size() > 1 && w.root.back() == '*';
    w.linked = w.root.find('_') != std::string::npos;
    if (end != std::string_view::npos)
        addEndings(w, token.substr(end));
    return w;
}

TranscriptBuilder& TranscriptBuilder::utt(int group, std::string_view text) {
    Utterance u;
    u.speakerGroup = group;
    u.speakerId = group == 0 ? U'C' : group == 1 ? U'E' : U'O';
    u.line = nextLine();
    u.index = static_cast<int>(t_.utterances.size());
    std::vector<std::string> tokens = split(text);
    std::string last = tokens.empty() ? "." : tokens.back();
    if (!tokens.empty())
        tokens.pop_back();
    u.terminatorChar = static_cast<char32_t>(last[0]);
    u.terminator = terminatorOf(last[0]);
    int maze = -1;
    bool overlap = false;
    for (size_t k = 0; k < tokens.size(); ++k) {
        std::string tok = tokens[k];
        if (tok.rfind("((", 0) == 0) {
            u.parentheticals.push_back(tok.substr(2, tok.size() - 4));
            for (const std::string& inner : split(u.parentheticals.back() + " .")) {
                if (inner == ".")
                    continue;
                u.parentheticalWords.push_back(makeWord(inner));
                u.parentheticalWords.back().inParenthetical = true;
            }
            continue;
        }
        if (tok[0] == '[') {
            u.codes.push_back({tok.substr(1, tok.size() - 2), -1});
            if (!u.words.empty() && k + 1 < tokens.size()) {
                u.codes.back().word = static_cast<int>(u.words.size()) - 1;
                u.words.back().codes.push_back(static_cast<int>(u.codes.size()) - 1);
            }
            continue;
        }
        if (tok[0] == ':') {
            u.pauses.push_back({tok.size() > 1, tok.size() > 1 ? std::stoi(tok.substr(1)) : 0});
            continue;
        }
        if (tok[0] == '{') {
            u.hasComment = true;
            continue;
        }
        if (tok == "\"") {
            u.hasQuotation = true;
            continue;
        }
        bool opensMaze = tok[0] == '(', closesMaze = tok.back() == ')';
        bool opensOverlap = tok[0] == '<', closesOverlap = tok.back() == '>';
        if (opensMaze) {
            tok.erase(0, 1);
            u.mazes.emplace_back();
            maze = static_cast<int>(u.mazes.size()) - 1;
        }
        if (opensOverlap) {
            tok.erase(0, 1);
            overlap = u.hasOverlap = true;
        }
        if (closesMaze || closesOverlap)
            tok.pop_back();
        Word w = makeWord(tok);
        w.inMaze = maze >= 0;
        w.maze = maze;
        w.inOverlap = overlap;
        if (maze >= 0)
            u.mazes[maze].words.push_back(static_cast<int>(u.words.size()));
        u.words.push_back(std::move(w));
        if (closesMaze)
            maze = -1;
        if (closesOverlap)
            overlap = false;
    }
    int body = 0, marks = 0;
    for (const Word& w : u.words) {
        if (w.inMaze || w.omitted)
            continue;
        (w.unintelligible ? marks : body)++;
    }
    u.intelligibility = marks == 0  ? Intelligibility::Intelligible
                        : body == 0 ? Intelligibility::Unintelligible
                                    : Intelligibility::Partly;
    u.nonverbal = body == 0 && marks == 0 && u.hasComment;
    t_.entries.push_back({EntryKind::Utterance, u.line, u.index, -1, 0, {}});
    t_.utterances.push_back(std::move(u));
    return *this;
}

TranscriptBuilder& TranscriptBuilder::timing(int seconds, std::vector<std::string> codes) {
    t_.entries.push_back({EntryKind::Timing, nextLine(), -1, seconds, 0, std::move(codes)});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::pause(int seconds, std::vector<std::string> codes) {
    t_.entries.push_back({EntryKind::Pause, nextLine(), -1, seconds, 0, std::move(codes)});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::begin() {
    t_.entries.push_back({EntryKind::Begin, nextLine(), -1, -1, 0, {}});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::end() {
    t_.entries.push_back({EntryKind::End, nextLine(), -1, -1, 0, {}});
    return *this;
}

} // namespace tavi::test
