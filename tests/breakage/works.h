// What an operator does with the disk, as scripts: the works that must survive a machine that breaks in the middle.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace test {

struct Work {
    const char* name;
    std::string prepared;  ///< a script that makes the folder as it is before: logs, set-up files, older results
    std::string before;    ///< a script that leads a new program up to the work
    std::string act;       ///< the work
    std::string again;     ///< what the operator does when it failed and the trouble is over
    bool changesLog = false;
    bool changesFiles = false;
};

std::span<const Work> works();

}  // namespace test
