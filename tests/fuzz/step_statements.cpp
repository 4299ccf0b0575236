#include "fuzz/step_statements.h"

#include <algorithm>
#include <cstdio>
#include <optional>

#include "base/text.h"
#include "fuzz/player.h"
#include "script/finding.h"
#include "script/number_words.h"
#include "script/rows_shown.h"
#include "script/step_failed.h"
#include "script/words.h"

namespace fuzz {

using script::Statement;
using script::Verb;
using script::Word;

namespace {

using Statements = std::vector<Statement>;

constexpr std::array calls = {"YO2ABC", "YO2ABC/P",   "2ABC",    "YO5KAA", "HA5KDQ", "YO2XYZ", "YP1YOTA",
                              "ER1AA",  "LZ/YO3XX/M", "O'BRIEN", "YO7%",   "YO*",    "S57C",   "DL1ABCDEFGHIJKLMNOP",
                              "YO2A",   "YO2ABC/QRP"};
constexpr std::array locators = {"KN16AA", "KN05OS", "KN05OS", "JN97MM", "KN",      "RR99XX",
                                 "AA00AA", "KN1",    "16AAKN", "ZZ99ZZ", "KN16AA ", "IO91WM"};
constexpr std::array paths = {"KelvoInit.dat",
                              "KELVOTextCw.dat",
                              "Log/YO2XYZ144.txt",
                              "Log/YO2XYZ144.edi",
                              "Arhiva/A.txt",
                              "Arhiva/y2025/D.adi",
                              "Log",
                              "Arhiva",
                              "disk/x",
                              "WAVUus/readme.txt"};
constexpr std::array contests = {"OpBCampNatUUS", "OpbCarpati",       "OpbCluj",     "OpBFloareademina",
                                 "OpbOltenia",    "OpBConstrMas",     "OpBTelecom",  "OpBMaraton",
                                 "OpbZPV",        "OpBCampInternUUS", "OpbOltenia6m"};
constexpr std::array bands = {"Cmd144", "Cmd432", "Cmd1296", "CmdGHz"};
constexpr std::array modes = {"CmdCW", "CmdSSB", "CmdFm", "CmdMixt"};
constexpr std::array answers = {"Yes", "No", "OK", "Cancel"};
constexpr std::array screens = {std::pair{"800", "600"}, std::pair{"640", "480"}, std::pair{"1024", "768"},
                                std::pair{"1920", "1080"}};
constexpr std::array databases = {"LogKelvo.mdb", "DbsKelvo.mdb"};

template <typename List>
const auto& pick(const List& list, std::uint8_t which)
{
    return list.at(which % list.size());
}

template <typename List>
std::optional<std::uint8_t> placeIn(const List& list, std::string_view text)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const char* known) { return base::equalIgnoringCase(known, text); });
    if (found == list.end()) return std::nullopt;
    return static_cast<std::uint8_t>(found - list.begin());
}

Statement statement(Verb verb, std::vector<std::string> texts = {}, bool quoted = false)
{
    Statement made;
    made.verb = verb;
    for (std::string& text : texts)
        made.words.push_back({std::move(text), quoted});
    return made;
}

Statement quotedStatement(Verb verb, const std::string& text)
{
    return statement(verb, {text}, true);
}

std::string decimal(double number, int places)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", places, number);
    return text.data();
}

/// Text of a fuzzer as a script has it: valid UTF-8, without line ends.
std::string cleanText(const std::string& text)
{
    std::string clean = base::fromCharacters(base::toCharacters(text));
    std::replace_if(
        clean.begin(), clean.end(), [](char byte) { return byte == '\n' || byte == '\r' || byte == '\0'; }, ' ');
    return clean;
}

/// The control that a step touches: the one at that place, or else the next that can be.
template <typename WhyNot>
screen::Control* touchable(std::uint8_t place, WhyNot whyNot)
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr) return nullptr;
    const std::vector<screen::Control*> all = pressable(*form);
    for (std::size_t i = 0; i < all.size(); ++i) {
        screen::Control* control = all[(place + i) % all.size()];
        if (whyNot(*control).empty()) return control;
    }
    return nullptr;
}

Statements touching(Verb verb, const Step& step)
{
    const auto whyNot = verb == Verb::focus ? script::whyNotFocusable : script::whyNotClickable;
    const screen::Control* control = touchable(step.arguments.at(0), whyNot);
    if (control == nullptr) return {};
    return {statement(verb, {control->name})};
}

long rowsIn(const screen::Control& control)
{
    if (control.kind == screen::Kind::listBox)
        return static_cast<long>(static_cast<const screen::ListBox&>(control).items.size());
    return script::gridRowCount(static_cast<const screen::Grid&>(control));
}

Statements touchingRow(Verb verb, const Step& step)
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr) return {};
    std::vector<const screen::Control*> withRows;
    for (const screen::Control* control : form->controls()) {
        const bool list = control->kind == screen::Kind::grid || control->kind == screen::Kind::listBox;
        if (list && script::whyNotClickable(*control).empty()) withRows.push_back(control);
    }
    if (withRows.empty()) return {};
    const screen::Control& control = *withRows[step.arguments.at(0) % withRows.size()];
    const long rows = rowsIn(control);
    if (rows == 0) return {};
    const auto wanted = static_cast<std::int8_t>(step.arguments.at(1));
    const long row = wanted < 0 ? -(((-wanted - 1) % rows) + 1) : wanted % rows + 1;
    return {statement(verb, {control.name, std::to_string(row)})};
}

Statement calendar(const Step& step)
{
    constexpr unsigned secondsOfDay = 86400;
    const std::chrono::local_days first(std::chrono::year(1990) / 1 / 1);
    const std::chrono::year_month_day day(first + std::chrono::days(pairAt(step, 0)));
    const unsigned second = (pairAt(step, 2) | (static_cast<unsigned>(step.arguments.at(4)) << 16U)) % secondsOfDay;
    std::array<char, 16> date{};
    std::array<char, 16> time{};
    std::snprintf(date.data(), date.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    std::snprintf(time.data(), time.size(), "%02u:%02u:%02u", second / 3600, second / 60 % 60, second % 60);
    return statement(Verb::now, {date.data(), time.data()});
}

std::string paddedCode(std::uint8_t code)
{
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%03u", code);
    return text.data();
}

Statement typing(const std::string& text)
{
    return quotedStatement(Verb::type, text);
}

/// Call, Tab, code, locator if there is one, Enter.
Statements wholeQso(const Step& step)
{
    Statements statements = {typing(pick(calls, step.arguments.at(0))), statement(Verb::key, {"Tab"}),
                             typing(paddedCode(step.arguments.at(1)))};
    if (step.arguments.at(2) != 0) statements.push_back(typing(pick(locators, step.arguments.at(2))));
    statements.push_back(statement(Verb::key, {"Enter"}));
    return statements;
}

/// From the set-up page to the entry: contest; CONCURS or TEST, the band and the stage; the mode.
Statements openEntry(const Step& step)
{
    const std::uint8_t choice = step.arguments.at(1);
    return {statement(Verb::click, {pick(contests, step.arguments.at(0))}),
            statement(Verb::click, {(choice & 1U) != 0 ? "OpbTest" : "OpbConcurs"}),
            statement(Verb::focus, {"TxtMyName"}),
            typing("ION"),
            statement(Verb::focus, {"TxtMyCall"}),
            typing("YO2XYZ"),
            statement(Verb::key, {"Enter"}),
            typing("KN05OS"),
            statement(Verb::key, {"Enter"}),
            typing("2"),
            statement(Verb::click, {"mnuQSOfahren"}),
            statement(Verb::click, {pick(modes, step.arguments.at(2))}),
            statement(Verb::click, {pick(bands, static_cast<std::uint8_t>(choice >> 1U))}),
            statement(Verb::click, {(choice & 8U) != 0 ? "CmdB" : "CmdA"})};
}

Statement settingUpFile(const Step& step)
{
    Statement made = quotedStatement(Verb::file, pick(paths, step.arguments.at(0)));
    std::string rest = base::fromCharacters(base::toCharacters(step.text));
    for (;;) {
        const std::size_t end = rest.find('\n');
        made.lines.push_back(cleanText(rest.substr(0, end)));
        if (end == std::string::npos) return made;
        rest.erase(0, end + 1);
    }
}

/// A statement that makes its own rows ends: a changed byte lets it go on for ever.
std::string ending(const std::string& statement)
{
    const std::string upper = base::upper(statement);
    const bool makesRows = upper.find("WITH ") != std::string::npos && upper.find("LIMIT") == std::string::npos;
    return makesRows ? statement + " LIMIT 32767" : statement;
}

Statement sqlOf(const Step& step)
{
    Statement made = statement(Verb::sql, {pick(databases, step.arguments.at(0))});
    made.words.push_back({ending(cleanText(step.text)), true});
    return made;
}

Statement wavOf(const Step& step)
{
    Statement made = quotedStatement(Verb::wav, "WAVUus/F" + std::to_string(step.arguments.at(0) % 7 + 1) + ".wav");
    made.words.push_back({decimal(step.arguments.at(1) / 10.0, 1), false});
    return made;
}

Statement pressing(Verb verb, const Step& step)
{
    // A byte of an act stands for no key.
    const std::uint8_t byte = step.arguments.at(0);
    return statement(verb, {keyName(byte >= 0x40 && byte < 0x80 ? static_cast<std::uint8_t>(byte - 0x40) : byte)},
                     true);
}

Statement commandLine(Verb verb, const Step& step)
{
    return statement(verb, step.arguments.at(0) == 1 ? std::vector<std::string>{"AUTO"} : std::vector<std::string>{});
}

Statements keyOrCharacter(std::uint8_t byte)
{
    const std::string name = keyName(byte);
    if (byte < 0x40) return {statement(Verb::key, {name})};
    return {typing(name)};
}

Statements machineStatements(const Step& step)
{
    switch (step.act) {
        case Act::now:
            return {calendar(step)};
        case Act::port:
            return {statement(Verb::port,
                              {step.arguments.at(0) % 5 == 0 ? "none" : std::to_string(step.arguments.at(0) % 5)})};
        case Act::unplug:
            return {statement(Verb::unplug)};
        case Act::printer:
            return {statement(Verb::printer, {pick(std::array{"yes", "no", "fail"}, step.arguments.at(0))})};
        case Act::drive:
            return {statement(Verb::drive, {(step.arguments.at(0) & 1U) != 0 ? "disk" : "none"})};
        case Act::soundCard:
            return {statement(Verb::soundCard, {(step.arguments.at(0) & 1U) != 0 ? "yes" : "no"})};
        case Act::screen: {
            const auto& [width, height] = pick(screens, step.arguments.at(0));
            return {statement(Verb::screen, {width, height})};
        }
        case Act::file:
            return {settingUpFile(step)};
        case Act::wav:
            return {wavOf(step)};
        case Act::sql:
            return {sqlOf(step)};
        case Act::start:
            return {commandLine(Verb::start, step)};
        case Act::restart:
            return {commandLine(Verb::restart, step)};
        case Act::wait:
            return {statement(Verb::wait, {decimal(pairAt(step, 0) / 10.0, 1)})};
        default:
            return {};
    }
}

Statements handStatements(const Step& step)
{
    switch (step.act) {
        case Act::click:
            return touching(Verb::click, step);
        case Act::doubleClick:
            return touching(Verb::doubleClick, step);
        case Act::focus:
            return touching(Verb::focus, step);
        case Act::row:
            return touchingRow(Verb::row, step);
        case Act::doubleRow:
            return touchingRow(Verb::doubleRow, step);
        case Act::answer:
            return {statement(Verb::answer, {pick(answers, step.arguments.at(0))})};
        case Act::down:
            return {pressing(Verb::keyDown, step)};
        case Act::up:
            return {pressing(Verb::keyUp, step)};
        case Act::repeat: {
            Statement made = pressing(Verb::keyRepeat, step);
            made.words.push_back({std::to_string(step.arguments.at(1) % 16 + 1), false});
            return {made};
        }
        case Act::hold:
            return {statement(Verb::hold, {(step.arguments.at(0) & 1U) != 0 ? "Esc" : "End"})};
        case Act::release:
            return {statement(Verb::release, {(step.arguments.at(0) & 1U) != 0 ? "Esc" : "End"})};
        case Act::paste:
            return {quotedStatement(Verb::paste, cleanText(step.text))};
        case Act::close:
            return {statement(Verb::close)};
        case Act::call:
            return {typing(pick(calls, step.arguments.at(0)))};
        case Act::locator:
            return {typing(pick(locators, step.arguments.at(0)))};
        case Act::code:
            return {typing(paddedCode(step.arguments.at(0)))};
        case Act::qso:
            return wholeQso(step);
        case Act::open:
            return openEntry(step);
        default:
            return {};
    }
}

Step act(Act what, std::vector<std::uint8_t> arguments = {}, std::string text = {})
{
    return {.act = what, .arguments = std::move(arguments), .text = std::move(text), .key = {}};
}

std::uint8_t low(unsigned long number)
{
    return static_cast<std::uint8_t>(number & 0xFFU);
}

std::vector<Step> typingSteps(const std::string& text)
{
    std::vector<Step> steps;
    for (const char32_t character : base::toCharacters(text)) {
        Step step;
        step.key = characterByte(character);
        if (step.key) steps.push_back(step);
    }
    return steps;
}

std::vector<Step> keySteps(const Statement& statement)
{
    std::vector<Step> steps;
    for (const Word& word : statement.words)
        if (std::optional<Step> step = keyStep(word.text)) steps.push_back(*std::move(step));
    return steps;
}

std::vector<Step> touchSteps(Act what, const Statement& statement)
{
    const screen::Control* control = nullptr;
    try {
        control = &script::controlNamed(statement.text(0));
    } catch (const script::StepFailed&) {
        return {};
    }
    const std::vector<screen::Control*> all = pressable(control->form);
    const auto found = std::find(all.begin(), all.end(), control);
    if (found == all.end() || &control->form != screen::activeForm()) return {};
    return {act(what, {static_cast<std::uint8_t>(found - all.begin())})};
}

std::vector<Step> rowSteps(Act what, const Statement& statement)
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr) return {};
    std::uint8_t place = 0;
    for (const screen::Control* control : form->controls()) {
        const bool list = control->kind == screen::Kind::grid || control->kind == screen::Kind::listBox;
        if (!list || !script::whyNotClickable(*control).empty()) continue;
        if (base::equalIgnoringCase(control->name, statement.text(0))) {
            const long row = script::wholeNumber(statement.text(1)).value_or(1);
            return {act(what, {place, static_cast<std::uint8_t>(static_cast<std::int8_t>(row > 0 ? row - 1 : row))})};
        }
        ++place;
    }
    return {};
}

std::vector<Step> calendarSteps(const Statement& statement)
{
    const auto day = script::calendarDay(statement.text(0));
    const auto second = script::timeOfDay(statement.text(1));
    if (!day || !second) return {};
    const auto days = static_cast<unsigned long>(
        std::chrono::floor<std::chrono::days>(*day - std::chrono::local_days(std::chrono::year(1990) / 1 / 1)).count());
    const auto seconds = static_cast<unsigned long>(second->count());
    return {act(Act::now, {low(days), low(days >> 8U), low(seconds), low(seconds >> 8U), low(seconds >> 16U)})};
}

std::vector<Step> waitSteps(const Statement& statement)
{
    constexpr double most = 6553;
    const auto tenths =
        static_cast<unsigned long>(std::min(most, script::decimalNumber(statement.text(0)).value_or(0)) * 10);
    return {act(Act::wait, {low(tenths), low(tenths >> 8U)})};
}

std::vector<Step> pressSteps(Act what, const Statement& statement)
{
    const std::optional<Step> key = keyStep(statement.text(0));
    if (!key) return {};
    std::vector<std::uint8_t> arguments = {*key->key};
    if (what == Act::repeat) arguments.push_back(low(std::stoul(statement.text(1)) - 1));
    return {act(what, std::move(arguments))};
}

std::vector<Step> fileSteps(const Statement& statement)
{
    const std::optional<std::uint8_t> place = placeIn(paths, statement.text(0));
    if (!place) return {};
    std::string text;
    for (const std::string& line : statement.lines)
        text += (text.empty() ? "" : "\n") + line;
    return {act(Act::file, {*place}, text)};
}

std::vector<Step> afterSteps(const Statement& statement)
{
    constexpr double most = 655;
    const std::vector<Step> later = stepsOf(*statement.later);
    if (later.empty()) return {};
    const auto hundredths =
        static_cast<unsigned long>(std::min(most, script::decimalNumber(statement.text(0)).value_or(0)) * 100);
    std::vector<Step> steps = {act(Act::after, {low(hundredths), low(hundredths >> 8U), low(later.size())})};
    steps.insert(steps.end(), later.begin(), later.end());
    return steps;
}

std::vector<Step> handSteps(const Statement& statement)
{
    switch (statement.verb) {
        case Verb::click:
            return touchSteps(Act::click, statement);
        case Verb::doubleClick:
            return touchSteps(Act::doubleClick, statement);
        case Verb::focus:
            return touchSteps(Act::focus, statement);
        case Verb::row:
            return rowSteps(Act::row, statement);
        case Verb::doubleRow:
            return rowSteps(Act::doubleRow, statement);
        case Verb::type:
            return typingSteps(statement.text(0));
        case Verb::paste:
            return {act(Act::paste, {}, statement.text(0))};
        case Verb::key:
            return keySteps(statement);
        case Verb::keyDown:
            return pressSteps(Act::down, statement);
        case Verb::keyUp:
            return pressSteps(Act::up, statement);
        case Verb::keyRepeat:
            return pressSteps(Act::repeat, statement);
        case Verb::close:
            return {act(Act::close)};
        case Verb::hold:
            return {act(Act::hold, {static_cast<std::uint8_t>(base::equalIgnoringCase(statement.text(0), "Esc"))})};
        case Verb::release:
            return {act(Act::release, {static_cast<std::uint8_t>(base::equalIgnoringCase(statement.text(0), "Esc"))})};
        default:
            return {};
    }
}

std::vector<Step> answerSteps(const Statement& statement)
{
    std::vector<Step> steps;
    for (const Word& word : statement.words)
        steps.push_back(act(Act::answer, {placeIn(answers, word.text).value_or(1)}));
    return steps;
}

std::uint8_t portNumber(const std::string& word)
{
    return low(static_cast<unsigned long>(script::wholeNumber(word).value_or(0)));
}

std::vector<Step> wavSteps(const Statement& statement)
{
    const std::string& path = statement.text(0);
    const std::size_t digit = path.find_first_of("1234567");
    if (digit == std::string::npos) return {};
    const double length = std::min(25.0, script::decimalNumber(statement.text(1)).value_or(0));
    return {act(Act::wav, {static_cast<std::uint8_t>(path[digit] - '1'), static_cast<std::uint8_t>(length * 10)})};
}

std::vector<Step> machineSteps(const Statement& statement)
{
    const auto is = [&](const char* word) {
        return static_cast<std::uint8_t>(!statement.words.empty() && script::isWord(statement.words[0], word));
    };
    switch (statement.verb) {
        case Verb::now:
            return calendarSteps(statement);
        case Verb::wait:
            return waitSteps(statement);
        case Verb::after:
            return afterSteps(statement);
        case Verb::soundCard:
            return {act(Act::soundCard, {is("yes")})};
        case Verb::port:
            return {act(Act::port, {portNumber(statement.text(0))})};
        case Verb::unplug:
            return {act(Act::unplug)};
        case Verb::printer:
            return {act(Act::printer, {static_cast<std::uint8_t>(is("no") + 2 * is("fail"))})};
        case Verb::drive:
            return {act(Act::drive, {static_cast<std::uint8_t>(1 - is("none"))})};
        case Verb::start:
            return {act(Act::start, {is("AUTO")})};
        case Verb::restart:
            return {act(Act::restart, {is("AUTO")})};
        case Verb::answer:
            return answerSteps(statement);
        case Verb::file:
            return fileSteps(statement);
        case Verb::wav:
            return wavSteps(statement);
        case Verb::sql:
            return {act(Act::sql, {placeIn(databases, statement.text(0)).value_or(0)}, statement.text(1))};
        default:
            return {};
    }
}

}  // namespace

std::vector<Statement> statementsOf(const Step& step)
{
    if (step.key) return keyOrCharacter(*step.key);
    Statements statements = machineStatements(step);
    return statements.empty() ? handStatements(step) : statements;
}

std::vector<Step> stepsOf(const Statement& statement)
{
    std::vector<Step> steps = machineSteps(statement);
    return steps.empty() ? handSteps(statement) : steps;
}

}  // namespace fuzz
