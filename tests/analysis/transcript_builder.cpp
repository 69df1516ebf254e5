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
void addEndings(WordDraft& w, std::string_view rest) {
    while (!rest.empty()) {
        char mark = rest[0];
        size_t next = rest.find_first_of("/+", 1);
        std::string_view piece =
            rest.substr(1, next == std::string_view::npos ? rest.size() - 1 : next - 1);
        bool omitted = !piece.empty() && piece[0] == '*';
        if (omitted)
            piece.remove_prefix(1);
        w.pieces[mark == '/' ? (omitted ? 2 : 1) : (omitted ? 4 : 3)].push_back(piece);
        rest = next == std::string_view::npos ? std::string_view() : rest.substr(next);
    }
    w.flags.omittedBoundMorpheme = !w.pieces[2].empty();
    w.flags.omittedClitic = !w.pieces[4].empty();
}

} // namespace

Word makeWord(std::string_view token, TranscriptStore& store) {
    token = store.keepText(token);
    WordDraft w;
    w.text = token;
    if (!token.empty() && token[0] == '*') {
        w.flags.omitted = true;
        token.remove_prefix(1);
    }
    size_t end = token.find_first_of("/+");
    w.root = token.substr(0, end);
    w.flags.unintelligible = isUnintelligibleMark(w.root);
    w.flags.incomplete = w.root.size() > 1 && w.root.back() == '*';
    w.flags.linked = w.root.find('_') != std::string::npos;
    if (end != std::string_view::npos)
        addEndings(w, token.substr(end));
    return store.keepWord(w, token);
}

TranscriptBuilder& TranscriptBuilder::utt(int group, std::string_view text) {
    TranscriptStore& store = *t_.store;
    Utterance u;
    std::vector<Word> words, parentheticalWords;
    std::vector<Code> codes;
    std::vector<std::vector<int>> mazes;
    std::vector<std::string_view> parentheticals;
    std::vector<Pause> pauses;
    u.speakerGroup = static_cast<std::int8_t>(group);
    u.speakerId = group == 0 ? U'C' : group == 1 ? U'E' : U'O';
    u.line = nextLine();
    u.index = static_cast<int>(t_.utterances.size());
    std::vector<std::string> tokens = split(text);
    std::string last = tokens.empty() ? "." : tokens.back();
    if (!tokens.empty())
        tokens.pop_back();
    u.terminator = terminatorOf(last[0]);
    int maze = -1;
    bool overlap = false;
    for (size_t k = 0; k < tokens.size(); ++k) {
        std::string tok = tokens[k];
        if (tok.rfind("((", 0) == 0) {
            parentheticals.push_back(store.keepText(tok.substr(2, tok.size() - 4)));
            for (const std::string& inner : split(std::string(parentheticals.back()) + " .")) {
                if (inner == ".")
                    continue;
                parentheticalWords.push_back(makeWord(inner, store));
                parentheticalWords.back().inParenthetical = true;
            }
            continue;
        }
        if (tok[0] == '[') {
            codes.push_back({store.keepText(tok.substr(1, tok.size() - 2)), -1});
            if (!words.empty() && k + 1 < tokens.size())
                codes.back().word = static_cast<int>(words.size()) - 1;
            continue;
        }
        if (tok[0] == ':') {
            pauses.push_back({tok.size() > 1, tok.size() > 1 ? std::stoi(tok.substr(1)) : 0});
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
            mazes.emplace_back();
            maze = static_cast<int>(mazes.size()) - 1;
        }
        if (opensOverlap) {
            tok.erase(0, 1);
            overlap = u.hasOverlap = true;
        }
        if (closesMaze || closesOverlap)
            tok.pop_back();
        Word w = makeWord(tok, store);
        w.inMaze = maze >= 0;
        w.inOverlap = overlap;
        if (maze >= 0)
            mazes[maze].push_back(static_cast<int>(words.size()));
        words.push_back(w);
        if (closesMaze)
            maze = -1;
        if (closesOverlap)
            overlap = false;
    }
    u.words = store.keep(words);
    std::vector<Maze> kept;
    for (const std::vector<int>& m : mazes)
        kept.push_back(Maze{store.keep(m)});
    u.extras = store.keepExtras(codes, kept, parentheticals, parentheticalWords, pauses);
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
    t_.entries.push_back({EntryKind::Utterance, 0, u.line, u.index, -1, {}});
    t_.utterances.push_back(std::move(u));
    return *this;
}

EntryCodes TranscriptBuilder::keepCodes(const std::vector<std::string>& codes) {
    std::vector<std::string_view> kept;
    for (const std::string& c : codes)
        kept.push_back(t_.store->keepText(c));
    return EntryCodes(t_.store->keepOne(t_.store->keep(kept)));
}

TranscriptBuilder& TranscriptBuilder::timing(int seconds, std::vector<std::string> codes) {
    t_.entries.push_back({EntryKind::Timing, 0, nextLine(), -1, seconds, keepCodes(codes)});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::pause(int seconds, std::vector<std::string> codes) {
    t_.entries.push_back({EntryKind::Pause, 0, nextLine(), -1, seconds, keepCodes(codes)});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::begin() {
    t_.entries.push_back({EntryKind::Begin, 0, nextLine(), -1, -1, {}});
    return *this;
}

TranscriptBuilder& TranscriptBuilder::end() {
    t_.entries.push_back({EntryKind::End, 0, nextLine(), -1, -1, {}});
    return *this;
}

} // namespace tavi::test
