// The main menu and the two context menus as data: one table of entries that
// the frame turns into menus and actions. Each command has an identifier from
// one list, which also says whether the command works in this build; each
// entry keeps the menu text with its mnemonic, the accelerator, and the
// status-bar prompt and tip ("prompt\ntip").
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavi::app {

enum class CommandStatus { Working, Unavailable };

// Every command of the main menu, in menu order, with its status. A working
// command must have a handler in the frame; an unavailable one stays in its
// menu, disabled, marked as not available yet. The desktop tests hold the
// list, the menu table and the frame's handlers to each other.
// clang-format off
#define TAVI_COMMANDS(X) \
    X(ID_FILE_NEW, Working) \
    X(ID_FILE_OPEN, Working) \
    X(ID_FILE_IMPORT_CHAT, Working) \
    X(ID_FILE_IMPORT_CP, Unavailable) \
    X(ID_FILE_CLOSE, Working) \
    X(ID_FILE_SAVE, Working) \
    X(ID_FILE_SAVE_AS, Working) \
    X(ID_FILE_PRINT, Working) \
    X(ID_FILE_PRINT_SETUP, Working) \
    X(ID_FILE_ADD_PDF_BATCH, Working) \
    X(ID_FILE_CLOSE_PDF_BATCH, Working) \
    X(ID_FILE_PDF_SETUP, Working) \
    X(ID_APP_EXIT, Working) \
    X(ID_EDIT_FIND_REPLACE, Working) \
    X(ID_EDIT_GOTO_ENTRY, Working) \
    X(ID_EDIT_CHECK, Working) \
    X(ID_EDIT_UNDO, Working) \
    X(ID_EDIT_REDO, Working) \
    X(ID_EDIT_CUT, Working) \
    X(ID_EDIT_COPY, Working) \
    X(ID_EDIT_PASTE, Working) \
    X(ID_EDIT_SELECT_ALL, Working) \
    X(ID_EDIT_INSERT_CODE, Working) \
    X(ID_EDIT_INSERT_TEXT, Working) \
    X(ID_EDIT_INSERT_SYMBOL, Working) \
    X(ID_EDIT_DELETE_CODE, Working) \
    X(ID_EDIT_IDENTIFY_ROOTS, Working) \
    X(ID_EDIT_INSERT_SI, Working) \
    X(ID_TEMPLATE_NSS, Working) \
    X(ID_TEMPLATE_ESS, Working) \
    X(ID_TEMPLATE_PSS, Working) \
    X(ID_TEMPLATE_CQ, Working) \
    X(ID_TEMPLATE_FCB, Working) \
    X(ID_TEMPLATE_ONQ, Working) \
    X(ID_TEMPLATE_ONC, Working) \
    X(ID_EDIT_INSERT_GC, Working) \
    X(ID_ANAL_SMR, Working) \
    X(ID_ANAL_PERF, Working) \
    X(ID_ANAL_UTT_TYPES, Working) \
    X(ID_ANAL_SUL, Working) \
    X(ID_ANAL_NSS, Working) \
    X(ID_ANAL_ESS, Working) \
    X(ID_ANAL_PSS, Working) \
    X(ID_ANAL_ONQ, Working) \
    X(ID_ANAL_CQ, Working) \
    X(ID_ANAL_SYNTAX, Working) \
    X(ID_ANAL_DIST, Working) \
    X(ID_ANAL_BM, Working) \
    X(ID_ANAL_CLITIC, Working) \
    X(ID_ANAL_SI, Working) \
    X(ID_ANAL_SEMANTICS, Working) \
    X(ID_ANAL_WR, Working) \
    X(ID_ANAL_SWL, Working) \
    X(ID_ANAL_GC, Working) \
    X(ID_ANAL_GCL, Working) \
    X(ID_ANAL_DISCOURSE, Working) \
    X(ID_ANAL_TURNS, Working) \
    X(ID_ANAL_FACILITY, Working) \
    X(ID_ANAL_MAZES, Working) \
    X(ID_ANAL_ERRORS, Working) \
    X(ID_ANAL_OMITERR, Working) \
    X(ID_ANAL_CODES, Working) \
    X(ID_ANAL_WC, Working) \
    X(ID_ANAL_UC, Working) \
    X(ID_ANAL_FLUENCY, Working) \
    X(ID_ANAL_NONMAINSTREAM, Working) \
    X(ID_ANAL_CODESWITCH, Working) \
    X(ID_ANAL_CUSTOM_PDF, Working) \
    X(ID_DB_SELECT, Working) \
    X(ID_DB_SMR, Working) \
    X(ID_DB_PERF, Working) \
    X(ID_DB_QUICK, Working) \
    X(ID_DB_GOALS, Working) \
    X(ID_DB_LENGTH, Working) \
    X(ID_DB_NSS, Working) \
    X(ID_DB_ESS, Working) \
    X(ID_DB_PSS, Working) \
    X(ID_DB_ONQ, Working) \
    X(ID_DB_CQ, Working) \
    X(ID_DB_SYNTAX, Working) \
    X(ID_DB_DIST, Working) \
    X(ID_DB_SI, Working) \
    X(ID_DB_SEMANTICS, Working) \
    X(ID_DB_GC, Working) \
    X(ID_DB_DISCOURSE, Working) \
    X(ID_DB_TURNS, Working) \
    X(ID_DB_FACILITY, Working) \
    X(ID_DB_MAZES, Working) \
    X(ID_DB_ERRORS, Working) \
    X(ID_DB_EXPLORE_WC, Working) \
    X(ID_DB_EXPLORE_PLUS, Working) \
    X(ID_DB_CUSTOM_PDF, Working) \
    X(ID_EXPLORE_LIST, Working) \
    X(ID_EXPLORE_FIND, Working) \
    X(ID_EXPLORE_INSERT, Working) \
    X(ID_EXPLORE_DELETE, Working) \
    X(ID_EXPLORE_SAVE, Working) \
    X(ID_LINK_LINK, Working) \
    X(ID_LINK_UNLINK, Working) \
    X(ID_TOOLS_RDF, Working) \
    X(ID_EMULT_LIST, Working) \
    X(ID_EMULT_FIND, Working) \
    X(ID_EMULT_INSERT, Working) \
    X(ID_EMULT_DELETE, Working) \
    X(ID_EMULT_SAVE, Working) \
    X(ID_TOOLS_GENVOC, Working) \
    X(ID_TOOLS_GENBM, Working) \
    X(ID_TOOLS_GENCODES, Working) \
    X(ID_TOOLS_CHECK, Working) \
    X(ID_TOOLS_BUILD_DB, Working) \
    X(ID_SETUP_ASET, Working) \
    X(ID_SETUP_WBASE, Working) \
    X(ID_SETUP_TCUT, Working) \
    X(ID_LOC_TRAN, Working) \
    X(ID_LOC_REPT, Working) \
    X(ID_LOC_DB, Working) \
    X(ID_LOC_ALTDB, Working) \
    X(ID_LOC_LIST, Working) \
    X(ID_LOC_RIF, Working) \
    X(ID_LOC_BATCH, Working) \
    X(ID_LOC_BACKUP, Working) \
    X(ID_LISTS_SWL, Working) \
    X(ID_LISTS_CODES, Working) \
    X(ID_LISTS_TEXT, Working) \
    X(ID_LISTS_SYMBOLS, Working) \
    X(ID_EDSET_SI, Working) \
    X(ID_EDSET_RIF_EDIT, Working) \
    X(ID_EDSET_RIF_SETTINGS, Working) \
    X(ID_EDSET_BACKUP, Working) \
    X(ID_ANSET_TIMING, Working) \
    X(ID_ANSET_MATTR, Working) \
    X(ID_ANSET_PCSD, Working) \
    X(ID_ANSET_DEFDB, Working) \
    X(ID_SETUP_LANGUAGE, Working) \
    X(ID_FONT_DISPTRAN, Working) \
    X(ID_FONT_DISPREPT, Working) \
    X(ID_FONT_PRT, Working) \
    X(ID_NET_CLIENT, Working) \
    X(ID_NET_PDF, Working) \
    X(ID_NETLOC_TRAN, Working) \
    X(ID_NETLOC_REPT, Working) \
    X(ID_NETLOC_DB, Working) \
    X(ID_NETLOC_ALTDB, Working) \
    X(ID_NETLOC_LIST, Working) \
    X(ID_NETLOC_RIF, Working) \
    X(ID_NETLOC_BATCH, Working) \
    X(ID_NETLOC_BACKUP, Working) \
    X(ID_NETLOC_INIDIR, Working) \
    X(ID_NETFONT_DISPTRAN, Working) \
    X(ID_NETFONT_DISPREPT, Working) \
    X(ID_NETFONT_PRT, Working) \
    X(ID_WINDOW_CLOSE_ALL, Working) \
    X(ID_WINDOW_CLOSE_REPORTS, Working) \
    X(ID_HELP_FINDER, Working) \
    X(ID_CONTEXT_HELP, Working) \
    X(ID_HELP_BOOK, Working) \
    X(ID_HELP_GRAPHS, Working) \
    X(ID_HELP_ONLINE, Working) \
    X(ID_HELP_ACROBAT, Working) \
    X(ID_HELP_README, Working) \
    X(ID_APP_ABOUT, Working)
// clang-format on

enum class CommandId : int {
#define TAVI_COMMAND_ENUM(id, status) id,
    TAVI_COMMANDS(TAVI_COMMAND_ENUM)
#undef TAVI_COMMAND_ENUM
};

inline constexpr int kCommandCount = 0
#define TAVI_COMMAND_COUNT(id, status) +1
    TAVI_COMMANDS(TAVI_COMMAND_COUNT)
#undef TAVI_COMMAND_COUNT
    ;

// The identifier as the menus' object names spell it, e.g. "ID_FILE_NEW".
const char* commandName(CommandId id);
CommandStatus commandStatus(CommandId id);
std::optional<CommandId> commandByName(std::string_view name);
// Every identifier, in list order.
std::span<const CommandId> allCommands();

enum class EntryKind {
    Menu,        // opens a submenu; closed by the next EndMenu
    EndMenu,     // closes the innermost open submenu
    Item,        // a command
    Heading,     // a group label: shown, never chosen
    Separator,   // a line between groups
    RecentFiles, // where the recent transcripts are listed
};

struct MenuEntry {
    EntryKind kind;
    const char* text = "";     // with "&" before the mnemonic, "&&" for "&"
    CommandId command{};       // Item: the command
    const char* name = "";     // Heading, RecentFiles: the object name
    const char* shortcut = ""; // e.g. "Ctrl+N", empty for none
    const char* prompt = "";   // status-bar prompt, "\n", short tip; empty: from the text
};

// The object name of an entry: the command's name for an item.
const char* entryName(const MenuEntry& entry);

// The main menu bar, menus in their order.
std::span<const MenuEntry> mainMenuTable();
// Right-button menu of the transcript view.
std::span<const MenuEntry> transcriptContextTable();
// Right-button menu of the report view.
std::span<const MenuEntry> reportContextTable();
// Right-button menu of the problem list: the transcript menu without the entry
// number, checking and link commands.
std::span<const MenuEntry> plainContextTable();

// A menu text as shown: the "&" mnemonic markers removed, "&&" read as "&".
std::string plainMenuText(std::string_view text);

// One command of the main menu as `tavi-gui --commands` lists it.
struct CommandLine {
    CommandId id;
    std::string path; // the menu texts from the top, plain, joined by " > "
    CommandStatus status;
};
// The main menu's commands in menu order.
std::vector<CommandLine> commandInventory();
// The inventory as text: "ID<TAB>menu path<TAB>working|unavailable" lines.
std::string commandInventoryText();

} // namespace tavi::app
