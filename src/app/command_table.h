// The main menu and the two context menus as data: one table of entries that
// the frame turns into menus and actions. Each entry keeps the command's
// object name (its identifier), the menu text with its mnemonic, the
// accelerator, and the status-bar prompt and tip ("prompt\ntip").
#pragma once

#include <span>

namespace tavi::app {

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
    const char* id = "";       // the command's object name, e.g. "ID_FILE_NEW"
    const char* shortcut = ""; // e.g. "Ctrl+N", empty for none
    const char* prompt = "";   // status-bar prompt, "\n", short tip; empty: from the text
};

// The main menu bar, menus in their order.
std::span<const MenuEntry> mainMenuTable();
// Right-button menu of the transcript view.
std::span<const MenuEntry> transcriptContextTable();
// Right-button menu of the report view.
std::span<const MenuEntry> reportContextTable();
// Right-button menu of the problem list: the transcript menu without the entry
// number, checking and link commands.
std::span<const MenuEntry> plainContextTable();

} // namespace tavi::app
