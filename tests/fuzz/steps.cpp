#include "fuzz/steps.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace fuzz {

namespace {

constexpr std::uint8_t firstAct = 0x40;
constexpr std::uint8_t firstCharacter = 0x80;
/// Bytes of a text, so that one step does not swallow all that follow. A mask of bits.
constexpr std::size_t longestText = 0x3FF;

constexpr std::array keyNames = {
    "Enter",
    "Tab",
    "Esc",
    "Space",
    "Backspace",
    "F1",
    "F2",
    "F3",
    "F4",
    "F5",
    "F6",
    "F7",
    "F8",
    "F9",
    "F10",
    "F11",
    "F12",
    "Insert",
    "Delete",
    "Home",
    "End",
    "Left",
    "Right",
    "Up",
    "Down",
    "PageUp",
    "PageDown",
    "Shift+Tab",
    "Shift+Left",
    "Shift+Right",
    "Shift+Home",
    "Shift+End",
    "Ctrl+Up",
    "Ctrl+Down",
    "Ctrl+Delete",
    "Ctrl+PageUp",
    "Ctrl+PageDown",
    "Ctrl+Home",
    "Ctrl+End",
    "Ctrl+C",
    "Ctrl+V",
    "Ctrl+X",
    "Ctrl+Z",
    "Ctrl+A",
    "Alt+Q",
    "Alt+X",
    "Alt+G",
    "Alt+U",
    "Alt+E",
    "Alt+A",
    "Alt+C",
    "Alt+L",
    "Alt+I",
    "Alt+H",
    "Alt+R",
    "Alt+S",
    "Alt+O",
    "Alt+T",
    "Ctrl+Left",
    "Ctrl+Right",
    "Shift+Insert",
    "Shift+F1",
    "Ctrl+Enter",
    "Alt+F1",
};
static_assert(keyNames.size() == firstAct);

/// Stand in the places of the control characters.
constexpr std::array<char32_t, 33> unusualCharacters = {
    U'ă',      U'â', U'î', U'ș', U'ț', U'ş',      U'ţ',      U'Ă',          U'Ș',      U'Ț',      U'ä',
    U'ö',      U'ü', U'ß', U'é', U'€', U'Д',      U'漢',     U'\U0001F600', U'°',      U'\u00A0', U'\u00AD',
    U'\u0301', U'ﬁ', U'ı', U'İ', U'ÿ', U'\uFEFF', U'\u202E', U'½',          U'\uFFFD', U'Ω',      U'\u007F'};

struct ActRule {
    int arguments;  ///< bytes
    bool text;
};

/// In the order of Act.
constexpr std::array rules = {
    ActRule{1, false},  // click
    ActRule{1, false},  // doubleClick
    ActRule{1, false},  // focus
    ActRule{2, false},  // row
    ActRule{2, false},  // doubleRow
    ActRule{1, false},  // answer
    ActRule{2, false},  // wait
    ActRule{5, false},  // now
    ActRule{1, false},  // port
    ActRule{0, false},  // unplug
    ActRule{1, false},  // printer
    ActRule{1, false},  // drive
    ActRule{1, false},  // soundCard
    ActRule{1, false},  // start
    ActRule{1, false},  // restart
    ActRule{1, false},  // down
    ActRule{1, false},  // up
    ActRule{2, false},  // repeat
    ActRule{1, false},  // hold
    ActRule{1, false},  // release
    ActRule{3, false},  // after
    ActRule{0, true},   // paste
    ActRule{0, false},  // close
    ActRule{1, false},  // call
    ActRule{1, false},  // locator
    ActRule{1, false},  // code
    ActRule{3, false},  // qso
    ActRule{3, false},  // open
    ActRule{1, false},  // screen
    ActRule{1, true},   // file
    ActRule{2, false},  // wav
    ActRule{1, true},   // sql
};
static_assert(rules.size() == static_cast<std::size_t>(Act::sql) + 1);

const ActRule& ruleOf(Act act)
{
    return rules.at(static_cast<std::size_t>(act));
}

std::string actBytes(const Step& step)
{
    const ActRule& rule = ruleOf(step.act);
    std::string bytes(1, static_cast<char>(firstAct + static_cast<std::uint8_t>(step.act)));
    for (std::size_t i = 0; i < static_cast<std::size_t>(rule.arguments); ++i)
        bytes.push_back(i < step.arguments.size() ? static_cast<char>(step.arguments[i]) : '\0');
    if (!rule.text) return bytes;
    const std::string text = step.text.substr(0, longestText);
    bytes.push_back(static_cast<char>(text.size() & 0xFFU));
    bytes.push_back(static_cast<char>(text.size() >> 8U));
    return bytes + text;
}

}  // namespace

std::uint8_t StepReader::byte()
{
    return at_ < bytes_.size() ? bytes_[at_++] : std::uint8_t{0};
}

std::string StepReader::text()
{
    const std::size_t low = byte();
    const std::size_t wanted = (low | (static_cast<std::size_t>(byte()) << 8U)) & longestText;
    const std::size_t length = std::min(wanted, bytes_.size() - at_);
    std::string text;
    for (const std::uint8_t value : bytes_.subspan(at_, length))
        text.push_back(static_cast<char>(value));
    at_ += length;
    return text;
}

std::optional<Step> StepReader::next()
{
    if (at_ >= bytes_.size()) return std::nullopt;
    const std::uint8_t first = byte();
    Step step;
    if (first < firstAct || first >= firstCharacter) {
        step.key = first;
        return step;
    }
    step.act = static_cast<Act>((first - firstAct) % rules.size());
    const ActRule& rule = ruleOf(step.act);
    for (int i = 0; i < rule.arguments; ++i)
        step.arguments.push_back(byte());
    if (rule.text) step.text = text();
    return step;
}

std::string bytesOf(const Step& step)
{
    if (step.key) return std::string(1, static_cast<char>(*step.key));
    return actBytes(step);
}

std::optional<Step> keyStep(std::string_view name)
{
    Step step;
    if (base::length(name) == 1) {
        step.key = characterByte(base::characterAt(name, 1));
        if (!step.key) return std::nullopt;
        return step;
    }
    const auto* const found = std::find_if(keyNames.begin(), keyNames.end(),
                                           [&](const char* known) { return base::equalIgnoringCase(known, name); });
    if (found == keyNames.end()) return std::nullopt;
    step.key = static_cast<std::uint8_t>(found - keyNames.begin());
    return step;
}

std::string keyName(std::uint8_t byte)
{
    if (byte < firstCharacter) return keyNames.at(byte % keyNames.size());
    const std::uint8_t place = byte - firstCharacter;
    if (place < U' ') return base::fromCharacters({&unusualCharacters.at(place), 1});
    if (place == 0x7F) return base::fromCharacters({&unusualCharacters.back(), 1});
    return std::string(1, static_cast<char>(place));
}

std::optional<std::uint8_t> characterByte(char32_t character)
{
    if (character >= U' ' && character <= U'~') return static_cast<std::uint8_t>(firstCharacter + character);
    const auto* const found = std::find(unusualCharacters.begin(), unusualCharacters.end(), character);
    if (found == unusualCharacters.end()) return std::nullopt;
    if (found == unusualCharacters.end() - 1) return std::uint8_t{0xFF};
    return static_cast<std::uint8_t>(firstCharacter + (found - unusualCharacters.begin()));
}

unsigned pairAt(const Step& step, std::size_t first)
{
    return step.arguments.at(first) | (static_cast<unsigned>(step.arguments.at(first + 1)) << 8U);
}

}  // namespace fuzz
