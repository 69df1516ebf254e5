// Conversion of the older three-file layout into one ".tvidb" file.
#include "database/older_format.h"

#include <system_error>

#include "base/file_io.h"
#include "base/format.h"
#include "database/database_file.h"
#include "database/db_fields.h"
#include "database/db_messages.h"
#include "database/transcript_data.h"

namespace tavi::db {

namespace {

void say(Prompter& prompter, const char* fmt, const std::filesystem::path& path) {
    prompter.inform(format(fmt, path.string().c_str()));
}

// The bytes of a companion file; empty (after the message) when it is missing.
std::string companion(const std::filesystem::path& path, Prompter& prompter) {
    std::string bytes;
    if (!readFile(path, bytes)) {
        say(prompter, msg::kAssumeEmpty, path);
        bytes.clear();
    }
    return bytes;
}

// Appends every record of the .sd2 bytes with its entries from the .sd3 bytes.
bool copyRecords(std::string_view sd2Bytes, std::string_view sd3Bytes, Database& target,
                 Prompter& prompter) {
    for (std::size_t at = 0; at + kRecordSize <= sd2Bytes.size(); at += kRecordSize) {
        sd2 record = decodeRecord(sd2Bytes.substr(at, kRecordSize));
        if (record.dataPosition < 0 || record.dataEnd < record.dataPosition ||
            record.dataEnd > static_cast<std::int64_t>(sd3Bytes.size())) {
            prompter.inform(msg::kEntriesSeek);
            return false;
        }
        auto text = decodeTranscriptData(
            sd3Bytes.substr(static_cast<std::size_t>(record.dataPosition),
                            static_cast<std::size_t>(record.dataEnd - record.dataPosition)));
        if (!text) {
            prompter.inform(msg::kEntriesRead);
            return false;
        }
        if (!target.append(record, *text, prompter)) {
            prompter.inform(msg::kEntriesWrite);
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<std::filesystem::path> convertOlderDatabase(const std::filesystem::path& sd1,
                                                          Prompter& prompter) {
    if (prompter.ask(format(msg::kConvertQuestion, sd1.string().c_str())) != Answer::Yes)
        return std::nullopt;
    std::filesystem::path base = sd1;
    base.replace_extension();
    auto named = [&](const char* extension) {
        std::filesystem::path p = base;
        p += extension;
        return p;
    };
    std::string header;
    if (!readFile(sd1, header)) {
        say(prompter, msg::kConvertCannotOpen, sd1);
        return std::nullopt;
    }
    DbHeader fixed;
    // Its positions point into the ".sd2" file (0/3168 and 1/3169 both name
    // three records); the records are taken from that file whole.
    HeaderProblem problem = decodeHeader(header, fixed, PositionCheck::Readable);
    if (problem == HeaderProblem::WrongVersion) {
        auto version = parseNumberField(std::string_view(header).substr(0, 6));
        prompter.inform(format(msg::kConvertWrongVersion, sd1.string().c_str(),
                               static_cast<int>(version.value_or(0))));
        return std::nullopt;
    }
    DescriptiveHeader info;
    if (problem != HeaderProblem::None ||
        !decodeDescriptiveHeader(std::string_view(header).substr(kFixedHeaderSize), info) ||
        info.context.empty()) {
        say(prompter, msg::kCouldNotConvert, sd1);
        return std::nullopt;
    }

    std::filesystem::path target = named(".tvidb");
    Database converted(std::make_unique<MemoryDbFile>(newDatabaseBytes(info)), target.string());
    std::string sd2Bytes = companion(named(".sd2"), prompter);
    std::string sd3Bytes = sd2Bytes.empty() ? std::string() : companion(named(".sd3"), prompter);
    if (sd3Bytes.empty())
        sd2Bytes.clear(); // without entries there are no usable transcripts
    if (!copyRecords(sd2Bytes, sd3Bytes, converted, prompter)) {
        say(prompter, msg::kCouldNotConvert, sd1);
        return std::nullopt;
    }

    std::error_code ec;
    if (std::filesystem::exists(target, ec)) {
        say(prompter, msg::kConvertCannotCreate, target);
        return std::nullopt;
    }
    switch (writeFileAtomic(target, static_cast<MemoryDbFile&>(converted.file()).bytes())) {
    case WriteStatus::Ok:
        return target;
    case WriteStatus::CannotOpen:
        say(prompter, msg::kConvertCannotCreate, target);
        return std::nullopt;
    case WriteStatus::WriteFailed:
        say(prompter, msg::kConvertWriteFailed, target);
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace tavi::db
