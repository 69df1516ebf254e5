// The front of a database file: the fixed header (version and the positions of
// the first and last transcript information records), the optional
// restricted-access block, and the descriptive header (sampling context,
// description, code lists, sample type and settings).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavi::db {

inline constexpr int kCurrentVersion = 20;
// Older versions still read, separated by "/".
inline constexpr std::string_view kAcceptedOlderVersions = "18";
inline constexpr std::size_t kFixedHeaderSize = 54;   // version and two positions
inline constexpr std::int64_t kDescriptiveStart = 54; // restricted block or descriptive header
inline constexpr std::size_t kBlockUnits = 80;        // characters per long-text block
inline constexpr std::size_t kBlockBytes = 160;       // bytes per long-text block
inline constexpr std::size_t kRestrictedBlockBytes = 160;
inline constexpr std::string_view kRestrictedWord = "RESTRICTED";
inline constexpr std::size_t kMaxPasswordUnits = 68;     // "RESTRICTED " + password in 79
inline constexpr int kMaxBlocks = 999;                   // what "%3d" can state
inline constexpr std::int64_t kMaxPosition = 0x7FFFFFFF; // positions are written from 32 bits

bool isAcceptedVersion(std::int64_t version);

struct DbHeader {
    int version = kCurrentVersion;
    std::int64_t firstRecord = 0; // 0: the database holds no records
    std::int64_t lastRecord = 0;  // 0: none

    bool operator==(const DbHeader&) const = default;
};

// The 54 bytes of the fixed header; always the current version. Nullopt when a
// position does not fit in the 32-bit value it is written from.
std::optional<std::string> encodeHeader(const DbHeader& header);

enum class HeaderProblem { None, MissingVersion, WrongVersion, MissingFirst, MissingLast };

// How far the two record positions are checked. A ".tvidb" file's positions
// form a chain inside the file: both 0, or both past the header with the last
// not before the first. The older three-file layout's header points into its
// companion files, so there the positions need only be readable numbers.
enum class PositionCheck { Chain, Readable };

// Reads the fixed header from the first bytes of a file (which may be short).
HeaderProblem decodeHeader(std::string_view bytes, DbHeader& header,
                           PositionCheck check = PositionCheck::Chain);

// The four code lists, in the order of the descriptive header.
enum CodeListKind { ErrorCodes = 0, FluencyCodes, NonmainstreamCodes, CodeSwitchCodes };
inline constexpr std::string_view kListSeparator = " ";

// Sample types as the builder offers them; the file holds 101 to 104.
inline constexpr int kSampleTypeDefault = 4;
int sampleTypeFromCode(std::optional<std::int64_t> code);
int sampleTypeCode(int sampleType);

inline constexpr int kDefaultAgeSpan = 6;

// What the descriptive header holds. Items 9 and 10 hold the builder's
// match-enforcement switches and values (see docs/database-format.md).
struct DescriptiveHeader {
    bool restricted = false;
    std::string password;

    std::string context;                               // item 1, never empty in a valid file
    std::string description;                           // item 2
    std::string further;                               // item 3: written empty, read past
    std::array<std::vector<std::string>, 4> codeLists; // items 4-7
    int sampleType = kSampleTypeDefault;               // item 8
    std::string enforcement;                           // item 9: "YNNNN" switches
    std::string enforcedValues;                        // item 10: tab-separated values
    int ageSpan = kDefaultAgeSpan;                     // item 11: 1 to 60
    std::string setting12;                             // item 12: kept as read
    std::string setting13;                             // item 13: kept as read

    bool operator==(const DescriptiveHeader&) const = default;
};

// Long text fields.
std::string encodeLongText(std::string_view utf8);
int longTextBlockCount(std::string_view utf8);

// The list text that begins with "[" as stored, and its items read back.
std::string joinCodeList(const std::vector<std::string>& items);
std::vector<std::string> splitCodeList(std::string_view text);

// The bytes from offset 54 on: restricted block (when restricted) and the
// thirteen items.
std::string encodeDescriptiveHeader(const DescriptiveHeader& header);

// Reads the restricted block and the descriptive header from `bytes`, which
// are the file's bytes from offset 54 to where the descriptive header must
// end (the first record, or the end of the file). Code lists absent from the
// file keep what `header` held. False when the bytes cannot hold the header.
bool decodeDescriptiveHeader(std::string_view bytes, DescriptiveHeader& header);

// A long text field alone (count and blocks) that fills `bytes` exactly.
std::optional<std::string> decodeLongText(std::string_view bytes);

} // namespace tavi::db
