// Text as the program sees it: UTF-8 inside, counted in characters, and Windows-1250 in every file that leaves it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Number of characters. A byte that is no valid UTF-8 counts as one character.
std::size_t length(std::string_view text);

/// The first `count` characters, or all of them when there are fewer.
std::string left(std::string_view text, std::size_t count);

/// The last `count` characters, or all of them when there are fewer.
std::string right(std::string_view text, std::size_t count);

/// `count` characters from position `start`, counted from 1; fewer, or none, when the text ends before.
/// A `start` of 0 raises error 5.
std::string mid(std::string_view text, std::size_t start, std::size_t count = std::string::npos);

/// The text without the blanks (only blanks) at both ends.
std::string trim(std::string_view text);

/// Capital letters for small ones: ASCII, Latin-1 and the Romanian and other letters of Windows-1250.
std::string upper(std::string_view text);

/// The same for one character.
char32_t upper(char32_t character);

/// `count` characters: cut when longer, filled with blanks on the right when shorter.
std::string padRight(std::string_view text, std::size_t count);

/// `count` blanks.
std::string blanks(std::size_t count);

/// Code point of the character at `position`, counted from 1. Error 5 when there is none.
char32_t characterAt(std::string_view text, std::size_t position);

/// One character as UTF-8.
std::string fromCharacter(char32_t character);

/// The characters of a text, one by one. An invalid byte becomes the character with its value.
std::u32string toCharacters(std::string_view text);

/// The reverse of toCharacters.
std::string fromCharacters(std::u32string_view characters);

/// True when both texts are equal but for the case of letters.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// The bytes of the text in Windows-1250 (as published by the Unicode consortium, CP1250.TXT). Ș ș Ț ț are written
/// as Ş ş Ţ ţ, other characters outside the page as "?".
std::string toWindows1250(std::string_view text);

/// Text from bytes in Windows-1250. The five bytes that the page leaves undefined become the control characters of
/// the same value.
std::string fromWindows1250(std::string_view bytes);

}  // namespace base
