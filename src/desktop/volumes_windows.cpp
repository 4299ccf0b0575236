#include <windows.h>

#include <cctype>
#include <filesystem>

#include "desktop/volumes.h"
#include "platform/files.h"

namespace desktop {

namespace {

/// Every drive that has a letter. None of them is asked for its medium: a diskette would begin to turn, and a computer
/// of the network that is switched off would make everything wait.
std::vector<Volume> lettered()
{
    std::vector<Volume> volumes;
    const DWORD letters = GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        if ((letters >> static_cast<unsigned>(letter - 'A')) % 2 != 0)
            volumes.push_back({std::string(1, letter) + ':'});
    return volumes;
}

}  // namespace

/// The drive of that letter itself: a stick is one where the letter was given to it.
std::optional<std::string> MountedVolumes::driveA() const
{
    const std::vector<Volume> volumes = lettered();
    if (volumes.empty() || volumes.front().folder != "A:") return std::nullopt;
    return volumes.front().folder;
}

std::vector<std::string> MountedVolumes::names() const
{
    const std::filesystem::path folder = platform::resolve(programFolder_);
    std::string own = platform::pathText(folder.root_name());
    if (own.size() == 2) own.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(own.front())));
    return namesOf(lettered(), own);
}

}  // namespace desktop
