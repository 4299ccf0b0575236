// A file of results: written line by line beside its place, and put there when it is whole.
#pragma once

#include <string_view>

#include "platform/file_beside.h"

namespace platform {

/// One file at a time. Lines go out in Windows-1250, each ended by CR LF. A file that fails is thrown away: its place
/// stays as it was. So is one that was not closed when the object goes.
class ResultFile {
 public:
    /// Begins a file; one that was open is closed first. `designPath` as for resolve(). Error 76 when the folder is not
    /// there, 75 when the file cannot be written.
    void open(std::string_view designPath);

    bool isOpen() const { return file_.isOpen(); }

    /// Writes a line. The first failure throws the file away and raises 61 when the disk is full, else 75. Nothing
    /// happens when no file is open.
    void print(std::string_view line);

    /// Throws the file away: what was to be written did not come together.
    void abandon() noexcept { file_.discard(); }

    /// Puts the file in its place, in place of an older one, safe from a power cut. Errors as for print(). Nothing
    /// happens when no file is open.
    void close();

 private:
    FileBeside file_;
};

}  // namespace platform
