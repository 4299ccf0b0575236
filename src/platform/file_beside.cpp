#include "platform/file_beside.h"

#include <utility>

#include "base/runtime_error.h"
#include "platform/files.h"

namespace platform {

namespace fs = std::filesystem;

FileBeside::FileBeside(FileBeside&& other) noexcept
    : place_(std::move(other.place_)),
      beside_(std::exchange(other.beside_, {})),
      block_(std::exchange(other.block_, {})),
      file_(std::move(other.file_))
{
}

FileBeside& FileBeside::operator=(FileBeside&& other) noexcept
{
    if (this == &other) return *this;
    discard();
    place_ = std::move(other.place_);
    beside_ = std::exchange(other.beside_, {});
    block_ = std::exchange(other.block_, {});
    file_ = std::move(other.file_);
    return *this;
}

FileBeside::~FileBeside()
{
    discard();
}

void FileBeside::begin(const fs::path& place)
{
    discard();
    place_ = place;
    std::error_code failed;
    if (!fs::is_directory(place_.parent_path(), failed))
        throw base::RuntimeError(base::noSuchFolder, "The folder of " + pathText(place_.filename()) + " is not there");
    // Known before the first line, not when the file is put in its place.
    if (fs::is_directory(place_, failed)) fail(std::make_error_code(std::errc::is_a_directory));
    fs::path beside = place_;
    beside += ".new";
    failed.clear();
    file_.create(beside, failed);
    check(failed);
    beside_ = std::move(beside);
}

void FileBeside::write(std::string_view bytes)
{
    constexpr std::size_t blockSize = 65536;
    block_ += bytes;
    if (block_.size() >= blockSize) writeBlock();
}

void FileBeside::putInPlace()
{
    writeBlock();
    std::error_code failed;
    // The order matters: a name that came before its content would stand for an empty file after a power cut.
    file_.synchronise(failed);
    check(failed);
    file_.close(failed);
    check(failed);
    renameOver(beside_, place_, failed);
    check(failed);
    beside_.clear();
    synchroniseFolder(place_.parent_path(), failed);
    check(failed);
}

void FileBeside::writeBlock()
{
    std::error_code failed;
    file_.write(block_, failed);
    block_.clear();
    check(failed);
}

void FileBeside::check(const std::error_code& failed)
{
    if (failed) fail(failed);
}

void FileBeside::fail(const std::error_code& why)
{
    const std::string name = pathText(place_.filename());
    discard();
    if (why == std::errc::no_space_on_device)
        throw base::RuntimeError(base::diskFull, "The disk is full: " + name + " was not written");
    throw base::RuntimeError(base::existsOrNoAccess, name + " cannot be written: " + why.message());
}

void FileBeside::discard() noexcept
{
    block_.clear();
    std::error_code ignored;
    file_.close(ignored);
    if (beside_.empty()) return;
    fs::remove(beside_, ignored);
    beside_.clear();
}

}  // namespace platform
