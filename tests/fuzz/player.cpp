#include "fuzz/player.h"

#include <algorithm>
#include <array>

#include "base/runtime_error.h"
#include "base/text.h"
#include "fuzz/step_statements.h"
#include "script/grammar.h"
#include "script/input.h"
#include "script/number_words.h"
#include "script/preparing.h"
#include "script/words.h"

namespace fuzz {

using script::Statement;
using script::Verb;

namespace {

/// What one run may have, so that each takes a fraction of a second.
constexpr int mostStatements = 1500;
constexpr int mostStarts = 8;
constexpr std::chrono::minutes longestWait{30};

bool changesRows(std::string_view statement)
{
    const std::string beginning = base::upper(base::left(statement, 7));
    return beginning == "INSERT " || beginning == "UPDATE " || beginning == "DELETE ";
}

std::string wordInPrint(const script::Word& word)
{
    return word.quoted ? script::inQuotes(word.text) : word.text;
}

std::string commandLineOf(const Statement& statement)
{
    return statement.words.empty() ? std::string() : statement.text(0);
}

}  // namespace

std::vector<screen::Control*> pressable(const screen::Form& form)
{
    constexpr std::array kinds = {screen::Kind::textBox,  screen::Kind::commandButton, screen::Kind::optionButton,
                                  screen::Kind::checkBox, screen::Kind::menuEntry,     screen::Kind::listBox};
    std::vector<screen::Control*> controls;
    for (screen::Control* control : form.controls())
        if (std::find(kinds.begin(), kinds.end(), control->kind) != kinds.end()) controls.push_back(control);
    return controls;
}

std::vector<std::string> linesOf(const Statement& statement)
{
    const std::string_view usage = script::ruleOf(statement.verb).usage;
    std::string line(usage.substr(0, usage.find(' ')));
    for (const script::Word& word : statement.words)
        line += " " + wordInPrint(word);
    std::vector<std::string> lines = {line};
    for (const std::string& text : statement.lines)
        lines.push_back("|" + text);
    return lines;
}

Player::Player(const std::filesystem::path& folder, bool window, LineSink print)
    : watch_(folder), program_(folder, window, watch_), print_(std::move(print))
{
    watch_.lookAt(program_.machine());
}

bool Player::over() const
{
    return program_.tired() || statements_ >= mostStatements;
}

void Player::play(Bytes bytes)
{
    StepReader reader(bytes);
    while (!over()) {
        const std::optional<Step> step = reader.next();
        if (!step) break;
        playStep(*step, reader);
    }
    finish();
}

void Player::finish()
{
    program_.kill();
    watch_.theEnd();
}

void Player::playStep(const Step& step, StepReader& following)
{
    if (!step.key && step.act == Act::after) return schedule(step, following);
    for (const Statement& statement : statementsOf(step)) {
        if (over()) return;
        if (print_)
            for (const std::string& line : linesOf(statement))
                print_(line);
        perform(statement);
    }
}

/// What is done later is fixed now, as in a script.
void Player::schedule(const Step& step, StepReader& following)
{
    constexpr int most = 16;
    const std::chrono::milliseconds delay(pairAt(step, 0) * 10);
    for (int i = 0; i < step.arguments.at(2) % (most + 1); ++i) {
        const std::optional<Step> later = following.next();
        if (!later) return;
        for (const Statement& statement : statementsOf(*later)) {
            if (statement.verb == Verb::wait || statement.verb == Verb::start) continue;
            if (print_) {
                std::vector<std::string> lines = linesOf(statement);
                lines.front() =
                    "after " + std::to_string(static_cast<double>(delay.count()) / 1000.0) + " " + lines.front();
                for (const std::string& line : lines)
                    print_(line);
            }
            program_.after(delay, [this, statement] { perform(statement); });
        }
    }
}

bool Player::mayGoOn(const Statement& statement)
{
    if (++statements_ > mostStatements) return false;
    const bool starts = statement.verb == Verb::start || statement.verb == Verb::restart;
    return !starts || ++starts_ <= mostStarts;
}

void Player::perform(const Statement& statement)
{
    if (!mayGoOn(statement)) return;
    switch (statement.verb) {
        case Verb::start:
            return program_.start(commandLineOf(statement));
        case Verb::restart:
            return program_.restart(commandLineOf(statement));
        case Verb::wait: {
            const auto length = script::seconds(statement.text(0)).value();
            waited_ += length;
            if (waited_ <= longestWait) program_.wait(length);
            return;
        }
        case Verb::sql:
            return changeTables(statement);
        default:
            return performInput(statement);
    }
}

void Player::performInput(const Statement& statement)
{
    try {
        if (std::optional<script::Input> input = script::inputOf(statement, program_.machine())) {
            if (!program_.running() && !program_.handling() && ++starts_ <= mostStarts) program_.start({});
            return program_.perform(*std::move(input));
        }
        script::prepare(statement, program_.machine());
    } catch (const script::StepFailed&) {
        // An operator who tries what cannot be done achieves nothing.
        return;
    } catch (const base::RuntimeError&) {
        // A file of the fuzzer that could not be written.
        return;
    }
}

void Player::changeTables(const Statement& statement)
{
    if (!changesRows(statement.text(1))) return;
    performInput(statement);
    watch_.tablesWereChangedBehind();
}

}  // namespace fuzz
