// The keyword file line grammar, reading and writing.
#include "settings/keyword_file.h"

#include <charconv>
#include <system_error>

#include "base/text.h"

namespace tavi {

std::pair<std::string_view, std::string_view> splitAtFirstBlank(std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
        if (isBlank(text[i]))
            return {text.substr(0, i), trimLeft(text.substr(i + 1))};
    }
    return {text, {}};
}

KeywordLine parseKeywordLine(std::string_view line) {
    KeywordLine parsed;
    line = trim(line);
    parsed.text.assign(line);
    auto [keyword, value] = splitAtFirstBlank(line);
    parsed.keyword.assign(keyword);
    parsed.value.assign(value);
    auto [subKey, rest] = splitAtFirstBlank(value);
    parsed.subKey.assign(subKey);
    parsed.rest.assign(rest);
    return parsed;
}

std::vector<std::string> keywordTextLines(std::string_view bytes) {
    DecodedText decoded = decodeText(bytes);
    std::vector<std::string> lines;
    for (std::string_view line : splitLines(decoded.utf8)) {
        line = trim(line);
        if (!line.empty())
            lines.emplace_back(line);
    }
    return lines;
}

std::vector<KeywordLine> parseKeywordText(std::string_view bytes) {
    std::vector<KeywordLine> parsed;
    for (const std::string& line : keywordTextLines(bytes))
        parsed.push_back(parseKeywordLine(line));
    return parsed;
}

std::optional<std::vector<KeywordLine>> readKeywordFile(const std::filesystem::path& path) {
    std::string bytes;
    if (!readFile(path, bytes))
        return std::nullopt;
    return parseKeywordText(bytes);
}

bool keyIs(std::string_view text, std::string_view key) {
    return equalsIgnoreCase(text, key);
}

std::optional<bool> yesNoValue(std::string_view value) {
    if (keyIs(value, "YES"))
        return true;
    if (keyIs(value, "NO"))
        return false;
    return std::nullopt;
}

std::optional<FlagSubKey> splitFlagSubKey(std::string_view subKey) {
    constexpr std::string_view yes = "_YES";
    constexpr std::string_view no = "_NO";
    auto endsWith = [&](std::string_view suffix) {
        return subKey.size() >= suffix.size() &&
               keyIs(subKey.substr(subKey.size() - suffix.size()), suffix);
    };
    if (endsWith(yes))
        return FlagSubKey{std::string(subKey.substr(0, subKey.size() - yes.size())), true};
    if (endsWith(no))
        return FlagSubKey{std::string(subKey.substr(0, subKey.size() - no.size())), false};
    return std::nullopt;
}

std::optional<int> parseWholeNumber(std::string_view text) {
    text = trim(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    if (text.empty())
        return std::nullopt;
    int number = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (ec != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

void applyListValue(std::vector<std::string>& list, std::string_view value) {
    if (keyIs(value, "REMOVEALL"))
        list.clear();
    else if (!value.empty())
        list.emplace_back(value);
}

bool applyNumberedValue(std::map<int, std::string>& list, std::string_view value, int maxIndex) {
    if (keyIs(value, "REMOVEALL")) {
        list.clear();
        return true;
    }
    auto [number, text] = splitAtFirstBlank(value);
    std::optional<int> index = parseWholeNumber(number);
    if (!index || *index < 0 || *index > maxIndex)
        return false;
    list[*index] = std::string(text);
    return true;
}

std::string keywordFileBytes(const std::vector<std::string>& lines) {
    std::string bytes(kUtf8Bom);
    for (const std::string& line : lines) {
        bytes += line;
        bytes += '\n';
    }
    return bytes;
}

WriteStatus writeKeywordFile(const std::filesystem::path& path,
                             const std::vector<std::string>& lines) {
    std::string bytes = keywordFileBytes(lines);
    WriteStatus status = writeFileAtomic(path, bytes);
    if (status == WriteStatus::CannotOpen && path.has_parent_path()) {
        std::error_code ec;
        std::filesystem::create_directories(path.parent_path(), ec);
        status = writeFileAtomic(path, bytes);
    }
    return status;
}

} // namespace tavi
