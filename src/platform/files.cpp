#include "platform/files.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

fs::path nativePath(std::string_view designPath)
{
    std::u8string text(designPath.begin(), designPath.end());
    std::replace(text.begin(), text.end(), u8'\\', static_cast<char8_t>('/'));
    return fs::path(text);
}

/// The entry of `folder` whose name is `name` but for case; `name` itself when there is none.
fs::path entryIgnoringCase(const fs::path& folder, const fs::path& name)
{
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end; entry.increment(ignored))
        if (base::equalIgnoringCase(pathText(entry->path().filename()), pathText(name)))
            return entry->path().filename();
    return name;
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
        names.push_back(pathText(entry->path().filename()));
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
    return !name.empty() && std::none_of(name.begin(), name.end(), isForbidden);
}

std::string pathText(const fs::path& path)
{
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

}  // namespace platform
