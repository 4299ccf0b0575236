#include "script/parser.h"

#include <optional>

#include "base/text.h"
#include "script/grammar.h"
#include "script/words.h"

namespace script {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isUtf8(std::string_view line)
{
    return base::fromCharacters(base::toCharacters(line)) == line;
}

/// What stands behind the "|" of a line that begins with one.
std::optional<std::string_view> textLine(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos || line[first] != '|') return std::nullopt;
    return line.substr(first + 1);
}

Statement statementFrom(const std::vector<Word>& words, int line)
{
    const Rule& rule = ruleFor(words);
    Statement statement{.line = line, .verb = rule.verb, .words = argumentsOf(rule, words), .lines = {}, .later = {}};
    if (rule.verb != Verb::after) return statement;

    const std::vector<Word> rest(statement.words.begin() + 1, statement.words.end());
    auto later = std::make_shared<const Statement>(statementFrom(rest, line));
    if (later->verb == Verb::wait) throw BadLine("time cannot be moved after a time");
    statement.words.resize(1);
    statement.later = std::move(later);
    return statement;
}

/// Gives a line of text to the statement above it, of `after` to the one that is done later.
void addLine(Statement& statement, std::string_view line)
{
    if (statement.later != nullptr) {
        Statement later = *statement.later;
        addLine(later, line);
        statement.later = std::make_shared<const Statement>(std::move(later));
        return;
    }
    const Rule& rule = ruleOf(statement.verb);
    if (rule.lines == Lines::none) throw BadLine("no lines belong to this statement: " + std::string(rule.usage));
    statement.lines.emplace_back(line);
}

void readLine(std::string_view line, int number, std::vector<Statement>& statements)
{
    if (!isUtf8(line)) throw BadLine("this is not UTF-8");
    if (const std::optional<std::string_view> text = textLine(line)) {
        if (statements.empty()) throw BadLine("no statement stands above this line");
        return addLine(statements.back(), *text);
    }
    const std::vector<Word> words = wordsOf(line);
    if (!words.empty()) statements.push_back(statementFrom(words, number));
}

}  // namespace

UnreadableScript::UnreadableScript(const std::string& fileName, int line, const std::string& why)
    : std::runtime_error(fileName + ":" + std::to_string(line) + ": " + why)
{
}

Script parse(std::string_view text, const std::string& fileName)
{
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    Script script{.fileName = fileName, .statements = {}};
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        try {
            readLine(line, number, script.statements);
        } catch (const BadLine& bad) {
            throw UnreadableScript(fileName, number, bad.what());
        }
    }
    return script;
}

}  // namespace script
