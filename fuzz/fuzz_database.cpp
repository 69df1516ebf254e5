// The database reader must survive any bytes: every damaged file ends in a
// message, never a crash, a hang or an allocation sized by a corrupt length.
// When the bytes do open, an append must keep the chain sound.
#include <cstddef>
#include <cstdint>
#include <string>

#include "database/contents_listing.h"
#include "database/database_file.h"
#include "database/db_header.h"
#include "database/transcript_data.h"

namespace {

class SilentPrompter final : public tavi::Prompter {
public:
    void inform(std::string_view) override {}
    tavi::Answer ask(std::string_view) override { return tavi::Answer::Yes; }
    bool confirm(std::string_view) override { return true; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavi::db;
    std::string bytes(reinterpret_cast<const char*>(data), size);
    SilentPrompter prompter;

    decodeLongText(bytes);
    decodeTranscriptData(bytes);
    DescriptiveHeader loose;
    decodeDescriptiveHeader(bytes, loose);

    Database db(std::make_unique<tavi::MemoryDbFile>(bytes), "fuzz.tvidb");
    if (!openDatabase(db, prompter, db.info().password))
        return 0;
    auto forward = db.records(prompter);
    db.recordsBackward(prompter);
    if (!forward)
        return 0;
    for (const sd2& record : *forward)
        db.readTranscript(record, prompter);
    contentsListing(db.name(), db.info().context, *forward);

    sd2 added;
    added.key = "fuzz;1";
    if (db.append(added, "$ Child\nC hi.\n", prompter)) {
        auto after = db.records(prompter);
        if (!after || after->size() != forward->size() + 1)
            __builtin_trap();
        auto back = db.recordsBackward(prompter);
        if (!back || back->size() != after->size())
            __builtin_trap();
    }
    return 0;
}
