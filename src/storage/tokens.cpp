#include "storage/tokens.h"

#include "base/runtime_error.h"
#include "base/text.h"

namespace storage {

namespace {

constexpr std::string_view blankCharacters = " \t\r\n\f\v";
constexpr std::string_view parameterSigns = "?:@$";

[[noreturn]] void refuseToken(std::string_view statement, const std::string& why)
{
    throw base::RuntimeError(base::invalidArgument, why + " in the statement " + std::string(statement));
}

bool isWordCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    const bool digit = byte >= '0' && byte <= '9';
    return letter || digit || byte == '_' || byte >= 0x80;
}

std::size_t endOfWord(std::string_view statement, std::size_t at)
{
    while (at < statement.size() && isWordCharacter(statement[at]))
        ++at;
    return at;
}

/// Behind the closing quote; a doubled quote belongs to the value.
std::size_t endOfQuoted(std::string_view statement, std::size_t at, char quote)
{
    for (++at; at < statement.size(); ++at) {
        if (statement[at] != quote) continue;
        const bool doubled = at + 1 < statement.size() && statement[at + 1] == quote;
        if (!doubled) return at + 1;
        ++at;
    }
    refuseToken(statement, "A quote is not closed");
}

std::size_t endOfBracketed(std::string_view statement, std::size_t at)
{
    const std::size_t closing = statement.find(']', at);
    if (closing == std::string_view::npos) refuseToken(statement, "A bracket is not closed");
    return closing + 1;
}

/// A comment would hide from the check of what follows the first statement; a parameter would take one of our values.
void refuseForeignSigns(std::string_view statement, std::size_t at)
{
    const std::string_view rest = statement.substr(at);
    if (rest.starts_with("--") || rest.starts_with("/*")) refuseToken(statement, "There is a comment");
    if (parameterSigns.find(rest[0]) != std::string_view::npos) refuseToken(statement, "There is a parameter");
    if (rest[0] == '\0') refuseToken(statement, "There is a zero byte");
}

Token tokenAt(std::string_view statement, std::size_t at)
{
    const auto until = [&](std::size_t end) { return statement.substr(at, end - at); };
    switch (statement[at]) {
        case '\'':
            return {TokenKind::text, until(endOfQuoted(statement, at, '\''))};
        case '"':
            return {TokenKind::quotedName, until(endOfQuoted(statement, at, '"'))};
        case '[':
            return {TokenKind::quotedName, until(endOfBracketed(statement, at))};
        default:
            break;
    }
    if (isWordCharacter(statement[at])) return {TokenKind::word, until(endOfWord(statement, at))};
    refuseForeignSigns(statement, at);
    return {TokenKind::sign, until(at + 1)};
}

std::string withoutQuotes(const Token& token)
{
    const char quote = token.source.front();
    const std::string_view inside = token.source.substr(1, token.source.size() - 2);
    if (quote == '[') return std::string(inside);
    std::string value;
    for (std::size_t i = 0; i < inside.size(); ++i) {
        value.push_back(inside[i]);
        if (inside[i] == quote) ++i;
    }
    return value;
}

}  // namespace

std::vector<Token> tokensOf(std::string_view statement)
{
    std::vector<Token> tokens;
    std::size_t at = statement.find_first_not_of(blankCharacters);
    while (at != std::string_view::npos) {
        tokens.push_back(tokenAt(statement, at));
        at = statement.find_first_not_of(blankCharacters, at + tokens.back().source.size());
    }
    return tokens;
}

bool isWord(const Token& token, std::string_view word)
{
    return token.kind == TokenKind::word && base::equalIgnoringCase(token.source, word);
}

bool isSign(const Token& token, char sign)
{
    return token.kind == TokenKind::sign && token.source[0] == sign;
}

bool isName(const Token& token)
{
    return token.kind == TokenKind::word || token.kind == TokenKind::quotedName;
}

std::string nameIn(const Token& token)
{
    return token.kind == TokenKind::quotedName ? withoutQuotes(token) : std::string(token.source);
}

std::string textIn(const Token& token)
{
    return withoutQuotes(token);
}

std::string textToken(std::string_view value)
{
    std::string token = "'";
    for (const char character : value) {
        token.push_back(character);
        if (character == '\'') token.push_back(character);
    }
    return token + "'";
}

}  // namespace storage
