// The checker's list of problems. Every check reports through `report`, which
// merges a report with those already held for its line and keeps the list in
// line order (a late report for an earlier line goes before the records
// already held for that line).
#pragma once

#include <string>
#include <vector>

#include "transcript/err.h"

namespace tavi {

class ErrList {
public:
    // Merging: an identical report (line, code, message) is dropped; a warning
    // for a line that has an error is dropped; an error for a line that has a
    // warning takes that warning's place; otherwise the report is inserted in
    // line order.
    void report(int code, int line, int transcript, std::string message);

    const std::vector<err>& records() const { return records_; }
    bool hasErrors() const { return hasErrors_; }
    bool hasWarnings() const { return hasWarnings_; }
    int errorCount() const;
    int warningCount() const;
    void clear();

private:
    std::vector<err> records_;
    bool hasErrors_ = false;
    bool hasWarnings_ = false;
};

} // namespace tavi
