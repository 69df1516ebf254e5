// The merging rules of the checker's report list.
#include "transcript/err_list.h"

#include <algorithm>

namespace tavi {

void ErrList::report(int code, int line, int transcript, std::string message) {
    auto first = std::lower_bound(records_.begin(), records_.end(), line,
                                  [](const err& e, int l) { return e.line < l; });
    auto last = first;
    bool lineHasError = false;
    auto warning = records_.end();
    for (; last != records_.end() && last->line == line; ++last) {
        if (last->code == code && last->message == message)
            return;
        if (last->isError())
            lineHasError = true;
        else if (warning == records_.end())
            warning = last;
    }
    if (code < 0) {
        if (lineHasError)
            return;
        hasWarnings_ = true;
    } else {
        hasErrors_ = true;
        if (warning != records_.end()) {
            warning->code = code;
            warning->message = std::move(message);
            return;
        }
    }
    err record{code, line, transcript, std::move(message)};
    if (records_.empty() || line >= records_.back().line)
        records_.push_back(std::move(record));
    else
        records_.insert(first, std::move(record));
}

int ErrList::errorCount() const {
    return static_cast<int>(
        std::count_if(records_.begin(), records_.end(), [](const err& e) { return e.isError(); }));
}

int ErrList::warningCount() const {
    return static_cast<int>(records_.size()) - errorCount();
}

void ErrList::clear() {
    records_.clear();
    hasErrors_ = hasWarnings_ = false;
}

} // namespace tavi
