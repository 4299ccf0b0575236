#include "platform/file_calls.h"

#include <utility>

namespace platform {

WritableFile::WritableFile(WritableFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1))
{
}

WritableFile& WritableFile::operator=(WritableFile&& other) noexcept
{
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

WritableFile::~WritableFile()
{
    std::error_code ignored;
    close(ignored);
}

}  // namespace platform
