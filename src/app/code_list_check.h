// The code-list checker the options dialogs share: a list of codes typed
// into a dialog, separated by commas, each a code's text without brackets.
#pragma once

#include <string_view>

namespace tavi::app {

// True for an empty list and for items that are codes: no blanks, brackets or
// braces inside, no empty item between commas, "*" only at an item's end.
bool isLegalCodeList(std::string_view list);

} // namespace tavi::app
