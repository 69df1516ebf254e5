#include "import/chat_reader.h"

#include <algorithm>
#include <charconv>

namespace tavi {

namespace {

constexpr char kBullet = '\x15';

std::string_view trim(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t'))
        s.remove_suffix(1);
    return s;
}

std::vector<std::string_view> split(std::string_view s, char sep) {
    std::vector<std::string_view> parts;
    size_t start = 0;
    for (;;) {
        size_t at = s.find(sep, start);
        parts.push_back(
            s.substr(start, at == std::string_view::npos ? std::string_view::npos : at - start));
        if (at == std::string_view::npos)
            return parts;
        start = at + 1;
    }
}

// Takes every "\x15start_end\x15" bullet out of the text; the first one gives the times.
std::string takeBullets(std::string_view text, ChatUtterance& u) {
    std::string out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        if (text[i] != kBullet) {
            out.push_back(text[i++]);
            continue;
        }
        size_t close = text.find(kBullet, i + 1);
        if (close == std::string_view::npos) {
            ++i;
            continue;
        }
        std::string_view inner = text.substr(i + 1, close - i - 1);
        size_t us = inner.find('_');
        long long a = 0, b = 0;
        if (us != std::string_view::npos && !u.startMs) {
            auto r1 = std::from_chars(inner.data(), inner.data() + us, a);
            auto r2 = std::from_chars(inner.data() + us + 1, inner.data() + inner.size(), b);
            if (r1.ec == std::errc() && r2.ec == std::errc()) {
                u.startMs = a;
                u.endMs = b;
            }
        }
        out.push_back(' ');
        i = close + 1;
    }
    return out;
}

void readParticipants(std::string_view value, std::vector<ChatParticipant>& out) {
    for (std::string_view entry : split(value, ',')) {
        std::vector<std::string_view> words;
        for (std::string_view w : split(trim(entry), ' '))
            if (!trim(w).empty())
                words.push_back(trim(w));
        if (words.empty())
            continue;
        ChatParticipant p;
        p.code = words[0];
        if (words.size() == 2)
            p.role = words[1];
        else if (words.size() >= 3) {
            p.name = words[1];
            p.role = words[2];
        }
        out.push_back(std::move(p));
    }
}

// "@ID: language|corpus|code|age|sex|group|ses|role|education|custom|"
void readId(std::string_view value, std::vector<ChatParticipant>& participants) {
    std::vector<std::string_view> f = split(value, '|');
    if (f.size() < 8)
        return;
    std::string code(trim(f[2]));
    auto it = std::find_if(participants.begin(), participants.end(),
                           [&](const ChatParticipant& p) { return p.code == code; });
    if (it == participants.end()) {
        participants.push_back({code, "", std::string(trim(f[7])), "", "", ""});
        it = participants.end() - 1;
    }
    it->age = trim(f[3]);
    it->sex = trim(f[4]);
    it->group = trim(f[5]);
    if (it->role.empty())
        it->role = trim(f[7]);
}

} // namespace

const ChatParticipant* ChatFile::participant(std::string_view code) const {
    for (const ChatParticipant& p : participants)
        if (p.code == code)
            return &p;
    return nullptr;
}

const ChatTier* ChatFile::tier(const ChatUtterance& u, std::string_view name) const {
    for (const ChatTier& t : u.tiers)
        if (t.name == name)
            return &t;
    return nullptr;
}

ChatFile readChat(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    // Logical lines: a line that begins with a tab continues the one before.
    struct Logical {
        std::string text;
        int line;
    };
    std::vector<Logical> lines;
    int number = 0;
    size_t pos = 0;
    while (pos < text.size()) {
        size_t end = text.find_first_of("\r\n", pos);
        std::string_view line =
            text.substr(pos, end == std::string_view::npos ? text.size() - pos : end - pos);
        ++number;
        if (end == std::string_view::npos)
            pos = text.size();
        else
            pos =
                end + (text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n' ? 2 : 1);
        if (!line.empty() && line.front() == '\t' && !lines.empty()) {
            lines.back().text += ' ';
            lines.back().text += trim(line);
        } else if (!trim(line).empty()) {
            lines.push_back({std::string(line), number});
        }
    }

    ChatFile file;
    for (const Logical& l : lines) {
        std::string_view s = l.text;
        size_t colon = s.find(':');
        if (s.front() == '@') {
            ChatHeader h;
            h.line = l.line;
            h.beforeUtterance = static_cast<int>(file.utterances.size());
            if (colon == std::string_view::npos) {
                h.name = trim(s.substr(1));
            } else {
                h.name = trim(s.substr(1, colon - 1));
                h.value = trim(s.substr(colon + 1));
            }
            if (h.name == "Participants")
                readParticipants(h.value, file.participants);
            else if (h.name == "ID")
                readId(h.value, file.participants);
            file.headers.push_back(std::move(h));
        } else if (s.front() == '*' && colon != std::string_view::npos) {
            ChatUtterance u;
            u.line = l.line;
            u.speaker = trim(s.substr(1, colon - 1));
            u.text = takeBullets(s.substr(colon + 1), u);
            file.utterances.push_back(std::move(u));
        } else if (s.front() == '%' && colon != std::string_view::npos &&
                   !file.utterances.empty()) {
            file.utterances.back().tiers.push_back({std::string(trim(s.substr(1, colon - 1))),
                                                    std::string(trim(s.substr(colon + 1)))});
        } else {
            ++file.strayLines;
        }
    }
    return file;
}

} // namespace tavi
