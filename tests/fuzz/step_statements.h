// What steps mean: the statements of a script that they stand for, on the form that is in view.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "fuzz/steps.h"
#include "script/statement.h"

namespace fuzz {

/// Statements of a step, in their order. None for one that can do nothing now. `after` is not among them.
std::vector<script::Statement> statementsOf(const Step& step);

/// The step of a statement that a script has, nothing for one that has no step (checks, odd names).
std::vector<Step> stepsOf(const script::Statement& statement);

}  // namespace fuzz
