// A file that takes its place whole: written beside it, safe on the disk, then put there in one step.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/file_calls.h"

namespace platform {

/// Whatever happens on the way, a kill and a power cut included, the place has the old file or the new one. A failure
/// throws away what was written beside, and raises 61 when the disk is full, else 75; the text names the file and says
/// what it means.
class FileBeside {
 public:
    FileBeside() = default;
    FileBeside(FileBeside&& other) noexcept;
    FileBeside& operator=(FileBeside&& other) noexcept;
    /// Throws a file away that was not put in its place.
    ~FileBeside();

    /// Begins a file named NAME.new beside `place`, over one that a killed program left there. Error 76 when the
    /// folder is not there.
    void begin(const std::filesystem::path& place);
    bool isOpen() const { return file_.isOpen(); }
    /// Takes bytes; they go to the disk by the block.
    void write(std::string_view bytes);
    /// Puts the file in its place, in place of an older one. When this returns, a power cut cannot harm it.
    void putInPlace();
    void discard() noexcept;

 private:
    void writeBlock();
    void check(const std::error_code& failed);
    [[noreturn]] void fail(const std::error_code& why);

    std::filesystem::path place_;
    std::filesystem::path beside_;
    std::string block_;
    WritableFile file_;
};

}  // namespace platform
