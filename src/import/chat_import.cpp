#include "import/chat_import.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>

#include "import/chat_morphology.h"
#include "import/chat_reader.h"
#include "transcript/header_checks.h"

namespace tavi {

namespace {

// What is dropped, in the order it is reported.
enum Drop {
    DropTier,        // dependent tiers other than %mor (counted per tier)
    DropLinker,      // +" +, ++ +< +^
    DropSeparator,   // , ; and the tag marks ‡ „
    DropMark,        // [!] [!!] [?]
    DropAnnotation,  // other bracketed annotations ([x 3] ...)
    DropFormMarker,  // @c @l @s:deu ...
    DropWordSymbol,  // : ^ ↫ and other non-letters inside words
    DropOverlapMark, // overlap marks on retraced material
    DropTiming,      // time bullets that do not move forward
    DropStray,       // lines that belong to no tier
    DropCount
};

constexpr std::array<std::string_view, DropCount> kDropNames = {
    "",
    "utterance linkers (+\" +, ++ +< +^)",
    "separators (, ; and tag marks)",
    "stress and best-guess marks ([!] [!!] [?])",
    "other annotations ([x N] ...)",
    "form markers (@c, @l, @s ...)",
    "symbols inside words (: ^ and segment repetitions)",
    "overlap marks on retraced words",
    "time bullets that do not move forward",
    "lines outside any tier",
};

struct Drops {
    std::array<int, DropCount> counts{};
    std::map<std::string, int> tiers;
};

// ---- words ---------------------------------------------------------------

bool isLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

size_t utf8Length(unsigned char lead) {
    if (lead >= 0xF0)
        return 4;
    if (lead >= 0xE0)
        return 3;
    if (lead >= 0xC0)
        return 2;
    return 1;
}

// Latin letters beyond ASCII (U+00C0..U+024F except the multiplication and
// division signs) are kept in words; other symbols are not.
bool isLatinLetter(std::string_view seq) {
    if (seq.size() != 2)
        return false;
    unsigned cp = ((static_cast<unsigned char>(seq[0]) & 0x1Fu) << 6) |
                  (static_cast<unsigned char>(seq[1]) & 0x3Fu);
    return cp >= 0xC0 && cp <= 0x24F && cp != 0xD7 && cp != 0xF7;
}

constexpr std::string_view kSegmentRepetition = "\xE2\x86\xAB"; // ↫

// The pieces of a CHAT word in TAVI's characters: several pieces make a linked
// word ("a_lot", "ice+cream"). Empty when nothing of the word is left.
std::vector<std::string> cleanWord(std::string_view w, Drops& drops) {
    std::string text(w);
    if (size_t at = text.find('@'); at != std::string::npos && at > 0) {
        text.erase(at);
        ++drops.counts[DropFormMarker];
    }
    // "↫sh↫she": the repeated segment goes.
    for (size_t a = text.find(kSegmentRepetition); a != std::string::npos;
         a = text.find(kSegmentRepetition, a)) {
        size_t b = text.find(kSegmentRepetition, a + 3);
        text.erase(a, b == std::string::npos ? 3 : b + 3 - a);
        ++drops.counts[DropWordSymbol];
    }
    std::vector<std::string> pieces(1);
    bool symbol = false;
    for (size_t i = 0; i < text.size();) {
        char c = text[i];
        size_t n = utf8Length(static_cast<unsigned char>(c));
        if (isLetterOrDigit(c) || c == '\'') {
            pieces.back().push_back(c);
        } else if (c == '(' || c == ')') {
            // shortening "(th)em": the whole word is kept
        } else if (c == '+' || c == '_' || c == '-') {
            pieces.emplace_back();
        } else if (n > 1 && i + n <= text.size() &&
                   isLatinLetter(std::string_view(text).substr(i, n))) {
            pieces.back().append(text, i, n);
        } else {
            symbol = true;
        }
        i += n;
    }
    if (symbol)
        ++drops.counts[DropWordSymbol];
    std::erase_if(pieces, [](const std::string& p) {
        return std::none_of(p.begin(), p.end(), [](char c) { return c != '\''; });
    });
    return pieces;
}

std::string linked(const std::vector<std::string>& pieces) {
    std::string out;
    for (size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            out += "_ _";
        out += pieces[i];
    }
    return out;
}

std::string joined(const std::vector<std::string>& pieces, std::string_view sep) {
    std::string out;
    for (size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            out += sep;
        out += pieces[i];
    }
    return out;
}

// Free text for a comment: no brackets of any kind, single blanks.
std::string commentText(std::string_view s) {
    std::string out;
    for (char c : s) {
        if (std::string_view("{}[]<>()").find(c) != std::string_view::npos ||
            static_cast<unsigned char>(c) < 0x20)
            c = ' ';
        if (c == ' ' && (out.empty() || out.back() == ' '))
            continue;
        out.push_back(c);
    }
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

// An event or interposed speech: "laughs_loudly" -> "laughs loudly".
std::string words(std::string_view s) {
    std::string text(s);
    std::replace(text.begin(), text.end(), '_', ' ');
    return commentText(text);
}

// Dependent tiers of free text, kept as comment lines after their utterance.
bool isTextTier(std::string_view name) {
    static constexpr std::array<std::string_view, 19> kText = {
        "com", "act", "exp", "sit", "add", "spa", "int", "gpx", "alt", "coh",
        "def", "eng", "err", "fac", "flo", "gls", "ort", "par", "tim"};
    return std::find(kText.begin(), kText.end(), name) != kText.end();
}

// A code's content: letters, digits, apostrophes and ":" only.
std::string codeText(std::string_view s) {
    std::string out;
    for (char c : s) {
        if (isLetterOrDigit(c) || c == '\'' || c == ':')
            out.push_back(c);
        else if ((c == ' ' || c == '_' || c == '+') && !out.empty() && out.back() != '_')
            out.push_back('_');
    }
    while (!out.empty() && out.back() == '_')
        out.pop_back();
    return out;
}

// ---- the main tier -------------------------------------------------------

enum class Kind {
    Word,
    Group,
    Pause,
    Event,
    Filler,
    Fragment,
    Nonword,
    Other,
    Freecode,
    Postcode,
    Terminator
};

struct Unit {
    Kind kind = Kind::Word;
    std::string text;
    std::vector<Unit> children;
    std::vector<std::string> annotations;
    double seconds = -1; // timed pause
};

std::vector<std::string_view> rawTokens(std::string_view s) {
    std::vector<std::string_view> out;
    size_t i = 0;
    while (i < s.size()) {
        if (s[i] == ' ' || s[i] == '\t') {
            ++i;
            continue;
        }
        size_t start = i;
        if (s[i] == '[') {
            size_t close = s.find(']', i);
            i = close == std::string_view::npos ? s.size() : close + 1;
        } else {
            while (i < s.size() && s[i] != ' ' && s[i] != '\t' && s[i] != '[')
                ++i;
        }
        out.push_back(s.substr(start, i - start));
    }
    return out;
}

char terminatorOf(std::string_view t) {
    if (t == "." || t == "+\"/." || t == "+\"." || t == "+." || t == "+=.")
        return '.';
    if (t == "?" || t == "+!?")
        return '?';
    if (t == "!")
        return '!';
    if (t == "+/." || t == "+/?")
        return '^'; // interrupted by the other speaker
    if (t == "+..." || t == "+..?" || t == "+//." || t == "+//?" || t == "+...")
        return '>'; // trailed off, or broken off by the speaker: abandoned
    if (t.size() > 1 && t.front() == '+' &&
        std::string_view(".?!").find(t.back()) != std::string_view::npos)
        return t.back() == '?' ? '?' : (t.back() == '!' ? '!' : '.');
    return 0;
}

bool isPause(std::string_view t, double& seconds) {
    if (t.size() < 3 || t.front() != '(' || t.back() != ')')
        return false;
    std::string_view in = t.substr(1, t.size() - 2);
    if (in.find_first_not_of(".") == std::string_view::npos) {
        seconds = -1;
        return true;
    }
    if (in.find_first_not_of("0123456789.:") != std::string_view::npos)
        return false;
    double total = 0, part = 0, frac = 0, scale = 0;
    for (char c : in) {
        if (c == ':') {
            total = (total + part) * 60;
            part = 0;
            scale = 0;
        } else if (c == '.') {
            scale = 0.1;
        } else if (scale > 0) {
            frac += (c - '0') * scale;
            scale /= 10;
        } else {
            part = part * 10 + (c - '0');
        }
    }
    seconds = total + part + frac;
    return true;
}

struct Parsed {
    std::vector<Unit> units;
    char terminator = 0;
};

Parsed parseMain(std::string_view text, Drops& drops) {
    Parsed p;
    std::vector<std::vector<Unit>*> stack{&p.units};
    std::vector<Unit> groups; // open groups, innermost last
    auto current = [&]() -> std::vector<Unit>& {
        return groups.empty() ? p.units : groups.back().children;
    };
    auto closeGroup = [&] {
        Unit g = std::move(groups.back());
        groups.pop_back();
        current().push_back(std::move(g));
    };
    for (std::string_view tok : rawTokens(text)) {
        if (tok.front() == '[') {
            std::string_view in = tok.substr(1, tok.size() - (tok.back() == ']' ? 2 : 1));
            if (in.starts_with("+ ") || in.starts_with("+")) {
                Unit u{Kind::Postcode, std::string(in.substr(1)), {}, {}, -1};
                current().push_back(std::move(u));
            } else if (in.starts_with("^ ")) {
                current().push_back({Kind::Freecode, std::string(in.substr(2)), {}, {}, -1});
            } else if (!current().empty()) {
                current().back().annotations.emplace_back(in);
            } else {
                ++drops.counts[DropAnnotation];
            }
            continue;
        }
        if (char t = terminatorOf(tok)) {
            p.terminator = t;
            continue;
        }
        if (tok.front() == '+') {
            ++drops.counts[DropLinker];
            continue;
        }
        while (tok.size() > 1 && tok.front() == '<') {
            groups.push_back({Kind::Group, "", {}, {}, -1});
            tok.remove_prefix(1);
        }
        int closes = 0;
        while (tok.size() > 1 && tok.back() == '>') {
            ++closes;
            tok.remove_suffix(1);
        }
        double seconds = -1;
        if (tok == "<") {
            groups.push_back({Kind::Group, "", {}, {}, -1});
        } else if (tok == ">") {
            ++closes;
        } else if (isPause(tok, seconds)) {
            current().push_back({Kind::Pause, "", {}, {}, seconds});
        } else if (tok.size() > 2 && tok.front() == '&') {
            Kind k = Kind::Other;
            switch (tok[1]) {
            case '=':
                k = Kind::Event;
                break;
            case '-':
                k = Kind::Filler;
                break;
            case '+':
                k = Kind::Fragment;
                break;
            case '~':
                k = Kind::Nonword;
                break;
            default:
                k = Kind::Other;
            }
            current().push_back({k, std::string(tok.substr(2)), {}, {}, -1});
        } else if (tok == "," || tok == ";" || tok == "\xE2\x80\xA1" || tok == "\xE2\x80\x9E" ||
                   tok == ":" || tok.find_first_not_of(",;:.!?") == std::string_view::npos) {
            ++drops.counts[DropSeparator];
        } else {
            current().push_back({Kind::Word, std::string(tok), {}, {}, -1});
        }
        for (; closes > 0 && !groups.empty(); --closes)
            closeGroup();
    }
    while (!groups.empty())
        closeGroup();
    return p;
}

// ---- rendering -----------------------------------------------------------

struct Out {
    enum Type { Word, Maze, Comment, Code, Pause, OverlapOpen, OverlapClose } type = Word;
    std::string text;
    std::string surface;  // Word with a %mor slot: the written form to give endings to
    int slot = -1;        // index among the words the %mor tier lines up with
    std::string attached; // codes written right after the word
    bool unintelligible = false;
};

bool isRetrace(std::string_view a) {
    return a == "/" || a == "//" || a == "///" || a == "/-" || a == "/?";
}
bool isOverlap(std::string_view a) {
    return !a.empty() && (a.front() == '<' || a.front() == '>');
}

struct Renderer {
    Drops& drops;
    std::vector<Out> out;
    int slots = 0;

    void maze(std::string text) { out.push_back({Out::Maze, std::move(text), "", -1, "", false}); }

    void mazeWord(std::string_view raw) {
        std::string_view w = raw;
        if (w.starts_with("0"))
            return; // an omitted word was not said
        std::string l(w);
        if (l == "xxx" || l == "yyy")
            return maze("XX");
        if (l == "www")
            return;
        auto pieces = cleanWord(w, drops);
        if (!pieces.empty())
            maze(joined(pieces, ""));
    }

    // A main-body word of the utterance, with its annotations.
    void word(const Unit& u) {
        std::optional<std::string> replacement, error;
        std::vector<std::string> comments;
        for (const std::string& a : u.annotations) {
            if (a.starts_with(": "))
                replacement = a.substr(2);
            else if (a.starts_with("*"))
                error = a.size() > 1 ? a.substr(1) : std::string();
            else
                annotation(a, comments);
        }
        std::string_view w = u.text;
        if (w == "xxx" || w == "yyy") {
            Out o{Out::Word, "X", "", -1, "", true};
            out.push_back(std::move(o));
        } else if (w == "www") {
            out.push_back({Out::Comment, "untranscribed", "", -1, "", false});
        } else if (w.starts_with("0") && w.size() > 1) {
            auto pieces = cleanWord(w.substr(1), drops);
            if (!pieces.empty())
                out.push_back({Out::Word, "*" + joined(pieces, ""), "", -1, "", false});
        } else if (w == "0") {
            // an action without speech: nothing to write
        } else if (replacement && error) {
            auto pieces = cleanWord(w, drops);
            if (!pieces.empty()) {
                Out o{Out::Word, linked(pieces), "", -1, "", false};
                o.attached = errorCode(*error, *replacement, o.text);
                out.push_back(std::move(o));
            }
            slots += static_cast<int>(rawTokens(*replacement).size());
        } else if (replacement) {
            for (std::string_view t : rawTokens(*replacement))
                plain(t);
        } else {
            plain(w);
            if (error && !out.empty() && out.back().type == Out::Word) {
                Out& o = out.back();
                std::string before = o.text;
                o.attached += errorCode(*error, "", o.text);
                if (o.text != before)
                    o.slot = -1; // the omitted ending is written: no other endings
            }
        }
        for (std::string& c : comments)
            out.push_back({Out::Comment, std::move(c), "", -1, "", false});
    }

    void plain(std::string_view w) {
        auto pieces = cleanWord(w, drops);
        int slot = slots++;
        if (pieces.empty())
            return;
        Out o{Out::Word, linked(pieces), "", -1, "", false};
        if (pieces.size() == 1) {
            o.surface = pieces[0];
            o.slot = slot;
        }
        out.push_back(std::move(o));
    }

    // "[* m:=ed]" and the like: overregularisations are [EO], an omitted ending
    // "m:0ed" is written into the word, everything else is [EW].
    std::string errorCode(std::string_view error, std::string_view target, std::string& word) {
        while (!error.empty() && error.front() == ' ')
            error.remove_prefix(1);
        if (error.starts_with("m:0") && error.size() > 3 && target.empty()) {
            std::string ending = codeText(error.substr(3));
            if (!ending.empty() && ending.find(':') == std::string::npos) {
                word += "/*" + ending;
                return {};
            }
        }
        bool over = error.starts_with("m:") && (error.find('=') != std::string_view::npos ||
                                                error.find("++") != std::string_view::npos ||
                                                error.find("irr") != std::string_view::npos);
        std::string code = over ? "EO" : "EW";
        std::string t = codeText(target);
        return "[" + code + (t.empty() ? "" : ":" + t) + "]";
    }

    void annotation(std::string_view a, std::vector<std::string>& comments) {
        if (a.starts_with("=") || a.starts_with("%")) {
            size_t skip = a.find(' ');
            std::string c =
                commentText(skip == std::string_view::npos ? a.substr(1) : a.substr(skip + 1));
            if (!c.empty())
                comments.push_back(std::move(c));
        } else if (a == "!" || a == "!!" || a == "?") {
            ++drops.counts[DropMark];
        } else {
            ++drops.counts[DropAnnotation];
        }
    }

    void unit(const Unit& u, bool inMaze) {
        bool retrace = std::any_of(u.annotations.begin(), u.annotations.end(),
                                   [](const std::string& a) { return isRetrace(a); });
        bool overlap = std::any_of(u.annotations.begin(), u.annotations.end(),
                                   [](const std::string& a) { return isOverlap(a); });
        switch (u.kind) {
        case Kind::Filler:
        case Kind::Nonword:
            return mazeWord(u.text);
        case Kind::Fragment: {
            auto pieces = cleanWord(u.text, drops);
            if (!pieces.empty())
                maze(joined(pieces, "") + "*");
            return;
        }
        case Kind::Event:
        case Kind::Freecode:
            if (std::string c = words(u.text); !c.empty())
                out.push_back({Out::Comment, c, "", -1, "", false});
            return;
        case Kind::Other: {
            std::string c = words(u.text);
            if (size_t colon = c.find(':'); colon != std::string::npos)
                c.insert(colon + 1, " ");
            if (!c.empty())
                out.push_back({Out::Comment, c, "", -1, "", false});
            return;
        }
        case Kind::Pause:
            if (u.seconds < 0)
                out.push_back({Out::Pause, ":", "", -1, "", false});
            else
                out.push_back({Out::Pause,
                               ":" + std::to_string(std::max(1L, std::lround(u.seconds))), "", -1,
                               "", false});
            return;
        case Kind::Postcode:
            if (std::string c = codeText(u.text); !c.empty())
                out.push_back({Out::Code, "[" + c + "]", "", -1, "", false});
            return;
        case Kind::Terminator:
            return;
        case Kind::Word:
        case Kind::Group:
            break;
        }
        if (inMaze || retrace) {
            if (overlap)
                ++drops.counts[DropOverlapMark];
            if (u.kind == Kind::Word) {
                for (const std::string& a : u.annotations)
                    if (!isRetrace(a) && !isOverlap(a) && !a.starts_with(": ") &&
                        !a.starts_with("*")) {
                        std::vector<std::string> ignored;
                        annotation(a, ignored);
                    }
                mazeWord(u.text);
            } else {
                for (const Unit& c : u.children)
                    unit(c, true);
            }
            return;
        }
        if (overlap)
            out.push_back({Out::OverlapOpen, "<", "", -1, "", false});
        if (u.kind == Kind::Word) {
            Unit bare = u;
            std::erase_if(bare.annotations, [](const std::string& a) { return isOverlap(a); });
            word(bare);
        } else {
            for (const Unit& c : u.children)
                unit(c, false);
            std::vector<std::string> comments;
            for (const std::string& a : u.annotations) {
                if (isOverlap(a))
                    continue;
                if (a.starts_with("*")) {
                    auto last = std::find_if(out.rbegin(), out.rend(),
                                             [](const Out& o) { return o.type == Out::Word; });
                    if (last != out.rend())
                        last->attached += errorCode(a.substr(1), "", last->text);
                } else {
                    annotation(a, comments);
                }
            }
            for (std::string& c : comments)
                out.push_back({Out::Comment, std::move(c), "", -1, "", false});
        }
        if (overlap)
            out.push_back({Out::OverlapClose, ">", "", -1, "", false});
    }
};

std::string renderUtterance(std::vector<Out>& out, char terminator) {
    // An utterance whose words are all unintelligible is wholly unintelligible.
    int words = 0, unintelligible = 0;
    for (const Out& o : out)
        if (o.type == Out::Word) {
            ++words;
            unintelligible += o.unintelligible ? 1 : 0;
        }
    if (words > 0 && unintelligible == words) {
        bool first = true;
        std::erase_if(out, [&](const Out& o) {
            if (o.type != Out::Word)
                return false;
            bool drop = !first;
            first = false;
            return drop;
        });
        for (Out& o : out)
            if (o.type == Out::Word)
                o.text = "XXX";
    }
    // An empty overlap is no overlap.
    for (size_t i = 0; i + 1 < out.size(); ++i)
        if (out[i].type == Out::OverlapOpen && out[i + 1].type == Out::OverlapClose) {
            out.erase(out.begin() + static_cast<long>(i), out.begin() + static_cast<long>(i) + 2);
            i = i > 0 ? i - 1 : 0;
        }
    std::string s;
    auto space = [&] {
        if (!s.empty() && s.back() != '<')
            s.push_back(' ');
    };
    bool inMaze = false;
    for (const Out& o : out) {
        if (o.type != Out::Maze && inMaze) {
            s.push_back(')');
            inMaze = false;
        }
        switch (o.type) {
        case Out::Maze:
            if (inMaze) {
                s.push_back(' ');
            } else {
                space();
                s.push_back('(');
                inMaze = true;
            }
            s += o.text;
            break;
        case Out::Word:
            space();
            s += o.text;
            s += o.attached;
            break;
        case Out::Comment:
            space();
            s += "{" + o.text + "}";
            break;
        case Out::Code:
        case Out::Pause:
            space();
            s += o.text;
            break;
        case Out::OverlapOpen:
            space();
            s += "<";
            break;
        case Out::OverlapClose:
            s += ">";
            break;
        }
    }
    if (inMaze)
        s.push_back(')');
    if (s.empty())
        s = "{no speech}";
    s.push_back(terminator ? terminator : '.');
    return s;
}

// ---- headers -------------------------------------------------------------

std::optional<Date> chatDate(std::string_view s) {
    // "10-MAY-2000"
    static constexpr std::array<std::string_view, 12> kMonths = {
        "JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    while (!s.empty() && s.front() == ' ')
        s.remove_prefix(1);
    if (s.size() < 11 || s[2] != '-' || s[6] != '-')
        return std::nullopt;
    Date d;
    d.day = (s[0] - '0') * 10 + (s[1] - '0');
    std::string month(s.substr(3, 3));
    for (char& c : month)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    auto m = std::find(kMonths.begin(), kMonths.end(), month);
    if (m == kMonths.end())
        return std::nullopt;
    d.month = static_cast<int>(m - kMonths.begin()) + 1;
    d.year = 0;
    for (size_t i = 7; i < 11; ++i) {
        if (s[i] < '0' || s[i] > '9')
            return std::nullopt;
        d.year = d.year * 10 + (s[i] - '0');
    }
    if (d.day < 1 || d.day > 31)
        return std::nullopt;
    return d;
}

std::string writeDate(const Date& d, const DateFormat& f) {
    std::string a = std::to_string(d.month), b = std::to_string(d.day);
    if (f.order == DateOrder::DayMonthYear)
        std::swap(a, b);
    return a + f.separator + b + f.separator + std::to_string(d.year);
}

std::string timeText(long long ms) {
    long long s = ms / 1000;
    long long h = s / 3600, m = (s / 60) % 60, sec = s % 60;
    char buf[32];
    if (h > 0)
        std::snprintf(buf, sizeof buf, "%lld:%02lld:%02lld", h, m, sec);
    else
        std::snprintf(buf, sizeof buf, "%lld:%02lld", m, sec);
    return buf;
}

std::string contextOf(std::string_view types) {
    std::string l(types);
    for (char& c : l)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (l.find("narrative") != std::string::npos || l.find("story") != std::string::npos)
        return "Nar";
    if (l.find("expository") != std::string::npos)
        return "Expo";
    if (l.find("persuasive") != std::string::npos)
        return "Pers";
    if (l.find("toyplay") != std::string::npos || l.find("play") != std::string::npos)
        return "Play";
    if (l.find("conversation") != std::string::npos || l.find("interview") != std::string::npos)
        return "Con";
    return {};
}

std::string letters(std::string_view s) {
    std::string out;
    for (char c : s)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
            out.push_back(c);
    return out;
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Labels with distinct first letters: the name (or role) when its first letter
// is free, else a free letter from the name, role or code put before it.
void assignLabels(std::vector<ChatSpeakerMapping>& speakers, const ChatFile& file) {
    std::string used;
    for (ChatSpeakerMapping& s : speakers) {
        const ChatParticipant* p = file.participant(s.code);
        std::string name = p ? p->name : "";
        if (size_t us = name.find('_'); us != std::string::npos)
            name.erase(us);
        std::string base = letters(name);
        if (base.empty() && p) {
            std::string role = p->role;
            base = role == "Target_Child" ? "Child" : letters(role);
        }
        if (base.empty())
            base = letters(s.code);
        if (base.empty())
            base = "Speaker";
        base[0] = upper(base[0]);
        std::string candidates =
            base + letters(p ? p->role : "") + letters(s.code) + "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
        char letter = 0;
        for (char c : candidates) {
            c = upper(c);
            if (used.find(c) == std::string::npos) {
                letter = c;
                break;
            }
        }
        if (!letter) { // more than 26 speakers: the rest share nothing, so they go
            s.label.clear();
            continue;
        }
        used.push_back(letter);
        s.label = letter == base[0] ? base : std::string(1, letter) + "_" + base;
    }
}

} // namespace

int ChatImport::droppedTotal() const {
    int n = 0;
    for (const ChatDropCount& d : dropped)
        n += d.count;
    return n;
}

std::string droppedSummary(const ChatImport& import) {
    if (import.dropped.empty())
        return "nothing dropped";
    std::string s = "dropped ";
    for (size_t i = 0; i < import.dropped.size(); ++i) {
        if (i > 0)
            s += ", ";
        s += std::to_string(import.dropped[i].count) + " " + import.dropped[i].what;
    }
    return s;
}

ChatImport importChat(std::string_view chat, const ChatImportOptions& options) {
    ChatImport result;
    ChatFile file = readChat(chat);
    if (file.utterances.empty()) {
        result.problem = "no utterances (no *SPEAKER: lines) in the file";
        return result;
    }
    Drops drops;
    drops.counts[DropStray] = file.strayLines;

    // Speakers: the target, the main adult, everyone else who speaks.
    std::map<std::string, int> counts;
    std::vector<std::string> order;
    for (const ChatParticipant& p : file.participants)
        order.push_back(p.code);
    for (const ChatUtterance& u : file.utterances) {
        if (counts[u.speaker]++ == 0 &&
            std::find(order.begin(), order.end(), u.speaker) == order.end())
            order.push_back(u.speaker);
    }
    std::string target = options.target;
    if (!target.empty()) {
        if (std::find(order.begin(), order.end(), target) == order.end()) {
            result.problem = "no speaker " + target + " in the file";
            return result;
        }
    } else {
        for (const ChatParticipant& p : file.participants)
            if (p.role == "Target_Child") {
                target = p.code;
                break;
            }
        if (target.empty())
            target = std::find(order.begin(), order.end(), "CHI") != order.end() ? "CHI" : order[0];
    }
    std::string adult;
    for (const std::string& code : order)
        if (code != target && counts[code] > 0 && (adult.empty() || counts[code] > counts[adult]))
            adult = code;
    result.speakers.push_back({target, "", 0, counts[target]});
    if (!adult.empty())
        result.speakers.push_back({adult, "", 1, counts[adult]});
    for (const std::string& code : order)
        if (code != target && code != adult && counts[code] > 0)
            result.speakers.push_back({code, "", 2, counts[code]});
    assignLabels(result.speakers, file);
    std::map<std::string, char> letterOf;
    for (const ChatSpeakerMapping& s : result.speakers)
        if (!s.label.empty())
            letterOf[s.code] = s.label[0];

    std::string& t = result.text;
    t.reserve(chat.size() / 2);
    t += "$ ";
    for (int g = 0; g < 3; ++g) {
        bool first = true;
        for (const ChatSpeakerMapping& s : result.speakers) {
            if (s.group != g || s.label.empty())
                continue;
            if (first && g > 0)
                t += ", ";
            else if (!first)
                t += ' ';
            t += s.label;
            first = false;
        }
    }
    t += "\n= Imported from CHAT. Speakers:";
    for (size_t i = 0; i < result.speakers.size(); ++i) {
        const ChatSpeakerMapping& s = result.speakers[i];
        const ChatParticipant* p = file.participant(s.code);
        t += (i ? "; " : " ") + s.label + " = " + s.code;
        if (p && !p->role.empty())
            t += " (" + p->role + ")";
    }
    t += '\n';

    // Header lines from the target's @ID, the dates, @Types and @Languages.
    const ChatParticipant* child = file.participant(target);
    std::optional<Date> dob, doe;
    std::string context, language, typesGroup;
    for (const ChatHeader& h : file.headers) {
        if (h.name == "Date")
            doe = chatDate(h.value);
        else if (h.name == "Birth of " + target)
            dob = chatDate(h.value);
        else if (h.name == "Comment" && h.value.starts_with("Birth of " + target + " is "))
            dob = chatDate(std::string_view(h.value).substr(13 + target.size()));
        else if (h.name == "Types" || h.name == "Activities") {
            context = context.empty() ? contextOf(h.value) : context;
            // "@Types: design, activity, group": the group when @ID has none.
            if (size_t comma = h.value.rfind(','); h.name == "Types" && comma != std::string::npos)
                typesGroup = letters(h.value.substr(comma + 1));
        } else if (h.name == "Languages")
            language = h.value.starts_with("eng") ? "English" : h.value;
    }
    if (child && (child->sex == "male" || child->sex == "female"))
        t += std::string("+ Gender: ") + (child->sex == "male" ? "M" : "F") + "\n";
    if (dob && doe && monthsBetween(*dob, *doe) >= 0) {
        long long months = monthsBetween(*dob, *doe);
        t += "+ DOB: " + writeDate(*dob, options.dateFormat) + "\n";
        t += "+ DOE: " + writeDate(*doe, options.dateFormat) + "\n";
        t += "+ CA: " + std::to_string(months / 12) + ";" + std::to_string(months % 12) + "\n";
    } else {
        if (doe)
            t += "+ DOE: " + writeDate(*doe, options.dateFormat) + "\n";
        if (child && !child->age.empty()) {
            // "8;06.16": years and months.
            int years = 0, monthsPart = 0;
            if (std::sscanf(child->age.c_str(), "%d;%d", &years, &monthsPart) >= 1 && years >= 0 &&
                monthsPart >= 0 && monthsPart < 12)
                t += "+ CA: " + std::to_string(years) + ";" + std::to_string(monthsPart) + "\n";
        }
    }
    if (child && !child->group.empty())
        t += "+ Subgroup: " + child->group + "\n";
    else if (!typesGroup.empty())
        t += "+ Subgroup: " + typesGroup + "\n";
    if (!context.empty())
        t += "+ Context: " + context + "\n";
    if (!language.empty())
        t += "+ Language: " + language + "\n";

    auto commentHeader = [&](const ChatHeader& h) {
        if (h.name == "UTF8" || h.name == "Begin" || h.name == "End" || h.name == "Participants")
            return;
        t += "= @" + h.name;
        if (!h.value.empty())
            t += ": " + commentText(h.value);
        t += '\n';
    };
    size_t nextHeader = 0;
    while (nextHeader < file.headers.size() && file.headers[nextHeader].beforeUtterance == 0 &&
           !(file.headers[nextHeader].name == "G" || file.headers[nextHeader].name == "Bg" ||
             file.headers[nextHeader].name == "Eg"))
        commentHeader(file.headers[nextHeader++]);

    bool timed = std::any_of(file.utterances.begin(), file.utterances.end(),
                             [](const ChatUtterance& u) { return u.startMs.has_value(); });
    long long lastSecond = 0;
    if (timed)
        t += "- 0:00\n";

    for (size_t i = 0; i < file.utterances.size(); ++i) {
        while (nextHeader < file.headers.size() &&
               file.headers[nextHeader].beforeUtterance <= static_cast<int>(i))
            commentHeader(file.headers[nextHeader++]);
        const ChatUtterance& u = file.utterances[i];
        for (const ChatTier& tier : u.tiers)
            if (tier.name != "mor" && !isTextTier(tier.name))
                ++drops.tiers["%" + tier.name + " tier lines"];
        auto letter = letterOf.find(u.speaker);
        if (letter == letterOf.end())
            continue;
        if (u.startMs) {
            long long second = *u.startMs / 1000;
            if (second > lastSecond) {
                t += "- " + timeText(*u.startMs) + "\n";
                lastSecond = second;
            } else if (second < lastSecond) {
                ++drops.counts[DropTiming];
            }
        }
        Parsed parsed = parseMain(u.text, drops);
        Renderer r{drops, {}, 0};
        for (const Unit& unit : parsed.units)
            r.unit(unit, false);
        const ChatTier* mor = file.tier(u, "mor");
        std::vector<std::string_view> items;
        if (mor)
            items = morWordItems(mor->text);
        bool aligned = mor && static_cast<int>(items.size()) == r.slots;
        if (mor && !aligned)
            ++result.morFallbacks;
        for (Out& o : r.out) {
            if (o.type != Out::Word || o.slot < 0)
                continue;
            o.text = aligned
                         ? wordFromMor(o.surface, parseMorItem(items[static_cast<size_t>(o.slot)]))
                         : wordFromSpelling(o.surface, options.dictionary);
        }
        t += letter->second;
        t += ' ';
        t += renderUtterance(r.out, parsed.terminator);
        t += '\n';
        for (const ChatTier& tier : u.tiers)
            if (isTextTier(tier.name))
                t += "= %" + tier.name + ": " + commentText(tier.text) + "\n";
    }
    while (nextHeader < file.headers.size())
        commentHeader(file.headers[nextHeader++]);
    if (timed) {
        long long end = 0;
        for (const ChatUtterance& u : file.utterances)
            if (u.endMs)
                end = std::max(end, *u.endMs);
        if (end / 1000 > lastSecond)
            t += "- " + timeText(end) + "\n";
    }

    for (int d = 0; d < DropCount; ++d) {
        if (d == DropTier) {
            for (const auto& [name, n] : drops.tiers)
                result.dropped.push_back({name, n});
        } else if (drops.counts[static_cast<size_t>(d)] > 0) {
            result.dropped.push_back({std::string(kDropNames[static_cast<size_t>(d)]),
                                      drops.counts[static_cast<size_t>(d)]});
        }
    }
    result.ok = true;
    return result;
}

} // namespace tavi
