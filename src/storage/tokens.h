// The words and signs that a statement text consists of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace storage {

enum class TokenKind {
    word,        ///< a keyword, a bare name or a number
    text,        ///< 'YO2ABC', a quote inside it doubled
    quotedName,  ///< [Callsign] or "Callsign"
    sign,        ///< any other single character
};

/// A piece of a statement. `source` looks into the statement that it was cut from, its quotes included.
struct Token {
    TokenKind kind;
    std::string_view source;
};

/// Cuts a statement into its tokens; blanks and line ends between them are dropped. Error 5 for a quote that is not
/// closed and for what no statement of the program has: comments, parameters and zero bytes.
std::vector<Token> tokensOf(std::string_view statement);

/// True for this word in any case of letters.
bool isWord(const Token& token, std::string_view word);

bool isSign(const Token& token, char sign);

/// A bare or quoted name.
bool isName(const Token& token);

/// The name without its quotes.
std::string nameIn(const Token& token);

/// The value of a text token.
std::string textIn(const Token& token);

/// A value as a text token, every quote inside doubled.
std::string textToken(std::string_view value);

}  // namespace storage
