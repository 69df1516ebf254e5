// The menu texts, accelerators and prompts of every command, in menu order.
#include "app/command_table.h"

#include <array>

namespace tavi::app {
namespace {

struct CommandInfo {
    const char* name;
    CommandStatus status;
};

constexpr CommandInfo kCommands[] = {
#define TAVI_COMMAND_INFO(id, status) {#id, CommandStatus::status},
    TAVI_COMMANDS(TAVI_COMMAND_INFO)
#undef TAVI_COMMAND_INFO
};

constexpr auto kCommandIds = [] {
    std::array<CommandId, kCommandCount> ids{};
    for (int i = 0; i < kCommandCount; ++i)
        ids[static_cast<std::size_t>(i)] = static_cast<CommandId>(i);
    return ids;
}();

using K = EntryKind;
using enum CommandId;

constexpr MenuEntry menu(const char* text) {
    return {K::Menu, text};
}
constexpr MenuEntry end() {
    return {K::EndMenu};
}
constexpr MenuEntry sep() {
    return {K::Separator};
}
constexpr MenuEntry heading(const char* text, const char* name) {
    return {K::Heading, text, {}, name};
}
constexpr MenuEntry item(const char* text, CommandId id, const char* key = "",
                         const char* prompt = "") {
    return {K::Item, text, id, "", key, prompt};
}

const MenuEntry kMain[] = {
    menu("&File"),
    item("&New", ID_FILE_NEW, "Ctrl+N", "Create a new transcript\nNew"),
    item("&Open...", ID_FILE_OPEN, "Ctrl+O", "Open an existing transcript\nOpen"),
    menu("&Import"),
    item("&CHAT file", ID_FILE_IMPORT_CHAT, "", "Import a CHAT transcript\nImport CHAT"),
    item("C&P CORPUS file", ID_FILE_IMPORT_CP, "",
         "Import a C&P CORPUS file (not available: no description of this format "
         "exists)\nImport C&P (not available: no description of this format exists)"),
    end(),
    item("&Close", ID_FILE_CLOSE, "", "Close the active document\nClose"),
    item("&Save", ID_FILE_SAVE, "Ctrl+S", "Save the active document\nSave"),
    item("Save &As...", ID_FILE_SAVE_AS, "", "Save the active document with a new name\nSave As"),
    sep(),
    item("&Print...", ID_FILE_PRINT, "Ctrl+P", "Print the active document\nPrint"),
    item("P&rint Setup...", ID_FILE_PRINT_SETUP, "",
         "Change the printer and printing options\nPrint Setup"),
    sep(),
    item("Add to PDF &Batch...", ID_FILE_ADD_PDF_BATCH, "",
         "Add the active report to the PDF batch\nAdd to PDF Batch"),
    item("C&lose PDF Batch", ID_FILE_CLOSE_PDF_BATCH, "",
         "Finish the PDF batch file\nClose PDF Batch"),
    item("P&DF Printer Setup...", ID_FILE_PDF_SETUP, "",
         "Page size and margins of PDF files\nPDF Printer Setup"),
    sep(),
    {K::RecentFiles, "", {}, "ID_FILE_MRU"},
    sep(),
    item("E&xit", ID_APP_EXIT, "", "Quit the application; prompts to save documents\nExit"),
    end(),

    menu("&Edit"),
    item("&Find and Replace", ID_EDIT_FIND_REPLACE, "Ctrl+F",
         "Find and replace text\nFind and Replace"),
    item("Go to &Entry Number", ID_EDIT_GOTO_ENTRY, "Ctrl+E",
         "Move to a line of the transcript\nGo to Entry"),
    item("Chec&k for Errors", ID_EDIT_CHECK, "Ctrl+K",
         "Check the transcript for errors\nCheck for Errors"),
    sep(),
    item("Undo", ID_EDIT_UNDO, "Ctrl+Z", "Undo the last action\nUndo"),
    item("Redo", ID_EDIT_REDO, "Ctrl+Y", "Redo the previously undone action\nRedo"),
    item("Cut", ID_EDIT_CUT, "Ctrl+X", "Cut the selection and put it on the Clipboard\nCut"),
    item("Copy", ID_EDIT_COPY, "Ctrl+C", "Copy the selection and put it on the Clipboard\nCopy"),
    item("Paste", ID_EDIT_PASTE, "Ctrl+V", "Insert Clipboard contents\nPaste"),
    item("Select &All", ID_EDIT_SELECT_ALL, "Ctrl+A", "Select the entire document\nSelect All"),
    sep(),
    item("&Insert Code", ID_EDIT_INSERT_CODE, "Ctrl+I",
         "Insert a code from the current code lists\nInsert Code"),
    item("Insert &Text", ID_EDIT_INSERT_TEXT, "Ctrl+T",
         "Insert a text from the current text lists\nInsert Text"),
    item("Insert S&ymbol", ID_EDIT_INSERT_SYMBOL, "Ctrl+Q",
         "Insert a symbol from the current symbol list\nInsert Symbol"),
    item("&Delete Code", ID_EDIT_DELETE_CODE, "Ctrl+D",
         "Delete codes from the transcript\nDelete Code"),
    item("Identify &Roots", ID_EDIT_IDENTIFY_ROOTS, "Ctrl+R",
         "Identify word roots\nIdentify Roots"),
    item("Insert &SI Codes", ID_EDIT_INSERT_SI, "",
         "Insert Subordination Index codes\nInsert SI Codes"),
    menu("Insert Tem&plate"),
    item("&Narrative Scoring Scheme", ID_TEMPLATE_NSS),
    item("&Expository Scoring Scheme", ID_TEMPLATE_ESS),
    item("&Persuasion Scoring Scheme", ID_TEMPLATE_PSS),
    item("&Comprehension Questions", ID_TEMPLATE_CQ),
    item("&Fluency Concomitant Behaviors", ID_TEMPLATE_FCB),
    item("&Oral Narrative Quality (AGL)", ID_TEMPLATE_ONQ),
    item("O&ral Narrative Comprehension (AGL)", ID_TEMPLATE_ONC),
    end(),
    item("Insert &Grammatical Category Codes", ID_EDIT_INSERT_GC, "",
         "Code each word with its grammatical category for review\nInsert GC Codes"),
    end(),

    menu("&Analyze"),
    heading("Overview", "ID_ANAL_H_OVERVIEW"),
    item("Standard &Measures Report", ID_ANAL_SMR, "",
         "Standard Measures Report\nStandard Measures"),
    item("&Performance Report...", ID_ANAL_PERF, "", "Performance Report\nPerformance Report"),
    heading("Utterances", "ID_ANAL_H_UTTS"),
    item("Summary of Utterance &Types", ID_ANAL_UTT_TYPES, "",
         "Summary of Utterance Types\nUtterance Types"),
    item("Sta&ndard Utterance Lists...", ID_ANAL_SUL),
    heading("Macro Analysis", "ID_ANAL_H_MACRO"),
    item("&Narrative Scoring Scheme", ID_ANAL_NSS),
    item("&Expository Scoring Scheme", ID_ANAL_ESS),
    item("&Persuasion Scoring Scheme", ID_ANAL_PSS),
    item("&Oral Narrative Quality", ID_ANAL_ONQ),
    item("Compre&hension Questions", ID_ANAL_CQ),
    heading("Syntax/Morphology", "ID_ANAL_H_SYNTAX"),
    item("Synta&x/Morphology Summary", ID_ANAL_SYNTAX),
    item("&Utterance Distribution Tables", ID_ANAL_DIST),
    item("&Bound Morpheme Tables...", ID_ANAL_BM),
    item("Bound &Clitic Tables...", ID_ANAL_CLITIC),
    item("Subordination &Index", ID_ANAL_SI),
    heading("Semantics", "ID_ANAL_H_SEMANTICS"),
    item("&Semantics Summary", ID_ANAL_SEMANTICS),
    item("W&ord Root Tables...", ID_ANAL_WR),
    item("&Standard Word Lists...", ID_ANAL_SWL),
    item("&Grammatical Categories", ID_ANAL_GC),
    item("Grammatical Category &Lists...", ID_ANAL_GCL),
    heading("Discourse", "ID_ANAL_H_DISCOURSE"),
    item("&Discourse Summary", ID_ANAL_DISCOURSE),
    item("&Turn Length Distribution Tables", ID_ANAL_TURNS),
    heading("Verbal Facility", "ID_ANAL_H_FACILITY"),
    item("&Verbal Facility Summary", ID_ANAL_FACILITY),
    item("M&aze Distribution Tables...", ID_ANAL_MAZES),
    heading("Errors", "ID_ANAL_H_ERRORS"),
    item("E&rrors Summary", ID_ANAL_ERRORS),
    item("Omissions and &Error Codes...", ID_ANAL_OMITERR),
    heading("Codes", "ID_ANAL_H_CODES"),
    item("&Code Summary", ID_ANAL_CODES, "", "Code Summary Report\nCode Summary"),
    item("Word Code &Tables...", ID_ANAL_WC),
    item("&Utterance Code Tables...", ID_ANAL_UC),
    item("Fluency Codes and &Behaviors...", ID_ANAL_FLUENCY, "",
         "Fluency Code Report\nFluency Codes"),
    item("Nonmainstream-&form Codes...", ID_ANAL_NONMAINSTREAM),
    item("Code-&switch Codes...", ID_ANAL_CODESWITCH),
    sep(),
    item("Create Customized PDF Report", ID_ANAL_CUSTOM_PDF),
    end(),

    menu("&Database"),
    item("Select &Database Samples and Settings", ID_DB_SELECT),
    heading("Overview", "ID_DB_H_OVERVIEW"),
    item("&Standard Measures Report", ID_DB_SMR),
    item("&Performance Report...", ID_DB_PERF, "", "Performance Report\nPerformance Report"),
    item("&Quick Look", ID_DB_QUICK),
    item("&Goal Bank", ID_DB_GOALS),
    item("Transcript Length && Intelligi&bility", ID_DB_LENGTH, "",
         "Database Transcript Length and Intelligibility Summary\nDatabase Length and "
         "Intelligibility"),
    heading("Macro Analysis", "ID_DB_H_MACRO"),
    item("&Narrative Scoring Scheme", ID_DB_NSS),
    item("&Expository Scoring Scheme", ID_DB_ESS),
    item("Persu&asion Scoring Scheme", ID_DB_PSS),
    item("Oral Narrat&ive Quality", ID_DB_ONQ),
    item("Compre&hension Questions", ID_DB_CQ),
    heading("Syntax/Morphology", "ID_DB_H_SYNTAX"),
    item("Synta&x/Morphology Summary", ID_DB_SYNTAX),
    item("&Utterance Distribution Tables", ID_DB_DIST),
    item("Su&bordination Index", ID_DB_SI),
    heading("Semantics", "ID_DB_H_SEMANTICS"),
    item("Semantics Summar&y", ID_DB_SEMANTICS),
    item("Grammatical Categ&ories", ID_DB_GC),
    heading("Discourse", "ID_DB_H_DISCOURSE"),
    item("Dis&course Summary", ID_DB_DISCOURSE),
    item("&Turn Length Distribution Tables", ID_DB_TURNS),
    heading("Verbal Facility", "ID_DB_H_FACILITY"),
    item("&Verbal Facility Summary", ID_DB_FACILITY),
    item("&Maze Distribution Tables", ID_DB_MAZES),
    heading("Errors", "ID_DB_H_ERRORS"),
    item("E&rrors Summary", ID_DB_ERRORS),
    heading("Explore", "ID_DB_H_EXPLORE"),
    item("Explore &Words && Codes...", ID_DB_EXPLORE_WC),
    item("Explore Plus &Line Values...", ID_DB_EXPLORE_PLUS),
    sep(),
    item("Create Customi&zed PDF Report", ID_DB_CUSTOM_PDF),
    end(),

    menu("E&xplore"),
    item("&List", ID_EXPLORE_LIST),
    item("&Find", ID_EXPLORE_FIND),
    item("&Insert Code", ID_EXPLORE_INSERT),
    item("&Delete Code", ID_EXPLORE_DELETE),
    item("&Save as Separate Transcript", ID_EXPLORE_SAVE),
    end(),

    menu("&Link"),
    item("&Link Transcripts...", ID_LINK_LINK, "", "Link two open transcripts\nLink Transcripts"),
    item("&Unlink", ID_LINK_UNLINK, "", "Unlink the linked transcripts\nUnlink"),
    end(),

    menu("&Tools"),
    item("&Rectangular Data File", ID_TOOLS_RDF),
    menu("&Explore Multiple Transcripts"),
    item("&List", ID_EMULT_LIST),
    item("&Find", ID_EMULT_FIND),
    item("&Insert Code", ID_EMULT_INSERT),
    item("&Delete Code", ID_EMULT_DELETE),
    item("&Save as Separate Transcripts", ID_EMULT_SAVE),
    end(),
    item("Generate &Word List", ID_TOOLS_GENVOC),
    item("Generate Bound &Morpheme List", ID_TOOLS_GENBM),
    item("Generate &Code List", ID_TOOLS_GENCODES),
    item("Chec&k for Errors", ID_TOOLS_CHECK, "",
         "Check many transcripts for errors\nCheck for Errors"),
    item("&Build Reference Database", ID_TOOLS_BUILD_DB),
    end(),

    menu("&Setup"),
    item("&Analysis Set", ID_SETUP_ASET, "",
         "Choose the utterances of the analysis set\nAnalysis Set"),
    item("&Word Base", ID_SETUP_WBASE, "", "Choose the words every analysis counts\nWord Base"),
    item("&Transcript Cut", ID_SETUP_TCUT, "",
         "Choose the part of the transcript to analyse\nTranscript Cut"),
    sep(),
    menu("&File Locations"),
    item("&Transcripts", ID_LOC_TRAN),
    item("&Reports", ID_LOC_REPT),
    item("&Built-in Reference Databases", ID_LOC_DB),
    item("&External Reference Databases", ID_LOC_ALTDB),
    item("&Word and Code Lists", ID_LOC_LIST),
    item("Root &Identification Files", ID_LOC_RIF),
    item("Rectangular &Data File Selections", ID_LOC_BATCH),
    item("&Automatic Backups", ID_LOC_BACKUP),
    end(),
    menu("&Lists"),
    item("Standard &Word Lists", ID_LISTS_SWL),
    item("Current &Code Lists", ID_LISTS_CODES),
    item("Current &Text Lists", ID_LISTS_TEXT),
    item("Current &Symbol List", ID_LISTS_SYMBOLS),
    end(),
    menu("&Editor Settings"),
    item("&SI Code Settings", ID_EDSET_SI),
    menu("&Root Identification Files (RIF)"),
    item("&Edit RIF File Contents", ID_EDSET_RIF_EDIT, "",
         "Edit the words of a root identification file\nEdit RIF File"),
    item("RIF &Settings", ID_EDSET_RIF_SETTINGS, "",
         "Which root identification file each language uses\nRIF Settings"),
    end(),
    item("&Automatic Backups", ID_EDSET_BACKUP, "",
         "How often automatic backups are written\nAutomatic Backups"),
    end(),
    menu("A&nalysis Settings"),
    item("&Timing Lines", ID_ANSET_TIMING),
    item("&Moving-Average Window Size", ID_ANSET_MATTR, "",
         "Window size of the moving averages\nMoving-Average Window"),
    item("Database &Stats (%SD)", ID_ANSET_PCSD),
    item("&Default Databases", ID_ANSET_DEFDB),
    end(),
    item("Lan&guage Settings", ID_SETUP_LANGUAGE),
    menu("F&onts"),
    item("&Transcripts - Displayed", ID_FONT_DISPTRAN, "",
         "Font of transcript windows\nTranscript Font"),
    item("&Reports - Displayed", ID_FONT_DISPREPT, "", "Font of report windows\nReport Font"),
    item("Transcripts && Reports - &Printed", ID_FONT_PRT, "",
         "Font of printed transcripts and reports\nPrinting Font"),
    end(),
    menu("&Network or Lab Setup"),
    item("&Client Options", ID_NET_CLIENT),
    item("&PDF Printer", ID_NET_PDF),
    menu("&File Locations"),
    item("&Transcripts", ID_NETLOC_TRAN),
    item("&Reports", ID_NETLOC_REPT),
    item("&Built-in Reference Databases", ID_NETLOC_DB),
    item("&External Reference Databases", ID_NETLOC_ALTDB),
    item("&Word and Code Lists", ID_NETLOC_LIST),
    item("Root &Identification Files", ID_NETLOC_RIF),
    item("Rectangular &Data File Selections", ID_NETLOC_BATCH),
    item("&Automatic Backups", ID_NETLOC_BACKUP),
    item("&User Setup File", ID_NETLOC_INIDIR),
    end(),
    menu("F&onts"),
    item("&Transcripts - Displayed", ID_NETFONT_DISPTRAN),
    item("&Reports - Displayed", ID_NETFONT_DISPREPT),
    item("Transcripts && Reports - &Printed", ID_NETFONT_PRT),
    end(),
    end(),
    end(),

    menu("&Window"),
    item("Close &All", ID_WINDOW_CLOSE_ALL, "", "Close every document\nClose All"),
    item("Close All &Reports", ID_WINDOW_CLOSE_REPORTS, "",
         "Close every report\nClose All Reports"),
    end(),

    menu("&Help"),
    item("&Help Topics", ID_HELP_FINDER, "", "List Help topics\nHelp Topics"),
    item("&Context Help", ID_CONTEXT_HELP, "F1", "Help on the active window\nHelp"),
    item("TAVI &Reference Book", ID_HELP_BOOK),
    item("&Normative Graphs", ID_HELP_GRAPHS),
    item("&Online Resources", ID_HELP_ONLINE),
    sep(),
    item("&Get Acrobat Reader", ID_HELP_ACROBAT),
    item("Read&me", ID_HELP_README, "", "Show the Readme file\nReadme"),
    sep(),
    item("&About TAVI...", ID_APP_ABOUT, "",
         "Display program information, version number and copyright\nAbout"),
    end(),
};

const MenuEntry kTranscriptContext[] = {
    item("&Find && Replace", ID_EDIT_FIND_REPLACE),
    item("Go to &Entry Number", ID_EDIT_GOTO_ENTRY),
    item("Chec&k for Errors", ID_EDIT_CHECK),
    sep(),
    item("Undo", ID_EDIT_UNDO),
    item("Redo", ID_EDIT_REDO),
    item("Cut", ID_EDIT_CUT),
    item("Copy", ID_EDIT_COPY),
    item("Paste", ID_EDIT_PASTE),
    item("Select &All", ID_EDIT_SELECT_ALL),
    sep(),
    item("&Save", ID_FILE_SAVE),
    item("Save &As...", ID_FILE_SAVE_AS),
    item("Prin&t...", ID_FILE_PRINT),
    item("Add to PDF &Batch...", ID_FILE_ADD_PDF_BATCH),
    item("C&lose PDF Batch", ID_FILE_CLOSE_PDF_BATCH),
    sep(),
    item("&Link...", ID_LINK_LINK),
    item("U&nlink", ID_LINK_UNLINK),
    sep(),
    item("&Help", ID_HELP_FINDER),
};

const MenuEntry kReportContext[] = {
    item("&Save", ID_FILE_SAVE),
    item("Save &As...", ID_FILE_SAVE_AS),
    item("Prin&t...", ID_FILE_PRINT),
    item("Add to PDF &Batch", ID_FILE_ADD_PDF_BATCH),
    item("C&lose PDF Batch", ID_FILE_CLOSE_PDF_BATCH),
    sep(),
    item("&Help", ID_HELP_FINDER),
};

const MenuEntry kPlainContext[] = {
    item("&Find && Replace", ID_EDIT_FIND_REPLACE),
    sep(),
    item("Undo", ID_EDIT_UNDO),
    item("Redo", ID_EDIT_REDO),
    item("Cut", ID_EDIT_CUT),
    item("Copy", ID_EDIT_COPY),
    item("Paste", ID_EDIT_PASTE),
    item("Select &All", ID_EDIT_SELECT_ALL),
    sep(),
    item("&Save", ID_FILE_SAVE),
    item("Save &As...", ID_FILE_SAVE_AS),
    item("Prin&t...", ID_FILE_PRINT),
    item("Add to PDF &Batch...", ID_FILE_ADD_PDF_BATCH),
    item("C&lose PDF Batch", ID_FILE_CLOSE_PDF_BATCH),
    sep(),
    item("&Help", ID_HELP_FINDER),
};

} // namespace

const char* commandName(CommandId id) {
    return kCommands[static_cast<std::size_t>(id)].name;
}

CommandStatus commandStatus(CommandId id) {
    return kCommands[static_cast<std::size_t>(id)].status;
}

std::optional<CommandId> commandByName(std::string_view name) {
    for (CommandId id : kCommandIds)
        if (name == commandName(id))
            return id;
    return std::nullopt;
}

std::span<const CommandId> allCommands() {
    return kCommandIds;
}

const char* entryName(const MenuEntry& entry) {
    return entry.kind == EntryKind::Item ? commandName(entry.command) : entry.name;
}

std::span<const MenuEntry> mainMenuTable() {
    return kMain;
}
std::span<const MenuEntry> transcriptContextTable() {
    return kTranscriptContext;
}
std::span<const MenuEntry> reportContextTable() {
    return kReportContext;
}
std::span<const MenuEntry> plainContextTable() {
    return kPlainContext;
}

std::string plainMenuText(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&') {
            if (i + 1 < text.size() && text[i + 1] == '&')
                plain += text[++i];
            continue;
        }
        plain += text[i];
    }
    return plain;
}

std::vector<CommandLine> commandInventory() {
    std::vector<CommandLine> lines;
    std::vector<std::string> open;
    for (const MenuEntry& entry : mainMenuTable()) {
        switch (entry.kind) {
        case EntryKind::Menu:
            open.push_back(plainMenuText(entry.text));
            break;
        case EntryKind::EndMenu:
            open.pop_back();
            break;
        case EntryKind::Item: {
            std::string path;
            for (const std::string& menu : open)
                path += menu + " > ";
            path += plainMenuText(entry.text);
            lines.push_back({entry.command, std::move(path), commandStatus(entry.command)});
            break;
        }
        default:
            break;
        }
    }
    return lines;
}

std::string commandInventoryText() {
    std::string text;
    for (const CommandLine& line : commandInventory()) {
        text += commandName(line.id);
        text += '\t';
        text += line.path;
        text += line.status == CommandStatus::Working ? "\tworking\n" : "\tunavailable\n";
    }
    return text;
}

} // namespace tavi::app
