// The database a transcript's selection names, kept open between reports.
#include "app/transcript_peers.h"

namespace tavi::app {

db::PeerDatabase* TranscriptPeers::database(const std::filesystem::path& path, Prompter& prompter) {
    if (database_ && path == path_)
        return database_.get();
    database_.reset();
    path_.clear();
    if (path.empty())
        return nullptr;
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        prompter.inform("Problem opening database file");
        return nullptr;
    }
    database_ = db::PeerDatabase::open(path, prompter);
    if (database_)
        path_ = path;
    return database_.get();
}

} // namespace tavi::app
