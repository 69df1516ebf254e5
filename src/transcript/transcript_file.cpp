// Reading and writing ".tvi" files, backup names and linked-pair texts.
#include "transcript/transcript_file.h"

#include "base/format.h"
#include "base/text.h"

namespace tavi {

LoadedTranscript decodeTranscript(std::string_view bytes, TextEncoding encoding) {
    DecodedText decoded = decodeText(bytes, encoding);
    LoadedTranscript result;
    result.ok = true;
    result.hadBom = decoded.hadBom;
    result.wasUtf8 = decoded.wasUtf8;
    result.text = std::move(decoded.utf8);
    result.lines = splitTranscriptLines(result.text);
    return result;
}

LoadedTranscript loadTranscript(const std::filesystem::path& path, TextEncoding encoding) {
    std::string bytes;
    if (!readFile(path, bytes))
        return {};
    return decodeTranscript(bytes, encoding);
}

bool readTranscriptText(const std::filesystem::path& path, std::string& text,
                        TextEncoding encoding) {
    if (!readFile(path, text))
        return false;
    // The usual file, UTF-8 without a byte order mark, is its own text: kept
    // as read rather than copied (large transcripts would be held twice).
    if (encoding == TextEncoding::Utf8 && !text.starts_with(kUtf8Bom) && isValidUtf8(text))
        return true;
    text = decodeText(text, encoding).utf8;
    return true;
}

TranLines splitTranscriptLines(std::string_view text) {
    std::vector<std::string_view> parts = splitLines(text);
    TranLines lines;
    lines.reserve(parts.size());
    int number = 0;
    for (std::string_view part : parts)
        lines.push_back(tranLine{std::string(part), ++number});
    return lines;
}

WriteStatus saveTranscript(const std::filesystem::path& path, std::string_view text) {
    std::string bytes;
    bytes.reserve(kUtf8Bom.size() + text.size());
    bytes.append(kUtf8Bom);
    bytes.append(text);
    return writeFileAtomic(path, bytes);
}

std::filesystem::path backupPath(const std::filesystem::path& document,
                                 const std::filesystem::path& backupFolder) {
    std::string name = document.filename().string();
    if (size_t dot = name.find('.'); dot != std::string::npos)
        name.resize(dot);
    return backupFolder / (name + ".$VI");
}

std::string backupFailedMessage(const std::filesystem::path& backup) {
    return "Warning: unable to save automatic backup file (" + backup.string() + ")";
}

std::string linkedCaption(std::string_view first, std::string_view second) {
    return std::string(first) + " LINKED WITH " + std::string(second);
}

std::string unlinkQuestion(std::string_view first, std::string_view second) {
    return "Unlink " + std::string(first) + " and " + std::string(second) + "?";
}

std::string unlinkedMessage(std::string_view first, std::string_view second) {
    return std::string(first) + " and " + std::string(second) + " are no longer linked.";
}

} // namespace tavi
