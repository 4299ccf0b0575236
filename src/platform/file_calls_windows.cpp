#include <windows.h>
// Behind the header of the system.
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/file_calls.h"

namespace platform {

namespace {

void note(std::error_code& failed)
{
    failed.assign(errno, std::generic_category());
}

std::error_code lastFailure()
{
    switch (::GetLastError()) {
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return std::make_error_code(std::errc::no_space_on_device);
        case ERROR_WRITE_PROTECT:
            return std::make_error_code(std::errc::read_only_file_system);
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return std::make_error_code(std::errc::no_such_file_or_directory);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return std::make_error_code(std::errc::permission_denied);
        default:
            return std::make_error_code(std::errc::io_error);
    }
}

}  // namespace

void WritableFile::create(const std::filesystem::path& file, std::error_code& failed)
{
    close(failed);
    // Wide characters: a name may have letters that the code page of the computer lacks.
    descriptor_ =
        ::_wopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    if (descriptor_ < 0) note(failed);
}

void WritableFile::write(std::string_view bytes, std::error_code& failed)
{
    constexpr std::size_t mostAtOnce = 1U << 20U;
    while (!bytes.empty()) {
        const auto amount = static_cast<unsigned>(std::min(bytes.size(), mostAtOnce));
        const int written = ::_write(descriptor_, bytes.data(), amount);
        if (written < 0) return note(failed);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void WritableFile::synchronise(std::error_code& failed)
{
    if (::_commit(descriptor_) != 0) note(failed);
}

void WritableFile::close(std::error_code& failed)
{
    if (!isOpen()) return;
    if (::_close(std::exchange(descriptor_, -1)) != 0) note(failed);
}

void renameOver(const std::filesystem::path& file, const std::filesystem::path& name, std::error_code& failed)
{
    constexpr DWORD inOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (::MoveFileExW(file.c_str(), name.c_str(), inOneStep) == 0) failed = lastFailure();
}

/// Names are written through as they are given.
void synchroniseFolder(const std::filesystem::path& /*folder*/, std::error_code& /*failed*/)
{
}

}  // namespace platform
