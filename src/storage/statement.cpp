#include "storage/statement.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/runtime_error.h"
#include "storage/like_pattern.h"
#include "storage/tokens.h"

namespace storage {

namespace {

using Tokens = std::span<const Token>;

[[noreturn]] void refuseStatement(std::string_view statement, const std::string& why)
{
    throw base::RuntimeError(base::invalidArgument, why + ": " + std::string(statement));
}

/// True for a LIKE with a name before and a text behind it that are whole by themselves. Where BETWEEN stands, an AND
/// may be its own, and nothing can be told from it.
bool isWholeLike(Tokens tokens, std::size_t name)
{
    if (name + 2 >= tokens.size()) return false;
    const bool shape =
        isName(tokens[name]) && isWord(tokens[name + 1], "LIKE") && tokens[name + 2].kind == TokenKind::text;
    if (!shape) return false;

    const auto joins = [](const Token& token) { return isWord(token, "AND") || isWord(token, "OR"); };
    const bool wholeBefore = name == 0 || joins(tokens[name - 1]) || isWord(tokens[name - 1], "WHERE") ||
                             isWord(tokens[name - 1], "NOT") || isSign(tokens[name - 1], '(');
    const bool wholeBehind = name + 3 == tokens.size() || joins(tokens[name + 3]) || isSign(tokens[name + 3], ')') ||
                             isSign(tokens[name + 3], ';');
    const bool between = std::any_of(tokens.begin(), tokens.end(), [](const Token& t) { return isWord(t, "BETWEEN"); });
    return wholeBefore && wholeBehind && !between;
}

/// The first text behind all texts that begin with `head`. Columns compare by small letters, so the last character is
/// raised as a small one.
std::string behindHead(std::string head)
{
    char& last = head.back();
    if (last >= 'A' && last <= 'Z') last = static_cast<char>(last - 'A' + 'a');
    ++last;
    return head;
}

std::string likeWithRange(const Token& name, const Token& pattern)
{
    const std::string column(name.source);
    std::string like = column + " LIKE " + std::string(pattern.source);
    const std::string head = LikePattern(textIn(pattern)).literalHead();
    if (head.empty()) return like;
    const auto bound = [&](const char* sign, const std::string& value) {
        return " AND " + column + sign + textToken(value) + " COLLATE NOCASE";
    };
    return "(" + like + bound(" >= ", head) + bound(" < ", behindHead(head)) + ")";
}

/// The tokens as they stood in the statement, with what stood between them.
std::string translated(Tokens tokens)
{
    std::string result;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (i > 0) {
            const char* const from = tokens[i - 1].source.data() + tokens[i - 1].source.size();
            result.append(from, tokens[i].source.data());
        }
        if (isWholeLike(tokens, i)) {
            result += likeWithRange(tokens[i], tokens[i + 2]);
            i += 2;
        } else {
            result += tokens[i].source;
        }
    }
    return result;
}

/// The tokens in front of the semicolon. Behind it nothing but more of them may stand.
Tokens firstStatement(Tokens tokens, std::string_view statement)
{
    const auto isEnd = [](const Token& token) { return isSign(token, ';'); };
    const auto end = std::find_if(tokens.begin(), tokens.end(), isEnd);
    if (!std::all_of(end, tokens.end(), isEnd))
        refuseStatement(statement, "Something stands behind the first statement");
    return tokens.first(static_cast<std::size_t>(end - tokens.begin()));
}

/// The place of ORDER, or the end.
std::size_t findOrder(Tokens tokens)
{
    const auto order = std::find_if(tokens.begin(), tokens.end(), [](const Token& t) { return isWord(t, "ORDER"); });
    return static_cast<std::size_t>(order - tokens.begin());
}

/// A condition is put in brackets later; one that closes more than it opened could leave them.
bool bracketsMatch(Tokens tokens)
{
    int depth = 0;
    for (const Token& token : tokens) {
        if (isSign(token, '(')) ++depth;
        if (isSign(token, ')')) --depth;
        if (depth < 0) return false;
    }
    return depth == 0;
}

std::string parseCondition(Tokens tokens, std::string_view statement)
{
    if (tokens.empty()) return {};
    const bool whole = isWord(tokens[0], "WHERE") && tokens.size() > 1 && bracketsMatch(tokens);
    if (!whole) refuseStatement(statement, "This is no condition that rows can be chosen by");
    return translated(tokens.subspan(1));
}

/// Columns with one value in all rows: those of a condition that is nothing but names that equal texts, joined by AND.
std::vector<std::string> fixedColumns(Tokens where)
{
    constexpr std::size_t pace = 4;  // WHERE or AND, a name, a sign, a text
    std::vector<std::string> fixed;
    if (where.size() % pace != 0) return {};
    for (std::size_t i = 0; i < where.size(); i += pace) {
        const bool joined = i == 0 || isWord(where[i], "AND");
        const bool equals = isName(where[i + 1]) && isSign(where[i + 2], '=') && where[i + 3].kind == TokenKind::text;
        if (!joined || !equals) return {};
        fixed.push_back(nameIn(where[i + 1]));
    }
    return fixed;
}

std::vector<std::string> parseOrder(Tokens tokens, std::string_view statement)
{
    if (tokens.empty()) return {};
    // ORDER BY name, then pairs of a comma and a name.
    bool whole = tokens.size() >= 3 && tokens.size() % 2 == 1 && isWord(tokens[1], "BY");
    std::vector<std::string> order;
    for (std::size_t i = 2; whole && i < tokens.size(); i += 2) {
        whole = isName(tokens[i]) && (i == 2 || isSign(tokens[i - 1], ','));
        order.push_back(nameIn(tokens[i]));
    }
    if (!whole) refuseStatement(statement, "This is no order that rows can be read in");
    return order;
}

}  // namespace

Selection parseSelection(std::string_view statement)
{
    const std::vector<Token> all = tokensOf(statement);
    const Tokens tokens = firstStatement(all, statement);
    if (tokens.size() == 1 && isName(tokens[0])) return {std::string(tokens[0].source), {}, {}, {}};

    const bool whole = tokens.size() >= 4 && isWord(tokens[0], "SELECT") && isSign(tokens[1], '*') &&
                       isWord(tokens[2], "FROM") && isName(tokens[3]);
    if (!whole) refuseStatement(statement, "This is no selection of rows");
    const Tokens rest = tokens.subspan(4);
    const std::size_t order = findOrder(rest);
    return {std::string(tokens[3].source), parseCondition(rest.first(order), statement),
            parseOrder(rest.subspan(order), statement), fixedColumns(rest.first(order))};
}

std::string translateAction(std::string_view statement)
{
    constexpr std::array<std::string_view, 7> beginnings = {"INSERT", "UPDATE", "DELETE", "WITH",
                                                            "CREATE", "ALTER",  "DROP"};
    const std::vector<Token> tokens = tokensOf(statement);
    const bool action = !tokens.empty() && std::any_of(beginnings.begin(), beginnings.end(),
                                                       [&](std::string_view word) { return isWord(tokens[0], word); });
    if (!action) refuseStatement(statement, "This statement changes nothing");
    const bool starred = tokens.size() > 1 && isWord(tokens[0], "DELETE") && isSign(tokens[1], '*');
    if (starred) return "DELETE " + translated(Tokens(tokens).subspan(2));
    return translated(tokens);
}

}  // namespace storage
