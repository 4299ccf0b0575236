// What a property of a control or a variable of the run state holds, as scripts write it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "screen/colour.h"

namespace script {

using Value = std::variant<std::string, long, double, bool, screen::Colour>;

/// A value in print: text in quotes, floats with 6 decimals, yes or no, R,G,B.
std::string shown(const Value& value);

/// True when a word of a script means this value. Floats are compared as they are shown; 1 and yes are the same, 0 and
/// no are.
bool means(std::string_view word, const Value& value);

/// A row in print: its values parted by "|", in them "|" as "\|", a backslash as "\\", null as "\N".
std::string rowText(const std::vector<std::optional<std::string>>& values);
std::string rowText(const std::vector<std::string>& values);

}  // namespace script
