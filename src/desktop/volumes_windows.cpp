#include <windows.h>

#include <array>
#include <filesystem>

#include "base/text.h"
#include "desktop/volumes.h"
#include "platform/files.h"

namespace desktop {

namespace {

/// Every drive that has a letter. None of them is asked for its medium: a diskette would begin to turn, and a computer
/// of the network that is switched off would make everything wait.
std::vector<std::string> letteredDrives()
{
    std::vector<std::string> drives;
    const DWORD letters = GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        if ((letters >> static_cast<unsigned>(letter - 'A')) % 2 != 0) drives.push_back(std::string(1, letter) + ':');
    return drives;
}

std::wstring rootOf(const std::string& drive)
{
    return std::wstring(drive.begin(), drive.end()) + L'\\';
}

/// A drive for diskettes, cards or sticks. The letter A is given on purpose, whatever it was given to.
bool takesMedia(const std::string& drive)
{
    return drive == "A:" || GetDriveTypeW(rootOf(drive).c_str()) == DRIVE_REMOVABLE;
}

/// No box of the system asks for a medium where there is none.
bool hasMedium(const std::string& drive)
{
    DWORD before = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before);
    const bool there =
        GetVolumeInformationW(rootOf(drive).c_str(), nullptr, 0, nullptr, nullptr, nullptr, nullptr, 0) != 0;
    SetThreadErrorMode(before, nullptr);
    return there;
}

/// The drive that Windows runs from.
std::string driveOfSystem()
{
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = GetWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return length == 0 ? std::string() : platform::pathText(std::filesystem::path(folder.data()).root_name());
}

/// `//server/share` or the letter with its colon.
std::string volumeOf(const std::filesystem::path& folder)
{
    const std::string root = platform::pathText(folder.root_name());
    if (!root.starts_with("//") || folder.relative_path().empty()) return base::upper(root);
    return root + '/' + platform::pathText(*folder.relative_path().begin());
}

}  // namespace

/// In the order of the letters.
std::optional<std::string> MountedVolumes::driveA() const
{
    std::vector<Volume> volumes;
    const std::string system = driveOfSystem();
    for (const std::string& drive : letteredDrives())
        volumes.push_back({drive, base::equalIgnoringCase(drive, system), takesMedia(drive) && hasMedium(drive)});
    return driveAAmong(volumes);
}

std::vector<std::string> MountedVolumes::names() const
{
    std::vector<Volume> volumes;
    for (const std::string& drive : letteredDrives())
        volumes.push_back({drive});
    return namesOf(volumes, volumeOf(platform::resolve(programFolder_)));
}

}  // namespace desktop
