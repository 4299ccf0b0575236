// What happens from the start of the program until its first page stands on the screen.
#pragma once

#include <string>
#include <string_view>

namespace runstate {

/// Loads of the set-up page and of the entry form. Errors in them pass in silence, but for a database that cannot be
/// reached; with the word AUTO on the command line any error ends the program.
void FrmInit_Load();
void FrmQSO_Load();

/// The seven message texts of the run state into the fields of the entry form.
void showMessagesOnEntryForm();

/// Folder of the databases for the folder of the program: without the bracketed tag that may stand in it. Everything
/// between the drive and the last "]" goes.
std::string appDirOf(std::string_view appPath);

}  // namespace runstate
