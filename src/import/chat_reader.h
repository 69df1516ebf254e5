// Reads a CHAT transcript into its parts: header lines in order, the
// participants and their @ID fields, and the utterances (main tier with its
// time bullet, and its dependent tiers). Nothing is interpreted beyond the
// line structure; the mapping to TAVI's notation is in chat_import.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

struct ChatHeader {
    std::string name;      // "Participants", "G", "Bg", "Comment" ...
    std::string value;     // the text after ":" and the tab; empty when none
    int beforeUtterance{}; // index of the utterance that follows it
    int line{};            // 1-based line in the CHAT file
};

struct ChatParticipant {
    std::string code; // "CHI"
    std::string name; // "Adam"; empty when only a role is given
    std::string role; // "Target_Child"
    // From the participant's @ID line: age "8;06.16", sex, group.
    std::string age, sex, group;
};

struct ChatTier {
    std::string name; // "mor", "gra", "wor" ...
    std::string text;
};

struct ChatUtterance {
    std::string speaker; // "CHI"
    std::string text;    // the main tier, continuation lines joined, bullets removed
    std::optional<long long> startMs, endMs; // from the time bullet
    std::vector<ChatTier> tiers;
    int line{};
};

struct ChatFile {
    std::vector<ChatHeader> headers;
    std::vector<ChatParticipant> participants;
    std::vector<ChatUtterance> utterances;
    int strayLines = 0; // lines that are neither header, main tier nor dependent tier

    const ChatParticipant* participant(std::string_view code) const;
    const ChatTier* tier(const ChatUtterance& u, std::string_view name) const;
};

ChatFile readChat(std::string_view text);

} // namespace tavi
