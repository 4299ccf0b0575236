#include "script/operator.h"

#include <exception>
#include <utility>

#include "base/runtime_error.h"
#include "script/expectations.h"
#include "script/grammar.h"
#include "script/input.h"
#include "script/number_words.h"
#include "script/preparing.h"
#include "script/showing.h"

namespace script {

namespace {

std::string commandLineOf(const Statement& statement)
{
    return statement.words.empty() ? std::string() : statement.text(0);
}

}  // namespace

Operator::Operator(const std::filesystem::path& folder, LineSink print)
    : print_(std::move(print)),
      machine_(folder),
      run_(machine_, [this](int line, const StepFailed& failure) { fail(line, failure); })
{
    machine_.boxes.setComplaint([this](const std::string& expected, const std::string& got) {
        fail(run_.lineServed() > 0 ? run_.lineServed() : lineNow_, {expected, got});
    });
}

bool Operator::play(const Script& script)
{
    fileName_ = script.fileName;
    for (const Statement& statement : script.statements) {
        if (over_) break;
        lineNow_ = statement.line;
        try {
            perform(statement);
        } catch (const ScriptOver& end) {
            fail(statement.line, end.failure);
            over_ = true;
        } catch (const std::exception& fault) {
            fail(statement.line, {"no fault of the program", fault.what()});
            run_.kill();
            over_ = true;
        }
    }
    return !over_;
}

/// A step that fails is told and counted, and the script goes on.
void Operator::perform(const Statement& statement)
{
    try {
        act(statement);
        if (isCheck(statement.verb)) ++tally_.passed;
    } catch (const StepFailed& failure) {
        fail(statement.line, failure);
    } catch (const base::RuntimeError& error) {
        fail(statement.line, {std::string(ruleOf(statement.verb).usage) + " to be done", error.what()});
    }
}

void Operator::act(const Statement& statement)
{
    if (isCheck(statement.verb)) return check(statement, machine_, run_);
    if (std::optional<Input> input = inputOf(statement, machine_)) return run_.perform(*std::move(input));
    if (prepare(statement, machine_)) return;
    switch (statement.verb) {
        case Verb::wait:
            return run_.wait(seconds(statement.text(0)).value());
        case Verb::after:
            return performLater(statement);
        case Verb::start:
            return run_.start(commandLineOf(statement));
        case Verb::restart:
            return run_.restart(commandLineOf(statement));
        default:
            break;
    }
    for (const std::string& line : linesToShow(statement, machine_, run_))
        print_(line);
}

void Operator::performLater(const Statement& statement)
{
    const auto goOff = [this, later = statement.later] {
        const int line = std::exchange(lineNow_, later->line);
        perform(*later);
        lineNow_ = line;
    };
    run_.after(seconds(statement.text(0)).value(), statement.line, goOff);
}

void Operator::finish()
{
    for (const int line : machine_.boxes.linesOfAnswersLeft())
        fail(line, {"a question for each answer", "an answer left over"});
    for (const int line : run_.linesOfAlarmsLeft())
        fail(line, {"time to reach the moment", "a statement left over"});
}

void Operator::fail(int line, const StepFailed& failure)
{
    ++tally_.failed;
    print_(fileName_ + ":" + std::to_string(line) + ": expected " + failure.expected + " got " + failure.got);
}

}  // namespace script
