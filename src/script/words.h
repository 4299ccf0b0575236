// A line of a script, cut into its words.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "script/statement.h"

namespace script {

/// Why a line cannot be read.
class BadLine : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// The words of a line, parted by blanks and tabs. Text in double quotes is one word, in which \" and \\ stand for
/// the quote and the backslash; a backslash before anything else stands for itself. "#" outside quotes ends the line.
/// BadLine for a quote that is not closed, or that touches another word.
std::vector<Word> wordsOf(std::string_view line);

/// A text in quotes, as wordsOf reads it.
std::string inQuotes(std::string_view text);

/// True for an unquoted word of the language, in any case of letters.
bool isWord(const Word& word, std::string_view spelling);

}  // namespace script
