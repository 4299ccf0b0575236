// The statements that print something. They clear nothing.
#pragma once

#include <string>
#include <vector>

#include "script/program_run.h"
#include "script/statement.h"
#include "script/virtual_machine.h"

namespace script {

/// The lines that a `show` statement prints; none for other statements. StepFailed when what it names is not there.
std::vector<std::string> linesToShow(const Statement& statement, const VirtualMachine& machine, const ProgramRun& run);

}  // namespace script
