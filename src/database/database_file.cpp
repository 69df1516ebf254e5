// Operations on an open database file.
#include "database/database_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include "base/file_io.h"
#include "base/format.h"
#include "base/text.h"
#include "database/db_messages.h"
#include "database/transcript_data.h"

namespace tavi::db {

namespace {

// Items 1-13 at their longest, plus the restricted block.
constexpr std::int64_t kMaxDescriptiveBytes =
    kRestrictedBlockBytes + 11 * (6 + kMaxBlocks * static_cast<std::int64_t>(kBlockBytes)) + 12;

void say(Prompter& prompter, const char* fmt, const std::string& name) {
    prompter.inform(format(fmt, name.c_str()));
}

// Writable for this process, and not marked read-only by its permission bits
// (which the superuser would otherwise ignore).
bool isWritable(const std::filesystem::path& path) {
    struct stat st {};
    return ::access(path.c_str(), W_OK) == 0 && ::stat(path.c_str(), &st) == 0 &&
           (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

} // namespace

Database::Database(std::unique_ptr<DbFile> file, std::string name, std::filesystem::path path,
                   bool readOnly)
    : file_(std::move(file)), name_(std::move(name)), path_(std::move(path)), readOnly_(readOnly) {}

bool Database::readHeader(Prompter& prompter) {
    std::int64_t size = file_->size();
    if (size < 0) {
        prompter.inform(msg::kSeekRead);
        return false;
    }
    std::string bytes(static_cast<std::size_t>(std::min<std::int64_t>(size, kFixedHeaderSize)),
                      '\0');
    if (!file_->readAt(0, bytes.data(), bytes.size())) {
        prompter.inform(msg::kRead);
        return false;
    }
    switch (decodeHeader(bytes, header_)) {
    case HeaderProblem::None:
        return true;
    case HeaderProblem::MissingVersion:
        say(prompter, msg::kMissingVersion, name_);
        return false;
    case HeaderProblem::WrongVersion:
        say(prompter, msg::kWrongVersion, name_);
        return false;
    case HeaderProblem::MissingFirst:
        say(prompter, msg::kMissingFirst, name_);
        return false;
    case HeaderProblem::MissingLast:
        say(prompter, msg::kMissingLast, name_);
        return false;
    }
    return false;
}

bool Database::readDescriptiveHeader(Prompter& prompter) {
    std::int64_t size = file_->size();
    std::int64_t start = isAcceptedVersion(header_.version) ? kDescriptiveStart : 6;
    std::int64_t end =
        header_.firstRecord > 0 && header_.firstRecord <= size ? header_.firstRecord : size;
    if (size < 0 || end < start) {
        prompter.inform(msg::kRead);
        return false;
    }
    std::string bytes(static_cast<std::size_t>(std::min(end - start, kMaxDescriptiveBytes)), '\0');
    if (!file_->readAt(start, bytes.data(), bytes.size()) ||
        !decodeDescriptiveHeader(bytes, info_)) {
        prompter.inform(msg::kRead);
        return false;
    }
    if (info_.context.empty()) {
        say(prompter, msg::kMissingContextIn, name_);
        return false;
    }
    return true;
}

bool Database::writeHeader() {
    auto bytes = encodeHeader(header_);
    return bytes && file_->writeAt(0, bytes->data(), bytes->size());
}

std::optional<sd2> Database::readRecordAt(std::int64_t position, std::int64_t fileSize,
                                          Prompter& prompter) {
    if (position < kDescriptiveStart || position > fileSize - std::int64_t(kRecordSize)) {
        prompter.inform(msg::kRecordSeek);
        return std::nullopt;
    }
    std::string bytes(kRecordSize, '\0');
    if (!file_->readAt(position, bytes.data(), bytes.size())) {
        prompter.inform(msg::kRecordRead);
        return std::nullopt;
    }
    sd2 record = decodeRecord(bytes);
    if (record.position != position) {
        prompter.inform(msg::kRecordRead);
        return std::nullopt;
    }
    return record;
}

std::optional<std::vector<sd2>> Database::records(Prompter& prompter) {
    std::vector<sd2> list;
    if (header_.firstRecord <= 0)
        return list;
    std::int64_t size = file_->size();
    std::int64_t position = header_.firstRecord;
    std::int64_t previous = 0;
    while (true) {
        auto record = readRecordAt(position, size, prompter);
        if (!record)
            return std::nullopt;
        if (record->previous != previous) { // both walks must agree on the chain
            prompter.inform(msg::kRecordRead);
            return std::nullopt;
        }
        previous = position;
        list.push_back(*record);
        if (position == header_.lastRecord)
            return list;
        // The next record starts where this one's data ends; positions only grow.
        if (record->dataEnd < position + std::int64_t(kRecordSize)) {
            prompter.inform(msg::kRecordSeek);
            return std::nullopt;
        }
        position = record->dataEnd;
    }
}

std::optional<std::vector<sd2>> Database::recordsBackward(Prompter& prompter) {
    std::vector<sd2> list;
    if (header_.firstRecord <= 0)
        return list;
    std::int64_t size = file_->size();
    std::int64_t position = header_.lastRecord;
    std::int64_t next = -1;
    while (true) {
        auto record = readRecordAt(position, size, prompter);
        if (!record)
            return std::nullopt;
        if (next >= 0 && record->dataEnd != next) { // both walks must agree on the chain
            prompter.inform(msg::kRecordRead);
            return std::nullopt;
        }
        next = position;
        list.push_back(*record);
        if (position == header_.firstRecord)
            return list;
        if (record->previous <= 0 || record->previous >= position) {
            prompter.inform(msg::kRecordSeek);
            return std::nullopt;
        }
        position = record->previous;
    }
}

std::optional<std::string> Database::readTranscript(const sd2& record, Prompter& prompter) {
    std::int64_t size = file_->size();
    if (record.dataPosition < kDescriptiveStart || record.dataEnd < record.dataPosition ||
        record.dataEnd > size) {
        prompter.inform(msg::kEntriesSeek);
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(record.dataEnd - record.dataPosition), '\0');
    if (!file_->readAt(record.dataPosition, bytes.data(), bytes.size())) {
        prompter.inform(msg::kEntriesRead);
        return std::nullopt;
    }
    auto text = decodeTranscriptData(bytes);
    if (!text)
        prompter.inform(msg::kEntriesRead);
    return text;
}

bool Database::refuseReadOnly(Prompter& prompter) {
    if (!readOnly_)
        return false;
    say(prompter, msg::kReadOnly, name_);
    return true;
}

bool Database::append(sd2& record, std::string_view transcriptText, Prompter& prompter) {
    if (refuseReadOnly(prompter))
        return false;
    std::int64_t size = file_->size();
    if (size < 0) {
        prompter.inform(msg::kSeekWrite);
        return false;
    }
    // Start right after the last complete record: bytes left behind by an
    // interrupted append are overwritten, so the chain stays continuous.
    std::int64_t at = size;
    if (header_.lastRecord > 0) {
        auto last = readRecordAt(header_.lastRecord, size, prompter);
        if (!last)
            return false;
        if (last->dataEnd < header_.lastRecord + std::int64_t(kRecordSize) ||
            last->dataEnd > size) {
            prompter.inform(msg::kRecordRead);
            return false;
        }
        at = last->dataEnd;
    }
    std::string data = encodeTranscriptData(transcriptText);
    std::int64_t end = at + std::int64_t(kRecordSize) + std::int64_t(data.size());
    if (end > kMaxPosition) {
        prompter.inform(msg::kAppendRecord);
        return false;
    }
    sd2 stored = record;
    stored.previous = header_.lastRecord;
    stored.position = at;
    stored.dataPosition = at + std::int64_t(kRecordSize);
    stored.dataEnd = at; // set once the data is written
    stored.stored = 1;
    auto undo = [&](const char* message) {
        file_->truncate(size);
        prompter.inform(message);
        return false;
    };
    std::string bytes = encodeRecord(stored);
    if (!file_->writeAt(at, bytes.data(), bytes.size()))
        return undo(msg::kAppendRecord);
    if (!file_->writeAt(stored.dataPosition, data.data(), data.size()))
        return undo(msg::kAppendData);
    if (end < size && !file_->truncate(end))
        return undo(msg::kAppendData);
    stored.dataEnd = end;
    bytes = encodeRecord(stored);
    if (!file_->writeAt(at, bytes.data(), bytes.size()) || !file_->sync())
        return undo(msg::kAppendRecord);

    DbHeader before = header_;
    if (header_.firstRecord < 1)
        header_.firstRecord = at;
    header_.lastRecord = at;
    if (!writeHeader() || !file_->sync()) {
        header_ = before;
        writeHeader();
        file_->truncate(size);
        prompter.inform(msg::kHeaderCorrupted);
        return false;
    }
    record = stored;
    return true;
}

bool Database::writeRecords(const std::vector<sd2>& list, Prompter& prompter) {
    if (refuseReadOnly(prompter))
        return false;
    std::int64_t size = file_->size();
    for (const sd2& record : list) {
        if (record.position < kDescriptiveStart ||
            record.position > size - std::int64_t(kRecordSize)) {
            prompter.inform(msg::kRecordSeek);
            return false;
        }
        std::string bytes = encodeRecord(record);
        if (!file_->writeAt(record.position, bytes.data(), bytes.size())) {
            prompter.inform(msg::kRecordWrite);
            return false;
        }
    }
    return true;
}

bool Database::clearTranscripts(Prompter& prompter) {
    DbHeader read;
    std::string bytes(kFixedHeaderSize, '\0');
    std::int64_t size = file_->size();
    if (size < std::int64_t(kFixedHeaderSize) || !file_->readAt(0, bytes.data(), bytes.size()) ||
        decodeHeader(bytes, read) != HeaderProblem::None) {
        say(prompter, msg::kIncorrectFormat, name_);
        return false;
    }
    header_ = read;
    if (header_.firstRecord <= 0)
        return true;
    if (refuseReadOnly(prompter))
        return false;
    std::int64_t cut = std::min(header_.firstRecord, size);
    header_.firstRecord = 0;
    header_.lastRecord = 0;
    // The header first: a failed truncation then leaves an empty database.
    if (!writeHeader() || !file_->sync()) {
        prompter.inform(msg::kHeaderCorrupted);
        return false;
    }
    if (!file_->truncate(cut)) {
        prompter.inform(msg::kWrite);
        return false;
    }
    return true;
}

bool Database::rewrite(const DescriptiveHeader& info, const std::function<bool(const sd2&)>& keep,
                       const std::string& failure, Prompter& prompter) {
    if (refuseReadOnly(prompter))
        return false;
    auto list = records(prompter);
    if (!list)
        return false;
    Database copy(std::make_unique<MemoryDbFile>(newDatabaseBytes(info)), name_);
    copy.info_ = info;
    for (sd2 record : *list) {
        if (!keep(record))
            continue;
        auto text = readTranscript(record, prompter);
        if (!text || !copy.append(record, *text, prompter))
            return false;
    }
    const std::string& bytes = static_cast<MemoryDbFile&>(copy.file()).bytes();
    if (path_.empty()) {
        if (!file_->truncate(0) || !file_->writeAt(0, bytes.data(), bytes.size())) {
            prompter.inform(failure);
            return false;
        }
    } else {
        if (writeFileAtomic(path_, bytes) != WriteStatus::Ok) {
            prompter.inform(failure);
            return false;
        }
        auto reopened = DiskDbFile::open(path_, DiskDbFile::Mode::ReadWrite);
        if (!reopened) {
            prompter.inform(msg::kSeekWrite);
            return false;
        }
        file_ = std::move(reopened);
    }
    header_ = copy.header_;
    info_ = info;
    return true;
}

std::string newDatabaseBytes(const DescriptiveHeader& info) {
    return *encodeHeader(DbHeader{}) + encodeDescriptiveHeader(info);
}

bool createDatabase(const std::filesystem::path& path, const DescriptiveHeader& info,
                    Prompter& prompter) {
    if (trim(info.context).empty()) {
        prompter.inform(msg::kMissingContext);
        return false;
    }
    if (writeFileAtomic(path, newDatabaseBytes(info)) != WriteStatus::Ok) {
        say(prompter, msg::kHeaderWriteSettings, path.string());
        return false;
    }
    return true;
}

bool openDatabase(Database& database, Prompter& prompter, std::string_view password) {
    if (!database.readHeader(prompter) || !database.readDescriptiveHeader(prompter))
        return false;
    if (database.info().restricted && password != database.info().password) {
        prompter.inform(msg::kRestricted);
        return false;
    }
    return true;
}

std::unique_ptr<Database> openDatabase(const std::filesystem::path& path, OpenFor mode,
                                       Prompter& prompter, std::string_view password) {
    std::string name = path.string();
    std::unique_ptr<DiskDbFile> file;
    DiskDbFile::OpenFailure failure = DiskDbFile::OpenFailure::None;
    bool readOnly = true;
    if (mode == OpenFor::Writing) {
        std::filesystem::path folder = path.parent_path().empty() ? "." : path.parent_path();
        if (isWritable(folder) && isWritable(path))
            file = DiskDbFile::open(path, DiskDbFile::Mode::ReadWrite, &failure);
        readOnly = file == nullptr;
    }
    if (!file && failure != DiskDbFile::OpenFailure::Busy)
        file = DiskDbFile::open(path, DiskDbFile::Mode::ReadOnly, &failure);
    if (!file) {
        if (failure == DiskDbFile::OpenFailure::Busy)
            say(prompter, msg::kBusy, name);
        else
            prompter.inform("Problem opening database file");
        return nullptr;
    }
    auto database = std::make_unique<Database>(std::move(file), name, path, readOnly);
    if (!openDatabase(*database, prompter, password))
        return nullptr;
    if (mode == OpenFor::Writing && readOnly)
        say(prompter, msg::kReadOnly, name);
    return database;
}

} // namespace tavi::db
