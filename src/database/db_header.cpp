// Reading and writing the front of a database file.
//
// A long text whose length is an exact multiple of 80 is written with a block
// count one higher than the blocks written, so a reader cannot tell from the
// count alone whether the last stated block is present. The descriptive header
// must end exactly where the first record (or the file) begins, and only the
// right reading of every such text ends there; the reader therefore tries the
// readings in turn (a handful at most) and keeps the one that ends exactly.
#include "database/db_header.h"

#include "base/format.h"
#include "base/text.h"
#include "database/db_fields.h"

namespace tavi::db {

bool isAcceptedVersion(std::int64_t version) {
    if (version == kCurrentVersion)
        return true;
    std::string_view older = kAcceptedOlderVersions;
    while (!older.empty()) {
        std::size_t slash = older.find('/');
        std::string_view item = older.substr(0, slash);
        std::u16string units(item.begin(), item.end());
        std::string bytes;
        for (char16_t u : units) {
            bytes.push_back(static_cast<char>(u));
            bytes.push_back('\0');
        }
        if (auto v = parseNumberField(bytes); v && *v == version)
            return true;
        older = slash == std::string_view::npos ? std::string_view() : older.substr(slash + 1);
    }
    return false;
}

std::optional<std::string> encodeHeader(const DbHeader& header) {
    auto fits = [](std::int64_t p) { return p >= 0 && p <= kMaxPosition; };
    if (!fits(header.firstRecord) || !fits(header.lastRecord))
        return std::nullopt;
    return encodeNumberField(kCurrentVersion, 3) +
           encodeNumberField(static_cast<std::int32_t>(header.firstRecord), 12) +
           encodeNumberField(static_cast<std::int32_t>(header.lastRecord), 12);
}

HeaderProblem decodeHeader(std::string_view bytes, DbHeader& header, PositionCheck check) {
    if (bytes.size() < 6)
        return HeaderProblem::MissingVersion;
    auto version = parseNumberField(bytes.substr(0, 6));
    if (!version || !isAcceptedVersion(*version))
        return HeaderProblem::WrongVersion;
    // Either both positions are 0 (no records) or both point past the header,
    // the last not before the first.
    bool chain = check == PositionCheck::Chain;
    auto first = bytes.size() >= 30 ? parseNumberField(bytes.substr(6, 24)) : std::nullopt;
    if (!first ||
        (chain && (*first < 0 || (*first > 0 && *first < std::int64_t(kFixedHeaderSize)))))
        return HeaderProblem::MissingFirst;
    auto last = bytes.size() >= 54 ? parseNumberField(bytes.substr(30, 24)) : std::nullopt;
    if (!last || (chain && ((*first == 0) != (*last == 0) || *last < *first)))
        return HeaderProblem::MissingLast;
    header.version = static_cast<int>(*version);
    header.firstRecord = *first;
    header.lastRecord = *last;
    return HeaderProblem::None;
}

int sampleTypeFromCode(std::optional<std::int64_t> code) {
    if (code == 102)
        return 5;
    if (code == 103)
        return 6;
    return kSampleTypeDefault; // 101, 104, missing or unreadable
}

int sampleTypeCode(int sampleType) {
    return sampleType == 5 ? 102 : sampleType == 6 ? 103 : 101;
}

int longTextBlockCount(std::string_view utf8) {
    std::size_t length = utf16Length(utf8);
    if (length == 0)
        return 0;
    return static_cast<int>((length + 1 + kBlockUnits - 1) / kBlockUnits);
}

std::string encodeLongText(std::string_view utf8) {
    // "%3d" can state at most 999 blocks: longer texts are cut.
    std::string text = cutToUnits(utf8, kMaxBlocks * kBlockUnits - 1);
    std::u16string units = toUtf16(text);
    std::string out = encodeNumberField(longTextBlockCount(text), 3);
    for (std::size_t start = 0; start < units.size(); start += kBlockUnits) {
        std::u16string block = units.substr(start, kBlockUnits);
        block.resize(kBlockUnits, u'\0');
        for (char16_t u : block) {
            out.push_back(static_cast<char>(u & 0xFF));
            out.push_back(static_cast<char>(u >> 8));
        }
    }
    return out;
}

std::string joinCodeList(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& raw : items) {
        std::string_view item = trim(raw);
        if (item.empty())
            continue;
        if (!text.empty())
            text += kListSeparator;
        if (item.front() == '[')
            text += item;
        else
            text += "[" + std::string(item) + "]";
    }
    return text.empty() ? "[]" : text; // a stored list always begins with "["
}

std::vector<std::string> splitCodeList(std::string_view text) {
    std::vector<std::string> items;
    while (!text.empty()) {
        std::size_t cut = text.find(kListSeparator);
        std::string_view item = trim(text.substr(0, cut));
        if (!item.empty() && item != "[]")
            items.emplace_back(item);
        text = cut == std::string_view::npos ? std::string_view()
                                             : text.substr(cut + kListSeparator.size());
    }
    return items;
}

std::string encodeDescriptiveHeader(const DescriptiveHeader& h) {
    std::string out;
    if (h.restricted)
        out += encodeFixedText(
            format("%s %s", std::string(kRestrictedWord).c_str(), h.password.c_str()),
            kRestrictedBlockBytes / 2);
    out += encodeLongText(h.context);
    out += encodeLongText(h.description);
    out += encodeLongText(h.further);
    for (const auto& list : h.codeLists)
        out += encodeLongText(joinCodeList(list));
    out += encodeNumberField(sampleTypeCode(h.sampleType), 3);
    out += encodeLongText(h.enforcement);
    out += encodeLongText(h.enforcedValues);
    out += encodeNumberField(h.ageSpan >= 1 && h.ageSpan <= 60 ? h.ageSpan : kDefaultAgeSpan, 3);
    out += encodeLongText(h.setting12);
    out += encodeLongText(h.setting13);
    return out;
}

namespace {

// The choices made at ambiguous last blocks during one reading attempt.
struct Choices {
    std::vector<bool> taken;
    std::size_t next = 0;
    bool needMore = false;
};

bool blockHasNul(std::string_view block) {
    for (std::size_t i = 0; i + 1 < block.size(); i += 2)
        if (block[i] == '\0' && block[i + 1] == '\0')
            return true;
    return false;
}

class Reader {
public:
    Reader(std::string_view bytes, Choices& choices) : bytes_(bytes), choices_(choices) {}

    bool failed() const { return failed_; }
    bool atEnd() const { return pos_ == bytes_.size(); }
    std::size_t remaining() const { return bytes_.size() - pos_; }
    std::size_t position() const { return pos_; }
    void skip(std::size_t n) { pos_ += n; }

    std::optional<std::string> longText() {
        if (remaining() < 6)
            return fail();
        auto count = parseNumberField(bytes_.substr(pos_, 6));
        pos_ += 6;
        if (!count)
            return fail();
        std::string text;
        bool allFull = true;
        for (std::int64_t i = 0; i < *count; ++i) {
            if (i > 0 && i == *count - 1 && allFull && !takeLastBlock())
                break;
            if (failed_ || remaining() < kBlockBytes)
                return fail();
            std::string_view block = bytes_.substr(pos_, kBlockBytes);
            allFull = allFull && !blockHasNul(block);
            text += decodeFixedText(block);
            pos_ += kBlockBytes;
        }
        return text;
    }

    // A code list: absent (position unchanged) unless its count is at least 1
    // and its first block begins with "[".
    std::optional<std::vector<std::string>> codeList() {
        if (remaining() < 6 + kBlockBytes)
            return std::nullopt;
        auto count = parseNumberField(bytes_.substr(pos_, 6));
        if (!count || *count < 1 || bytes_[pos_ + 6] != '[' || bytes_[pos_ + 7] != '\0')
            return std::nullopt;
        auto text = longText();
        if (!text)
            return std::nullopt;
        return splitCodeList(*text);
    }

    // A "%3d" item; nullopt when unreadable (the bytes are still consumed).
    std::optional<std::int64_t> number() {
        if (remaining() < 6) {
            fail();
            return std::nullopt;
        }
        auto value = parseNumberField(bytes_.substr(pos_, 6));
        pos_ += 6;
        return value;
    }

private:
    std::nullopt_t fail() {
        failed_ = true;
        return std::nullopt;
    }

    // Whether the last stated block of a text made only of full blocks is there.
    bool takeLastBlock() {
        if (remaining() < kBlockBytes || !blockHasNul(bytes_.substr(pos_, kBlockBytes)))
            return false; // a written last block always holds the terminator
        if (choices_.next < choices_.taken.size())
            return choices_.taken[choices_.next++];
        choices_.needMore = true;
        failed_ = true;
        return false;
    }

    std::string_view bytes_;
    Choices& choices_;
    std::size_t pos_ = 0;
    bool failed_ = false;
};

// One reading attempt; true when every item present could be read. Items
// missing at the end of the bytes keep their defaults.
bool readItems(Reader& r, DescriptiveHeader& h) {
    for (std::string* text : {&h.context, &h.description, &h.further}) {
        if (r.atEnd() && text != &h.context)
            return true;
        auto value = r.longText();
        if (!value)
            return false;
        *text = *value;
    }
    for (auto& list : h.codeLists) {
        if (r.failed())
            return false;
        if (auto items = r.codeList())
            list = *items;
    }
    if (r.failed())
        return false;
    if (r.atEnd())
        return true; // the rest is missing: defaults
    h.sampleType = sampleTypeFromCode(r.number());
    std::string* texts[] = {&h.enforcement, &h.enforcedValues};
    for (std::string* text : texts) {
        if (r.atEnd() || r.failed())
            return !r.failed();
        auto value = r.longText();
        if (!value)
            return false;
        *text = *value;
    }
    if (r.atEnd())
        return true;
    auto span = r.number();
    h.ageSpan = span && *span >= 1 && *span <= 60 ? static_cast<int>(*span) : kDefaultAgeSpan;
    for (std::string* text : {&h.setting12, &h.setting13}) {
        if (r.atEnd() || r.failed())
            return !r.failed();
        auto value = r.longText();
        if (!value)
            return false;
        *text = *value;
    }
    return !r.failed();
}

bool readRestrictedBlock(Reader& r, std::string_view bytes, DescriptiveHeader& h) {
    if (bytes.size() < kRestrictedBlockBytes)
        return false;
    std::string text = decodeFixedText(bytes.substr(0, kRestrictedBlockBytes));
    if (!text.starts_with(kRestrictedWord))
        return false;
    std::size_t blank = text.find(' ');
    h.restricted = true;
    h.password = blank == std::string::npos ? "" : std::string(trim(text.substr(blank + 1)));
    r.skip(kRestrictedBlockBytes);
    return true;
}

constexpr int kMaxAttempts = 256;

} // namespace

bool decodeDescriptiveHeader(std::string_view bytes, DescriptiveHeader& header) {
    std::optional<DescriptiveHeader> exact, complete;
    Choices choices;
    int attempts = 0;
    // Depth-first over the choices at ambiguous blocks, "present" first.
    auto search = [&](auto& self) -> void {
        if (exact || ++attempts > kMaxAttempts)
            return;
        DescriptiveHeader h = header;
        h.restricted = false;
        h.password.clear();
        choices.next = 0;
        choices.needMore = false;
        Reader r(bytes, choices);
        readRestrictedBlock(r, bytes, h);
        bool ok = readItems(r, h);
        if (choices.needMore) {
            for (bool present : {true, false}) {
                choices.taken.push_back(present);
                self(self);
                choices.taken.pop_back();
            }
            return;
        }
        if (ok && r.atEnd())
            exact = h;
        else if (ok && !complete)
            complete = h;
    };
    search(search);
    if (exact)
        header = *exact;
    else if (complete)
        header = *complete;
    else
        return false;
    return true;
}

std::optional<std::string> decodeLongText(std::string_view bytes) {
    Choices choices;
    for (bool lastPresent : {true, false}) {
        choices.taken.assign(1, lastPresent);
        choices.next = 0;
        Reader r(bytes, choices);
        auto text = r.longText();
        if (text && r.atEnd())
            return text;
    }
    return std::nullopt;
}

} // namespace tavi::db
