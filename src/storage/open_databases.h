// Opening the databases of the running program.
#pragma once

#include <string>

namespace storage {

/// Paths of the databases under the program's folder.
std::string logDatabasePath();
std::string locatorDatabasePath();
std::string engineProofPath();

/// Opens the log and the locator memory at the end of the entry form's Load and defines their tables. The tables are in
/// the files already, so the first definition ends the procedure; the connections are stored by then.
void DBsInit();

}  // namespace storage
