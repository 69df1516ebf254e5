// CHAT import: turns a CHAT transcript (the TalkBank/CHILDES format) into a
// TAVI transcript. The rules, one by one, are in docs/chat-import.md. What
// the notation cannot hold is dropped and counted, so that the caller can
// say what was lost.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/date_format.h"

namespace tavi {

class GcDictionary;

struct ChatImportOptions {
    // CHAT code of the target speaker; empty: the Target_Child, else "CHI",
    // else the first participant.
    std::string target;
    DateFormat dateFormat; // of the DOB and DOE lines written
    // For endings from the spelling when an utterance has no usable %mor
    // tier; null: only contractions are split.
    const GcDictionary* dictionary = nullptr;
};

struct ChatDropCount {
    std::string what; // "%gra tier lines", "form markers (@c, @l ...)"
    int count = 0;
};

struct ChatSpeakerMapping {
    std::string code;  // CHAT code, "EXA"
    std::string label; // label on the "$" line, "Investigator"
    int group = 0;     // 0 target, 1 main adult, 2 others
    int utterances = 0;
};

struct ChatImport {
    bool ok = false;
    std::string problem; // why nothing was imported, when !ok
    std::string text;    // the TAVI transcript, lines ended by LF, no byte order mark
    std::vector<ChatSpeakerMapping> speakers;
    std::vector<ChatDropCount> dropped; // by kind, in a fixed order; kinds never met are left out
    int morFallbacks = 0;               // utterances whose %mor did not line up with the words

    int droppedTotal() const;
};

ChatImport importChat(std::string_view chat, const ChatImportOptions& options);

// One line for a user: "dropped 12 %gra tier lines, 3 form markers (@c, @l ...)",
// or "nothing dropped".
std::string droppedSummary(const ChatImport& import);

} // namespace tavi
