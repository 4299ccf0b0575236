#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/file_calls.h"

namespace platform {

namespace {

/// Who reads the file is for the mask of the account to say.
constexpr mode_t everybody = 0666;

void note(std::error_code& failed)
{
    // A used-up share is a full disk to the operator.
    failed.assign(errno == EDQUOT ? ENOSPC : errno, std::generic_category());
}

/// A file system that cannot synchronise a thing of this kind answers so.
bool hasNoSuchCall(int number)
{
    return number == EINVAL || number == ENOTSUP || number == ENOSYS;
}

void synchroniseDescriptor(int descriptor, std::error_code& failed)
{
    while (::fsync(descriptor) != 0) {
        if (errno == EINTR) continue;
        if (!hasNoSuchCall(errno)) note(failed);
        return;
    }
}

}  // namespace

void WritableFile::create(const std::filesystem::path& file, std::error_code& failed)
{
    close(failed);
    descriptor_ = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, everybody);
    if (descriptor_ < 0) note(failed);
}

void WritableFile::write(std::string_view bytes, std::error_code& failed)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return note(failed);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void WritableFile::synchronise(std::error_code& failed)
{
    synchroniseDescriptor(descriptor_, failed);
}

void WritableFile::close(std::error_code& failed)
{
    if (!isOpen()) return;
    // Interrupted or not, the descriptor is gone.
    if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) note(failed);
}

void renameOver(const std::filesystem::path& file, const std::filesystem::path& name, std::error_code& failed)
{
    if (::rename(file.c_str(), name.c_str()) != 0) note(failed);
}

void synchroniseFolder(const std::filesystem::path& folder, std::error_code& failed)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder that may be written in but not read cannot be opened.
    if (descriptor < 0 && errno == EACCES) return;
    if (descriptor < 0) return note(failed);
    synchroniseDescriptor(descriptor, failed);
    ::close(descriptor);
}

}  // namespace platform
