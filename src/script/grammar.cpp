#include "script/grammar.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/text.h"
#include "script/key_names.h"
#include "script/number_words.h"
#include "script/properties.h"
#include "script/words.h"

namespace script {

namespace {

constexpr std::array allRules = {
    Rule{Verb::now, "now DATE TIME", "sets the calendar: now 2026-11-15 12:34:56"},
    Rule{Verb::wait, "wait SECONDS", "lets time go by"},
    Rule{Verb::after, "after SECONDS STATEMENT...",
         "does it when time has moved so far, in the middle of a handler too"},
    Rule{Verb::screen, "screen WIDTH HEIGHT", "size of the screen in pixels"},
    Rule{Verb::soundCard, "soundcard yes|no", "whether the machine can play sound"},
    Rule{Verb::port, "port NUMBER|none", "serial port that the machine has"},
    Rule{Verb::printer, "printer yes|no|fail", "default printer"},
    Rule{Verb::drive, "drive PATH|none", "folder that stands for drive A:"},
    Rule{Verb::unplug, "unplug", "pulls the serial adapter"},
    Rule{Verb::file, "file PATH", "writes the lines below, after |, into a text file", Lines::taken},
    Rule{Verb::wav, "wav PATH SECONDS", "writes a sound file of silence"},
    Rule{Verb::sql, "sql DATABASE SQL", "changes a database behind the program's back"},
    Rule{Verb::start, "start [WORD]", "starts the program with this command line"},
    Rule{Verb::restart, "restart [WORD]", "kills the program and starts it anew"},
    Rule{Verb::click, "click NAME", "gives a control the focus and clicks it"},
    Rule{Verb::focus, "focus NAME", "gives a control the focus"},
    Rule{Verb::doubleClick, "dblclick NAME", "double click on a control"},
    Rule{Verb::type, "type TEXT", "presses the key of each character"},
    Rule{Verb::paste, "paste TEXT", "pastes a text"},
    Rule{Verb::key, "key KEY...", "presses and releases keys: key Tab Ctrl+Up a"},
    Rule{Verb::keyDown, "down KEY", "presses a key"},
    Rule{Verb::keyUp, "up KEY", "releases it"},
    Rule{Verb::keyRepeat, "repeat KEY COUNT", "lets the key that is down repeat so many times"},
    Rule{Verb::hold, "hold KEY", "the key counts as down for who polls it"},
    Rule{Verb::release, "release KEY", "no more"},
    Rule{Verb::row, "row NAME N", "click on row N of a grid or list, from 1, negative from the end"},
    Rule{Verb::doubleRow, "dblrow NAME N", "double click on it"},
    Rule{Verb::close, "close", "the window's close button"},
    Rule{Verb::answer, "answer Yes|No|OK|Cancel...", "answers for the next questions"},
    Rule{Verb::messageLike, "message like TEXT", "the oldest box not yet checked contained this"},
    Rule{Verb::messageAny, "message any", "there was a box not yet checked"},
    Rule{Verb::message, "message TEXT [TITLE] [STYLE]", "the oldest box not yet checked said this"},
    Rule{Verb::noMessage, "nomessage", "no box is left to check"},
    Rule{Verb::expectFocus, "expect focus NAME", "the control has the focus"},
    Rule{Verb::expectForm, "expect form NAME", "the form is on the screen"},
    Rule{Verb::expectEnded, "expect ended", "the program has ended"},
    Rule{Verb::expectOff, "expect off NAME", "the control cannot be clicked"},
    Rule{Verb::expectState, "expect state VARIABLE VALUE", "a variable of the run state"},
    Rule{Verb::expectRows, "expect rows TABLE COUNT", "number of rows in the database file"},
    Rule{Verb::expectRow, "expect row TABLE N VALUE...", "a row of the database file, without ID"},
    Rule{Verb::expectGrid, "expect grid NAME N VALUE...", "a row of a grid, the visible columns"},
    Rule{Verb::expectGridRows, "expect gridrows NAME COUNT", "number of rows of a grid"},
    Rule{Verb::expectCurrent, "expect current NAME N", "row that the grid stands on"},
    Rule{Verb::expectList, "expect list NAME N TEXT", "an item of a list"},
    Rule{Verb::expectKeyed, "expect keyed WPM TEXT", "Morse code sent since the last check"},
    Rule{Verb::expectSounds, "expect sounds [SOUND...]", "sound files played since the last check"},
    Rule{Verb::expectFile, "expect file PATH", "a text file has exactly the lines below, after |", Lines::taken},
    Rule{Verb::expectProperty, "expect PROPERTY VALUE", "a property: expect txtIndic.Text \"YO2\""},
    Rule{Verb::noFile, "nofile PATH", "there is no such file"},
    Rule{Verb::showControls, "show controls", "prints every property of every control of the form on the screen"},
    Rule{Verb::showState, "show state VARIABLE", "prints a variable of the run state"},
    Rule{Verb::showTable, "show table TABLE", "prints the rows of a table"},
    Rule{Verb::showGrid, "show grid NAME", "prints the rows of a grid"},
    Rule{Verb::showFile, "show file PATH", "prints a text file"},
    Rule{Verb::showMessages, "show messages", "prints the message boxes: STYLE|TITLE|TEXT|ANSWER"},
    Rule{Verb::showNotices, "show notices", "prints the notices"},
    Rule{Verb::showSerial, "show serial", "prints what the serial lines did"},
    Rule{Verb::showSounds, "show sounds", "prints the sounds played"},
    Rule{Verb::showPrinter, "show printer", "prints what went to the printer"},
    Rule{Verb::showHelp, "show help", "prints which pages of help were opened"},
    Rule{Verb::showFocus, "show focus", "prints the name of the control with the focus"},
    Rule{Verb::showForm, "show form", "prints the name of the form on the screen"},
    Rule{Verb::showProperty, "show PROPERTY", "prints a property"},
};

bool isAnything(std::string_view)
{
    return true;
}

bool isSomething(std::string_view text)
{
    return !text.empty();
}

bool isFrom(std::string_view text, long least)
{
    const std::optional<long> number = wholeNumber(text);
    return number && *number >= least;
}

bool isKey(std::string_view text)
{
    return keyNamed(text).has_value();
}

bool isProperty(std::string_view text)
{
    const std::size_t point = text.rfind('.');
    return point != std::string_view::npos && point > 0 && isPropertyName(text.substr(point + 1));
}

/// A kind of argument: its name in the rules, the test that a word has to pass, and what it is in plain words.
struct ArgumentKind {
    std::string_view name;
    bool (*fits)(std::string_view text);
    std::string_view what;
};

constexpr std::array argumentKinds = {
    ArgumentKind{"DATE", [](std::string_view text) { return calendarDay(text).has_value(); }, "a date, as 2026-11-15"},
    ArgumentKind{"TIME", [](std::string_view text) { return timeOfDay(text).has_value(); }, "a time, as 12:34:56"},
    ArgumentKind{"SECONDS", [](std::string_view text) { return seconds(text).has_value(); }, "a number of seconds"},
    ArgumentKind{"WIDTH", [](std::string_view text) { return isFrom(text, 1); }, "a number of pixels"},
    ArgumentKind{"HEIGHT", [](std::string_view text) { return isFrom(text, 1); }, "a number of pixels"},
    ArgumentKind{"NUMBER", [](std::string_view text) { return isFrom(text, 1); }, "a number from 1"},
    ArgumentKind{"COUNT", [](std::string_view text) { return isFrom(text, 0); }, "a count"},
    ArgumentKind{"STYLE", [](std::string_view text) { return isFrom(text, 0); }, "the style of a box"},
    ArgumentKind{"WPM", [](std::string_view text) { return decimalNumber(text).value_or(0) > 0; }, "a speed"},
    ArgumentKind{"N", [](std::string_view text) { return wholeNumber(text).value_or(0) != 0; }, "a row, from 1 or -1"},
    ArgumentKind{"KEY", isKey, "a key"},
    ArgumentKind{"PROPERTY", isProperty, "a property, as txtIndic.Text"},
    ArgumentKind{"NAME", isSomething, "a name"},
    ArgumentKind{"VARIABLE", isSomething, "a variable"},
    ArgumentKind{"TABLE", isSomething, "a table"},
    ArgumentKind{"DATABASE", isSomething, "a database"},
    ArgumentKind{"PATH", isSomething, "a path"},
    ArgumentKind{"SQL", isSomething, "a statement of SQL"},
    ArgumentKind{"STATEMENT", isAnything, "a statement"},
    ArgumentKind{"TEXT", isAnything, "a text"},
    ArgumentKind{"TITLE", isAnything, "a title"},
    ArgumentKind{"VALUE", isAnything, "a value"},
    ArgumentKind{"SOUND", isAnything, "a sound"},
    ArgumentKind{"WORD", isAnything, "a word"},
};

std::vector<std::string_view> cut(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end == text.npos ? 0 : end + 1)) {
        end = text.find(separator);
        parts.push_back(text.substr(0, end));
    }
    return parts;
}

const ArgumentKind* kindNamed(std::string_view name)
{
    const auto* const kind = std::find_if(argumentKinds.begin(), argumentKinds.end(),
                                          [&](const ArgumentKind& candidate) { return candidate.name == name; });
    return kind == argumentKinds.end() ? nullptr : kind;
}

/// An argument of a rule, taken out of its brackets and dots.
struct Argument {
    std::vector<std::string_view> alternatives;
    bool optional = false;
    bool repeats = false;
};

Argument argumentFrom(std::string_view usage)
{
    Argument argument;
    if (usage.starts_with('[')) {
        argument.optional = true;
        usage = usage.substr(1, usage.size() - 2);
    }
    if (usage.ends_with("...")) {
        argument.repeats = true;
        usage.remove_suffix(3);
    }
    argument.alternatives = cut(usage, '|');
    return argument;
}

bool isVerbWord(std::string_view word)
{
    return word.find_first_not_of("abcdefghijklmnopqrstuvwxyz") == std::string_view::npos;
}

std::size_t verbLength(const Rule& rule)
{
    const std::vector<std::string_view> words = cut(rule.usage, ' ');
    return static_cast<std::size_t>(std::find_if_not(words.begin(), words.end(), isVerbWord) - words.begin());
}

/// True when a line begins with the verb of the rule.
bool beginsAs(const std::vector<Word>& words, const Rule& rule)
{
    const std::vector<std::string_view> usage = cut(rule.usage, ' ');
    const std::size_t length = verbLength(rule);
    if (words.size() < length) return false;
    return std::equal(usage.begin(), usage.begin() + static_cast<std::ptrdiff_t>(length), words.begin(),
                      [](std::string_view wanted, const Word& word) { return !word.quoted && word.text == wanted; });
}

bool fits(const Word& word, const Argument& argument)
{
    return std::any_of(argument.alternatives.begin(), argument.alternatives.end(), [&](std::string_view alternative) {
        const ArgumentKind* kind = kindNamed(alternative);
        return kind == nullptr ? isWord(word, alternative) : kind->fits(word.text);
    });
}

std::string inPlainWords(const Argument& argument)
{
    std::string text;
    for (const std::string_view alternative : argument.alternatives) {
        const ArgumentKind* kind = kindNamed(alternative);
        if (!text.empty()) text += " or ";
        text += kind == nullptr ? alternative : kind->what;
    }
    return text;
}

std::string asWritten(const Rule& rule)
{
    return " (" + std::string(rule.usage) + ")";
}

void mustFit(const Word& word, const Argument& argument, const Rule& rule)
{
    if (fits(word, argument)) return;
    throw BadLine(inQuotes(word.text) + " is not " + inPlainWords(argument) + asWritten(rule));
}

}  // namespace

std::span<const Rule> rules()
{
    return allRules;
}

const Rule& ruleOf(Verb verb)
{
    return *std::find_if(allRules.begin(), allRules.end(), [&](const Rule& rule) { return rule.verb == verb; });
}

const Rule& ruleFor(const std::vector<Word>& words)
{
    const Rule* longest = nullptr;
    for (const Rule& rule : allRules)
        if (beginsAs(words, rule) && (longest == nullptr || verbLength(rule) > verbLength(*longest))) longest = &rule;
    if (longest == nullptr) throw BadLine("there is no statement " + inQuotes(words.front().text));
    return *longest;
}

std::vector<Word> argumentsOf(const Rule& rule, const std::vector<Word>& words)
{
    const std::vector<std::string_view> usage = cut(rule.usage, ' ');
    std::vector<Word> arguments(words.begin() + static_cast<std::ptrdiff_t>(verbLength(rule)), words.end());
    auto next = arguments.begin();
    for (std::size_t i = verbLength(rule); i < usage.size(); ++i) {
        const Argument argument = argumentFrom(usage[i]);
        if (next == arguments.end() && !argument.optional) throw BadLine("too few words" + asWritten(rule));
        do {
            if (next == arguments.end()) break;
            mustFit(*next++, argument, rule);
        } while (argument.repeats);
    }
    if (next != arguments.end()) throw BadLine("too many words" + asWritten(rule));
    return arguments;
}

}  // namespace script
