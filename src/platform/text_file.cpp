#include "platform/text_file.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/file_beside.h"
#include "platform/files.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

std::string nameOf(const fs::path& path)
{
    return pathText(path.filename());
}

/// Putting another file in its place would get round the protection.
bool isWriteProtected(const fs::path& path)
{
    std::error_code unknown;
    const fs::file_status status = fs::status(path, unknown);
    return fs::is_regular_file(status) && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

/// Everything from here to the end. A device that fails leaves the stream bad, as a folder in the file's place does.
std::string bytesOf(std::ifstream& file)
{
    constexpr std::size_t blockSize = 65536;
    std::string bytes;
    std::array<char, blockSize> block{};
    do {
        file.read(block.data(), block.size());
        bytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
    } while (file);
    return bytes;
}

}  // namespace

std::string readTextFile(std::string_view designPath)
{
    const fs::path path = resolve(designPath);
    std::error_code ignored;
    if (!fs::exists(path, ignored)) throw base::RuntimeError(base::noSuchFile, nameOf(path) + " is not there");
    std::ifstream file(path, std::ios::binary);
    const std::string bytes = bytesOf(file);
    if (!file.is_open() || file.bad())
        throw base::RuntimeError(base::existsOrNoAccess, nameOf(path) + " cannot be read");
    return base::fromWindows1250(bytes);
}

void writeTextFile(std::string_view designPath, std::string_view text)
{
    const fs::path path = resolve(designPath);
    if (isWriteProtected(path))
        throw base::RuntimeError(base::existsOrNoAccess, nameOf(path) + " is write-protected: it stays as it was");
    FileBeside file;
    file.begin(path);
    file.write(base::toWindows1250(text));
    file.putInPlace();
}

std::string FieldReader::text()
{
    at_ = text_.find_first_not_of(' ', at_);
    if (at_ >= text_.size()) throw base::RuntimeError(base::endOfFile, "The file ends too early");
    std::string value;
    if (text_[at_] == '"') {
        const std::size_t close = text_.find('"', at_ + 1);
        value = text_.substr(at_ + 1, close == std::string::npos ? close : close - at_ - 1);
        at_ = close == std::string::npos ? text_.size() : text_.find_first_of(",\r\n", close);
    } else {
        const std::size_t end = text_.find_first_of(",\r\n", at_);
        value = text_.substr(at_, end == std::string::npos ? end : end - at_);
        at_ = end;
    }
    skipSeparator();
    return value;
}

std::int16_t FieldReader::number()
{
    return base::toInt16(text());
}

/// One comma or one line end belongs to the value before it.
void FieldReader::skipSeparator()
{
    if (at_ >= text_.size()) {
        at_ = text_.size();
        return;
    }
    const bool carriageReturn = text_[at_] == '\r';
    ++at_;
    if (carriageReturn && at_ < text_.size() && text_[at_] == '\n') ++at_;
}

}  // namespace platform
