// Run-time errors with a number, and the three traps that hold them.
//
// A failing operation throws RuntimeError. A procedure that has to go on in spite of it says so with one of the traps
// below. ProgramEnd is no error: it unwinds the whole program and only the program loop catches it.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace base {

/// The numbers that traps ask for.
enum ErrorNumber : int {
    invalidArgument = 5,
    overflow = 6,
    badIndex = 9,
    divisionByZero = 11,
    notANumber = 13,
    noSuchFile = 53,
    diskFull = 61,
    endOfFile = 62,
    summaryNotOpened = 67,
    existsOrNoAccess = 75,
    noSuchFolder = 76,
    recordSetNotOpened = 91,
    noCurrentRecord = 3021,
    noDatabase = 3059,
    rowGone = 3167,
    noSuchPort = 8002,
};

/// A failed operation: its number for the traps, and a sentence for the operator.
class RuntimeError : public std::runtime_error {
 public:
    RuntimeError(int number, const std::string& why) : std::runtime_error(why), number_(number) {}

    int number() const { return number_; }

 private:
    int number_;
};

/// Ends the program from wherever it is thrown. Not derived from std::exception, so that no trap can hold it.
struct ProgramEnd {};

/// Receives every error that a trap swallowed although its procedure did not expect it.
using SwallowedErrorSink = std::function<void(const RuntimeError&)>;

/// Sets the receiver of unexpected swallowed errors; an empty one drops them. One receiver for the whole process.
void setSwallowedErrorSink(SwallowedErrorSink sink);

/// Hands an error to the receiver set above.
void reportSwallowed(const RuntimeError& error);

/// One statement: errors with the listed numbers pass, all others go up.
template <int... numbers, typename Statement>
void passing(Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
    } catch (const RuntimeError& error) {
        if (!((error.number() == numbers) || ...)) throw;
    }
}

/// A body that ends at its first error. Returns the number of that error, 0 if there was none.
/// Numbers given as `expected` are part of the procedure's plan and give no notice.
template <int... expected, typename Body>
int quietly(Body&& body)
{
    try {
        std::forward<Body>(body)();
        return 0;
    } catch (const RuntimeError& error) {
        if (!((error.number() == expected) || ...)) reportSwallowed(error);
        return error.number();
    }
}

/// Statement by statement: an error ends only the statement that raised it.
///
///     ResumeNext go;
///     go([&] { first(); });
///     go([&] { second(); });
///     if (go.last() == existsOrNoAccess) ...
class ResumeNext {
 public:
    using OnError = std::function<void(const RuntimeError&)>;

    /// Errors go to the receiver of swallowed errors, but for 3021, which every procedure of this kind expects.
    ResumeNext();

    /// Errors go to `onError`, which may throw (another error, or ProgramEnd) to leave the procedure.
    explicit ResumeNext(OnError onError);

    /// Runs one statement. Returns the number of its error, 0 if there was none.
    template <typename Statement>
    int operator()(Statement&& statement)
    {
        try {
            std::forward<Statement>(statement)();
            return 0;
        } catch (const RuntimeError& error) {
            last_ = error.number();
            onError_(error);
            return error.number();
        }
    }

    /// Number of the last error since this object was made, 0 if there was none.
    int last() const { return last_; }

 private:
    OnError onError_;
    int last_ = 0;
};

}  // namespace base
