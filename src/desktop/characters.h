// Texts of the program as the toolkit wants them.
#pragma once

#include <QString>
#include <string>

#include "base/text.h"

namespace desktop {

/// A text for the toolkit, character by character: a byte that is no valid UTF-8 stays one character.
inline QString toolkitText(const std::string& text)
{
    const std::u32string characters = base::toCharacters(text);
    return QString::fromUcs4(characters.data(), static_cast<qsizetype>(characters.size()));
}

}  // namespace desktop
