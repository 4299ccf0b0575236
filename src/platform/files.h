// Finding the program's files on a file system that may respect case.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The native path for a path in the program's own form: UTF-8, its parts separated by backslashes behind the
/// program's folder ("/home/yo2xyz/station\LogKelvo.mdb"). A part that is not there as it is written is looked up
/// without regard to case; parts that do not exist at all stay as written, so the result can be used to make them.
std::filesystem::path resolve(std::string_view designPath);

/// Makes a folder. `designPath` as for resolve(). Error 75 when something of that name is there already, in whatever
/// case, or when it may not be made there; 76 when the folder above is not there; 61 when the disk is full.
void makeFolder(std::string_view designPath);

/// True when there is a folder at `designPath`.
bool folderIsThere(std::string_view designPath);

/// Deletes a file. `designPath` as for resolve(). Error 53 when there is none, 75 when it may not be deleted.
void deleteFile(std::string_view designPath);

/// Names in a folder, in the order of the alphabet without regard to case.
struct FolderContents {
    std::vector<std::string> folders;
    std::vector<std::string> files;
};

/// What is in a folder. `designPath` as for resolve(). Error 76 when it is not there, 75 when it may not be read.
FolderContents readFolder(std::string_view designPath);

/// The folder that a folder is in; the same one at the root of a volume. `designPath` as for resolve().
std::string folderAbove(std::string_view designPath);

/// True when a file can bear this name on every system that the program runs on. A path is no name, nor is that of a
/// device, such as CON.txt.
bool isFileName(std::string_view name);

/// A native path from UTF-8 text.
std::filesystem::path pathFrom(std::string_view text);

/// A native path as UTF-8 text.
std::string pathText(const std::filesystem::path& path);

}  // namespace platform
