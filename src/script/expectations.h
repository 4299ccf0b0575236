// The statements that check something.
#pragma once

#include "script/program_run.h"
#include "script/statement.h"
#include "script/virtual_machine.h"

namespace script {

/// True for the statements that count when they pass, too.
bool isCheck(Verb verb);

/// Makes a check. StepFailed, with what was expected and what was there, when it does not hold.
void check(const Statement& statement, VirtualMachine& machine, const ProgramRun& run);

}  // namespace script
