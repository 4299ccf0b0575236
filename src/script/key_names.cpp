#include "script/key_names.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/text.h"

namespace script {

using platform::Key;

namespace {

struct SignKey {
    char32_t plain;
    char32_t shifted;
    int code;
};

/// The keys with signs, with and without Shift, and their virtual key codes.
constexpr std::array signKeys = {
    SignKey{U'1', U'!', '1'},  SignKey{U'2', U'@', '2'}, SignKey{U'3', U'#', '3'},  SignKey{U'4', U'$', '4'},
    SignKey{U'5', U'%', '5'},  SignKey{U'6', U'^', '6'}, SignKey{U'7', U'&', '7'},  SignKey{U'8', U'*', '8'},
    SignKey{U'9', U'(', '9'},  SignKey{U'0', U')', '0'}, SignKey{U';', U':', 186},  SignKey{U'=', U'+', 187},
    SignKey{U',', U'<', 188},  SignKey{U'-', U'_', 189}, SignKey{U'.', U'>', 190},  SignKey{U'/', U'?', 191},
    SignKey{U'`', U'~', 192},  SignKey{U'[', U'{', 219}, SignKey{U'\\', U'|', 220}, SignKey{U']', U'}', 221},
    SignKey{U'\'', U'"', 222},
};

struct NamedKey {
    std::string_view name;
    platform::KeyCode code;
};

constexpr std::array namedKeys = {
    NamedKey{"Tab", platform::keyTab},           NamedKey{"Enter", platform::keyEnter},
    NamedKey{"Esc", platform::keyEscape},        NamedKey{"Space", platform::keySpace},
    NamedKey{"Delete", platform::keyDelete},     NamedKey{"Backspace", platform::keyBackspace},
    NamedKey{"Insert", platform::keyInsert},     NamedKey{"Home", platform::keyHome},
    NamedKey{"End", platform::keyEnd},           NamedKey{"Left", platform::keyLeft},
    NamedKey{"Right", platform::keyRight},       NamedKey{"Up", platform::keyUp},
    NamedKey{"Down", platform::keyDown},         NamedKey{"PageUp", platform::keyPageUp},
    NamedKey{"PageDown", platform::keyPageDown},
};

bool isCapital(char32_t character)
{
    return character >= U'A' && character <= U'Z';
}

/// 112 to 123 for "F1" to "F12", nothing for other names.
std::optional<int> functionKey(std::string_view name)
{
    for (int number = 1; number <= 12; ++number)
        if (base::equalIgnoringCase(name, "F" + std::to_string(number))) return platform::keyF1 + number - 1;
    return std::nullopt;
}

std::optional<Key> bareKeyNamed(std::string_view name)
{
    if (base::length(name) == 1) return keyTyping(base::characterAt(name, 1));
    if (const std::optional<int> code = functionKey(name)) return Key{.code = *code};
    const auto* const named = std::find_if(namedKeys.begin(), namedKeys.end(), [&](const NamedKey& key) {
        return base::equalIgnoringCase(key.name, name);
    });
    if (named == namedKeys.end()) return std::nullopt;
    return Key{.code = named->code, .character = named->code == platform::keySpace ? U' ' : 0};
}

bool takeModifier(std::string_view& name, std::string_view modifier)
{
    const bool stands =
        name.size() > modifier.size() && base::equalIgnoringCase(name.substr(0, modifier.size()), modifier);
    if (stands) name.remove_prefix(modifier.size());
    return stands;
}

char32_t shifted(char32_t character)
{
    const auto* const key = std::find_if(signKeys.begin(), signKeys.end(),
                                         [&](const SignKey& candidate) { return candidate.plain == character; });
    return key == signKeys.end() ? base::upper(character) : key->shifted;
}

}  // namespace

Key keyTyping(char32_t character)
{
    Key key{.character = character};
    const char32_t capital = character < 0x80 ? base::upper(character) : character;
    if (isCapital(capital) || character == U' ') {
        key.code = static_cast<int>(capital);
        key.shift = isCapital(character);
        return key;
    }
    if (character == platform::charTab) return Key{.code = platform::keyTab};
    for (const SignKey& sign : signKeys) {
        if (character != sign.plain && character != sign.shifted) continue;
        key.code = sign.code;
        key.shift = character == sign.shifted;
    }
    return key;
}

std::optional<Key> keyNamed(std::string_view name)
{
    bool ctrl = false;
    bool alt = false;
    bool shift = false;
    for (bool found = true; found;) {
        found = false;
        if (takeModifier(name, "Ctrl+")) found = ctrl = true;
        if (takeModifier(name, "Alt+")) found = alt = true;
        if (takeModifier(name, "Shift+")) found = shift = true;
    }
    std::optional<Key> key = bareKeyNamed(name);
    if (!key) return std::nullopt;
    key->ctrl = ctrl;
    key->alt = alt;
    // Ctrl+V is the key with the letter V on it, as one speaks of it.
    key->shift = shift || (key->shift && !ctrl && !alt);
    if (shift) key->character = shifted(key->character);
    return key;
}

}  // namespace script
