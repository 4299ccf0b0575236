#include "script/words.h"

#include "base/text.h"

namespace script {

namespace {

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// Where a bare word ends: at a blank, a comment or the end of the line.
std::size_t endOfBareWord(std::string_view line, std::size_t from)
{
    const std::size_t end = line.find_first_of(" \t#\"", from);
    if (end != std::string_view::npos && line[end] == '"') throw BadLine("a quotation mark inside a word");
    return std::min(end, line.size());
}

/// Reads the text behind an opening quotation mark; `at` is put behind the closing one.
std::string textInQuotes(std::string_view line, std::size_t& at)
{
    std::string text;
    for (; at < line.size() && line[at] != '"'; ++at) {
        const bool escapes = line[at] == '\\' && at + 1 < line.size() && (line[at + 1] == '"' || line[at + 1] == '\\');
        if (escapes) ++at;
        text.push_back(line[at]);
    }
    if (at == line.size()) throw BadLine("a quotation mark that is not closed");
    ++at;
    const bool touchesWord = at < line.size() && !isBlank(line[at]) && line[at] != '#';
    if (touchesWord) throw BadLine("a word that touches a quotation mark");
    return text;
}

}  // namespace

std::vector<Word> wordsOf(std::string_view line)
{
    std::vector<Word> words;
    for (std::size_t at = 0; at < line.size() && line[at] != '#';) {
        if (isBlank(line[at])) {
            ++at;
        } else if (line[at] == '"') {
            words.push_back({textInQuotes(line, ++at), true});
        } else {
            const std::size_t end = endOfBareWord(line, at);
            words.push_back({std::string(line.substr(at, end - at)), false});
            at = end;
        }
    }
    return words;
}

std::string inQuotes(std::string_view text)
{
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') result.push_back('\\');
        result.push_back(character);
    }
    return result + "\"";
}

bool isWord(const Word& word, std::string_view spelling)
{
    return !word.quoted && base::equalIgnoringCase(word.text, spelling);
}

}  // namespace script
