// What a file needs to be safe on the disk, and the library of the language does not know: one source a system.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace platform {

/// A file that is open for writing. What failed is told in `failed`, which stays as it was otherwise; a full disk, and
/// a share of it that is used up, is std::errc::no_space_on_device.
class WritableFile {
 public:
    WritableFile() = default;
    WritableFile(WritableFile&& other) noexcept;
    WritableFile& operator=(WritableFile&& other) noexcept;
    ~WritableFile();

    /// Makes the file, or empties the one that is there.
    void create(const std::filesystem::path& file, std::error_code& failed);
    bool isOpen() const { return descriptor_ >= 0; }
    void write(std::string_view bytes, std::error_code& failed);
    /// Returns when the disk has everything that was written.
    void synchronise(std::error_code& failed);
    void close(std::error_code& failed);

 private:
    int descriptor_ = -1;
};

/// Gives a file another name, in one step, in place of the file that has it.
void renameOver(const std::filesystem::path& file, const std::filesystem::path& name, std::error_code& failed);

/// Returns when the disk has the names in a folder. Where a system or a file system does that by itself, or has no call
/// for it, this is no failure.
void synchroniseFolder(const std::filesystem::path& folder, std::error_code& failed);

}  // namespace platform
