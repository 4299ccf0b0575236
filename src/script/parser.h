// Reading a script.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "script/statement.h"

namespace script {

/// A script that cannot be read. what() is "FILE:LINE: why".
class UnreadableScript : public std::runtime_error {
 public:
    UnreadableScript(const std::string& fileName, int line, const std::string& why);
};

/// The statements of a script: UTF-8, one statement a line; lines that begin with "|" belong to the statement above.
/// `fileName` is only a name for messages. UnreadableScript for the first line that is no statement.
Script parse(std::string_view text, const std::string& fileName);

}  // namespace script
