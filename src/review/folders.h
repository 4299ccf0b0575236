// The two folders beside the program that files of results go to.
#pragma once

#include <string>

namespace review {

/// Their names, in capitals as they are made. They are found in whatever case they are.
inline constexpr const char* logFolderName = "LOG";
inline constexpr const char* archiveFolderName = "ARHIVA";

/// Path of the folder for exported files, in the program's own form.
std::string logFolder();

/// Path of the folder for archives, in the program's own form.
std::string archiveFolder();

/// Make a folder that is missing, and tell the operator so; a folder that is there is left alone in silence. The
/// message comes whenever the folder was not found there, also where it could not be made.
void OrdLog();
void OrdArhiva();

}  // namespace review
