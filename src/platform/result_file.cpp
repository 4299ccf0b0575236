#include "platform/result_file.h"

#include <system_error>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/files.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

bool diskIsFull(const fs::path& folder)
{
    std::error_code unknown;
    const fs::space_info space = fs::space(folder, unknown);
    return !unknown && space.available == 0;
}

}  // namespace

ResultFile::ResultFile(ResultFile&& other) noexcept
    : place_(std::move(other.place_)), beside_(std::exchange(other.beside_, {})), stream_(std::move(other.stream_))
{
}

ResultFile& ResultFile::operator=(ResultFile&& other) noexcept
{
    if (this == &other) return *this;
    discard();
    place_ = std::move(other.place_);
    beside_ = std::exchange(other.beside_, {});
    stream_ = std::move(other.stream_);
    return *this;
}

ResultFile::~ResultFile()
{
    discard();
}

void ResultFile::open(std::string_view designPath)
{
    // What becomes of the file before is no matter of this one.
    base::quietly([this] { close(); });
    place_ = resolve(designPath);
    beside_ = place_;
    beside_ += ".new";
    std::error_code failed;
    if (!fs::is_directory(place_.parent_path(), failed))
        throw base::RuntimeError(base::noSuchFolder, "The folder of " + pathText(place_.filename()) + " is not there");
    // Known before the first line, not when the file is put in its place.
    if (fs::is_directory(place_, failed)) fail();
    stream_.clear();
    stream_.open(beside_, std::ios::binary | std::ios::trunc);
    if (!stream_.is_open()) fail();
}

void ResultFile::print(std::string_view line)
{
    if (!isOpen()) return;
    const std::string bytes = base::toWindows1250(line).append("\r\n");
    stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream_) fail();
}

void ResultFile::close()
{
    if (!isOpen()) return;
    stream_.close();
    if (!stream_) fail();
    std::error_code failed;
    fs::rename(beside_, place_, failed);
    if (failed) fail();
    beside_.clear();
}

void ResultFile::fail()
{
    const std::string name = pathText(place_.filename());
    const bool full = diskIsFull(place_.parent_path());
    discard();
    if (full) throw base::RuntimeError(base::diskFull, "The disk is full: " + name + " was not written");
    throw base::RuntimeError(base::existsOrNoAccess, name + " cannot be written");
}

void ResultFile::discard() noexcept
{
    if (beside_.empty()) return;
    if (stream_.is_open()) stream_.close();
    stream_.clear();
    std::error_code ignored;
    fs::remove(beside_, ignored);
    beside_.clear();
}

}  // namespace platform
