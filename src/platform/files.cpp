#include "platform/files.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

fs::path nativePath(std::string_view designPath)
{
    std::string text(designPath);
    std::replace(text.begin(), text.end(), '\\', '/');
    return pathFrom(text);
}

/// Nothing for a name that is no text: one of the systems allows such.
std::optional<std::string> nameOf(const fs::directory_entry& entry)
{
    try {
        return pathText(entry.path().filename());
    } catch (const fs::filesystem_error&) {
        return std::nullopt;
    }
}

/// The entry of `folder` whose name is `name` but for case; `name` itself when there is none.
fs::path entryIgnoringCase(const fs::path& folder, const fs::path& name)
{
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end; entry.increment(ignored))
        if (const auto text = nameOf(*entry); text && base::equalIgnoringCase(*text, pathText(name)))
            return entry->path().filename();
    return name;
}

/// Names that one of the systems keeps for its devices, whatever extension follows.
bool isNameOfDevice(std::string_view name)
{
    constexpr std::string_view devices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::string_view numbered[] = {"COM", "LPT"};
    constexpr std::string_view numbers[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "¹", "²", "³"};
    const std::string stem = base::upper(base::trim(name.substr(0, name.find('.'))));
    const auto isStem = [&](std::string_view device) { return stem == device; };
    const auto isNumbered = [&](std::string_view device) {
        return stem.starts_with(device) && std::find(std::begin(numbers), std::end(numbers),
                                                     std::string_view(stem).substr(device.size())) != std::end(numbers);
    };
    return std::any_of(std::begin(devices), std::end(devices), isStem) ||
           std::any_of(std::begin(numbered), std::end(numbered), isNumbered);
}

/// Two names that differ in case alone have an order too, so that a folder reads the same every time.
void sortIgnoringCase(std::vector<std::string>& names)
{
    std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
        return std::pair(base::upper(one), one) < std::pair(base::upper(other), other);
    });
}

}  // namespace

fs::path resolve(std::string_view designPath)
{
    fs::path asWritten = nativePath(designPath);
    std::error_code ignored;
    if (asWritten.empty() || fs::exists(asWritten, ignored)) return asWritten;
    if (!asWritten.has_parent_path() || asWritten.parent_path() == asWritten) return asWritten;
    const fs::path folder = resolve(pathText(asWritten.parent_path()));
    return folder / entryIgnoringCase(folder, asWritten.filename());
}

void makeFolder(std::string_view designPath)
{
    const fs::path path = resolve(designPath);
    const std::string name = pathText(path.filename());
    std::error_code failed;
    if (fs::exists(path, failed)) throw base::RuntimeError(base::existsOrNoAccess, name + " is there already");
    if (!fs::is_directory(path.parent_path(), failed))
        throw base::RuntimeError(base::noSuchFolder, "The folder of " + name + " is not there");
    if (fs::create_directory(path, failed)) return;
    if (failed == std::errc::no_space_on_device)
        throw base::RuntimeError(base::diskFull, "The disk is full: the folder " + name + " was not made");
    throw base::RuntimeError(base::existsOrNoAccess, "The folder " + name + " cannot be made");
}

bool folderIsThere(std::string_view designPath)
{
    std::error_code ignored;
    return fs::is_directory(resolve(designPath), ignored);
}

void deleteFile(std::string_view designPath)
{
    const fs::path path = resolve(designPath);
    const std::string name = pathText(path.filename());
    std::error_code failed;
    if (!fs::is_regular_file(path, failed)) throw base::RuntimeError(base::noSuchFile, name + " is not there");
    if (!fs::remove(path, failed)) throw base::RuntimeError(base::existsOrNoAccess, name + " cannot be deleted");
}

FolderContents readFolder(std::string_view designPath)
{
    const fs::path path = resolve(designPath);
    const std::string name = pathText(path.filename());
    std::error_code failed;
    if (!fs::is_directory(path, failed))
        throw base::RuntimeError(base::noSuchFolder, "The folder " + name + " is not there");
    FolderContents contents;
    fs::directory_iterator entry(path, failed);
    for (const fs::directory_iterator end; !failed && entry != end; entry.increment(failed)) {
        std::error_code unknown;
        auto& names = entry->is_directory(unknown) ? contents.folders : contents.files;
        if (auto text = nameOf(*entry)) names.push_back(std::move(*text));
    }
    if (failed) throw base::RuntimeError(base::existsOrNoAccess, "The folder " + name + " cannot be read");
    sortIgnoringCase(contents.folders);
    sortIgnoringCase(contents.files);
    return contents;
}

std::string folderAbove(std::string_view designPath)
{
    const fs::path path = resolve(designPath);
    const fs::path withoutEnd = path.has_filename() ? path : path.parent_path();
    return pathText(withoutEnd.parent_path());
}

bool isFileName(std::string_view name)
{
    const auto isForbidden = [](unsigned char character) {
        return character < ' ' ||
               std::string_view("\\/:*?\"<>|").find(static_cast<char>(character)) != std::string_view::npos;
    };
    if (name.empty() || std::any_of(name.begin(), name.end(), isForbidden)) return false;
    // One of the systems drops these in silence: the file would not be found under its name.
    if (name.ends_with('.') || name.ends_with(' ')) return false;
    return !isNameOfDevice(name);
}

fs::path pathFrom(std::string_view text)
{
    return {std::u8string(text.begin(), text.end())};
}

std::string pathText(const fs::path& path)
{
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

}  // namespace platform
