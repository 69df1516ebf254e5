// A transcript's database selection in the desktop program: the selection
// record chosen in "Select Database Samples and Settings", the database it
// names (opened once and kept, so the samples' recalculated values are reused
// from one report to the next), and the outcome of its last comparison,
// whose counts the Database menu shows.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "database/peer_selection.h"

namespace tavi::app {

class TranscriptPeers {
public:
    // The selection, once one was chosen for the transcript.
    std::optional<db::PeerSelection> selection;
    // The last comparison; empty before one and after one that failed.
    std::optional<db::PeerSnapshot> snapshot;

    // The counts of the last comparison: samples selected and records read.
    int selected() const { return snapshot ? snapshot->selected : 0; }
    int records() const { return snapshot ? snapshot->records : 0; }
    // A comparison with at least one sample was made: the reports can be made.
    bool ready() const { return selected() > 0 && records() > 0; }

    // The database of `path`, opened at the first call and kept while the
    // same file is asked for; null after the message when it cannot be used,
    // null without one for an empty path.
    db::PeerDatabase* database(const std::filesystem::path& path, Prompter& prompter);

private:
    std::filesystem::path path_;
    std::unique_ptr<db::PeerDatabase> database_;
};

} // namespace tavi::app
