// What a random operator does, as bytes: one step is one byte and, for some, a few behind it. Any bytes are steps, and
// a changed byte changes one step and leaves the others as they are, so that a fuzzer can work on them.
//
// 0x80 and up: a character that is typed. Below 0x40: a key that has a name. Between them: an act with arguments.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

using Bytes = std::span<const std::uint8_t>;

/// What a step does. The order is part of the byte form.
enum class Act : std::uint8_t {
    click,        ///< a control of the page
    doubleClick,  ///< the same, twice
    focus,        ///< gives it the focus
    row,          ///< which grid or list in view, which row
    doubleRow,    ///< the same, twice
    answer,       ///< for the next question
    wait,         ///< tenths of a second, two bytes
    now,          ///< days since 1990, two bytes; second of the day, three bytes
    port,         ///< number of the serial port, 0 for none
    unplug,
    printer,    ///< there, missing, failing
    drive,      ///< whether there is one
    soundCard,  ///< whether there is one
    start,      ///< word of the command line
    restart,    ///< the same, after a kill
    down,       ///< a key, which stays down
    up,         ///< a key
    repeat,     ///< a key, how often
    hold,       ///< End or Escape, for who polls them
    release,    ///< the same
    after,      ///< hundredths of a second, two bytes; number of steps that follow and are done then
    paste,      ///< text
    close,
    call,     ///< types one of a few calls
    locator,  ///< types one of a few locators
    code,     ///< types a code of three digits
    qso,      ///< a whole QSO: call, code, locator or 0, Enter
    open,     ///< from the set-up page to the first QSO: contest, CONCURS or TEST, band, mode and stage
    screen,   ///< size
    file,     ///< which, and its text
    wav,      ///< which, tenths of a second
    sql,      ///< which database, and a statement
};

/// One step with its arguments. Unused ones are 0 and empty.
struct Step {
    Act act = Act::click;
    std::vector<std::uint8_t> arguments;
    std::string text;
    std::optional<std::uint8_t> key;  ///< a key or a typed character, in place of an act
};

/// Reads steps off bytes until there are none.
class StepReader {
 public:
    explicit StepReader(Bytes bytes) : bytes_(bytes) {}
    std::optional<Step> next();

 private:
    std::uint8_t byte();
    std::string text();

    Bytes bytes_;
    std::size_t at_ = 0;
};

/// A step in its byte form.
std::string bytesOf(const Step& step);

/// The step of a key by the name that scripts use, nothing for a key that has no byte.
std::optional<Step> keyStep(std::string_view name);

/// The name of a key (or the character) that a byte of the form stands for: 0 to 0x3F, and 0x80 and up.
std::string keyName(std::uint8_t byte);

/// The byte of a typed character, nothing for one outside the usual ones.
std::optional<std::uint8_t> characterByte(char32_t character);

/// The number of two argument bytes from `first` on, the low one first.
unsigned pairAt(const Step& step, std::size_t first);

}  // namespace fuzz
