// What became of a request to save settings as the program default. The person
// has already been told (through the Prompter); callers use this to decide
// whether to close a dialog or keep it open.
#pragma once

namespace tavi {

enum class SaveOutcome {
    Saved,
    NotAllowed,  // defaults cannot be saved on this computer
    NotAnswered, // the question was not answered Yes
    Invalid,     // the dialog's fields did not validate
    CannotWrite, // the file could not be created
    WriteFailed, // the file could not be written completely
};

} // namespace tavi
