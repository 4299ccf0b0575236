// Statements that act on the program, as movements of the operator.
#pragma once

#include <optional>

#include "script/program_run.h"
#include "script/statement.h"
#include "script/virtual_machine.h"

namespace script {

/// What a statement does to the program; nothing for one that does nothing to it. The controls that it names are looked
/// for when its entries are taken. `machine` outlives the movements.
std::optional<Input> inputOf(const Statement& statement, VirtualMachine& machine);

}  // namespace script
