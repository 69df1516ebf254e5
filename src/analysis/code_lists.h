// The four code lists that sort codes into errors, fluency codes,
// nonmainstream forms and code switches, and the matching of a code against a
// list. The lists are settings ("OMITERR", "FLUENCY", "NONMAINSTREAM",
// "CODESWITCH"); these are the defaults a new installation starts with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavi {

struct CodeLists {
    std::string errors = "[EW*][EO*][EU*][EP*]";
    std::string fluency = "[PWR][WWR][PRO][BLK][FL*]";
    std::string nonmainstream = "[NM*]";
    std::string codeSwitch = "[CS*]";

    bool operator==(const CodeLists&) const = default;
};

// Items of a bracketed list "[EW][EO*]" or of a comma-separated list "EW, EO*";
// blanks around items are dropped, empty items skipped.
std::vector<std::string> parseCodeItems(std::string_view list);

// A code with the description a code list may give it. In a list, the text
// after a bracketed code up to the next "[" describes that code:
// "[EW] error at word level [EO] omitted word" gives EW and EO with their
// descriptions; "[EW][EO]" and "EW, EO" give the codes alone. Blanks and
// commas or semicolons around a description are dropped.
struct DescribedCode {
    std::string code; // without brackets
    std::string description;

    bool operator==(const DescribedCode&) const = default;
};
std::vector<DescribedCode> parseDescribedCodes(std::string_view list);
// The list text of described codes: "[EW] error at word level [EO]"; a
// bracket inside a description is written as a parenthesis.
std::string describedCodeListText(const std::vector<DescribedCode>& codes);

// A code matches an item when the code's text before any ":" equals the item,
// without regard to case; an item ending in "*" matches any ending.
bool codeMatchesItem(std::string_view code, std::string_view item);

// Whether a list is well formed: brackets in pairs and not nested, and no
// item holding a blank, "@" or "=" (which a code cannot hold). Dialogs refuse
// a bad list with "Error: illegal code specification".
bool isValidCodeList(std::string_view list);

// A parsed list, ready to test codes against.
class CodeMatcher {
public:
    CodeMatcher() = default;
    explicit CodeMatcher(std::string_view list);
    bool empty() const { return items_.empty(); }
    bool matches(std::string_view code) const;
    const std::vector<std::string>& items() const { return items_; }

private:
    // An item as matching reads it, made once: tested for every code of a walk.
    struct Stem {
        std::string upper; // the item in upper case, without a final "*"
        bool open = false; // the item ends in "*": any ending matches
    };
    std::vector<std::string> items_;
    std::vector<Stem> stems_; // of items_
};

} // namespace tavi
