// Tables of the database files, as they stand there.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "script/virtual_machine.h"
#include "storage/behind_the_back.h"

namespace script {

/// A table that was found, with a link of its own to its file.
struct FoundTable {
    const storage::TableSchema& schema;
    storage::BehindTheBack file;
};

/// A table of the log or of the locator memory by name, in any case of letters. StepFailed when there is none.
FoundTable tableNamed(std::string_view name, const VirtualMachine& machine);

/// A database of the program by the name of its file. StepFailed when the program has none of that name.
storage::BehindTheBack databaseNamed(std::string_view name, const VirtualMachine& machine);

/// The values that a script compares: without `ID`, null as empty text.
std::vector<std::string> comparedValues(const storage::TableSchema& schema,
                                        const storage::BehindTheBack::StoredRow& row);

}  // namespace script
