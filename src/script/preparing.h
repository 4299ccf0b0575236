// The statements that prepare the machine: what it has, its clock, its folder, keys held, answers to come.
#pragma once

#include "script/statement.h"
#include "script/virtual_machine.h"

namespace script {

/// Does such a statement; false for any other. StepFailed, or an error of the database, when it cannot be done.
bool prepare(const Statement& statement, VirtualMachine& machine);

}  // namespace script
