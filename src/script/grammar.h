// The statements that a script may consist of: how each is written, and what its words have to look like.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "script/statement.h"

namespace script {

enum class Lines { none, taken };

/// One statement. `usage` is its verb, one or two words, and its arguments: those in capitals stand for a word of that
/// kind, "a|b" for either word, "[X]" may be left out, "X..." may be repeated.
struct Rule {
    Verb verb;
    std::string_view usage;
    std::string_view meaning;
    Lines lines = Lines::none;  ///< whether "|" lines may stand below
};

/// All statements, in the order of the help page.
std::span<const Rule> rules();

/// The rule of a verb.
const Rule& ruleOf(Verb verb);

/// The rule that a line follows. BadLine (see words.h) when no statement begins with these words.
const Rule& ruleFor(const std::vector<Word>& words);

/// The words behind the verb, when they are as many as the rule says and of the right kinds; else BadLine.
std::vector<Word> argumentsOf(const Rule& rule, const std::vector<Word>& words);

}  // namespace script
