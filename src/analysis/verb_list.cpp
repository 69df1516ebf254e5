// The verb file's forms.
#include "analysis/verb_list.h"

#include <algorithm>

#include "base/file_io.h"
#include "base/text.h"

namespace tavi {

VerbList VerbList::parse(std::string_view text) {
    VerbList list;
    while (!text.empty()) {
        const size_t end = std::min(text.find('\n'), text.size());
        if (std::string_view form = trim(text.substr(0, end)); !form.empty())
            list.forms_.insert(toLowerAscii(form));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return list;
}

bool VerbList::loadFile(const std::string& path, VerbList& list) {
    list = VerbList();
    std::string bytes;
    if (!readFile(path, bytes))
        return false;
    list = parse(decodeText(bytes).utf8);
    return true;
}

} // namespace tavi
