// The entry point of a program without windows, where words are wide characters: the narrow ones have lost what the
// code page of the computer does not know.
#include <algorithm>
#include <filesystem>
#include <iterator>

#include "platform/console_main.h"

/// The runtime of the compiler calls it with -municode.
extern "C" int wmain(int count, wchar_t** words)
{
    std::vector<std::string> texts;
    std::transform(words + std::min(count, 1), words + count, std::back_inserter(texts), [](const wchar_t* word) {
        const std::u8string text = std::filesystem::path(word).u8string();
        return std::string(text.begin(), text.end());
    });
    return platform::consoleMain(texts);
}
