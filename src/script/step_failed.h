// How a step of a script fails.
#pragma once

#include <string>
#include <utility>

namespace script {

/// Thrown by a step that finds something else than it expects, or that cannot be done. No fault of the program and not
/// derived from std::exception: only the player of the step catches it.
struct StepFailed {
    std::string expected;
    std::string got;
};

}  // namespace script
