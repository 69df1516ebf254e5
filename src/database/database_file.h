// An open reference database: reading its header and records, appending a
// sample by the chain algorithm, rewriting records, clearing and removing.
// Every failure is reported once through the Prompter with the system's
// message, and the operation returns false.
//
// Safety: the header's last-record position moves only after a record and its
// data are completely written, and readers walk the chain only up to that
// record, so an interrupted append leaves a database that still opens.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/prompter.h"
#include "database/db_file.h"
#include "database/db_header.h"
#include "database/sd2.h"

namespace tavi::db {

class Database {
public:
    // `name` is the file name used in messages; `path` is empty for a file not
    // on disk (a removal then rewrites the file in place).
    Database(std::unique_ptr<DbFile> file, std::string name, std::filesystem::path path = {},
             bool readOnly = false);

    const std::string& name() const { return name_; }
    bool readOnly() const { return readOnly_; }
    const DbHeader& header() const { return header_; }
    const DescriptiveHeader& info() const { return info_; }
    DescriptiveHeader& info() { return info_; }
    DbFile& file() { return *file_; }

    // Seeks to 0 and reads the version and the two record positions.
    bool readHeader(Prompter& prompter);
    // The restricted block and the descriptive items, into info().
    bool readDescriptiveHeader(Prompter& prompter);
    // Version 20 and the two positions at offset 0; false on a short write.
    bool writeHeader();

    // The records from the first to the last, following each record's data end.
    std::optional<std::vector<sd2>> records(Prompter& prompter);
    // The records from the last back to the first, following the previous positions.
    std::optional<std::vector<sd2>> recordsBackward(Prompter& prompter);
    // The stored transcript of a record.
    std::optional<std::string> readTranscript(const sd2& record, Prompter& prompter);

    // Appends the record (its positions are set here) and the transcript
    // after it, then moves the header's positions and writes the header.
    bool append(sd2& record, std::string_view transcriptText, Prompter& prompter);
    // Writes each record at its own position.
    bool writeRecords(const std::vector<sd2>& records, Prompter& prompter);
    // Truncates to the first record and empties the chain; the descriptive
    // header stays. A database without records is left untouched.
    bool clearTranscripts(Prompter& prompter);
    // Rewrites the whole file with `info` and the records that `keep`
    // accepts, through a temporary file, so a failure leaves the old file.
    // `failure` is the message when the new file cannot replace the old one.
    bool rewrite(const DescriptiveHeader& info, const std::function<bool(const sd2&)>& keep,
                 const std::string& failure, Prompter& prompter);

private:
    bool refuseReadOnly(Prompter& prompter);
    std::optional<sd2> readRecordAt(std::int64_t position, std::int64_t fileSize,
                                    Prompter& prompter);

    std::unique_ptr<DbFile> file_;
    std::string name_;
    std::filesystem::path path_;
    bool readOnly_ = false;
    DbHeader header_;
    DescriptiveHeader info_;
};

// Writes a new database with no records; false (after the message) when the
// file cannot be written.
bool createDatabase(const std::filesystem::path& path, const DescriptiveHeader& info,
                    Prompter& prompter);

// The bytes of a new database with no records.
std::string newDatabaseBytes(const DescriptiveHeader& info);

enum class OpenFor { Reading, Writing };

// Opens a database file and reads its header and descriptive header. For
// writing, a file that cannot be written is reported as READ ONLY and opened
// for reading. A restricted database needs its password. Null after the
// message when it cannot be used.
std::unique_ptr<Database> openDatabase(const std::filesystem::path& path, OpenFor mode,
                                       Prompter& prompter, std::string_view password = {});

// Opens an in-memory database (tests, fuzzing) the same way.
bool openDatabase(Database& database, Prompter& prompter, std::string_view password = {});

} // namespace tavi::db
